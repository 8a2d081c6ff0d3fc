// La Poste's page, read against the shipped schedule. Only ErreurReleve may come out of the reader.
#include "fuzz/Cible.h"
#include "model/Format.h"
#include "model/Ressources.h"
#include "watch/EcartTarif.h"
#include "watch/ErreurReleve.h"
#include "watch/ReleveColissimo.h"

using namespace Quillet;

namespace {

template <typename Unite>
bool tient(Quantite<Unite> valeur)
{
    return valeur >= Quantite<Unite>{} && valeur <= Quantite<Unite>{Unite::maximum};
}

void verifier(const TarifsColissimo &lus, const TarifsColissimo &modele)
{
    exiger(lus.grilles.size() == modele.grilles.size(), "une grille par grille du modele");
    for (const GrilleColissimo &grille : lus.grilles) {
        exiger(!grille.paliers.isEmpty(), "des paliers");
        std::optional<Grammes> avant;
        for (const auto &[jusqua, prix] : grille.paliers) {
            exiger(tient(jusqua) && tient(prix) && (!avant || *avant < jusqua), "paliers croissants et bornes");
            avant = jusqua;
        }
    }
    exiger(lus.validite.texte().size() == 10 && !Format::date(lus.validite).isEmpty(), "date d'effet");
    exiger(Json::decoder<TarifsColissimo>(Json::encoder(lus), QStringLiteral("lus")) == lus, "aller et retour");
    for (const EcartTarif &ecart : EcartTarif::ecarts(modele, lus))
        if (const auto variation = ecart.variation())
            exiger(Format::pourcentage(*variation).endsWith(u'%'), "variation");
    exiger(EcartTarif::ecarts(lus, lus).isEmpty(), "aucun ecart avec soi");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    static const TarifsColissimo modele = Ressources(QDir(QStringLiteral("resources"))).tarifs().last();
    try {
        const auto page = QString::fromUtf8(contenu(octets, taille));
        verifier(ReleveColissimo::analyser(page, modele, QDate(2026, 3, 2)).tarifs, modele);
    } catch (const ErreurReleve &erreur) {
        exiger(erreur.cas() == ErreurReleve::Cas::pageIllisible && !erreur.detail().isEmpty(), "erreur sans texte");
    }
    return 0;
}
