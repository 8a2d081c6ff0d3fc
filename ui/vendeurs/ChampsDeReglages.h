#pragma once

#include "model/Reglages.h"
#include "model/controle/Objections.h"

#include <QList>
#include <QPointer>
#include <QString>

#include <functional>

namespace Quillet {

class ChampDeFiche;

// Where settings that are being typed stand: in the data, or in a draft.
struct EcritureDesReglages
{
    std::function<const Reglages &()> lire;
    // Takes the settings as they become, by what was done at `chemin`; gives what is wrong with it, in a sentence,
    // empty when nothing is.
    std::function<QString(const Reglages &apres, const QString &chemin, const QString &geste)> ecrire;
};

// The fields of a form over the settings: each shows one of their texts, and hands over what was typed.
class ChampsDeReglages
{
public:
    struct Champ
    {
        QString chemin; // as Objections::surLesReglages calls it
        std::function<QString(const Reglages &)> lire;
        // Puts the text in its place; gives why it cannot be read, empty when it can.
        std::function<QString(Reglages &, const QString &)> poser;
        std::function<QString(const Reglages &avant)> geste; // "adresse de « Éditions Davrel »"
    };

    explicit ChampsDeReglages(EcritureDesReglages ecriture) : ecriture_(std::move(ecriture)) {}
    ChampsDeReglages(const ChampsDeReglages &) = delete; // the fields know it by its place
    ChampsDeReglages &operator=(const ChampsDeReglages &) = delete;

    void lier(ChampDeFiche *champ, const Champ &description);
    // Takes what is still being typed.
    void conclure() const;
    void montrer() const;
    // Says what the rules hold against the texts that stand; gives the first field that is wrong, null when none is.
    [[nodiscard]] ChampDeFiche *objecter(const Objections::ParChamp &objections) const;
    // The first field with a text that was not kept; null when all are.
    [[nodiscard]] ChampDeFiche *enSuspens() const;
    [[nodiscard]] const Reglages &reglages() const { return ecriture_.lire(); }
    // What is not a text: a command's doing.
    [[nodiscard]] QString ecrire(const Reglages &apres, const QString &chemin, const QString &geste) const
    {
        return ecriture_.ecrire(apres, chemin, geste);
    }

private:
    struct Lie
    {
        QPointer<ChampDeFiche> champ; // null once its row has gone
        Champ description;
    };
    [[nodiscard]] QList<Lie> lies() const;

    EcritureDesReglages ecriture_;
    QList<Lie> lies_;
};

} // namespace Quillet
