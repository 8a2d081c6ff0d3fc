#include "documents/NumerotationFactures.h"
#include "echanges/Copies.h"
#include "echanges/Disque.h"
#include "echanges/Reprise.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"
#include "tests/echanges/BancPropre.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

using namespace Quillet;

namespace {

const QDateTime maintenant(jourDuBanc, QTime(21, 4, 9));

QString erreurDe(const std::function<void()> &geste)
{
    try {
        geste();
    } catch (const Echec &erreur) {
        return lisible(erreur.texte());
    }
    return {};
}

// The bench's pictures are a few letters: any but these are let through.
std::unique_ptr<Reprise> preparer(const QString &archive, const Demeure &demeure, const QString &mauvaises = "rien")
{
    return Reprise::preparer(archive, demeure, jourDuBanc,
                             [&](const QStringList &chemins) { return chemins.filter(QRegularExpression(mauvaises)); });
}

// Another seller's home, with what the first one must have after an import.
struct Autre : BancPropre
{
    Autre()
    {
        livres[0].titre = "Le Phare de sel";
        livres[0].couverture = "phare";
        livres.removeLast();
        installer({{"phare.png", "deux"}, {"marees.svg", "<svg/>"}});
        auto catalogue = ouvrir();
        FraisPaypal frais = reglages.fraisPaypal;
        frais.taux = Taux{301};
        catalogue->enregistrer(frais);
        catalogue->enregistrer(desTarifs("2027-01-01", Centimes{600}));
        NumerotationFactures{preferences()}.retenir("2026-004", Vendeur::davrel);
    }
};

} // namespace

class TestReprise : public QObject
{
    Q_OBJECT

private slots:
    void reprendTout()
    {
        const Autre autre;
        const QString archive = autre.exporter();
        BancPropre banc;
        banc.installer({{"phare.png", "un"}, {"seule.jpg", "x"}});
        banc.ecrireUtilisateur("donnees/notes.txt", "à moi");
        banc.ecrireUtilisateur("tarifs-colissimo-2026-06-01.json", Json::encoder(desTarifs("2026-06-01", Centimes{1})));
        const auto avant = banc.fichiers();
        const auto reprise = preparer(archive, banc.demeure());
        QCOMPARE(reprise->donnees().livres, autre.livres);
        QCOMPARE(reprise->series().value(Vendeur::davrel), "2026-004");
        reprise->prendre(reprise->series(), maintenant);

        const QMap<QString, QByteArray> siens = autre.fichiers();
        const QString garde = "tarifs-colissimo-2026-06-01.json"; // accepted here: no import takes it away
        QMap<QString, QByteArray> voulus = siens;
        voulus.insert("donnees/notes.txt", "à moi"); // nobody else's
        voulus.insert(garde, avant[garde]);
        QCOMPARE(banc.fichiers(), voulus);
        QCOMPARE(banc.ouvrir()->donnees(), reprise->donnees()); // as it was shown

        const QList<Copie> copies = Copies(banc.demeure()).liste(); // the former state
        QCOMPARE(copies.size(), 1);
        preparer(copies[0].chemin, banc.demeure())->prendre({}, maintenant);
        voulus = avant;
        for (const QString nom : {"Quillet.ini", "frais-paypal.json", "tarifs-colissimo-2027-01-01.json"})
            voulus[nom] = siens[nom];
        QCOMPARE(banc.fichiers(), voulus);
    }

