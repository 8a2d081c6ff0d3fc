#pragma once

#include <QPlainTextEdit>

namespace Quillet {

// A field of several lines that looks like the other fields; Tab leaves it.
class ZoneDeTexte : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ZoneDeTexte(int lignes, QWidget *parent = nullptr);

protected:
    bool event(QEvent *evenement) override;
    void insertFromMimeData(const QMimeData *contenu) override;
};

} // namespace Quillet
