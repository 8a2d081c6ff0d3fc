#include "model/Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QStandardPaths>

namespace Quillet {

namespace {

using Valeurs = QMap<QString, QString>;

Valeurs decoder(const QByteArray &octets)
{
    Valeurs valeurs;
    for (const QString &ligne : QString::fromUtf8(octets).split(u'\n'))
        if (const qsizetype egal = ligne.indexOf(u'='); egal > 0)
            valeurs.insert(ligne.first(egal), ligne.sliced(egal + 1));
    return valeurs;
}

QByteArray encoder(const Valeurs &valeurs)
{
    QByteArray octets = "[General]\n";
    for (const auto &[cle, valeur] : valeurs.asKeyValueRange())
        octets += cle.toUtf8() + '=' + QString(valeur).replace(u'\n', u' ').toUtf8() + '\n';
    return octets;
}

} // namespace

Preferences Preferences::deLUtilisateur()
{
    const QDir configuration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return Preferences(configuration.filePath(QStringLiteral("Quillet/Quillet.ini")));
}

QString Preferences::texte(const QString &cle) const
{
    return decoder(Fichier::lire(fichier_, Fichier::Borne::preferences).value_or(QByteArray())).value(cle);
}

QString Preferences::texteOuErreur(const QString &cle) const
{
    return decoder(Fichier::lireOuRefuser(fichier_, Fichier::Borne::preferences).value_or(QByteArray())).value(cle);
}

void Preferences::ecrire(const QString &cle, const QString &texte)
{
    Fichier::creerDossier(QFileInfo(fichier_).absolutePath());
    Valeurs valeurs = decoder(Fichier::lireOuRefuser(fichier_, Fichier::Borne::preferences).value_or(QByteArray()));
    valeurs.insert(cle, texte);
    Fichier::ecrire(fichier_, encoder(valeurs));
}

} // namespace Quillet
