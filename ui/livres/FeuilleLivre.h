#pragma once

#include "ui/livres/FeuilleDeLivre.h"

#include <QList>

#include <optional>

namespace Quillet {

struct Livre;

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
    void enregistrer(const Livre &livre, const QString &geste);
    void montrer(std::optional<qint64> id);
    void passer(qsizetype pas);
    [[nodiscard]] bool conclure();

    qint64 id_;
    QList<qint64> ordre_;
};

} // namespace Quillet
