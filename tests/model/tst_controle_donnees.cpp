#include "model/Livre.h"
#include "model/Ressources.h"
#include "model/controle/ControleDonnees.h"
#include "model/controle/ControleUtilisateur.h"
#include "model/controle/NumeroDeControle.h"
#include "tests/Rangees.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace Quillet;

namespace {

const QDate jour(2026, 3, 2);

QDir livrees()
{
    return {Ressources::duProgramme().chemin(QString())};
}

void copier(const QDir &de, const QDir &vers)
{
    QVERIFY(QDir().mkpath(vers.path()));
    for (const QString &nom : de.entryList(QDir::Files))
        QVERIFY(QFile::copy(de.filePath(nom), vers.filePath(nom)));
}

void remplacer(const QString &chemin, const QByteArray &avant, const QByteArray &apres)
{
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::ReadWrite));
    QByteArray contenu = fichier.readAll();
    QVERIFY2(contenu.contains(avant), avant.constData());
    contenu.replace(avant, apres);
    QVERIFY(fichier.resize(0) && fichier.seek(0) && fichier.write(contenu) == contenu.size());
}

} // namespace

class TestControleDonnees : public QObject
{
    Q_OBJECT

private slots:
    void erreurs();

    void dossierIllisible()
    {
        const QTemporaryDir dossier;
        const QString absent = dossier.filePath("absent");
        QCOMPARE(ControleDonnees::de(QDir(absent), jour).erreurs,
                 QStringList{absent + QStringLiteral(" : dossier introuvable")});
        QCOMPARE(ControleDonnees::de(QDir(dossier.path()), jour).erreurs,
                 (QStringList{"livres.json : fichier introuvable", "destinations.json : fichier introuvable",
                              "reglages.json : fichier introuvable", "tarifs-colissimo-….json : fichier introuvable"}));
    }

    void aucunTarifEnVigueur()
    {
        QCOMPARE(ControleDonnees::de(livrees(), QDate(2024, 12, 31)).erreurs,
                 QStringList{"tarifs-colissimo-….json : aucun n’est en vigueur, le premier compterait avant son jour"});
        QVERIFY(ControleDonnees::de(livrees(), QDate(2025, 1, 1)).erreurs.isEmpty());
    }

    void numeros()
    {
        for (const auto &[numero, regle, juste] : Rangees<bool (*)(const QString &), bool>{
                 {"978-0-306-40615-7", NumeroDeControle::isbn, true},
                 {"979 99 0417 001 8", NumeroDeControle::isbn, true},
                 {"0-306-40615-2", NumeroDeControle::isbn, true},
                 {"080442957X", NumeroDeControle::isbn, true},
                 {"0804429570", NumeroDeControle::isbn, false},
                 {"978-0-360-40615-7", NumeroDeControle::isbn, false},
                 {"978-0-306-40615", NumeroDeControle::isbn, false},
                 {"4006381333931", NumeroDeControle::isbn, false}, // a bar code, not a book's
                 {"978-0-306-4O615-7", NumeroDeControle::isbn, false},
                 {"732 829 320 00074", NumeroDeControle::siret, true},
                 {"732 829 302 00074", NumeroDeControle::siret, false},
                 {"732 829 320", NumeroDeControle::siret, false},
             })
            QVERIFY2(regle(numero) == juste, numero);
    }

    void dossierDuVendeur()
    {
        const QTemporaryDir temporaire;
        const QDir racine(temporaire.path());
        const QDir programme(racine.filePath("bin"));
        const QString propres = racine.filePath("share/quillet-donnees");
        QVERIFY(QDir().mkpath(programme.path()));
        copier(livrees(), racine.filePath("share/quillet"));
        const auto titre = [&] { return Ressources::autourDe(programme).lire<QList<Livre>>("livres")[0].titre; };
        QCOMPARE(titre(), "Le Phare de sel");
        copier(livrees(), propres);
        remplacer(propres + QStringLiteral("/livres.json"), "Le Phare de sel\"", "Le mien\"");
        QCOMPARE(titre(), "Le mien");

        // Never the example's books instead of a folder that is there but cannot be read.
        QVERIFY(QDir(propres).removeRecursively());
        QVERIFY(QFile::link("/nulle/part", propres));
        try {
            titre();
            QFAIL("lu");
        } catch (const RessourceIllisible &illisible) {
            QVERIFY(illisible.texte().startsWith(
                QStringLiteral(
                    "Ressource illisible : livres.json : fichier introuvable\n\nCe sont vos propres données, dans ")
                + propres));
            QVERIFY(illisible.texte().endsWith(QStringLiteral("quillet --verifier ") + propres));
        }
    }

