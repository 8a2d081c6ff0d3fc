#pragma once

#include "model/Livre.h"
#include "model/Reglages.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace Quillet {

class Catalogue;
struct PrixBouton;

// What the seller does to books and settings, to be undone and done again until the program closes or takes other data.
// Each call writes before anything moves: one that throws ErreurStockage has changed nothing, here or in the catalogue.
// What changes nothing leaves no trace.
class Historique : public QObject
{
    Q_OBJECT

public:
    explicit Historique(Catalogue &catalogue, QObject *parent = nullptr);

    // `nom` says what is done: "prix de « Le Phare de sel »".
    void modifier(const Livre &livre, const QString &nom);
    void garder(const Livre &livre, const PrixBouton &ligne, const QString &nom);
    void reporter(const Livre &livre, const QList<PrixBouton> &lignes, const QString &nom);
    // Also throws RessourceIllisible.
    void revenirAuxValeursLivrees(const QString &nom);
    // Only of the sellers' own data: books added, gone or in another order; sellers, packagings, customs.
    void remplacer(const QList<Livre> &livres, const QString &nom);
    void remplacer(const Reglages &reglages, const QString &nom);

    // The names of what `annuler` and `retablir` would act on; empty: nothing.
    [[nodiscard]] QString aAnnuler() const;
    [[nodiscard]] QString aRetablir() const;
    // Give the id of a book that changed, if any did; they need something to act on.
    std::optional<qint64> annuler();
    std::optional<qint64> retablir();

signals:
    void change();

private:
    struct Geste
    {
        QString nom;
        std::function<void()> faire;
        std::function<void()> defaire;
    };

    void executer(const QString &nom, const std::function<void()> &faire);
    [[nodiscard]] std::optional<qint64> toucher(const std::function<void()> &geste);

    Catalogue &catalogue_;
    QList<Geste> faits_;
    QList<Geste> annules_;
};

} // namespace Quillet
