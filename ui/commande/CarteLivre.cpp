#include "ui/commande/CarteLivre.h"

#include "composants/Chiffres.h"
#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"
#include "model/Commande.h"
#include "model/Format.h"
#include "textes/TextesLivres.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/SelecteurQuantite.h"
#include "ui/couvertures/DessinCouverture.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace Quillet {

namespace {

constexpr int espace = 14;    // between the parts of a card
constexpr int interligne = 3; // between the lines under the cover
constexpr int apresLePrix = 6;

QFont policeDuPrix()
{
    return Theme::enGras(Theme::titre3());
}

// Of the price and the stepper.
int hauteurBas()
{
    return std::max(34, QFontMetrics(policeDuPrix()).height());
}

int hauteurCouverture(int largeur)
{
    return static_cast<int>(std::lround(largeur * DessinCouverture::proportion));
}

int hauteurDuTitre()
{
    return 2 * QFontMetrics(Theme::titreLivre()).lineSpacing();
}

// At most two lines; what does not fit ends in an ellipsis.
void peindreSurDeuxLignes(QPainter &peintre, const QRect &cadre, const QString &texte)
{
    const QFontMetrics mesures(peintre.font());
    QTextLayout mise(texte, peintre.font());
    QTextOption coupure;
    coupure.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    mise.setTextOption(coupure);
    mise.beginLayout();
    QTextLine premiere = mise.createLine();
    premiere.setLineWidth(cadre.width());
    mise.endLayout();
    const qsizetype coupe = premiere.textLength();
    const int base = cadre.top() + mesures.ascent();
    peintre.drawText(cadre.left(), base, texte.left(coupe).trimmed());
    peintre.drawText(cadre.left(), base + mesures.lineSpacing(),
                     mesures.elidedText(texte.mid(coupe).trimmed(), Qt::ElideRight, cadre.width()));
}

// At the right end of the line; gives where it begins.
int peindreEpuise(QPainter &peintre, const QRect &ligne, const QPalette &palette)
{
    return Dessin::etiquette(peintre, ligne, TextesLivres::epuise(),
                             {.police = Theme::enGras(Theme::encadre(), QFont::Medium),
                              .marges = {24, 12},
                              .rayon = 8,
                              .encre = Theme::secondaire(palette),
                              .fond = Theme::remplissage(palette)});
}

QString dansLaCommande(int quantite)
{
    return QStringLiteral("%1 dans la commande").arg(quantite);
}

QString enMots(const Livre &livre, const QString &vendu, int quantite)
{
    const QString mots = TextesLivres::enMots(livre, vendu);
    return quantite > 0 ? QStringLiteral("%1, %2").arg(mots, dansLaCommande(quantite)) : mots;
}

} // namespace

CarteLivre::CarteLivre(const Livre &livre, const QString &vendu, Commande &commande, ImagesCouvertures &images,
                       QWidget *parent)
    : QWidget(parent),
      livre_(livre),
      commande_(commande),
      couverture_(new Couverture(livre, images, this)),
      selecteur_(new SelecteurQuantite(livre.titre, this))
{
    connect(couverture_, &QAbstractButton::clicked, this, [this] { compter(quantite_ + 1); });
    connect(selecteur_, &SelecteurQuantite::demande, this, [this](int difference) { compter(quantite_ + difference); });
    montrer(livre, vendu, commande.bon().quantite(livre));
    TailleDuTexte::suivre(this, [this] { placer(); });
}

void CarteLivre::montrer(const Livre &livre, const QString &vendu, int quantite)
{
    if (quantite == quantite_ && vendu == vendu_ && livre == livre_)
        return; // most cards, at most changes
    if (quantite != quantite_ && couverture_->hasFocus())
        LecteurDEcran::annoncer(couverture_, dansLaCommande(quantite));
    livre_ = livre;
    vendu_ = vendu;
    quantite_ = quantite;
    couverture_->montrer(livre, quantite);
    couverture_->setAccessibleName(enMots(livre, vendu, quantite));
    setToolTip(livre.titreComplet);
    selecteur_->montrer(quantite);
    selecteur_->setVisible(livre.disponible);
    update();
}

