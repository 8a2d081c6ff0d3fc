// A list of books: refused with a sentence, or each row that is taken keeps to the rules, and what was written of the
// books that come of it changes nothing.
#include "echanges/ListeDeLivres.h"
#include "fuzz/Cible.h"
#include "model/Echec.h"
#include "model/controle/Objections.h"

using namespace Quillet;

namespace {

using Sort = RangeeDeListe::Sort;

Donnees donnees()
{
    Donnees donnees;
    donnees.reglages.vendeurs.insert(
        Cle<Vendeur>(QStringLiteral("davrel")),
        {.nom = QStringLiteral("Éditions Davrel"), .site = QStringLiteral("davrel.example")});
    Livre livre{.id = 1,
                .titre = QStringLiteral("Sel"),
                .titreComplet = QStringLiteral("=Sel;\n"),
                .auteur = QStringLiteral("Ada"),
                .prix = Centimes{1850},
                .isbn = QStringLiteral("978-2-07-036002-4"),
                .pages = 212,
                .format = QStringLiteral("A5"),
                .langue = QStringLiteral("Français"),
                .disponible = true,
                .teinte = {1, 2, 3}};
    donnees.livres.append(livre);
    livre.id = 7;
    livre.titre = QStringLiteral("Le Phare");
    livre.isbn.clear();
    donnees.livres.append(livre);
    return donnees;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    static const Donnees avant = donnees();
    static const Regles::Reperes reperes{{}, avant.reglages.vendeurs, {}, {}};
    try {
        const auto liste = ListeDeLivres::lue(contenu(octets, taille), avant, reperes);
        for (const RangeeDeListe &rangee : liste.rangees) {
            exiger((rangee.sort == Sort::refusee) == !rangee.refus.isEmpty(), "refusee avec sa raison");
            exiger(!rangee.prise() || Objections::surLeLivre(rangee.livre, reperes).isEmpty(), "dans les regles");
        }
        Donnees apres = avant;
        apres.livres = liste.appliquee(avant.livres);
        exiger(apres.livres.size() == avant.livres.size() + liste.nombre(Sort::ajoutee), "rien n'est retire");
        Json::Constats constats;
        Regles::livres(apres.livres, reperes, Json::Lieu({}, &constats));
        exiger(constats.notes().isEmpty(), "tout le catalogue dans les regles");
        const auto relue = ListeDeLivres::lue(ListeDeLivres::ecrite(apres), apres, reperes);
        exiger(relue.nombre(Sort::inchangee) == apres.livres.size() && relue.rangees.size() == apres.livres.size(),
               "relue comme elle est ecrite");
    } catch (const Echec &refus) {
        exiger(refus.texte().endsWith(u'.'), "une phrase");
    }
    return 0;
}
