#include "ui/documents/PageFacture.h"

#include "composants/Theme.h"
#include "model/Format.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace Quillet {

namespace {

constexpr double marge = 48;
constexpr double espace = 28; // between two sections
constexpr double largeurUtile = PageFacture::taille.width() - 2 * marge;
constexpr double hauteurUtile = PageFacture::taille.height() - 2 * marge;

constexpr double colonneDesPrix = 110;
constexpr double colonneDesMontants = 90;
constexpr double margeDeRangee = 8;
constexpr double interligne = 1.12;
constexpr double epaisseurDuFilet = 0.7;

struct Caractere
{
    int corps = 10; // points
    QFont::Weight graisse = QFont::Normal;
    QColor couleur;
};

// Scripts whose letters are read as well one by one.
bool lettresDetachees(const QString &texte)
{
    return std::ranges::all_of(texte, [](QChar lettre) {
        const QChar::Script ecriture = lettre.script();
        return ecriture == QChar::Script_Common || ecriture == QChar::Script_Latin || ecriture == QChar::Script_Greek
               || ecriture == QChar::Script_Cyrillic;
    });
}

// In pixels, which are points here: a size in points would follow the screen's density.
QFont police(const Caractere &caractere, const QString &texte)
{
    QFont police = QApplication::font();
    police.setPixelSize(caractere.corps);
    police.setWeight(caractere.graisse);
    police.setHintingPreference(QFont::PreferNoHinting);
    // A glyph that shaping swapped for another (a ligature, a dash between digits) has no character in a PDF's text.
    if (lettresDetachees(texte))
        police.setStyleStrategy(QFont::PreferNoShaping);
    return police;
}

// The page from top to bottom. Without a painter it only measures: what is measured is what is drawn.
class Composition
{
public:
    Composition(const Facture &facture, const PageFacture::Couleurs &couleurs, double largeur,
                QPainter *peintre = nullptr)
        : facture_(facture),
          largeur_(largeur),
          peintre_(peintre),
          titre_{17, QFont::DemiBold, couleurs.encre},
          texte_{10, QFont::Normal, couleurs.encre},
          discret_{10, QFont::Normal, couleurs.gris},
          legende_{8, QFont::DemiBold, couleurs.gris},
          note_{8, QFont::Normal, couleurs.gris},
          accent_(couleurs.accent),
          filet_(couleurs.filet)
    {
    }

    // Returns the height it takes.
    double composer()
    {
        enTete();
        acheteur();
        tableau();
        reglement();
        mentions();
        return y_;
    }

    [[nodiscard]] const QString &ecrit() const { return ecrit_; }

private:
    // Each draws from `y_` and leaves `y_` under itself.
    void enTete();
    void acheteur();
    void tableau();
    void ligne(const Facture::Ligne &ligne);
    void envoi();
    void total();
    void reglement();
    void mentions();

    // A block of text; returns its height and leaves `y_` where it is.
    double bloc(const QString &texte, const Caractere &caractere, double x, double y, double largeur,
                Qt::Alignment alignement = Qt::AlignLeft);
    void filet(const QColor &couleur) const;
    void entreSections();
    [[nodiscard]] double finDesDesignations() const { return largeur_ - colonneDesPrix - colonneDesMontants; }

    const Facture &facture_;
    double largeur_;
    QPainter *peintre_;
    Caractere titre_, texte_, discret_, legende_, note_;
    QColor accent_, filet_;
    QString ecrit_; // by the blocks so far
    double y_ = 0;
};

double Composition::bloc(const QString &texte, const Caractere &caractere, double x, double y, double largeur,
                         Qt::Alignment alignement)
{
    const QString paragraphes = texte.normalized(QString::NormalizationForm_C).replace(u'\n', QChar::LineSeparator);
    ecrit_ += paragraphes;
    QTextLayout mise(paragraphes, police(caractere, paragraphes));
    QTextOption option(alignement);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true); // the same lines at every scale
    mise.setTextOption(option);
    double hauteur = 0;
    mise.beginLayout();
    for (QTextLine ligne = mise.createLine(); ligne.isValid(); ligne = mise.createLine()) {
        ligne.setLineWidth(largeur);
        ligne.setPosition({0, hauteur});
        hauteur += ligne.height() * interligne;
    }
    mise.endLayout();
    if (peintre_) {
        peintre_->setPen(caractere.couleur);
        mise.draw(peintre_, {x, y});
    }
    return hauteur;
}

void Composition::filet(const QColor &couleur) const
{
    if (peintre_)
        peintre_->fillRect(QRectF(0, y_ - epaisseurDuFilet / 2, largeur_, epaisseurDuFilet), couleur);
}

void Composition::entreSections()
{
    y_ += espace / 2;
    filet(filet_);
    y_ += espace / 2;
}

