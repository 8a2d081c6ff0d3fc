#include "echanges/Comparaison.h"

#include "documents/NumerotationFactures.h"

#include <tuple>

namespace Quillet {

namespace {

template <typename T>
QStringList clesChangees(const T &ici, const T &la)
{
    QStringList cles;
    const auto comparer = [&](const auto &champ) {
        if (ici.*champ.membre != la.*champ.membre)
            cles.append(QString::fromLatin1(champ.cle));
    };
    std::apply([&](const auto &...champ) { (comparer(champ), ...); }, Json::champs<T>);
    return cles;
}

template <typename Cle, typename T>
using Table = QList<std::pair<Cle, T>>;

template <typename T, typename Lecture>
auto table(const QList<T> &valeurs, Lecture cle)
{
    Table<std::decay_t<decltype(std::invoke(cle, valeurs[0]))>, T> table;
    for (const T &valeur : valeurs)
        table.append({std::invoke(cle, valeur), valeur});
    return table;
}

template <typename T, typename Valeur>
Table<T, Valeur> table(const QMap<T, Valeur> &valeurs)
{
    Table<T, Valeur> table;
    for (const auto &[cle, valeur] : valeurs.asKeyValueRange())
        table.append({cle, valeur});
    return table;
}

template <typename Cle, typename T, typename Nom>
Comparaison::Liste comparer(const Table<Cle, T> &ici, const Table<Cle, T> &la, Nom nom)
{
    QHash<Cle, const T *> avant;
    for (const auto &[cle, valeur] : ici)
        avant.insert(cle, &valeur);
    Comparaison::Liste liste;
    for (const auto &[cle, valeur] : la) {
        const T *ancienne = avant.take(cle);
        if (!ancienne)
            liste.ajoutes.append(std::invoke(nom, valeur));
        else if (*ancienne != valeur)
            liste.changes.append({std::invoke(nom, *ancienne), clesChangees(*ancienne, valeur)});
    }
    for (const auto &[cle, valeur] : ici)
        if (avant.contains(cle))
            liste.disparus.append(std::invoke(nom, valeur));
    return liste;
}

QList<qint64> numeros(const QList<Livre> &livres)
{
    QList<qint64> numeros;
    for (const Livre &livre : livres)
        numeros.append(livre.id);
    return numeros;
}

} // namespace

Comparaison Comparaison::de(const Donnees &ici, const Donnees &la)
{
    const auto jour = [](const TarifsColissimo &grilles) { return grilles.validite.texte(); };
    Comparaison comparaison{
        .livres = comparer(table(ici.livres, &Livre::id), table(la.livres, &Livre::id), &Livre::titre),
        .vendeurs = comparer(table(ici.reglages.vendeurs), table(la.reglages.vendeurs), &IdentiteVendeur::nom),
        .emballages = comparer(table(ici.reglages.emballages, &Emballage::nom),
                               table(la.reglages.emballages, &Emballage::nom), &Emballage::nom),
        .tarifs = comparer(table(ici.grillesConnues, jour), table(la.grillesConnues, jour), jour),
        .frais = ici.reglages.fraisPaypal != la.reglages.fraisPaypal,
        .douane = ici.reglages.douane != la.reglages.douane,
        .destinations = ici.destinations != la.destinations || ici.pays != la.pays,
    };
    comparaison.ordre = comparaison.livres.ajoutes.isEmpty() && comparaison.livres.disparus.isEmpty()
                        && numeros(ici.livres) != numeros(la.livres);
    return comparaison;
}

QList<Comparaison::Serie> Comparaison::desSeries(const SeriesFactures &ici, const SeriesFactures &la)
{
    QList<Serie> series;
    for (const Vendeur vendeur : tous<Vendeur>) {
        const QString avant = ici.value(vendeur);
        const QString apres = la.value(vendeur);
        if (!apres.isEmpty() && apres != avant)
            series.append({vendeur, avant, apres, !NumerotationFactures::avance(apres, avant)});
    }
    return series;
}

bool Comparaison::estVide() const
{
    return livres.estVide() && vendeurs.estVide() && emballages.estVide() && tarifs.estVide() && !ordre && !frais
           && !douane && !destinations && series.isEmpty();
}

} // namespace Quillet
