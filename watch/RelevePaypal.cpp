#include "watch/RelevePaypal.h"

#include "model/Format.h"
#include "watch/ErreurReleve.h"
#include "watch/Nombres.h"
#include "watch/Signes.h"
#include "watch/TexteHTML.h"

#include <algorithm>

namespace Quillet {

namespace {

// Of the European surcharge, which is not refused here: what it is added to or multiplied by must stay within 64 bits.
constexpr qint64 supplementMaximal = 1000 * UniteCentiemeDePourcent::maximum;

// "label\s+(\d+,\d+)\s*unit", without case: an engine would try it at every "e" of a page made of them.
struct Figure
{
    QString libelle;
    QStringView unite; // in lower case
    QString nom;
    QStringView aucune = {}; // may stand for the number and its unit
};

// The figure that stands here, with what follows it; none when it is another thing.
QStringView lireFigure(QStringView suite, const Figure &figure)
{
    if (!figure.aucune.isEmpty() && Signes::finDuLitteral(suite, 0, figure.aucune) >= 0)
        return figure.aucune;
    const qsizetype virgule = Signes::finDesChiffres(suite, 0);
    if (virgule == 0 || virgule == suite.size() || suite[virgule] != u',')
        return {};
    const qsizetype fin = Signes::finDesChiffres(suite, virgule + 1);
    const bool entiere =
        fin > virgule + 1 && Signes::finDuLitteral(suite, Signes::finDesBlancs(suite, fin), figure.unite) >= 0;
    return entiere ? suite.first(fin) : QStringView();
}

// The first of its kind in a text with single spaces.
std::optional<qint64> chercher(const QString &texte, const Figure &figure)
{
    const QString debut = figure.libelle + u' ';
    for (qsizetype place = texte.indexOf(debut, 0, Qt::CaseInsensitive); place >= 0;
         place = texte.indexOf(debut, place + 1, Qt::CaseInsensitive))
        if (const auto lue = lireFigure(QStringView(texte).sliced(place + debut.size()), figure); !lue.isEmpty())
            return TexteHTML::centiemes(lue);
    throw ErreurReleve::pageIllisible(figure.nom + QStringLiteral(" introuvable"));
}

// What no file may hold.
template <typename Quantite>
Quantite borner(qint64 chiffre, const QString &nom, const QString &plafond)
{
    const auto valeur = Quantite::bornee(chiffre);
    if (!valeur)
        throw ErreurReleve::pageIllisible(nom + QStringLiteral(" au-delà de ") + plafond);
    return *valeur;
}

Taux bornerTaux(qint64 chiffre, const QString &nom)
{
    return borner<Taux>(chiffre, nom, Format::pourcentage(Taux{UniteCentiemeDePourcent::maximum}));
}

} // namespace

QUrl RelevePaypal::adresse()
{
    return QUrl(QStringLiteral("https://www.paypal.com/fr/business/paypal-business-fees"));
}

FraisPaypal RelevePaypal::analyser(const QString &page, QDate releve)
{
    const QString texte = TexteHTML::texte(page);
    const Figure taux{.libelle = QStringLiteral("Toutes les autres transactions commerciales"),
                      .unite = u"%",
                      .nom = QStringLiteral("taux de base")};
    const Figure fixe{.libelle = QStringLiteral("Euro"), .unite = u"eur", .nom = QStringLiteral("part fixe en euros")};
    const Figure eee{.libelle = QStringLiteral("EEE"),
                     .unite = u"%",
                     .nom = QStringLiteral("supplément EEE"),
                     .aucune = u"aucune commission"};
    const Figure royaumeUni{
        .libelle = QStringLiteral("Royaume-Uni"), .unite = u"%", .nom = QStringLiteral("supplément Royaume-Uni")};
    const Figure autres{.libelle = QStringLiteral("Tous les autres marchés"),
                        .unite = u"%",
                        .nom = QStringLiteral("supplément des autres pays")};
    const auto luTaux = chercher(texte, taux);
    const auto luFixe = chercher(texte, fixe);
    const auto luEee = chercher(texte, eee);
    const auto luRoyaumeUni = chercher(texte, royaumeUni);
    const auto luAutres = chercher(texte, autres);
    if (!luTaux || !luFixe || !luRoyaumeUni || !luAutres)
        throw ErreurReleve::pageIllisible(QStringLiteral("chiffres illisibles"));
    return {.releve = releve,
            .source = adresse(),
            .taux = bornerTaux(*luTaux, taux.nom),
            .fixe = borner<Centimes>(*luFixe, fixe.nom, Format::euros(Centimes{UniteCentime::maximum})),
            .supplements = {
                // It never fails; no commission is no number.
                {RegionPaypal::eee, Taux{std::min(luEee.value_or(0), supplementMaximal)}},
                {RegionPaypal::royaumeUni, bornerTaux(*luRoyaumeUni, royaumeUni.nom)},
                {RegionPaypal::autres, bornerTaux(*luAutres, autres.nom)},
            }};
}

} // namespace Quillet
