#pragma once

#include <QWidget>

namespace Quillet {

class PageAuClavier;
struct Facture;

// The invoice's page alone in its sheet, whole or at its own size, until Escape or its button takes it away.
class FactureAgrandie : public QWidget
{
    Q_OBJECT

public:
    explicit FactureAgrandie(QWidget *parent = nullptr);
    void montrer(const Facture &facture);
    void prendreLeFocus();

signals:
    void quittee();

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    class PageEntiere;

    PageEntiere *page_;
    PageAuClavier *defilement_;
};

} // namespace Quillet
