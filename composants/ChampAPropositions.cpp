#include "composants/ChampAPropositions.h"

#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/SelectionDuLecteur.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QPainter>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int hauteurMinimale = 28;

// As an entry of a menu.
class Dessinateur : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        peintre->setRenderHint(QPainter::Antialiasing);
        const bool choisie = option.state.testFlag(QStyle::State_Selected);
        const QRect cadre = option.rect.adjusted(4, 1, -4, -1);
        if (choisie)
            Dessin::aplat(*peintre, cadre, rayon, option.palette.color(QPalette::Highlight));
        peintre->setPen(option.palette.color(choisie ? QPalette::HighlightedText : QPalette::Text));
        const QRect texte = cadre.adjusted(8, 0, -8, 0);
        peintre->drawText(texte, Qt::AlignLeft | Qt::AlignVCenter,
                          option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, texte.width()));
    }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QSize taille = QStyledItemDelegate::sizeHint(option, index);
        return {taille.width(), std::max(hauteurMinimale, taille.height() + 10)};
    }

private:
    static constexpr int rayon = 6;
};

} // namespace

ChampAPropositions::ChampAPropositions(Recherche recherche, QWidget *parent)
    : LigneDeTexte(parent),
      recherche_(std::move(recherche)),
      proposees_(new QStringListModel(this)),
      liste_(new QCompleter(proposees_, this))
{
    liste_->setWidget(this); // not setCompleter, which would write in the field what the arrows reach
    liste_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    liste_->popup()->setItemDelegate(new Dessinateur(this));
    connect(this, &QLineEdit::textEdited, this, &ChampAPropositions::proposer);
    connect(this, &QLineEdit::returnPressed, this, &ChampAPropositions::valider);
    connect(liste_, qOverload<const QModelIndex &>(&QCompleter::activated), this, &ChampAPropositions::prendre);
    connect(liste_, qOverload<const QString &>(&QCompleter::highlighted), this,
            [this](const QString &proposition) { LecteurDEcran::annoncer(this, proposition); });
    auto *lecteur = new SelectionDuLecteur(liste_->popup()->selectionModel(), this);
    connect(lecteur, &SelectionDuLecteur::prise, this, [this](const QModelIndex &proposition) {
        liste_->popup()->hide();
        prendre(proposition);
    });
}

void ChampAPropositions::proposer()
{
    proposees_->setStringList(recherche_(text()));
    if (proposees_->rowCount() == 0) {
        liste_->popup()->hide();
        return;
    }
    liste_->complete();
    liste_->popup()->setCurrentIndex(liste_->popup()->model()->index(0, 0));
}

// The open list hands Return to the field before it takes it for itself.
void ChampAPropositions::valider()
{
    if (liste_->popup()->isVisible() || text().trimmed().isEmpty())
        return;
    proposer();
    if (proposees_->rowCount() == 0)
        emit sansReponse(text());
}

void ChampAPropositions::prendre(const QModelIndex &proposition)
{
    emit choisie(proposition.row());
}

} // namespace Quillet
