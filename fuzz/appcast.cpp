// The feed of updates, its signature, and the order of the versions that it names. Only ErreurMiseAJour may come out of
// the readers.
#include "watch/Appcast.h"

#include "fuzz/Cible.h"
#include "watch/ErreurMiseAJour.h"
#include "watch/FluxSigne.h"

using namespace Quillet;

namespace {

void verifierLOrdre(const NumeroDeVersion &a, const NumeroDeVersion &b)
{
    exiger((a <=> b == 0) == (a == b), "meme ordre, meme numero");
    exiger((a < b) == (b > a) && (a < b) + (a == b) + (a > b) == 1, "un ordre");
}

void verifierLOrdre(const NumeroDeVersion &a, const NumeroDeVersion &b, const NumeroDeVersion &c)
{
    verifierLOrdre(a, b);
    exiger(!(a <= b && b <= c) || a <= c, "transitif");
}

void verifier(const QList<Appcast::Parution> &parutions)
{
    const auto installee = *NumeroDeVersion::lire(QStringLiteral("1.2-rc1"));
    for (const Appcast::Parution &parution : parutions) {
        exiger(parution.nom.size() <= 32 && parution.notes.size() <= 10'001, "textes bornes");
        exiger(parution.nom.isValidUtf16() && parution.notes.isValidUtf16(), "des caracteres entiers");
        exiger(!parution.nom.contains(u'\n'), "une ligne");
    }
    for (const auto &a : parutions)
        for (const auto &b : parutions.mid(0, 8))
            verifierLOrdre(a.numero, b.numero, parutions.last().numero);
    if (const auto offerte = Appcast::aProposer(parutions, installee)) {
        exiger(offerte->paquet.isValid() && offerte->paquet.scheme() == u"https", "https");
        exiger(offerte->empreinte.size() == 32 && offerte->longueur > 0
                   && offerte->longueur <= Appcast::longueurMaximale,
               "paquet sur");
        for (const auto &parution : parutions)
            exiger(parution.numero <= offerte->numero && offerte->numero > installee, "la derniere");
    }
}

// What a system hears of that the feed does not know.
qsizetype nombrePourTous(const QString &flux)
{
    try {
        return Appcast::lire(flux, {}).parutions.size();
    } catch (const ErreurMiseAJour &) {
        return 0; // of those for all, no number is understood
    }
}

// Of a key that signed nothing here.
bool passePourSigne(const QString &flux)
{
    static const auto cle = *SignatureEd25519::cle("11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo=");
    try {
        FluxSigne::contenu(flux, cle);
    } catch (const ErreurMiseAJour &) {
        return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const auto flux = QString::fromUtf8(contenu(octets, taille));
    exiger(Appcast::notes(flux).size() <= 10'001, "notes bornees");
    exiger(!passePourSigne(flux), "signe par personne");
    try {
        const auto parutions = Appcast::lire(flux, QStringLiteral("debian13")).parutions;
        verifier(parutions);
        exiger(parutions.size() >= nombrePourTous(flux), "pour tous, donc pour celui-ci");
    } catch (const ErreurMiseAJour &erreur) {
        exiger(erreur.texte().endsWith(u'.'), "une phrase");
    }
    return 0;
}
