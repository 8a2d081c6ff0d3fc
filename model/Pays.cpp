#include "model/Pays.h"

#include <algorithm>

namespace Quillet {

namespace {

QString sansArticle(const QString &libelle)
{
    for (const QString &article : {QStringLiteral("la "), QStringLiteral("le "), QStringLiteral("les "),
                                   QStringLiteral("l’"), QStringLiteral("the ")})
        if (libelle.startsWith(article) && libelle.size() > article.size()) {
            QString nom = libelle.sliced(article.size());
            nom[0] = nom[0].toUpper();
            return nom;
        }
    return libelle;
}

} // namespace

QString Pays::nom() const
{
    return sansArticle(libelleFr);
}

QStringList Pays::noms() const
{
    return QStringList{nom(), libelleFr, sansArticle(libelleEn), libelleEn} + autresNoms.value_or(QStringList());
}

std::optional<Pays> Pays::designe(const QList<Pays> &pays, const QString &libelle)
{
    const auto lePorte = [&](const Pays &un) { return un.libelleFr == libelle || un.libelleEn == libelle; };
    const auto trouve = libelle.isEmpty() ? pays.end() : std::ranges::find_if(pays, lePorte);
    return trouve == pays.end() ? std::nullopt : std::optional(*trouve);
}

} // namespace Quillet
