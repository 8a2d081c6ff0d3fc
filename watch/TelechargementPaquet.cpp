#include "watch/TelechargementPaquet.h"

#include "model/CauseSysteme.h"
#include "watch/ErreurMiseAJour.h"

#include <QRegularExpression>

#include <filesystem>
#include <utility>

namespace {

// A package may be large and the line slow; its size is bounded by what the feed announces.
constexpr Limites limites{.duree = std::chrono::hours{2}, .taille = qint64{1} << 30};

// As at its address, with nothing that a folder or a command could take amiss.
QString nomDuPaquet(const Appcast::Parution &parution)
{
    static const QRegularExpression autres(QStringLiteral("[^A-Za-z0-9._+~-]"));
    static const QRegularExpression debut(QStringLiteral("^[^A-Za-z0-9]+"));
    const QString nom = parution.paquet.fileName(QUrl::FullyDecoded).remove(debut).replace(autres, QStringLiteral("-"));
    return nom.isEmpty() ? QStringLiteral("quillet") : nom.right(100);
}

ErreurMiseAJour mauvaiseLongueur()
{
    return ErreurMiseAJour::refusee(QStringLiteral("le fichier n’a pas la longueur annoncée"));
}

} // namespace

TelechargementPaquet::TelechargementPaquet(Appcast::Parution parution, const SignatureEd25519::Cle &cle,
                                           const QDir &dossier)
    : parution_(std::move(parution)),
      cle_(cle),
      dossier_(dossier),
      fichier_(dossier.filePath(QStringLiteral(".paquet-XXXXXX"))),
      transfert_(limites, Transfert::Cookies::refuses)
{
    connect(&transfert_, &Transfert::recu, this, &TelechargementPaquet::ecrire);
    connect(&transfert_, &Transfert::termine, this, &TelechargementPaquet::conclure);
    connect(&transfert_, &Transfert::echoue, this, [this](const ErreurReleve &erreur) { emit echoue(raison(erreur)); });
}

void TelechargementPaquet::commencer()
{
    dossier_.removeRecursively();
    std::error_code erreur;
    std::filesystem::create_directories(dossier_.path().toStdString(), erreur);
    if (erreur)
        throw ErreurStockage(dossier_.path(), CauseSysteme::enFrancais(erreur));
    if (!fichier_.open())
        throw refusDuDisque();
    transfert_.demander(parution_.paquet, "identity");
}

void TelechargementPaquet::ecrire(const QByteArray &morceau)
{
    octets_ += morceau.size();
    if (octets_ > parution_.longueur) // of no use any more, whatever follows
        return transfert_.interrompre(mauvaiseLongueur().texte());
    if (!ecritureManquee_.isEmpty())
        return;
    // A full disk takes a part, and says why only when asked to take the rest.
    for (QByteArrayView reste = morceau; !reste.isEmpty();) {
        const qint64 pris = fichier_.write(reste.data(), reste.size());
        if (pris <= 0) {
            ecritureManquee_ = refusDuDisque().texte();
            return transfert_.interrompre(ecritureManquee_);
        }
        reste = reste.sliced(pris);
    }
    emit progresse(octets_);
}

ErreurStockage TelechargementPaquet::refusDuDisque() const
{
    return {dossier_.path(), CauseSysteme::enFrancais(fichier_.errorString())};
}

QString TelechargementPaquet::raison(const ErreurReleve &erreur) const
{
    if (octets_ > parution_.longueur)
        return mauvaiseLongueur().texte();
    if (!ecritureManquee_.isEmpty())
        return ecritureManquee_;
    return QStringLiteral("Téléchargement impossible : %1.").arg(erreur.detail());
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
    if (octets_ != parution_.longueur || (!codage.isEmpty() && codage != "identity"))
        throw mauvaiseLongueur();
    if (!ecritureManquee_.isEmpty() || !fichier_.flush())
        throw refusDuDisque();
    if (!signe())
        throw ErreurMiseAJour::refusee(QStringLiteral("sa signature n’est pas celle de Quillet"));
    QString chemin = dossier_.filePath(nomDuPaquet(parution_));
    if (!fichier_.rename(chemin))
        throw refusDuDisque();
    fichier_.setAutoRemove(false);
    fichier_.close();
    return chemin;
}

// What stands on the disk, not what came from the line.
bool TelechargementPaquet::signe()
{
    const uchar *octets = fichier_.size() == parution_.longueur ? fichier_.map(0, parution_.longueur) : nullptr;
    return octets
           && SignatureEd25519::estDe(cle_, *parution_.signature, {octets, static_cast<size_t>(parution_.longueur)});
}
