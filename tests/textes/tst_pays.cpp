#include "documents/PaysDeLivraison.h"
#include "model/Ressources.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "textes/TextesPays.h"

using namespace Quillet;

namespace {

const Donnees &livrees()
{
    static const Donnees donnees = [] {
        const Ressources ressources = Ressources::duProgramme();
        return Donnees{.livres = {},
                       .grillesConnues = {},
                       .destinations = ressources.lire<QList<Destination>>("destinations"),
                       .reglages = {},
                       .pays = ressources.lire<QList<Pays>>("pays")};
    }();
    return donnees;
}

QStringList propositions(const QString &recherche)
{
    QStringList propositions;
    for (const Pays &pays : TextesPays::trouves(livrees().pays, recherche))
        propositions.append(TextesPays::proposition(pays, livrees()));
    return propositions;
}

} // namespace

// A country instead of a zone: how it is found, what the order becomes, what the buyer reads.
class TestPays : public QObject
{
    Q_OBJECT

private slots:
    void recherche()
    {
        for (const auto &[cherche, premier, combien] : Rangees<const char *, int>{
                 {"gua", "Guadeloupe · Outre-mer OM1", 3},
                 {"belg", "Belgique · Union européenne", 1},
                 {"usa", "États-Unis · Reste du monde", 1},
                 {"états", "États-Unis · Reste du monde", 3},
                 {"ETATS unis", "États-Unis · Reste du monde", 2},
                 {"uk", "Royaume-Uni · Royaume-Uni", 2}, // before Ukraine: whole
                 {"niger", "Niger · Reste du monde", 2},
                 {"kong", "Hong Kong · Reste du monde", 1},
                 {"l'ile maurice", "", 0},
                 {"les pays-bas", "Pays-Bas · Union européenne", 1},
                 {"The Nether", "Pays-Bas · Union européenne", 1},
                 {"île maur", "Maurice · Reste du monde", 1},
                 {"groen", "Groenland · destination à choisir", 1},
                 {"s", "Saint-Barthélemy · Outre-mer OM1", 8},
                 {"zut", "", 0},
                 {" - ", "", 0},
             }) {
            const Rangee rangee(cherche);
            QCOMPARE(propositions(cherche).value(0), premier);
            QCOMPARE(propositions(cherche).size(), combien);
        }
    }

    void envoi()
    {
        for (const auto &[nom, code, horsUE, ecrit] : Rangees<const char *, bool, const char *>{
                 {"guadeloupe", "om1", false, "la Guadeloupe"},
                 {"pays-bas", "union-europeenne", false, "the Netherlands"},
                 {"ceuta", "union-europeenne", true, "Ceuta"},
             }) {
            const Rangee rangee(nom);
            BonDeCommande bon;
            bon.destiner(vers("union-europeenne"));
            bon.horsUE = true; // of the parcel before
            const Pays pays = TextesPays::trouves(livrees().pays, nom).first();
            bon = PaysDeLivraison::envoyee(bon, pays, livrees()).value();
            QCOMPARE(bon.codeDestination, vers(code));
            QCOMPARE(bon.horsUE, horsUE);
            QCOMPARE(bon.paysLivraison, ecrit);
            QCOMPARE(PaysDeLivraison::deLaListe(bon, livrees().pays), pays);
        }
        const Pays groenland = TextesPays::trouves(livrees().pays, "groenland").first();
        QVERIFY(!PaysDeLivraison::envoyee({}, groenland, livrees()));
        QVERIFY(!PaysDeLivraison::envoyee({}, TextesPays::trouves(livrees().pays, "belg").first(), Donnees{}));
    }

    void langue()
    {
        BonDeCommande bon{.paysLivraison = "the Netherlands"};
        QCOMPARE(PaysDeLivraison::ecrite(bon, Langue::francais, livrees().pays).paysLivraison,
                 "the Netherlands"); // typed
        bon.paysTrouve = bon.paysLivraison;
        bon = PaysDeLivraison::ecrite(bon, Langue::francais, livrees().pays);
        QCOMPARE(bon.paysLivraison, "les Pays-Bas");
        QCOMPARE(bon.langue, Langue::francais);
        bon.paysLivraison = "les Pays-Bas, chez Ada";
        QCOMPARE(PaysDeLivraison::ecrite(bon, Langue::anglais, livrees().pays).paysLivraison, bon.paysLivraison);
        bon.paysLivraison = "la Guadeloupe"; // but it goes to France
        QVERIFY(!PaysDeLivraison::deLaListe(bon, livrees().pays));
    }

    void zones()
    {
        for (const auto &[libelle, estUneZone] : Rangees<bool>{{"Reste du monde", true},
                                                               {"Rest of the world", true},
                                                               {"Outre-mer OM1", true},
                                                               {"Norvège, Islande", true},
                                                               {"France", false},
                                                               {"Switzerland", false},
                                                               {"United Kingdom", false},
                                                               {"Andorre", false},
                                                               {"", false}})
            QVERIFY2(TextesPays::zone(libelle, livrees().pays).isEmpty() != estUneZone, libelle);
        QCOMPARE(TextesPays::zone("Reste du monde", {}), "");
    }
};

QTEST_GUILESS_MAIN(TestPays)
#include "tst_pays.moc"
