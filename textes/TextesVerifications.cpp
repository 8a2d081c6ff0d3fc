#include "textes/TextesVerifications.h"

#include "model/Format.h"
#include "textes/TextesFrais.h"
#include "textes/TextesTarifs.h"

namespace Quillet {

namespace {

using TextesVerifications::Ligne;
using Cas = Verifications::Etat::Cas;

const QString siteLaPoste = QStringLiteral("laposte.fr");
const QString sitePaypal = QStringLiteral("paypal.com");

// How far the last success can be trusted.
enum class Age { recent, perime, aVenir };

Age age(const Verifications &verifications, const std::optional<QDateTime> &verifie, bool perime)
{
    if (verifications.aVenir(verifie))
        return Age::aVenir;
    return perime ? Age::perime : Age::recent;
}

QString reserve(Age age)
{
    switch (age) {
    case Age::recent:
        break;
    case Age::perime:
        return QStringLiteral(" : à revérifier");
    case Age::aVenir:
        return QStringLiteral(", une date à venir : l’horloge a changé");
    }
    return {};
}

Ligne::Etat dernierSucces(const std::optional<QDateTime> &verifie, Age age)
{
    if (!verifie)
        return {.symbole = {}, .texte = QStringLiteral("Pas encore vérifiés depuis l’app")};
    const bool perime = age == Age::perime;
    return {.symbole = perime ? QStringLiteral("clock.badge.exclamationmark") : QStringLiteral("checkmark.circle"),
            .texte = QStringLiteral("Vérifiés le ") + Format::date(verifie->toLocalTime().date()) + reserve(age),
            .ton = perime ? Ligne::Ton::alerte : Ligne::Ton::neutre};
}

// Where the check stands; `changement` is what a change reads.
void direLEtat(Ligne &ligne, const Verifications::Etat &etat, const std::optional<QDateTime> &verifie, Age age,
               const QString &changement)
{
    ligne.cas = etat.cas;
    if (etat.cas == Cas::enCours) {
        ligne.etat.texte = QStringLiteral("Mise à jour en cours…");
    } else if (etat.cas == Cas::erreur) {
        ligne.etat = {QStringLiteral("exclamationmark.triangle"), etat.message, Ligne::Ton::alerte};
        if (age == Age::perime)
            ligne.rappel = dernierSucces(verifie, age);
    } else if (etat.cas == Cas::changement) {
        ligne.etat = {QStringLiteral("info.circle"), changement, Ligne::Ton::accent};
    } else {
        ligne.etat = dernierSucces(verifie, age);
    }
}

QString difference(const EcartTarif &ecart)
{
    if (!ecart.avant)
        return QStringLiteral("nouveau palier");
    if (!ecart.apres)
        return QStringLiteral("palier supprimé");
    return Format::ecart(*ecart.apres - *ecart.avant);
}

QString variation(const EcartTarif &ecart)
{
    const auto taux = ecart.variation();
    if (!taux)
        return {};
    return (*taux > Taux{} ? QStringLiteral("+") : QString()) + Format::pourcentage(*taux);
}

} // namespace

QString TextesVerifications::rythme()
{
    return QStringLiteral("Vérifiés d’eux-mêmes au lancement de l’app, une fois par semaine. Rien ne change sans votre "
                          "accord.");
}

Ligne TextesVerifications::laPoste(const Verifications &verifications, const Donnees &donnees, QDate jour)
{
    QString detail = TextesTarifs::enVigueur(donnees.tarifs(jour));
    if (const auto suivants = donnees.tarifsAVenir(jour))
        detail += QStringLiteral(", nouvelle grille au ") + Format::date(suivants->validite);
    Ligne ligne{.symbole = QStringLiteral("shippingbox"),
                .titre = QStringLiteral("Tarifs Colissimo"),
                .detail = detail,
                .trouvaille = verifications.nouveauxTarifs().has_value(),
                .page = ReleveColissimo::adresse()};
    direLEtat(ligne, verifications.etatLaPoste(), verifications.verifieLaPoste(),
              age(verifications, verifications.verifieLaPoste(), verifications.laPosteAVerifier()),
              QStringLiteral("Nouveaux tarifs sur ") + siteLaPoste);
    return ligne;
}

Ligne TextesVerifications::paypal(const Verifications &verifications, const Donnees &donnees)
{
    const FraisPaypal &frais = donnees.reglages.fraisPaypal;
    const QString detail = TextesFrais::formule(frais.taux, frais.fixe) + QStringLiteral(" ; Royaume-Uni + ")
                           + Format::pourcentage(frais.supplement(RegionPaypal::royaumeUni))
                           + QStringLiteral(", autres pays + ")
                           + Format::pourcentage(frais.supplement(RegionPaypal::autres));
    Ligne ligne{.symbole = QStringLiteral("creditcard"),
                .titre = QStringLiteral("Frais PayPal"),
                .detail = detail,
                .trouvaille = verifications.nouveauxFrais().has_value(),
                .page = RelevePaypal::adresse()};
    direLEtat(ligne, verifications.etatPaypal(), verifications.verifiePaypal(),
              age(verifications, verifications.verifiePaypal(), verifications.paypalAVerifier()),
              QStringLiteral("Frais différents sur ") + sitePaypal);
    return ligne;
}

QList<TextesVerifications::Ecart> TextesVerifications::ecarts(const QList<EcartTarif> &ecarts)
{
    QList<Ecart> textes;
    for (const EcartTarif &ecart : ecarts)
        textes.append({ecart.grille.nomCourt, Format::palier(ecart.jusqua), Format::euros(ecart.avant),
                       Format::euros(ecart.apres), difference(ecart), variation(ecart)});
    return textes;
}

QString TextesVerifications::compte(const QList<EcartTarif> &ecarts, const TarifsColissimo &nouveaux)
{
    return QStringLiteral("%1 palier%2 sur %3 changent.")
        .arg(QString::number(ecarts.size()), ecarts.size() > 1 ? QStringLiteral("s") : QString(),
             QString::number(nouveaux.nombreDePaliers()));
}

QString TextesVerifications::dates(const TarifsColissimo &nouveaux)
{
    return QStringLiteral("En vigueur à partir du %1 · relevés sur %2 le %3")
        .arg(Format::date(nouveaux.validite), siteLaPoste, Format::date(nouveaux.releve));
}

} // namespace Quillet
