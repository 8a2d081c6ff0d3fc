#pragma once

#include "model/Reglages.h"

#include <QWidget>

namespace Quillet {

class ChoixSegmente;

// The seller picker, by the names of the sellers' sites.
class SelecteurSite : public QWidget
{
    Q_OBJECT

public:
    explicit SelecteurSite(const Reglages &reglages, QWidget *parent = nullptr);

    void montrer(Vendeur vendeur);
    // The last one that the Tab key reaches.
    [[nodiscard]] QWidget *dernierControle() const;

signals:
    void choisi(Vendeur vendeur);

private:
    ChoixSegmente *choix_;
};

} // namespace Quillet
