#pragma once

#include <QDialog>

// A sheet over the window: a bar with its choices and the button that closes it (also Escape), its page below.
class Feuille : public QDialog
{
    Q_OBJECT

public:
    Feuille(const QString &titre, QWidget *parent);
    // Shows it over its window until it is closed, which ends its life.
    void ouvrir();

protected:
    // `choix` stands at the left of the bar.
    void meubler(QWidget *choix, QWidget *page);
    // The given size, or what the screen leaves.
    void prendreLaTaille(QSize taille);
    // A hairline between two parts of the sheet.
    static QWidget *filet(Qt::Orientation sens);
    void keyPressEvent(QKeyEvent *evenement) override;
};
