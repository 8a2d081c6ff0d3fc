#pragma once

#include <QDate>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace Quillet {

// Where the interface takes the day from: the clock, or the day that a test or the tour fixes.
using Aujourdhui = std::function<QDate()>;

// The day, and that another has come: it is looked for each minute, as a timer set for midnight would sleep with the
// machine, and whenever one of the program's windows comes to the front.
class JourCourant : public QObject
{
    Q_OBJECT

public:
    explicit JourCourant(Aujourdhui aujourdhui, std::chrono::milliseconds periode = std::chrono::minutes(1));

    // Asked anew each time, so that nothing is computed for a day that is over.
    [[nodiscard]] QDate aujourdhui() const { return aujourdhui_(); }
    // Looks now.
    void regarder();

signals:
    void change();
    // One of the windows came to the front: what grows old within a day may have.
    void retour();

private:
    Aujourdhui aujourdhui_;
    QDate vu_;
    QTimer minuterie_;
};

} // namespace Quillet
