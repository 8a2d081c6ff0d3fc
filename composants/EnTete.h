#pragma once

#include "composants/Theme.h"

#include <QWidget>

class QBoxLayout;

namespace Quillet {

class Libelle;

// The head of a screen: its title, a line under it, its commands on the right.
class EnTete : public QWidget
{
    Q_OBJECT

public:
    // `marge`: on either side, px.
    explicit EnTete(const QString &titre, int marge = Theme::margeDePage, QWidget *parent = nullptr);
    // On a wide screen what it holds is as wide as the page below, and as centred; px, as `Theme::aLaTaille` takes
    // them.
    void setLargeur(int largeur);
    void setSousTitre(const QString &sousTitre);
    void ajouter(QWidget *commande);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QWidget *bandeau_;
    Libelle *sousTitre_;
    QBoxLayout *rangee_;
};

} // namespace Quillet