void CarteLivre::compter(int exemplaires)
{
    if (!livre_.disponible)
        LecteurDEcran::annoncer(couverture_, TextesLivres::epuise());
    else if (std::max(0, exemplaires) != quantite_) // none taken from none is no gesture
        commande_.ajuster(livre_, exemplaires - quantite_);
}

int CarteLivre::hauteur(int largeur)
{
    return hauteurCouverture(largeur) + espace + hauteurDuTitre() + interligne
           + QFontMetrics(Theme::encadre()).lineSpacing() + espace + hauteurBas();
}

int CarteLivre::largeurMinimale()
{
    return Chiffres::largeur(QFontMetrics(policeDuPrix()), QStringLiteral("00,00 €")) + apresLePrix
           + SelecteurQuantite::largeurUsuelle() - SelecteurQuantite::depassement();
}

QRect CarteLivre::contenu() const
{
    constexpr int m = Couverture::debord;
    return rect().adjusted(m, m, -m, -m);
}

QRect CarteLivre::ligneDuBas() const
{
    const QRect dedans = contenu();
    return {dedans.left(), dedans.bottom() + 1 - hauteurBas(), dedans.width(), hauteurBas()};
}

bool CarteLivre::contient(const QPoint &place) const
{
    return contenu().contains(place);
}

void CarteLivre::soulever(bool oui)
{
    couverture_->soulever(oui);
}

bool CarteLivre::event(QEvent *evenement)
{
    // The full title, at the title only: nothing may cover the cover.
    if (evenement->type() == QEvent::ToolTip
        && static_cast<QHelpEvent *>(evenement)->pos().y() < contenu().top() + hauteurCouverture(contenu().width()))
        return true;
    return QWidget::event(evenement);
}

void CarteLivre::resizeEvent(QResizeEvent *)
{
    placer();
}

void CarteLivre::placer()
{
    const int hauteur = hauteurCouverture(contenu().width()) + Couverture::debord + Couverture::debordBas;
    couverture_->setGeometry(0, 0, width(), hauteur);
    const QSize taille = selecteur_->sizeHint();
    const QRect bas = ligneDuBas();
    selecteur_->setGeometry(bas.right() + 1 + SelecteurQuantite::depassement() - taille.width(),
                            bas.center().y() + 1 - taille.height() / 2, taille.width(), taille.height());
}

void CarteLivre::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QRect dedans = contenu();
    const QColor texte = palette().color(QPalette::WindowText);
    const QColor secondaire = Theme::secondaire(palette());

    couverture_->peindreOmbre(peintre); // below the texts
    QRect titre(dedans.left(), dedans.top() + hauteurCouverture(dedans.width()) + espace, dedans.width(),
                hauteurDuTitre());
    peintre.setFont(Theme::titreLivre());
    peintre.setPen(texte);
    peindreSurDeuxLignes(peintre, titre, livre_.titre);

    peintre.setFont(Theme::encadre());
    peintre.setPen(livre_.poids ? secondaire : Theme::orange(palette()));
    const QRect poids(dedans.left(), titre.bottom() + 1 + interligne, dedans.width(),
                      peintre.fontMetrics().lineSpacing());
    peintre.drawText(poids, Qt::AlignLeft | Qt::AlignVCenter, TextesLivres::poids(livre_));

    const QRect bas = ligneDuBas();
    const int apres = livre_.disponible ? selecteur_->x() : peindreEpuise(peintre, bas, palette());
    const QString prix = Format::euros(livre_.prix);
    peintre.setFont(Chiffres::ajustee(policeDuPrix(), prix, apres - apresLePrix - bas.left()));
    peintre.setPen(livre_.disponible ? texte : secondaire);
    Chiffres::peindre(peintre, bas, Qt::AlignLeft, prix);
}

} // namespace Quillet
