#include "ui/livres/DelegueLivres.h"

#include "ui/Theme.h"
#include "ui/commande/DessinCouverture.h"
#include "ui/commun/Dessin.h"
#include "ui/livres/ModeleLivres.h"

#include <QPainter>

namespace {

constexpr int marge = 12;
constexpr QSize couverture(42, 63);

QFont police(int colonne)
{
    switch (colonne) {
    case ModeleLivres::titre:
        return Theme::titreLivre();
    case ModeleLivres::prix:
        return Theme::enGras(Theme::texte());
    default:
        return Theme::encadre();
    }
}

} // namespace

DelegueLivres::DelegueLivres(const ModeleLivres &modele, ImagesCouvertures &images, QObject *parent)
    : QStyledItemDelegate(parent), modele_(modele), images_(images)
{
}

QSize DelegueLivres::sizeHint(const QStyleOptionViewItem &, const QModelIndex &indice) const
{
    const int texte = QFontMetrics(police(indice.column())).horizontalAdvance(indice.data().toString());
    const int image = indice.column() == ModeleLivres::titre ? couverture.width() + marge : 0;
    return {texte + image + 2 * marge + 2, hauteurDeLigne}; // drawing may round a little wider than it measured
}

void DelegueLivres::paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const
{
    peintre->save();
    peintre->setRenderHint(QPainter::Antialiasing);
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor fond = Theme::accentTexte(option.palette);
        fond.setAlphaF(0.12F);
        peintre->fillRect(option.rect, fond);
    }
    peintre->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      Theme::filet(option.palette));
    if (option.state.testFlag(QStyle::State_HasFocus) && option.widget && Dessin::focusVisible(option.widget))
        Dessin::anneauDeFocus(*peintre, QRectF(option.rect).adjusted(3, 3, -3, -4), 6,
                              Theme::accentTexte(option.palette));
    indice.column() == ModeleLivres::titre ? peindreLivre(*peintre, option, indice)
                                           : peindreTexte(*peintre, option, indice);
    peintre->restore();
}

void DelegueLivres::peindreLivre(QPainter &peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const
{
    const Livre &livre = modele_.livre(indice.row());
    const QRect place(option.rect.left() + marge, option.rect.center().y() + 1 - couverture.height() / 2,
                      couverture.width(), couverture.height());
    peintre.setOpacity(livre.disponible ? 1 : DessinCouverture::opaciteIndisponible);
    peintre.drawPixmap(place.topLeft(),
                       DessinCouverture::dessin(livre, couverture, peintre.device()->devicePixelRatioF(), images_));
    peintre.setOpacity(1);

    const int gauche = place.right() + 1 + marge;
    const int largeur = option.rect.right() - marge - gauche;
    const auto ligne = [&](const QFont &policeDeLigne, const QColor &couleur, const QString &texte, int haut) {
        peintre.setFont(policeDeLigne);
        peintre.setPen(couleur);
        const QFontMetrics mesures(policeDeLigne);
        peintre.drawText(QRect(gauche, haut, largeur, mesures.height()), Qt::AlignLeft | Qt::AlignVCenter,
                         mesures.elidedText(texte, Qt::ElideRight, largeur));
    };
    const int hauteurTitre = QFontMetrics(Theme::titreLivre()).height();
    const int milieu = option.rect.center().y();
    ligne(Theme::titreLivre(), option.palette.color(QPalette::WindowText), livre.titre, milieu - hauteurTitre);
    ligne(Theme::encadre(), Theme::secondaire(option.palette), livre.auteur, milieu + 3);
}

void DelegueLivres::peindreTexte(QPainter &peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const
{
    const Livre &livre = modele_.livre(indice.row());
    const bool enAlerte = indice.column() == ModeleLivres::poids && !livre.poids;
    const bool discret = indice.column() != ModeleLivres::prix || !livre.disponible;
    peintre.setFont(police(indice.column()));
    peintre.setPen(enAlerte  ? Theme::orange(option.palette)
                   : discret ? Theme::secondaire(option.palette)
                             : option.palette.color(QPalette::WindowText));
    const QRect place = option.rect.adjusted(marge, 0, -marge, 0);
    peintre.drawText(place, indice.data(Qt::TextAlignmentRole).toInt(),
                     peintre.fontMetrics().elidedText(indice.data().toString(), Qt::ElideRight, place.width()));
}
