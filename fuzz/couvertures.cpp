// A picture that comes from outside: refused with a sentence, or no larger than a cover, in its proportions, of three
// colours, and read again from what is handed on.
#include "echanges/PreparationCouverture.h"
#include "fuzz/Cible.h"
#include "model/Echec.h"

#include <QGuiApplication>
#include <QImage>
#include <QLoggingCategory>

#include <array>
#include <cstdlib>

using namespace Quillet;

namespace {

// Letters of a drawing are asked of a display; decoders are talkative.
void preparer()
{
    static std::array<char, 5> nom{"fuzz"};
    static std::array<char *, 2> arguments{nom.data(), nullptr};
    static int nombre = 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication programme(nombre, arguments.data());
    QLoggingCategory::setFilterRules(QStringLiteral("*=false\nqt.gui.imageio.jpeg=true"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    static const bool pret = (preparer(), true);
    Q_UNUSED(pret)
    try {
        const CouverturePrete prete = PreparationCouverture::de(contenu(octets, taille));
        const QImage image = QImage::fromData(prete.octets);
        exiger(!image.isNull() && image.width() <= CouverturePrete::tailleAuPlus.width()
                   && image.height() <= CouverturePrete::tailleAuPlus.height(),
               "pas plus grande qu'une couverture");
        // Within the point that is lost when its sides are rounded.
        exiger(std::abs(3 * image.width() - 2 * image.height()) <= 3 || image.width() == 1, "dans ses proportions");
        exiger(prete.teinte.size() == 3, "une couleur");
        exiger(CouverturePrete::lue(prete.enTexte()) == prete, "relue comme elle est remise");
    } catch (const Echec &refus) {
        exiger(refus.texte().endsWith(u'.'), "une phrase");
    }
    return 0;
}
