#pragma once

#include <QString>
#include <QWidget>

#include <array>
#include <functional>

namespace Quillet {

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

// What a section shows beside the sidebar.
class EcranDeRubrique : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Asked before the screen is left: ends the edit under way; false when it could not be saved, which the screen
    // says.
    [[nodiscard]] virtual bool conclure() { return true; }
};

struct TraitsDeRubrique
{
    QString symbole;
    QString libelle;
    std::array<Qt::Key, 2> touches; // with Ctrl; the second is where a French keyboard has the digit
    std::function<EcranDeRubrique *(const Contexte &)> construire;
    std::function<int(const Contexte &)> aSignaler; // what waits there; 0 shows nothing
};

TraitsDeRubrique traits(Rubrique rubrique);

} // namespace Quillet
