#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <optional>

// An application that notes when its window has been painted and handed to the display.
class Temoin : public QApplication
{
public:
    using Horloge = std::chrono::steady_clock;
    using QApplication::QApplication;

    // The first image since the start, or since `guetter`.
    [[nodiscard]] std::optional<Horloge::time_point> image() const { return premiere_; }
    [[nodiscard]] std::optional<Horloge::time_point> derniereImage() const { return derniere_; }
    void guetter() { premiere_.reset(); }

    bool notify(QObject *objet, QEvent *evenement) override
    {
        // A window paints and flushes within these two events, and in no other.
        const auto type = evenement->type();
        const bool accepte = QApplication::notify(objet, evenement);
        if ((type == QEvent::UpdateRequest && objet->isWidgetType()
             && exposee(static_cast<QWidget *>(objet)->windowHandle()))
            || (type == QEvent::Expose && exposee(qobject_cast<QWindow *>(objet)))) {
            derniere_ = Horloge::now();
            premiere_ = premiere_.value_or(*derniere_);
        }
        return accepte;
    }

private:
    // Before that, nothing that is painted can be seen.
    static bool exposee(const QWindow *fenetre) { return fenetre && fenetre->isExposed(); }

    std::optional<Horloge::time_point> premiere_;
    std::optional<Horloge::time_point> derniere_;
};
