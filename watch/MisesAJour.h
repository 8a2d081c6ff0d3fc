#pragma once

#include "model/Preferences.h"
#include "watch/Maintenant.h"
#include "watch/SignatureEd25519.h"
#include "watch/TelechargementPaquet.h"

#include <QDir>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace Quillet {

class Telechargement;

// Where updates come from and where they go. Given when the program is packaged; a test gives its own.
struct SourceMisesAJour
{
    QUrl flux;              // empty: no updates
    QByteArray clePublique; // Ed25519, in base64; a feed that it did not sign is refused
    QString installee;      // the version that runs
    QString systeme;        // what it runs on, as the feed names it: "debian13"
    QDir cache;             // the package goes to a folder of its own in there
    // Hands a proved package to the platform. False when nothing there takes it.
    std::function<bool(const QString &chemin)> installer;
};

// Looks for a newer version, fetches it and hands it over, each step only when it is asked for.
class MisesAJour : public QObject
{
    Q_OBJECT

public:
    struct Etat
    {
        enum class Cas { auRepos, recherche, aJour, disponible, telechargement, pret, echec };

        Cas cas = Cas::auRepos;
        std::optional<Appcast::Parution> parution; // what is available, on its way or ready
        qint64 octets = 0;                         // of the package, here already
        QString chemin;                            // of the package, once ready
        QString message;                           // of a failure
    };
    // The date of the last feed is kept among the preferences: an older one is not believed again.
    MisesAJour(SourceMisesAJour source, Preferences preferences, Maintenant maintenant);
    ~MisesAJour() override;
    Q_DISABLE_COPY_MOVE(MisesAJour)

    // Never in a program under test by XCTest, nor without a feed and its key; else whenever nothing is under way.
    [[nodiscard]] bool peutVerifier() const { return peutVerifier_; }
    [[nodiscard]] const Etat &etat() const { return etat_; }
    [[nodiscard]] const QString &installee() const { return source_.installee; }

    // All return at once; `change` tells the rest.
    void verifier();    // nothing when it cannot
    void telecharger(); // what is available
    void annuler();     // the download; what is available remains
    void abandonner();  // all of it

signals:
    void change();

private:
    void lire(const QString &flux);
    // Throws ErreurMiseAJour, ErreurStockage.
    void dater(const Appcast::Flux &flux);
    void installer(const QString &chemin);
    void echouer(const QString &message);
    void passerA(Etat etat);

    SourceMisesAJour source_;
    Preferences preferences_;
    Maintenant maintenant_;
    std::optional<SignatureEd25519::Cle> cle_;
    std::optional<NumeroDeVersion> numero_; // of the version that runs
    bool actif_;
    bool peutVerifier_ = false;
    Etat etat_;
    std::unique_ptr<Telechargement> recherche_; // each check has its own: nothing is left of the one before
    std::unique_ptr<TelechargementPaquet> paquet_;
};

} // namespace Quillet
