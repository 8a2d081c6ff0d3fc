#pragma once

#include "composants/Formulaire.h"
#include "model/Destination.h"
#include "ui/vendeurs/ChampsDeReglages.h"

#include <QMap>
#include <QSet>

class QPushButton;

namespace Quillet {

class ChampDeFiche;
class Choix;

// What customs declarations say of the books, and the codes for destinations that want another.
class FicheMentions : public Formulaire::Section
{
    Q_OBJECT

public:
    explicit FicheMentions(const EcritureDesReglages &ecriture, QWidget *parent = nullptr);

    // `destinations`: those that may have a code of their own.
    void montrer(const QList<Destination> &destinations);
    // Takes what is still being typed.
    void conclure() { champs_.conclure(); }
    [[nodiscard]] ChampDeFiche *enSuspens() const { return champs_.enSuspens(); }

private:
    ChampDeFiche *champ(const QString &libelle, const ChampsDeReglages::Champ &description);
    void ouvrir(const Destination &destination);
    void retirer(const CodeDestination &code);

    ChampsDeReglages champs_;
    QList<Destination> destinations_;
    QMap<CodeDestination, ChampDeFiche *> codes_; // by destination, those still to be typed too
    QSet<CodeDestination> commences_;             // of which nothing is kept yet
    QWidget *liste_;
    Choix *aAjouter_;
    QPushButton *ajouter_;
};

} // namespace Quillet
