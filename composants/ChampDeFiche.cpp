#include "composants/ChampDeFiche.h"

#include "composants/Alerte.h"
#include "composants/Libelle.h"
#include "composants/LigneDeTexte.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/ZoneDeTexte.h"

#include <QFocusEvent>
#include <QScopedValueRollback>

namespace Quillet {

namespace {

constexpr int lettresDuLibelle = 15;
constexpr int margeDeLaZone = 6; // px above its first line

} // namespace

ChampDeFiche::ChampDeFiche(const QString &libelle, int lignes, QWidget *parent)
    : QWidget(parent),
      titre_(new Libelle(libelle)),
      rangee_(Pile::rangee({.espace = 8}, {})),
      aide_(Libelle::note({})),
      alerte_(new Alerte)
{
    // A reader may set a text without coming to the field, and so never leaves it.
    const auto suivre = [this] {
        if (!pose_ && !champ_->hasFocus())
            conclure();
    };
    if (lignes == 1) {
        champ_ = ligne_ = new LigneDeTexte;
        connect(ligne_, &QLineEdit::returnPressed, this, &ChampDeFiche::conclure);
        connect(ligne_, &QLineEdit::textChanged, this, suivre);
    } else {
        champ_ = zone_ = new ZoneDeTexte(lignes);
        connect(zone_, &QPlainTextEdit::textChanged, this, suivre);
    }
    champ_->installEventFilter(this);
    setFocusProxy(champ_);
    titre_->setBuddy(champ_);
    aligner(titre_);
    TailleDuTexte::suivre(titre_, [this] {
        const int haut = ligne_ ? (ligne_->sizeHint().height() - fontMetrics().height()) / 2 : margeDeLaZone;
        titre_->setContentsMargins(0, haut, 0, 0);
    });
    setNomDit(libelle);
    aide_->hide();
    if (libelle.isEmpty())
        titre_->hide();

    rangee_->addWidget(champ_, 1);
    Pile::rangee(this, {.espace = 8},
                 {{titre_, 0, Qt::AlignTop}, {Pile::colonne({.espace = 4}, {rangee_, aide_, alerte_}), 1}});
}

void ChampDeFiche::aligner(Libelle *libelle)
{
    libelle->setWordWrap(true);
    TailleDuTexte::suivre(libelle, [libelle] {
        libelle->setFixedWidth(lettresDuLibelle * libelle->fontMetrics().horizontalAdvance(u'n'));
    });
}

QString ChampDeFiche::texte() const
{
    return ligne_ ? ligne_->text() : zone_->toPlainText();
}

// Forgets the typing that led there: it is undone with the record from now on.
void ChampDeFiche::poser(const QString &texte)
{
    const QScopedValueRollback pose(pose_, true);
    ligne_ ? ligne_->setText(texte) : zone_->setPlainText(texte);
}

void ChampDeFiche::montrer(const QString &valeur)
{
    if (valeur == valeur_)
        return;
    valeur_ = rendu_ = valeur;
    aRedonner_ = false;
    if (valeur != texte()) {
        poser(valeur);
        if (ligne_ && !ligne_->hasFocus())
            ligne_->home(false); // a long one shows where it begins
    }
    objecter({});
}

void ChampDeFiche::oublier()
{
    rendu_ = valeur_;
    aRedonner_ = false;
    poser(valeur_);
    objecter({});
}

void ChampDeFiche::objecter(const QString &phrase)
{
    objection_ = phrase;
    alerte_->montrer(phrase);
    decrire();
}

void ChampDeFiche::setInvite(const QString &invite)
{
    ligne_ ? ligne_->setInvite(invite) : zone_->setPlaceholderText(invite);
}

void ChampDeFiche::setAide(const QString &aide)
{
    aide_->setText(aide);
    aide_->setVisible(!aide.isEmpty());
    decrire();
}

void ChampDeFiche::accoler(QWidget *commande)
{
    rangee_->addWidget(commande);
}

QWidget *ChampDeFiche::raison() const
{
    return alerte_;
}

void ChampDeFiche::setNomDit(const QString &nom)
{
    champ_->setAccessibleName(nom);
    titre_->setAccessibleName(nom); // a reader takes the label's
}

void ChampDeFiche::decrire()
{
    champ_->setAccessibleDescription(objection_.isEmpty() ? aide_->text() : objection_);
}

void ChampDeFiche::toutPrendre()
{
    ligne_ ? ligne_->selectAll() : zone_->selectAll();
}

void ChampDeFiche::conclure()
{
    const QString texte = this->texte();
    if (texte == rendu_ && !aRedonner_)
        return;
    aRedonner_ = false;
    rendu_ = texte;
    poser(texte);
    emit saisi(texte);
}

bool ChampDeFiche::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::FocusOut && !LigneDeTexte::reviendra(*static_cast<QFocusEvent *>(evenement)))
        conclure();
    return QWidget::eventFilter(objet, evenement);
}

// The sheet may close with the focus still in the field; what was refused there is not tried again as it goes.
void ChampDeFiche::hideEvent(QHideEvent *evenement)
{
    QWidget::hideEvent(evenement);
    if (texte() != rendu_)
        conclure();
}

} // namespace Quillet