    // The example's owner sends accepted fees, changes of books and numbers, but no books.
    void sansDonneesPropres()
    {
        const BancPropre exemple;
        auto catalogue = exemple.ouvrir();
        Livre livre = exemple.livres[0];
        livre.prix = Centimes{4200};
        catalogue->modifier({livre});
        const QString archive = exemple.exporter();
        for (const bool propres : {false, true}) {
            BancPropre banc;
            if (propres)
                banc.installer();
            const auto reprise = preparer(archive, banc.demeure());
            QVERIFY(!reprise->aDesDonneesPropres());
            reprise->prendre({}, maintenant);
            QCOMPARE(banc.ouvrir()->donnees().livres[0].prix, propres ? Centimes{1500} : Centimes{4200});
            QCOMPARE(banc.fichiers().contains("livres-modifies.json"), !propres);
            QCOMPARE(reprise->inconnus(), propres ? QStringList("« livres-modifies.json »") : QStringList());
        }

        Demeure poste = exemple.demeure(); // an administrator's books, that the user has changed
        poste.donnees = Ressources(exemple.ressources().dossier(), Origine::administrateur);
        const BancPropre neuf;
        neuf.ecrireUtilisateur("notes.txt", "à moi");
        const QString vide = neuf.exporter();
        const auto reprise = preparer(vide, poste);
        QCOMPARE(reprise->donnees().livres[0].prix, Centimes{4200});
        reprise->prendre({}, maintenant);
        QCOMPARE(exemple.ouvrir()->donnees().livres[0].prix, Centimes{4200});
        preparer(vide, exemple.demeure())->prendre({}, maintenant);
        QVERIFY(!exemple.fichiers().contains("livres-modifies.json")); // the example as it is shipped
    }

    void neReprendRienDeMalade()
    {
        for (const auto &[nom, fichier, octets, phrase] : Rangees<const char *, const char *, const char *>{
                 {"livres illisibles", "donnees/livres.json", "[{}]", "livres[0].id : "},
                 {"sans destinations", "donnees/destinations.json", nullptr, "destinations.json : fichier introuvable"},
                 {"frais illisibles", "frais-paypal.json", "{}", "frais-paypal.json.releve : "},
             }) {
            const Rangee rangee(nom);
            const Autre autre;
            Bagage bagage = Bagage::de(autre.demeure(), jourDuBanc);
            for (Bagage::Piece &piece : bagage.pieces)
                if (piece.nom == fichier && octets)
                    piece.octets = octets;
            if (!octets)
                bagage.pieces.removeIf([&](const Bagage::Piece &piece) { return piece.nom == fichier; });
            const QString archive = autre.cheminUtilisateur("../malade.zip");
            Archive::ecrire(archive, bagage);
            const BancPropre banc;
            banc.installer();
            const auto avant = banc.fichiers();
            const QString dit = erreurDe([&] { preparer(archive, banc.demeure()); });
            QVERIFY2(dit.contains(phrase), qPrintable(dit));
            QCOMPARE(banc.fichiers(), avant);
        }
    }

    // What is in force here already has been shown, good or bad.
    void laisseLesMauvaisesImages()
    {
        const Autre autre;
        const QString archive = autre.exporter();
        const BancPropre banc;
        banc.installer({{"phare.png", "un"}, {"marees.svg", "<svg/>"}});
        const auto reprise = preparer(archive, banc.demeure(), "phare.png|marees.svg");
        QCOMPARE(reprise->inconnus(), QStringList("l’image « phare.png », abîmée, démesurée ou incomplète"));
        QVERIFY(reprise->remarques().join(' ').contains("pas d’image « phare » dans couvertures"));
        reprise->prendre({}, maintenant);
        QCOMPARE(QDir(banc.cheminUtilisateur("donnees/couvertures")).entryList(QDir::Files), QStringList("marees.svg"));
        const QString sienne = Copies(banc.demeure()).liste()[0].chemin;
        QVERIFY_THROWS_EXCEPTION(Echec,
                                 Reprise::preparer(sienne, banc.demeure(), jourDuBanc, [](const QStringList &chemins) {
                                     throw Echec(chemins.join(' '));
                                     return chemins;
                                 }));
        QCOMPARE(QDir(banc.cheminUtilisateur()).entryList({"reprise*"}), QStringList());
    }

