#pragma once

#include <QMainWindow>
#include <QRect>

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
    void showEvent(QShowEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void creerMenu(MisesAJour &misesAJour);
    void creerRaccourcis();
    void aPropos();
    void reprendreLaPlace();
    void retenirLaPlace();

    Preferences &preferences_;
    ContenuPrincipal *contenu_;
    QRect ouverture_; // as it opened, but for filling the screen
    bool dejaMontree_ = false;
};

} // namespace Quillet
