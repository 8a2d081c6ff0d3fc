#include "ui/documents/FactureAgrandie.h"

#include "composants/Boutons.h"
#include "composants/ChoixSegmente.h"
#include "composants/PageAuClavier.h"
#include "composants/Pile.h"
#include "documents/Facture.h"
#include "ui/documents/PageALEcran.h"
#include "ui/documents/PageFacture.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr int marge = 20;
constexpr QSize autour(2 * marge, 2 * marge);

} // namespace

// As large as its place, or than the page is.
class FactureAgrandie::PageEntiere : public QWidget
{
public:
    void montrer(const Facture &facture)
    {
        facture_ = facture;
        update();
    }

    void ajuster(bool ajustee)
    {
        ajustee_ = ajustee;
        setMinimumSize(ajustee ? QSize() : PageFacture::taille + autour);
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QSize sienne = PageFacture::taille;
        QRect cadre({}, ajustee_ ? sienne.scaled(size() - autour, Qt::KeepAspectRatio) : sienne);
        cadre.moveCenter(rect().center());
        QPainter peintre(this);
        peindreLaPage(peintre, facture_, cadre, palette());
    }

private:
    Facture facture_;
    bool ajustee_ = true;
};

FactureAgrandie::FactureAgrandie(QWidget *parent)
    : QWidget(parent), page_(new PageEntiere), defilement_(new PageAuClavier)
{
    defilement_->setWidget(page_);
    auto *echelle = new ChoixSegmente({QStringLiteral("Page entière"), QStringLiteral("100 %")}, {.police = font()});
    QPushButton *revenir = Boutons::deFeuille(QStringLiteral("Revenir à la facture"));
    connect(echelle, &ChoixSegmente::choisi, this, [this](int indice) { page_->ajuster(indice == 0); });
    connect(revenir, &QPushButton::clicked, this, &FactureAgrandie::quittee);
    echelle->montrer(0);
    Pile::colonne(
        this, {.espace = 0},
        {Pile::rangee({.marges = {marge, marge, marge, 0}}, {revenir, Pile::reste(), echelle}), {defilement_, 1}});
}

void FactureAgrandie::montrer(const Facture &facture)
{
    defilement_->setAccessibleName(facture.titre());
    page_->montrer(facture);
}

void FactureAgrandie::prendreLeFocus()
{
    defilement_->setFocus();
}

void FactureAgrandie::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape)
        emit quittee();
    else
        QWidget::keyPressEvent(evenement);
}

} // namespace Quillet
