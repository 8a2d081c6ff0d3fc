#include "ui/Colonnes.h"

#include "composants/Partage.h"
#include "model/Preferences.h"

#include <QSplitter>
#include <QVariant>

namespace Quillet {

namespace {

constexpr auto largeurVoulue = "largeurVoulue";
constexpr int excessive = 10'000; // px

} // namespace

QSplitter *Colonnes::entre(QWidget *gauche, QWidget *droite, QWidget *fixe, int largeur, const QString &nom,
                           const Preferences &preferences)
{
    const QString cle = QStringLiteral("colonne.") + nom;
    const int retenue = preferences.texte(cle).toInt();
    const bool sensee = retenue > 0 && retenue < excessive;
    QSplitter *partage = Partage::entre(gauche, droite, fixe, sensee ? retenue : largeur);
    partage->setObjectName(cle);
    QObject::connect(partage, &QSplitter::splitterMoved, partage,
                     [partage, fixe] { partage->setProperty(largeurVoulue, fixe->width()); });
    return partage;
}

void Colonnes::retenir(const QWidget *fenetre, Preferences &preferences)
{
    for (const auto *partage : fenetre->findChildren<QSplitter *>())
        if (const QVariant voulue = partage->property(largeurVoulue); voulue.isValid())
            preferences.ecrire(partage->objectName(), voulue.toString());
}

} // namespace Quillet
