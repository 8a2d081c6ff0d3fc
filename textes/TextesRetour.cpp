#include "textes/TextesRetour.h"

#include "model/Format.h"
#include "textes/TextesLivres.h"

#include <algorithm>

namespace Quillet {

namespace {

constexpr qsizetype livresNommes = 8;

// How many entries one map has otherwise than the other.
qsizetype differences(const std::optional<PrixParDestination> &a, const std::optional<PrixParDestination> &b)
{
    const PrixParDestination gauche = a.value_or(PrixParDestination());
    const PrixParDestination droite = b.value_or(PrixParDestination());
    qsizetype differentes = 0;
    for (const auto &[code, prix] : gauche.asKeyValueRange())
        differentes += droite.contains(code) && droite.value(code) == prix ? 0 : 1;
    for (const CodeDestination &code : droite.keys())
        differentes += gauche.contains(code) ? 0 : 1;
    return differentes;
}

QString compte(qsizetype nombre, const QString &un, const QString &plusieurs)
{
    return nombre == 1 ? un : plusieurs.arg(nombre);
}

// Empty when the two are alike.
QString perte(const Livre &actuel, const Livre &livre)
{
    QStringList pertes;
    if (actuel.prix != livre.prix)
        pertes.append(Format::euros(actuel.prix));
    if (actuel.poids != livre.poids)
        pertes.append(TextesLivres::poids(actuel));
    if (actuel.disponible != livre.disponible)
        pertes.append(actuel.disponible ? QStringLiteral("Disponible") : TextesLivres::epuise());
    if (const auto boutons = differences(actuel.prixPaypal, livre.prixPaypal); boutons > 0)
        pertes.append(compte(boutons, QStringLiteral("1 prix reporté"), QStringLiteral("%1 prix reportés")));
    if (const auto gardes = differences(actuel.prixEcartes, livre.prixEcartes); gardes > 0)
        pertes.append(compte(gardes, QStringLiteral("1 prix gardé"), QStringLiteral("%1 prix gardés")));
    return pertes.isEmpty() ? QString()
                            : QStringLiteral("%1 : %2").arg(actuel.titre, pertes.join(QStringLiteral(", ")));
}

} // namespace

QStringList TextesRetour::pertes(const QList<Livre> &actuels, const QList<Livre> &livres)
{
    QStringList pertes;
    for (const Livre &actuel : actuels) {
        const auto livre = std::ranges::find(livres, actuel.id, &Livre::id);
        if (livre == livres.end())
            continue;
        if (const QString perdu = perte(actuel, *livre); !perdu.isEmpty())
            pertes.append(perdu);
    }
    if (const qsizetype autres = pertes.size() - livresNommes; autres > 0) {
        pertes.resize(livresNommes);
        pertes.append(compte(autres, QStringLiteral("et 1 autre livre"), QStringLiteral("et %1 autres livres")));
    }
    return pertes;
}

} // namespace Quillet
