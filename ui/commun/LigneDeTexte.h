#pragma once

#include <QLineEdit>

// A line of text that keeps undo to itself only while it has typing of its own to undo: otherwise its screen's undo
// answers to the same keys.
class LigneDeTexte : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent *evenement) override;
};
