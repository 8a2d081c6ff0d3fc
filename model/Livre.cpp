#include "model/Livre.h"

namespace Quillet {

void Json::lire(const QJsonValue &json, const Lieu &lieu, PrixParDestination &prix)
{
    lireTable(json, lieu, prix,
              [](const QJsonValue &entree, const Lieu &place, Centimes &lu) { lire(entree, place, lu, 2); });
}

void Json::lire(const QJsonValue &json, const Lieu &lieu, Livre &livre)
{
    lire<Livre>(json, lieu, livre);
    if (livre.teinte.size() < 3)
        Lieu(lieu, QStringLiteral("teinte")).refuser(QStringLiteral("trois nombres attendus : rouge, vert, bleu"));
}

ModificationLivre ModificationLivre::de(const Livre &livre)
{
    return {livre.prix, livre.poids, livre.disponible, livre.prixPaypal, livre.prixEcartes};
}

void ModificationLivre::appliquer(Livre &livre) const
{
    livre.prix = prix;
    livre.poids = poids;
    livre.disponible = disponible;
    livre.prixPaypal = prixPaypal;
    if (prixEcartes)
        livre.prixEcartes = prixEcartes;
}

} // namespace Quillet
