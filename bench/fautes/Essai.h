#pragma once

#include "bench/fautes/Poste.h"

#include <QMap>

namespace Quillet {

// What the folder holds before the program starts: nothing, the file of an earlier save, or a damaged one.
enum class Depart { vide, connu, illisible };

// Names and contents.
using Fichiers = QMap<QString, QByteArray>;
Fichiers fichiers(const QString &dossier);
// Temporary files that a killed program left there.
int nombreDeRestes(const QString &dossier);

// One gesture from one start, tried on many folders; built by doing it once without any fault.
class Essai
{
public:
    // `temoin` is a folder of its own; it comes out empty.
    Essai(Ressources ressources, Geste geste, Depart depart, const QString &temoin);

    [[nodiscard]] QString nom() const;

    enum class Issue { faute, reussi, refuse };
    // Makes the folder ready, then does the gesture between `armer` and `lever`. A fault is told to the standard error.
    [[nodiscard]] Issue jouer(const QString &dossier, const std::function<void()> &armer,
                              const std::function<void()> &lever) const;
    // The program that did the gesture there was stopped, meanwhile or once it had told that all was saved.
    enum class Arret { pendant, apres };
    [[nodiscard]] Issue releverApresArret(const QString &dossier, Arret arret) const;

private:
    [[nodiscard]] std::unique_ptr<Poste> ouvrir(const QString &dossier) const;
    [[nodiscard]] QString faute(const QString &dossier, const Poste &poste, const QString &refus,
                                const Fichiers &trouves) const;
    [[nodiscard]] QString fauteEnsuite(const QString &dossier, Poste &poste) const;

    Ressources ressources_;
    Geste geste_;
    Depart depart_;
    std::optional<Contenu> avant_;
    std::optional<Contenu> apres_;
    Fichiers fichiersAvant_;
    Fichiers fichiersApres_;
};

// Every gesture from every start that means something for it.
QList<Essai> essais(const Ressources &ressources, const QString &temoin);

} // namespace Quillet