    // A number that is none would start the series again.
    void numerosDouteux()
    {
        const Autre autre;
        Bagage bagage = Bagage::de(autre.demeure(), jourDuBanc);
        for (Bagage::Piece &piece : bagage.pieces)
            if (piece.nom == "factures.json")
                piece.octets = R"({"davrel":"abc","mireva":"2026-002","autre":"2026-001"})";
        Archive::ecrire(autre.exporter(), bagage);
        const BancPropre banc;
        const auto reprise = preparer(autre.exporter("x.zip"), banc.demeure());
        QCOMPARE(reprise->series().size(), 1);
        const auto douteuse = preparer(autre.cheminUtilisateur("../export.zip"), banc.demeure());
        QCOMPARE(douteuse->series(), (SeriesFactures{{Vendeur::mireva, "2026-002"}}));
        QCOMPARE(douteuse->inconnus().size(), 2);
    }

    void deuxEnsemble()
    {
        const Autre autre;
        const BancPropre banc;
        banc.installer({{"seule.jpg", "x"}});
        const QString laSienne = banc.exporter("sienne.zip");
        const auto avant = banc.fichiers();
        const QDir dossier(banc.cheminUtilisateur());
        {
            const auto une = preparer(autre.exporter(), banc.demeure());
            const auto deux = preparer(laSienne, banc.demeure());
            une->prendre({}, maintenant);
            QCOMPARE(banc.ouvrir()->donnees().livres, autre.livres);
            deux->prendre({}, maintenant);
            QCOMPARE(banc.ouvrir()->donnees().livres, banc.livres);
            QCOMPARE(banc.fichiers().value("donnees/livres.json"), avant.value("donnees/livres.json"));

            const auto trouee = preparer(autre.exporter(), banc.demeure());
            const QString restes = dossier.entryList({"reprise.partielle.*"}, QDir::Dirs).value(0);
            QVERIFY(QFile::remove(dossier.filePath(restes + "/donnees/couvertures/marees.svg")));
            QVERIFY(erreurDe([&] { trouee->prendre({}, maintenant); }).contains("marees.svg : fichier introuvable"));
            QCOMPARE(banc.ouvrir()->donnees().livres, banc.livres);

            banc.ecrireUtilisateur("reprise/liste.json", "[]"); // one that has begun is never said not to have
            const auto bloquee = preparer(laSienne, banc.demeure());
            QVERIFY_THROWS_EXCEPTION(RepriseInachevee, bloquee->prendre({}, maintenant));
            QDir(dossier.filePath("reprise")).removeRecursively();
        }
        banc.ecrireUtilisateur("reprise.partielle.0/livres.json", "[]"); // of a program that was killed
        Reprise::achever(dossier, banc.preferences());
        QCOMPARE(dossier.entryList({"reprise*"}), QStringList());
    }

