#include "ui/commande/SelecteurQuantite.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/LecteurDEcran.h"
#include "composants/NombreRoulant.h"
#include "composants/Pile.h"
#include "composants/Ressort.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <initializer_list>

namespace Quillet {

namespace {

constexpr int ombre = 2;        // px around the capsule, but above
constexpr int bord = ombre + 4; // beside the buttons
constexpr int espace = 2;

int coteBouton()
{
    return Theme::aLaTaille(26);
}

int coteSymbole()
{
    return Theme::aLaTaille(15);
}

int largeurDuNombre()
{
    const QFontMetrics mesures(Theme::enGras(QApplication::font()));
    return std::max(18, mesures.horizontalAdvance(QStringLiteral("00")));
}

// Draws its symbol in the stepper's colour, which the stepper hands down as ButtonText.
class BoutonRond : public QAbstractButton
{
public:
    BoutonRond(QString symbole, const QString &nom) : symbole_(std::move(symbole))
    {
        TailleDuTexte::suivre(this, [this] { setFixedSize(coteBouton(), coteBouton()); });
        setAccessibleName(nom);
        setToolTip(nom);
        setAutoRepeat(true);
        setFocusPolicy(Qt::NoFocus); // their keys are on the cover
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        const QColor couleur = palette().color(QPalette::Active, QPalette::ButtonText);
        if (isEnabled() && (underMouse() || isDown()))
            Dessin::aplat(peintre, rect(), coteBouton() / 2.0, Dessin::transparente(couleur, isDown() ? 0.28 : 0.14));
        const double cote = coteSymbole();
        Icone::peindre(peintre, symbole_, QRectF((width() - cote) / 2, (height() - cote) / 2, cote, cote),
                       Dessin::transparente(couleur, isEnabled() ? 1 : 0.35));
    }

    void enterEvent(QEnterEvent *) override { update(); }
    void leaveEvent(QEvent *) override { update(); }

private:
    QString symbole_;
};

} // namespace

SelecteurQuantite::SelecteurQuantite(const QString &titre, QWidget *parent)
    : QWidget(parent),
      moins_(new BoutonRond(QStringLiteral("minus"), QStringLiteral("Retirer un exemplaire"))),
      plus_(new BoutonRond(QStringLiteral("plus"), QStringLiteral("Ajouter un exemplaire"))),
      nombre_(new NombreRoulant),
      plein_(new Ressort(Ressorts::action, this, [this](double) { colorer(); }))
{
    LecteurDEcran::jouer(this, QAccessible::Grouping);
    nombre_->setFont(Theme::enGras(font()));
    nombre_->setAlignment(Qt::AlignCenter);
    TailleDuTexte::suivre(nombre_, [this] { nombre_->setMinimumWidth(largeurDuNombre()); });
    nombre_->setText(QStringLiteral("0"));
    Pile::rangee(this, {.marges = {bord, 2, bord, 2 + ombre}, .espace = espace}, {moins_, nombre_, plus_});
    connect(moins_, &QAbstractButton::clicked, this, [this] { emit demande(-1); });
    connect(plus_, &QAbstractButton::clicked, this, [this] { emit demande(1); });
    moins_->setEnabled(false);
    setAccessibleName(QStringLiteral("%1, nombre d’exemplaires").arg(titre));
    decrire();
    colorer();
}

int SelecteurQuantite::largeurUsuelle()
{
    return 2 * (bord + coteBouton() + espace) + largeurDuNombre();
}

int SelecteurQuantite::depassement()
{
    constexpr double autourDuTrait = 0.16; // of the symbol, on each side
    return bord + qRound((coteBouton() - coteSymbole()) / 2.0 + autourDuTrait * coteSymbole());
}

void SelecteurQuantite::montrer(int quantite)
{
    if (quantite == quantite_)
        return;
    nombre_->afficher(QString::number(quantite), quantite > quantite_ ? 1 : -1);
    quantite_ = quantite;
    decrire();
    moins_->setEnabled(quantite > 0);
    plein_->vers(quantite > 0 ? 1 : 0);
}

// All cards have the same buttons: a screen reader hears whose they are from the group, then the number.
void SelecteurQuantite::decrire()
{
    for (QWidget *partie : {moins_, plus_})
        partie->setAccessibleDescription(QStringLiteral("%1 dans la commande").arg(quantite_));
}

void SelecteurQuantite::colorer()
{
    const QColor couleur = Dessin::melange(palette().color(QPalette::WindowText), Qt::white, plein_->valeur());
    for (QWidget *partie : std::initializer_list<QWidget *>{moins_, nombre_, plus_}) {
        QPalette teintee = partie->palette();
        teintee.setColor(QPalette::ButtonText, couleur);
        teintee.setColor(QPalette::WindowText, couleur);
        partie->setPalette(teintee);
    }
    update();
}

void SelecteurQuantite::changeEvent(QEvent *evenement)
{
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange)
        colorer();
}

void SelecteurQuantite::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QRectF capsule = QRectF(rect()).adjusted(ombre, 0, -ombre, -ombre);
    const double rayon = capsule.height() / 2;
    const double plein = std::clamp(plein_->valeur(), 0.0, 1.0);
    if (plein <= 0)
        return;
    peintre.setOpacity(plein);
    Dessin::ombreDouce(peintre, capsule);
    Dessin::aplat(peintre, capsule, rayon, Theme::accent(palette()));
}

} // namespace Quillet
