#include "ui/documents/DialogueImpression.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>

namespace Quillet {

// By the names that Qt gives the parts, in both releases.
template <typename Partie>
Partie *DialogueImpression::partie(const char *nom) const
{
    return findChild<Partie *>(QLatin1String(nom));
}

DialogueImpression::DialogueImpression(QPrinter *reglages, QWidget *parent) : QPrintDialog(reglages, parent)
{
    setOptions(PrintToFile);
    // Qt would ask the server about each queue that is looked at: a place and a type, which are not shown.
    auto *files = partie<QComboBox>("printers");
    disconnect(files, &QComboBox::currentIndexChanged, partie<QWidget>("QPrintWidget"), nullptr);
    connect(files, &QComboBox::currentIndexChanged, this, &DialogueImpression::suivreLeChoix);
}

bool DialogueImpression::versUnFichier() const
{
    const auto *files = partie<QComboBox>("printers");
    return files->currentIndex() == files->count() - 1;
}

void DialogueImpression::suivreLeChoix()
{
    for (const char *nom : {"lOutput", "filename"})
        partie<QWidget>(nom)->setEnabled(versUnFichier());
    partie<QWidget>("tabs")->setEnabled(!versUnFichier());
}

FileImpression::Travail DialogueImpression::travail() const
{
    FileImpression::Travail travail{.file = partie<QComboBox>("printers")->currentText(),
                                    .exemplaires = partie<QSpinBox>("copies")->value()};
    if (!partie<QWidget>("colorMode")->isHidden())
        travail.enCouleur = partie<QRadioButton>("color")->isChecked();
    return travail;
}

QString DialogueImpression::fichier() const
{
    return versUnFichier() ? QDir::home().absoluteFilePath(partie<QLineEdit>("filename")->text()) : QString();
}

// Qt would ask the server once more to fill in its printer, which prints nothing here.
void DialogueImpression::accept()
{
    done(Accepted);
}

void DialogueImpression::setVisible(bool visible)
{
    QPrintDialog::setVisible(visible);
    if (!visible)
        return;
    for (const char *nom : {"gbPrintRange", "reverse", "collate", "outputIcon", "duplex"})
        partie<QWidget>(nom)->hide();
    auto *imprimante = partie<QWidget>("printerGroup");
    for (const char *nom : {"label_2", "location", "label_3", "type"})
        imprimante->findChild<QLabel *>(QLatin1String(nom))->hide();
    constexpr int options = 1; // the second tab, which may be empty now
    partie<QTabWidget>("tabs")->setTabVisible(options, !partie<QWidget>("colorMode")->isHidden());
    suivreLeChoix();
}

} // namespace Quillet
