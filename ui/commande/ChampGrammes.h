#pragma once

#include "composants/LigneDeTexte.h"
#include "model/Quantite.h"

#include <optional>

namespace Quillet {

// A weight in whole grams, as the French write it, counted at each key; empty when there is none.
class ChampGrammes : public LigneDeTexte
{
    Q_OBJECT

public:
    explicit ChampGrammes(QWidget *parent = nullptr);

    // Leaves what is being typed alone when it already means this weight; leaving the field shows it.
    void montrer(const std::optional<Grammes> &poids);

signals:
    void saisi(const std::optional<Grammes> &poids);

protected:
    void changeEvent(QEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;

private:
    [[nodiscard]] std::optional<Grammes> poids() const;
    void ajusterLaLargeur();
    void refuser();
    void accepter();

    std::optional<Grammes> montre_;
    std::optional<QString> description_; // while a refusal stands in its place
};

} // namespace Quillet
