#include "ui/tarifs/LigneVerification.h"

#include "composants/Icone.h"
#include "composants/Libelle.h"
#include "composants/Lien.h"
#include "composants/Pile.h"
#include "composants/TailleDuTexte.h"
#include "composants/Theme.h"

#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

namespace Quillet {

namespace {

constexpr int espace = 12;

int coteSymbole()
{
    return Theme::aLaTaille(22);
}

int coteEtat()
{
    return Theme::aLaTaille(16);
}

} // namespace

LigneVerification::LigneVerification(const QString &nom, QWidget *parent)
    : QWidget(parent),
      titre_(new Libelle({})),
      detail_(new Libelle({}, Libelle::Rang::secondaire)),
      etat_(new Libelle({})),
      rappel_(new Libelle({})),
      progres_(new QProgressBar),
      changements_(new QPushButton(QStringLiteral("Voir les changements"))),
      page_(new QPushButton(Icone::icone(QStringLiteral("arrow.up.forward.app")), QStringLiteral("Ouvrir la page"))),
      verifier_(new QPushButton(Icone::icone(QStringLiteral("arrow.counterclockwise")), QStringLiteral("Vérifier")))
{
    titre_->setFont(Theme::enGras(font()));
    detail_->setFont(Theme::encadre());
    detail_->setWordWrap(true);
    for (Libelle *libelle : {etat_, rappel_}) {
        libelle->setFont(Theme::encadre());
        libelle->setWordWrap(true);
    }
    progres_->setRange(0, 0);
    progres_->setTextVisible(false);
    progres_->setFixedSize(72, 5);
    progres_->setAccessibleName(QStringLiteral("%1 : mise à jour en cours").arg(nom));
    for (QPushButton *bouton : {changements_, page_, verifier_})
        bouton->setAccessibleName(QStringLiteral("%1, %2").arg(bouton->text(), nom));
    changements_->setDefault(true); // filled: it is what the line asks for

    QBoxLayout *situation = Pile::rangee({}, {{etat_, 1}, {progres_, 0, Qt::AlignVCenter}});
    QBoxLayout *textes = Pile::colonne({.espace = 3}, {titre_, detail_, situation, rappel_});
    auto *rangee = new QHBoxLayout(this);
    rangee->setSpacing(8);
    auto *place = new QSpacerItem(0, 0);
    rangee->addItem(place);
    rangee->addLayout(textes, 1);
    for (QPushButton *bouton : {changements_, page_, verifier_})
        rangee->addWidget(bouton, 0, Qt::AlignVCenter);

    TailleDuTexte::suivre(this, [this, place, rangee] {
        place->changeSize(coteSymbole() + espace, 0, QSizePolicy::Fixed);
        rangee->invalidate();
        placerLesEtats();
    });
    connect(changements_, &QPushButton::clicked, this, &LigneVerification::changementsDemandes);
    connect(verifier_, &QPushButton::clicked, this, &LigneVerification::verificationDemandee);
    connect(page_, &QPushButton::clicked, this, [this] { Lien::ouvrir(ligne_.page, this); });
}

void LigneVerification::montrer(const TextesVerifications::Ligne &ligne)
{
    ligne_ = ligne;
    titre_->setText(ligne.titre);
    detail_->setText(ligne.detail);
    etat_->setText(ligne.etat.texte);
    rappel_->setText(ligne.rappel.texte);
    rappel_->setVisible(!ligne.rappel.texte.isEmpty());
    // Heard by who has just pressed it.
    verifier_->setAccessibleDescription((ligne.etat.texte + u'\n' + ligne.rappel.texte).trimmed());
    placerLesEtats();
    // The button stays enabled while the check runs: it would lose the focus to a neighbour.
    progres_->setVisible(ligne.cas == Verifications::Etat::Cas::enCours);
    page_->setVisible(ligne.cas == Verifications::Etat::Cas::erreur);
    changements_->setVisible(ligne.trouvaille && ligne.cas != Verifications::Etat::Cas::enCours);
    update();
}

// No symbol, no room for one; what stands under the state lines up with it.
void LigneVerification::placerLesEtats()
{
    for (Libelle *libelle : {etat_, rappel_})
        libelle->setContentsMargins(ligne_.etat.symbole.isEmpty() ? 0 : coteEtat() + 6, 0, 0, 0);
}

void LigneVerification::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    Icone::peindre(peintre, ligne_.symbole, QRectF(0, titre_->y(), coteSymbole(), coteSymbole()),
                   Theme::secondaire(palette()));
    peindreLEtat(peintre, etat_, ligne_.etat);
    peindreLEtat(peintre, rappel_, ligne_.rappel);
}

void LigneVerification::peindreLEtat(QPainter &peintre, const Libelle *libelle,
                                     const TextesVerifications::Ligne::Etat &etat) const
{
    using Ton = TextesVerifications::Ligne::Ton;
    if (etat.symbole.isEmpty())
        return;
    const QColor couleur = etat.ton == Ton::alerte   ? Theme::orange(palette())
                           : etat.ton == Ton::accent ? Theme::accentTexte(palette())
                                                     : Theme::secondaire(palette());
    const int haut = libelle->y() + (libelle->fontMetrics().height() - coteEtat()) / 2;
    Icone::peindre(peintre, etat.symbole, QRectF(libelle->x(), haut, coteEtat(), coteEtat()), couleur);
}

} // namespace Quillet
