#include "composants/Theme.h"

#include <QApplication>
#include <QFontDatabase>

#include <algorithm>

namespace Quillet {

namespace {

struct Teintes
{
    QColor fenetre, panneau, carte, remplissage, texte, secondaire, inactif, invite, filet, accent, accentTexte, orange,
        bulle;
};

const Teintes &teintes(Theme::Mode mode, Theme::Contraste contraste)
{
    static const Teintes clair{.fenetre = 0xF7F4ED,
                               .panneau = 0xEFEAE0,
                               .carte = 0xFFFDF9,
                               .remplissage = 0xEAE4D8,
                               .texte = 0x24211C,
                               .secondaire = 0x69635A,
                               .inactif = 0xA8A196,
                               .invite = 0x776F64,
                               .filet = 0xDED7C9,
                               .accent = QColor(13, 104, 98),
                               .accentTexte = QColor(13, 104, 98),
                               .orange = 0xA94A00,
                               .bulle = 0x2E2B26};
    static const Teintes sombre{.fenetre = 0x1D1C1A,
                                .panneau = 0x171614,
                                .carte = 0x282623,
                                .remplissage = 0x35322E,
                                .texte = 0xEDE9E1,
                                .secondaire = 0xABA497,
                                .inactif = 0x6F6A61,
                                .invite = 0x938C80,
                                .filet = 0x3B3833,
                                .accent = 0x1B8077,
                                .accentTexte = 0x69C8BC,
                                .orange = 0xF2A65A,
                                .bulle = 0x3B3833};
    // The same paper and the same night, a little further from the ink; lines and hints become as plain as texts were.
    static const Teintes clairRenforce{.fenetre = 0xFBF9F4,
                                       .panneau = 0xF4F0E7,
                                       .carte = 0xFFFFFF,
                                       .remplissage = 0xEAE4D8,
                                       .texte = 0x0B0A08,
                                       .secondaire = 0x37322B,
                                       .inactif = 0x655F55,
                                       .invite = 0x5A554C,
                                       .filet = 0x766F63,
                                       .accent = 0x064A45,
                                       .accentTexte = 0x064A45,
                                       .orange = 0x6B2E00,
                                       .bulle = 0x14120F};
    static const Teintes sombreRenforce{.fenetre = 0x0E0D0C,
                                        .panneau = 0x070706,
                                        .carte = 0x181715,
                                        .remplissage = 0x2A2825,
                                        .texte = 0xFFFDF8,
                                        .secondaire = 0xD9D3C7,
                                        .inactif = 0xA69F93,
                                        .invite = 0xA69F93,
                                        .filet = 0x8B8478,
                                        .accent = 0x0D625B,
                                        .accentTexte = 0x93E6DB,
                                        .orange = 0xFFC88F,
                                        .bulle = 0x2A2825};
    if (contraste == Theme::Contraste::renforce)
        return mode == Theme::Mode::clair ? clairRenforce : sombreRenforce;
    return mode == Theme::Mode::clair ? clair : sombre;
}

constexpr qreal tailleMinimale = 10; // pt

QFont aLEchelle(qreal echelle)
{
    QFont police = QApplication::font();
    police.setPointSizeF(police.pointSizeF() * echelle);
    return police;
}

QFont serif(qreal echelle, QFont::Weight graisse)
{
    QFont police = aLEchelle(echelle);
    police.setFamilies(
        Theme::famillesDesTitres()
        + QStringList{QStringLiteral("Georgia"), QStringLiteral("DejaVu Serif"), QStringLiteral("serif")});
    police.setStyleHint(QFont::Serif);
    police.setWeight(graisse);
    return police;
}

} // namespace

QPalette Theme::palette(Mode mode, Contraste contraste)
{
    const Teintes &t = teintes(mode, contraste);
    QPalette palette(t.texte, t.carte, t.carte, t.filet, t.filet, t.texte, Qt::white, t.carte, t.fenetre);
    palette.setColor(QPalette::Mid, t.filet);
    palette.setColor(QPalette::Midlight, t.remplissage);
    palette.setColor(QPalette::AlternateBase, t.panneau);
    palette.setColor(roleSecondaire, t.secondaire);
    palette.setColor(QPalette::PlaceholderText, t.invite); // fainter than any text, not to be taken for one
    palette.setColor(QPalette::Highlight, t.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, t.accentTexte);
    palette.setColor(QPalette::LinkVisited, t.accentTexte);
    palette.setColor(QPalette::ToolTipBase, t.bulle);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, t.inactif);
    return palette;
}

