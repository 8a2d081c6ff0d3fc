#include "textes/TextesListe.h"

#include "echanges/CelluleDeListe.h"
#include "model/Format.h"
#include "textes/TextesLivres.h"

#include <algorithm>
#include <array>

namespace Quillet {

namespace {

using Sort = RangeeDeListe::Sort;

qsizetype prises(const ListeDeLivres &liste)
{
    return liste.nombre(Sort::ajoutee) + liste.nombre(Sort::changee);
}

QString nouveau(const Livre &livre)
{
    return QStringLiteral("%1 · %2 · %3")
        .arg(livre.auteur, Format::euros(livre.prix), TextesLivres::fabrication(livre));
}

// What each column becomes: "Prix (€) : 18,00 → 18,50".
QString changements(const Livre &avant, const Livre &apres, const Reglages &reglages)
{
    QStringList changements;
    for (const ColonneDeListe colonne : tous<ColonneDeListe>) {
        const QString ancien = CelluleDeListe::ecrite(avant, colonne, reglages);
        const QString futur = CelluleDeListe::ecrite(apres, colonne, reglages);
        if (ancien != futur)
            changements.append(
                QStringLiteral("%1 : %2 → %3")
                    .arg(traits(colonne).nom.toString(), ancien.isEmpty() ? QString(Format::absent) : ancien, futur));
    }
    return changements.join(QStringLiteral(" · "));
}

TextesListe::Rangee rangee(const RangeeDeListe &lue, const Reglages &reglages)
{
    TextesListe::Rangee rangee{
        lue.sort, lue.avant ? lue.avant->titre : lue.livre.titre, QStringLiteral("ligne %1").arg(lue.numero), {}};
    if (rangee.titre.isEmpty())
        rangee.titre = QStringLiteral("Sans titre");
    if (lue.sort == Sort::refusee)
        rangee.detail = lue.refus.join(u' ');
    else if (lue.avant)
        rangee.detail = changements(*lue.avant, lue.livre, reglages);
    else
        rangee.detail = nouveau(lue.livre);
    return rangee;
}

} // namespace

QString TextesListe::resume(const ListeDeLivres &liste)
{
    const auto compter = [](qsizetype nombre, const QString &un, const QString &plusieurs) {
        return nombre == 1 ? un : plusieurs.arg(nombre);
    };
    const qsizetype refusees = liste.nombre(Sort::refusee);
    QStringList parties;
    if (const qsizetype ajoutes = liste.nombre(Sort::ajoutee))
        parties.append(compter(ajoutes, QStringLiteral("1 livre à ajouter"), QStringLiteral("%1 livres à ajouter")));
    if (const qsizetype changes = liste.nombre(Sort::changee))
        parties.append(compter(changes, QStringLiteral("1 livre à changer"), QStringLiteral("%1 livres à changer")));
    if (const qsizetype pareils = liste.nombre(Sort::inchangee))
        parties.append(compter(pareils, QStringLiteral("1 déjà pareil"), QStringLiteral("%1 déjà pareils")));
    if (refusees > 0)
        parties.append(compter(refusees, QStringLiteral("1 ligne refusée"), QStringLiteral("%1 lignes refusées")));
    return parties.isEmpty() ? QStringLiteral("Cette liste ne nomme aucun livre.")
                             : parties.join(QStringLiteral(", ")) + u'.';
}

QString TextesListe::colonnes(const ListeDeLivres &liste)
{
    QStringList lues;
    QStringList laissees;
    for (const auto &[nom, colonne] : liste.tetes)
        if (colonne)
            lues.append(traits(*colonne).nom.toString());
        else if (!nom.isEmpty())
            laissees.append(QStringLiteral("« %1 »").arg(nom));
    const QString debut = QStringLiteral("Colonnes lues : %1.").arg(lues.join(QStringLiteral(", ")));
    return laissees.isEmpty()
               ? debut
               : debut + QStringLiteral(" Laissées de côté : %1.").arg(laissees.join(QStringLiteral(", ")));
}

QString TextesListe::prendre(const ListeDeLivres &liste)
{
    return prises(liste) == 0 ? QStringLiteral("Rien à prendre")
                              : QStringLiteral("Prendre ") + TextesLivres::nombre(prises(liste));
}

QString TextesListe::geste(const ListeDeLivres &liste)
{
    return QStringLiteral("liste de ") + TextesLivres::nombre(prises(liste));
}

QList<TextesListe::Rangee> TextesListe::rangees(const ListeDeLivres &liste, const Reglages &reglages)
{
    QList<Rangee> rangees;
    for (const Sort sort : std::array{Sort::refusee, Sort::changee, Sort::ajoutee})
        for (const RangeeDeListe &lue : liste.rangees)
            if (lue.sort == sort)
                rangees.append(rangee(lue, reglages));
    return rangees;
}

QString TextesListe::dite(const Rangee &rangee)
{
    const QString sort = rangee.sort == Sort::refusee   ? QStringLiteral("Refusé")
                         : rangee.sort == Sort::changee ? QStringLiteral("À changer")
                                                        : QStringLiteral("À ajouter");
    return QStringLiteral("%1, %2, %3 : %4").arg(sort, rangee.titre, rangee.ligne, rangee.detail);
}

QString TextesListe::nomDeFichier(QDate jour)
{
    return QStringLiteral("Livres %1.csv").arg(Format::iso(jour));
}

} // namespace Quillet
