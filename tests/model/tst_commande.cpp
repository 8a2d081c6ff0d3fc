#include "tests/Banc.h"

#include <QSignalSpy>
#include <QTest>

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
    void ajuster_data();
    void ajuster();
    void viderEtSignaux();
    void depassementArrete_data();
    void depassementArrete();
};

void TestCommande::ajuster_data()
{
    QTest::addColumn<int>("depart");
    QTest::addColumn<int>("pas");
    QTest::addColumn<int>("arrivee");
    QTest::newRow("+1 à 99") << 99 << 1 << 99;
    QTest::newRow("-1 à 0") << 0 << -1 << 0;
    QTest::newRow("+150") << 0 << 150 << 99;
    QTest::newRow("pas démesuré") << 50 << std::numeric_limits<int>::max() << 99;
    QTest::newRow("pas démesuré négatif") << 50 << std::numeric_limits<int>::min() << 0;
}

void TestCommande::ajuster()
{
    QFETCH(int, depart);
    QFETCH(int, pas);
    QFETCH(int, arrivee);
    const Banc banc;
    Commande commande;
    commande.ajuster(banc.livres[0], depart);
    commande.ajuster(banc.livres[0], pas);
    QCOMPARE(commande.bon().quantite(banc.livres[0]), arrivee);
    QVERIFY(commande.bon().quantites.contains(1));
    QCOMPARE(commande.bon().estVide(), arrivee == 0);
}

void TestCommande::viderEtSignaux()
{
    const Banc banc;
    Commande commande;
    QSignalSpy change(&commande, &Commande::change);
    commande.setCodeDestination(vers("ue"));
    commande.setHorsUE(true);
    commande.setPaysLivraison(QStringLiteral("l’Italie"));
    commande.setLangue(Langue::anglais);
    commande.setPoidsPese(Grammes{450});
    commande.setEmballage(QStringLiteral("Carton"));
    commande.ajuster(banc.livres[2], 3);
    QCOMPARE(change.count(), 7);
    commande.setEmballage(QStringLiteral("Carton"));
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
    QVERIFY(commande.bon().estVide() && !commande.bon().poidsPese && !commande.bon().horsUE && !commande.bon().langue);
    QVERIFY(commande.bon().paysLivraison.isEmpty());
    QCOMPARE(commande.bon().codeDestination, vers("ue"));
    QCOMPARE(commande.bon().emballage, QStringLiteral("Carton"));

    commande.setHorsUE(true);
    commande.setPaysLivraison(QStringLiteral("Lugano"));
    commande.setLangue(Langue::francais);
    commande.setCodeDestination(vers("suisse"));
    QVERIFY(!commande.bon().horsUE && commande.bon().paysLivraison.isEmpty() && !commande.bon().langue);
}

void TestCommande::depassementArrete_data()
{
    QTest::addColumn<std::function<Centimes(Centimes)>>("operation");
    using Operation = std::function<Centimes(Centimes)>;
    QTest::newRow("+") << Operation([](Centimes maximum) { return maximum + Centimes{1}; });
    QTest::newRow("-") << Operation([](Centimes maximum) { return -maximum - Centimes{2}; });
    QTest::newRow("*") << Operation([](Centimes maximum) { return maximum * 2; });
}

void TestCommande::depassementArrete()
{
    QFETCH(std::function<Centimes(Centimes)>, operation);
    if (const pid_t enfant = fork(); enfant == 0) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        std::signal(SIGABRT, SIG_DFL);
        operation(Centimes{std::numeric_limits<qint64>::max()});
        _exit(0); // reached only if the overflow went on
    } else {
        int statut = 0;
        waitpid(enfant, &statut, 0);
        QVERIFY(WIFSIGNALED(statut) && WTERMSIG(statut) == SIGABRT);
    }
}

QTEST_GUILESS_MAIN(TestCommande)
#include "tst_commande.moc"
