#include "model/Tarifs.h"

#include <algorithm>
#include <numeric>

namespace Quillet {

std::optional<Palier> GrilleColissimo::palier(Grammes poids) const
{
    const auto trouve = std::ranges::find_if(paliers, [&](const Palier &palier) { return palier.jusqua >= poids; });
    return trouve == paliers.end() ? std::nullopt : std::optional(*trouve);
}

std::optional<QString> GrilleColissimo::pays() const
{
    const QString prefixe = nomCourt + QStringLiteral(" : ");
    const QString reste = nom.startsWith(prefixe) ? nom.mid(prefixe.size()) : nom;
    return reste == nomCourt ? std::nullopt : std::optional(reste);
}

void Json::lire(const QJsonValue &json, const Lieu &lieu, TarifsColissimo &valeur)
{
    lire<TarifsColissimo>(json, lieu, valeur);
    if (const qsizetype nombre = valeur.nombreDePaliers(); nombre > TarifsColissimo::paliersMaximaux)
        lieu.refuser(QStringLiteral("%1 paliers, plus qu’un tarif n’en compte").arg(nombre));
}

qsizetype TarifsColissimo::nombreDePaliers() const
{
    const auto ajouter = [](qsizetype nombre, const GrilleColissimo &grille) { return nombre + grille.paliers.size(); };
    return std::accumulate(grilles.begin(), grilles.end(), qsizetype{0}, ajouter);
}

const GrilleColissimo *TarifsColissimo::grille(const CodeGrille &code) const
{
    const auto trouvee = std::ranges::find(grilles, code, &GrilleColissimo::code);
    return trouvee == grilles.end() ? nullptr : &*trouvee;
}

QString TarifsColissimo::nomDeFichier() const
{
    return QStringLiteral("tarifs-colissimo-%1.json").arg(validite.texte());
}

QString TarifsColissimo::motifDeFichier()
{
    return QStringLiteral("tarifs-colissimo-*.json");
}

} // namespace Quillet
