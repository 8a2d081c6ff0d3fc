#pragma once

#include <QAbstractItemView>
#include <QAccessible>

namespace Quillet {

// A QListView or a QListWidget of which screen readers are told where the focus is: on its row as soon as the list has
// it, nowhere in the list as long as it has not. Qt 6.4 tells neither.
template <typename Liste>
class ListeDite : public Liste
{
public:
    using Liste::Liste;

protected:
    void focusInEvent(QFocusEvent *evenement) override
    {
        Liste::focusInEvent(evenement);
        // The list itself is told of after this.
        const auto dire = [this] { direLaLigne(); };
        QMetaObject::invokeMethod(this, dire, Qt::QueuedConnection);
    }

    void currentChanged(const QModelIndex &ligne, const QModelIndex &precedente) override
    {
        if (this->hasFocus())
            Liste::currentChanged(ligne, precedente);
        else
            QAbstractItemView::currentChanged(ligne, precedente); // all that it does, but for telling
    }

private:
    void direLaLigne()
    {
        if (!this->hasFocus() || !this->currentIndex().isValid())
            return;
        QAccessibleEvent ligne(this, QAccessible::Focus);
        ligne.setChild(this->currentIndex().row());
        QAccessible::updateAccessibility(&ligne);
    }
};

} // namespace Quillet
