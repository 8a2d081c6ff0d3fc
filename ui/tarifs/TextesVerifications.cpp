#include "ui/tarifs/TextesVerifications.h"

#include "model/Format.h"
#include "ui/tarifs/TextesTarifs.h"

namespace {

using TextesVerifications::Ligne;
using Cas = Verifications::Etat::Cas;

const QString siteLaPoste = QStringLiteral("laposte.fr");
const QString sitePaypal = QStringLiteral("paypal.com");

// Where the check stands; `trouve` is what a change reads.
void direLEtat(Ligne &ligne, const Verifications::Etat &etat, const std::optional<QDateTime> &verifie, bool perime,
               const QString &trouve)
{
    ligne.enCours = etat.cas == Cas::enCours;
    ligne.echec = etat.cas == Cas::erreur;
    ligne.changement = etat.cas == Cas::changement;
    if (ligne.enCours) {
        ligne.etat = QStringLiteral("Mise à jour en cours…");
    } else if (ligne.echec) {
        ligne.symboleEtat = QStringLiteral("exclamationmark.triangle");
        ligne.etat = etat.message;
    } else if (ligne.changement) {
        ligne.symboleEtat = QStringLiteral("info.circle");
        ligne.etat = trouve;
    } else if (!verifie) {
        ligne.etat = QStringLiteral("Pas encore vérifiés depuis l’app");
    } else {
        ligne.symboleEtat = perime ? QStringLiteral("clock.badge.exclamationmark") : QStringLiteral("checkmark.circle");
        ligne.etat = QStringLiteral("Vérifiés le ") + Format::date(verifie->toLocalTime().date())
                     + (perime ? QStringLiteral(" : à revérifier") : QString());
    }
}

QString prix(const std::optional<Centimes> &montant)
{
    return montant ? Format::euros(*montant) : QStringLiteral("—");
}

QString signe(Centimes difference)
{
    return difference > Centimes{} ? QStringLiteral("+") : QString();
}

QString difference(const EcartTarif &ecart)
{
    if (!ecart.avant)
        return QStringLiteral("nouveau palier");
    if (!ecart.apres)
        return QStringLiteral("palier supprimé");
    const Centimes difference = *ecart.apres - *ecart.avant;
    const QString euros = signe(difference) + Format::euros(difference);
    if (*ecart.avant == Centimes{})
        return euros;
    // Hundredths of a percent, to the nearest; halves away from zero.
    const qint64 base = ecart.avant->valeur();
    const qint64 dixMilliemes = difference.valeur() * 10'000;
    const qint64 taux = (dixMilliemes + (dixMilliemes < 0 ? -base : base) / 2) / base;
    return QStringLiteral("%1 (%2%3)").arg(euros, signe(difference), Format::pourcentage(Taux{taux}));
}

} // namespace

Ligne TextesVerifications::laPoste(const Verifications &verifications, const Catalogue &catalogue, QDate jour)
{
    QString detail = TextesTarifs::enVigueur(catalogue.tarifs(Format::iso(jour)));
    if (const auto suivants = catalogue.tarifsAVenir(jour))
        detail += QStringLiteral(", nouvelle grille au ") + Format::date(suivants->validite);
    Ligne ligne{.symbole = QStringLiteral("shippingbox"),
                .titre = QStringLiteral("Tarifs Colissimo"),
                .detail = detail,
                .page = ReleveColissimo::adresse()};
    direLEtat(ligne, verifications.etatLaPoste(), verifications.verifieLaPoste(), verifications.laPosteAVerifier(),
              QStringLiteral("Nouveaux tarifs sur ") + siteLaPoste);
    return ligne;
}

Ligne TextesVerifications::paypal(const Verifications &verifications, const Catalogue &catalogue)
{
    const FraisPaypal &frais = catalogue.reglages().fraisPaypal;
    const QString detail =
        Format::pourcentage(frais.taux) + QStringLiteral(" + ") + Format::euros(frais.fixe)
        + QStringLiteral(" ; Royaume-Uni + ") + Format::pourcentage(frais.supplement(RegionPaypal::royaumeUni))
        + QStringLiteral(", autres pays + ") + Format::pourcentage(frais.supplement(RegionPaypal::autres));
    Ligne ligne{.symbole = QStringLiteral("creditcard"),
                .titre = QStringLiteral("Frais PayPal"),
                .detail = detail,
                .page = RelevePaypal::adresse()};
    direLEtat(ligne, verifications.etatPaypal(), verifications.verifiePaypal(), verifications.paypalAVerifier(),
              QStringLiteral("Frais différents sur ") + sitePaypal);
    return ligne;
}

QString TextesVerifications::veille(const QString &iso)
{
    const QDate jour = QDate::fromString(iso, Qt::ISODate);
    return jour.isValid() ? Format::iso(jour.addDays(-1)) : iso;
}

QList<TextesVerifications::Ecart> TextesVerifications::ecarts(const QList<EcartTarif> &ecarts)
{
    QList<Ecart> textes;
    for (const EcartTarif &ecart : ecarts)
        textes.append({ecart.grille.nomCourt, Format::palier(ecart.jusqua), prix(ecart.avant), prix(ecart.apres),
                       difference(ecart)});
    return textes;
}

QString TextesVerifications::compte(const QList<EcartTarif> &ecarts, const TarifsColissimo &nouveaux)
{
    qsizetype paliers = 0;
    for (const GrilleColissimo &grille : nouveaux.grilles)
        paliers += grille.paliers.size();
    return QStringLiteral("%1 palier%2 sur %3 changent.")
        .arg(QString::number(ecarts.size()), ecarts.size() > 1 ? QStringLiteral("s") : QString(),
             QString::number(paliers));
}

QString TextesVerifications::dates(const TarifsColissimo &nouveaux)
{
    return QStringLiteral("En vigueur à partir du %1 · relevés sur %2 le %3")
        .arg(Format::date(nouveaux.validite), siteLaPoste, Format::date(nouveaux.releve));
}
