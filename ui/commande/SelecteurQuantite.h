#pragma once

#include <QWidget>

class QAbstractButton;

namespace Quillet {

class NombreRoulant;
class Ressort;

// The stepper of one card: minus, the number of copies, plus.
class SelecteurQuantite : public QWidget
{
    Q_OBJECT

public:
    explicit SelecteurQuantite(const QString &titre, QWidget *parent = nullptr);

    void montrer(int quantite);
    // Of one that shows a figure or two, px.
    [[nodiscard]] static int largeurUsuelle();
    // From the stroke of the plus to its right edge, px: what stands above is in line with the stroke.
    [[nodiscard]] static int depassement();

signals:
    // One copy more, or one less.
    void demande(int difference);

protected:
    void changeEvent(QEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;

private:
    void decrire();
    void colorer();

    int quantite_ = 0;
    QAbstractButton *moins_;
    QAbstractButton *plus_;
    NombreRoulant *nombre_;
    Ressort *plein_; // 0: empty, 1: on the accent capsule
};

} // namespace Quillet
