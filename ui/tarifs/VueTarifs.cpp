#include "ui/tarifs/VueTarifs.h"

#include "model/Catalogue.h"
#include "model/Format.h"
#include "ui/Theme.h"
#include "ui/commun/Defilement.h"
#include "ui/commun/Dessin.h"
#include "ui/commun/EnTete.h"
#include "ui/commun/Libelle.h"
#include "ui/tarifs/CarteGrille.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int colonnes = 2;

// Nothing on this page takes the focus: the page itself does, so that the keys scroll it.
class Page : public Defilement
{
public:
    Page() { setFocusPolicy(Qt::StrongFocus); }

protected:
    void keyPressEvent(QKeyEvent *touche) override
    {
        if (touche->key() == Qt::Key_Home)
            verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
        else if (touche->key() == Qt::Key_End)
            verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
        else
            Defilement::keyPressEvent(touche);
    }

    void focusInEvent(QFocusEvent *evenement) override
    {
        Defilement::focusInEvent(evenement);
        viewport()->update();
    }

    void focusOutEvent(QFocusEvent *evenement) override
    {
        Defilement::focusOutEvent(evenement);
        viewport()->update();
    }

    void paintEvent(QPaintEvent *evenement) override
    {
        Defilement::paintEvent(evenement);
        if (!Dessin::focusVisible(this))
            return;
        QPainter peintre(viewport());
        peintre.setRenderHint(QPainter::Antialiasing);
        Dessin::anneauDeFocus(peintre, QRectF(viewport()->rect()).adjusted(6, 6, -6, -6), Theme::rayonControle,
                              Theme::accentTexte(palette()));
    }
};

// A card that is alone on its row takes all of it.
QWidget *famille(const TextesTarifs::Famille &textes)
{
    auto *section = new QWidget;
    section->setAccessibleName(textes.titre);
    auto *titre = new Libelle(textes.titre);
    titre->setFont(Theme::titreSection());
    auto *cartes = new QGridLayout(section);
    cartes->setContentsMargins(0, 0, 0, 0);
    cartes->setHorizontalSpacing(16);
    cartes->setVerticalSpacing(12);
    cartes->addWidget(titre, 0, 0, 1, colonnes);
    for (int i = 0; i < textes.grilles.size(); ++i) {
        const int colonne = i % colonnes;
        const bool seule = colonne == 0 && i == textes.grilles.size() - 1;
        const int largeur = seule ? colonnes : 1;
        cartes->addWidget(new CarteGrille(textes.grilles[i], largeur), 1 + i / colonnes, colonne, 1, largeur);
    }
    for (int i = 0; i < colonnes; ++i)
        cartes->setColumnStretch(i, 1);
    return section;
}

QWidget *page(const QList<TextesTarifs::Famille> &familles, int ascenseur)
{
    auto *contenu = new QWidget;
    contenu->setMaximumWidth(Theme::largeurDePage);
    auto *sections = new QVBoxLayout(contenu);
    sections->setContentsMargins(0, 0, 0, 0);
    sections->setSpacing(32);
    for (const TextesTarifs::Famille &textes : familles)
        sections->addWidget(famille(textes));
    sections->addStretch(1);

    auto *page = new QWidget;
    auto *marges = new QHBoxLayout(page);
    marges->setContentsMargins(Theme::margeDePage, 24, Theme::margeDePage - ascenseur, 28);
    marges->addWidget(contenu, 1);
    marges->addStretch(0);
    return page;
}

} // namespace

VueTarifs::VueTarifs(const Catalogue &catalogue, Aujourdhui aujourdhui, QWidget *parent)
    : QWidget(parent),
      catalogue_(catalogue),
      aujourdhui_(std::move(aujourdhui)),
      enTete_(new EnTete(tr("Tarifs Colissimo"))),
      defilement_(new Page)
{
    defilement_->setAccessibleName(tr("Grilles en vigueur"));
    defilement_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(enTete_);
    colonne->addWidget(defilement_, 1);
    connect(&catalogue_, &Catalogue::change, this, &VueTarifs::actualiser);
    actualiser();
}

void VueTarifs::actualiser()
{
    const TarifsColissimo &tarifs = catalogue_.tarifs(Format::iso(aujourdhui_()));
    enTete_->setSousTitre(TextesTarifs::enVigueur(tarifs));
    // A change of the books leaves the page, and its place in it, alone.
    const auto familles = TextesTarifs::familles(tarifs);
    if (familles == familles_)
        return;
    familles_ = familles;
    defilement_->setWidget(page(familles_, defilement_->verticalScrollBar()->sizeHint().width()));
    defilement_->widget()->setAutoFillBackground(false); // the focus ring is painted behind it
}

// Another day may have come since the screen was last seen.
bool VueTarifs::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::Show || evenement->type() == QEvent::WindowActivate)
        actualiser();
    return QWidget::event(evenement);
}
