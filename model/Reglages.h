#pragma once

#include "model/Destination.h"
#include "model/Quantite.h"
#include "model/Vendeur.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QUrl>

#include <optional>

namespace Quillet {

// PayPal's fees for receiving a payment.
struct FraisPaypal
{
    Jour releve; // day on which it was read
    QUrl source;
    Taux taux;
    Centimes fixe;
    QMap<Cle<RegionPaypal>, Taux> supplements; // no entry: no extra rate

    // Zero when the region has no entry.
    [[nodiscard]] Taux supplement(RegionPaypal region) const { return supplements.value(region); }
    // Fee of one payment, its proportional part rounded to the nearest cent, halves upward.
    [[nodiscard]] Centimes frais(Centimes montant, RegionPaypal region) const;

    bool operator==(const FraisPaypal &) const = default;
};

struct Emballage
{
    QString nom;
    Grammes poids;

    bool operator==(const Emballage &) const = default;
};

// Wording of customs declarations.
struct MentionsDouane
{
    QString contenuFr;
    QString contenuEn;
    QString codeSH;                                                    // Harmonized System code of printed books
    std::optional<QMap<CodeDestination, QString>> codesParDestination; // where more digits are wanted

    bool operator==(const MentionsDouane &) const = default;
};

// What a seller's documents say of the seller.
struct IdentiteVendeur
{
    QString nom;
    QStringList adresse; // one printed line each
    std::optional<QString> siret;
    QString mentionTva;
    std::optional<QString> retourPaypal; // where PayPal sends the buyer back to
    std::optional<QString> site;         // host name of the seller's web site
    std::optional<QString> nomCourt;     // on the screens; none: the place's
    std::optional<QString> eori;         // number by which customs know the seller

    bool operator==(const IdentiteVendeur &) const = default;
};

struct Reglages
{
    FraisPaypal fraisPaypal;
    QList<Emballage> emballages; // the first counts in the prices of PayPal buttons
    MentionsDouane douane;
    QMap<Cle<Vendeur>, IdentiteVendeur> vendeurs;
    std::optional<QString> emballageDeDepart; // name of the one that a new order starts with

    [[nodiscard]] std::optional<IdentiteVendeur> identite(Vendeur vendeur) const;

    bool operator==(const Reglages &) const = default;
};

template <>
inline constexpr auto Json::champs<FraisPaypal> = std::tuple{
    Champ{"releve", &FraisPaypal::releve},
    Champ{"source", &FraisPaypal::source},
    Champ{"taux", &FraisPaypal::taux},
    Champ{"fixe", &FraisPaypal::fixe},
    Champ{"supplements", &FraisPaypal::supplements},
};

template <>
inline constexpr auto Json::champs<Emballage> = std::tuple{
    Champ{"nom", &Emballage::nom},
    Champ{"poids", &Emballage::poids},
};

namespace Json {

// A weight below zero stops nothing: an order counts it as none.
void lire(const QJsonValue &json, const Lieu &lieu, Emballage &emballage);

} // namespace Json

template <>
inline constexpr auto Json::champs<MentionsDouane> = std::tuple{
    Champ{"contenuFr", &MentionsDouane::contenuFr},
    Champ{"contenuEn", &MentionsDouane::contenuEn},
    Champ{"codeSH", &MentionsDouane::codeSH},
    Champ{"codesParDestination", &MentionsDouane::codesParDestination},
};

template <>
inline constexpr auto Json::champs<IdentiteVendeur> = std::tuple{
    Champ{"nom", &IdentiteVendeur::nom},
    Champ{"adresse", &IdentiteVendeur::adresse},
    Champ{"siret", &IdentiteVendeur::siret},
    Champ{"mentionTva", &IdentiteVendeur::mentionTva},
    Champ{"retourPaypal", &IdentiteVendeur::retourPaypal},
    Champ{"site", &IdentiteVendeur::site},
    Champ{"nomCourt", &IdentiteVendeur::nomCourt},
    Champ{"eori", &IdentiteVendeur::eori},
};

template <>
inline constexpr auto Json::champs<Reglages> = std::tuple{
    Champ{"fraisPaypal", &Reglages::fraisPaypal},
    Champ{"emballages", &Reglages::emballages},
    Champ{"douane", &Reglages::douane},
    Champ{"vendeurs", &Reglages::vendeurs},
    Champ{"emballageDeDepart", &Reglages::emballageDeDepart},
};

} // namespace Quillet
