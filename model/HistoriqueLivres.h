#pragma once

#include "model/Livre.h"

#include <QObject>
#include <QString>

#include <functional>

namespace Quillet {

class Catalogue;
struct PrixBouton;

// What the seller does to the books, to be undone and done again until the program closes. Each call writes the books
// before anything moves: one that throws ErreurStockage has changed nothing, here or in the catalogue. What changes
// nothing leaves no trace.
class HistoriqueLivres : public QObject
{
    Q_OBJECT

public:
    explicit HistoriqueLivres(Catalogue &catalogue, QObject *parent = nullptr);

    // `nom` says what is done: "prix de « Le Phare de sel »".
    void modifier(const Livre &livre, const QString &nom);
    void garder(const Livre &livre, const PrixBouton &ligne, const QString &nom);
    void reporter(const Livre &livre, const QList<PrixBouton> &lignes, const QString &nom);
    // Also throws RessourceIllisible.
    void revenirAuxValeursLivrees(const QString &nom);

    // The names of what `annuler` and `retablir` would act on; empty: nothing.
    [[nodiscard]] QString aAnnuler() const;
    [[nodiscard]] QString aRetablir() const;
    // Give the id of a book that changed; they need something to act on.
    qint64 annuler();
    qint64 retablir();

signals:
    void change();

private:
    struct Geste
    {
        QString nom;
        std::function<void()> faire;
        QList<Livre> avant; // the books it changed
    };

    void executer(const QString &nom, const std::function<void()> &faire);

    Catalogue &catalogue_;
    QList<Geste> faits_;
    QList<Geste> annules_;
};

} // namespace Quillet
