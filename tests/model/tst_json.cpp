#include "model/Livre.h"
#include "model/Reglages.h"
#include "model/Tarifs.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

using namespace Quillet;

namespace {

const QByteArray livreJson = R"({"id":7,"titre":"T","titreComplet":"TC","auteur":"A","vendeur":"mireva","prix":1500,
"isbn":"I","pages":10,"format":"F","langue":"fr","disponible":true,"couverture":"c.jpg","teinte":[1,2,3]})";

QString erreurDe(const QByteArray &octets)
{
    try {
        Json::decoder<QList<Livre>>(octets, "livres");
    } catch (const Json::Erreur &erreur) {
        return erreur.texte();
    }
    return {};
}

} // namespace

class TestJson : public QObject
{
    Q_OBJECT

private slots:
    void refusDitOu()
    {
        for (const auto &[avant, apres, erreur] : Rangees<const char *, const char *>{
                 {R"("prix":1500,)", "", "livres[1].prix : valeur manquante"},
                 {R"("prix":1500)", R"("prix":null)", "livres[1].prix : entier attendu"},
                 {R"("prix":1500)", R"("prix":"1500")", "livres[1].prix : entier attendu"},
                 {R"("prix":1500)", R"("prix":15.5)", "livres[1].prix : entier attendu"},
                 {R"("prix":1500)", R"("prix":9223372036854775808)", "livres[1].prix : entier attendu"},
                 {R"("prix":1500)", R"("prix":10000000)", "livres[1].prix : valeur hors limites"},
                 {R"("id":7)", R"("id":7,"prixPaypal":{"om1":19999998,"om2":19999999})",
                  "livres[1].prixPaypal.om2 : valeur hors limites"},
                 {R"("mireva")", R"("Mireva")", "livres[1].vendeur : valeur inconnue « Mireva »"},
                 {R"("disponible":true)", R"("disponible":1)", "livres[1].disponible : true ou false attendu"},
                 {"[1,2,3]", R"([1,"2",3])", "livres[1].teinte[1] : entier attendu"},
                 {"[1,2,3]", "{}", "livres[1].teinte : liste attendue"},
                 {"[1,2,3]", "[1,2]", "livres[1].teinte : trois nombres attendus : rouge, vert, bleu"},
                 {R"("id":7)", R"("id":7,"prixPaypal":{"om1":1,"france":true})",
                  "livres[1].prixPaypal.france : entier attendu"},
                 {R"("id":7)", R"("id":7,"lienPaypal":"/ici")", "livres[1].lienPaypal : adresse web complète attendue"},
                 {"[1,2,3]}", "[1,2",
                  "livres : JSON illisible, ligne 4, colonne 102 : virgule, guillemet ou accolade manquante"},
             }) {
            const Rangee rangee(*apres ? apres : avant);
            QByteArray abime = livreJson;
            QVERIFY(abime.contains(avant));
            abime.replace(avant, apres);
            QCOMPARE(erreurDe('[' + livreJson + ",\n" + abime + ']'), erreur);
        }
    }

    void entiers()
    {
        for (const auto &[texte, attendu] : Rangees<qint64>{
                 {"9223372036854775807", std::numeric_limits<qint64>::max()},
                 {"-9223372036854775808", std::numeric_limits<qint64>::min()},
                 {"9007199254740993", 9007199254740993}, // beyond what a double holds
             }) {
            const auto lus = Json::decoder<QList<qint64>>('[' + QByteArray(texte) + ']', "n");
            QCOMPARE(lus.value(0), attendu);
            QVERIFY(Json::encoder(lus).contains(texte));
        }
    }

    void champsAbsents()
    {
        QCOMPARE(erreurDe('[' + livreJson + ']'), QString());
        const auto livre = Json::decoder<Livre>(livreJson, "livre");
        QVERIFY(!livre.poids && !livre.lienPaypal && !livre.prixPaypal && !livre.prixEcartes);
        const QByteArray ecrit = Json::encoder(livre);
        for (const char *cle : {"poids", "lienPaypal", "prixPaypal", "prixEcartes", "null"})
            QVERIFY2(!ecrit.contains(cle), cle);
    }

    void allerRetour()
    {
        const Banc banc;
        Livre livre = banc.livres[0];
        livre.lienPaypal = QUrl("https://exemple.example/a%20b?c=d&e=%C3%A9");
        livre.prixPaypal = {{vers("france"), Centimes{2049}}};
        livre.prixEcartes = PrixParDestination{};
        QCOMPARE(Json::decoder<Livre>(Json::encoder(livre), "x"), livre);
        QCOMPARE(Json::decoder<Reglages>(Json::encoder(banc.reglages), "x"), banc.reglages);
        QCOMPARE(Json::decoder<TarifsColissimo>(Json::encoder(banc.tarifs[0]), "x"), banc.tarifs[0]);
        QCOMPARE(Json::decoder<QList<Destination>>(Json::encoder(banc.destinations), "x"), banc.destinations);
    }

    // What was read is what will be read of what is written.
    void adresses()
    {
        for (const char *lue : {"https://é.example/é?à=ù#ç", R"(https://a.example/b\ud800c)"}) { // half a character
            const auto adresses = Json::decoder<QList<QUrl>>("[\"" + QByteArray(lue) + "\"]", "x");
            QCOMPARE(Json::decoder<QList<QUrl>>(Json::encoder(adresses), "x"), adresses);
        }
    }

    void ecritureTrieeEtLisible()
    {
        const FraisPaypal frais{.source = QUrl("https://paypal.example/frais"), .fixe = Centimes{35}};
        QVERIFY(Json::encoder(frais).startsWith("{\n    \"fixe\": 35,\n    \"releve\": \"\",\n"
                                                "    \"source\": \"https://paypal.example/frais\",\n"));
    }
};

QTEST_GUILESS_MAIN(TestJson)
#include "tst_json.moc"
