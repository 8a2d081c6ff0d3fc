#include "ui/livres/DelegueLivres.h"

#include "composants/Dessin.h"
#include "composants/Theme.h"
#include "model/Format.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesBoutons.h"
#include "textes/TextesLivres.h"
#include "ui/couvertures/DessinCouverture.h"
#include "ui/livres/ModeleLivres.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace Quillet {

namespace {

constexpr QSize couverture(40, 60);
constexpr int marge = 10;  // inside a group
constexpr int retrait = 4; // of the current row's mark
constexpr int avantLEtiquette = 8;
constexpr int sousLeTitre = 8;    // between a group's title and the group
constexpr int avantUnGroupe = 20; // and after the last one
constexpr int jeu = 2;            // drawing may round a little wider than it measured

int hauteurDuTitre()
{
    return avantUnGroupe + QFontMetrics(Theme::titreCarte()).height() + sousLeTitre;
}

QFont policeDuPrix()
{
    return Theme::enGras(Theme::encadre());
}

void ecrire(QPainter &peintre, const QRect &cadre, const QString &texte, Qt::Alignment cote = Qt::AlignLeft)
{
    peintre.drawText(cadre, static_cast<int>(cote | Qt::AlignVCenter),
                     peintre.fontMetrics().elidedText(texte, Qt::ElideRight, cadre.width()));
}

// At the right end of a line; gives what it leaves to the rest.
QRect peindreEtiquette(QPainter &peintre, QRect ligne, const QString &texte, const QColor &encre, const QColor &fond)
{
    const int gauche = Dessin::etiquette(peintre, ligne, texte,
                                         {.police = Theme::enGras(Theme::legende(), QFont::Medium),
                                          .marges = {14, 4},
                                          .rayon = 6,
                                          .encre = encre,
                                          .fond = fond});
    ligne.setRight(gauche - 1 - avantLEtiquette);
    return ligne;
}

} // namespace

DelegueLivres::DelegueLivres(const ModeleLivres &modele, ImagesCouvertures &images, QObject *parent)
    : QStyledItemDelegate(parent), modele_(modele), images_(images)
{
}

int DelegueLivres::hauteurDuTexte() const
{
    if (const QFont police = QGuiApplication::font(); mesuree_ != police) {
        mesuree_ = police;
        hauteurDuTexte_ = QFontMetrics(Theme::titreLivre()).height() + 2 * QFontMetrics(Theme::encadre()).height() + 6;
    }
    return hauteurDuTexte_;
}

QSize DelegueLivres::sizeHint(const QStyleOptionViewItem &, const QModelIndex &indice) const
{
    const int rang = indice.row();
    const int livre = std::max(couverture.height(), hauteurDuTexte()) + 2 * marge;
    return {0, livre + (modele_.ouvreUnGroupe(rang) ? hauteurDuTitre() : 0)
                   + (rang == modele_.rowCount() - 1 ? avantUnGroupe : 0)};
}

QRect DelegueLivres::cadreDuLivre(QRect rangee, int rang) const
{
    if (modele_.ouvreUnGroupe(rang))
        rangee.setTop(rangee.top() + hauteurDuTitre());
    if (rang == modele_.rowCount() - 1)
        rangee.setBottom(rangee.bottom() - avantUnGroupe);
    return rangee;
}

void DelegueLivres::paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const
{
    const int rang = indice.row();
    const Livre &livre = modele_.livre(rang);
    const QRect cadre = cadreDuLivre(option.rect, rang);
    peintre->save();
    peintre->setRenderHint(QPainter::Antialiasing);
    if (modele_.ouvreUnGroupe(rang))
        peindreTitre(*peintre, QRect(option.rect.topLeft(), QSize(cadre.width(), hauteurDuTitre() - sousLeTitre)),
                     livre, option.palette);
    peindreCarte(*peintre, cadre, rang, option.palette);

    const QRectF marque = QRectF(cadre).adjusted(retrait, retrait, -retrait, -retrait);
    if (option.state.testFlag(QStyle::State_Selected))
        Dessin::aplat(*peintre, marque, Theme::rayonControle,
                      Dessin::transparente(Theme::accentTexte(option.palette), 0.12));
    else if (option.state.testFlag(QStyle::State_MouseOver))
        Dessin::aplat(*peintre, marque, Theme::rayonControle,
                      Dessin::transparente(option.palette.color(QPalette::WindowText), 0.05));
    if (option.state.testFlag(QStyle::State_HasFocus) && option.widget && Dessin::focusVisible(option.widget))
        Dessin::anneauDeFocus(*peintre, marque, Theme::rayonControle, Theme::accentTexte(option.palette));
    peindreLivre(*peintre, cadre.adjusted(marge, 0, -marge, 0), rang, option.palette);
    peintre->restore();
}

