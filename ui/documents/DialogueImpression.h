#pragma once

#include "ui/documents/FileImpression.h"

#include <QPrintDialog>

namespace Quillet {

// The platform's dialog, with what counts for an invoice of one page. It asks the print server on the window's thread,
// but only while it is made.
class DialogueImpression : public QPrintDialog
{
    Q_OBJECT

public:
    DialogueImpression(QPrinter *reglages, QWidget *parent);

    [[nodiscard]] FileImpression::Travail travail() const;
    // Where the page is to be written instead of being printed; empty when it is not.
    [[nodiscard]] QString fichier() const;
    void accept() override;
    void setVisible(bool visible) override;

private:
    template <typename Partie>
    [[nodiscard]] Partie *partie(const char *nom) const;
    [[nodiscard]] bool versUnFichier() const;
    void suivreLeChoix();
};

} // namespace Quillet
