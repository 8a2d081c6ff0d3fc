#pragma once

#include "model/Quantite.h"

#include <QWidget>

#include <optional>

namespace Quillet {

class Libelle;
class NombreRoulant;

// The amount to ask. It takes what its label leaves, and fits its type to it: a long total must not widen the panel.
class LigneDuTotal : public QWidget
{
    Q_OBJECT

public:
    explicit LigneDuTotal(const QString &libelle, const QMargins &marges = {}, QWidget *parent = nullptr);
    void montrer(const std::optional<Centimes> &total);

protected:
    void resizeEvent(QResizeEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;

private:
    void ajuster();

    Libelle *libelle_;
    NombreRoulant *total_;
};

} // namespace Quillet
