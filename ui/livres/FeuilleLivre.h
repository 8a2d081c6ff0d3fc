#pragma once

#include "echanges/CouverturePrete.h"
#include "model/Livre.h"
#include "ui/livres/FeuilleDeLivre.h"

#include <QList>

#include <functional>
#include <optional>

namespace Quillet {

// Edits one book of the sellers' own, then its neighbours: a field that is left is saved at once, and can be undone.
class FeuilleLivre : public FeuilleDeLivre
{
    Q_OBJECT

public:
    // `ordre`: the books that one goes through.
    FeuilleLivre(const Contexte &contexte, qint64 id, const QList<qint64> &ordre, QWidget *parent);

    void reject() override;

signals:
    void montre(qint64 id); // another book

private:
    [[nodiscard]] const Livre *livre() const; // null: it is gone
    void actualiser();
    bool enregistrer(const Livre &livre, const std::optional<CouverturePrete> &couverture, const QString &geste);
    void reprendreLaSaisie();
    void defaire(const std::function<std::optional<qint64>()> &geste);
    void montrer(std::optional<qint64> id);
    void passer(qsizetype pas);
    [[nodiscard]] bool conclure();

    qint64 id_;
    QList<qint64> ordre_;
    struct Saisie
    {
        Livre avant;
        Livre livre;
        std::optional<CouverturePrete> couverture;
    };
    std::optional<Saisie> saisie_; // that could not be saved, while data are read again
};

} // namespace Quillet
