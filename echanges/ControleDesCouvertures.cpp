#include "echanges/ControleDesCouvertures.h"

#include "echanges/ArchiveRefusee.h"
#include "echanges/ControleSvg.h"
#include "echanges/CouverturePrete.h"
#include "echanges/LectureEntiere.h"
#include "echanges/PreparationCouverture.h"
#include "echanges/ProcessusBride.h"
#include "model/Fichier.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QProcess>

#include <cstdio>

namespace Quillet {

namespace {

constexpr int secondesDeCalcul = 300; // two thousand covers take some twenty
constexpr char bonne = '+';
constexpr char mauvaise = '-';

// By the decoder that shows it, at the largest size.
bool seMontre(const QString &chemin)
{
    try {
        const auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::image);
        QImageReader lecteur(chemin);
        if (lecteur.format().startsWith("svg"))
            ControleSvg::verifier(octets.value_or(QByteArray()));
        const QSize taille = lecteur.size();
        const QSize remplie = taille.scaled(CouverturePrete::tailleAuPlus, Qt::KeepAspectRatioByExpanding);
        if (taille.isEmpty() || PreparationCouverture::demesuree(taille) || PreparationCouverture::demesuree(remplie))
            return false;
        lecteur.setScaledSize(remplie);
        return LectureEntiere::reussit([&] { return !lecteur.read().isNull(); });
    } catch (const Echec &) {
        return false;
    }
}

} // namespace

QStringList ControleDesCouvertures::refusees(const QStringList &chemins, const QString &programme,
                                             std::chrono::milliseconds patience)
{
    if (chemins.isEmpty())
        return {};
    QProcess processus;
    ProcessusBride::preparer(processus, secondesDeCalcul);
    processus.start(programme, {QStringLiteral("--") + option()});
    for (const QString &chemin : chemins)
        processus.write(QFile::encodeName(chemin) + '\0');
    processus.closeWriteChannel();
    QByteArray dites;
    while (dites.size() < chemins.size() && processus.waitForReadyRead(static_cast<int>(patience.count())))
        dites += processus.readAllStandardOutput();
    const bool parti = processus.error() != QProcess::FailedToStart;
    const bool ailleurs = processus.state() == QProcess::NotRunning && processus.exitStatus() == QProcess::NormalExit;
    ProcessusBride::tuer(processus);
    dites += processus.readAllStandardOutput();
    if (!parti || (ailleurs && dites.size() != chemins.size()))
        throw Echec(ProcessusBride::neSeLancePlus(programme));
    if (dites.size() < chemins.size())
        throw ArchiveRefusee(QStringLiteral("l’image « %1 » prendrait trop de temps ou de mémoire")
                                 .arg(QFileInfo(chemins[dites.size()]).fileName()));
    QStringList laissees;
    for (qsizetype rang = 0; rang < chemins.size(); ++rang)
        if (dites[rang] != bonne)
            laissees.append(chemins[rang]);
    return laissees;
}

void ControleDesCouvertures::repondre()
{
    QFile entree;
    if (!entree.open(stdin, QIODevice::ReadOnly))
        return;
    QByteArrayList chemins = entree.readAll().split('\0');
    chemins.removeLast(); // what follows the last zero
    for (const QByteArray &chemin : chemins) {
        std::fputc(seMontre(QFile::decodeName(chemin)) ? bonne : mauvaise, stdout);
        std::fflush(stdout);
    }
}

} // namespace Quillet
