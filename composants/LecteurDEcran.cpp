#include "composants/LecteurDEcran.h"

#include "composants/LectureDeListe.h"
#include "composants/LectureDeTableau.h"

#include <QAccessibleWidget>
#include <QTimer>
#include <QVariant>
#include <QWidget>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr auto partJouee = "role";

// A group without a name of its own is called by its tooltip.
class Ensemble : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text texte) const override
    {
        const QString nom = widget()->accessibleName();
        if (texte == QAccessible::Name)
            return nom.isEmpty() ? widget()->toolTip() : nom;
        return texte == QAccessible::Description ? widget()->accessibleDescription() : QAccessibleWidget::text(texte);
    }
};

QAccessibleInterface *interfaceDe(const QString &classe, QObject *objet)
{
    if (!objet->isWidgetType())
        return nullptr;
    auto *widget = static_cast<QWidget *>(objet);
    if (const QVariant role = widget->property(partJouee); role.isValid())
        return new Ensemble(widget, static_cast<QAccessible::Role>(role.toInt())); // Qt owns it
    if (classe == QLatin1String("QScrollArea"))
        return new QAccessibleWidget(widget); // Qt's own reads beyond the end when asked for a child that is not there
    if (classe == QLatin1String("QStackedWidget"))
        return new Ensemble(widget, QAccessible::Pane); // unnamed, it is not spoken of
    return nullptr;
}

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
// Before announcements were known, readers spoke of nothing but notifications that appear.
class Annonce : public QAccessibleObject
{
public:
    Annonce(QObject *objet, QWidget *origine) : QAccessibleObject(objet), origine_(origine) {}

    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(origine_->window());
    }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text texte) const override
    {
        return texte == QAccessible::Name ? object()->objectName() : QString();
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }

private:
    QWidget *origine_; // owns the object
};
#endif

} // namespace

void LecteurDEcran::preparer()
{
    QAccessible::installFactory(interfaceDe);
    QAccessible::installFactory(LectureDeTableau::interfaceDe);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    QAccessible::installFactory(LectureDeListe::interfaceDe);
#endif
}

void LecteurDEcran::jouer(QWidget *widget, QAccessible::Role role)
{
    widget->setProperty(partJouee, static_cast<int>(role));
}

void LecteurDEcran::annoncer(QWidget *origine, const QString &texte)
{
    if (!QAccessible::isActive())
        return;
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    auto *objet = new QObject(origine);
    objet->setObjectName(texte);
    auto *annonce = new Annonce(objet, origine);
    QAccessible::registerAccessibleInterface(annonce); // goes with its object
    QAccessibleEvent parait(annonce, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&parait);
    QTimer::singleShot(1min, objet, &QObject::deleteLater); // the reader asks what it is after it was told
#else
    QAccessibleAnnouncementEvent annonce(origine, texte);
    QAccessible::updateAccessibility(&annonce);
#endif
}

} // namespace Quillet