    // Full at any point: before the import counts nothing has changed; afterwards it is brought to its end.
    void disquePlein()
    {
        const Autre autre;
        const QString archive = autre.exporter();
        const auto apres = autre.fichiers();
        bool entier = false;
        for (rlim_t octets = 0; !entier; octets = octets * 2 + 1) {
            const BancPropre banc;
            banc.installer();
            const Demeure demeure = banc.demeure();
            const auto avant = banc.fichiers();
            const QString dit = erreurDe([&] {
                const DisquePlein plein(octets);
                const auto reprise = preparer(archive, demeure);
                reprise->prendre(reprise->series(), maintenant);
            });
            entier = dit.isEmpty();
            if (!dit.startsWith("Import inachevé")) {
                QCOMPARE(banc.fichiers(), entier ? apres : avant);
                continue;
            }
            QVERIFY(octets < 100'000);
            Reprise::achever(QDir(banc.cheminUtilisateur()), banc.preferences());
            QCOMPARE(banc.fichiers(), apres);
        }
    }

    // A copy stands for a folder that cannot be read, which keeps all it holds beside; stopped on its way, it is ended.
    void aLaPlaceDeDonneesIllisibles()
    {
        const QString tarif = "tarifs-colissimo-2027-01-01.json";
        for (const bool arretee : {false, true}) {
            const BancPropre banc;
            banc.installer();
            banc.ouvrir()->enregistrer(desTarifs("2027-01-01", Centimes{600}));
            const Demeure demeure = banc.demeure();
            QVERIFY(Copies(demeure).duJour(jourDuBanc));
            auto apres = banc.fichiers();
            banc.ecrireUtilisateur("donnees/livres.json", "[");
            for (const auto &[nom, contenu] : banc.fichiers().asKeyValueRange())
                if (nom.startsWith("donnees/"))
                    apres.insert("donnees.illisible-2026-03-02-210409-000" + nom.sliced(7), contenu);
            const QDir dossier(banc.cheminUtilisateur());
            QVERIFY(QFile::remove(dossier.filePath(tarif)));
            if (arretee)
                QVERIFY(dossier.mkdir(tarif));
            const auto reprise = Reprise::preparer(Copies(demeure).liste().first().chemin, demeure, jourDuBanc);
            if (arretee) {
                QVERIFY_THROWS_EXCEPTION(RepriseInachevee, reprise->prendreALaPlace(maintenant));
                QVERIFY(dossier.rmdir(tarif));
                Reprise::achever(dossier, banc.preferences());
            } else
                QVERIFY(reprise->prendreALaPlace(maintenant).endsWith("/donnees.illisible-2026-03-02-210409-000"));
            QCOMPARE(banc.fichiers(), apres);
        }
    }

    // Which keeps its name: known before anything counts.
    void aLaPlaceDUnDisqueAPart()
    {
        const BancPropre banc;
        banc.installer();
        QVERIFY(Copies(banc.demeure()).duJour(jourDuBanc));
        const auto reprise = preparer(Copies(banc.demeure()).liste().first().chemin, banc.demeure());
        const QByteArray la = QFile::encodeName(banc.cheminUtilisateur("donnees"));
        const QString refus = "%1 : c’est un disque à part, qui ne se déplace pas";
        QCOMPARE(erreurDe([] { Disque::exigerQuIlSeDeplace("/proc"); }), refus.arg("/proc"));
        QCOMPARE(erreurDe([&] { Disque::exigerQuIlSeDeplace(QFile::decodeName(la)); }), "");
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
            || mount(la.constData(), la.constData(), nullptr, MS_BIND, nullptr) != 0)
            return; // who may not mount has seen the rule, not that it is asked
        const QString dit = erreurDe([&] { reprise->prendreALaPlace(maintenant); });
        umount2(la.constData(), MNT_DETACH);
        QCOMPARE(dit, refus.arg(QFile::decodeName(la)));
    }

    // What the copy would not hold is not replaced.
    void tropLourde()
    {
        const BancPropre banc;
        banc.installer();
        QFile lourde(banc.cheminUtilisateur("donnees/couvertures/scan.png"));
        QVERIFY(lourde.open(QIODevice::WriteOnly) && lourde.resize(Fichier::Borne::image + 1));
        const Copies copies(banc.demeure());
        QVERIFY(erreurDe([&] { copies.duJour(jourDuBanc); }).contains("scan.png : l’image est trop lourde"));
        QCOMPARE(copies.liste().size(), 1); // better than none
        const auto reprise = preparer(Autre().exporter(), banc.demeure());
        const QString dit = erreurDe([&] { reprise->prendre({}, maintenant); });
        QVERIFY2(dit.contains("scan.png : l’image est trop lourde"), qPrintable(dit));
        QVERIFY(lourde.exists());
        QCOMPARE(banc.ouvrir()->donnees().livres, banc.livres);
    }

