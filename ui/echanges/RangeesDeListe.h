#pragma once

#include "composants/ListeDite.h"
#include "textes/TextesListe.h"

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>

namespace Quillet {

// The rows of a list of books, thousands maybe: each says what becomes of its book, over as many lines as it takes.
class RangeesDeListe : public ListeDite<QListView>
{
    Q_OBJECT

public:
    explicit RangeesDeListe(QWidget *parent = nullptr);
    void montrer(const QList<TextesListe::Rangee> &rangees);

private:
    class Modele;
    class Delegue;
    Modele *modele_;
};

} // namespace Quillet
