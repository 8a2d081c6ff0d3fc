#include "documents/NumerotationFactures.h"
#include "echanges/ErreurZip.h"
#include "echanges/PiecesDArchive.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"
#include "tests/echanges/BancPropre.h"

using namespace Quillet;

namespace {

constexpr zip_uint32_t lien = 0120777U << 16U;

struct Entree
{
    QByteArray nom;
    QByteArray octets;
    zip_uint32_t attributs = 0;
    bool secrete = false;
};

void empaqueter(const QString &chemin, const QList<Entree> &entrees)
{
    zip_t *archive = zip_open(qPrintable(chemin), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    QVERIFY(archive);
    for (const Entree &entree : entrees) {
        auto *source =
            zip_source_buffer(archive, entree.octets.constData(), static_cast<zip_uint64_t>(entree.octets.size()), 0);
        const auto rang = static_cast<zip_uint64_t>(zip_file_add(archive, entree.nom.constData(), source, 0));
        if (entree.attributs)
            zip_file_set_external_attributes(archive, rang, 0, ZIP_OPSYS_UNIX, entree.attributs);
        if (entree.secrete)
            zip_file_set_encryption(archive, rang, ZIP_EM_AES_256, "secret");
    }
    QCOMPARE(zip_close(archive), 0);
}

QByteArray octetsDe(const QString &chemin)
{
    return Fichier::lireOuRefuser(chemin, Fichier::Borne::toute).value();
}

const QByteArray manifeste = R"({"format":1,"programme":"9","jour":"2026-03-02","origine":"exemple","empreinte":""})";

// What unpacking refuses, and what it has left in its folder by then.
QString refus(const QString &chemin, const QString &dossier, qint64 total = PiecesDArchive::total)
{
    try {
        QDir(dossier).mkpath(".");
        Archive::deballer(chemin, dossier, total);
    } catch (const Echec &erreur) {
        return lisible(erreur.texte());
    }
    return {};
}

} // namespace

class TestArchive : public QObject
{
    Q_OBJECT

private slots:
    void allerEtRetour()
    {
        BancPropre banc;
        banc.installer({{"phare.png", QByteArray(300'000, 'p')}, {"Été.SVG", "<svg/>"}, {"notes.txt", "rien"}});
        banc.ecrireUtilisateur(Stockage::fichierDesFrais(), Json::encoder(banc.reglages.fraisPaypal));
        banc.ecrireUtilisateur("tarifs-colissimo-2027-01-01.json", "{"); // ignored, here as elsewhere
        NumerotationFactures{banc.preferences()}.retenir("2026-007", Vendeur::davrel);
        const Bagage bagage = Bagage::de(banc.demeure(), jourDuBanc);
        QCOMPARE(bagage.absents.size(), 1);
        const QString chemin = banc.exporter();
        QCOMPARE(octetsDe(banc.exporter("autre.zip")), octetsDe(chemin)); // of one state, one archive

        const QString dossier = banc.cheminUtilisateur("ici");
        QDir(dossier).mkpath(".");
        const Archive::Contenu contenu = Archive::deballer(chemin, dossier);
        QCOMPARE(contenu.manifeste, bagage.manifeste);
        QCOMPARE(contenu.inconnus, QStringList());
        QCOMPARE(contenu.noms.size(), bagage.pieces.size());
        for (const QString &nom : contenu.noms)
            if (nom.startsWith(PiecesDArchive::propres))
                QCOMPARE(banc.lireUtilisateur("ici/" + nom), banc.lireUtilisateur(nom));
        QVERIFY(contenu.noms.contains("donnees/couvertures/Été.SVG"));
        QCOMPARE(banc.lireUtilisateur("ici/factures.json").simplified(), R"({ "davrel": "2026-007" })");

        QTemporaryDir ailleurs;
        QFile::copy(chemin, ailleurs.filePath("plein.zip"));
        {
            const DisquePlein plein(200'000);
            QVERIFY_THROWS_EXCEPTION(ErreurStockage, Archive::ecrire(chemin, bagage));
        }
        QCOMPARE(octetsDe(chemin), octetsDe(ailleurs.filePath("plein.zip")));
        QCOMPARE(QFileInfo(chemin).dir().entryList({"export*"}), QStringList("export.zip")); // nothing half written
    }

    void hostiles()
    {
        const QTemporaryDir dossier;
        const QString chemin = dossier.filePath("a.zip");
        const Entree tete{"quillet.json", manifeste};
        const QByteArray zeros(10'000'000, '\0');
        for (const auto &[nom, entrees, phrase] : Rangees<QList<Entree>, const char *>{
                 {"saine", {tete, {"frais-paypal.json", "{}"}, {"donnees/", ""}, {"notes.txt", "x"}}, ""},
                 {"sans manifeste", {{"frais-paypal.json", "{}"}}, "n’a pas été faite par Quillet"},
                 {"manifeste illisible", {{"quillet.json", "{"}}, "quillet.json : JSON illisible"},
                 {"format à venir", {{"quillet.json", R"({"format":2,"autre":true})"}}, "plus récente"},
                 {"qui monte", {tete, {"donnees/../../x.json", "{}"}}, "se placerait ailleurs"},
                 {"absolue", {tete, {"/etc/frais-paypal.json", "{}"}}, "se placerait ailleurs"},
                 {"de l’autre côté", {tete, {"donnees\\livres.json", "{}"}}, "se placerait ailleurs"},
                 {"signe de commande", {tete, {"donnees/couvertures/a\n.png", "x"}}, "« donnees/couvertures/a?.png »"},
                 {"lien", {tete, {"donnees/livres.json", "/etc/passwd", lien}}, "n’est pas un fichier ordinaire"},
                 {"mot de passe", {tete, {"frais-paypal.json", "{}", 0, true}}, "mot de passe"},
                 {"manifeste secret", {{"quillet.json", manifeste, 0, true}}, "mot de passe"},
                 {"des zéros", {tete, {"livres-modifies.json", zeros}}, "« livres-modifies.json » est trop gros"},
                 {"couverture de zéros", {tete, {"donnees/couvertures/a.png", zeros.repeated(7)}}, "est trop gros"},
             }) {
            const Rangee rangee(nom);
            empaqueter(chemin, entrees);
            const QString dit = refus(chemin, dossier.filePath(nom));
            QVERIFY2(*phrase ? dit.contains(phrase) : dit.isEmpty(), qPrintable(dit));
        }
        QCOMPARE(QDir(dossier.filePath("saine")).entryList(QDir::Files),
                 (QStringList{"frais-paypal.json", "quillet.json"}));
        QCOMPARE(QDir(dossier.path()).entryList(QDir::Files), QStringList("a.zip"));

        empaqueter(chemin, {tete, {"donnees/couvertures/a.png", zeros}, {"donnees/couvertures/b.png", zeros}});
        QVERIFY(refus(chemin, dossier.filePath("total"), 19'000'000).contains("ce qu’elle contient est trop gros"));
        QList<Entree> nombreuses{tete};
        for (int rang = 0; rang < PiecesDArchive::nombre; ++rang)
            nombreuses.append({QByteArray::number(rang), {}});
        empaqueter(chemin, nombreuses);
        QVERIFY(refus(chemin, dossier.filePath("nombre")).contains("trop de fichiers"));
    }

    void neCompacteRienDIllisible()
    {
        const QTemporaryDir dossier;
        const QString chemin = dossier.filePath("a.zip");
        const auto piece = [](qsizetype rang, qint64 taille) {
            return Bagage::Piece{QStringLiteral("donnees/couvertures/%1.png").arg(rang), {}, {}, taille};
        };
        Bagage lourd;
        for (qsizetype rang = 0; rang < 17; ++rang)
            lourd.pieces.append(piece(rang, Fichier::Borne::image));
        Bagage nombreux;
        for (qsizetype rang = 0; rang <= PiecesDArchive::nombre; ++rang)
            nombreux.pieces.append(piece(rang, 0));
        for (const Bagage &bagage : {lourd, nombreux})
            QVERIFY_THROWS_EXCEPTION(Echec, Archive::ecrire(chemin, bagage));
        lourd.pieces.removeLast();
        nombreux.pieces.removeLast();
        for (const Bagage &bagage : {lourd, nombreux})
            Archive::ecrire(chemin, bagage);
    }

    // Bytes that libzip would not write.
    void abimees()
    {
        const QTemporaryDir dossier;
        const QString chemin = dossier.filePath("a.zip");
        empaqueter(chemin,
                   {{"quillet.json", manifeste}, {"frais-paypal.json", "1234567"}, {"frais-paypal.jsoo", "{}"}});
        const QByteArray bonne = octetsDe(chemin);
        const qsizetype fin = bonne.lastIndexOf("PK\x05\x06");
        QByteArray demesuree = bonne;
        demesuree.replace(fin + 8, 8, QByteArray("\xff\xff\xff\xff\xff\xff\xff\x7f"));
        for (const auto &[nom, octets, phrase] : Rangees<QByteArray, const char *>{
                 {"deux du même nom", QByteArray(bonne).replace("jsoo", "json"), "deux fois « frais-paypal.json »"},
                 {"contenu changé", QByteArray(bonne).replace("1234567", "1234568"), "abîmée ou incomplète"},
                 {"coupée", bonne.first(bonne.size() / 2), "incomplète"}, // no archive, to a libzip of before 1.11
                 {"vide", "", "ce n’est pas une archive zip"},
                 {"autre chose", QByteArray(100'000, 'x'), "ce n’est pas une archive zip"},
                 {"liste démesurée", demesuree, "trop de fichiers"},
                 {"géante", QByteArray(bonne).insert(fin, "PK\x06\x07" + QByteArray(16, '\0')), "trop de fichiers"},
             }) {
            const Rangee rangee(nom);
            Fichier::ecrire(chemin, octets);
            const QString dit = refus(chemin, dossier.filePath(nom));
            QVERIFY2(dit.contains(phrase), qPrintable(dit));
        }
        QVERIFY(refus(dossier.path(), dossier.filePath("dossier")).contains("n’est pas un fichier ordinaire"));
        QVERIFY(refus(dossier.filePath("absent"), dossier.filePath("dossier")).contains("introuvable"));
    }
};

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
