#pragma once

#include "model/Donnees.h"
#include "model/DossierPersonnel.h"
#include "model/Ressources.h"
#include "model/Stockage.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace Quillet {

// The one store of reference data: shipped resources, with the user's files over them. Holds them, saves them, tells
// when they changed. A change is written before memory moves: an operation that throws ErreurStockage has changed
// nothing.
class Catalogue : public QObject
{
    Q_OBJECT

public:
    // Throws RessourceIllisible; a user's file that cannot be read is ignored.
    static std::unique_ptr<Catalogue> charge(const Ressources &ressources, const Stockage &stockage);

    [[nodiscard]] const Donnees &donnees() const { return donnees_; }

    [[nodiscard]] const Ressources &ressources() const { return ressources_; }
    [[nodiscard]] const Stockage &stockage() const { return stockage_; }

    // Each writes a user's file and throws ErreurStockage: over shipped books, what they say of each one; of the
    // sellers' own, the books themselves.
    void enregistrer(const TarifsColissimo &tarifs);
    void enregistrer(const FraisPaypal &frais);
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

    // Only of the sellers' own data. They also throw DonneesChangees.
    void remplacer(const QList<Livre> &livres);
    // All but PayPal's fees, which are accepted on their own.
    void remplacer(const Reglages &reglages);
    // The folder of these, as last read or written here; none of others' data.
    [[nodiscard]] const std::optional<DossierPersonnel> &personnel() const { return personnel_; }
    // Takes the data in force anew, whoever they belong to by now. Throws RessourceIllisible: memory then stands.
    void recharger() { prendre(relecture()()); }
    // The same in two: what reads, which a thread may do for it holds all that it needs, then what takes.
    struct Lecture;
    using Lue = std::shared_ptr<const Lecture>;
    [[nodiscard]] std::function<Lue()> relecture() const;
    void prendre(const Lue &lue);

signals:
    void change();
    void recharge(); // before `change`: nothing that was kept of the former data holds

private:
    explicit Catalogue(const Lecture &lecture);
    void ecrireLivres(const QList<Livre> &livres);
    template <typename T>
    void adopter(T &champ, const T &valeur);

    Ressources ressources_;
    Stockage stockage_;
    std::optional<DossierPersonnel> personnel_;
    Donnees donnees_;
    FraisPaypal fraisDuDossier_; // those that accepted ones stand over
};

} // namespace Quillet
