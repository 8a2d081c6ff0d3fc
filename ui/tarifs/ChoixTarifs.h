#pragma once

#include "model/Tarifs.h"

#include <QDate>
#include <QWidget>

class Catalogue;
class ChoixSegmente;
class QHBoxLayout;

// Which schedule a screen shows: the one in force, or the next one when there is one to look at.
class ChoixTarifs : public QWidget
{
    Q_OBJECT

public:
    explicit ChoixTarifs(QWidget *parent = nullptr);

    // The schedule chosen; the choice offers what the catalogue knows on that day.
    TarifsColissimo tarifs(const Catalogue &catalogue, QDate jour);
    [[nodiscard]] bool montreLesSuivants() const { return montreLesSuivants_; }

signals:
    void choisi();

private:
    void offrir(const std::optional<TarifsColissimo> &suivants);

    QHBoxLayout *place_;
    ChoixSegmente *choix_ = nullptr; // null without a next schedule
    QString offert_;                 // its second option
    bool montreLesSuivants_ = false;
};
