#include "visite/Lisibilite.h"

#include "visite/TextesPeints.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHash>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QTextEdit>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Quillet {

namespace {

constexpr int echelle = 3;        // of the picture: strokes must have a core that antialiasing leaves alone
constexpr int echantillon = 75;   // px of the picture: the first letters of a text tell its colour
constexpr double texteReduit = 5; // px: below it is a picture of a text
constexpr double nuance = 1.5;    // between two shades of one ground
constexpr double tolerance = 1.5; // px, of what glyphs reach beyond their place

double luminance(QRgb couleur)
{
    const auto lineaire = [](int composante) {
        const double c = composante / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineaire(qRed(couleur)) + 0.7152 * lineaire(qGreen(couleur)) + 0.0722 * lineaire(qBlue(couleur));
}

double rapport(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

using Comptes = QHash<QRgb, int>; // pixels of each colour

QRgb dominante(const Comptes &comptes)
{
    QRgb trouvee = 0;
    int plus = 0;
    for (const auto &[couleur, nombre] : comptes.asKeyValueRange())
        if (nombre > std::exchange(plus, std::max(plus, nombre)))
            trouvee = couleur;
    return trouvee;
}

// The ground is the colour that most pixels have; the ink, the farthest from it. Where the ground is shaded, line by
// line, what counts is where it comes near the ink, but for the odd line that a stroke crosses.
Lisibilite::Contraste mesurer(const QImage &image, const QRect &cadre)
{
    Comptes comptes;
    QList<QRgb> fonds;
    for (int y = cadre.top(); y <= cadre.bottom(); ++y) {
        const auto *pixels = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        Comptes ligne;
        for (int x = cadre.left(); x <= cadre.right(); ++x)
            ++ligne[pixels[x]];
        fonds.append(dominante(ligne));
        for (const auto &[couleur, nombre] : ligne.asKeyValueRange())
            comptes[couleur] += nombre;
    }
    const auto ecart = [](QRgb couleur) {
        return [a = luminance(couleur)](QRgb b) { return rapport(a, luminance(b)); };
    };
    const QRgb fond = dominante(comptes);
    const QList<QRgb> couleurs = comptes.keys();
    const QRgb encre = *std::ranges::max_element(couleurs, {}, ecart(fond));
    fonds.removeIf([&](QRgb ligne) { return ecart(fond)(ligne) > nuance; });
    std::ranges::sort(fonds, {}, ecart(encre));
    const QRgb proche = fonds[fonds.size() / 10];
    return {{}, {}, QColor(encre), QColor(proche), ecart(encre)(proche)};
}

QString designation(const QWidget &widget)
{
    QString nom;
    for (const QWidget *parent = &widget; parent && nom.isEmpty(); parent = parent->parentWidget())
        nom = parent->accessibleName();
    return QStringLiteral("%1 (%2)").arg(QString::fromLatin1(widget.metaObject()->className()), nom);
}

template <typename Genre>
const Genre *dansUn(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget())
        if (const auto *trouve = qobject_cast<const Genre *>(widget))
            return trouve;
    return nullptr;
}

bool invite(const TextePeint &texte)
{
    const auto *champ = dansUn<QLineEdit>(texte.widget);
    const auto *zone = dansUn<QPlainTextEdit>(texte.widget);
    return (champ && champ->text().isEmpty()) || (zone && zone->toPlainText().isEmpty());
}

// The window, and each page that scrolls in it.
QList<QWidget *> pages(QWidget *fenetre)
{
    QList<QWidget *> pages{fenetre};
    for (const auto *aire : fenetre->findChildren<QScrollArea *>())
        if (aire->isVisible() && aire->widget())
            pages.append(aire->widget());
    return pages;
}

// The scrolled page that it belongs to, else the window.
const QWidget *pageDe(const QWidget *widget)
{
    while (!widget->isWindow()) {
        const QWidget *parent = widget->parentWidget();
        const auto *aire = parent ? qobject_cast<const QScrollArea *>(parent->parentWidget()) : nullptr;
        if (aire && aire->widget() == widget)
            return widget;
        widget = parent;
    }
    return widget;
}

QRectF place(const QWidget *widget, const QWidget *page)
{
    return {widget->mapTo(page, QPoint()), widget->size()};
}

bool depasse(const QRectF &dedans, const QRectF &dehors)
{
    return !dehors.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(dedans);
}

bool depasseUnParent(const QRectF &cadre, const QWidget *widget, const QWidget *page)
{
    for (; widget != page->parentWidget() && widget; widget = widget->parentWidget()) {
        if (depasse(cadre, place(widget, page)))
            return true;
        if (widget == page)
            break;
    }
    return false;
}

// A line that a list or a field has scrolled out of sight, or half out.
bool defile(const TextePeint &texte, const QWidget *page)
{
    const auto *aire = qobject_cast<const QAbstractScrollArea *>(texte.widget->parentWidget());
    const QRectF vue = place(texte.widget, page);
    return aire && (texte.encre.top() < vue.top() || texte.encre.bottom() > vue.bottom());
}

// Shortened where nothing tells the whole.
bool abrege(const TextePeint &texte)
{
    if (!texte.texte.endsWith(u'…') || invite(texte))
        return false;
    for (const char *propriete : {"text", "placeholderText", "currentText"})
        if (texte.widget->property(propriete).toString().remove(u'&').contains(texte.texte))
            return false;
    if (dansUn<QAbstractItemView>(texte.widget) || dansUn<QTextEdit>(texte.widget))
        return false; // the one tells it line by line, the other shortens nothing
    for (const QWidget *widget = texte.widget; widget; widget = widget->parentWidget())
        if (!widget->toolTip().isEmpty())
            return false;
    return true;
}

void chercherDans(const QWidget *page, const QList<TextePeint> &textes, QStringList &coupes)
{
    const auto dire = [&](const QWidget *widget, const QString &quoi) {
        coupes.append(QStringLiteral("%1 : %2").arg(designation(*widget), quoi));
    };
    for (qsizetype i = 0; i < textes.size(); ++i) {
        const TextePeint &texte = textes[i];
        const auto *champ = dansUn<QLineEdit>(texte.widget);
        if (abrege(texte))
            dire(texte.widget, QStringLiteral("abrégé : « %1 »").arg(texte.texte));
        else if (!champ && (depasseUnParent(texte.encre, texte.widget, page) || depasse(texte.encre, texte.decoupe)))
            dire(texte.widget, QStringLiteral("coupé : « %1 »").arg(texte.texte));
        for (qsizetype j = 0; j < i; ++j)
            if (const QRectF commun = texte.encre & textes[j].encre;
                commun.width() > tolerance && commun.height() > tolerance)
                dire(texte.widget, QStringLiteral("« %1 » sur « %2 »").arg(texte.texte, textes[j].texte));
    }
    for (const auto *controle : page->findChildren<QWidget *>())
        if (controle->isVisible() && controle->focusPolicy() != Qt::NoFocus && pageDe(controle) == page
            && depasseUnParent(place(controle, page), controle, page))
            dire(controle, QStringLiteral("hors de vue"));
}

} // namespace

double Lisibilite::rapport(const QColor &a, const QColor &b)
{
    return Quillet::rapport(luminance(a.rgb()), luminance(b.rgb()));
}

QList<Lisibilite::Contraste> Lisibilite::contrastes(QWidget *fenetre)
{
    QList<Contraste> contrastes;
    for (QWidget *page : pages(fenetre)) {
        QPixmap dessin(page->size() * echelle);
        dessin.setDevicePixelRatio(echelle);
        dessin.fill(page->palette().color(page->backgroundRole()));
        page->render(&dessin);
        const QImage image = dessin.toImage().convertToFormat(QImage::Format_RGB32);
        for (const TextePeint &texte : textesPeints(page)) {
            if (pageDe(texte.widget) != page || !texte.widget->isEnabled() || defile(texte, page)
                || texte.encre.height() < texteReduit)
                continue;
            const QRectF vu = texte.encre & place(texte.widget, page) & texte.decoupe;
            QRect cadre = QRectF(vu.topLeft() * echelle, vu.size() * echelle).toAlignedRect();
            cadre.setWidth(std::min(cadre.width(), echantillon));
            cadre = cadre.adjusted(-echelle, -echelle, echelle, echelle) & image.rect();
            if (cadre.isEmpty())
                continue;
            Contraste contraste = mesurer(image, cadre);
            contraste.texte = texte.texte;
            contraste.widget = designation(*texte.widget);
            contrastes.append(contraste);
        }
    }
    std::ranges::sort(contrastes, {}, &Contraste::rapport);
    return contrastes;
}

QStringList Lisibilite::coupes(QWidget *fenetre)
{
    QStringList coupes;
    for (const auto *partage : fenetre->findChildren<QSplitter *>())
        for (int i = 1; partage->isVisible() && i < partage->count(); ++i)
            if (partage->widget(i - 1)->geometry().intersects(partage->widget(i)->geometry()))
                coupes.append(QStringLiteral("Deux colonnes se recouvrent : ") + designation(*partage->widget(i)));
    for (QWidget *page : pages(fenetre)) {
        if (page != fenetre && page->width() > page->parentWidget()->width())
            coupes.append(QStringLiteral("Page plus large que sa place : ")
                          + designation(*page->parentWidget()->parentWidget()));
        QList<TextePeint> textes = textesPeints(page);
        textes.removeIf(
            [page](const TextePeint &texte) { return pageDe(texte.widget) != page || defile(texte, page); });
        chercherDans(page, textes, coupes);
    }
    return coupes;
}

} // namespace Quillet
