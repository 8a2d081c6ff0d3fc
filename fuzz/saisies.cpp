// A typed price and a typed weight: what is accepted stays within its bounds, and is read again as it is shown.
#include "fuzz/Cible.h"
#include "model/Saisie.h"

using namespace Quillet;

namespace {

template <typename Unite>
void verifier(Quantite<Unite> lue)
{
    exiger(lue >= Quantite<Unite>{} && lue <= Quantite<Unite>{Unite::maximum}, "dans ses bornes");
}

void verifier(const std::optional<Grammes> &lu)
{
    if (lu)
        verifier(*lu);
}

template <typename T>
void verifier(const QString &texte, Saisie::Lecture<T> (*lire)(const QString &))
{
    const auto lecture = lire(texte);
    if (const auto *refus = std::get_if<Saisie::Refus>(&lecture)) {
        exiger(refus->raison.endsWith(u'.') || refus->raison.endsWith(u'€') || refus->raison.endsWith(u'g'),
               "une phrase");
        return;
    }
    const T &lue = std::get<T>(lecture);
    verifier(lue);
    const auto relecture = lire(Saisie::ecrit(lue));
    exiger(std::holds_alternative<T>(relecture) && std::get<T>(relecture) == lue, "aller et retour");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const QString texte = QString::fromUtf8(contenu(octets, taille));
    verifier(texte, &Saisie::prix);
    verifier(texte, &Saisie::poids);
    return 0;
}
