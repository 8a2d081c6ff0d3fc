#include "composants/Lien.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QMessageBox>
#include <QUrl>

namespace Quillet {

namespace {

void prevenir(QWidget *parent, const QString &texte)
{
    QMessageBox::information(parent->window(), QCoreApplication::applicationName(), texte);
}

} // namespace

bool Lien::ouvrir(const QUrl &adresse, QWidget *parent)
{
    if (adresse.scheme() == QLatin1String("https") && QDesktopServices::openUrl(adresse))
        return true;
    prevenir(parent, QStringLiteral("Aucun navigateur n’a ouvert cette page :\n%1").arg(adresse.toString()));
    return false;
}

void Lien::ouvrirFichier(const QString &chemin, QWidget *parent)
{
    const QString nom = QDir::toNativeSeparators(chemin);
    if (!QFileInfo::exists(chemin)) // which the desktop would only tell itself
        prevenir(parent, QStringLiteral("Fichier ou dossier introuvable, déplacé ou supprimé :\n%1").arg(nom));
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(chemin)))
        prevenir(parent, QStringLiteral("Aucun programme n’a répondu pour ouvrir :\n%1").arg(nom));
}

} // namespace Quillet
