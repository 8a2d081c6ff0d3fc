#include "echanges/RapprochementDeListe.h"

#include "echanges/ColonneDeListe.h"

namespace Quillet {

RapprochementDeListe::RapprochementDeListe(const QList<Livre> &livres) : livres_(livres)
{
    for (qsizetype rang = 0; rang < livres.size(); ++rang) {
        const Livre &livre = livres[rang];
        ids_.insert(livre.id, rang);
        isbn_[cleIsbn(livre.isbn)].append(rang);
        titresEtAuteurs_[cleTitre(livre.titre, livre.auteur)].append(rang);
        titres_[cleTitre(livre.titre, {})].append(rang);
    }
}

QString RapprochementDeListe::cleIsbn(const QString &isbn)
{
    return ColonnesDeListe::cle(isbn);
}

QString RapprochementDeListe::cleTitre(const QString &titre, const QString &auteur)
{
    return ColonnesDeListe::cle(titre) + u'\n' + ColonnesDeListe::cle(auteur);
}

RapprochementDeListe::Resultat RapprochementDeListe::parCle(const QHash<QString, QList<qsizetype>> &rangs,
                                                            const QString &cle, const QString &commun) const
{
    const QList<qsizetype> trouves = rangs.value(cle);
    if (trouves.isEmpty())
        return std::nullopt;
    if (trouves.size() > 1)
        return Doute{QStringLiteral("%1 livres ont %2 : donnez leur numéro.").arg(trouves.size()).arg(commun)};
    return trouves.first();
}

RapprochementDeListe::Resultat RapprochementDeListe::rapprocher(const Indices &indices) const
{
    const QString isbn = cleIsbn(indices.isbn);
    if (const auto rang = ids_.constFind(indices.id); indices.id != 0 && rang != ids_.constEnd()) {
        const Livre &livre = livres_[*rang];
        // Another catalogue numbers its own books: what is known of this one must not become another's.
        const bool autreTitre = !indices.titre.isEmpty() && cleTitre(indices.titre, {}) != cleTitre(livre.titre, {});
        const bool autreIsbn = !isbn.isEmpty() && !livre.isbn.isEmpty() && isbn != cleIsbn(livre.isbn);
        const bool autreAuteur =
            !indices.auteur.isEmpty() && ColonnesDeListe::cle(indices.auteur) != ColonnesDeListe::cle(livre.auteur);
        if (autreTitre && (autreIsbn || autreAuteur))
            return Doute{QStringLiteral("Le livre numéro %1 est « %2 », de %3 : est-ce bien lui ?")
                             .arg(QString::number(livre.id), livre.titre, livre.auteur)};
        return *rang;
    }
    if (!isbn.isEmpty()) {
        const auto resultat = parCle(isbn_, isbn, QStringLiteral("cet ISBN"));
        if (resultat != Resultat{std::nullopt})
            return resultat;
    }
    if (indices.titre.isEmpty())
        return std::nullopt;
    return indices.auteur.isEmpty() ? parCle(titres_, cleTitre(indices.titre, {}), QStringLiteral("ce titre"))
                                    : parCle(titresEtAuteurs_, cleTitre(indices.titre, indices.auteur),
                                             QStringLiteral("ce titre et cet auteur"));
}

} // namespace Quillet
