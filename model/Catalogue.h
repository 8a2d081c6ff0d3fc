#pragma once

#include "model/Destination.h"
#include "model/Livre.h"
#include "model/PrixBouton.h"
#include "model/Reglages.h"
#include "model/Ressources.h"
#include "model/Stockage.h"
#include "model/Tarifs.h"

#include <QDate>
#include <QObject>

#include <memory>
#include <optional>

// The one store of reference data: shipped resources, with the user's files over them. A change is written
// before memory moves: an operation that throws ErreurStockage has changed nothing.
class Catalogue : public QObject
{
    Q_OBJECT

public:
    // Throws RessourceIllisible; a user's file that cannot be read is ignored.
    static std::unique_ptr<Catalogue> charge(const Ressources &ressources, Stockage stockage);

    [[nodiscard]] const QList<Livre> &livres() const { return livres_; }
    [[nodiscard]] const QList<TarifsColissimo> &grillesConnues() const { return grillesConnues_; }
    [[nodiscard]] const QList<Destination> &destinations() const { return destinations_; }
    [[nodiscard]] const Reglages &reglages() const { return reglages_; }

    // The schedule in force on a day (yyyy-mm-dd); before the first one, the earliest. It lives until a schedule is
    // saved.
    [[nodiscard]] const TarifsColissimo &tarifs(const QString &date) const;
    // The next schedule that is not yet in force.
    [[nodiscard]] std::optional<TarifsColissimo> tarifsAVenir(QDate aujourdhui) const;
    // Whether a known schedule has the same grids at the same prices, whatever its dates.
    [[nodiscard]] bool connait(const TarifsColissimo &tarifs) const;
    [[nodiscard]] std::optional<Destination> destination(const QString &code) const;
    // The book's buttons under a schedule: sent alone, in the default packaging.
    [[nodiscard]] QList<PrixBouton> boutons(const Livre &livre, const TarifsColissimo &tarifs) const;

    // Each writes a user's file and throws ErreurStockage.
    void enregistrer(const TarifsColissimo &tarifs);
    void enregistrer(const FraisPaypal &frais);
    void enregistrerLivres();
    // Replaces the books of the same ids.
    void modifier(const QList<Livre> &livres);
    // The button of this line stays as it is, although the grid gives another price.
    void garder(const Livre &livre, const PrixBouton &ligne);
    // The buttons of these lines now charge their computed price.
    void reporter(const Livre &livre, const QList<PrixBouton> &lignes);
    // Also throws RessourceIllisible.
    void revenirAuxValeursLivrees();
    // The books without the user's changes; throws RessourceIllisible.
    [[nodiscard]] QList<Livre> valeursLivrees() const;

signals:
    void change();

private:
    Catalogue(const Ressources &ressources, Stockage stockage);
    void ecrireLivres(const QList<Livre> &livres);
    template <typename T>
    void adopter(T &champ, const T &valeur);

    Ressources ressources_;
    Stockage stockage_;
    // In the order in which they are loaded.
    QList<TarifsColissimo> grillesConnues_;
    Reglages reglages_;
    QList<Livre> livres_;
    QList<Destination> destinations_;
};
