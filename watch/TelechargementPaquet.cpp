#include "watch/TelechargementPaquet.h"

#include "model/CauseSysteme.h"
#include "model/Fichier.h"
#include "watch/ErreurMiseAJour.h"

#include <filesystem>
#include <utility>

namespace Quillet {

namespace {

// The line may be slow; the size is bounded by what the feed announces.
constexpr Limites limites{.duree = std::chrono::hours{2}, .taille = Appcast::longueurMaximale};

ErreurMiseAJour mauvaiseLongueur()
{
    return ErreurMiseAJour::refusee(QStringLiteral("le fichier n’a pas la longueur annoncée"));
}

} // namespace

TelechargementPaquet::TelechargementPaquet(Appcast::Parution parution, const QDir &dossier)
    : parution_(std::move(parution)),
      dossier_(dossier),
      fichier_(dossier.filePath(QStringLiteral(".paquet-XXXXXX"))),
      transfert_(limites, Transfert::Usage::miseAJour)
{
    connect(&transfert_, &Transfert::recu, this, &TelechargementPaquet::ecrire);
    connect(&transfert_, &Transfert::termine, this, &TelechargementPaquet::conclure);
    connect(&transfert_, &Transfert::echoue, this, [this](const QString &raison) {
        emit echoue(refus_.isEmpty() ? QStringLiteral("Téléchargement impossible : %1.").arg(raison) : refus_);
    });
}

void TelechargementPaquet::commencer()
{
    const std::filesystem::path chemin(dossier_.path().toStdString());
    std::error_code erreur;
    std::filesystem::remove_all(chemin, erreur); // a link goes, not what it leads to
    Fichier::creerDossier(dossier_.path());
    // Nobody else may put another package in the place of one that was checked.
    if (!erreur)
        std::filesystem::permissions(chemin, std::filesystem::perms::owner_all, erreur);
    if (erreur)
        throw ErreurStockage(dossier_.path(), CauseSysteme::enFrancais(erreur));
    if (!fichier_.open())
        throw refusDuDisque();
    transfert_.demander(parution_.paquet, "identity");
}

void TelechargementPaquet::ecrire(const QByteArray &morceau)
{
    if (!refus_.isEmpty())
        return;
    octets_ += morceau.size();
    if (octets_ > parution_.longueur) // of no use any more, whatever follows
        return refuser(mauvaiseLongueur());
    if (!Fichier::toutEcrire(fichier_, morceau))
        return refuser(refusDuDisque());
    empreinte_.addData(morceau);
    emit progresse(octets_);
}

ErreurStockage TelechargementPaquet::refusDuDisque() const
{
    return {dossier_.path(), CauseSysteme::enFrancais(fichier_.errorString())};
}

void TelechargementPaquet::refuser(const Echec &raison)
{
    refus_ = raison.texte();
    transfert_.interrompre(refus_);
}

void TelechargementPaquet::conclure(const QByteArray &codage)
{
    QString chemin;
    try {
        chemin = garder(codage);
    } catch (const Echec &erreur) {
        emit echoue(erreur.texte());
        return;
    }
    emit pret(chemin);
}

QString TelechargementPaquet::garder(const QByteArray &codage)
{
    if (!refus_.isEmpty()) // too late to break the transfer off
        throw Echec(refus_);
    if (octets_ != parution_.longueur || (!codage.isEmpty() && codage != "identity"))
        throw mauvaiseLongueur();
    if (empreinte_.result() != parution_.empreinte)
        throw ErreurMiseAJour::refusee(QStringLiteral("le fichier n’est pas celui qui est annoncé"));
    if (!fichier_.flush())
        throw refusDuDisque();
    QString chemin = dossier_.filePath(QStringLiteral("quillet.deb"));
    if (!fichier_.rename(chemin))
        throw refusDuDisque();
    fichier_.setAutoRemove(false);
    fichier_.close();
    return chemin;
}

} // namespace Quillet
