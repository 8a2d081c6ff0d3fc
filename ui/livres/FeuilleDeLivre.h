#pragma once

#include "composants/Feuille.h"

#include <QTimer>

#include <functional>

namespace Quillet {

class AlerteRelecture;
class FormulaireLivre;
struct Contexte;

// A sheet around the form of a book of the sellers' own.
class FeuilleDeLivre : public Feuille
{
    Q_OBJECT

protected:
    FeuilleDeLivre(const QString &titre, const Contexte &contexte, QWidget *parent);

    // The form, and above it what failed.
    QWidget *page();
    // False: it failed, which is said; nothing has changed.
    bool tenter(const std::function<void()> &geste);
    // Whether something was just said that nobody has had the time to read: not the moment to close.
    [[nodiscard]] bool aLire() const { return lecture_.isActive(); }

    const Contexte &contexte_;
    FormulaireLivre *formulaire_;
    AlerteRelecture *echec_;

private:
    void cadrer();

    QTimer lecture_;
};

} // namespace Quillet
