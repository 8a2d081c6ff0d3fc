#include "echanges/Copies.h"

#include "echanges/Archive.h"
#include "echanges/Disque.h"
#include "model/Fichier.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace Quillet {

namespace {

const QString formeDuMoment = QStringLiteral("yyyy-MM-dd HH'h'mm'm'ss");
const QString suite = QStringLiteral(" avant import");
const QString extension = QStringLiteral(".zip");

// None of a file that this program has not named.
std::optional<Copie> enCopie(const QDir &dossier, const QString &fichier)
{
    QString nom = fichier.chopped(extension.size());
    const bool avantReprise = nom.endsWith(suite);
    if (avantReprise)
        nom.chop(suite.size());
    const QDateTime moment =
        avantReprise ? QDateTime::fromString(nom, formeDuMoment) : QDate::fromString(nom, Qt::ISODate).startOfDay();
    if (!moment.isValid())
        return std::nullopt;
    return Copie{dossier.filePath(fichier), moment, avantReprise};
}

// What a program that was stopped left of a copy.
void balayer(const QDir &dossier)
{
    for (const QString &reste : Fichier::lister(dossier, QStringLiteral("*.zip.*")))
        Disque::supprimer(dossier.filePath(reste));
}

} // namespace

QList<Copie> Copies::liste() const
{
    QList<Copie> copies;
    for (const QString &fichier : Fichier::lister(dossier(), QStringLiteral("*.zip")))
        if (const auto copie = enCopie(dossier(), fichier))
            copies.append(*copie);
    std::ranges::stable_sort(copies, std::greater(), &Copie::moment);
    return copies;
}

bool Copies::duJour(QDate aujourdhui) const
{
    if (!demeure_.aDesDonneesPropres())
        return false;
    const QList<Copie> copies = liste();
    const auto derniere = std::ranges::find(copies, false, &Copie::avantReprise);
    if (derniere != copies.end() && derniere->moment.date() >= aujourdhui)
        return false;
    const Bagage bagage = Bagage::de(demeure_, aujourdhui);
    if (derniere != copies.end() && empreinte(derniere->chemin) == bagage.manifeste.empreinte)
        return false;
    garder(Jour(aujourdhui).texte() + extension, bagage);
    eclaircir(false);
    return true;
}

void Copies::avantReprise(const QDateTime &maintenant) const
{
    const Bagage bagage = Bagage::de(demeure_, maintenant.date());
    if (bagage.estVide())
        return;
    garder(maintenant.toString(formeDuMoment) + suite + extension, bagage);
    eclaircir(true);
}

QString Copies::empreinte(const QString &copie)
{
    try {
        return Archive::manifeste(copie).empreinte;
    } catch (const Echec &) {
        return {}; // one that is damaged holds nothing: the next is needed
    }
}

void Copies::garder(const QString &nom, const Bagage &bagage) const
{
    Fichier::creerDossier(dossier().path());
    balayer(dossier());
    Archive::ecrire(dossier().filePath(nom), bagage);
}

void Copies::eclaircir(bool avantReprise) const
{
    QList<Copie> copies = liste();
    copies.removeIf([&](const Copie &copie) { return copie.avantReprise != avantReprise; });
    for (qsizetype rang = gardees; rang < copies.size(); ++rang)
        Fichier::effacer(copies[rang].chemin);
}

} // namespace Quillet
