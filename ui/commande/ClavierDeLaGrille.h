#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

#include <optional>

class QKeyEvent;

namespace Quillet {

class CarteLivre;

// Makes the covers one stop of the Tab key, inside which arrows and letters walk and digits count.
class ClavierDeLaGrille : public QObject
{
    Q_OBJECT

public:
    explicit ClavierDeLaGrille(QObject *parent);
    // The cards now shown; Tab stops at the first one, later at the one that had the focus last.
    void suivre(const QList<CarteLivre *> &cartes);
    // Null when there is no card.
    [[nodiscard]] QWidget *arret() const;

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void arreterA(int rang);
    void aller(int rang);
    bool presser(const QKeyEvent &touche);
    bool ecrire(QChar signe, bool repetee);

    QList<CarteLivre *> cartes_;
    int rang_ = 0;
    QTimer frappe_; // runs while one goes on typing
    QString lettres_;
    std::optional<int> nombre_;
};

} // namespace Quillet
