#include "echanges/LectureEntiere.h"

#include <QString>
#include <QtGlobal>

namespace Quillet {

bool LectureEntiere::reussit(const std::function<bool()> &lire)
{
    static bool plainte = false; // what takes messages is a plain function
    plainte = false;
    const QtMessageHandler avant =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &contexte, const QString &message) {
            plainte = plainte
                      || (qstrcmp(contexte.category, "qt.gui.imageio.jpeg") == 0
                          && (message.startsWith(u"Corrupt") || message.startsWith(u"Premature")));
        });
    const bool lue = lire();
    qInstallMessageHandler(avant);
    return lue && !plainte;
}

} // namespace Quillet
