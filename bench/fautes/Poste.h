#pragma once

#include "documents/NumerotationFactures.h"
#include "model/Catalogue.h"
#include "model/Historique.h"

namespace Quillet {

// All that saves in the program, at work on one folder.
struct Poste
{
    Poste(const Ressources &ressources, const QString &dossier);

    std::unique_ptr<Catalogue> catalogue;
    Historique historique;
    NumerotationFactures numeros;
};

// What the seller sees of it.
struct Contenu
{
    explicit Contenu(const Poste &poste);

    QList<Livre> livres;
    QMap<Jour, TarifsColissimo> tarifs;
    FraisPaypal frais;
    QStringList numeros;
    QString verification;
    QString aAnnuler;

    // Whether a program started on the same folder sees the same; what can be undone ends with the program.
    [[nodiscard]] bool memesDonnees(const Contenu &autre) const;
    bool operator==(const Contenu &) const = default;
};

// One thing that a seller does and that is saved in one file. The rank makes one value unlike the next.
struct Geste
{
    const char *nom;
    QString fichier;
    void (*avant)(Poste &); // what has to be done first, in the same run of the program
    void (*faire)(Poste &, int rang);
};

QList<Geste> gestes();
// Those that write a whole file with nothing but their rank, one a file.
QList<Geste> gestesEntiers();

} // namespace Quillet
