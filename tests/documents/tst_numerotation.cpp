#include "documents/EmissionFacture.h"
#include "tests/Banc.h"
#include "tests/DisquePlein.h"
#include "tests/Rangees.h"

using namespace Quillet;

namespace {

const QString cleDavrel = "derniereFacture.davrel";

} // namespace

class TestNumerotation : public QObject
{
    Q_OBJECT

private slots:
    void prochain()
    {
        for (const auto &[retenu, propose] : Rangees<const char *>{
                 {"", "2026-001"},
                 {"2026-007", "2026-008"},
                 {"2026-1233", "2026-1234"},
                 {"2025-041", "2026-001"},
                 {"2027-002", "2026-001"},
                 {"-2026--007-", "2026-008"},
                 {"+2026-+7", "2026-008"},
                 {"abc", "2026-001"},
                 {"2026- 7", "2026-001"},
                 {"2026-٧", "2026-001"},
                 {"2026-99999999999999999999", "2026-001"},
                 {"2026-9223372036854775807", "2026-001"}, // the last that can be read
             }) {
            const Rangee rangee(retenu);
            const Banc banc;
            if (*retenu)
                banc.preferences().ecrire(cleDavrel, retenu);
            const NumerotationFactures numerotation{banc.preferences()};
            QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), propose);
        }
    }

    // Saved by another program, it is understood; cut or overwritten, no number is proposed, and none of its bytes
    // goes.
    void fichierDesNumeros()
    {
        const QByteArray deux = "[General]\nderniereFacture.davrel=2026-007\nderniereFacture.mireva=2026-003\n";
        const Banc banc;
        for (const auto &[numero, vendeur] : {std::pair("2026-007", Vendeur::davrel), {"2026-003", Vendeur::mireva}})
            NumerotationFactures{banc.preferences()}.retenir(numero, vendeur);
        const QByteArray notre = *Fichier::lire(banc.preferences().fichier(), 1000);
        const auto change = [&](const QByteArray &avant, const QByteArray &apres) {
            return QByteArray(deux).replace(avant, apres);
        };
        for (const auto &[nom, octets, propose] : Rangees<QByteArray, const char *>{
                 {"tel qu’écrit", notre, "2026-008"},
                 {"sans compte", deux, "2026-008"},
                 {"une ligne de plus", notre + "verification.laposte=2026-03-02\n", "2026-008"},
                 {"démesuré", QByteArray(Fichier::Borne::preferences + 1, 'x'), nullptr},
                 {"CRLF", change("\n", "\r\n"), "2026-008"},
                 {"blancs", change("=", " =\t"), "2026-008"},
                 {"marque d’ordre", "\xEF\xBB\xBF" + deux, "2026-008"},
                 {"numéro qui n’en est pas un", change("2026-007", "abc"), "2026-001"},
                 {"vide", "", nullptr},
                 {"coupé", deux.chopped(3), nullptr},
                 {"coupé à la première ligne", deux.first(10), nullptr},
                 {"zéros", change("2026-007", QByteArray(8, '\0')), nullptr},
                 {"que des zéros", QByteArray(80, '\0'), nullptr},
                 {"pas de l’UTF-8", change("007", "\xFF"), nullptr},
                 {"deux fois le même", deux + deux.sliced(10), nullptr},
                 {"compte abîmé", QByteArray(notre).replace("textes=2", "textes="), "2026-008"},
                 {"ligne étrangère", change("[General]", "{}"), nullptr},
             }) {
            const Rangee rangee(nom);
            const QTemporaryDir dossier;
            const QString chemin = dossier.filePath("Quillet.ini");
            QFile fichier(chemin);
            QVERIFY(fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size());
            fichier.close();
            NumerotationFactures numerotation{Preferences(chemin)};
            MemoireFactures memoire;
            EmissionFacture emission(Preferences(chemin), memoire);
            QCOMPARE(emission.numeroPour({}, Vendeur::davrel, jourDuBanc), propose);
            QCOMPARE(emission.sansProposition().isEmpty(), propose != nullptr);
            if (propose)
                continue;
            // Another text is kept: the numbers stay lost, until one is typed.
            numerotation.preferences.ecrire("verification.paypal", "2026-03-02");
            QVERIFY(emission.numeroPour({}, Vendeur::mireva, jourDuBanc).isEmpty());
            QVERIFY(emission.sansProposition().contains("Quillet.ini.illisible"));
            QCOMPARE(Fichier::lire(chemin + QStringLiteral(".illisible"), Fichier::Borne::toute), octets);
            numerotation.retenir("2026-009", Vendeur::davrel);
            QCOMPARE(emission.numeroPour({}, Vendeur::davrel, jourDuBanc), "2026-010");
            QVERIFY(emission.numeroPour({}, Vendeur::mireva, jourDuBanc).isEmpty());
        }
    }

    // Whole lines are gone: those that are left count, of the others no number is proposed.
    void lignesPerdues()
    {
        const Banc banc;
        NumerotationFactures numerotation{banc.preferences()};
        numerotation.retenir("2026-007", Vendeur::davrel);
        numerotation.retenir("2026-003", Vendeur::mireva);
        QFile fichier(banc.preferences().fichier());
        QVERIFY(fichier.open(QIODevice::ReadWrite));
        QVERIFY(fichier.resize(fichier.readAll().indexOf("derniereFacture.mireva")));
        MemoireFactures memoire;
        const auto propose = [&](Vendeur vendeur) {
            return EmissionFacture(banc.preferences(), memoire).numeroPour({}, vendeur, jourDuBanc);
        };
        QCOMPARE(propose(Vendeur::davrel), "2026-008");
        QCOMPARE(propose(Vendeur::mireva), "");
        numerotation.retenir("2026-008", Vendeur::davrel);
        QCOMPARE(propose(Vendeur::davrel), "2026-009");
        QCOMPARE(propose(Vendeur::mireva), "");
        QVERIFY(QFile::exists(fichier.fileName() + ".illisible"));

        QVERIFY(QFile::resize(fichier.fileName(), Fichier::Borne::preferences + 1));
        banc.preferences().retenirSiPossible("fenetre", "0 0 980 700"); // which is not worth a damaged file's bytes
        QVERIFY(!QFile::exists(fichier.fileName() + ".illisible-2"));
        numerotation.retenir("2026-009", Vendeur::davrel);
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), "2026-010");
        QVERIFY(QFile::exists(fichier.fileName() + ".illisible-2"));
    }

    void retenir()
    {
        for (const auto &[nom, avant, numero, apres] : Rangees<const char *, const char *, const char *>{
                 {"premier", "", "2026-001", "2026-001"},
                 {"suivant", "2025-010", "2025-011", "2025-011"},
                 {"réimprimé", "2025-010", "2025-009", "2025-010"},
                 {"année passée", "2025-010", "2024-099", "2025-010"},
                 {"nouvelle année", "2024-041", "2025-001", "2025-001"},
                 {"gardé comme il fut tapé", "2026-007", "2026-12", "2026-12"},
                 {"rang plus long", "2026-999", "2026-1000", "2026-1000"},
                 {"illisible remplacé", "abc", "2026-003", "2026-003"},
                 {"ce qui n’est pas un numéro", "2026-003", "F-2026-004", "2026-003"},
             }) {
            const Rangee rangee(nom);
            const Banc banc;
            if (*avant)
                banc.preferences().ecrire(cleDavrel, avant);
            NumerotationFactures{banc.preferences()}.retenir(numero, Vendeur::davrel);
            QCOMPARE(banc.preferences().texte(cleDavrel), apres);
        }
    }

    void unVendeurAPart()
    {
        const Banc banc;
        NumerotationFactures numerotation{banc.preferences()};
        numerotation.retenir("2026-005", Vendeur::davrel);
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), "2026-006");
        QCOMPARE(numerotation.prochain(Vendeur::mireva, jourDuBanc), "2026-001");
    }

    // One's own series owes nothing to the one that was tried out, and goes on after invoices made elsewhere.
    void uneAutreSerie()
    {
        const Banc banc;
        NumerotationFactures numerotation{banc.preferences()};
        numerotation.retenir("2026-005", Vendeur::davrel);
        numerotation.reprendre("", Vendeur::davrel);
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), "2026-001");
        numerotation.reprendre("2026-003", Vendeur::davrel);
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), "2026-004");
    }

    // The disk takes a part of the file.
    void disquePlein()
    {
        const Banc banc;
        Preferences preferences = banc.preferences();
        preferences.ecrire("dossier", QString(400, u'x'));
        NumerotationFactures numerotation{preferences};
        numerotation.retenir("2026-001", Vendeur::davrel);
        {
            const DisquePlein plein(200);
            QVERIFY_THROWS_EXCEPTION(ErreurStockage, numerotation.retenir("2026-002", Vendeur::davrel));
        }
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), "2026-002"); // has not moved
        QCOMPARE(preferences.texte("dossier").size(), 400);
        numerotation.retenir("2026-002", Vendeur::davrel); // and goes on once there is room
        QCOMPARE(numerotation.prochain(Vendeur::davrel, jourDuBanc), "2026-003");
    }

    // What somebody typed stays; what was proposed follows the day and the seller's series.
    void numeroDuChamp()
    {
        const Banc banc;
        MemoireFactures memoire;
        EmissionFacture emission(banc.preferences(), memoire);
        const auto numero = [&](const char *saisi, QDate jour) {
            return emission.numeroPour(saisi, Vendeur::davrel, jour);
        };
        QCOMPARE(numero("", jourDuBanc), "2026-001");
        NumerotationFactures{banc.preferences()}.retenir("2026-004", Vendeur::davrel);
        QCOMPARE(numero("2026-001", jourDuBanc), "2026-005"); // kept meanwhile by somebody else
        const auto part = [](const Facture &) { return true; };
        QVERIFY(emission.emettre({.numero = "2026-005"}, Vendeur::davrel, part));
        QCOMPARE(numero("2026-005", jourDuBanc), "2026-005"); // has left from here, and may once more
        const auto place = [&](const char *n) { return emission.place(n, Vendeur::davrel, jourDuBanc); };
        QVERIFY(place("2026-005").reparti && !place("2026-005").dejaParti && !place("2026-004").reparti);
        QCOMPARE(place("2026-004").dernier, "2026-005");
        QCOMPARE(place("2026-004").suivant, "2026-006");
        QCOMPARE(numero("2026-005", QDate(2027, 1, 1)), "2027-001");
        memoire.suivre({.quantites = {{1, 1}}}); // another order
        QVERIFY(!place("2026-005").reparti && place("2026-005").dejaParti);
        QVERIFY(!emission.place("2026-005", Vendeur::mireva, jourDuBanc).dejaParti);
        emission.noter("2026-001"); // typed instead, perhaps to print an old one again
        QCOMPARE(numero("2026-001", jourDuBanc), "2026-001");
        emission.noter("2027-001");
        QCOMPARE(numero("2027-001", jourDuBanc), "2027-001"); // typed back
        QVERIFY(emission.sansProposition().isEmpty());
    }

    void oublieeAvecLaCommande()
    {
        const auto apres = [](void (*changer)(BonDeCommande &)) {
            BonDeCommande bon{.quantites = {{1, 2}}};
            MemoireFactures memoire;
            memoire.suivre(bon);
            memoire.noterAcheteur("Ada");
            memoire.noterDepart("2026-001", Vendeur::davrel);
            changer(bon);
            memoire.suivre(bon);
            const QString apresLeGeste = memoire.acheteur() + memoire.partie();
            memoire.suivre({.quantites = {{1, 2}}}); // taken back
            return apresLeGeste + '/' + memoire.acheteur();
        };
        QCOMPARE(apres([](BonDeCommande &bon) { bon.langue = Langue::anglais; }), "Ada2026-001/Ada");
        QCOMPARE(apres([](BonDeCommande &bon) { bon.paysLivraison = bon.paysTrouve = "Italy"; }), "Ada2026-001/Ada");
        QCOMPARE(apres([](BonDeCommande &bon) { bon.quantites[2] = 0; }), "Ada2026-001/Ada");
        QCOMPARE(apres([](BonDeCommande &bon) { bon.quantites[1] = 1; }), "/");
        QCOMPARE(apres([](BonDeCommande &bon) { bon.destiner(CodeDestination("ue")); }), "/");
        QCOMPARE(apres([](BonDeCommande &bon) { bon.vider(); }), "/Ada");
        QCOMPARE(apres([](BonDeCommande &bon) { bon.vendeur = Vendeur::mireva; }), "/Ada");
        QCOMPARE(apres([](BonDeCommande &bon) {
                     bon.vider();
                     bon.quantites = {{1, 2}}; // the next buyer's
                 }),
                 "/Ada");
    }

    void compteUneFoisPartie()
    {
        const Banc banc;
        MemoireFactures memoire;
        EmissionFacture emission(banc.preferences(), memoire);
        const Facture facture{.numero = "2026-007"};
        const auto retenu = [&] { return banc.preferences().texte(cleDavrel); };
        const auto emettre = [&](const std::function<bool(const Facture &)> &sortir) {
            return emission.emettre(facture, Vendeur::davrel, sortir);
        };
        QVERIFY(!emettre([](const Facture &) { return false; })); // given up
        QVERIFY_THROWS_EXCEPTION(Echec, emettre([](const Facture &) -> bool { throw Echec("refusée"); }));
        QVERIFY(retenu().isEmpty());
        QVERIFY(emettre([&](const Facture &partie) { return partie == facture && retenu().isEmpty(); }));
        QCOMPARE(retenu(), facture.numero);
    }
};

QTEST_GUILESS_MAIN(TestNumerotation)
#include "tst_numerotation.moc"
