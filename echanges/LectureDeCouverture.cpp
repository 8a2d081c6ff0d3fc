#include "echanges/LectureDeCouverture.h"

#include "echanges/PreparationCouverture.h"
#include "echanges/ProcessusBride.h"
#include "model/Fichier.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <cstdio>
#include <utility>

namespace Quillet {

namespace {

constexpr int secondesDeCalcul = 10; // the largest picture takes three
constexpr qsizetype reponseAuPlus = 8 << 20;

QString tropCompliquee()
{
    return QStringLiteral("Cette image est trop compliquée : la lire prendrait trop de temps ou de mémoire. "
                          "Enregistrez-la en PNG ou en JPEG, à la taille d’une couverture.");
}

// Of what is given on the standard input, to its end.
QByteArray octetsDeLEntree()
{
    QFile entree;
    QByteArray octets;
    if (!entree.open(stdin, QIODevice::ReadOnly))
        return octets;
    for (QByteArray morceau; octets.size() <= Fichier::Borne::image; octets += morceau) // a pipe gives them bit by bit
        if (morceau = entree.read(Fichier::Borne::mebioctet); morceau.isEmpty())
            break;
    if (octets.size() > Fichier::Borne::image)
        throw Echec(QStringLiteral("Cette image est trop lourde : Quillet en prend jusqu’à %1 Mo.")
                        .arg(Fichier::Borne::image / Fichier::Borne::mebioctet));
    return octets;
}

QByteArray octetsDe(const QString &chemin)
{
    const auto refuser = [&](const QString &raison) {
        return Echec(QStringLiteral("« %1 » ne peut pas être lu : %2. %3")
                         .arg(QFileInfo(chemin).fileName(), raison, PreparationCouverture::formatsPris()));
    };
    try {
        if (const auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::image))
            return *octets;
    } catch (const ErreurStockage &erreur) {
        throw refuser(erreur.raison());
    }
    throw refuser(QStringLiteral("il n’existe plus"));
}

} // namespace

LectureDeCouverture::LectureDeCouverture(const QString &programme, std::chrono::milliseconds patience, QObject *parent)
    : QObject(parent), programme_(programme)
{
    delai_.setSingleShot(true);
    delai_.setInterval(patience);
    connect(&delai_, &QTimer::timeout, this, [this] { processus_->kill(); });
}

LectureDeCouverture::~LectureDeCouverture()
{
    abandonner();
}

void LectureDeCouverture::abandonner()
{
    delai_.stop();
    const auto processus = std::exchange(processus_, nullptr);
    if (!processus)
        return;
    processus->disconnect(this);
    ProcessusBride::tuer(*processus);
}

void LectureDeCouverture::lireFichier(const QString &chemin)
{
    demander(QFileInfo(chemin).absoluteFilePath(), {});
}

void LectureDeCouverture::lireOctets(const QByteArray &octets)
{
    demander(entree(), octets);
}

void LectureDeCouverture::demander(const QString &source, const QByteArray &octets)
{
    abandonner();
    recu_.clear();
    processus_ = std::make_unique<QProcess>();
    ProcessusBride::preparer(*processus_, secondesDeCalcul);
    connect(processus_.get(), &QProcess::readyReadStandardOutput, this, &LectureDeCouverture::recevoir);
    // Queued: the process is not destroyed while its own signal is under way.
    connect(processus_.get(), &QProcess::finished, this, &LectureDeCouverture::conclure, Qt::QueuedConnection);
    const auto nePartPas = [this](QProcess::ProcessError erreur) {
        if (erreur == QProcess::FailedToStart)
            conclure();
    };
    connect(processus_.get(), &QProcess::errorOccurred, this, nePartPas, Qt::QueuedConnection);
    delai_.start();
    processus_->start(programme_, {QStringLiteral("--") + option(), source});
    processus_->write(octets);
    processus_->closeWriteChannel();
}

void LectureDeCouverture::recevoir()
{
    recu_ += processus_->readAllStandardOutput();
    if (recu_.size() > reponseAuPlus)
        processus_->kill();
}

void LectureDeCouverture::conclure()
{
    if (!processus_ || processus_->state() != QProcess::NotRunning)
        return; // the one that ended was given up
    recevoir(); // what came with the end
    delai_.stop();
    const auto processus = std::exchange(processus_, nullptr);
    if (processus->error() == QProcess::FailedToStart)
        return emit refusee(ProcessusBride::neSeLancePlus(programme_));
    if (processus->exitStatus() != QProcess::NormalExit || recu_.size() > reponseAuPlus)
        return emit refusee(tropCompliquee());
    if (processus->exitCode() == refus)
        return emit refusee(QString::fromUtf8(recu_));
    const auto couverture = processus->exitCode() == 0 ? CouverturePrete::lue(recu_) : std::nullopt;
    if (!couverture)
        return emit refusee(tropCompliquee());
    emit prete(*couverture);
}

LectureDeCouverture::Reponse LectureDeCouverture::repondre(const QString &source)
{
    try {
        return {0, PreparationCouverture::de(source == entree() ? octetsDeLEntree() : octetsDe(source)).enTexte()};
    } catch (const Echec &echec) {
        return {refus, echec.texte().toUtf8()};
    }
}

} // namespace Quillet
