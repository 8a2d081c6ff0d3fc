#include "composants/bureau/PortailDesReglages.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace Quillet {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString chemin = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

} // namespace

void PortailDesReglages::ecouter()
{
    // Qt's own: the window needs it as well, and finds it made.
    bus_ = QDBusConnection::sessionBus();
    if (!bus_->isConnected())
        return;
    qRegisterMetaType<QDBusVariant>(); // else the slot below is looked for in vain
    // Before the question, so that no change is lost between the two.
    bus_->connect(service, chemin, interface, QStringLiteral("SettingChanged"), this,
                  SLOT(changer(QString, QString, QDBusVariant)));
    auto *retour = new QDBusServiceWatcher(service, *bus_, QDBusServiceWatcher::WatchForRegistration, this);
    connect(retour, &QDBusServiceWatcher::serviceRegistered, this, &PortailDesReglages::demander);
    demander();
}

void PortailDesReglages::demander()
{
    // Every version of the portal has this method and packs its values once; the others came or went.
    QDBusMessage question = QDBusMessage::createMethodCall(service, chemin, interface, QStringLiteral("ReadAll"));
    question << QStringList{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("org.gnome.desktop.interface"),
                            QStringLiteral("org.gnome.desktop.a11y.interface")};
    auto *appel = new QDBusPendingCallWatcher(bus_->asyncCall(question), this);
    connect(appel, &QDBusPendingCallWatcher::finished, this, &PortailDesReglages::repondre);
}

void PortailDesReglages::repondre(QDBusPendingCallWatcher *appel)
{
    appel->deleteLater();
    const QDBusMessage reponse = appel->reply();
    if (reponse.signature() != u"a{sa{sv}}")
        return; // no portal, one that refuses, or one that is broken: it has said nothing
    souhaits_ = souhaits(qdbus_cast<ReglagesDuPortail>(reponse.arguments().first()));
    emit dit(souhaits_);
}

void PortailDesReglages::changer(const QString &espace, const QString &cle, const QDBusVariant &valeur)
{
    souhaits_.retenir(espace, cle, valeur.variant());
    emit dit(souhaits_);
}

} // namespace Quillet
