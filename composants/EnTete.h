#pragma once

#include <QWidget>

class QBoxLayout;

namespace Quillet {

class Libelle;

// The head of a screen: its title, a line under it, its commands on the right.
class EnTete : public QWidget
{
    Q_OBJECT

public:
    explicit EnTete(const QString &titre, QWidget *parent = nullptr);
    void setSousTitre(const QString &sousTitre);
    void ajouter(QWidget *commande);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    Libelle *sousTitre_;
    QBoxLayout *rangee_;
};

} // namespace Quillet
