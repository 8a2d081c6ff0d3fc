// The middle line is repeated until the page is long, for every reader: its time must grow with the length alone.
#include "fuzz/Cible.h"
#include "model/Echec.h"
#include "watch/Appcast.h"
#include "watch/ReleveColissimo.h"
#include "watch/RelevePaypal.h"

#include <ctime>

using namespace Quillet;

namespace {

constexpr qsizetype longueur = qsizetype{256} << 10;
constexpr int raccourci = 8;

QString page(const QString &source, qsizetype voulue)
{
    const QString milieu = source.section(u'\n', 1, 1);
    const qsizetype fois = milieu.isEmpty() ? 0 : voulue / milieu.size();
    return source.section(u'\n', 0, 0) + milieu.repeated(fois) + source.section(u'\n', 2);
}

template <typename Lecture>
bool reussit(Lecture lecture)
{
    try {
        lecture();
    } catch (const Echec &) {
        return false;
    }
    return true;
}

void lire(const QString &page)
{
    const QDate jour(2026, 3, 2);
    // Without a grid to find, the reading goes on to its end.
    reussit([&] { ReleveColissimo::analyser(page, {}, jour); });
    reussit([&] { RelevePaypal::analyser(page, jour); });
    reussit([&] { Appcast::lire(page, {}); });
    Appcast::notes(page);
}

// Of the processor: another program's work does not count.
double secondes(const QString &source, qsizetype voulue)
{
    const QString texte = page(source, voulue);
    const std::clock_t debut = std::clock();
    lire(texte);
    return static_cast<double>(std::clock() - debut) / CLOCKS_PER_SEC;
}

// Twice what a linear reading comes to, and a quarter of what one that goes back does.
bool croitTropVite(const QString &source)
{
    const double longue = secondes(source, longueur);
    return longue > 0.1 && longue > 2 * raccourci * secondes(source, longueur / raccourci);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const QString source = QString::fromUtf8(contenu(octets, taille));
    // A busy machine may err once.
    exiger(!(croitTropVite(source) && croitTropVite(source) && croitTropVite(source)), "temps lineaire");
    return 0;
}
