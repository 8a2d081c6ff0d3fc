#pragma once

#include "textes/TextesDocuments.h"

#include <QStackedWidget>

namespace Quillet {

class Defilement;

// What the seller copies into La Poste's customs form.
class FicheDouane : public QStackedWidget
{
    Q_OBJECT

public:
    // `donnees` are read each time the screen is brought up to date.
    explicit FicheDouane(const Donnees &donnees, QWidget *parent = nullptr);
    void montrer(const Calcul &calcul);

private:
    [[nodiscard]] QWidget *instructions();
    [[nodiscard]] QWidget *page(const QString &manque);

    const Donnees &donnees_;
    QList<TextesDocuments::Rubrique> montrees_;
    Defilement *defilement_;
};

} // namespace Quillet
