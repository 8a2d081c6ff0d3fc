#include "ui/vendeurs/ChampsDeReglages.h"

#include "composants/ChampDeFiche.h"

namespace Quillet {

void ChampsDeReglages::lier(ChampDeFiche *champ, const Champ &description)
{
    lies_.removeIf([](const Lie &lie) { return !lie.champ; });
    lies_.append({champ, description});
    champ->montrer(description.lire(reglages()));
    QObject::connect(champ, &ChampDeFiche::saisi, champ, [this, champ, description](const QString &texte) {
        Reglages apres = reglages();
        QString refus = description.poser(apres, texte);
        if (refus.isEmpty())
            refus = ecrire(apres, description.chemin, description.geste(reglages()));
        champ->objecter(refus);
        if (!refus.isEmpty())
            champ->reessayer();
        montrer();
    });
}

// A field may go while another is written.
QList<ChampsDeReglages::Lie> ChampsDeReglages::lies() const
{
    QList<Lie> lies = lies_;
    lies.removeIf([](const Lie &lie) { return !lie.champ; });
    return lies;
}

void ChampsDeReglages::conclure() const
{
    for (const Lie &lie : lies())
        lie.champ->conclure();
}

void ChampsDeReglages::montrer() const
{
    for (const Lie &lie : lies())
        lie.champ->montrer(lie.description.lire(reglages()));
}

ChampDeFiche *ChampsDeReglages::enSuspens() const
{
    for (const Lie &lie : lies())
        if (lie.champ->estRefuse() && lie.champ->isVisible())
            return lie.champ;
    return nullptr;
}

ChampDeFiche *ChampsDeReglages::objecter(const Objections::ParChamp &objections) const
{
    ChampDeFiche *premier = nullptr;
    for (const Lie &lie : lies()) {
        if (lie.champ->texte() == lie.description.lire(reglages())) // else it was refused, which it says
            lie.champ->objecter(Objections::auChamp(objections, lie.description.chemin));
        if (!premier && lie.champ->estRefuse())
            premier = lie.champ;
    }
    return premier;
}

} // namespace Quillet
