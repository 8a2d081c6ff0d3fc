#include "model/Tarifs.h"

#include <algorithm>

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
