#pragma once

#include "model/Tarifs.h"

#include <QDate>
#include <QWidget>

namespace Quillet {

class ChoixSegmente;
struct Donnees;

// Which schedule a screen shows: the one in force, or the next one when there is one to look at.
class ChoixTarifs : public QWidget
{
    Q_OBJECT

public:
    explicit ChoixTarifs(QWidget *parent = nullptr);

    // Offers what the catalogue knows on that day; when that is something else, the schedule in force is shown again.
    void actualiser(const Donnees &donnees, QDate jour);
    [[nodiscard]] const TarifsColissimo &tarifs() const { return tarifs_; }
    [[nodiscard]] bool montreLesSuivants() const { return montreLesSuivants_; }

signals:
    // By the user; to be followed by `actualiser`.
    void choisi();

private:
    ChoixSegmente *choix_;
    QString offert_; // its second option; empty: there is none
    bool montreLesSuivants_ = false;
    TarifsColissimo tarifs_;
};

} // namespace Quillet
