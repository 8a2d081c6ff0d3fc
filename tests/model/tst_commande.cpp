#include "model/Suivi.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

#include <QSignalSpy>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <limits>

using namespace Quillet;

// What the order holds, and the quantities it is counted in.
class TestCommande : public QObject
{
    Q_OBJECT

private slots:
    void ajuster()
    {
        const Banc banc;
        for (const auto &[nom, depart, pas, arrivee] : Rangees<int, int, int>{
                 {"+1 à 99", 99, 1, 99},
                 {"-1 à 0", 0, -1, 0},
                 {"pas démesuré", 50, std::numeric_limits<int>::max(), 99},
                 {"pas démesuré négatif", 50, std::numeric_limits<int>::min(), 0},
             }) {
            const Rangee rangee(nom);
            BonDeCommande bon;
            bon.ajuster(banc.livres[0], depart);
            bon.ajuster(banc.livres[0], pas);
            QCOMPARE(bon.quantite(banc.livres[0]), arrivee);
            QVERIFY(bon.quantites.contains(1));
            QCOMPARE(bon.estVide(), arrivee == 0);
        }
    }

    void viderEtSignaux()
    {
        const Banc banc;
        Commande commande;
        QSignalSpy change(&commande, &Commande::change);
        commande.setCodeDestination(vers("ue"));
        commande.setHorsUE(true);
        commande.setPaysLivraison("l’Italie");
        commande.setLangue(Langue::anglais);
        commande.setPoidsPese(Grammes{450});
        commande.setEmballage("Carton");
        commande.ajuster(banc.livres[2], 3);
        QCOMPARE(change.count(), 7);
        commande.setEmballage("Carton");
        commande.setPoidsPese(Grammes{450});
        commande.setCodeDestination(vers("ue"));
        commande.ajuster(banc.livres[2], 0);
        QCOMPARE(change.count(), 7);
        QVERIFY(commande.bon().horsUE && commande.bon().langue);
        commande.setVendeur(Vendeur::mireva);
        QCOMPARE(commande.bon().poidsEmballageLibre, Grammes{100});
        commande.setPoidsEmballageLibre(Grammes{60});

        commande.vider();
        QCOMPARE(change.count(), 10);
        QCOMPARE(commande.bon().vendeur, Vendeur::mireva);
        QCOMPARE(commande.bon().poidsEmballageLibre, Grammes{60});
        QVERIFY(commande.bon().estVide() && !commande.bon().poidsPese && !commande.bon().horsUE
                && !commande.bon().langue);
        QVERIFY(commande.bon().paysLivraison.isEmpty());
        QCOMPARE(commande.bon().codeDestination, vers("ue"));
        QCOMPARE(commande.bon().emballage, "Carton");

        commande.setHorsUE(true);
        commande.setPaysLivraison("Lugano");
        commande.setLangue(Langue::francais);
        commande.setCodeDestination(vers("suisse"));
        QVERIFY(!commande.bon().horsUE && commande.bon().paysLivraison.isEmpty() && !commande.bon().langue);
    }

    void rendreCeQuiFutVide()
    {
        const Banc banc;
        const Livre &livre = banc.livres[0];
        for (const auto &[nom, geste, rendue] : Rangees<std::function<void(Commande &)>, bool>{
                 {"aussitôt", [](Commande &) {}, true},
                 {"geste sans effet", [](Commande &commande) { commande.setCodeDestination(vers("ue")); }, true},
                 {"un livre", [&](Commande &commande) { commande.ajuster(livre, 1); }, false},
                 {"vidée deux fois", [](Commande &commande) { commande.vider(); }, true},
             }) {
            const Rangee rangee(nom);
            Commande commande;
            commande.setCodeDestination(vers("ue"));
            commande.ajuster(livre, 2);
            commande.setPaysLivraison("l’Italie");
            QVERIFY(!commande.peutRendre());
            const BonDeCommande avant = commande.bon();
            bool dit = false; // by the time the change is told
            connect(&commande, &Commande::change, this, [&] { dit = commande.peutRendre(); });
            commande.vider();
            QVERIFY(dit);
            geste(commande);
            QCOMPARE(commande.peutRendre(), rendue);
            commande.rendre();
            QCOMPARE(commande.bon() == avant, rendue);
            QVERIFY(!commande.peutRendre());
        }
    }

