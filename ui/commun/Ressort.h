#pragma once

#include <QAbstractAnimation>

#include <functional>

class QWidget;

// A damped spring that carries one number toward its target; a new target keeps the speed it has. It jumps at
// once when the platform asks for no animation.
class Ressort : public QAbstractAnimation
{
    Q_OBJECT

public:
    struct Reglage
    {
        double reponse = 0.5;        // seconds
        double amortissement = 0.85; // fraction of critical damping, below 1
    };

    // `applique` receives each new value.
    Ressort(Reglage reglage, std::function<void(double)> applique, QObject *parent);

    [[nodiscard]] double valeur() const { return valeur_; }
    [[nodiscard]] double cible() const { return cible_; }
    void vers(double cible);
    // Moves only what can be seen.
    void vers(double cible, const QWidget *montre);
    // Without any motion.
    void placer(double valeur);

    [[nodiscard]] int duration() const override;

protected:
    void updateCurrentTime(int millisecondes) override;

private:
    Reglage reglage_;
    std::function<void(double)> applique_;
    double valeur_ = 0;
    double vitesse_ = 0; // per second
    double cible_ = 0;
    double ecartInitial_ = 0;
    double vitesseInitiale_ = 0;
};

namespace Ressorts {
inline constexpr Ressort::Reglage action{0.5, 0.85}; // what a click changes
inline constexpr Ressort::Reglage survol{0.4, 0.72}; // what the pointer lifts
} // namespace Ressorts
