#pragma once

#include "ui/Aujourdhui.h"

#include <QDialog>

// A sheet over the window; Escape closes it.
class Feuille : public QDialog
{
    Q_OBJECT

public:
    Feuille(const QString &titre, QWidget *parent);
    // A sheet that shows what depends on the day is brought up to date when it is seen again on another.
    Feuille(const QString &titre, Aujourdhui aujourdhui, QWidget *parent);
    // Shows it over its window until it is closed, which ends its life.
    void ouvrir();

protected:
    virtual void actualiser() {}
    // Brings the sheet up to date if another day has come.
    void suivreLeJour();
    [[nodiscard]] QDate aujourdhui() const { return aujourdhui_(); }
    // A bar with the sheet's choices at its left and the button that closes it, the page below.
    void meubler(QWidget *choix, QWidget *page);
    // The given size, in proportion to the text, or what the screen leaves.
    void prendreLaTaille(QSize taille);
    // A hairline between two parts of the sheet.
    static QWidget *filet(Qt::Orientation sens);
    void keyPressEvent(QKeyEvent *evenement) override;
    bool event(QEvent *evenement) override;

private:
    Aujourdhui aujourdhui_;
    QDate jour_;
};
