#include "watch/MisesAJour.h"

#include "model/Format.h"
#include "watch/ErreurMiseAJour.h"
#include "watch/FluxSigne.h"
#include "watch/Telechargement.h"

#include <utility>

namespace Quillet {

namespace {

const QString dernierFlux = QStringLiteral("miseAJour.dernierFlux"); // when it was made

constexpr Limites limitesDuFlux{.taille = qint64{256} << 10};

using Cas = MisesAJour::Etat::Cas;

} // namespace

MisesAJour::MisesAJour(SourceMisesAJour source, Preferences preferences, Maintenant maintenant)
    : source_(std::move(source)),
      preferences_(std::move(preferences)),
      maintenant_(std::move(maintenant)),
      cle_(SignatureEd25519::cle(source_.clePublique)),
      numero_(NumeroDeVersion::lire(source_.installee)),
      actif_(!source_.flux.isEmpty() && cle_ && numero_ && !qEnvironmentVariableIsSet("XCTestConfigurationFilePath"))
{
    passerA({});
}

MisesAJour::~MisesAJour() = default;

void MisesAJour::verifier()
{
    if (!peutVerifier_)
        return;
    if (source_.flux.scheme() != u"https")
        return echouer(QStringLiteral("Recherche impossible : l’adresse des mises à jour n’est pas sécurisée."));
    recherche_ = std::make_unique<Telechargement>(limitesDuFlux, Transfert::Usage::miseAJour);
    connect(recherche_.get(), &Telechargement::lue, this, &MisesAJour::lire);
    connect(recherche_.get(), &Telechargement::echouee, this, [this](const ErreurReleve &erreur) {
        echouer(QStringLiteral("Recherche impossible : %1.").arg(erreur.detail()));
    });
    recherche_->page(source_.flux);
    passerA({.cas = Cas::recherche});
}

void MisesAJour::lire(const QString &flux)
{
    std::optional<Appcast::Parution> parution;
    try {
        const Appcast::Flux lu = Appcast::lire(FluxSigne::contenu(flux, *cle_), source_.systeme);
        dater(lu);
        parution = Appcast::aProposer(lu.parutions, *numero_);
    } catch (const Echec &erreur) {
        return echouer(erreur.texte());
    }
    passerA({.cas = parution ? Cas::disponible : Cas::aJour, .parution = parution});
}

// Who stands between could show an old feed again, signed as it is, and hide what has come since.
void MisesAJour::dater(const Appcast::Flux &flux)
{
    const auto jour = [](const QDateTime &date) { return Format::date(date.toLocalTime().date()); };
    if (flux.expire <= maintenant_())
        throw ErreurMiseAJour::inconnue(
            QStringLiteral("la liste reçue n’est plus valable depuis le %1").arg(jour(flux.expire)));
    if (flux.etabli > maintenant_().addDays(1)) // kept, it would refuse all that come before that day
        throw ErreurMiseAJour::inconnue(
            QStringLiteral("la liste reçue est datée du %1, un jour à venir").arg(jour(flux.etabli)));
    const auto dernier = QDateTime::fromString(preferences_.chercher(dernierFlux).texte, Qt::ISODate);
    if (dernier.isValid() && flux.etabli < dernier)
        throw ErreurMiseAJour::inconnue(
            QStringLiteral("la liste reçue, du %1, est plus ancienne que la dernière, du %2")
                .arg(jour(flux.etabli), jour(dernier)));
    if (flux.etabli != dernier)
        preferences_.ecrire(dernierFlux, flux.etabli.toString(Qt::ISODate));
}

void MisesAJour::telecharger()
{
    if (etat_.cas != Cas::disponible)
        return;
    const QDir dossier(source_.cache.filePath(QStringLiteral("mises-a-jour")));
    paquet_ = std::make_unique<TelechargementPaquet>(*etat_.parution, dossier);
    connect(paquet_.get(), &TelechargementPaquet::pret, this, &MisesAJour::installer);
    connect(paquet_.get(), &TelechargementPaquet::echoue, this, &MisesAJour::echouer);
    // Queued: whoever hears of the change may give the package up.
    const auto avancer = [this](qint64 octets) {
        etat_.octets = octets;
        emit change();
    };
    connect(paquet_.get(), &TelechargementPaquet::progresse, paquet_.get(), avancer, Qt::QueuedConnection);
    try {
        paquet_->commencer();
    } catch (const ErreurStockage &erreur) {
        return echouer(erreur.texte());
    }
    passerA({.cas = Cas::telechargement, .parution = etat_.parution});
}

void MisesAJour::installer(const QString &chemin)
{
    if (source_.installer(chemin))
        return passerA({.cas = Cas::pret, .parution = etat_.parution, .chemin = chemin});
    echouer(QStringLiteral("Aucun programme n’a pu ouvrir la mise à jour. Elle est prête : %1.")
                .arg(QDir::toNativeSeparators(chemin)));
}

void MisesAJour::annuler()
{
    if (etat_.cas == Cas::telechargement)
        passerA({.cas = Cas::disponible, .parution = etat_.parution});
}

void MisesAJour::abandonner()
{
    passerA({});
}

void MisesAJour::echouer(const QString &message)
{
    passerA({.cas = Cas::echec, .message = message});
}

// What the state has no use for is given up, with what it left on the disk.
void MisesAJour::passerA(Etat etat)
{
    etat_ = std::move(etat);
    if (etat_.cas != Cas::recherche)
        recherche_.reset();
    if (etat_.cas != Cas::telechargement)
        paquet_.reset();
    peutVerifier_ = actif_ && !recherche_ && !paquet_;
    emit change();
}

} // namespace Quillet
