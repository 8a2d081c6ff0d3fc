#pragma once

#include "documents/Facture.h"

#include <QAbstractButton>

namespace Quillet {

// The invoice's page, reduced; a click shows it at its own size.
class ApercuFacture : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ApercuFacture(QWidget *parent = nullptr);
    void montrer(const Facture &facture);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    void agrandir();

    Facture facture_;
};

} // namespace Quillet