    // Only what may be long is done where one waits.
    void seriesSurPlace()
    {
        const Autre autre;
        const BancPropre banc;
        const auto reprise = preparer(autre.exporter(), banc.demeure());
        reprise->prendre(reprise->series(), maintenant, [&](const std::function<void()> &travail) {
            travail();
            QVERIFY(!QFile::exists(banc.preferences().fichier()));
            banc.preferences().retenirSiPossible("fenetre", "ailleurs");
        });
        QCOMPARE(banc.preferences().texte("fenetre"), "ailleurs");
        QCOMPARE(NumerotationFactures{banc.preferences()}.dernier(Vendeur::davrel), "2026-004");
    }

    void dossierLie()
    {
        const Autre autre;
        const BancPropre banc;
        const QTemporaryDir synchronise;
        QVERIFY(QDir().mkpath(banc.cheminUtilisateur()));
        QVERIFY(QFile::link(synchronise.filePath("donnees"), banc.cheminUtilisateur("donnees")));
        Demeure demeure = autre.demeure();
        demeure.utilisateur = QDir(banc.cheminUtilisateur());
        demeure.preferences = banc.preferences();
        const auto reprise = preparer(autre.exporter(), demeure);
        QVERIFY(erreurDe([&] { reprise->prendre({}, maintenant); }).contains("introuvable")); // its disk is away
        QVERIFY(QDir(synchronise.path()).mkdir("donnees"));
        reprise->prendre({}, maintenant);
        QVERIFY(QFileInfo(banc.cheminUtilisateur("donnees")).isSymLink());
        QCOMPARE(banc.ouvrir()->donnees().livres, autre.livres);
    }

    void copies()
    {
        const BancPropre exemple;
        QVERIFY(!Copies(exemple.demeure()).duJour(jourDuBanc)); // the example needs none
        Copies(exemple.demeure()).avantReprise(jourDuBanc.startOfDay());
        QVERIFY(Copies(exemple.demeure()).liste().isEmpty());
        Demeure poste = exemple.demeure();
        poste.donnees = Ressources(exemple.ressources().dossier(), Origine::administrateur);
        QVERIFY(!Copies(poste).duJour(jourDuBanc)); // nor does an administrator's, as long as nothing is the user's
        NumerotationFactures{exemple.preferences()}.retenir("2026-001", Vendeur::davrel);
        QVERIFY(Copies(poste).duJour(jourDuBanc));

        const BancPropre banc;
        banc.installer();
        for (int jour = 0; jour < 12; ++jour) // of a clock that was wrong
            banc.ecrireUtilisateur(QStringLiteral("copies/2099-01-%1.zip").arg(jour + 10), "x");
        for (int jour = 0; jour < 12; ++jour) {
            auto catalogue = banc.ouvrir();
            Livre livre = catalogue->donnees().livres[0];
            livre.prix = Centimes{1000 + jour};
            catalogue->modifier({livre});
            const Copies copies(banc.demeure());
            QVERIFY(copies.duJour(jourDuBanc.addDays(2 * jour)));
            livre.prix = Centimes{1};
            catalogue->modifier({livre});
            QVERIFY(!copies.duJour(jourDuBanc.addDays(2 * jour))); // once a day
            livre.prix = Centimes{1000 + jour};
            catalogue->modifier({livre});
            QVERIFY(!copies.duJour(jourDuBanc.addDays(2 * jour + 1))); // nothing changed since
            Copies(banc.demeure()).avantReprise(jourDuBanc.addDays(jour).startOfDay().addSecs(jour));
        }
        const QList<Copie> copies = Copies(banc.demeure()).liste();
        QCOMPARE(copies.size(), 20);
        QCOMPARE(copies[0].moment.date(), jourDuBanc.addDays(22));
        QCOMPARE(std::ranges::count(copies, true, &Copie::avantReprise), 10);
        const auto reprise = preparer(copies[1].chemin, banc.demeure());
        reprise->prendre({}, maintenant);
        QCOMPARE(banc.ouvrir()->donnees().livres[0].prix, Centimes{1010});
    }
};

QTEST_GUILESS_MAIN(TestReprise)
#include "tst_reprise.moc"
