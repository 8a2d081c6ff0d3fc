#pragma once

#include <QWidget>

class QToolButton;

namespace Quillet {

class Historique;

// Undo and redo of what is done to books and settings, by two buttons and, while their page is in sight, by keys. Who
// shows them does it: it may fail.
class BoutonsAnnulation : public QWidget
{
    Q_OBJECT

public:
    BoutonsAnnulation(const Historique &historique, QWidget *page);

signals:
    void annuler();
    void retablir();

private:
    QToolButton *creer(const QString &symbole, const QList<QKeySequence> &touches, QWidget *page);
    void actualiser();

    const Historique &historique_;
    QToolButton *annuler_;
    QToolButton *retablir_;
};

} // namespace Quillet
