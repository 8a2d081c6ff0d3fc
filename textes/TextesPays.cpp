#include "textes/TextesPays.h"

#include "textes/SansAccents.h"

#include <algorithm>
#include <utility>

namespace Quillet {

namespace {

constexpr qsizetype auPlus = 8; // more are not read: one types a letter more

// Single words, a blank before each.
QString enMots(const QString &texte)
{
    QString mots = sansAccents(texte);
    for (QChar &signe : mots)
        if (!signe.isLetterOrNumber())
            signe = u' ';
    return u' ' + mots.simplified();
}

enum class Justesse { entier, debutDuNom, debutDUnNom, debutDUnMot, aucune };

Justesse justesse(const QStringList &noms, const QString &cherches)
{
    Justesse meilleure = Justesse::aucune;
    for (const QString &nom : noms) {
        const QString mots = enMots(nom);
        if (mots == cherches)
            return Justesse::entier;
        if (mots.startsWith(cherches))
            meilleure = std::min(meilleure, nom == noms.first() ? Justesse::debutDuNom : Justesse::debutDUnNom);
        else if (mots.contains(cherches))
            meilleure = std::min(meilleure, Justesse::debutDUnMot);
    }
    return meilleure;
}

QString zoneDe(const Pays &pays, const Donnees &donnees)
{
    const auto destination = pays.destination ? donnees.destination(*pays.destination) : std::nullopt;
    return destination ? destination->libelleCourt : QStringLiteral("destination à choisir");
}

} // namespace

QList<Pays> TextesPays::trouves(const QList<Pays> &pays, const QString &recherche)
{
    const QString cherches = enMots(recherche);
    if (cherches.trimmed().isEmpty())
        return {};
    QList<std::pair<Justesse, Pays>> juges;
    for (const Pays &un : pays)
        if (const Justesse sienne = justesse(un.noms(), cherches); sienne != Justesse::aucune)
            juges.append({sienne, un});
    std::ranges::stable_sort(juges, {}, &std::pair<Justesse, Pays>::first);
    QList<Pays> trouves;
    for (const auto &[rang, un] : juges.mid(0, auPlus))
        trouves.append(un);
    return trouves;
}

QString TextesPays::proposition(const Pays &pays, const Donnees &donnees)
{
    return pays.nom() + QStringLiteral(" · ") + zoneDe(pays, donnees);
}

QString TextesPays::introuvable(const QString &recherche)
{
    constexpr int lisible = 40;
    const QString dite = recherche.simplified();
    return QStringLiteral("Aucun pays ne répond à « %1 ».")
        .arg(dite.size() > lisible ? dite.left(lisible) + u'…' : dite);
}

QString TextesPays::nonEtabli(const Pays &pays)
{
    return QStringLiteral("%1 : rien ne dit de façon sûre quel tarif s’applique. Demandez à La Poste, puis choisissez "
                          "l’envoi vous-même.")
        .arg(pays.nom());
}

QString TextesPays::zone(const QString &libelleCourt, const QList<Pays> &pays)
{
    const auto leNomme = [&](const Pays &un) { return un.noms().contains(libelleCourt); };
    if (pays.isEmpty() || libelleCourt.isEmpty() || std::ranges::any_of(pays, leNomme))
        return {};
    return QStringLiteral("L’acheteur lira « %1 » : indiquez son pays.").arg(libelleCourt);
}

} // namespace Quillet
