#include "model/Preferences.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

Preferences Preferences::deLUtilisateur()
{
    const QDir configuration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return Preferences(configuration.filePath(QStringLiteral("Quillet/Quillet.ini")));
}

QString Preferences::texte(const QString &cle) const
{
    return QSettings(fichier_, QSettings::IniFormat).value(cle).toString();
}

void Preferences::ecrire(const QString &cle, const QString &texte) const
{
    // One of its own for each writing: a QSettings never forgets that one failed.
    QSettings ini(fichier_, QSettings::IniFormat);
    const QVariant avant = ini.value(cle);
    ini.setValue(cle, texte);
    ini.sync();
    if (ini.status() != QSettings::AccessError)
        return;
    // All QSettings of one file share what is still to be written.
    if (avant.isValid())
        ini.setValue(cle, avant);
    else
        ini.remove(cle);
    Fichier::echouer(fichier_, QStringLiteral("écriture impossible, le dossier est protégé ou le disque est plein"));
}
