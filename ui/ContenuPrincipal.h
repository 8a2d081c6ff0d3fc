#pragma once

#include "model/Preferences.h"

#include <QWidget>

#include <chrono>
#include <optional>

class Catalogue;
class Commande;
class ImagesCouvertures;
class JourCourant;
class Libelle;
class ListeRubriques;
class QStackedWidget;
class Verifications;

// The sections of the window, in the sidebar's order.
enum class Rubrique { commande, tarifs, livres };

// The window's two columns: the sections on the left, the chosen one's screen beside them.
class ContenuPrincipal : public QWidget
{
    Q_OBJECT

public:
    // From when the window shows, time enough for its first image to be on the screen.
    static constexpr std::chrono::milliseconds apresLaPremiereImage{150};

    ContenuPrincipal(Catalogue &catalogue, Commande &commande, Verifications &verifications, ImagesCouvertures &images,
                     Preferences preferences, JourCourant &jour, QWidget *parent = nullptr);

    // No section at all shows the order.
    void montrer(std::optional<Rubrique> rubrique);
    [[nodiscard]] std::optional<Rubrique> rubrique() const;
    // Ends the edit under way; false when it could not be saved, which its screen says.
    [[nodiscard]] bool conclure();
    // What its screens need, and never less than what they are drawn for.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    QWidget *barreLaterale();
    QWidget *tarifsEnVigueur();
    [[nodiscard]] QWidget *ecran(Rubrique rubrique);
    void actualiser();

    Catalogue &catalogue_;
    Commande &commande_;
    Verifications &verifications_;
    ImagesCouvertures &images_;
    Preferences preferences_;
    JourCourant &jour_;
    ListeRubriques *rubriques_;
    Libelle *enVigueur_;
    QStackedWidget *detail_;
    bool dejaMontre_ = false;
    QList<QWidget *> ecrans_; // by section; a screen is built when it is first shown
};
