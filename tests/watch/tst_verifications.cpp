#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "tests/serveur/ServeurLocal.h"
#include "visite/SiteDeLaVisite.h"
#include "watch/Verifications.h"

#include <QSignalSpy>
#include <QTimeZone>

using namespace Quillet;

namespace {

const QString cleLaPoste = "verification.laPoste";
const QString clePaypal = "verification.paypal";
const QString laPoste = "/poste";
const QString paypal = "/paypal";

} // namespace

// The two checks, against a real server on this machine, by a clock of the test's own.
class TestVerifications : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        maintenant_ = QDateTime(jourDuBanc, QTime(10, 0), QTimeZone::utc());
        banc_ = std::make_unique<Banc>();
        banc_->reglages.fraisPaypal.supplements = {
            {RegionPaypal::eee, Taux{0}}, {RegionPaypal::royaumeUni, Taux{129}}, {RegionPaypal::autres, Taux{199}}};
        catalogue_ = banc_->charger();
        serveur_ = std::make_unique<ServeurLocal>();
        servir(catalogue_->donnees().tarifs(QDate(2026, 3, 2)), catalogue_->donnees().reglages.fraisPaypal);
    }

    void premierLancement()
    {
        const auto v = verifications();
        QCOMPARE(v->etatLaPoste(), (Verifications::Etat{}));
        QCOMPARE(v->nombreASignaler(), 2); // never checked
        v->verifierSiNecessaire();
        QCOMPARE(v->etatLaPoste().cas, Cas::enCours);
        QCOMPARE(v->etatPaypal().cas, Cas::inconnu); // its turn comes next
        QTRY_COMPARE(v->etatPaypal().cas, Cas::aJour);
        QCOMPARE(v->etatLaPoste().cas, Cas::aJour);
        QCOMPARE(demandees(), (QStringList{laPoste, paypal}));
        QCOMPARE(v->nombreASignaler(), 0);
        QCOMPARE(banc_->preferences().texte(cleLaPoste), "2026-03-02T10:00:00Z");
        QCOMPARE(verifications()->verifiePaypal(), std::optional(maintenant_)); // of the next run of the program
    }

    void quandUneSemaineAPasse()
    {
        for (const auto &[nom, poste, autre, attendues, pastille] :
             Rangees<const char *, const char *, QStringList, int>{
                 // what is kept of each
                 {"six jours et 23 heures", "2026-02-23T11:00:00Z", "2026-02-23T11:00:00Z", {}, 0},
                 {"sept jours juste", "2026-02-23T10:00:00Z", "2026-02-23T10:00:00Z", {}, 0},
                 {"sept jours et une seconde", "2026-02-23T09:59:59Z", "2026-02-23T09:59:59Z", {laPoste, paypal}, 0},
                 {"La Poste seule", "2026-02-01T00:00:00Z", "2026-03-01T00:00:00Z", {laPoste}, 0},
                 {"PayPal seul", "2026-03-01T00:00:00Z", "2026-02-01T00:00:00Z", {paypal}, 0},
                 {"ce n’est pas une date", "hier", "2026-03-01T00:00:00Z", {laPoste}, 1},
                 {"90 jours juste", "2025-12-02T10:00:00Z", "2026-03-01T00:00:00Z", {laPoste}, 0},
                 {"90 jours et une seconde", "2025-12-02T09:59:59Z", "2025-12-02T09:59:59Z", {laPoste, paypal}, 2},
             }) {
            const Rangee rangee(nom);
            init();
            Preferences preferences = banc_->preferences();
            preferences.ecrire(cleLaPoste, poste);
            preferences.ecrire(clePaypal, autre);
            const auto v = verifications();
            QCOMPARE(v->nombreASignaler(), pastille);
            v->verifierSiNecessaire();
            QTRY_VERIFY(terminees(*v) && demandees().size() >= attendues.size());
            QCOMPARE(demandees(), attendues);
        }
    }

    void changementsAcceptes()
    {
        TarifsColissimo tarifs = catalogue_->donnees().tarifs(QDate(2026, 3, 2));
        tarifs.grilles[0].paliers[0].prix = Centimes{600};
        FraisPaypal frais = catalogue_->donnees().reglages.fraisPaypal;
        frais.supplements[RegionPaypal::royaumeUni] = Taux{130};
        servir(tarifs, frais);
        const auto v = verifications();
        v->verifierSiNecessaire();
        QTRY_COMPARE(v->etatPaypal().cas, Cas::changement);
        QVERIFY(!catalogue_->donnees().tarifsAVenir(jourDuBanc)); // nothing has changed yet
        const auto verifie = v->verifieLaPoste();
        maintenant_ = maintenant_.addSecs(60);

        v->accepterTarifs();
        QCOMPARE(v->etatLaPoste().cas, Cas::aJour);
        QVERIFY(!v->nouveauxTarifs());
        QCOMPARE(v->verifieLaPoste(), verifie);
        QCOMPARE(v->nombreASignaler(), 1);
        QCOMPARE(catalogue_->donnees().tarifs(QDate(2026, 4, 1)).grilles[0].paliers[0].prix, Centimes{600});
        QCOMPARE(catalogue_->donnees().tarifs(QDate(2026, 3, 31)).grilles[0].paliers[0].prix, Centimes{549});
        v->accepterFrais();
        QCOMPARE(catalogue_->donnees().reglages.fraisPaypal.supplement(RegionPaypal::royaumeUni), Taux{130});
        QCOMPARE(v->nombreASignaler(), 0);

        v->verifierLaPoste();
        QTRY_COMPARE(v->etatLaPoste().cas, Cas::aJour); // the page still shows what is known now
    }

    void echecs()
    {
        const QString avant = "2026-02-01T00:00:00Z";
        for (const auto &[statut, corps, message] : Rangees<const char *, QString>{
                 {"404 Not Found", "", "Page inaccessible : réponse 404 de localhost."},
                 {"200 OK", "<p>En travaux</p>",
                  "La page a changé de forme : grille « France » introuvable. Vérifiez à la main."},
             }) {
            const Rangee rangee(statut);
            init();
            banc_->preferences().ecrire(cleLaPoste, avant);
            serveur_->servir(laPoste, http(statut, corps));
            const auto v = verifications();
            v->verifierSiNecessaire();
            QTRY_COMPARE(v->etatPaypal().cas, Cas::aJour); // checked all the same
            QCOMPARE(v->etatLaPoste(), (Verifications::Etat{Cas::erreur, message}));
            QCOMPARE(banc_->preferences().texte(cleLaPoste), avant);
        }
    }

    // A surcharge that no page is refused for, and that no file may hold.
    void fraisQuiNeSEnregistrentPas()
    {
        FraisPaypal frais = catalogue_->donnees().reglages.fraisPaypal;
        frais.supplements[RegionPaypal::eee] = Taux{15'000};
        servir(catalogue_->donnees().tarifs(QDate(2026, 3, 2)), frais);
        const auto v = verifications();
        v->verifierPaypal();
        QTRY_COMPARE(v->etatPaypal().cas, Cas::changement);
        QVERIFY_THROWS_EXCEPTION(ErreurStockage, v->accepterFrais());
        QCOMPARE(v->nouveauxFrais()->supplement(RegionPaypal::eee), Taux{15'000}); // still to be accepted
        QCOMPARE(catalogue_->donnees().reglages.fraisPaypal.supplement(RegionPaypal::eee), Taux{0});
    }

    void uneSeuleALaFois()
    {
        const auto v = verifications();
        QSignalSpy changements(v.get(), &Verifications::change);
        v->verifierLaPoste();
        v->verifierLaPoste();
        QCOMPARE(changements.size(), 1);
        QTRY_VERIFY(terminees(*v));
        QCOMPARE(demandees(), QStringList{laPoste});
    }

private:
    using Cas = Verifications::Etat::Cas;

    void servir(const TarifsColissimo &tarifs, const FraisPaypal &frais)
    {
        serveur_->servir(laPoste, http("200 OK", SiteDeLaVisite::page(tarifs, "1er avril 2026").toUtf8()));
        serveur_->servir(paypal, http("200 OK", SiteDeLaVisite::page(frais).toUtf8()));
    }

    std::unique_ptr<Verifications> verifications()
    {
        return std::make_unique<Verifications>(
            *catalogue_, banc_->preferences(), [this] { return maintenant_; },
            PagesSurveillees{serveur_->adresse(laPoste), serveur_->adresse(paypal)});
    }

    [[nodiscard]] QStringList demandees() const
    {
        QStringList chemins;
        for (const QByteArray &tete : serveur_->requetes())
            chemins.append(QString::fromLatin1(tete.split(' ').at(1)));
        return chemins;
    }

    static bool terminees(const Verifications &v)
    {
        return v.etatLaPoste().cas != Cas::enCours && v.etatPaypal().cas != Cas::enCours;
    }

    QDateTime maintenant_;
    std::unique_ptr<Banc> banc_;
    std::unique_ptr<Catalogue> catalogue_;
    std::unique_ptr<ServeurLocal> serveur_;
};

QTEST_GUILESS_MAIN(TestVerifications)
#include "tst_verifications.moc"
