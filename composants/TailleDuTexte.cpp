#include "composants/TailleDuTexte.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QWidget>

#include <utility>

namespace Quillet {

namespace {

// Said once all fonts have changed: a widget in between would measure with the old ones.
QEvent::Type change()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

class Suivi : public QObject
{
public:
    Suivi(QWidget *widget, std::function<void()> regle) : QObject(widget), regle_(std::move(regle))
    {
        widget->installEventFilter(this);
        regle_();
    }

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == change())
            regle_();
        return QObject::eventFilter(objet, evenement);
    }

private:
    std::function<void()> regle_;
};

// What layouts have measured, also of what is hidden.
void oublierLesMesures()
{
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->layout())
            widget->layout()->invalidate();
        widget->updateGeometry();
    }
}

} // namespace

void TailleDuTexte::changer(const QFont &police)
{
    if (police == QApplication::font())
        return;
    const qreal part = police.pointSizeF() / QApplication::font().pointSizeF();
    QList<std::pair<QWidget *, QFont>> propres;
    for (QWidget *widget : QApplication::allWidgets())
        if (QFont propre = widget->font(); widget->testAttribute(Qt::WA_SetFont) && propre.pointSizeF() > 0) {
            propre.setPointSizeF(propre.pointSizeF() * part);
            propres.append({widget, propre});
        }
    for (const auto &[widget, propre] : std::as_const(propres))
        widget->setFont(propre);
    QApplication::setFont(police);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::ApplicationFontChange); // windows are told of it later
    // These have not heard of the last change, which icons and margins depend on.
    for (const auto &[widget, propre] : std::as_const(propres)) {
        QEvent encore(QEvent::FontChange);
        QCoreApplication::sendEvent(widget, &encore);
    }
    // Twice: what is told may be measured on what another widget is told.
    for (int tour = 0; tour < 2; ++tour) {
        oublierLesMesures();
        for (QWidget *widget : QApplication::allWidgets()) {
            QEvent taille(change());
            QCoreApplication::sendEvent(widget, &taille);
        }
    }
    oublierLesMesures();
}

void TailleDuTexte::suivre(QWidget *widget, std::function<void()> regle)
{
    new Suivi(widget, std::move(regle));
}

} // namespace Quillet
