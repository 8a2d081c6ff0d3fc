#include "composants/PressePapiers.h"

#include "composants/SelectionX.h"

#include <QAbstractNativeEventFilter>
#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

using namespace std::chrono_literals;

namespace Quillet {

using SelectionX::atome;
using SelectionX::tenant;

namespace {

constexpr auto pourLire = 100ms; // what was copied just now, by those who were told so then
constexpr auto pourPrendre = 1s;

// Ends the wait when the clipboard manager says that it has taken, or could not.
class Reponse : public QAbstractNativeEventFilter
{
public:
    Reponse(QEventLoop &boucle, xcb_atom_t gestionnaire) : boucle_(boucle), gestionnaire_(gestionnaire) {}

    bool nativeEventFilter(const QByteArray & /*genre*/, void *message, qintptr * /*resultat*/) override
    {
        const auto *evenement = static_cast<const xcb_generic_event_t *>(message);
        if ((evenement->response_type & 0x7f) == XCB_SELECTION_NOTIFY
            && reinterpret_cast<const xcb_selection_notify_event_t *>(evenement)->selection == gestionnaire_)
            boucle_.quit();
        return false;
    }

private:
    QEventLoop &boucle_;
    xcb_atom_t gestionnaire_;
};

} // namespace

void PressePapiers::leguer()
{
    if (!QGuiApplication::clipboard()->ownsClipboard())
        return;
    QEventLoop boucle;
    QTimer::singleShot(pourLire, &boucle, &QEventLoop::quit);
    boucle.exec();
    if (!QGuiApplication::clipboard()->ownsClipboard())
        return; // somebody copied meanwhile

    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return; // no Wayland compositor can be asked: it reads when something is copied, or never
    xcb_connection_t *x = x11->connection();
    const xcb_atom_t gestionnaire = atome(x, "CLIPBOARD_MANAGER");
    if (tenant(x, gestionnaire) == XCB_WINDOW_NONE)
        return;
    // Qt asks the same, but only once its threads have ended, which may wait for a name server.
    Reponse reponse(boucle, gestionnaire);
    qGuiApp->installNativeEventFilter(&reponse);
    const xcb_window_t nous = tenant(x, atome(x, "CLIPBOARD"));
    const xcb_atom_t formats = atome(x, "_FORMATS_LEGUES");
    xcb_delete_property(x, nous, formats); // none named: all
    xcb_convert_selection(x, nous, gestionnaire, atome(x, "SAVE_TARGETS"), formats, XCB_CURRENT_TIME);
    xcb_flush(x);
    QTimer::singleShot(pourPrendre, &boucle, &QEventLoop::quit);
    boucle.exec();
    qGuiApp->removeNativeEventFilter(&reponse);
}

} // namespace Quillet
