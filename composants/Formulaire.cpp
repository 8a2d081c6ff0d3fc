#include "composants/Formulaire.h"

#include "composants/ChampDeFiche.h"
#include "composants/Dessin.h"
#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"
#include "composants/Theme.h"

#include <QPainter>

#include <utility>

namespace Quillet::Formulaire {

namespace {

Libelle *secondeLigne()
{
    Libelle *detail = Libelle::note({});
    LecteurDEcran::jouer(detail, QAccessible::Paragraph); // describes the control of its row: said there, once
    detail->hide();
    return detail;
}

void montrerDetail(Libelle *libelle, const QString &detail)
{
    libelle->setText(detail);
    libelle->setAccessibleName(detail);
    libelle->setVisible(!detail.isEmpty());
}

QBoxLayout *surDeuxLignes(Libelle *libelle, Libelle *detail)
{
    return Pile::colonne({.espace = 2}, {libelle, detail});
}

// A screen reader says the label before the value it stands beside.
void relier(Libelle *libelle, QWidget *valeur)
{
    libelle->setBuddy(valeur);
    if (!qobject_cast<QLabel *>(valeur) && valeur->accessibleName().isEmpty())
        valeur->setAccessibleName(libelle->text());
}

// The second line describes the control of its row.
void decrire(QWidget *valeur, const QString &detail)
{
    QWidget *controle = valeur->focusProxy() ? valeur->focusProxy() : valeur;
    if (!qobject_cast<QLabel *>(controle))
        controle->setAccessibleDescription(detail);
}

} // namespace

Groupe::Groupe(QWidget *parent)
    : QWidget(parent),
      rangees_(Pile::colonne(this, {.marges = {margeHorizontale, 3, margeHorizontale, 3}, .espace = 0}))
{
    LecteurDEcran::jouer(this, QAccessible::Grouping); // called by the note of its section
}

void Groupe::ajouter(QWidget *rangee)
{
    inserer(rangees_->count(), rangee);
}

void Groupe::inserer(int indice, QWidget *rangee)
{
    rangee->setContentsMargins(0, margeVerticale, 0, margeVerticale);
    rangees_->insertWidget(indice, rangee);
}

void Groupe::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Dessin::carte(peintre, rect(), palette());

    bool premiere = true;
    for (int i = 0; i < rangees_->count(); ++i) {
        const QWidget *rangee = rangees_->itemAt(i)->widget();
        if (!rangee || rangee->isHidden())
            continue;
        if (!std::exchange(premiere, false))
            Dessin::filet(peintre, QPoint(margeHorizontale, rangee->y()), width() - 2 * margeHorizontale, palette());
    }
}

Section::Section(const QString &titre, const QString &pied, QWidget *parent)
    : QWidget(parent), titre_(titre), precision_(new Libelle({}, Libelle::Rang::secondaire)), groupe_(new Groupe)
{
    LecteurDEcran::jouer(this, QAccessible::Grouping);
    auto *tete = new Libelle(titre);
    tete->setFont(Theme::titreCarte());
    tete->setContentsMargins(2, 0, 2, 0);
    precision_->setFont(Theme::encadre());
    precision_->hide();
    QBoxLayout *titres = Pile::rangee({.espace = 8}, {tete, {precision_, 0, Qt::AlignVCenter}, Pile::reste()});
    QBoxLayout *colonne = Pile::colonne(this, {.espace = 6}, {titres, groupe_});
    if (!pied.isEmpty()) {
        Libelle *note = Libelle::note(pied);
        note->setContentsMargins(margeHorizontale, 0, margeHorizontale, 0);
        note->setBuddy(groupe_); // else it is read with the whole sheet, and again here
        colonne->addWidget(note);
    }
    setAccessibleName(titre);
}

void Section::setPrecision(const QString &precision)
{
    precision_->setText(precision);
    precision_->show();
    setAccessibleName(QStringLiteral("%1, %2").arg(titre_, precision));
}

Rangee::Rangee(const QString &libelle, QWidget *valeur, QWidget *parent)
    : QWidget(parent), libelle_(new Libelle(libelle)), detail_(secondeLigne()), valeur_(valeur)
{
    // A value that wants room takes what its label leaves; any other keeps to the right.
    const bool large = valeur->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    // A label that comes later may be long: a book's title, a list of territories.
    libelle_->setWordWrap(libelle.isEmpty());
    Pile::rangee(this, {.espace = 8},
                 {{surDeuxLignes(libelle_, detail_), large ? 0 : 1},
                  {valeur, large ? 1 : 0, large ? Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter}});
    relier(libelle_, valeur);
}

void Rangee::setTexte(const QString &libelle)
{
    // Beside a control Qt would take an & for the mark of a key.
    libelle_->setText(libelle_->buddy() ? QString(libelle).replace(u'&', QStringLiteral("&&")) : libelle);
}

void Rangee::setDetail(const QString &detail)
{
    montrerDetail(detail_, detail);
    decrire(valeur_, detail);
}

void Rangee::alignerSurLesChamps()
{
    auto *rangee = static_cast<QBoxLayout *>(layout());
    rangee->setStretch(0, 0);
    rangee->setStretch(1, 1);
    if (rangee->itemAt(1)->alignment() & Qt::AlignRight)
        rangee->setAlignment(valeur_, Qt::AlignLeft | Qt::AlignVCenter);
    ChampDeFiche::aligner(libelle_);
}

RangeeHaute::RangeeHaute(const QString &libelle, QWidget *valeur, QWidget *parent)
    : QWidget(parent), detail_(secondeLigne()), valeur_(valeur)
{
    auto *titre = new Libelle(libelle);
    Pile::colonne(this, {.espace = 6}, {surDeuxLignes(titre, detail_), valeur});
    relier(titre, valeur);
}

void RangeeHaute::setDetail(const QString &detail)
{
    montrerDetail(detail_, detail);
    decrire(valeur_, detail);
}

QWidget *seul(QWidget *controle)
{
    return Pile::enColonne({}, {controle});
}

} // namespace Quillet::Formulaire
