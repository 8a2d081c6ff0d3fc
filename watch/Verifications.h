#pragma once

#include "model/Catalogue.h"
#include "model/Preferences.h"
#include "watch/Maintenant.h"
#include "watch/ReleveColissimo.h"
#include "watch/RelevePaypal.h"
#include "watch/Telechargement.h"

#include <QDateTime>
#include <QObject>

#include <functional>
#include <optional>

namespace Quillet {

// Where the public pages are; a test puts its own in their place.
struct PagesSurveillees
{
    QUrl laPoste = ReleveColissimo::adresse();
    QUrl paypal = RelevePaypal::adresse();
};

// The two checks of the tariff watch: they read La Poste's and PayPal's pages, hold what differs from the data in use,
// and change nothing until it is accepted. The dates of the last successes are kept between runs of the program.
class Verifications : public QObject
{
    Q_OBJECT

public:
    struct Etat
    {
        enum class Cas { erreur, inconnu, enCours, aJour, changement };

        Cas cas = Cas::inconnu;
        QString message; // of an error

        bool operator==(const Etat &) const = default;
    };
    // The catalogue must outlive them.
    Verifications(Catalogue &catalogue, Preferences preferences, Maintenant maintenant,
                  const PagesSurveillees &pages = {});

    [[nodiscard]] const Etat &etatLaPoste() const { return laPoste_.etat; }
    [[nodiscard]] const Etat &etatPaypal() const { return paypal_.etat; }
    [[nodiscard]] const std::optional<ReleveColissimo> &nouveauxTarifs() const { return laPoste_.nouveau; }
    [[nodiscard]] const std::optional<FraisPaypal> &nouveauxFrais() const { return paypal_.nouveau; }
    // When the check last succeeded, whatever it found.
    [[nodiscard]] const std::optional<QDateTime> &verifieLaPoste() const { return laPoste_.verifie; }
    [[nodiscard]] const std::optional<QDateTime> &verifiePaypal() const { return paypal_.verifie; }

    // The last success is too old to be trusted, or never was.
    [[nodiscard]] bool laPosteAVerifier() const { return perime(laPoste_.verifie); }
    [[nodiscard]] bool paypalAVerifier() const { return perime(paypal_.verifie); }
    // A success of a later day than today: the clock was wrong then, or is now.
    [[nodiscard]] bool aVenir(const std::optional<QDateTime> &verifie) const;
    // 0 to 2: what the user should look at.
    [[nodiscard]] int nombreASignaler() const;

    // All return at once; `change` tells the rest. A check that runs is not started again.
    void verifierSiNecessaire(); // La Poste's, then PayPal's, each when a week has passed
    void verifierLaPoste();
    void verifierPaypal();

    // Store what was found. Throw ErreurStockage, also for what no file may hold; what was found is then still to be
    // accepted.
    void accepterTarifs();
    void accepterFrais();

signals:
    void change();

private:
    template <typename Releve>
    struct Controle
    {
        QString cle; // of the last success in the preferences
        QUrl adresse;
        // What differs from the data in use, none when nothing does. Throws ErreurReleve.
        std::function<std::optional<Releve>(const QString &page)> analyser;
        std::function<void()> suite; // once this run has ended
        Etat etat;
        std::optional<Releve> nouveau;
        std::optional<QDateTime> verifie;
        Telechargement telechargement;
    };

    template <typename Releve>
    void preparer(Controle<Releve> &controle, const QString &cle, const QUrl &adresse);
    template <typename Releve>
    void lancer(Controle<Releve> &controle);
    template <typename Releve>
    void recevoir(Controle<Releve> &controle, const QString &page);
    template <typename Releve>
    void conclure(Controle<Releve> &controle, const Etat &etat);
    template <typename Releve>
    void accepter(Controle<Releve> &controle);
    void noter(const QString &cle, const QDateTime &date);
    [[nodiscard]] std::optional<QDateTime> lire(const QString &cle) const;
    [[nodiscard]] bool plusVieuxQue(const std::optional<QDateTime> &date, std::chrono::seconds duree) const;
    [[nodiscard]] bool perime(const std::optional<QDateTime> &date) const;

    Catalogue &catalogue_;
    Preferences preferences_;
    Maintenant maintenant_;
    Controle<ReleveColissimo> laPoste_;
    Controle<FraisPaypal> paypal_;
};

} // namespace Quillet