    // What loading ignores without a word.
    void fichiersDeLUtilisateur()
    {
        const QTemporaryDir dossier;
        const QDir utilisateur(dossier.path());
        QCOMPARE(ControleUtilisateur::erreurs(utilisateur), QStringList());
        for (const auto &[nom, contenu, erreur] : Rangees<const char *, const char *>{
                 {"livres-modifies.json", "{\"1\":{\"prix\":-5,\"disponible\":true}}",
                  "livres-modifies.1.prix : nombre négatif"},
                 {"frais-paypal.json", "[]", "frais-paypal : objet attendu"},
                 {"tarifs-colissimo-2027-01-01.json",
                  "{\"validite\":\"2027-01-01\",\"releve\":\"2026-12-15\",\"source\":\"https://"
                  "a.example\",\"grilles\":[]}",
                  "tarifs-colissimo-2027-01-01.grilles : aucune grille"},
             }) {
            const Rangee rangee(nom);
            QFile fichier(utilisateur.filePath(nom));
            QVERIFY(fichier.open(QIODevice::WriteOnly) && fichier.write(contenu) > 0);
            fichier.close();
            QCOMPARE(ControleUtilisateur::erreurs(utilisateur), QStringList{utilisateur.filePath(erreur)});
            QVERIFY(fichier.remove());
        }
    }