void Composition::enTete()
{
    const IdentiteVendeur &vendeur = facture_.vendeur;
    const double largeurDuNumero = largeur_ * 0.44;
    const double largeurDuVendeur = largeur_ - largeurDuNumero - espace;
    double hauteurDuVendeur = bloc(vendeur.nom, titre_, 0, y_, largeurDuVendeur) + 4;
    hauteurDuVendeur += bloc(coordonnees(vendeur).join(u'\n'), discret_, 0, y_ + hauteurDuVendeur, largeurDuVendeur);

    double hauteurDuNumero = 0;
    const auto aDroite = [&](const QString &texte, const Caractere &caractere) {
        hauteurDuNumero +=
            bloc(texte, caractere, largeur_ - largeurDuNumero, y_ + hauteurDuNumero, largeurDuNumero, Qt::AlignRight);
    };
    aDroite(facture_.numero, titre_);
    hauteurDuNumero += 4;
    aDroite(QStringLiteral("FACTURE · INVOICE"), {10, QFont::DemiBold, accent_});
    aDroite(Format::date(facture_.date), discret_);

    y_ += std::max(hauteurDuVendeur, hauteurDuNumero);
    entreSections();
}

void Composition::acheteur()
{
    y_ += bloc(QStringLiteral("Facturé à · Bill to"), legende_, 0, y_, largeur_) + 4;
    y_ += bloc(facture_.acheteur, texte_, 0, y_, largeur_) + espace;
}

void Composition::tableau()
{
    const double hauteur = bloc(QStringLiteral("Désignation · Description"), legende_, 0, y_, largeur_ / 2);
    bloc(QStringLiteral("Montant · Amount"), legende_, largeur_ / 2, y_, largeur_ / 2, Qt::AlignRight);
    y_ += hauteur + 6;
    for (const Facture::Ligne &vendue : facture_.lignes)
        ligne(vendue);
    envoi();
    total();
}

void Composition::ligne(const Facture::Ligne &ligne)
{
    filet(filet_);
    y_ += margeDeRangee;
    const double fin = finDesDesignations();
    Caractere designation = texte_;
    designation.graisse = QFont::Medium;
    double hauteur = bloc(ligne.designation, designation, 0, y_, fin);
    bloc(QString::number(ligne.quantite) + QStringLiteral(" × ") + Format::euros(ligne.prixUnitaire), discret_, fin, y_,
         colonneDesPrix, Qt::AlignRight);
    bloc(Format::euros(ligne.montant()), texte_, largeur_ - colonneDesMontants, y_, colonneDesMontants, Qt::AlignRight);
    if (!ligne.isbn.isEmpty())
        hauteur += bloc(QStringLiteral("ISBN ") + ligne.isbn, note_, 0, y_ + hauteur + 1, fin) + 1;
    y_ += hauteur + margeDeRangee;
}

void Composition::envoi()
{
    filet(filet_);
    y_ += margeDeRangee;
    const double hauteur = bloc(facture_.libelleEnvoi, texte_, 0, y_, largeur_ - colonneDesMontants);
    bloc(Format::euros(facture_.envoi), texte_, largeur_ - colonneDesMontants, y_, colonneDesMontants, Qt::AlignRight);
    y_ += hauteur + margeDeRangee;
}

void Composition::total()
{
    filet(accent_);
    y_ += margeDeRangee + 2;
    const Caractere gras{11, QFont::Bold, texte_.couleur};
    const double hauteur = bloc(QStringLiteral("Total"), gras, 0, y_, largeur_ / 2);
    bloc(Format::euros(facture_.total()), gras, largeur_ / 2, y_, largeur_ / 2, Qt::AlignRight);
    y_ += hauteur;
    if (!facture_.vendeur.mentionTva.isEmpty())
        y_ += bloc(facture_.vendeur.mentionTva, note_, 0, y_ + 4, largeur_) + 4;
}

void Composition::reglement()
{
    y_ += espace;
    const Caractere reglee{10, QFont::Medium, accent_};
    y_ += bloc(QStringLiteral("Réglée par PayPal · Paid via PayPal"), reglee, 0, y_, largeur_);
}

void Composition::mentions()
{
    entreSections();
    const QString codeSH = facture_.codeSH;
    y_ += bloc(QStringLiteral("Marchandises : livres imprimés, origine France, code SH ") + codeSH
                   + QStringLiteral(" · Goods: printed books, made in France, HS code ") + codeSH,
               note_, 0, y_, largeur_);
}

} // namespace

PageFacture::Couleurs PageFacture::imprimees()
{
    return {.encre = Qt::black,
            .gris = QColor::fromRgbF(0.42F, 0.42F, 0.42F),
            .filet = QColor::fromRgbF(0.82F, 0.82F, 0.82F),
            .accent = Theme::accent(Theme::Mode::clair)};
}

void PageFacture::peindre(QPainter &peintre, const Facture &facture, const Couleurs &couleurs)
{
    // Drawn smaller, a page is as much wider: its lines get fewer, never more, so that this scale is enough.
    const double hauteur = Composition(facture, couleurs, largeurUtile).composer();
    const double echelle = std::min(1.0, hauteurUtile / hauteur);
    peintre.save();
    peintre.translate(marge, marge);
    peintre.scale(echelle, echelle);
    Composition(facture, couleurs, largeurUtile / echelle, &peintre).composer();
    peintre.restore();
}

QString PageFacture::textes(const Facture &facture)
{
    Composition page(facture, imprimees(), largeurUtile);
    page.composer();
    return page.ecrit();
}

} // namespace Quillet
