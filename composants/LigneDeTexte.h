#pragma once

#include <QLineEdit>

#include <optional>

namespace Quillet {

// A line of text that keeps undo and redo to itself only while it has typing of its own, otherwise its screen answers
// the same keys; that leaves Ctrl+E, which elsewhere is End, to its screen; and that drops the line breaks that are
// pasted.
class LigneDeTexte : public QLineEdit
{
    Q_OBJECT

public:
    explicit LigneDeTexte(QWidget *parent = nullptr);

    // An example of what to type, as long as nothing is.
    void setInvite(const QString &invite);
    // Whether a field that loses the focus to a menu or another window will have it again: nothing is over.
    static bool reviendra(const QFocusEvent &perte);

protected:
    bool event(QEvent *evenement) override;

private:
    void inviter();

    std::optional<QString> invite_; // none: the field has a placeholder of another kind, or none
};

} // namespace Quillet
