#include "ui/livres/RetourAuxValeurs.h"

#include "textes/TextesRetour.h"

#include <QMessageBox>
#include <QPushButton>

namespace Quillet {

bool RetourAuxValeurs::accepte(const QList<Livre> &actuels, const QList<Livre> &livres, QWidget *parent)
{
    const QStringList perdus = TextesRetour::pertes(actuels, livres);
    if (perdus.isEmpty()) {
        QMessageBox::information(parent, QStringLiteral("Quillet"),
                                 QStringLiteral("Les livres ont déjà leurs valeurs d’origine."));
        return true;
    }
    QMessageBox question(QMessageBox::Question, QStringLiteral("Quillet"),
                         QStringLiteral("Revenir aux valeurs d’origine ?"), QMessageBox::NoButton, parent);
    question.setInformativeText(
        QStringLiteral("Ces valeurs seront perdues :\n\n%1\n\nVous pourrez annuler tant que Quillet reste ouvert.")
            .arg(perdus.join(u'\n')));
    const QPushButton *revenir =
        question.addButton(QStringLiteral("Revenir aux valeurs d’origine"), QMessageBox::AcceptRole);
    QPushButton *garder = question.addButton(QStringLiteral("Garder mes valeurs"), QMessageBox::RejectRole);
    question.setDefaultButton(garder);
    question.exec();
    return question.clickedButton() == revenir;
}

} // namespace Quillet
