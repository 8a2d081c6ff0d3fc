#include "composants/ChoixCouleur.h"

#include "composants/Boutons.h"
#include "composants/Dessin.h"
#include "composants/Pile.h"
#include "composants/Theme.h"

#include <QColorDialog>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

namespace Quillet {

namespace {

constexpr int diametre = 22;
constexpr int autour = 4; // of a disc: the mark of the chosen one, and the focus ring

} // namespace

// A disc of its colour, ringed once it is chosen.
class ChoixCouleur::Pastille : public QRadioButton
{
public:
    explicit Pastille(const Nuance &nuance)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        montrer(nuance);
    }

    void montrer(const Nuance &nuance)
    {
        couleur_ = nuance.couleur;
        setAccessibleName(nuance.nom);
        setToolTip(nuance.nom);
        update();
    }
    [[nodiscard]] const QColor &couleur() const { return couleur_; }
    [[nodiscard]] QSize sizeHint() const override
    {
        const int cote = Theme::aLaTaille(diametre) + 2 * autour;
        return {cote, cote};
    }

protected:
    [[nodiscard]] bool hitButton(const QPoint &position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        const QRectF disque = QRectF(rect()).adjusted(autour, autour, -autour, -autour);
        Dessin::encadre(peintre, disque, disque.width() / 2, couleur_, Theme::filet(palette()));
        if (isChecked()) {
            peintre.setPen(QPen(Theme::secondaire(palette()), Dessin::epaisseurDAnneau));
            peintre.setBrush(Qt::NoBrush);
            peintre.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
        }
        if (Dessin::focusVisible(this))
            Dessin::anneauDeFocus(peintre, rect(), width() / 2.0, Theme::accentTexte(palette()));
    }

private:
    QColor couleur_;
};

ChoixCouleur::ChoixCouleur(const QList<Nuance> &nuances, QWidget *parent)
    : QWidget(parent),
      autre_(new Pastille({QStringLiteral("Autre couleur"), {}})),
      bouton_(Boutons::deFeuille(QStringLiteral("Autre…")))
{
    QBoxLayout *rangee = Pile::rangee(this, {.espace = 4});
    for (const Nuance &nuance : nuances)
        pastilles_.append(new Pastille(nuance));
    pastilles_.append(autre_);
    for (Pastille *pastille : pastilles_) {
        rangee->addWidget(pastille);
        // Not clicked: a screen reader toggles without it.
        connect(pastille, &QAbstractButton::toggled, this, [this, pastille](bool choisie) {
            if (choisie)
                prendre(pastille->couleur());
        });
    }
    autre_->hide();
    rangee->addSpacing(4);
    rangee->addWidget(bouton_);
    bouton_->setAccessibleName(QStringLiteral("Autre couleur…"));
    connect(bouton_, &QPushButton::clicked, this, &ChoixCouleur::demander);
}

void ChoixCouleur::montrer(const QColor &couleur)
{
    couleur_ = couleur;
    Pastille *choisie = autre_;
    for (Pastille *pastille : pastilles_)
        if (pastille != autre_ && pastille->couleur() == couleur)
            choisie = pastille;
    autre_->setVisible(choisie == autre_);
    if (choisie == autre_)
        autre_->montrer({QStringLiteral("Autre couleur, %1").arg(couleur.name()), couleur});
    choisie->setChecked(true);
}

void ChoixCouleur::prendre(const QColor &couleur)
{
    if (couleur == couleur_)
        return;
    montrer(couleur);
    emit choisie(couleur);
}

void ChoixCouleur::demander()
{
    auto *dialogue = new QColorDialog(couleur_, this);
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialogue, &QColorDialog::colorSelected, this, &ChoixCouleur::prendre);
    dialogue->open();
}

} // namespace Quillet
