#include "echanges/ListeDeLivres.h"

#include "echanges/CelluleDeListe.h"
#include "echanges/RapprochementDeListe.h"
#include "echanges/TableCsv.h"
#include "model/Echec.h"
#include "model/EditionLivres.h"
#include "model/controle/Objections.h"

#include <algorithm>
#include <utility>

namespace Quillet {

namespace {

using Sort = RangeeDeListe::Sort;

QString nomDe(const QString &champ)
{
    const auto colonne = depuisBrut<ColonneDeListe>(champ);
    return colonne ? traits(*colonne).nom.toString() : champ;
}

QString phrase(const QString &colonne, const QString &raison)
{
    return QStringLiteral("%1 : %2").arg(colonne, raison.endsWith(u'.') ? raison : raison + u'.');
}

QList<ListeDeLivres::Tete> reconnues(const QStringList &noms)
{
    QList<ListeDeLivres::Tete> tetes;
    for (const QString &nom : noms) {
        auto colonne = ColonnesDeListe::trouvee(nom);
        const auto pareille = [&](const ListeDeLivres::Tete &tete) { return tete.colonne == colonne; };
        if (std::ranges::any_of(tetes, pareille))
            colonne.reset(); // the first one counts
        tetes.append({nom.simplified(), colonne});
    }
    return tetes;
}

// Reads row after row: each must know which books the ones before it took.
class Lecture
{
public:
    Lecture(const QList<ListeDeLivres::Tete> &tetes, const Donnees &donnees, const Regles::Reperes &reperes)
        : tetes_(tetes), donnees_(donnees), reperes_(reperes), rapprochement_(donnees.livres)
    {
        for (const Livre &livre : donnees.livres)
            prochain_ = std::max(prochain_, livre.id + 1);
    }

    RangeeDeListe rangee(const QStringList &cellules, qsizetype numero)
    {
        RangeeDeListe rangee{.numero = numero};
        const auto lu = rapprochement_.rapprocher(indices(cellules));
        if (const auto *doute = std::get_if<RapprochementDeListe::Doute>(&lu))
            rangee.refus.append(doute->raison);
        else if (const auto rang = std::get<std::optional<qsizetype>>(lu))
            rangee.avant = donnees_.livres[*rang];
        parNumero_ = rangee.avant && indices(cellules).id == rangee.avant->id;
        rangee.livre = rangee.avant.value_or(neuf());
        for (qsizetype place = 0; place < cellules.size(); ++place)
            lireCellule(cellules[place], place, rangee);
        if (!rangee.avant)
            completer(rangee, cellules);
        for (const auto &[champ, raison] : objections(rangee).asKeyValueRange())
            if (!refuse(rangee, nomDe(champ)))
                rangee.refus.append(phrase(nomDe(champ), raison));
        refuserLesDoubles(rangee);
        rangee.sort = !rangee.refus.isEmpty()         ? Sort::refusee
                      : !rangee.avant                 ? Sort::ajoutee
                      : *rangee.avant == rangee.livre ? Sort::inchangee
                                                      : Sort::changee;
        return rangee;
    }

private:
    [[nodiscard]] QString dite(const QStringList &cellules, ColonneDeListe colonne) const
    {
        for (qsizetype place = 0; place < std::min(cellules.size(), tetes_.size()); ++place)
            if (tetes_[place].colonne == colonne)
                return cellules[place].simplified();
        return {};
    }

    [[nodiscard]] RapprochementDeListe::Indices indices(const QStringList &cellules) const
    {
        Livre numerote;
        CelluleDeListe::lire(dite(cellules, ColonneDeListe::id), ColonneDeListe::id, donnees_.reglages, numerote);
        return {numerote.id, dite(cellules, ColonneDeListe::titre), dite(cellules, ColonneDeListe::auteur),
                dite(cellules, ColonneDeListe::isbn)};
    }

    [[nodiscard]] Livre neuf() const
    {
        const QList<Vendeur> vendeurs = donnees_.vendeurs();
        return EditionLivres::nouveau({}, vendeurs.isEmpty() ? Vendeur::davrel : vendeurs.first());
    }

    void lireCellule(const QString &cellule, qsizetype place, RangeeDeListe &rangee) const
    {
        if (place >= tetes_.size()) {
            if (!cellule.trimmed().isEmpty())
                rangee.refus.append(QStringLiteral("« %1 » dépasse la dernière colonne : il manque peut-être des "
                                                   "guillemets autour d’un texte.")
                                        .arg(cellule.simplified()));
            return;
        }
        const auto colonne = tetes_[place].colonne;
        if (!colonne || (rangee.avant && designe(*colonne, cellule, *rangee.avant)))
            return;
        if (const QString refus = CelluleDeListe::lire(cellule, *colonne, donnees_.reglages, rangee.livre);
            !refus.isEmpty())
            rangee.refus.append(QStringLiteral("%1 : %2").arg(traits(*colonne).nom.toString(), refus));
    }

    // What the book is found by is not changed by the same in other letters: an ISBN without its hyphens.
    [[nodiscard]] bool designe(ColonneDeListe colonne, const QString &cellule, const Livre &livre) const
    {
        const bool pareille = ColonnesDeListe::cle(cellule)
                              == ColonnesDeListe::cle(CelluleDeListe::ecrite(livre, colonne, donnees_.reglages));
        const bool parTitre = colonne == ColonneDeListe::titre || colonne == ColonneDeListe::auteur;
        return colonne == ColonneDeListe::id
               || (pareille && (colonne == ColonneDeListe::isbn || (parTitre && !parNumero_)));
    }

