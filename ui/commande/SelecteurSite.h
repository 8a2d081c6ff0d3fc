#pragma once

#include "model/Vendeur.h"

#include <QWidget>

namespace Quillet {

class ChoixSegmente;
struct Donnees;

// The seller picker, by the names of the sellers' sites; hidden when there is but one.
class SelecteurSite : public QWidget
{
    Q_OBJECT

public:
    explicit SelecteurSite(const Donnees &donnees, QWidget *parent = nullptr);

    void montrer(const Donnees &donnees, Vendeur vendeur);
    // The last one that the Tab key reaches.
    [[nodiscard]] QWidget *dernierControle() const;

signals:
    void choisi(Vendeur vendeur);

private:
    void nommer(const Donnees &donnees);

    ChoixSegmente *choix_;
};

} // namespace Quillet
