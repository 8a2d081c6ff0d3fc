#include "composants/ChampAPropositions.h"

#include "composants/DessinMenu.h"
#include "composants/LecteurDEcran.h"
#include "composants/SelectionDuLecteur.h"

#include <QCompleter>
#include <QEvent>
#include <QListView>
#include <QPainter>
#include <QStringListModel>
#include <QStyleOption>
#include <QStyledItemDelegate>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int ecart = 4; // px, from the field to its list

// Drawn as the entries of a list of choices.
class Dessinateur : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        DessinMenu::choix(*peintre, entree(option, index));
    }
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return DessinMenu::taille(entree(option, index), QStyledItemDelegate::sizeHint(option, index));
    }

private:
    static QStyleOptionMenuItem entree(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        QStyleOptionMenuItem entree;
        entree.rect = option.rect;
        entree.state = option.state;
        entree.palette = option.palette;
        entree.font = option.font;
        entree.fontMetrics = option.fontMetrics;
        entree.menuItemType = QStyleOptionMenuItem::Normal;
        entree.text = index.data().toString().replace(u'&', QLatin1String("&&"));
        return entree;
    }
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
    auto *liste = new QListView;
    liste_->setPopup(liste);
    liste->setFrameShape(QFrame::StyledPanel); // measured again, now that it is known to come up
    liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    liste->setItemDelegate(new Dessinateur(this));
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
    window()->installEventFilter(this);
    auto *popup = static_cast<QListView *>(liste_->popup());
    liste_->setMaxVisibleItems(proposees_->rowCount()); // a search gives no more than can be read
    const int large = popup->sizeHintForColumn(0) + 2 * popup->frameWidth();
    liste_->complete(QRect(0, 0, std::max(width(), large), height() + ecart)); // wider than the field if it must
    popup->setCurrentIndex(popup->model()->index(0, 0));
}

void ChampAPropositions::renoncer()
{
    liste_->popup()->hide();
    setText({});
}

// The list stands over the window, and stays where it came up.
void ChampAPropositions::hideEvent(QHideEvent *evenement)
{
    liste_->popup()->hide();
    LigneDeTexte::hideEvent(evenement);
}

bool ChampAPropositions::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet == window() && (evenement->type() == QEvent::Move || evenement->type() == QEvent::Resize))
        liste_->popup()->hide();
    return LigneDeTexte::eventFilter(objet, evenement);
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
