#pragma once

#include <QAbstractAnimation>

#include <functional>

class QWidget;

namespace Quillet {

// A damped spring that carries one number of a widget toward its target; a new target keeps the speed it has. It jumps
// at once when the widget cannot be seen or the platform asks for no animation.
class Ressort : public QAbstractAnimation
{
    Q_OBJECT

public:
    struct Reglage
    {
        double reponse = 0.5;        // seconds
        double amortissement = 0.85; // fraction of critical damping, below 1
    };

    // Each new value goes to `applique`, or else repaints `anime`, which owns the spring.
    Ressort(Reglage reglage, QWidget *anime, std::function<void(double)> applique = {});

    [[nodiscard]] double valeur() const { return valeur_; }
    void vers(double cible);
    // Without any motion.
    void placer(double valeur);

    [[nodiscard]] int duration() const override;

protected:
    void updateCurrentTime(int millisecondes) override;

private:
    void appliquer();

    Reglage reglage_;
    QWidget *anime_;
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

} // namespace Quillet
