#include "ui/commun/Lien.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

void Lien::ouvrir(const QUrl &adresse, QWidget *parent)
{
    if (adresse.scheme() == QLatin1String("https") && QDesktopServices::openUrl(adresse))
        return;
    QMessageBox message(QMessageBox::Information, QStringLiteral("Quillet"),
                        QMessageBox::tr("Aucun navigateur n’a ouvert cette page :"), QMessageBox::Ok, parent);
    message.setInformativeText(adresse.toString());
    message.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    message.exec();
}
