#pragma once

#include "composants/ListeDite.h"

#include <QKeySequence>
#include <QListWidget>

namespace Quillet {

// The sidebar's list of sections.
class ListeRubriques : public ListeDite<QListWidget>
{
    Q_OBJECT

public:
    struct Entree
    {
        QString symbole;
        QString libelle;
        QKeySequence touches;
    };

    explicit ListeRubriques(const QList<Entree> &entrees, QWidget *parent = nullptr);
    // What waits in a section; 0 shows nothing.
    void setPastille(int rang, int nombre);
    // As wide as the longest of its sections with a badge.
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace Quillet
