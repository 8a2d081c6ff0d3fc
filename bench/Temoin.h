#pragma once

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QWindow>

#include <chrono>
#include <optional>

namespace Quillet {

// An application that notes when its windows have been painted and handed to the display.
class Temoin : public QApplication
{
public:
    using Horloge = std::chrono::steady_clock;
    using QApplication::QApplication;

    enum class Guet { fenetres, dialogues };

    // The first image since the start, or the first one of these windows since `guetter`.
    [[nodiscard]] std::optional<Horloge::time_point> image() const { return premiere_; }
    [[nodiscard]] std::optional<Horloge::time_point> derniereImage() const { return derniere_; }
    void guetter(Guet guet = Guet::fenetres)
    {
        guet_ = guet;
        premiere_.reset();
    }

    bool notify(QObject *objet, QEvent *evenement) override
    {
        const auto type = evenement->type();
        const bool geste =
            type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease || type == QEvent::KeyPress;
        gestes_ += geste;
        const bool accepte = QApplication::notify(objet, evenement);
        gestes_ -= geste;
        // A window paints and flushes within these two events, and in no other.
        if (type == QEvent::UpdateRequest || type == QEvent::Expose)
            noter(objet->isWidgetType()   ? static_cast<QWidget *>(objet)
                  : objet->isWindowType() ? QWidget::find(static_cast<QWindow *>(objet)->winId())
                                          : nullptr);
        return accepte;
    }

private:
    void noter(const QWidget *peint)
    {
        // Before it is exposed, nothing that is painted can be seen.
        if (!peint || !peint->windowHandle() || !peint->windowHandle()->isExposed())
            return;
        derniere_ = Horloge::now();
        // A button is drawn let go before it acts: only what is painted after the gesture shows its effect. Some
        // dialogs live within it.
        if (guet_ == Guet::dialogues ? qobject_cast<const QDialog *>(peint) != nullptr : gestes_ == 0)
            premiere_ = premiere_.value_or(*derniere_);
    }

    Guet guet_ = Guet::fenetres;
    int gestes_ = 0; // being handled, one within the other
    std::optional<Horloge::time_point> premiere_;
    std::optional<Horloge::time_point> derniere_;
};

} // namespace Quillet
