#pragma once

#include <QLineEdit>

// A line of text that keeps undo and redo to itself only while it has typing of its own: otherwise its screen's answer
// to the same keys.
class LigneDeTexte : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent *evenement) override;
};
