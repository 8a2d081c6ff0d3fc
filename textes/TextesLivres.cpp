#include "textes/TextesLivres.h"

#include "model/Format.h"
#include "textes/NomsVendeurs.h"

#include <QStringList>

namespace Quillet {

namespace {

QString vendu(const Livre &livre)
{
    return QStringLiteral("vendu par ") + NomsVendeurs::court(livre.vendeur);
}

} // namespace

QString TextesLivres::nombre(qsizetype livres)
{
    if (livres == 0)
        return QStringLiteral("Aucun livre");
    return livres == 1 ? QStringLiteral("1 livre") : QStringLiteral("%1 livres").arg(livres);
}

QString TextesLivres::fabrication(const Livre &livre)
{
    const QString pages = livre.pages > 1 ? QStringLiteral("%1 pages") : QStringLiteral("%1 page");
    return QStringLiteral("%1 · %2").arg(livre.format, pages.arg(livre.pages));
}

QString TextesLivres::origine(const Livre &livre)
{
    return QStringLiteral("%1 · %2").arg(livre.auteur, vendu(livre));
}

QString TextesLivres::edition(const Livre &livre)
{
    return fabrication(livre) + (livre.isbn.isEmpty() ? QString() : QStringLiteral(" · ISBN ") + livre.isbn);
}

QString TextesLivres::poids(const Livre &livre)
{
    return livre.poids ? Format::poids(*livre.poids) : QStringLiteral("Poids à peser");
}

QString TextesLivres::epuise()
{
    return QStringLiteral("Épuisé");
}

QString TextesLivres::enMots(const Livre &livre)
{
    QStringList mots{livre.titre,  livre.auteur, fabrication(livre),
                     vendu(livre), poids(livre), Format::euros(livre.prix)};
    if (!livre.disponible)
        mots.append(epuise());
    return mots.join(QStringLiteral(", "));
}

} // namespace Quillet
