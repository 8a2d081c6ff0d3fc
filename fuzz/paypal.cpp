// PayPal's page. Only ErreurReleve may come out of the reader.
#include "fuzz/Cible.h"
#include "watch/ErreurReleve.h"
#include "watch/RelevePaypal.h"
#include "watch/TexteHTML.h"

using namespace Quillet;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const auto page = QString::fromUtf8(contenu(octets, taille));
    const QString texte = TexteHTML::texte(page);
    exiger(texte == texte.simplified(), "une ligne");
    try {
        const FraisPaypal frais = RelevePaypal::analyser(page, QDate(2026, 3, 2));
        exiger(frais.supplements.size() == std::ssize(tous<RegionPaypal>), "chaque region");
        if (Taux::bornee(frais.supplement(RegionPaypal::eee).valeur())) // else it is not saved
            exiger(Json::decoder<FraisPaypal>(Json::encoder(frais), QStringLiteral("lus")) == frais, "aller et retour");
        for (const auto region : {RegionPaypal::eee, RegionPaypal::royaumeUni, RegionPaypal::autres})
            exiger(frais.frais(Centimes{UniteCentime::maximum}, region) >= frais.frais(Centimes{}, region), "frais");
    } catch (const ErreurReleve &erreur) {
        exiger(erreur.cas() == ErreurReleve::Cas::pageIllisible && !erreur.detail().isEmpty(), "erreur sans texte");
    }
    return 0;
}
