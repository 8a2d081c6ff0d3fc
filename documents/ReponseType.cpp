#include "documents/ReponseType.h"

#include "documents/VendeurUnique.h"
#include "model/Format.h"

namespace Quillet {

namespace {

// Everything the message says, in one language.
struct Phrases
{
    QString sujet;
    QString salutation;
    QString envoi;
    QString deuxPoints; // French sets a space before a colon
    QString total;
    QString invitation;
    QString lienAbsent;
    QString paiement;
    QString douane;
    QString conge;
    QString prixComprend;
};

const Phrases &phrases(Langue langue)
{
    static const Phrases francais{
        .sujet = QStringLiteral("Votre commande de livres – "),
        .salutation = QStringLiteral("Bonjour,\n\nMerci pour votre commande :\n\n"),
        .envoi = QStringLiteral("Envoi via Colissimo ("),
        .deuxPoints = QStringLiteral(" : "),
        .total = QStringLiteral("Total à payer (livres + envoi) : "),
        .invitation = QStringLiteral("\n\nPour régler, ouvrez ce lien : "),
        .lienAbsent = QStringLiteral("[lien]"),
        .paiement =
            QStringLiteral("\n\nVous pouvez payer avec un compte PayPal, par Apple Pay ou par carte bancaire.\n"
                           "Indiquez sur la page PayPal l’adresse où envoyer le colis.\n\n"
                           "Le paquet part dès réception du paiement sous 2 jours ouvrés avec un numéro de suivi.\n"),
        .douane = QStringLiteral("\nLe colis passe en douane : des taxes d’importation peuvent vous être demandées "
                                 "à la livraison.\n"),
        .conge = QStringLiteral("\nBien cordialement,\n\n"),
        .prixComprend = QStringLiteral("Le prix comprend les livres et l’envoi vers "),
    };
    static const Phrases anglais{
        .sujet = QStringLiteral("Your book order – "),
        .salutation = QStringLiteral("Hello,\n\nThank you for your order:\n\n"),
        .envoi = QStringLiteral("Shipping via Colissimo ("),
        .deuxPoints = QStringLiteral(": "),
        .total = QStringLiteral("Total to pay (books + shipping): "),
        .invitation = QStringLiteral("\n\nTo pay, please open this link: "),
        .lienAbsent = QStringLiteral("[link]"),
        .paiement = QStringLiteral("\n\nYou can pay with a PayPal account, Apple Pay or a card.\n"
                                   "Please give the address the parcel should be sent to on the PayPal page.\n\n"
                                   "The parcel is sent within 2 working days of payment, with a tracking number.\n"),
        .douane = QStringLiteral("\nThe parcel goes through customs: import duties or taxes may be charged on "
                                 "delivery.\n"),
        .conge = QStringLiteral("\nBest regards,\n\n"),
        .prixComprend = QStringLiteral("Price includes books and shipping to "),
    };
    switch (langue) {
    case Langue::francais:
        return francais;
    case Langue::anglais:
        return anglais;
    }
    Q_UNREACHABLE();
}

QString libelleCourt(const std::optional<Destination> &destination, Langue langue)
{
    return destination ? destination->libelleCourtEnLangue(langue) : QString();
}

} // namespace

QUrl ReponseType::creationDuLien()
{
    return QUrl(QStringLiteral("https://www.paypal.com/ncp/links/create"));
}

QString ReponseType::placeDuLien(Langue langue)
{
    return phrases(langue).lienAbsent;
}

QString ReponseType::sujet() const
{
    const bool unSeulVendeur = calcul.vendeurs().size() == 1;
    const QString site = unSeulVendeur ? vendeur.site.value_or(vendeur.nom) : vendeur.nom;
    return phrases(langue).sujet + site;
}

QString ReponseType::ligneTotal() const
{
    return phrases(langue).total + Format::euros(calcul.total, langue);
}

QString ReponseType::corps() const
{
    const Phrases &mots = phrases(langue);
    const QString puce = QStringLiteral("   • ");

    QStringList livres;
    for (const Calcul::Ligne &ligne : calcul.lignes)
        livres.append(puce + ligne.livre.titre + QStringLiteral(" × ") + QString::number(ligne.quantite)
                      + mots.deuxPoints + Format::euros(ligne.montant(), langue));
    const QString lienOuPlace = lien.trimmed().isEmpty() ? mots.lienAbsent : lien.trimmed();

    return mots.salutation + livres.join(u'\n') + u'\n' + puce + mots.envoi + libelleCourt(calcul.destination, langue)
           + u')' + mots.deuxPoints + Format::euros(calcul.envoi, langue) + QStringLiteral("\n\n") + ligneTotal()
           + mots.invitation + lienOuPlace + mots.paiement + (calcul.douaneRequise ? mots.douane : QString())
           + mots.conge + vendeur.nom;
}

QString ReponseType::nomDeLObjet() const
{
    const int nombre = calcul.nombreDeLivres();
    return vendeur.nom + QStringLiteral(" – ") + QString::number(nombre)
           + (nombre > 1 ? QStringLiteral(" books") : QStringLiteral(" book"));
}

QString ReponseType::descriptionDuLien() const
{
    QStringList livres;
    for (const Calcul::Ligne &ligne : calcul.lignes)
        livres.append(ligne.livre.titre
                      + (ligne.quantite > 1 ? QStringLiteral(" × ") + QString::number(ligne.quantite) : QString()));
    const QString vers = pays.trimmed().isEmpty() ? libelleCourt(calcul.destination, langue) : pays;
    return livres.join(u'\n') + QStringLiteral("\n\n") + phrases(langue).prixComprend + vers + u'.';
}

Langue langueAcheteur(const BonDeCommande &bon, const std::optional<Destination> &destination)
{
    if (bon.langue)
        return *bon.langue;
    static const QList<CodeDestination> francophones{CodeDestination(QStringLiteral("france")),
                                                     CodeDestination(QStringLiteral("om1")),
                                                     CodeDestination(QStringLiteral("om2"))};
    return !destination || francophones.contains(destination->code) ? Langue::francais : Langue::anglais;
}

std::optional<ReponseType> ReponseType::de(const Calcul &calcul, const Reglages &reglages, const BonDeCommande &bon,
                                           const QString &lien)
{
    const auto vendeur = vendeurUnique(calcul, reglages);
    if (!vendeur)
        return std::nullopt;
    return ReponseType{calcul, langueAcheteur(bon, calcul.destination), *vendeur, lien, bon.paysLivraison};
}

} // namespace Quillet
