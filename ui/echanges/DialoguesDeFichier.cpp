#include "ui/echanges/DialoguesDeFichier.h"

#include "model/Preferences.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>

namespace Quillet {

QFileDialog *DialoguesDeFichier::choix(const QString &titre, const QString &filtre, const Preferences &preferences,
                                       const QString &cle, QWidget *parent)
{
    const QString dossier = preferences.texte(cle);
    const bool connu = !dossier.isEmpty() && QDir(dossier).exists();
    auto *dialogue = new QFileDialog(
        parent, titre, connu ? dossier : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), filtre);
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    return dialogue;
}

void DialoguesDeFichier::ouvrir(QFileDialog *dialogue, QObject *contexte,
                                const std::function<void(const QString &chemin)> &faire)
{
    QObject::connect(dialogue, &QFileDialog::fileSelected, contexte, faire, Qt::QueuedConnection);
    dialogue->open();
}

void DialoguesDeFichier::prevenir(const QString &titre, const QString &texte, QWidget *parent)
{
    auto *boite = new QMessageBox(QMessageBox::Warning, titre, texte, QMessageBox::Ok, parent);
    boite->setAttribute(Qt::WA_DeleteOnClose);
    boite->open();
}

} // namespace Quillet
