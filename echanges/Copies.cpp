#include "echanges/Copies.h"

#include "echanges/Archive.h"
#include "echanges/Disque.h"
#include "echanges/PiecesDArchive.h"
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

// Of a clock that was wrong.
bool estAVenir(const Copie &copie, QDate aujourdhui)
{
    return copie.moment.date() > aujourdhui;
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
    QList<Copie> copies = liste();
    copies.removeIf([&](const Copie &copie) { return copie.avantReprise || estAVenir(copie, aujourdhui); });
    if (!copies.isEmpty() && copies.first().moment.date() == aujourdhui)
        return false;
    const Bagage bagage = Bagage::de(demeure_, aujourdhui);
    if (copies.isEmpty() ? !aQuelqueChoseDeLUtilisateur(bagage)
                         : empreinte(copies.first().chemin) == bagage.manifeste.empreinte)
        return false;
    garder(Jour(aujourdhui).texte() + extension, bagage);
    eclaircir(false, aujourdhui);
    if (!bagage.absents.isEmpty())
        throw Echec(QStringLiteral("il y manque ceci.\n%1").arg(bagage.absents.join(u'\n')));
    return true;
}

void Copies::avantReprise(const QDateTime &maintenant, Bagage::Propres propres) const
{
    const Bagage bagage = Bagage::de(demeure_, maintenant.date(), propres);
    if (!bagage.lourdes.isEmpty()) // the import would delete them; of a file of another kind, it keeps a copy beside
        throw Echec(
            QStringLiteral("Rien n’est repris : ce que vous avez aujourd’hui ne peut pas être gardé en entier.\n%1")
                .arg(bagage.lourdes.join(u'\n')));
    if (bagage.estVide())
        return;
    garder(maintenant.toString(formeDuMoment) + suite + extension, bagage);
    eclaircir(true, maintenant.date());
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

// An administrator's data stand elsewhere, and are not to be kept for somebody who has changed nothing.
bool Copies::aQuelqueChoseDeLUtilisateur(const Bagage &bagage) const
{
    const auto estALui = [](const Bagage::Piece &piece) {
        return piece.nom != PiecesDArchive::manifeste && !piece.nom.startsWith(PiecesDArchive::propres);
    };
    return demeure_.donnees.origine() == Origine::utilisateur || std::ranges::any_of(bagage.pieces, estALui)
           || Fichier::existe(demeure_.utilisateur.filePath(Stockage::fichierDesLivres()));
}

void Copies::eclaircir(bool avantReprise, QDate aujourdhui) const
{
    QList<Copie> copies = liste();
    copies.removeIf([&](const Copie &copie) { return copie.avantReprise != avantReprise; });
    std::stable_partition(copies.begin(), copies.end(),
                          [&](const Copie &copie) { return !estAVenir(copie, aujourdhui); });
    for (qsizetype rang = gardees; rang < copies.size(); ++rang)
        Fichier::effacer(copies[rang].chemin);
}

} // namespace Quillet
