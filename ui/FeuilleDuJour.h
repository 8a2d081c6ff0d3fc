#pragma once

#include "composants/Feuille.h"
#include "ui/Aujourdhui.h"

// A sheet that shows what depends on the day is brought up to date when it is seen again on another.
class FeuilleDuJour : public Feuille
{
    Q_OBJECT

public:
    FeuilleDuJour(const QString &titre, Aujourdhui aujourdhui, QWidget *parent);

protected:
    virtual void actualiser() = 0;
    // Brings the sheet up to date if another day has come.
    void suivreLeJour();
    [[nodiscard]] QDate aujourdhui() const { return aujourdhui_(); }
    bool event(QEvent *evenement) override;

private:
    Aujourdhui aujourdhui_;
    QDate jour_;
};
