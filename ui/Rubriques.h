#pragma once

#include <QString>

#include <array>

namespace Quillet {

class EcranDeRubrique;
struct Contexte;

// The sections of the window, in the sidebar's order.
enum class Rubrique { commande, tarifs, livres };

constexpr const char *valeurBrute(Rubrique rubrique)
{
    switch (rubrique) {
    case Rubrique::commande:
        return "commande";
    case Rubrique::tarifs:
        return "tarifs";
    case Rubrique::livres:
        return "livres";
    }
    return nullptr;
}

struct TraitsDeRubrique
{
    QString symbole;
    QString libelle;
    std::array<Qt::Key, 2> touches; // with Ctrl; the second is where a French keyboard has the digit
    EcranDeRubrique *(*construire)(const Contexte &);
    int (*aSignaler)(const Contexte &); // what waits there; 0 shows nothing
};

TraitsDeRubrique traits(Rubrique rubrique);

} // namespace Quillet
