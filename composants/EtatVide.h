#pragma once

#include <QWidget>

namespace Quillet {

class Libelle;

// What stands in place of a screen that has nothing to show: a symbol, a title, the reason.
class EtatVide : public QWidget
{
    Q_OBJECT

public:
    // Without a title, the reason stands alone under its symbol.
    explicit EtatVide(const QString &symbole = {}, const QString &titre = {}, const QString &raison = {},
                      QWidget *parent = nullptr);
    void montrer(const QString &symbole, const QString &titre, const QString &raison);

protected:
    void paintEvent(QPaintEvent *evenement) override;

private:
    QString symbole_;
    QWidget *place_; // of the symbol
    Libelle *titre_;
    Libelle *raison_;
};

} // namespace Quillet