    void completer(RangeeDeListe &rangee, const QStringList &cellules)
    {
        Livre &livre = rangee.livre;
        if (livre.titreComplet.isEmpty())
            livre.titreComplet = livre.titre;
        if (livre.id <= 0 || numeros_.contains(livre.id))
            livre.id = prochain_;
        if (donnees_.vendeurs().size() > 1 && dite(cellules, ColonneDeListe::vendeur).isEmpty())
            rangee.refus.append(QStringLiteral("Vendeur : il faut dire lequel."));
        if (livre.prix == Centimes{} && dite(cellules, ColonneDeListe::prix).isEmpty())
            rangee.refus.append(
                QStringLiteral("%1 : il faut un prix.").arg(traits(ColonneDeListe::prix).nom.toString()));
    }

    // What the rules hold against the book since the row changed it.
    [[nodiscard]] Objections::ParChamp objections(const RangeeDeListe &rangee) const
    {
        auto objections = Objections::surLeLivre(rangee.livre, reperes_);
        if (!rangee.avant || *rangee.avant == rangee.livre)
            return rangee.avant ? Objections::ParChamp() : objections;
        for (const auto &[champ, raison] : Objections::surLeLivre(*rangee.avant, reperes_).asKeyValueRange())
            if (objections.value(champ) == raison)
                objections.remove(champ);
        return objections;
    }

    [[nodiscard]] static bool refuse(const RangeeDeListe &rangee, const QString &nom)
    {
        return std::ranges::any_of(rangee.refus,
                                   [&](const QString &refus) { return refus.startsWith(nom + QStringLiteral(" :")); });
    }

    void refuserLesDoubles(RangeeDeListe &rangee)
    {
        const Livre &livre = rangee.livre;
        const QString titre = RapprochementDeListe::cleTitre(livre.titre, livre.auteur);
        const QString isbn = RapprochementDeListe::cleIsbn(livre.isbn);
        qsizetype premiere = numeros_.value(livre.id);
        if (premiere == 0 && !rangee.avant)
            premiere = std::max(titres_.value(titre), isbn.isEmpty() ? 0 : isbn_.value(isbn));
        if (premiere != 0)
            rangee.refus.append(QStringLiteral("La ligne %1 parle déjà de ce livre.").arg(premiere));
        if (!rangee.refus.isEmpty())
            return;
        prochain_ = std::max(prochain_, livre.id + 1);
        numeros_.insert(livre.id, rangee.numero);
        titres_.insert(titre, rangee.numero);
        isbn_.insert(isbn, rangee.numero);
    }

    const QList<ListeDeLivres::Tete> &tetes_;
    const Donnees &donnees_;
    const Regles::Reperes &reperes_;
    RapprochementDeListe rapprochement_;
    bool parNumero_ = false; // the row in hand
    qint64 prochain_ = 1;
    // The row that took each, by number, by title and author, by ISBN.
    QHash<qint64, qsizetype> numeros_;
    QHash<QString, qsizetype> titres_;
    QHash<QString, qsizetype> isbn_;
};

} // namespace

ListeDeLivres ListeDeLivres::lue(const QByteArray &octets, const Donnees &donnees, const Regles::Reperes &reperes)
{
    const auto rangees = TableCsv::lue(octets).rangees;
    const auto vide = [](const QStringList &rangee) {
        return std::ranges::all_of(rangee, [](const QString &cellule) { return cellule.trimmed().isEmpty(); });
    };
    const auto tete = std::ranges::find_if_not(rangees, vide);
    if (tete == rangees.end())
        throw Echec(QStringLiteral("Cette liste est vide."));
    ListeDeLivres liste{reconnues(*tete), {}};
    const auto reconnue = [&](ColonneDeListe colonne) {
        return std::ranges::any_of(liste.tetes, [&](const Tete &autre) { return autre.colonne == colonne; });
    };
    if (!reconnue(ColonneDeListe::titre) && !reconnue(ColonneDeListe::isbn) && !reconnue(ColonneDeListe::id))
        throw Echec(
            QStringLiteral("La première ligne ne nomme aucune colonne connue. Elle doit donner au moins « Titre », "
                           "« ISBN » ou « Numéro » ; une liste écrite par Quillet montre tous les noms."));
    Lecture lecture(liste.tetes, donnees, reperes);
    for (auto rangee = tete + 1; rangee != rangees.end(); ++rangee)
        if (!vide(*rangee))
            liste.rangees.append(lecture.rangee(*rangee, rangee - rangees.begin() + 1));
    return liste;
}

QByteArray ListeDeLivres::ecrite(const Donnees &donnees)
{
    QStringList noms;
    for (const ColonneDeListe colonne : tous<ColonneDeListe>)
        noms.append(traits(colonne).nom.toString());
    QList<QStringList> rangees{noms};
    for (const Livre &livre : donnees.livres) {
        QStringList cellules;
        for (const ColonneDeListe colonne : tous<ColonneDeListe>)
            cellules.append(CelluleDeListe::ecrite(livre, colonne, donnees.reglages));
        rangees.append(cellules);
    }
    return TableCsv::ecrite(rangees);
}

qsizetype ListeDeLivres::nombre(RangeeDeListe::Sort sort) const
{
    return std::ranges::count(rangees, sort, &RangeeDeListe::sort);
}

QList<Livre> ListeDeLivres::appliquee(QList<Livre> livres) const
{
    QHash<qint64, qsizetype> rangs;
    for (qsizetype rang = 0; rang < livres.size(); ++rang)
        rangs.insert(livres[rang].id, rang);
    for (const RangeeDeListe &rangee : rangees)
        if (const auto rang = rangs.constFind(rangee.livre.id);
            rangee.sort == Sort::changee && rang != rangs.constEnd())
            livres[*rang] = rangee.livre;
        else if (rangee.sort == Sort::ajoutee)
            livres.append(rangee.livre);
    return livres;
}

} // namespace Quillet
