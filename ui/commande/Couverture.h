#pragma once

#include "model/Livre.h"

#include <QAbstractButton>
#include <QPixmap>

namespace Quillet {

class ImagesCouvertures;
class Ressort;

// A drawn cover that lifts under the pointer and carries the number of copies. It stands `debord` pixels inside the
// widget, `debordBas` at the bottom: room for the shadow and the lifted corner.
class Couverture : public QAbstractButton
{
    Q_OBJECT

public:
    static constexpr int debord = 24;
    static constexpr int debordBas = 44;

    Couverture(Livre livre, ImagesCouvertures &images, QWidget *parent = nullptr);

    void montrer(const Livre &livre, int quantite);
    void soulever(bool oui);
    [[nodiscard]] bool soulevee() const { return soulevee_; }
    // In the pixels of the parent, which paints it below its own texts; it falls farther than the cover's frame.
    void peindreOmbre(QPainter &peintre);

protected:
    void paintEvent(QPaintEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;

private:
    [[nodiscard]] QRectF cadre() const;
    [[nodiscard]] QTransform inclinaison() const;
    void oublierLeDessin();
    void dessiner(qreal densite);
    void peindrePastille(QPainter &peintre) const;

    Livre livre_;
    ImagesCouvertures &images_;
    int quantite_ = 0;
    bool soulevee_ = false;
    QPixmap dessin_;
    QPixmap ombreAuRepos_;
    QPixmap ombreSoulevee_;
    Ressort *soulevement_;
    Ressort *pastille_;
};

} // namespace Quillet
