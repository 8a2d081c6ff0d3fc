#include "composants/ChoixSegmente.h"

#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/Pile.h"
#include "composants/Ressort.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QPainter>
#include <QRadioButton>

#include <algorithm>
#include <cmath>

namespace Quillet {

namespace {

// Readers of the time of Qt 6.8 say the name of a choice with its radio button, and again if it is a group; earlier
// ones say it only then.
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
constexpr QAccessible::Role roleDuChoix = QAccessible::Grouping;
#else
constexpr QAccessible::Role roleDuChoix = QAccessible::Client;
#endif

constexpr int margeTexte = 18;
constexpr double reductionMinimale = 0.8;

class Segment : public QRadioButton
{
public:
    Segment(const QString &texte, const ChoixSegmente::Apparence &apparence)
        : QRadioButton(texte), apparence_(apparence)
    {
        setFont(apparence.police);
        TailleDuTexte::suivre(this, [this] {
            setFixedHeight(hauteur());
            setMaximumWidth(Theme::aLaTaille(apparence_.largeurMaximale));
        });
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setCursor(Qt::PointingHandCursor);
    }

    // How much of the highlight lies under this choice, 0 to 1.
    void eclairer(double part)
    {
        part_ = part;
        update();
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const int largeur = fontMetrics().horizontalAdvance(text()) + 2 * margeTexte;
        return {std::min(largeur, Theme::aLaTaille(apparence_.largeurMaximale)), hauteur()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return {60, hauteur()}; }

protected:
    void resizeEvent(QResizeEvent *) override
    {
        const double place = (width() - margeTexte) / reductionMinimale;
        setToolTip(fontMetrics().horizontalAdvance(text()) > place ? text() : QString());
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::Antialiasing);
        const QColor normale = palette().color(QPalette::WindowText);
        const bool bleu = apparence_.style == ChoixSegmente::Style::bleu;
        peintre.setPen(bleu ? Dessin::melange(normale, Qt::white, part_) : normale);

        QFont police = font();
        const int place = width() - margeTexte;
        const double plancher = reductionMinimale * police.pointSizeF();
        // Step by step: a text does not shrink in proportion to its font.
        while (police.pointSizeF() > plancher && QFontMetrics(police).horizontalAdvance(text()) > place)
            police.setPointSizeF(std::max(plancher, police.pointSizeF() - 0.25));
        peintre.setFont(police);
        const QString affiche = QFontMetrics(police).elidedText(text(), Qt::ElideRight, place);
        peintre.drawText(rect(), Qt::AlignCenter, affiche);
        const QColor anneau =
            bleu ? Dessin::melange(Theme::accentTexte(palette()), Qt::white, part_) : Theme::accentTexte(palette());
        if (Dessin::focusVisible(this))
            Dessin::anneauDeFocus(peintre, rect(), height() / 2.0, anneau);
    }

    [[nodiscard]] bool hitButton(const QPoint &position) const override { return rect().contains(position); }

private:
    [[nodiscard]] int hauteur() const
    {
        return std::max(Theme::aLaTaille(apparence_.hauteur), fontMetrics().height() + 6);
    }

    ChoixSegmente::Apparence apparence_;
    double part_ = 0;
};

} // namespace

ChoixSegmente::ChoixSegmente(const QStringList &options, const Apparence &apparence, QWidget *parent)
    : QWidget(parent),
      apparence_(apparence),
      position_(new Ressort(Ressorts::action, this, [this](double position) { eclairer(position); }))
{
    LecteurDEcran::jouer(this, roleDuChoix);
    const int marge = apparence.marge;
    QBoxLayout *rangee = Pile::rangee(this, {.marges = {marge, marge, marge, marge}, .espace = apparence.espace});
    for (int i = 0; i < options.size(); ++i) {
        auto *bouton = new Segment(options[i], apparence);
        boutons_.append(bouton);
        rangee->addWidget(bouton);
        connect(bouton, &QRadioButton::pressed, this, [this, i] { deja_ = boutons_[i]->isChecked(); });
        connect(bouton, &QRadioButton::clicked, this, [this, i] {
            if (deja_)
                emit choisi(i); // what is shown already is not toggled
        });
        connect(bouton, &QRadioButton::toggled, this, [this, i](bool choisie) {
            if (choisie)
                prendre(i);
        });
    }
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    eclairer(0);
}

void ChoixSegmente::prendre(int indice)
{
    // Tab leads to the choice made; Qt sees to it only once the focus has been here.
    for (int i = 0; i < boutons_.size(); ++i)
        boutons_[i]->setFocusPolicy(i == indice ? Qt::StrongFocus : Qt::ClickFocus);
    position_->vers(indice);
    if (!montre_)
        emit choisi(indice);
}

void ChoixSegmente::montrer(int indice)
{
    montre_ = true;
    boutons_[indice]->setChecked(true);
    montre_ = false;
}

void ChoixSegmente::eclairer(double position)
{
    for (qsizetype i = 0; i < boutons_.size(); ++i) {
        const double ecart = std::abs(position - static_cast<double>(i));
        static_cast<Segment *>(boutons_[i])->eclairer(1 - std::min(1.0, ecart));
    }
    update();
}

QRectF ChoixSegmente::surbrillance() const
{
    const double position = position_->valeur();
    const auto gauche = std::clamp<qsizetype>(static_cast<qsizetype>(std::floor(position)), 0, boutons_.size() - 1);
    const auto droite = std::min(gauche + 1, boutons_.size() - 1);
    const double part = position - double(gauche);
    const QRectF a = boutons_[gauche]->geometry();
    const QRectF b = boutons_[droite]->geometry();
    const auto entre = [part](double x, double y) { return x + (y - x) * part; };
    const double pas = gauche == droite ? part * a.width() : entre(a.left(), b.left()) - a.left();
    return {a.left() + pas, a.top(), entre(a.width(), b.width()), a.height()};
}

void ChoixSegmente::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    Dessin::aplat(peintre, rect(), height() / 2.0, Theme::remplissage(palette()));

    const QRectF choisi = surbrillance();
    const double rayon = choisi.height() / 2;
    const bool renforce = Theme::contraste(palette()) == Theme::Contraste::renforce;
    if (apparence_.style == Style::bleu) {
        Dessin::ombreDouce(peintre, choisi);
        QLinearGradient degrade(choisi.topLeft(), choisi.bottomLeft());
        const double assombri = renforce ? 0.3 : 0;
        degrade.setColorAt(0, Dessin::melange(Theme::bleuHaut(), Qt::black, assombri));
        degrade.setColorAt(1, Dessin::melange(Theme::bleuBas(), Qt::black, assombri));
        peintre.setBrush(degrade);
    } else if (renforce) { // a shade is not enough to tell it by
        peintre.setPen(palette().color(QPalette::WindowText));
        peintre.setBrush(Theme::carte(palette()));
    } else {
        Dessin::ombreDouce(peintre, choisi);
        const bool clair = Theme::mode(palette()) == Theme::Mode::clair;
        peintre.setBrush(clair ? Theme::carte(palette()) : Theme::filet(palette()).lighter(140));
    }
    peintre.drawRoundedRect(choisi, rayon, rayon);
}

} // namespace Quillet
