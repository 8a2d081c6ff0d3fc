#include "textes/TextesLivres.h"

#include "model/Format.h"
#include "textes/NomsVendeurs.h"

#include <QStringList>

namespace Quillet {

QString TextesLivres::vendu(Vendeur vendeur, const Donnees &donnees)
{
    return donnees.vendeurs().size() > 1 ? QStringLiteral("vendu par ") + NomsVendeurs::court(vendeur, donnees)
                                         : QString();
}

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

QString TextesLivres::origine(const Livre &livre, const Donnees &donnees)
{
    const QString vendeur = vendu(livre.vendeur, donnees);
    return vendeur.isEmpty() ? livre.auteur : QStringLiteral("%1 · %2").arg(livre.auteur, vendeur);
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

QString TextesLivres::sansLivre(const Donnees &donnees)
{
    return donnees.vendeurs().size() > 1 ? QStringLiteral("Le catalogue n’a pas de livre de ce vendeur.")
                                         : QStringLiteral("Le catalogue n’a pas encore de livre.");
}

QString TextesLivres::enMots(const Livre &livre, const QString &vendu)
{
    QStringList mots{livre.titre, livre.auteur, fabrication(livre)};
    if (!vendu.isEmpty())
        mots.append(vendu);
    mots += {poids(livre), Format::euros(livre.prix)};
    if (!livre.disponible)
        mots.append(epuise());
    return mots.join(QStringLiteral(", "));
}

} // namespace Quillet
