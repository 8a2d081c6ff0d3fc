#include "composants/LectureDeListe.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <algorithm>
#include <array>

namespace Quillet {

namespace {

// What stands for a cell that is not there: Qt's bridge cannot be given none.
class Absente : public QAccessibleWidget, public QAccessibleTableCellInterface
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] bool isValid() const override { return false; } // nobody is led to it
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface *>(this) : nullptr;
    }
    [[nodiscard]] int columnIndex() const override { return -1; }
    [[nodiscard]] int rowIndex() const override { return -1; }
    [[nodiscard]] int columnExtent() const override { return 0; }
    [[nodiscard]] int rowExtent() const override { return 0; }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    [[nodiscard]] QAccessibleInterface *table() const override { return nullptr; }
    [[nodiscard]] bool isSelected() const override { return false; }
};

// All but the absent cells is Qt's own, which lives as long as the view does.
class Lecture : public QAccessibleObject, public QAccessibleTableInterface
{
public:
    Lecture(QWidget *vue, QAccessibleInterface *deQt)
        : QAccessibleObject(vue), qt_(*deQt), tableau_(*deQt->tableInterface()), absente_(vue)
    {
    }

    [[nodiscard]] QAccessibleInterface *cellAt(int ligne, int colonne) const override
    {
        auto *cellule = tableau_.cellAt(ligne, colonne);
        return cellule ? cellule : &absente_;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *enfant) const override
    {
        return enfant == &absente_ ? -1 : qt_.indexOfChild(enfant);
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : qt_.interface_cast(type);
    }
    [[nodiscard]] bool isValid() const override { return qt_.isValid(); }
    [[nodiscard]] QAccessibleInterface *parent() const override { return qt_.parent(); }
    [[nodiscard]] QAccessibleInterface *child(int rang) const override { return qt_.child(rang); }
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override { return qt_.childAt(x, y); }
    [[nodiscard]] int childCount() const override { return qt_.childCount(); }
    [[nodiscard]] QString text(QAccessible::Text texte) const override { return qt_.text(texte); }
    [[nodiscard]] QAccessibleInterface *focusChild() const override { return qt_.focusChild(); }
    [[nodiscard]] QList<std::pair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation lesquelles) const override
    {
        return qt_.relations(lesquelles);
    }
    [[nodiscard]] QWindow *window() const override { return qt_.window(); }
    [[nodiscard]] QRect rect() const override { return qt_.rect(); }
    [[nodiscard]] QAccessible::Role role() const override { return qt_.role(); }
    [[nodiscard]] QAccessible::State state() const override { return qt_.state(); }

    [[nodiscard]] QAccessibleInterface *caption() const override { return tableau_.caption(); }
    [[nodiscard]] QAccessibleInterface *summary() const override { return tableau_.summary(); }
    [[nodiscard]] int columnCount() const override { return tableau_.columnCount(); }
    [[nodiscard]] int rowCount() const override { return tableau_.rowCount(); }
    [[nodiscard]] QString columnDescription(int colonne) const override { return tableau_.columnDescription(colonne); }
    [[nodiscard]] QString rowDescription(int ligne) const override { return tableau_.rowDescription(ligne); }
    [[nodiscard]] int selectedCellCount() const override { return tableau_.selectedCellCount(); }
    [[nodiscard]] int selectedColumnCount() const override { return tableau_.selectedColumnCount(); }
    [[nodiscard]] int selectedRowCount() const override { return tableau_.selectedRowCount(); }
    [[nodiscard]] QList<QAccessibleInterface *> selectedCells() const override { return tableau_.selectedCells(); }
    [[nodiscard]] QList<int> selectedColumns() const override { return tableau_.selectedColumns(); }
    [[nodiscard]] QList<int> selectedRows() const override { return tableau_.selectedRows(); }
    [[nodiscard]] bool isColumnSelected(int colonne) const override { return tableau_.isColumnSelected(colonne); }
    [[nodiscard]] bool isRowSelected(int ligne) const override { return tableau_.isRowSelected(ligne); }
    bool selectRow(int ligne) override { return tableau_.selectRow(ligne); }
    bool selectColumn(int colonne) override { return tableau_.selectColumn(colonne); }
    bool unselectRow(int ligne) override { return tableau_.unselectRow(ligne); }
    bool unselectColumn(int colonne) override { return tableau_.unselectColumn(colonne); }
    void modelChange(QAccessibleTableModelChangeEvent *quoi) override { tableau_.modelChange(quoi); }

private:
    QAccessibleInterface &qt_;
    QAccessibleTableInterface &tableau_;
    mutable Absente absente_;
};

} // namespace

QAccessibleInterface *LectureDeListe::interfaceDe(const QString &classe, QObject *objet)
{
    static constexpr std::array vues{"QListView", "QTableView", "QTreeView"};
    const auto estCelle = [&classe](const char *vue) { return classe == QLatin1String(vue); };
    if (std::ranges::none_of(vues, estCelle))
        return nullptr;
    QAccessible::removeFactory(interfaceDe);
    auto *deQt = QAccessible::queryAccessibleInterface(objet); // Qt keeps it; of two, the last shows
    QAccessible::installFactory(interfaceDe);
    if (!deQt || !deQt->tableInterface())
        return nullptr;
    return new Lecture(static_cast<QWidget *>(objet), deQt); // Qt owns it
}

} // namespace Quillet
