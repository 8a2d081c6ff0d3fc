#pragma once

#include <QMainWindow>

class Catalogue;
class Commande;
class ContenuPrincipal;
class ImagesCouvertures;
class JourCourant;
class MisesAJour;
class Preferences;
class Verifications;

// The one window and its menu. Closing it ends the program.
class Fenetre : public QMainWindow
{
    Q_OBJECT

public:
    Fenetre(Catalogue &catalogue, Commande &commande, Verifications &verifications, MisesAJour &misesAJour,
            ImagesCouvertures &images, const Preferences &preferences, JourCourant &jour);

    // What it opens at, on a screen that is large enough.
    [[nodiscard]] QSize tailleParDefaut() const;
    [[nodiscard]] ContenuPrincipal *contenu() const { return contenu_; }
    // Back from an icon or from behind other windows. The token is what a compositor allows it by; without one it may
    // only ask for attention.
    void ramener(const QByteArray &jeton);

protected:
    void closeEvent(QCloseEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void creerMenu(MisesAJour &misesAJour);
    void creerRaccourcis();
    void aPropos();

    ContenuPrincipal *contenu_;
};
