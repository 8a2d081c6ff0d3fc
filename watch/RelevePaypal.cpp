#include "watch/RelevePaypal.h"

#include "watch/ErreurReleve.h"
#include "watch/Nombres.h"
#include "watch/Signes.h"
#include "watch/TexteHTML.h"

namespace Quillet {

namespace {

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

template <typename Quantite>
Quantite exiger(std::optional<qint64> figure)
{
    const auto valeur = Quantite::bornee(figure);
    if (!valeur)
        throw ErreurReleve::pageIllisible(QStringLiteral("chiffres illisibles"));
    return *valeur;
}

} // namespace

QUrl RelevePaypal::adresse()
{
    return QUrl(QStringLiteral("https://www.paypal.com/fr/business/paypal-business-fees"));
}

FraisPaypal RelevePaypal::analyser(const QString &page, QDate releve)
{
    const QString texte = TexteHTML::texte(page);
    const auto taux = chercher(texte, {.libelle = QStringLiteral("Toutes les autres transactions commerciales"),
                                       .unite = u"%",
                                       .nom = QStringLiteral("taux de base")});
    const auto fixe = chercher(
        texte, {.libelle = QStringLiteral("Euro"), .unite = u"eur", .nom = QStringLiteral("part fixe en euros")});
    const auto eee = chercher(texte, {.libelle = QStringLiteral("EEE"),
                                      .unite = u"%",
                                      .nom = QStringLiteral("supplément EEE"),
                                      .aucune = u"aucune commission"});
    const auto royaumeUni = chercher(
        texte,
        {.libelle = QStringLiteral("Royaume-Uni"), .unite = u"%", .nom = QStringLiteral("supplément Royaume-Uni")});
    const auto autres = chercher(texte, {.libelle = QStringLiteral("Tous les autres marchés"),
                                         .unite = u"%",
                                         .nom = QStringLiteral("supplément des autres pays")});
    return {.releve = releve,
            .source = adresse(),
            .taux = exiger<Taux>(taux),
            .fixe = exiger<Centimes>(fixe),
            .supplements = {
                // No commission is no number.
                {RegionPaypal::eee, eee ? exiger<Taux>(eee) : Taux{}},
                {RegionPaypal::royaumeUni, exiger<Taux>(royaumeUni)},
                {RegionPaypal::autres, exiger<Taux>(autres)},
            }};
}

} // namespace Quillet
