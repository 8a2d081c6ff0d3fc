#pragma once

#include "documents/Facture.h"

#include <QAbstractButton>

namespace Quillet {

// The invoice's page, reduced: a button that asks for a larger one.
class ApercuFacture : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ApercuFacture(QWidget *parent = nullptr);
    void montrer(const Facture &facture);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    Facture facture_;
};

} // namespace Quillet
