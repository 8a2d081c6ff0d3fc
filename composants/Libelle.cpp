#include "composants/Libelle.h"

#include "composants/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>

namespace Quillet {

namespace {

constexpr int largeurVoulue = 240; // of a text that wraps
constexpr int largeurMinimale = 60;
constexpr int largeurDUnMot = 130; // as much as a word may ask for: a longer one can be broken anywhere

QList<QStringView> mots(const QString &texte)
{
    return QStringView(texte).split(u' ');
}

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

Libelle *Libelle::note(const QString &texte)
{
    auto *note = new Libelle(texte, Rang::secondaire);
    note->setFont(Theme::legende());
    note->setWordWrap(true);
    return note;
}

Libelle *Libelle::titreDeSection(const QString &texte)
{
    auto *titre = new Libelle(texte);
    titre->setFont(Theme::titreSection());
    return titre;
}

QSize Libelle::sizeHint() const
{
    return wordWrap() ? avecMarges(std::min(fontMetrics().horizontalAdvance(text()), Theme::aLaTaille(largeurVoulue)))
                      : QLabel::sizeHint();
}

QSize Libelle::minimumSizeHint() const
{
    if (!wordWrap())
        return QLabel::minimumSizeHint();
    const int plusPetite = Theme::aLaTaille(largeurMinimale);
    return avecMarges(std::clamp(motLePlusLong(), plusPetite, Theme::aLaTaille(largeurDUnMot)));
}

QSize Libelle::avecMarges(int largeur) const
{
    const QMargins marges = contentsMargins();
    return {largeur + marges.left() + marges.right(), fontMetrics().lineSpacing() + marges.top() + marges.bottom()};
}

int Libelle::motLePlusLong() const
{
    if (texteMesure_ != text())
        oublier();
    if (!motLePlusLong_) {
        motLePlusLong_ = 0;
        for (const QStringView mot : mots(text()))
            motLePlusLong_ = std::max(*motLePlusLong_, fontMetrics().horizontalAdvance(mot.toString()));
    }
    return *motLePlusLong_;
}

bool Libelle::deborde(int largeur) const
{
    return wordWrap() && motLePlusLong() > largeur;
}

// A text that can be selected belongs to a document within the label, which must stay as it is copied.
QTextDocument *Libelle::documentSecable() const
{
    auto *document = findChild<QTextDocument *>();
    if (document && document->defaultTextOption().wrapMode() != QTextOption::WrapAtWordBoundaryOrAnywhere) {
        QTextOption option = document->defaultTextOption();
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        document->setDefaultTextOption(option);
    }
    return document;
}

// With places to break the words that are too long.
QString Libelle::secable(int largeur) const
{
    QString texte;
    for (const QStringView mot : mots(text())) {
        texte += texte.isEmpty() ? QString() : QStringLiteral(" ");
        const bool tient = fontMetrics().horizontalAdvance(mot.toString()) <= largeur;
        for (const QChar c : mot) {
            texte += c;
            if (!tient && !c.isHighSurrogate() && !(c == u'&' && buddy())) // two are one, when one marks a key
                texte += QChar(0x200B);
        }
    }
    return texte;
}

int Libelle::heightForWidth(int offerte) const
{
    const int largeur = std::min(offerte, maximumWidth()); // a layout offers its own, and leaves the rest empty
    if (texteMesure_ != text())
        oublier();
    const auto connue = hauteurs_.constFind(largeur);
    if (connue != hauteurs_.constEnd())
        return *connue;
    const QSize marges = avecMarges(0) - QSize(0, fontMetrics().lineSpacing());
    const int place = largeur - marges.width();
    int hauteur = QLabel::heightForWidth(largeur);
    if (deborde(place))
        hauteur = documentSecable()
                      ? QLabel::heightForWidth(largeur)
                      : marges.height()
                            + fontMetrics()
                                  .boundingRect(QRect(0, 0, place, QWIDGETSIZE_MAX),
                                                static_cast<int>(alignment()) | Qt::TextWordWrap, secable(place))
                                  .height();
    return *hauteurs_.insert(largeur, hauteur);
}

void Libelle::paintEvent(QPaintEvent *evenement)
{
    const QRect place = contentsRect();
    const bool trop = deborde(place.width());
    if (trop)
        QLabel::heightForWidth(width()); // lays the document out anew if need be, which forgets how it may be broken
    if (!trop || documentSecable()) {
        QLabel::paintEvent(evenement);
        return;
    }
    QPainter peintre(this);
    const auto drapeaux = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextWordWrap
                          | (buddy() ? Qt::TextShowMnemonic : 0);
    style()->drawItemText(&peintre, place, drapeaux, palette(), isEnabled(), secable(place.width()), foregroundRole());
}

void Libelle::oublier() const
{
    texteMesure_ = text();
    hauteurs_.clear();
    motLePlusLong_.reset();
}

bool Libelle::event(QEvent *evenement)
{
    if (evenement->type() == QEvent::ContentsRectChange)
        oublier(); // other margins leave the same width another room
    return QLabel::event(evenement);
}

void Libelle::changeEvent(QEvent *evenement)
{
    oublier(); // whatever changed, a font or a style, measures may have
    QLabel::changeEvent(evenement);
}

} // namespace Quillet
