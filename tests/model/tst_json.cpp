#include "model/Livre.h"
#include "model/Reglages.h"
#include "model/Tarifs.h"
#include "tests/Banc.h"

#include <QTest>

using namespace Quillet;

class TestJson : public QObject
{
    Q_OBJECT

private slots:
    void refusDitOu_data();
    void refusDitOu();
    void entiers_data();
    void entiers();
    void champsAbsents();
    void allerRetour();
    void adresses_data();
    void adresses();
    void ecritureTrieeEtLisible();
};

namespace {

const QByteArray livreJson = R"({"id":7,"titre":"T","titreComplet":"TC","auteur":"A","vendeur":"mireva","prix":1500,
"isbn":"I","pages":10,"format":"F","langue":"fr","disponible":true,"couverture":"c.jpg","teinte":[1,2,3]})";

QString erreurDe(const QByteArray &octets)
{
    try {
        Json::decoder<QList<Livre>>(octets, QStringLiteral("livres"));
    } catch (const Json::Erreur &erreur) {
        return erreur.texte();
    }
    return {};
}

} // namespace

void TestJson::refusDitOu_data()
{
    QTest::addColumn<QByteArray>("avant");
    QTest::addColumn<QByteArray>("apres");
    QTest::addColumn<QString>("erreur");
    const auto cas = [](const char *nom, const char *avant, const char *apres, const char *erreur) {
        QTest::newRow(nom) << QByteArray(avant) << QByteArray(apres) << QString::fromUtf8(erreur);
    };
    cas("clé manquante", R"("prix":1500,)", "", "livres[1].prix : valeur manquante");
    cas("null", R"("prix":1500)", R"("prix":null)", "livres[1].prix : entier attendu");
    cas("texte pour entier", R"("prix":1500)", R"("prix":"1500")", "livres[1].prix : entier attendu");
    cas("fraction", R"("prix":1500)", R"("prix":15.5)", "livres[1].prix : entier attendu");
    cas("dépassement", R"("prix":1500)", R"("prix":9223372036854775808)", "livres[1].prix : entier attendu");
    cas("prix démesuré", R"("prix":1500)", R"("prix":10000000)", "livres[1].prix : valeur hors limites");
    cas("somme démesurée", R"("id":7)", R"("id":7,"prixPaypal":{"om1":19999998,"om2":19999999})",
        "livres[1].prixPaypal.om2 : valeur hors limites");
    cas("vendeur inconnu", R"("mireva")", R"("Mireva")", "livres[1].vendeur : valeur inconnue « Mireva »");
    cas("booléen", R"("disponible":true)", R"("disponible":1)", "livres[1].disponible : true ou false attendu");
    cas("dans une liste", "[1,2,3]", R"([1,"2",3])", "livres[1].teinte[1] : entier attendu");
    cas("liste attendue", "[1,2,3]", "{}", "livres[1].teinte : liste attendue");
    cas("teinte incomplète", "[1,2,3]", "[1,2]", "livres[1].teinte : trois nombres attendus : rouge, vert, bleu");
    cas("dans une table", R"("id":7)", R"("id":7,"prixPaypal":{"om1":1,"france":true})",
        "livres[1].prixPaypal.france : entier attendu");
    cas("adresse relative", R"("id":7)", R"("id":7,"lienPaypal":"/ici")",
        "livres[1].lienPaypal : adresse web complète attendue");
    cas("JSON coupé", "[1,2,3]}", "[1,2",
        "livres : JSON illisible, ligne 4, colonne 102 : virgule, guillemet ou accolade manquante");
}

void TestJson::refusDitOu()
{
    QFETCH(QByteArray, avant);
    QFETCH(QByteArray, apres);
    QFETCH(QString, erreur);
    QByteArray abime = livreJson;
    QVERIFY(abime.contains(avant));
    abime.replace(avant, apres);
    QCOMPARE(erreurDe('[' + livreJson + ",\n" + abime + ']'), erreur);
}

void TestJson::entiers_data()
{
    QTest::addColumn<QByteArray>("texte");
    QTest::addColumn<qint64>("attendu");
    QTest::newRow("plus grand") << QByteArray("9223372036854775807") << std::numeric_limits<qint64>::max();
    QTest::newRow("plus petit") << QByteArray("-9223372036854775808") << std::numeric_limits<qint64>::min();
    QTest::newRow("au-delà des doubles") << QByteArray("9007199254740993") << qint64{9007199254740993};
}

void TestJson::entiers()
{
    QFETCH(QByteArray, texte);
    QFETCH(qint64, attendu);
    const auto lus = Json::decoder<QList<qint64>>('[' + texte + ']', QStringLiteral("n"));
    QCOMPARE(lus.value(0), attendu);
    QVERIFY(Json::encoder(lus).contains(texte));
}

void TestJson::champsAbsents()
{
    QCOMPARE(erreurDe('[' + livreJson + ']'), QString());
    const auto livre = Json::decoder<Livre>(livreJson, QStringLiteral("livre"));
    QVERIFY(!livre.poids && !livre.lienPaypal && !livre.prixPaypal && !livre.prixEcartes);
    const QByteArray ecrit = Json::encoder(livre);
    for (const char *cle : {"poids", "lienPaypal", "prixPaypal", "prixEcartes", "null"})
        QVERIFY2(!ecrit.contains(cle), cle);
}

void TestJson::allerRetour()
{
    const Banc banc;
    Livre livre = banc.livres[0];
    livre.lienPaypal = QUrl(QStringLiteral("https://exemple.example/a%20b?c=d&e=%C3%A9"));
    livre.prixPaypal = {{vers("france"), Centimes{2049}}};
    livre.prixEcartes = PrixParDestination{};
    QCOMPARE(Json::decoder<Livre>(Json::encoder(livre), QStringLiteral("x")), livre);
    QCOMPARE(Json::decoder<Reglages>(Json::encoder(banc.reglages), QStringLiteral("x")), banc.reglages);
    QCOMPARE(Json::decoder<TarifsColissimo>(Json::encoder(banc.tarifs[0]), QStringLiteral("x")), banc.tarifs[0]);
    QCOMPARE(Json::decoder<QList<Destination>>(Json::encoder(banc.destinations), QStringLiteral("x")),
             banc.destinations);
}

void TestJson::adresses_data()
{
    QTest::addColumn<QByteArray>("lue");
    QTest::newRow("accents") << QByteArray("https://é.example/é?à=ù#ç");
    QTest::newRow("demi-caractère") << QByteArray(R"(https://a.example/b\ud800c)");
}

// What was read is what will be read of what is written.
void TestJson::adresses()
{
    QFETCH(QByteArray, lue);
    const auto adresses = Json::decoder<QList<QUrl>>("[\"" + lue + "\"]", QStringLiteral("x"));
    QCOMPARE(Json::decoder<QList<QUrl>>(Json::encoder(adresses), QStringLiteral("x")), adresses);
}

void TestJson::ecritureTrieeEtLisible()
{
    const FraisPaypal frais{.source = QUrl(QStringLiteral("https://paypal.example/frais")), .fixe = Centimes{35}};
    QVERIFY(Json::encoder(frais).startsWith("{\n    \"fixe\": 35,\n    \"releve\": \"\",\n"
                                            "    \"source\": \"https://paypal.example/frais\",\n"));
}

QTEST_GUILESS_MAIN(TestJson)
#include "tst_json.moc"
