#include "ui/commun/Libelle.h"

#include "ui/Theme.h"

#include <algorithm>

namespace {

constexpr int largeurVoulue = 240; // of a text that wraps
constexpr int largeurMinimale = 60;

} // namespace

Libelle::Libelle(const QString &texte, Rang rang, QWidget *parent) : QLabel(texte, parent)
{
    setTextFormat(Qt::PlainText);
    setRang(rang);
}

void Libelle::setRang(Rang rang)
{
    setForegroundRole(rang == Rang::principal ? QPalette::WindowText : Theme::roleSecondaire);
}

QSize Libelle::sizeHint() const
{
    if (!wordWrap())
        return QLabel::sizeHint();
    const QMargins marges = contentsMargins();
    return {std::min(fontMetrics().horizontalAdvance(text()), largeurVoulue) + marges.left() + marges.right(),
            fontMetrics().lineSpacing() + marges.top() + marges.bottom()};
}

QSize Libelle::minimumSizeHint() const
{
    return wordWrap() ? QSize(largeurMinimale, fontMetrics().lineSpacing()) : QLabel::minimumSizeHint();
}

int Libelle::heightForWidth(int offerte) const
{
    const int largeur = std::min(offerte, maximumWidth()); // a layout offers its own, and leaves the rest empty
    if (texteMesure_ != text()) {
        texteMesure_ = text();
        hauteurs_.clear();
    }
    const auto connue = hauteurs_.constFind(largeur);
    if (connue != hauteurs_.constEnd())
        return *connue;
    return *hauteurs_.insert(largeur, QLabel::heightForWidth(largeur));
}

void Libelle::changeEvent(QEvent *evenement)
{
    hauteurs_.clear(); // whatever changed, a font or a style, heights may have
    QLabel::changeEvent(evenement);
}
