#include "tests/FausseMessagerie.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QUrl>

#include <gio/gio.h>

namespace Quillet {

namespace {

void ecrire(const QString &chemin, const QString &texte)
{
    QDir().mkpath(QFileInfo(chemin).path());
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        qFatal("%s", qPrintable(fichier.errorString()));
    fichier.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

FausseMessagerie::FausseMessagerie()
{
    // Read once by the desktop's library: what changes later is the files in there.
    for (const char *variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"})
        qputenv(variable, dossier_.filePath(QString::fromLatin1(variable)).toUtf8());
    ecrire(dossier_.filePath(QStringLiteral("messagerie")),
           QStringLiteral("#!/bin/sh\nprintf '%s\\n' \"$@\" >'%1.tmp' && mv '%1.tmp' '%1'\n")
               .arg(dossier_.filePath(QStringLiteral("recus"))));
}

void FausseMessagerie::installer(const QString &nom, const QString &arguments) const
{
    declarer(nom, dossier_.filePath(QStringLiteral("messagerie")) + u' ' + arguments);
}

void FausseMessagerie::installerSurLeBus(const QString &nom) const
{
    declarer(nom, dossier_.filePath(QStringLiteral("messagerie")), true);
}

void FausseMessagerie::installerCassee(const QString &nom) const
{
    const QString cassee = dossier_.filePath(QStringLiteral("cassee"));
    ecrire(cassee, QStringLiteral("#!/nulle/part\n"));
    declarer(nom, cassee);
}

void FausseMessagerie::declarer(const QString &nom, const QString &commande, bool surLeBus) const
{
    const QString applications = dossier_.filePath(QStringLiteral("XDG_DATA_HOME/applications/"));
    ecrire(applications + nom, QStringLiteral("[Desktop Entry]\nType=Application\nName=Messagerie\nExec=%1\n"
                                              "DBusActivatable=%2\nMimeType=x-scheme-handler/mailto;\n")
                                   .arg(commande, surLeBus ? QStringLiteral("true") : QStringLiteral("false")));
    ecrire(applications + QStringLiteral("mimeapps.list"),
           QStringLiteral("[Default Applications]\nx-scheme-handler/mailto=%1\n").arg(nom));
    // The desktop's library hears of new files a little later.
    const auto connue = [&] {
        GAppInfo *programme = g_app_info_get_default_for_uri_scheme("mailto");
        const bool elle = programme && commande == QString::fromUtf8(g_app_info_get_commandline(programme));
        g_clear_object(&programme);
        return elle;
    };
    if (!QTest::qWaitFor(connue))
        qFatal("%s n’est pas connu du bureau", qPrintable(nom));
}

void FausseMessagerie::oublier() const
{
    QDir(dossier_.filePath(QStringLiteral("XDG_DATA_HOME"))).removeRecursively();
    QFile::remove(dossier_.filePath(QStringLiteral("recus")));
}

QStringList FausseMessagerie::recus() const
{
    QFile fichier(dossier_.filePath(QStringLiteral("recus")));
    if (!QTest::qWaitFor([&] { return fichier.exists(); }) || !fichier.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(fichier.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

QList<std::pair<QString, QString>> champsDeThunderbird(const QString &option)
{
    QList<std::pair<QString, QString>> champs;
    for (const QString &champ : option.split(u','))
        champs.append({champ.section(u'=', 0, 0), QUrl::fromPercentEncoding(champ.section(u'=', 1).toLatin1())});
    return champs;
}

} // namespace Quillet
