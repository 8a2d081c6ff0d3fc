#include "composants/BoutonCopier.h"

#include "composants/Icone.h"
#include "composants/LecteurDEcran.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace std::chrono_literals;

namespace Quillet {

BoutonCopier::BoutonCopier(QWidget *parent) : QToolButton(parent), retour_(this)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus); // a click ends what is being typed elsewhere, and may change what is copied
    retour_.setSingleShot(true);
    retour_.setInterval(1500ms);
    connect(this, &QToolButton::clicked, this, [this] { copier(QStringLiteral("Copié")); });
    connect(&retour_, &QTimer::timeout, this, &BoutonCopier::montrerEtat);
    montrerEtat();
}

void BoutonCopier::setValeur(const QString &valeur)
{
    if (valeur == valeur_)
        return;
    valeur_ = valeur;
    retour_.stop();
    montrerEtat();
}

void BoutonCopier::copier(const QString &dit)
{
    QGuiApplication::clipboard()->setText(valeur_);
    if (!retour_.isActive()) // copied again, it shows no longer than copied once
        retour_.start();
    montrerEtat();
    LecteurDEcran::annoncer(this, dit);
    emit copie();
}

void BoutonCopier::montrerEtat()
{
    const bool copie = retour_.isActive();
    setIcon(Icone::icone(copie ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("doc.on.doc")));
}

} // namespace Quillet