    void etapeSuivante()
    {
        using Total = std::optional<Centimes>;
        for (const auto &[nom, geste, attendue] : Rangees<std::function<void(BonDeCommande &, Total &)>, Etape>{
                 {"rien", [](BonDeCommande &, Total &) {}, Etape::facture},
                 {"la langue", [](BonDeCommande &bon, Total &) { bon.langue = Langue::anglais; }, Etape::facture},
                 {"le pays", [](BonDeCommande &bon, Total &) { bon.paysLivraison = bon.paysTrouve = "Italy"; },
                  Etape::facture},
                 {"un livre", [](BonDeCommande &bon, Total &) { bon.quantites[1] = 2; }, Etape::lien},
                 {"le colis pesé", [](BonDeCommande &bon, Total &) { bon.poidsPese = Grammes{300}; }, Etape::facture},
                 {"la destination", [](BonDeCommande &bon, Total &) { bon.destiner(vers("ue")); }, Etape::lien},
                 {"vidée", [](BonDeCommande &bon, Total &) { bon.vider(); }, Etape::lien},
                 {"le prix d’un livre", [](BonDeCommande &, Total &total) { total = Centimes{2100}; }, Etape::lien},
             }) {
            const Rangee rangee(nom);
            BonDeCommande bon{.quantites = {{1, 1}}};
            Total total = Centimes{2049};
            Suivi suivi;
            suivi.suivre(bon, total);
            QVERIFY(suivi.suivante() == Etape::lien);
            suivi.faire(Etape::lien);
            QVERIFY(suivi.suivante() == Etape::reponse);
            suivi.faire(Etape::reponse);
            geste(bon, total);
            suivi.suivre(bon, total);
            QVERIFY(suivi.suivante() == attendue);
        }
    }

    void ceQuiFutFaitRevient()
    {
        const BonDeCommande bon{.quantites = {{1, 1}}};
        for (const auto &[nom, geste, attendue] : Rangees<void (*)(BonDeCommande &), Etape>{
                 {"vidée", [](BonDeCommande &autre) { autre.vider(); }, Etape::facture},
                 {"un livre de plus", [](BonDeCommande &autre) { autre.quantites[1] = 2; }, Etape::lien},
                 {"l’autre vendeur", [](BonDeCommande &autre) { autre.vendeur = Vendeur::mireva; }, Etape::facture},
             }) {
            const Rangee rangee(nom);
            Suivi suivi;
            suivi.suivre(bon, {});
            suivi.faire(Etape::reponse);
            BonDeCommande autre = bon;
            geste(autre);
            suivi.suivre(autre, {});
            QVERIFY(suivi.suivante() == Etape::lien);
            suivi.suivre(bon, {});
            QVERIFY(suivi.suivante() == attendue);
        }
    }

    void copierChacunSonTour()
    {
        QList<TexteACopier> textes{{"Nom", "Davrel"}, {"Description", "un livre"}, {"Prix", "20,49"}};
        Suivi suivi;
        suivi.copier(textes[1]); // by its own button
        QVERIFY(suivi.estCopie(textes[1]) && !suivi.estCopie(textes[0]));
        for (const int rang : {0, 2, 0, 1, 2, 0}) {
            QCOMPARE(suivi.aCopier(textes), rang);
            suivi.copier(textes[rang]);
        }
        textes[2].valeur = "21,00";
        QVERIFY(!suivi.estCopie(textes[2]) && suivi.estCopie(textes[0]));
        QCOMPARE(suivi.aCopier(textes), 2);
        suivi.suivre({.quantites = {{1, 1}}}, std::nullopt);
        QVERIFY(!suivi.estCopie(textes[0]));
    }

    void depassementArrete()
    {
        for (const auto &[nom, operation] : Rangees<Centimes (*)(Centimes)>{
                 {"+", [](Centimes maximum) { return maximum + Centimes{1}; }},
                 {"-", [](Centimes maximum) { return -maximum - Centimes{2}; }},
                 {"*", [](Centimes maximum) { return maximum * 2; }},
             }) {
            const Rangee rangee(nom);
            const pid_t enfant = fork();
            if (enfant == 0) {
                qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
                std::signal(SIGABRT, SIG_DFL);
                operation(Centimes{std::numeric_limits<qint64>::max()});
                _exit(0); // reached only if the overflow went on
            }
            int statut = 0;
            waitpid(enfant, &statut, 0);
            QVERIFY(WIFSIGNALED(statut) && WTERMSIG(statut) == SIGABRT);
        }
    }
};

QTEST_GUILESS_MAIN(TestCommande)
#include "tst_commande.moc"
