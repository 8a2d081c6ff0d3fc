#pragma once

#include <QMainWindow>
#include <QRect>
#include <QTimer>

namespace Quillet {

class ContenuPrincipal;
class MisesAJour;
class Preferences;
struct Contexte;

// The one window and its menu. Closing it ends the program.
class Fenetre : public QMainWindow
{
    Q_OBJECT

public:
    Fenetre(const Contexte &contexte, MisesAJour &misesAJour);

    // What it opens at, on a screen that is large enough.
    [[nodiscard]] QSize tailleParDefaut() const;
    [[nodiscard]] ContenuPrincipal *contenu() const { return contenu_; }
    // Back from an icon or from behind other windows. The token is what a compositor allows it by; without one it may
    // only ask for attention.
    void ramener(const QByteArray &jeton);

signals:
    // Once, when the first image has had the time to be on the screen.
    void posee();

protected:
    void closeEvent(QCloseEvent *evenement) override;
    void moveEvent(QMoveEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void creerRaccourcis();
    void reprendreLaPlace();
    void retenirLaPlace();

    Preferences &preferences_;
    ContenuPrincipal *contenu_;
    QRect ordinaire_;        // where it stands but for filling the screen
    bool dejaPosee_ = false; // where it came to rest first
    QTimer repos_;           // runs while it has just been moved: nothing is written at exit
    bool dejaMontree_ = false;
};

} // namespace Quillet
