#pragma once

#include "model/Livre.h"
#include "ui/livres/FeuilleDeLivre.h"

namespace Quillet {

// A draft of a book, which joins the sellers' own once nothing is wrong with it.
class FeuilleNouveauLivre : public FeuilleDeLivre
{
    Q_OBJECT

public:
    FeuilleNouveauLivre(const Contexte &contexte, const Livre &brouillon, QWidget *parent);

    void reject() override;

signals:
    void ajoute(qint64 id);

private:
    void ajouter();

    Livre propose_; // as it was before anybody typed
};

} // namespace Quillet
