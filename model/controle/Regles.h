#pragma once

#include "model/Destination.h"
#include "model/LieuJson.h"
#include "model/Livre.h"
#include "model/Pays.h"
#include "model/Reglages.h"
#include "model/Tarifs.h"

#include <QDir>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

// What the content of each file must keep to, beyond ReglesCommunes: what the program takes for granted, and what would
// go wrong without a word. Each notes its mistakes at their place.
namespace Quillet::Regles {

// Schedules by the name of their file.
using TarifsParFichier = QList<std::pair<QString, TarifsColissimo>>;

// What books name of the other files; an empty list says that there is nothing to compare with.
struct Reperes
{
    QList<CodeDestination> destinations;
    QMap<Cle<Vendeur>, IdentiteVendeur> vendeurs;
    QDir dossierDesCouvertures;
    QHash<QString, QString> couvertures; // its files by name

    [[nodiscard]] std::optional<IdentiteVendeur> identite(Vendeur vendeur) const
    {
        const auto trouvee = vendeurs.find(vendeur);
        return trouvee == vendeurs.end() ? std::nullopt : std::optional(*trouvee);
    }
};

// `precedents`: the schedules of the files before this one.
void tarifs(const TarifsColissimo &tarifs, const TarifsParFichier &precedents, const Json::Lieu &lieu);
void frais(const FraisPaypal &frais, const Json::Lieu &lieu);
// `destinations`: their codes, none when there is nothing to compare with.
void reglages(const Reglages &reglages, const QList<CodeDestination> &destinations, const Json::Lieu &lieu);
void destinations(const QList<Destination> &destinations, const TarifsParFichier &tarifs, const Json::Lieu &lieu);
// `destinations`: their codes, none when there is nothing to compare with.
void pays(const QList<Pays> &pays, const QList<CodeDestination> &destinations, const Json::Lieu &lieu);
void livres(const QList<Livre> &livres, const Reperes &reperes, const Json::Lieu &lieu);
void livre(const Livre &livre, const Reperes &reperes, const Json::Lieu &lieu);

} // namespace Quillet::Regles
