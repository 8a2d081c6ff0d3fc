#pragma once

#include <QWidget>

class Libelle;
class QHBoxLayout;

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
    QHBoxLayout *rangee_;
};
