#include "ui/livres/VueLivres.h"

#include "model/Catalogue.h"
#include "ui/Theme.h"
#include "ui/commande/ImagesCouvertures.h"
#include "ui/commun/EnTete.h"
#include "ui/livres/DelegueLivres.h"
#include "ui/livres/ModeleLivres.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

VueLivres::VueLivres(const Catalogue &catalogue, ImagesCouvertures &images, QWidget *parent)
    : QWidget(parent), catalogue_(catalogue), enTete_(new EnTete(tr("Livres")))
{
    auto *table = new QTableView;
    auto *modele = new ModeleLivres(catalogue, table);
    table->setModel(modele);
    table->setItemDelegate(new DelegueLivres(*modele, images, table));
    table->setAccessibleName(tr("Livres"));
    table->setFrameShape(QFrame::NoFrame);
    table->setShowGrid(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->viewport()->setAutoFillBackground(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(DelegueLivres::hauteurDeLigne);
    table->horizontalHeader()->viewport()->setBackgroundRole(QPalette::Window);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setFont(Theme::legende());
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(ModeleLivres::titre, QHeaderView::Stretch);
    connect(&images, &ImagesCouvertures::prete, table->viewport(), qOverload<>(&QWidget::update));

    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(enTete_);
    auto *cadre = new QVBoxLayout;
    cadre->setContentsMargins(28, 8, 16, 0);
    cadre->addWidget(table);
    colonne->addLayout(cadre, 1);

    connect(&catalogue_, &Catalogue::change, this, &VueLivres::actualiser);
    actualiser();
}

void VueLivres::actualiser()
{
    const qsizetype nombre = catalogue_.livres().size();
    enTete_->setSousTitre(nombre > 1 ? tr("%1 livres").arg(nombre) : tr("%1 livre").arg(nombre));
}