void DelegueLivres::peindreTitre(QPainter &peintre, const QRect &cadre, const Livre &premier,
                                 const QPalette &palette) const
{
    const QString nom = NomsVendeurs::court(premier.vendeur, modele_.donnees());
    const QFontMetrics mesures(Theme::titreCarte());
    const int base = cadre.bottom() - mesures.descent();
    peintre.setFont(Theme::titreCarte());
    peintre.setPen(palette.color(QPalette::WindowText));
    peintre.drawText(cadre.left(), base, nom);
    peintre.setFont(Theme::encadre());
    peintre.setPen(Theme::secondaire(palette));
    peintre.drawText(cadre.left() + mesures.horizontalAdvance(nom) + 10, base,
                     TextesLivres::nombre(modele_.nombre(premier.vendeur)));
}

// The edges that a neighbour continues are pushed out of sight.
void DelegueLivres::peindreCarte(QPainter &peintre, const QRect &cadre, int rang, const QPalette &palette) const
{
    const bool premier = modele_.ouvreUnGroupe(rang);
    const bool dernier = modele_.fermeUnGroupe(rang);
    constexpr int suite = 2 * Theme::rayonGroupe;
    peintre.save();
    peintre.setClipRect(cadre, Qt::IntersectClip);
    Dessin::carte(peintre, cadre.adjusted(0, premier ? 0 : -suite, 0, dernier ? 0 : suite), palette);
    if (!premier)
        Dessin::filet(peintre, cadre.topLeft() + QPoint(marge, 0), cadre.width() - 2 * marge, palette);
    peintre.restore();
}

void DelegueLivres::peindreLivre(QPainter &peintre, const QRect &cadre, int rang, const QPalette &palette) const
{
    const Livre &livre = modele_.livre(rang);
    const QColor texte = palette.color(QPalette::WindowText);
    const QColor secondaire = Theme::secondaire(palette);
    const QPoint image(cadre.left(), cadre.center().y() + 1 - couverture.height() / 2);
    peintre.setOpacity(livre.disponible ? 1 : DessinCouverture::opaciteIndisponible);
    peintre.drawPixmap(
        image, DessinCouverture::dessin(livre, couverture, couverture, peintre.device()->devicePixelRatioF(), images_));
    peintre.setOpacity(1);

    QRect ligne(image.x() + couverture.width() + marge, cadre.center().y() + 1 - hauteurDuTexte() / 2, 0,
                QFontMetrics(Theme::titreLivre()).height());
    ligne.setRight(cadre.right());
    QRect titre = ligne;
    if (!livre.disponible)
        titre = peindreEtiquette(peintre, ligne, TextesLivres::epuise(), secondaire, Theme::remplissage(palette));
    peintre.setFont(Theme::titreLivre());
    peintre.setPen(texte);
    ecrire(peintre, titre, livre.titre);

    ligne.moveTop(ligne.bottom() + 2);
    ligne.setHeight(QFontMetrics(Theme::encadre()).height());
    QRect auteur = ligne;
    if (const qsizetype aReporter = modele_.aReporter(rang); aReporter > 0) {
        const QColor orange = Theme::orange(palette);
        const QColor fond = Dessin::melange(Theme::carte(palette), orange, 0.13); // also on the current row
        auteur = peindreEtiquette(peintre, ligne, TextesBoutons::aReporter(aReporter), orange, fond);
    }
    peintre.setFont(Theme::encadre());
    peintre.setPen(secondaire);
    ecrire(peintre, auteur, livre.auteur);

    ligne.moveTop(ligne.bottom() + 4);
    peintre.setFont(policeDuPrix());
    peintre.setPen(livre.disponible ? texte : secondaire);
    const QString prix = Format::euros(livre.prix);
    peintre.drawText(ligne, Qt::AlignLeft | Qt::AlignVCenter, prix);
    ligne.setLeft(ligne.left() + peintre.fontMetrics().horizontalAdvance(prix));
    peintre.setFont(Theme::encadre());
    ligne.setLeft(ligne.left() + peintre.fontMetrics().horizontalAdvance(u' '));
    peintre.setPen(livre.poids ? secondaire : Theme::orange(palette));
    ecrire(peintre, ligne, QStringLiteral("· ") + TextesLivres::poids(livre));
}

} // namespace Quillet
