#include "watch/ReleveColissimo.h"

#include "model/ChiffresAscii.h"
#include "model/Format.h"
#include "watch/ErreurReleve.h"
#include "watch/Nombres.h"
#include "watch/TexteHTML.h"

#include <QHash>

#include <algorithm>
#include <functional>

namespace Quillet {

namespace {

using PaliersParCode = QHash<CodeGrille, QList<Palier>>;

struct Colonne
{
    qsizetype place;
    CodeGrille code;
};

QList<Colonne> colonnes(const TexteHTML::Rangee &entetes)
{
    QList<Colonne> trouvees;
    for (qsizetype i = 0; i < entetes.size(); ++i)
        if (const auto code = ReleveColissimo::code(entetes[i]))
            trouvees.append({i, *code});
    return trouvees;
}

void lireTableau(const TexteHTML::Tableau &tableau, PaliersParCode &paliers)
{
    const QList<Colonne> grilles = colonnes(tableau.first());
    for (const TexteHTML::Rangee &rangee : tableau.sliced(1)) {
        const auto poids = rangee.isEmpty() ? std::nullopt : TexteHTML::grammes(rangee.first());
        if (!poids)
            continue;
        for (const Colonne &colonne : grilles) {
            if (colonne.place >= rangee.size())
                break; // columns stand in order: a short row must not cost a wide header
            if (const auto prix = TexteHTML::centiemes(rangee[colonne.place]))
                paliers[colonne.code].append({Grammes{*poids}, Centimes{*prix}});
        }
    }
}

GrilleColissimo lireGrille(const GrilleColissimo &modele, const PaliersParCode &paliers)
{
    const QString nom = QStringLiteral("grille « ") + modele.nomCourt + QStringLiteral(" » ");
    GrilleColissimo grille = modele;
    grille.paliers = paliers.value(modele.code);
    if (grille.paliers.isEmpty())
        throw ErreurReleve::pageIllisible(nom + QStringLiteral("introuvable"));
    if (std::ranges::adjacent_find(grille.paliers, std::ranges::greater_equal{}, &Palier::jusqua)
        != grille.paliers.end())
        throw ErreurReleve::pageIllisible(QStringLiteral("paliers de la ") + nom + QStringLiteral("dans le désordre"));
    return grille;
}

// What no file may hold. It is asked last: a grid that is missing or in disorder says more of the page.
void controler(const TarifsColissimo &tarifs)
{
    if (const qsizetype nombre = tarifs.nombreDePaliers(); nombre > TarifsColissimo::paliersMaximaux)
        throw ErreurReleve::pageIllisible(QStringLiteral("%1 paliers, plus qu’un tarif n’en compte").arg(nombre));
    for (const GrilleColissimo &grille : tarifs.grilles)
        for (const auto &[jusqua, prix] : grille.paliers) {
            const QString dela =
                QStringLiteral(" de la grille « ") + grille.nomCourt + QStringLiteral(" » au-delà de ");
            if (!Grammes::bornee(jusqua.valeur()))
                throw ErreurReleve::pageIllisible(QStringLiteral("poids") + dela
                                                  + Format::poids(Grammes{UniteGramme::maximum}));
            if (!Centimes::bornee(prix.valeur()))
                throw ErreurReleve::pageIllisible(QStringLiteral("prix") + dela
                                                  + Format::euros(Centimes{UniteCentime::maximum}));
        }
}

std::optional<ZoneColissimo> zone(const QString &texte)
{
    const auto dit = [&](QStringView mots) { return texte.contains(mots); };
    if (dit(u"colissimo eco") || dit(u"retrait") || dit(u"prêt-à-envoyer"))
        return std::nullopt;
    if (dit(u"om 1"))
        return ZoneColissimo::om1;
    if (dit(u"om 2"))
        return ZoneColissimo::om2;
    if (dit(u"domicile") && dit(u"france"))
        return ZoneColissimo::franceDomicile;
    if (dit(u"royaume-uni"))
        return ZoneColissimo::royaumeUni;
    if (dit(u"suisse") && dit(u"ue"))
        return ZoneColissimo::ueSuisse;
    if (dit(u"zone b"))
        return ZoneColissimo::zoneB;
    if (dit(u"zone c"))
        return ZoneColissimo::zoneC;
    return std::nullopt;
}

} // namespace

QUrl ReleveColissimo::adresse()
{
    return QUrl(QStringLiteral("https://www.laposte.fr/tarif-colissimo"));
}

std::optional<CodeGrille> ReleveColissimo::code(const QString &entete)
{
    return zone(entete.toLower());
}

std::optional<Jour> ReleveColissimo::dateDEffet(const QString &texte)
{
    static const QStringList mois{QStringLiteral("janvier"), QStringLiteral("février"),  QStringLiteral("mars"),
                                  QStringLiteral("avril"),   QStringLiteral("mai"),      QStringLiteral("juin"),
                                  QStringLiteral("juillet"), QStringLiteral("août"),     QStringLiteral("septembre"),
                                  QStringLiteral("octobre"), QStringLiteral("novembre"), QStringLiteral("décembre")};
    // "\s*(?:er)?\s+" in a form that does not try every way of sharing blanks between its two ends.
    static const QString jour = QStringLiteral(R"(à partir du[\s]+([\d]{1,2})(?:[\s]*er)?[\s]+()") + mois.join(u'|')
                                + QStringLiteral(R"()[\s]+([\d]{4}))");
    static const QString enVigueur = QStringLiteral(R"(en vigueur,?[\s]+)") + jour;

    auto trouves = TexteHTML::groupes(enVigueur, texte, 1);
    if (trouves.isEmpty())
        trouves = TexteHTML::groupes(jour, texte, 1);
    if (trouves.isEmpty())
        return std::nullopt;
    const QStringList &date = trouves.first();
    // Without case, a pattern takes more letters than lower case gives back.
    const qsizetype numero = mois.indexOf(date[2].toLower()) + 1;
    if (numero == 0 || !queDesChiffres(date[1]) || !queDesChiffres(date[3]))
        return std::nullopt;
    return Jour(
        QStringLiteral("%1-%2-%3").arg(date[3]).arg(numero, 2, 10, QLatin1Char('0')).arg(date[1], 2, QLatin1Char('0')));
}

ReleveColissimo ReleveColissimo::analyser(const QString &page, const TarifsColissimo &modele, QDate releve)
{
    PaliersParCode paliers;
    for (const TexteHTML::Tableau &tableau : TexteHTML::tableaux(page))
        if (!tableau.isEmpty())
            lireTableau(tableau, paliers);
    ReleveColissimo lu;
    for (const GrilleColissimo &grille : modele.grilles)
        lu.tarifs.grilles.append(lireGrille(grille, paliers));
    controler(lu.tarifs);

    const auto date = dateDEffet(TexteHTML::texte(page));
    lu.tarifs.validite = date.value_or(releve);
    lu.tarifs.releve = releve;
    lu.tarifs.source = adresse();
    lu.dateTrouvee = date.has_value();
    return lu;
}

} // namespace Quillet
