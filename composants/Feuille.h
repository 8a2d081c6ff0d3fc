#pragma once

#include <QDialog>
#include <QPointer>

namespace Quillet {

// A sheet over the window; Escape closes it, once it has left a field in which something was typed and not yet used.
class Feuille : public QDialog
{
    Q_OBJECT

public:
    Feuille(const QString &titre, QWidget *parent);
    // Shows it over its window until it is closed, which ends its life.
    void ouvrir();

    // Dialogs opened from it go with it.
    void done(int resultat) override;

protected:
    // A bar with the sheet's choices at its left and the button that closes it, the page below.
    void meubler(QWidget *choix, QWidget *page);
    // The given size, in proportion to the text, or what the screen leaves.
    void prendreLaTaille(QSize taille);
    // A hairline between two parts of the sheet.
    static QWidget *filet(Qt::Orientation sens);
    void keyPressEvent(QKeyEvent *evenement) override;
    // What was typed has served: Escape need not save it any more.
    void compterPourFait();

private:
    void finir();
    [[nodiscard]] bool aTape() const; // in the field that has the focus, since it has it

    int boucles_ = 0;               // that ran when it opened, the dialogs' own apart
    QPointer<const QWidget> champ_; // that had the focus last
    QString avant_;                 // what it held before
};

} // namespace Quillet
