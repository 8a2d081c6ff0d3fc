#include "ui/ListeRubriques.h"

#include "composants/Dessin.h"
#include "composants/Icone.h"
#include "composants/Theme.h"

#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace Quillet {

namespace {

constexpr int roleSymbole = Qt::UserRole;
constexpr int rolePastille = Qt::UserRole + 1;
constexpr int hauteur = 38;
constexpr int marge = 10;  // around a row, around its symbol
constexpr int aDroite = 8; // of a text
constexpr int jeu = 2;     // a text may round a little wider than it measured

int coteSymbole()
{
    return Theme::aLaTaille(20);
}

QSizeF taillePastille(int nombre)
{
    const QFontMetrics mesures(Theme::enGras(Theme::legende()));
    const double haut = mesures.height() + 4;
    return {std::max(haut, mesures.horizontalAdvance(QString::number(nombre)) + 12.0), haut};
}

// Returns the width it takes at the right of the row.
double peindrePastille(QPainter &peintre, const QStyleOptionViewItem &option, const QRectF &cadre, int nombre)
{
    peintre.setFont(Theme::enGras(Theme::legende()));
    const auto [large, haut] = taillePastille(nombre);
    const QRectF capsule(cadre.right() - marge - large, cadre.center().y() - haut / 2, large, haut);
    Dessin::aplat(peintre, capsule, haut / 2, Theme::accent(option.palette));
    peintre.setPen(option.palette.color(QPalette::HighlightedText));
    peintre.drawText(capsule, Qt::AlignCenter, QString::number(nombre));
    return large + aDroite;
}

class Delegue : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {0, std::max(hauteur, option.fontMetrics.height() + 20)};
    }

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &indice) const override
    {
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        const QPalette &palette = option.palette;
        const bool choisie = option.state.testFlag(QStyle::State_Selected);
        const bool survolee = option.state.testFlag(QStyle::State_MouseOver);
        const QRectF cadre = QRectF(option.rect).adjusted(marge, 1, -marge, -1);
        const QColor couleur = choisie ? Theme::accentTexte(palette) : palette.color(QPalette::WindowText);
        if (choisie || survolee)
            Dessin::aplat(*peintre, cadre, Theme::rayonControle, Dessin::transparente(couleur, choisie ? 0.11 : 0.05));
        if (option.state.testFlag(QStyle::State_HasFocus) && option.widget && Dessin::focusVisible(option.widget))
            Dessin::anneauDeFocus(*peintre, cadre, Theme::rayonControle, Theme::accentTexte(palette));

        Icone::peindre(
            *peintre, indice.data(roleSymbole).toString(),
            QRectF(cadre.left() + marge, cadre.center().y() - coteSymbole() / 2.0, coteSymbole(), coteSymbole()),
            couleur);
        const int nombre = indice.data(rolePastille).toInt();
        const double reserve = nombre > 0 ? peindrePastille(*peintre, option, cadre, nombre) : 0;
        peintre->setFont(choisie ? Theme::enGras(option.font) : option.font);
        peintre->setPen(couleur);
        const QRectF place = cadre.adjusted(2 * marge + coteSymbole(), 0, -aDroite - reserve, 0);
        peintre->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                          peintre->fontMetrics().elidedText(indice.data().toString(), Qt::ElideRight,
                                                            static_cast<int>(place.width())));
        peintre->restore();
    }
};

} // namespace

ListeRubriques::ListeRubriques(const QList<Entree> &entrees, QWidget *parent) : ListeDite(parent)
{
    setAccessibleName(QStringLiteral("Rubriques"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    setItemDelegate(new Delegue(this));
    for (const Entree &entree : entrees) {
        auto *ligne = new QListWidgetItem(entree.libelle, this);
        ligne->setData(roleSymbole, entree.symbole);
        ligne->setToolTip(QStringLiteral("%1 (%2)").arg(entree.libelle, entree.touches.toString()));
    }
}

void ListeRubriques::setPastille(int rang, int nombre)
{
    QListWidgetItem *ligne = item(rang);
    ligne->setData(rolePastille, nombre);
    ligne->setData(Qt::AccessibleTextRole,
                   nombre > 0 ? QStringLiteral("%1, %2 à voir").arg(ligne->text(), QString::number(nombre))
                              : ligne->text());
}

QSize ListeRubriques::minimumSizeHint() const
{
    const QFontMetrics mesures(Theme::enGras(font())); // as the chosen one is written
    int texte = 0;
    for (int rang = 0; rang < count(); ++rang)
        texte = std::max(texte, mesures.horizontalAdvance(item(rang)->text()));
    const int pastille = static_cast<int>(std::ceil(taillePastille(1).width()));
    return {4 * marge + coteSymbole() + texte + 2 * aDroite + pastille + jeu, QListWidget::minimumSizeHint().height()};
}

} // namespace Quillet
