#include "ui/ControlePoste.h"

#include "composants/Theme.h"
#include "echanges/LectureEntiere.h"
#include "model/Couvertures.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QImageReader>
#include <QLibraryInfo>
#include <QMap>
#include <QStandardPaths>

#include <algorithm>

namespace Quillet {

namespace {

QStringList imagesIllisibles(const QList<QByteArray> &lues, const QStringList &couvertures)
{
    QMap<QString, int> illisibles;
    for (const QString &fichier : couvertures) {
        const QString format = QFileInfo(fichier).suffix().toLower();
        if (Couvertures::formats().contains(format) && !lues.contains(format.toLatin1()))
            ++illisibles[format];
    }
    QStringList phrases;
    for (const auto &[format, nombre] : illisibles.asKeyValueRange())
        phrases.append((nombre > 1
                            ? QStringLiteral("ce système ne lit pas les images %1 : %2 couvertures resteront unies "
                                             "(il y manque un greffon d’images de Qt)")
                            : QStringLiteral("ce système ne lit pas les images %1 : %2 couverture restera unie "
                                             "(il y manque un greffon d’images de Qt)"))
                           .arg(format.toUpper())
                           .arg(nombre));
    return phrases;
}

bool seLitEntiere(const QString &chemin)
{
    return LectureEntiere::reussit([&] { return !QImageReader(chemin).read().isNull(); });
}

QStringList policeAbsente(const QStringList &polices, const QStringList &voulues, const QString &paquet)
{
    if (std::ranges::any_of(voulues, [&](const QString &famille) { return polices.contains(famille); }))
        return {};
    return {QStringLiteral("ce système n’a pas la police %1 (paquet %2) : une autre la remplace")
                .arg(voulues.join(QStringLiteral(" ou ")), paquet)};
}

} // namespace

ControlePoste::Moyens ControlePoste::moyens()
{
    const QString traductions = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    return {.images = QImageReader::supportedImageFormats(),
            .polices = QFontDatabase::families(),
            .francais = QFileInfo::exists(traductions + QStringLiteral("/qtbase_fr.qm")),
            .curl = !QStandardPaths::findExecutable(QStringLiteral("curl")).isEmpty()};
}

QStringList ControlePoste::imagesAbimees(const Moyens &moyens, const QStringList &couvertures)
{
    QStringList phrases;
    for (const QString &chemin : couvertures) {
        const QFileInfo fichier(chemin);
        const QString format = fichier.suffix().toLower();
        if (Couvertures::formats().contains(format) && moyens.images.contains(format.toLatin1()) && fichier.size() > 0
            && !seLitEntiere(chemin))
            phrases.append(QStringLiteral("couvertures/%1 : l’image est abîmée").arg(fichier.fileName()));
    }
    phrases.sort();
    return phrases;
}

QStringList ControlePoste::manques(const Moyens &moyens, const QStringList &couvertures)
{
    QStringList phrases = imagesIllisibles(moyens.images, couvertures);
    phrases += policeAbsente(moyens.polices, Theme::famillesDesTextes(), QStringLiteral("fonts-inter"));
    phrases += policeAbsente(moyens.polices, Theme::famillesDesTitres(), QStringLiteral("fonts-linuxlibertine"));
    if (!moyens.francais)
        phrases.append(QStringLiteral(
            "ce système n’a pas les textes français de Qt (paquet qt6-translations-l10n) : ses dialogues resteront en "
            "anglais"));
    if (!moyens.curl)
        phrases.append(QStringLiteral(
            "ce système n’a pas curl (paquet curl) : ni les pages des tarifs ni les mises à jour ne seront lues"));
    return phrases;
}

} // namespace Quillet
