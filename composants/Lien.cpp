#include "composants/Lien.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

namespace Quillet {

void Lien::ouvrir(const QUrl &adresse, QWidget *parent)
{
    if (adresse.scheme() == QLatin1String("https") && QDesktopServices::openUrl(adresse))
        return;
    QMessageBox::information(parent->window(), QCoreApplication::applicationName(),
                             QStringLiteral("Aucun navigateur n’a ouvert cette page :\n%1").arg(adresse.toString()));
}

} // namespace Quillet