    // The program itself, where Qt would abort as soon as it looked for a display.
    void sansEcran()
    {
        auto environnement = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environnement.remove(variable);
        const QTemporaryDir session; // without one Qt complains
        for (const char *variable : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            environnement.insert(variable, session.path());
        const QTemporaryDir abimes;
        copier(livrees(), QDir(abimes.path()));
        copier(livrees().filePath("couvertures"), QDir(abimes.filePath("couvertures")));
        remplacer(abimes.filePath("couvertures/le-phare-de-sel.svg"), "</", "<");
        const QString verifier = "--verifier";
        for (const auto &[nom, arguments, code, sortie, erreur] : Rangees<QStringList, int, const char *, const char *>{
                 {"données justes",
                  {verifier, livrees().path()},
                  0,
                  "14 livres, 2 fichiers de tarifs, 10 destinations : rien à corriger.",
                  ""},
                 {"image abîmée",
                  {verifier, abimes.path()},
                  1,
                  "couvertures/le-phare-de-sel.svg : l’image est abîmée\n1 erreur à corriger.",
                  ""},
                 {"dossier absent",
                  {verifier, "/nulle/part"},
                  1,
                  "/nulle/part : dossier introuvable\n1 erreur à corriger.",
                  ""},
                 {"celles qui servent", {verifier}, 0, "Données qui servent : ", ""},
                 {"dossier vide", {verifier, ""}, 2, "", "quillet : « --verifier » attend un dossier\nUsage : "},
                 {"option inconnue", {"--bidon"}, 2, "", "quillet : option inconnue « bidon »\nUsage : "},
                 {"argument inattendu",
                  {"livres.json"},
                  2,
                  "",
                  "quillet : argument inattendu « livres.json »\nUsage : "},
                 {"version", {"--version"}, 0, "Quillet ", ""},
                 {"aide", {"--help"}, 0, "Usage : quillet", ""},
             }) {
            const Rangee rangee(nom);
            QProcess quillet;
            quillet.setProcessEnvironment(environnement);
            quillet.start(QCoreApplication::applicationDirPath() + QStringLiteral("/quillet"), arguments);
            QVERIFY(quillet.waitForFinished());
            QCOMPARE(quillet.exitCode(), code);
            const QByteArray dite = quillet.readAllStandardOutput();
            QVERIFY2(*sortie ? dite.startsWith(sortie) : dite.isEmpty(), dite.constData());
            const QByteArray plainte = quillet.readAllStandardError();
            QVERIFY2(*erreur ? plainte.startsWith(erreur) : plainte.isEmpty(), plainte.constData());
        }
    }
};

// Outside the class, which moc would not find for the braces of these texts.
void TestControleDonnees::erreurs()
{
    for (const auto &[fichier, avant, apres, attendues] : Rangees<const char *, const char *, const char *>{
             {"livres", "[", "[", ""},
             // What the codec refuses: every mistake of the file, and nothing inside a refused value.
             {"livres", R"("prix" : 1900,)", R"("prix" : "1900",)",
              "livres[5].prix : entier attendu\nlivres[8].prix : entier attendu"},
             {"livres", R"("id" : 3,)", R"("id" : 3.5, "poid" : 12,)",
              "livres[2].id : entier attendu\nlivres[2].poid : clé inconnue"},
             {"reglages", R"("douane" : {)", R"("douane" : 3, "x" : {)",
              "reglages.douane : objet attendu\nreglages.x : clé inconnue"},
             {"reglages", R"("taux" : 290)", R"("taux" : 290,)",
              "reglages.json : JSON illisible, ligne 44, colonne 3 : virgule en trop"},
             {"reglages", R"("taux" : 290)", R"("taux" : 290, "fixe" : 0, "x\"{" : "taux")",
              "reglages.fraisPaypal.x\"{ : clé inconnue\n"
              "reglages.json, ligne 43 : clé « fixe » écrite deux fois, la dernière compte"},
             {"reglages", R"("taux" : 290)", R"("taux" : 290, "\u0074aux": 290, "fixe" : 0)",
              "reglages.json, ligne 43 : clé « taux » écrite deux fois, la dernière compte\n"
              "reglages.json, ligne 43 : clé « fixe » écrite deux fois, la dernière compte"},
             {"destinations", R"("code" : "france")", R"("code" : 1)", "destinations[0].code : texte attendu"},
             {"tarifs-colissimo-2026-01-01", R"("code" : "om1")", R"("code" : 1)",
              "tarifs-colissimo-2026-01-01.grilles[1].code : texte attendu"},
             // What holds everywhere.
             {"livres", "Le Phare de sel\"", " \"", "livres[0].titre : à remplir"},
             {"livres", R"("france" : 1499)", R"("france" : -1)", "livres[1].prixPaypal.france : nombre négatif"},
             {"livres", "https://boutique.atelier-mireva.example/le-renard\"", "http://boutique.example\"",
              "livres[9].lienPaypal : adresse https attendue"},
             {"livres", "https://boutique.atelier-mireva.example/le-renard\"", "https://paypal.me/mireva\"", ""},
             {"livres", "https://boutique.atelier-mireva.example/le-renard\"", "javascript:alert(1)\"",
              "livres[9].lienPaypal : adresse web complète attendue"},
             {"livres", "https://boutique.atelier-mireva.example/le-renard\"",
              "https://boutique.editions-davrel.example\"",
              "livres[9].lienPaypal : mène à « boutique.editions-davrel.example », qui n’est ni PayPal ni le site de "
              "son vendeur"},
             {"livres", "atelier-mireva.example/le-renard\"", "atelier-mireva.example/\u202Eel\"",
              "livres[9].lienPaypal : un signe invisible y retourne le sens de lecture"},
             // Books.
             {"livres", R"("id" : 3,)", R"("id" : 1,)", "livres[2].id : déjà pris par livres[0]"},
             {"livres", "979-99-0417-001-8", "979-99-0417-001-9",
              "livres[0].isbn : « 979-99-0417-001-9 » n’est pas un ISBN : un chiffre manque ou est faux"},
             {"livres", "979-99-0417-001-8", "", ""},
             {"livres", "le-phare-de-sel.svg", "le-phare.svg",
              "livres[0].couverture : pas d’image « le-phare.svg » dans couvertures"},
             {"livres", "le-phare-de-sel.svg", "le-phare-de-sel", ""},
             {"livres", "le-phare-de-sel.svg", "notes.txt",
              "livres[0].couverture : couvertures/notes.txt n’est pas une image svg, png, jpg, jpeg, gif, bmp"},
             {"livres", "le-phare-de-sel.svg", "vide.png",
              "livres[0].couverture : couvertures/vide.png est un fichier vide"},
             {"livres", "29,\n      74,\n      99", "29, 74",
              "livres[0].teinte : trois nombres attendus : rouge, vert, bleu"},
             {"livres", "29,\n      74,\n      99", "29, -1, 256",
              "livres[0].teinte[1] : nombre de 0 à 255 attendu\nlivres[0].teinte[2] : nombre de 0 à 255 attendu"},
             {"livres", R"("poids" : 355)", R"("poids" : 0)",
              "livres[0].poids : 0 g : à ne pas dire tant que le livre n’est pas pesé"},
             {"livres", R"("poids" : 355)", R"("poids" : -355)", "livres[0].poids : nombre négatif"},
             {"livres", R"("pages" : 288)", R"("pages" : 0)", "livres[0].pages : au moins une page attendue"},
             {"livres", R"("pages" : 288)", R"("pages" : 100000)", "livres[0].pages : 99 999 pages au plus"},
             {"livres", R"("om1" : 4300)", R"("om3" : 4300)",
              "livres[4].prixEcartes.om3 : aucune destination n’a ce code"},
             // Destinations.
             {"destinations", R"("code" : "france")", R"("code" : "om1")",
              "…\ndestinations[1].code : déjà pris par destinations[0]\n"
              "destinations : aucune n’a le code « france », celui d’une nouvelle commande"},
             {"destinations", R"("grille" : "zone-c")", R"("grille" : "zone-d")",
              "destinations[8].grille : pas de grille « zone-d » dans tarifs-colissimo-2025-01-01, "
              "tarifs-colissimo-2026-01-01"},
             {"destinations", R"("douane" : false,)", R"("douane" : true,)",
              "destinations[3].douaneSauf : sans effet, douane étant true"},
             // Countries.
             {"pays", R"("la Belgique")", R"("la Suisse")", "pays[218].libelleFr : déjà pris par pays[21]"},
             {"pays", R"(["België"], "destination" : "union-europeenne")", R"(["België"], "destination" : "ue")",
              "pays[21].destination : aucune destination n’a ce code"},
             // Settings.
             {"reglages", "2026-07-24", "2026-02-30",
              "reglages.fraisPaypal.releve : jour attendu, de la forme 2026-01-31"},
             {"reglages", R"("eee" : 0)", R"("europe" : 0)", "reglages.fraisPaypal.supplements.europe : clé inconnue"},
             {"reglages", R"("mireva" : {)", R"("Mireva" : {)",
              "…\nlivres[13].vendeur : « mireva » n’a pas d’identité dans reglages.vendeurs\n"
              "reglages.vendeurs.Mireva : clé inconnue"},
             {"reglages", R"("codeSH" : "490199")",
              R"("codeSH" : "49.0", "codesParDestination" : {"suisse" : "49019900", "lune" : "12345678901"})",
              "reglages.douane.codeSH : six à dix chiffres attendus\n"
              "reglages.douane.codesParDestination.lune : six à dix chiffres attendus"},
             {"reglages", R"("nom" : "Atelier Mireva",)",
              R"("nom" : "Atelier Mireva", "eori" : "FR 123", "nomCourt" : " ",)",
              "reglages.vendeurs.mireva.nomCourt : à remplir\n"
              "reglages.vendeurs.mireva.eori : numéro EORI attendu : deux lettres, puis quinze chiffres au plus, sans "
              "espace"},
             {"reglages", R"("nom" : "Enveloppe à bulles")", R"("nom" : "Enveloppe")",
              "reglages.emballages : aucun ne s’appelle « Enveloppe à bulles », "
              "l’emballage d’une nouvelle commande : il compterait 0 g"},
             {"reglages", "Pochette cartonnée", "Carton",
              "reglages.emballages[4].nom : un autre emballage a déjà ce nom"},
             {"reglages", "Pochette cartonnée", "Autre poids",
              "reglages.emballages[2].nom : nom réservé au poids que l’on tape"},
             {"reglages", R"("poids" : 40)", R"("poids" : 0)",
              "reglages.emballages[0].poids : plus de 0 g attendus, "
              "ce poids compte dans les prix des boutons PayPal"},
             {"reglages", R"("poids" : 40)", R"("poids" : -40)",
              "reglages.emballages[0].poids : nombre négatif, une commande le compte comme 0 g"},
             {"reglages", "TVA non applicable, art. 293 B du CGI", "", ""},
             {"reglages", "000 000 000 00000", "000 000 000 00001",
              "reglages.vendeurs.davrel.siret : ce n’est pas un numéro SIRET"},
             {"reglages", R"("site" : ")", R"("site" : "https://)",
              "reglages.vendeurs.davrel.site : nom de site attendu, sans https:// ni page\n"
              "reglages.vendeurs.mireva.site : nom de site attendu, sans https:// ni page"},
             {"reglages", "https://editions-davrel.example/merci", "merci",
              "reglages.vendeurs.davrel.retourPaypal : adresse https attendue"},
             // Schedules.
             {"tarifs-colissimo-2026-01-01", R"("2026-01-01")", R"("2025-01-01")",
              "tarifs-colissimo-2026-01-01.validite : déjà pris par tarifs-colissimo-2025-01-01"},
             {"tarifs-colissimo-2026-01-01", R"("jusqua" : 250,)", R"("jusqua" : 500,)",
              "tarifs-colissimo-2026-01-01.grilles[0].paliers[1].jusqua : plus de 500 g attendus, "
              "les paliers vont en montant"},
             {"tarifs-colissimo-2026-01-01", R"("prix" : 549)", R"("prix" : 0)",
              "tarifs-colissimo-2026-01-01.grilles[0].paliers[0].prix : plus de 0 attendu"},
             {"tarifs-colissimo-2026-01-01", R"("code" : "om1")", R"("code" : "om3")",
              "destinations[1].grille : pas de grille « om1 » dans tarifs-colissimo-2026-01-01\n"
              "tarifs-colissimo-2026-01-01.grilles[1].code : grille inconnue « om3 » ; "
              "celles de La Poste : france-domicile, om1, om2, ue-suisse, royaume-uni, zone-b, zone-c"},
             {"tarifs-colissimo-2026-01-01", R"("famille" : "france")", R"("famille" : "métropole")",
              "tarifs-colissimo-2026-01-01.grilles[0].famille : famille inconnue « métropole », "
              "la grille ne serait pas montrée ; attendu : france, outre-mer, europe, monde"},
         }) {
        const Rangee rangee(*apres ? apres : avant);
        const QTemporaryDir temporaire;
        const QDir dossier(temporaire.path());
        copier(livrees(), dossier);
        copier(livrees().filePath("couvertures"), dossier.filePath("couvertures"));
        for (const char *vide : {"couvertures/notes.txt", "couvertures/vide.png"})
            QVERIFY(QFile(dossier.filePath(vide)).open(QIODevice::WriteOnly));
        remplacer(dossier.filePath(QString::fromLatin1(fichier) + QStringLiteral(".json")), avant, apres);
        QString erreurs = ControleDonnees::de(dossier, jour).erreurs.join(u'\n');
        const QString voulues = QString::fromUtf8(attendues);
        if (voulues.startsWith(u'…')) // the same said of many books comes first
            erreurs = u'…' + erreurs.right(voulues.size() - 1);
        QCOMPARE(erreurs, voulues);
    }
}

QTEST_GUILESS_MAIN(TestControleDonnees)
#include "tst_controle_donnees.moc"
