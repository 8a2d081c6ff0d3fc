#include "tests/FauxPortail.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QFile>

namespace Quillet {

namespace {

const QString nomDeConnexion = QStringLiteral("faux portail");
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objet = QStringLiteral("/org/freedesktop/portal/desktop");

} // namespace

BusPrive::BusPrive()
{
    QFile reglages(dossier_.filePath(QStringLiteral("bus.conf")));
    const QString listen = QStringLiteral("unix:path=") + dossier_.filePath(QStringLiteral("bus"));
    if (!reglages.open(QIODevice::WriteOnly))
        qFatal("%s", qPrintable(reglages.errorString()));
    reglages.write(
        QStringLiteral("<busconfig><type>session</type><listen>%1</listen><policy context='default'>"
                       "<allow send_destination='*'/><allow receive_sender='*'/><allow own='*'/></policy></busconfig>")
            .arg(listen)
            .toUtf8());
    reglages.close();
    bus_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    bus_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                                               QStringLiteral("--config-file=") + reglages.fileName()});
    if (!bus_.waitForReadyRead())
        qFatal("dbus-daemon : %s", qPrintable(bus_.errorString()));
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus_.readLine().trimmed());
}

BusPrive::~BusPrive()
{
    bus_.terminate();
    bus_.waitForFinished();
}

FauxPortail::FauxPortail() : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, nomDeConnexion))
{
    qDBusRegisterMetaType<ReglagesDuPortail>();
    if (!bus_.registerVirtualObject(objet, this))
        qFatal("%s", qPrintable(bus_.lastError().message()));
}

FauxPortail::~FauxPortail()
{
    bus_.unregisterObject(objet);
    QDBusConnection::disconnectFromBus(nomDeConnexion);
}

void FauxPortail::paraitre()
{
    if (!bus_.registerService(service))
        qFatal("%s", qPrintable(bus_.lastError().message()));
}

void FauxPortail::disparaitre()
{
    bus_.unregisterService(service);
}

void FauxPortail::annoncer(const QString &espace, const QString &cle, const QVariant &valeur)
{
    emettre({espace, cle, QVariant::fromValue(QDBusVariant(valeur))});
}

void FauxPortail::emettre(const QVariantList &arguments)
{
    QDBusMessage signal = QDBusMessage::createSignal(objet, QStringLiteral("org.freedesktop.portal.Settings"),
                                                     QStringLiteral("SettingChanged"));
    signal.setArguments(arguments);
    bus_.send(signal);
}

QString FauxPortail::introspect(const QString &) const
{
    return {};
}

bool FauxPortail::handleMessage(const QDBusMessage &message, const QDBusConnection &bus)
{
    if (message.member() != u"ReadAll")
        return false;
    ++questions;
    if (reponse.isValid())
        bus.send(message.createReply(reponse));
    return true;
}

} // namespace Quillet
