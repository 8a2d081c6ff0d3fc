#include "ui/livres/VueLivres.h"

#include "model/Catalogue.h"
#include "ui/Theme.h"
#include "ui/commande/ImagesCouvertures.h"
#include "ui/commun/EnTete.h"
#include "ui/commun/TextesLivres.h"
#include "ui/livres/DelegueLivres.h"
#include "ui/livres/ModeleLivres.h"

#include <QListView>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// The margins belong to the list: its scroll bar stands at the edge of the screen.
class Liste : public QListView
{
public:
    Liste()
    {
        setViewportMargins(Theme::margeDePage, 0, Theme::margeDePage - style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                           0);
    }
};

} // namespace

VueLivres::VueLivres(const Catalogue &catalogue, ImagesCouvertures &images, QWidget *parent)
    : QWidget(parent), catalogue_(catalogue), enTete_(new EnTete(tr("Livres")))
{
    auto *liste = new Liste;
    auto *modele = new ModeleLivres(catalogue, liste);
    liste->setModel(modele);
    liste->setItemDelegate(new DelegueLivres(*modele, images, liste));
    liste->setAccessibleName(tr("Livres"));
    liste->setFrameShape(QFrame::NoFrame);
    liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    liste->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    liste->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    liste->verticalScrollBar()->setSingleStep(40);
    liste->viewport()->setAutoFillBackground(false);
    connect(&images, &ImagesCouvertures::prete, liste->viewport(), qOverload<>(&QWidget::update));

    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(0);
    page->addWidget(enTete_);
    page->addWidget(liste, 1);

    connect(&catalogue_, &Catalogue::change, this, &VueLivres::actualiser);
    actualiser();
}

void VueLivres::actualiser()
{
    enTete_->setSousTitre(TextesLivres::nombre(catalogue_.livres().size()));
}
