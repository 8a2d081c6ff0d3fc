#include "ui/vendeurs/SaisiesGardees.h"

#include "composants/ChampDeFiche.h"
#include "textes/TextesDonnees.h"
#include "ui/AlerteRelecture.h"

#include <QList>
#include <QPointer>
#include <QStringList>

#include <memory>

namespace Quillet {

void SaisiesGardees::suivre(AlerteRelecture *alerte, QWidget *feuille)
{
    struct Saisie
    {
        QPointer<ChampDeFiche> champ;
        QString texte;
    };
    const auto saisies = std::make_shared<QList<Saisie>>();
    QObject::connect(alerte, &AlerteRelecture::vaRelire, feuille, [saisies, feuille] {
        saisies->clear();
        for (ChampDeFiche *champ : feuille->findChildren<ChampDeFiche *>())
            if (champ->estRefuse() && champ->isVisible())
                saisies->append({champ, champ->texte()});
    });
    QObject::connect(alerte, &AlerteRelecture::relu, feuille, [saisies, alerte] {
        QStringList perdues;
        for (const auto &[champ, texte] : *saisies)
            if (champ && champ->isVisible() && champ->texte() == texte)
                champ->conclure();
            else
                perdues.append(texte.simplified());
        if (!perdues.isEmpty())
            alerte->montrer(TextesDonnees::saisieNonReprise(perdues));
    });
}

} // namespace Quillet
