#pragma once

#include <QPlainTextEdit>

// A field of several lines that looks like the other fields; Tab leaves it.
class ZoneDeTexte : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ZoneDeTexte(int lignes, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *evenement) override;
    void focusInEvent(QFocusEvent *evenement) override;
    void focusOutEvent(QFocusEvent *evenement) override;
};
