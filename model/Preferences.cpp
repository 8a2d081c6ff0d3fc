#include "model/Preferences.h"

#include <QDir>
#include <QFileDevice>
#include <QSettings>
#include <QStandardPaths>

namespace {

bool lire(QIODevice &fichier, QSettings::SettingsMap &valeurs)
{
    while (!fichier.atEnd()) {
        const QString ligne = QString::fromUtf8(fichier.readLine()).remove(u'\n');
        if (const qsizetype egal = ligne.indexOf(u'='); egal > 0)
            valeurs.insert(ligne.first(egal), ligne.sliced(egal + 1));
    }
    return true;
}

bool ecrireTout(QIODevice &fichier, const QSettings::SettingsMap &valeurs)
{
    QByteArray octets = "[General]\n";
    for (const auto &[cle, valeur] : valeurs.asKeyValueRange())
        octets += cle.toUtf8() + '=' + valeur.toString().replace(u'\n', u' ').toUtf8() + '\n';
    return fichier.write(octets) == octets.size() && static_cast<QFileDevice &>(fichier).flush();
}

// INI with a writer of our own: Qt's leaves its last bytes in a buffer, and a disk that is full by then cuts the file.
QSettings::Format format()
{
    static const QSettings::Format ini = QSettings::registerFormat(QStringLiteral("ini"), lire, ecrireTout);
    return ini;
}

} // namespace

Preferences Preferences::deLUtilisateur()
{
    const QDir configuration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return Preferences(configuration.filePath(QStringLiteral("Quillet/Quillet.ini")));
}

QString Preferences::texte(const QString &cle) const
{
    return QSettings(fichier_, format()).value(cle).toString();
}

void Preferences::ecrire(const QString &cle, const QString &texte)
{
    // One of its own for each writing: a QSettings never forgets that one failed.
    QSettings ini(fichier_, format());
    const QVariant avant = ini.value(cle);
    ini.setValue(cle, texte);
    ini.sync();
    if (ini.status() == QSettings::NoError)
        return;
    // All QSettings of one file share what is still to be written.
    if (avant.isValid())
        ini.setValue(cle, avant);
    else
        ini.remove(cle);
    throw ErreurStockage(fichier_,
                         QStringLiteral("écriture impossible, le dossier est protégé ou le disque est plein"));
}
