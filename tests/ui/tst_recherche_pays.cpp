#include "tests/BancEcran.h"
#include "tests/Rangees.h"
#include "ui/ContenuPrincipal.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

using namespace Quillet;

// The country that is typed in the summary, by keys.
class TestRecherchePays : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        Pays suisse{.libelleFr = "la Suisse", .libelleEn = "Switzerland", .destination = vers("suisse")};
        Pays suede{.libelleFr = "la Suède", .libelleEn = "Sweden", .destination = vers("ue"), .remarque = "À savoir."};
        Pays finlande{.libelleFr = "la Finlande", .libelleEn = "Finland", .destination = vers("ue")};
        banc_->donnees.pays = {suede, suisse, finlande, {.libelleFr = "le Groenland", .libelleEn = "Greenland"}};
        banc_->demarrer();
        banc_->commander("ue");
        champ_ = qobject_cast<QLineEdit *>(Ecran::controle(&banc_->app->fenetre(), "Chercher un pays"));
        QVERIFY(champ_);
        QTest::keyClick(&banc_->app->fenetre(), Qt::Key_L, Qt::ControlModifier);
        QVERIFY(champ_->hasFocus());
    }

    void cleanup() { banc_.reset(); }

    void choisir()
    {
        QVERIFY(montre("L’acheteur lira « European Union » : indiquez son pays."));
        QTest::keyClicks(champ_, "su");
        QVERIFY(liste());
        QTest::keyClick(liste(), Qt::Key_Down);
        QTest::keyClick(liste(), Qt::Key_Return);
        QCOMPARE(bon().codeDestination, vers("suisse"));
        QCOMPARE(bon().paysLivraison, "Switzerland");
        QCOMPARE(champ_->text(), "");
        QVERIFY(!montre("L’acheteur lira « Switzerland » : indiquez son pays."));
        QVERIFY(Ecran::cliquer(&banc_->app->fenetre(), "Français"));
        QCOMPARE(bon().paysLivraison, "la Suisse");
        // The list that was closed opens again, and Return takes the first.
        QTest::keyClicks(champ_, "su");
        QTest::keyClick(liste(), Qt::Key_Escape);
        QVERIFY(!liste());
        QTest::keyClick(champ_, Qt::Key_Return);
        QTest::keyClick(liste(), Qt::Key_Return);
        QCOMPARE(bon().paysLivraison, "Sweden");
        QVERIFY(montre("À savoir."));
    }

    void neRienDeviner()
    {
        const BonDeCommande avant = bon();
        banc_->app->fenetre().resize(1000, 600);
        QTest::keyClicks(champ_, "groen");
        QTest::keyClick(liste(), Qt::Key_Return);
        const QString nonEtabli = "Groenland : rien ne dit de façon sûre quel tarif s’applique. Demandez à La Poste, "
                                  "puis choisissez l’envoi vous-même.";
        QTRY_VERIFY(enEntier(nonEtabli));
        QTest::keyClicks(champ_, "zut");
        QVERIFY(!liste());
        QVERIFY(!montre(nonEtabli));
        QTest::keyClick(champ_, Qt::Key_Return);
        QTRY_VERIFY(enEntier("Aucun pays ne répond à « zut »."));
        QCOMPARE(bon(), avant);
    }

    // Seen nowhere else, it would change the order unseen.
    void laListeSeFerme()
    {
        for (const auto &[nom, geste] : Rangees<std::function<void(Fenetre &)>>{
                 {"autre écran", [](Fenetre &fenetre) { fenetre.contenu()->montrer(Rubrique::tarifs); }},
                 {"fenêtre agrandie", [](Fenetre &fenetre) { fenetre.resize(fenetre.size() + QSize(40, 40)); }},
                 {"commande vidée", [this](Fenetre &) { banc_->app->commande().vider(); }},
             }) {
            const Rangee rangee(nom);
            banc_->app->fenetre().contenu()->montrer(Rubrique::commande);
            champ_->clear();
            QTest::keyClicks(champ_, "su");
            QVERIFY(liste());
            geste(banc_->app->fenetre());
            QTRY_VERIFY(!liste());
        }
        QCOMPARE(champ_->text(), "");
    }

    void autrePaysAutreAcheteur()
    {
        const auto trouver = [this](const char *pays) {
            QTest::keyClicks(champ_, pays);
            QTest::keyClick(liste(), Qt::Key_Return);
            return bon().vente();
        };
        banc_->app->commande().setCodeDestination(vers("ue"));
        const BonDeCommande suede = trouver("sued");
        QCOMPARE(trouver("sued"), suede);
        QVERIFY(trouver("finl") != suede);
    }

private:
    [[nodiscard]] const BonDeCommande &bon() const { return banc_->app->commande().bon(); }
    [[nodiscard]] bool montre(const QString &texte) const { return Ecran::montre(&banc_->app->fenetre(), texte); }
    [[nodiscard]] bool enEntier(const QString &texte) const
    {
        const QWidget *dit = Ecran::etiquette(&banc_->app->fenetre(), texte);
        return dit && dit->visibleRegion().boundingRect() == dit->rect();
    }
    [[nodiscard]] static QWidget *liste() { return QApplication::activePopupWidget(); }

    std::unique_ptr<BancEcran> banc_;
    QLineEdit *champ_ = nullptr;
};

QTEST_MAIN(TestRecherchePays)
#include "tst_recherche_pays.moc"
