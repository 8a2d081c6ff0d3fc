#pragma once

#include "composants/Theme.h"
#include "ui/Contexte.h"
#include "watch/MisesAJour.h"

#include <memory>
#include <optional>

namespace Quillet {

class Bureau;
class Fenetre;

// Owns what lives from start to exit: the catalogue, the one order, the weekly checks, the updates, the window.
class QuilletApp
{
public:
    // Style, fonts and French for the whole program; without a mode, light or dark follows the platform.
    static void preparer(std::optional<Theme::Mode> mode = std::nullopt);

    // Dark or light, contrast, motion and size of text as the desktop says by now, then as it changes.
    static void suivre(Bureau &bureau);

    // Throws RessourceIllisible. Without a source there are no updates.
    QuilletApp(const Ressources &ressources, const Stockage &stockage, const Preferences &preferences,
               Aujourdhui aujourdhui, const PagesSurveillees &pages, const SourceMisesAJour &misesAJour = {});
    ~QuilletApp();
    Q_DISABLE_COPY_MOVE(QuilletApp)

    [[nodiscard]] Commande &commande() { return commande_; }
    [[nodiscard]] const Contexte &contexte() const { return contexte_; }
    [[nodiscard]] Catalogue &catalogue() { return *catalogue_; }
    [[nodiscard]] Fenetre &fenetre() { return *fenetre_; }

private:
    // In this order: a check under way reads the catalogue, the window reads all.
    std::unique_ptr<Catalogue> catalogue_;
    Historique historique_;
    Commande commande_;
    MemoireFactures factures_;
    Verifications verifications_;
    MisesAJour misesAJour_;
    ImagesCouvertures images_;
    JourCourant jour_;
    Preferences preferences_;
    Contexte contexte_;
    std::unique_ptr<Fenetre> fenetre_;
};

} // namespace Quillet
