#include "model/Reglages.h"

namespace Quillet {

Centimes FraisPaypal::frais(Centimes montant, RegionPaypal region) const
{
    const Taux tauxTotal = taux + supplement(region);
    return (montant * tauxTotal.valeur() + Centimes{5000}) / 10000 + fixe;
}

void Json::lire(const QJsonValue &json, const Lieu &lieu, Emballage &emballage)
{
    const QString cle = QStringLiteral("poids");
    QJsonObject objet = json.toObject();
    const qint64 poids = objet.value(cle).toInteger();
    const bool negatif = -UniteGramme::maximum <= poids && poids < 0;
    if (negatif)
        objet.insert(cle, 0);
    lire<Emballage>(json.isObject() ? objet : json, lieu, emballage);
    if (!negatif)
        return;
    emballage.poids = Grammes{poids};
    if (lieu.collecte())
        Lieu(lieu, cle).noter(QStringLiteral("nombre négatif, une commande le compte comme 0 g"));
}

std::optional<IdentiteVendeur> Reglages::identite(Vendeur vendeur) const
{
    const auto trouvee = vendeurs.find(vendeur);
    return trouvee == vendeurs.end() ? std::nullopt : std::optional(*trouvee);
}

} // namespace Quillet
