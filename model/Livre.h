#pragma once

#include "model/Destination.h"
#include "model/Json.h"
#include "model/Quantite.h"
#include "model/Vendeur.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QUrl>

#include <optional>

namespace Quillet {

using PrixParDestination = QMap<CodeDestination, Centimes>;

// One printed title that one of the two sellers sells.
struct Livre
{
    qint64 id = 0;
    QString titre;
    QString titreComplet;
    QString auteur;
    Vendeur vendeur = Vendeur::davrel;
    Centimes prix;
    std::optional<Grammes> poids; // none: not weighed yet
    QString isbn;
    qint64 pages = 0;
    QString format;
    QString langue;
    bool disponible = false;
    QString couverture;
    QList<qint64> teinte; // red, green, blue, 0 to 255
    std::optional<QUrl> lienPaypal;
    std::optional<PrixParDestination> prixPaypal;  // what the PayPal buttons charge now
    std::optional<PrixParDestination> prixEcartes; // computed prices the seller chose not to apply

    bool operator==(const Livre &) const = default;
};

// What the user changed of one book, kept apart from the shipped record.
struct ModificationLivre
{
    Centimes prix;
    std::optional<Grammes> poids;
    bool disponible = false;
    std::optional<PrixParDestination> prixPaypal;
    std::optional<PrixParDestination> prixEcartes;

    static ModificationLivre de(const Livre &livre);
    // Replaces everything, except kept prices that this override does not mention.
    void appliquer(Livre &livre) const;

    bool operator==(const ModificationLivre &) const = default;
};

// Overrides by the decimal text of the book's id.
using ModificationsLivres = QMap<Cle<Livre>, ModificationLivre>;

template <>
inline constexpr auto Json::champs<Livre> = std::tuple{
    Champ{"id", &Livre::id},
    Champ{"titre", &Livre::titre},
    Champ{"titreComplet", &Livre::titreComplet},
    Champ{"auteur", &Livre::auteur},
    Champ{"vendeur", &Livre::vendeur},
    Champ{"prix", &Livre::prix},
    Champ{"poids", &Livre::poids},
    Champ{"isbn", &Livre::isbn},
    Champ{"pages", &Livre::pages},
    Champ{"format", &Livre::format},
    Champ{"langue", &Livre::langue},
    Champ{"disponible", &Livre::disponible},
    Champ{"couverture", &Livre::couverture},
    Champ{"teinte", &Livre::teinte},
    Champ{"lienPaypal", &Livre::lienPaypal},
    Champ{"prixPaypal", &Livre::prixPaypal},
    Champ{"prixEcartes", &Livre::prixEcartes},
};

namespace Json {

// Each is the sum of two: a book and its postage.
void lire(const QJsonValue &json, const Lieu &lieu, PrixParDestination &prix);
// Refuses a tint that is no colour: nothing could be painted in place of a missing cover.
void lire(const QJsonValue &json, const Lieu &lieu, Livre &livre);

} // namespace Json

template <>
inline constexpr auto Json::champs<ModificationLivre> = std::tuple{
    Champ{"prix", &ModificationLivre::prix},
    Champ{"poids", &ModificationLivre::poids},
    Champ{"disponible", &ModificationLivre::disponible},
    Champ{"prixPaypal", &ModificationLivre::prixPaypal},
    Champ{"prixEcartes", &ModificationLivre::prixEcartes},
};

} // namespace Quillet
