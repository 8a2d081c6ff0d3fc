#include "ui/Colonnes.h"

#include "composants/Partage.h"
#include "composants/Theme.h"
#include "model/Preferences.h"

#include <QSplitter>
#include <QTimer>

#include <algorithm>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr int excessive = 10'000; // px

} // namespace

QSplitter *Colonnes::entre(QWidget *gauche, QWidget *droite, QWidget *fixe, int largeur, const QString &nom,
                           const Preferences &preferences)
{
    const QString cle = QStringLiteral("colonne.") + nom;
    const int retenue = preferences.texte(cle).toInt();
    const bool sensee = retenue > 0 && retenue < excessive;
    const int large = std::min(Theme::aLaTaille(sensee ? retenue : largeur), fixe->maximumWidth());
    QSplitter *partage = Partage::entre(gauche, droite, fixe, large);
    partage->setObjectName(cle);
    auto *repos = new QTimer(partage);
    repos->setSingleShot(true);
    repos->setInterval(1s);
    QObject::connect(partage, &QSplitter::splitterMoved, repos, qOverload<>(&QTimer::start));
    QObject::connect(repos, &QTimer::timeout, partage, [preferences = Preferences(preferences), cle, fixe]() mutable {
        preferences.retenirSiPossible(cle, QString::number(qRound(fixe->width() * 100.0 / Theme::aLaTaille(100))));
    });
    return partage;
}

} // namespace Quillet
