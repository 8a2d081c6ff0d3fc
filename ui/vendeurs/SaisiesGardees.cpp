#include "ui/vendeurs/SaisiesGardees.h"

#include "composants/ChampDeFiche.h"
#include "textes/TextesDonnees.h"
#include "ui/AlerteRelecture.h"

#include <QList>
#include <QPointer>

#include <memory>
#include <utility>

namespace Quillet {

void SaisiesGardees::suivre(AlerteRelecture *alerte, QWidget *feuille, const std::function<QStringList()> &aussiPerdues)
{
    struct Saisie
    {
        QPointer<ChampDeFiche> champ;
        QString texte;
    };
    struct Gardees
    {
        QList<Saisie> saisies;
        QStringList perdues; // and not said yet
    };
    const auto gardees = std::make_shared<Gardees>();
    QObject::connect(alerte, &AlerteRelecture::vaRelire, feuille, [gardees, feuille] {
        gardees->saisies.clear();
        for (ChampDeFiche *champ : feuille->findChildren<ChampDeFiche *>())
            if (champ->estRefuse() && champ->isVisible())
                gardees->saisies.append({champ, champ->texte()});
    });
    QObject::connect(alerte, &AlerteRelecture::relu, feuille, [gardees, alerte, aussiPerdues] {
        for (const auto &[champ, texte] : gardees->saisies)
            if (champ && champ->isVisible() && champ->texte() == texte)
                champ->conclure();
            else
                gardees->perdues.append(texte.simplified());
        gardees->perdues.append(aussiPerdues());
        // What could not be saved once more is said first, and offers to read again.
        if (alerte->isHidden() && !gardees->perdues.isEmpty())
            alerte->montrer(TextesDonnees::saisieNonReprise(std::exchange(gardees->perdues, {})));
    });
}

} // namespace Quillet
