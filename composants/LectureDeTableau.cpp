#include "composants/LectureDeTableau.h"

#include "composants/Tableau.h"

#include <QAccessibleWidget>
#include <QLabel>

#include <algorithm>

namespace Quillet {

namespace {

QAccessibleInterface *lu(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

// A cell, or the head of a column. The table is asked anew each time: while it goes, its cells are widgets like others.
class Cellule : public QAccessibleWidget, public QAccessibleTableCellInterface
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface && place() && !estUneTete()
                   ? static_cast<QAccessibleTableCellInterface *>(this)
                   : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        if (!place())
            return QAccessibleWidget::role();
        return estUneTete() ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    // All that is written in it.
    [[nodiscard]] QString text(QAccessible::Text texte) const override
    {
        if (texte != QAccessible::Name)
            return QAccessibleWidget::text(texte);
        QStringList mots;
        for (QLabel *libelle : widget()->findChildren<QLabel *>())
            if (estUneTete() || libelle->isVisibleTo(widget()))
                mots.append(lu(libelle)->text(QAccessible::Name));
        mots.removeAll(QString());
        return mots.join(QStringLiteral(", "));
    }

    [[nodiscard]] int columnIndex() const override { return place() ? place()->colonne : -1; }
    [[nodiscard]] int rowIndex() const override
    {
        return place() ? static_cast<int>(tableau()->rangees().indexOf(place()->rangee)) : -1;
    }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return place() ? QList{lu(tableau()->cellule(0, columnIndex()))} : QList<QAccessibleInterface *>();
    }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    [[nodiscard]] QAccessibleInterface *table() const override
    {
        return place() ? lu(widget()->parentWidget()) : nullptr;
    }
    [[nodiscard]] bool isSelected() const override { return false; }

private:
    [[nodiscard]] const Tableau *tableau() const { return qobject_cast<const Tableau *>(widget()->parentWidget()); }
    [[nodiscard]] std::optional<Tableau::Place> place() const
    {
        return tableau() ? tableau()->place(widget()) : std::nullopt;
    }
    [[nodiscard]] bool estUneTete() const { return place() && place()->rangee == 0; }
};

class Lecture : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit Lecture(Tableau *tableau) : QAccessibleWidget(tableau) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface && estUnTableau() ? static_cast<QAccessibleTableInterface *>(this)
                                                                     : QAccessibleWidget::interface_cast(type);
    }
    // Heads alone stand over a table that scrolls under them.
    [[nodiscard]] QAccessible::Role role() const override
    {
        return estUnTableau() ? QAccessible::Table : QAccessible::Grouping;
    }

    [[nodiscard]] int columnCount() const override { return tableau() ? tableau()->colonnes() : 0; }
    [[nodiscard]] int rowCount() const override
    {
        return tableau() ? static_cast<int>(tableau()->rangees().size()) : 0;
    }
    // Whoever asks may be late, or count the heads in: Qt's bridge cannot be told that there is no cell.
    [[nodiscard]] QAccessibleInterface *cellAt(int rangee, int colonne) const override
    {
        if (!estUnTableau())
            return nullptr;
        const auto rangees = tableau()->rangees();
        const auto proche = std::clamp<qsizetype>(rangee, 0, std::max<qsizetype>(rangees.size() - 1, 0));
        return lu(tableau()->cellule(rangees.value(proche, 1), std::clamp(colonne, 0, columnCount() - 1)));
    }
    [[nodiscard]] QString columnDescription(int colonne) const override
    {
        return existe(colonne) ? lu(tableau()->cellule(0, colonne))->text(QAccessible::Name) : QString();
    }
    [[nodiscard]] QString rowDescription(int) const override { return {}; }
    [[nodiscard]] QAccessibleInterface *caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *summary() const override { return nullptr; }

    // Nothing is chosen in it.
    [[nodiscard]] int selectedCellCount() const override { return 0; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override { return 0; }
    [[nodiscard]] QList<QAccessibleInterface *> selectedCells() const override { return {}; }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override { return {}; }
    [[nodiscard]] bool isColumnSelected(int) const override { return false; }
    [[nodiscard]] bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override {} // nothing is remembered

private:
    [[nodiscard]] const Tableau *tableau() const { return qobject_cast<const Tableau *>(object()); }
    [[nodiscard]] bool estUnTableau() const { return tableau() && !tableau()->estVide(); }
    [[nodiscard]] bool existe(int colonne) const { return colonne >= 0 && colonne < columnCount(); }
};

} // namespace

QAccessibleInterface *LectureDeTableau::interfaceDe(const QString &, QObject *objet)
{
    // Qt owns them.
    if (auto *tableau = qobject_cast<Tableau *>(objet))
        return new Lecture(tableau);
    return objet->isWidgetType() && qobject_cast<Tableau *>(objet->parent())
               ? new Cellule(static_cast<QWidget *>(objet))
               : nullptr;
}

} // namespace Quillet
