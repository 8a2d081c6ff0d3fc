#include "ui/commun/ChampACopier.h"

#include "ui/Theme.h"
#include "ui/commun/Icone.h"
#include "ui/commun/Libelle.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QToolButton>

using namespace std::chrono_literals;

ChampACopier::ChampACopier(const QString &titre, std::optional<int> colonneDuTitre, QWidget *parent)
    : QWidget(parent), titre_(titre), affichage_(new Libelle({})), bouton_(new QToolButton)
{
    auto *titreAffiche = new Libelle(titre, Libelle::Rang::secondaire);
    titreAffiche->setFont(Theme::encadre());
    affichage_->setWordWrap(true);
    affichage_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    affichage_->setFocusPolicy(Qt::ClickFocus);
    bouton_->setAutoRaise(true);
    bouton_->setToolTip(tr("Copier %1").arg(titre));

    auto *textes = new QBoxLayout(colonneDuTitre ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    textes->setSpacing(colonneDuTitre ? 12 : 2);
    if (colonneDuTitre) {
        titreAffiche->setWordWrap(true);
        titreAffiche->setFixedWidth(*colonneDuTitre);
    }
    textes->addWidget(titreAffiche);
    textes->addWidget(affichage_, colonneDuTitre ? 1 : 0);
    auto *rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(0, 0, 0, 0);
    rangee->setSpacing(8);
    rangee->addLayout(textes, 1);
    rangee->addWidget(bouton_, 0, Qt::AlignVCenter);

    retour_.setSingleShot(true);
    retour_.setInterval(1500ms);
    connect(bouton_, &QToolButton::clicked, this, &ChampACopier::copier);
    connect(&retour_, &QTimer::timeout, this, &ChampACopier::montrerEtat);
    montrerEtat();
}

void ChampACopier::montrer(const QString &valeur, const QString &affichage)
{
    valeur_ = valeur;
    affichage_->setText(affichage.isEmpty() ? valeur : affichage);
    bouton_->setAccessibleName(tr("Copier %1").arg(titre_.isEmpty() ? valeur : titre_));
}

void ChampACopier::copier()
{
    QGuiApplication::clipboard()->setText(valeur_);
    retour_.start();
    montrerEtat();
}

void ChampACopier::montrerEtat()
{
    bouton_->setIcon(Icone::icone(copie() ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("doc.on.doc")));
    bouton_->setAccessibleDescription(copie() ? tr("Copié") : QString());
}
