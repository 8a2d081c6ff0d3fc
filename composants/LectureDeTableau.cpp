#include "composants/LectureDeTableau.h"

#include "composants/Tableau.h"

#include <QAccessibleWidget>
#include <QLabel>

namespace Quillet {

namespace {

QAccessibleInterface *lu(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

// A cell, or the head of a column.
class Cellule : public QAccessibleWidget, public QAccessibleTableCellInterface
{
public:
    Cellule(QWidget *cellule, Tableau &tableau) : QAccessibleWidget(cellule), tableau_(tableau) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface && !estUneTete()
                   ? static_cast<QAccessibleTableCellInterface *>(this)
                   : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
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

    [[nodiscard]] int columnIndex() const override { return tableau_.place(widget()).x(); }
    [[nodiscard]] int rowIndex() const override
    {
        return static_cast<int>(tableau_.rangees().indexOf(tableau_.place(widget()).y()));
    }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return {lu(tableau_.cellule(0, columnIndex()))};
    }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    [[nodiscard]] QAccessibleInterface *table() const override { return lu(&tableau_); }
    [[nodiscard]] bool isSelected() const override { return false; }

private:
    [[nodiscard]] bool estUneTete() const { return tableau_.place(widget()).y() == 0; }

    Tableau &tableau_; // its parent
};

class Lecture : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit Lecture(Tableau &tableau) : QAccessibleWidget(&tableau), tableau_(tableau) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    // Heads alone stand over a table that scrolls under them.
    [[nodiscard]] QAccessible::Role role() const override
    {
        return rowCount() > 0 ? QAccessible::Table : QAccessible::Grouping;
    }

    [[nodiscard]] int columnCount() const override { return tableau_.colonnes(); }
    [[nodiscard]] int rowCount() const override { return static_cast<int>(tableau_.rangees().size()); }
    [[nodiscard]] QAccessibleInterface *cellAt(int rangee, int colonne) const override
    {
        const int place = tableau_.rangees().value(rangee, 0); // whoever asks may be late
        return place > 0 && existe(colonne) ? lu(tableau_.cellule(place, colonne)) : nullptr;
    }
    [[nodiscard]] QString columnDescription(int colonne) const override
    {
        return existe(colonne) ? lu(tableau_.cellule(0, colonne))->text(QAccessible::Name) : QString();
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
    [[nodiscard]] bool existe(int colonne) const { return colonne >= 0 && colonne < columnCount(); }

    Tableau &tableau_;
};

} // namespace

QAccessibleInterface *LectureDeTableau::interfaceDe(const QString &, QObject *objet)
{
    // Qt owns them.
    if (auto *tableau = qobject_cast<Tableau *>(objet))
        return new Lecture(*tableau);
    auto *tableau = qobject_cast<Tableau *>(objet->parent());
    return tableau && objet->isWidgetType() ? new Cellule(static_cast<QWidget *>(objet), *tableau) : nullptr;
}

} // namespace Quillet
