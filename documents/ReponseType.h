#pragma once

#include "model/Calcul.h"
#include "model/Langue.h"
#include "model/Reglages.h"

#include <QString>
#include <QUrl>

#include <optional>

namespace Quillet {

// The reply to a buyer, and the texts pasted into PayPal's page for creating a payment link.
struct ReponseType
{
    Calcul calcul;
    Langue langue = Langue::francais;
    IdentiteVendeur vendeur; // signs the message
    QString lien;            // payment link as pasted; may be empty
    QString pays;            // delivery country as typed; may be empty

    // None unless `vendeurUnique` finds who answers.
    static std::optional<ReponseType> de(const Calcul &calcul, const Reglages &reglages, const BonDeCommande &bon,
                                         const QString &lien = {});
    static QUrl creationDuLien();
    // Stands in the message until a link is pasted.
    static QString placeDuLien(Langue langue);

    [[nodiscard]] QString sujet() const;
    [[nodiscard]] QString corps() const;
    [[nodiscard]] QString ligneTotal() const; // stands as it is in `corps`
    [[nodiscard]] QString nomDeLObjet() const;
    [[nodiscard]] QString descriptionDuLien() const;
};

// The language chosen for the buyer or, until one is chosen, the destination's own.
Langue langueAcheteur(const BonDeCommande &bon, const std::optional<Destination> &destination);

} // namespace Quillet
