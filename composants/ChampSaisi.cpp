#include "composants/ChampSaisi.h"

#include "composants/Alerte.h"
#include "composants/Libelle.h"
#include "composants/LigneDeTexte.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"

#include <QKeyEvent>

namespace Quillet {

ChampSaisi::ChampSaisi(const QString &libelle, const Unite &unite, Objection objection, QWidget *parent)
    : QWidget(parent), objection_(std::move(objection)), champ_(new LigneDeTexte), alerte_(new Alerte)
{
    auto *titre = new Libelle(libelle);
    titre->setBuddy(champ_);
    auto *mesure = new Libelle(unite.symbole, Libelle::Rang::secondaire);
    champ_->setAlignment(Qt::AlignRight);
    TailleDuTexte::suivre(mesure, [this, mesure] {
        mesure->setFixedWidth(fontMetrics().horizontalAdvance(u'€') + 4); // fields line up whatever their unit
        champ_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("99 999,99")) + 32);
    });
    champ_->setAccessibleName(QStringLiteral("%1, en %2").arg(libelle, unite.nom));
    titre->setAccessibleName(champ_->accessibleName()); // a reader takes the label's
    champ_->installEventFilter(this);
    connect(champ_, &QLineEdit::textEdited, this, [this](const QString &texte) { direLeRefus(objection_(texte)); });
    connect(champ_, &QLineEdit::returnPressed, this, [this] {
        conclure();
        champ_->selectAll();
    });

    Pile::colonne(this, {.espace = 4}, {Pile::rangee({.espace = 8}, {{titre, 1}, champ_, mesure}), alerte_});
}

void ChampSaisi::setInvite(const QString &invite)
{
    champ_->setPlaceholderText(invite);
}

void ChampSaisi::montrer(const QString &valeur)
{
    if (valeur == valeur_)
        return;
    valeur_ = valeur;
    oublier();
}

void ChampSaisi::oublier()
{
    champ_->setText(valeur_);
    direLeRefus({});
}

void ChampSaisi::direLeRefus(const QString &refus)
{
    alerte_->montrer(refus);
    champ_->setAccessibleDescription(refus);
}

void ChampSaisi::conclure()
{
    const QString texte = champ_->text();
    if (texte == valeur_)
        return;
    champ_->setText(valeur_); // until somebody shows another
    const QString refus = objection_(texte);
    direLeRefus(refus);
    if (refus.isEmpty())
        emit saisi(texte);
    else
        emit refuse();
}

bool ChampSaisi::eventFilter(QObject *objet, QEvent *evenement)
{
    const auto passager = [evenement] { return LigneDeTexte::reviendra(*static_cast<QFocusEvent *>(evenement)); };
    if (evenement->type() == QEvent::FocusOut && !passager())
        conclure();
    if (evenement->type() == QEvent::FocusIn && !passager())
        direLeRefus({}); // of an earlier try
    if (evenement->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Escape)
        oublier();
    return QWidget::eventFilter(objet, evenement);
}

// The window may close with the focus still in the field.
void ChampSaisi::hideEvent(QHideEvent *evenement)
{
    QWidget::hideEvent(evenement);
    conclure();
}

} // namespace Quillet