Theme::Mode Theme::mode(const QPalette &palette)
{
    const bool sombre = palette.color(QPalette::Active, QPalette::Window).lightness()
                        < palette.color(QPalette::Active, QPalette::WindowText).lightness();
    return sombre ? Mode::sombre : Mode::clair;
}

Theme::Contraste Theme::contraste(const QPalette &palette)
{
    const bool renforce = filet(palette) == teintes(mode(palette), Contraste::renforce).filet;
    return renforce ? Contraste::renforce : Contraste::normal;
}

QColor Theme::secondaire(const QPalette &palette)
{
    return palette.color(roleSecondaire);
}

QColor Theme::filet(const QPalette &palette)
{
    return palette.color(QPalette::Mid);
}

QColor Theme::carte(const QPalette &palette)
{
    return palette.color(QPalette::Base);
}

QColor Theme::remplissage(const QPalette &palette)
{
    return palette.color(QPalette::Midlight);
}

// Surfaces get lighter as they rise, but by day nothing is lighter than a card.
QColor Theme::surgissant(const QPalette &palette)
{
    return mode(palette) == Mode::clair ? carte(palette) : remplissage(palette);
}

QColor Theme::accent(const QPalette &palette)
{
    return palette.color(QPalette::Active, QPalette::Highlight);
}

QColor Theme::accent(Mode mode)
{
    return teintes(mode, Contraste::normal).accent;
}

QColor Theme::accentTexte(const QPalette &palette)
{
    return palette.color(QPalette::Link);
}

QColor Theme::orange(const QPalette &palette)
{
    return teintes(mode(palette), contraste(palette)).orange;
}

QColor Theme::bleu()
{
    return 0x2F6FDE;
}

QColor Theme::bleuHaut()
{
    return 0x3370D8;
}

QColor Theme::bleuBas()
{
    return 0x1F56BE;
}

QStringList Theme::famillesDesTextes()
{
    return {QStringLiteral("Inter")};
}

QStringList Theme::famillesDesTitres()
{
    return {QStringLiteral("Libertinus Serif"), QStringLiteral("Linux Libertine O")};
}

QFont Theme::police(double agrandissement)
{
    QFont police = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    police.setFamilies(famillesDesTextes() + QStringList{police.family()});
    police.setPointSizeF(std::max(police.pointSizeF() * agrandissement, tailleMinimale));
    return police;
}

QFont Theme::legende()
{
    return aLEchelle(0.83);
}

QFont Theme::encadre()
{
    return aLEchelle(0.92);
}

QFont Theme::titre3()
{
    return aLEchelle(1.2);
}

QFont Theme::grandChiffre()
{
    return enGras(aLEchelle(1.7), QFont::Bold);
}

QFont Theme::titreEcran()
{
    return serif(1.95, QFont::DemiBold);
}

// The book serif is drawn smaller than the sans at the same size: a little more keeps them level.
QFont Theme::titreLivre()
{
    return serif(1.22, QFont::DemiBold);
}

QFont Theme::titreSection()
{
    return serif(1.55, QFont::DemiBold);
}

QFont Theme::titreCarte()
{
    return serif(1.35, QFont::DemiBold);
}

int Theme::aLaTaille(int longueur)
{
    return qRound(longueur * std::max(QApplication::font().pointSizeF() / tailleMinimale, 1.0));
}

QSize Theme::aLaTaille(QSize taille)
{
    return {aLaTaille(taille.width()), aLaTaille(taille.height())};
}

QFont Theme::enGras(QFont police, QFont::Weight graisse)
{
    police.setWeight(graisse);
    return police;
}

} // namespace Quillet
