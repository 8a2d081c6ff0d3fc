#pragma once

#include "model/Quantite.h"

#include <QLineEdit>

#include <optional>

// A whole number from 0 to `maximum`, as the French write it; empty when there is none.
class ChampEntier : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr qint64 maximum = UniteGramme::maximum;

    // `unite` names the unit in the message shown when something else is typed: "grammes".
    explicit ChampEntier(const QString &unite, QWidget *parent = nullptr);

    [[nodiscard]] std::optional<qint64> valeur() const;
    // Leaves what is being typed alone when it already means this value; leaving the field shows it.
    void montrer(std::optional<qint64> valeur);

signals:
    void saisie(std::optional<qint64> valeur);

protected:
    void changeEvent(QEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;

private:
    void ajusterLaLargeur();

    std::optional<qint64> montree_;
};
