#include "watch/Verifications.h"

#include "model/Format.h"
#include "model/Stockage.h"

#include <utility>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr auto uneSemaine = 604'800s;
constexpr auto troisMois = 7'776'000s;

using Cas = Verifications::Etat::Cas;

bool memesFrais(const FraisPaypal &a, const FraisPaypal &b)
{
    return a.taux == b.taux && a.fixe == b.fixe && a.supplements == b.supplements;
}

} // namespace

Verifications::Verifications(Catalogue &catalogue, Preferences preferences, Maintenant maintenant,
                             const PagesSurveillees &pages)
    : catalogue_(catalogue), preferences_(std::move(preferences)), maintenant_(std::move(maintenant))
{
    preparer(laPoste_, QStringLiteral("verification.laPoste"), pages.laPoste);
    preparer(paypal_, QStringLiteral("verification.paypal"), pages.paypal);
    laPoste_.analyser = [this](const QString &page) -> std::optional<ReleveColissimo> {
        const QDate jour = maintenant_().date();
        const auto releve = ReleveColissimo::analyser(page, catalogue_.donnees().tarifs(jour), jour);
        return catalogue_.donnees().connait(releve.tarifs) ? std::nullopt : std::optional(releve);
    };
    paypal_.analyser = [this](const QString &page) -> std::optional<FraisPaypal> {
        const FraisPaypal frais = RelevePaypal::analyser(page, maintenant_().date());
        return memesFrais(frais, catalogue_.donnees().reglages.fraisPaypal) ? std::nullopt : std::optional(frais);
    };
}

bool Verifications::aVenir(const std::optional<QDateTime> &verifie) const
{
    return verifie && verifie->toLocalTime().date() > maintenant_().toLocalTime().date();
}

int Verifications::nombreASignaler() const
{
    return static_cast<int>(laPoste_.nouveau || laPosteAVerifier())
           + static_cast<int>(paypal_.nouveau || paypalAVerifier());
}

void Verifications::verifierSiNecessaire()
{
    const auto puisPaypal = [this] {
        if (plusVieuxQue(paypal_.verifie, uneSemaine))
            verifierPaypal();
    };
    if (laPoste_.etat.cas == Cas::enCours || !plusVieuxQue(laPoste_.verifie, uneSemaine)) {
        puisPaypal();
        return;
    }
    laPoste_.suite = puisPaypal;
    verifierLaPoste();
}

void Verifications::verifierLaPoste()
{
    lancer(laPoste_);
}

void Verifications::verifierPaypal()
{
    lancer(paypal_);
}

void Verifications::accepterTarifs()
{
    if (!laPoste_.nouveau)
        return;
    catalogue_.enregistrer(laPoste_.nouveau->tarifs);
    accepter(laPoste_);
}

void Verifications::accepterFrais()
{
    if (!paypal_.nouveau)
        return;
    // Its reading refuses none, its file would not be read again.
    if (!Taux::bornee(paypal_.nouveau->supplement(RegionPaypal::eee).valeur()))
        throw ErreurStockage(Stockage::fichierDesFrais(),
                             QStringLiteral("supplément EEE au-delà de ")
                                 + Format::pourcentage(Taux{UniteCentiemeDePourcent::maximum}));
    catalogue_.enregistrer(*paypal_.nouveau);
    accepter(paypal_);
}

template <typename Releve>
void Verifications::preparer(Controle<Releve> &controle, const QString &cle, const QUrl &adresse)
{
    controle.cle = cle;
    controle.adresse = adresse;
    controle.verifie = lire(cle);
    connect(&controle.telechargement, &Telechargement::lue, this,
            [this, &controle](const QString &page) { recevoir(controle, page); });
    const auto echouer = [this, &controle](const ErreurReleve &erreur) {
        conclure(controle, {Cas::erreur, erreur.texte()});
    };
    connect(&controle.telechargement, &Telechargement::echouee, this, echouer);
}

template <typename Releve>
void Verifications::lancer(Controle<Releve> &controle)
{
    if (controle.etat.cas == Cas::enCours)
        return;
    controle.etat = {Cas::enCours, {}};
    controle.telechargement.page(controle.adresse);
    emit change();
}

template <typename Releve>
void Verifications::recevoir(Controle<Releve> &controle, const QString &page)
{
    Etat etat;
    try {
        controle.nouveau = controle.analyser(page);
        controle.verifie = maintenant_();
        noter(controle.cle, *controle.verifie);
        etat.cas = controle.nouveau ? Cas::changement : Cas::aJour;
    } catch (const ErreurReleve &erreur) {
        etat = {Cas::erreur, erreur.texte()};
    }
    conclure(controle, etat);
}

template <typename Releve>
void Verifications::conclure(Controle<Releve> &controle, const Etat &etat)
{
    controle.etat = etat;
    emit change();
    if (const auto suite = std::exchange(controle.suite, nullptr))
        suite();
}

template <typename Releve>
void Verifications::accepter(Controle<Releve> &controle)
{
    controle.nouveau.reset();
    controle.etat = {Cas::aJour, {}};
    emit change();
}

// A success that cannot be written down counts for this run of the program: the next one checks again.
void Verifications::noter(const QString &cle, const QDateTime &date)
{
    try {
        preferences_.ecrire(cle, date.toUTC().toString(Qt::ISODate));
    } catch (const ErreurStockage &erreur) {
        qWarning("%s", erreur.what());
    }
}

std::optional<QDateTime> Verifications::lire(const QString &cle) const
{
    const QDateTime date = QDateTime::fromString(preferences_.texte(cle), Qt::ISODate);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

bool Verifications::plusVieuxQue(const std::optional<QDateTime> &date, std::chrono::seconds duree) const
{
    return !date || date->msecsTo(maintenant_()) > std::chrono::milliseconds(duree).count();
}

bool Verifications::perime(const std::optional<QDateTime> &date) const
{
    return plusVieuxQue(date, troisMois);
}

} // namespace Quillet
