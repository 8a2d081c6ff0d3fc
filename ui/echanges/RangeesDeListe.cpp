#include "ui/echanges/RangeesDeListe.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/Theme.h"

#include <QPainter>

namespace Quillet {

namespace {

using Sort = RangeeDeListe::Sort;

constexpr int margeHorizontale = 24;
constexpr int margeVerticale = 9;
constexpr int espace = 10; // after the symbol
constexpr int plis = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

int cote()
{
    return Theme::aLaTaille(17);
}

QString symbole(Sort sort)
{
    if (sort == Sort::refusee)
        return QStringLiteral("exclamationmark.triangle");
    return sort == Sort::changee ? QStringLiteral("arrow.right") : QStringLiteral("plus");
}

// Where the texts of a row of that width stand.
QRect texteDans(const QRect &rangee)
{
    return rangee.adjusted(margeHorizontale + cote() + espace, margeVerticale, -margeHorizontale, -margeVerticale);
}

QFont policeDuTitre()
{
    return Theme::enGras(Theme::police());
}

} // namespace

class RangeesDeListe::Modele : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void montrer(const QList<TextesListe::Rangee> &rangees)
    {
        beginResetModel();
        rangees_ = rangees;
        endResetModel();
    }
    [[nodiscard]] const TextesListe::Rangee &rangee(const QModelIndex &indice) const { return rangees_[indice.row()]; }
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rangees_.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex &indice, int role) const override
    {
        const bool lue = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
        return lue ? TextesListe::dite(rangee(indice)) : QVariant();
    }

private:
    QList<TextesListe::Rangee> rangees_;
};

class RangeesDeListe::Delegue : public QStyledItemDelegate
{
public:
    Delegue(const Modele &modele, QAbstractItemView *vue) : QStyledItemDelegate(vue), modele_(modele), vue_(vue) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &indice) const override
    {
        const QRect place = texteDans({0, 0, vue_->viewport()->width(), 1'000'000});
        const QRect detail = QFontMetrics(Theme::encadre()).boundingRect(place, plis, modele_.rangee(indice).detail);
        return {0, QFontMetrics(policeDuTitre()).height() + 2 + detail.height() + 2 * margeVerticale};
    }

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const override
    {
        const auto &[sort, titre, ligne, detail] = modele_.rangee(indice);
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        if (option.state.testFlag(QStyle::State_HasFocus) && Dessin::focusVisible(option.widget))
            Dessin::anneauDeFocus(*peintre, QRectF(option.rect).adjusted(8, 2, -8, -2), Theme::rayonControle,
                                  Theme::accentTexte(option.palette));
        if (indice.row() > 0)
            Dessin::filet(*peintre, QPointF(option.rect.left() + margeHorizontale, option.rect.top()),
                          option.rect.width() - 2 * margeHorizontale, option.palette);
        const QRect place = texteDans(option.rect);
        const QColor encre = sort == Sort::refusee ? Theme::orange(option.palette) : Theme::secondaire(option.palette);
        Icone::peindre(*peintre, symbole(sort),
                       QRectF(option.rect.left() + margeHorizontale, place.top(), cote(), cote()), encre);

        peintre->setFont(Theme::encadre());
        peintre->setPen(Theme::secondaire(option.palette));
        const int haut = QFontMetrics(policeDuTitre()).height();
        const int numero = peintre->fontMetrics().horizontalAdvance(ligne);
        peintre->drawText(QRect(place.right() - numero, place.top(), numero + 1, haut),
                          Qt::AlignRight | Qt::AlignVCenter, ligne);
        peintre->drawText(place.adjusted(0, haut + 2, 0, 0), plis, detail);
        peintre->setFont(policeDuTitre());
        peintre->setPen(option.palette.color(QPalette::WindowText));
        const int largeur = place.width() - numero - espace;
        peintre->drawText(QRect(place.left(), place.top(), largeur, haut), Qt::AlignLeft | Qt::AlignVCenter,
                          peintre->fontMetrics().elidedText(titre, Qt::ElideRight, largeur));
        peintre->restore();
    }

private:
    const Modele &modele_;
    QAbstractItemView *vue_;
};

RangeesDeListe::RangeesDeListe(QWidget *parent) : ListeDite<QListView>(parent), modele_(new Modele(this))
{
    setAccessibleName(QStringLiteral("Livres de la liste"));
    setModel(modele_);
    setItemDelegate(new Delegue(*modele_, this));
    setResizeMode(QListView::Adjust);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // lines do not wrap anew because there is one
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false); // as the sheet beside its scroll bar
}

void RangeesDeListe::montrer(const QList<TextesListe::Rangee> &rangees)
{
    modele_->montrer(rangees);
    setCurrentIndex(modele_->index(0));
}

} // namespace Quillet
