#include "model/Saisie.h"

#include "model/AdresseWeb.h"
#include "model/ChiffresAscii.h"
#include "model/Format.h"

#include <limits>

namespace Quillet {

namespace {

QString sansEspaces(QString texte)
{
    texte.removeIf([](QChar c) { return c.isSpace(); });
    return texte;
}

bool estNegatif(const QString &texte)
{
    return texte.startsWith(u'-') || texte.startsWith(u'\u2212');
}

template <typename Quantite>
std::optional<Quantite> quantite(const QString &chiffres)
{
    bool tient = false;
    const qint64 valeur = chiffres.toLongLong(&tient);
    return tient ? Quantite::bornee(valeur) : std::nullopt;
}

} // namespace

Saisie::Lecture<Centimes> Saisie::prix(const QString &texte)
{
    QString saisi = sansEspaces(texte).replace(u'.', u',');
    if (saisi.endsWith(u'€'))
        saisi.chop(1);
    if (saisi.isEmpty())
        return Refus{QStringLiteral("Il faut un prix.")};
    if (estNegatif(saisi))
        return Refus{QStringLiteral("Un prix ne peut pas être négatif.")};
    const QString euros = saisi.section(u',', 0, 0);
    const QString decimales = saisi.section(u',', 1);
    if (!queDesChiffres(euros + decimales) || (euros + decimales).isEmpty())
        return Refus{QStringLiteral("Un prix s’écrit en chiffres, comme 18,50.")};
    if (decimales.size() > 2)
        return Refus{QStringLiteral("Deux décimales au plus, comme 18,50.")};
    if (const auto prix = quantite<Centimes>(euros + decimales.leftJustified(2, u'0')))
        return *prix;
    return Refus{QStringLiteral("Un prix va jusqu’à %1.").arg(Format::euros(Centimes{UniteCentime::maximum}))};
}

Saisie::Lecture<std::optional<Grammes>> Saisie::poids(const QString &texte)
{
    QString saisi = sansEspaces(texte);
    if (saisi.endsWith(u'g', Qt::CaseInsensitive) && !saisi.endsWith(QStringLiteral("kg"), Qt::CaseInsensitive))
        saisi.chop(1);
    if (saisi.isEmpty())
        return std::optional<Grammes>();
    if (estNegatif(saisi))
        return Refus{QStringLiteral("Un poids ne peut pas être négatif.")};
    if (!queDesChiffres(saisi))
        return Refus{QStringLiteral("Un poids s’écrit en grammes entiers, comme 355.")};
    if (const auto poids = quantite<Grammes>(saisi))
        return poids;
    return Refus{QStringLiteral("Un poids va jusqu’à %1.").arg(Format::poids(Grammes{UniteGramme::maximum}))};
}

Saisie::Lecture<qint64> Saisie::pages(const QString &texte)
{
    const QString saisi = sansEspaces(texte);
    if (saisi.isEmpty())
        return Refus{QStringLiteral("Il faut un nombre de pages.")};
    if (!queDesChiffres(saisi))
        return Refus{QStringLiteral("Un nombre de pages s’écrit en chiffres, comme 288.")};
    bool tient = false;
    const qint64 pages = saisi.toLongLong(&tient);
    return tient ? pages : std::numeric_limits<qint64>::max();
}

Saisie::Lecture<std::optional<QUrl>> Saisie::adresse(const QString &texte)
{
    const QString saisi = texte.trimmed();
    if (saisi.isEmpty())
        return std::optional<QUrl>();
    if (const auto adresse = adresseWeb(saisi))
        return adresse;
    return Refus{QStringLiteral("Une adresse web s’écrit en entier, comme https://www.paypal.com/….")};
}

QString Saisie::ecrit(Centimes prix)
{
    return Format::montant(prix);
}

QString Saisie::ecrit(const std::optional<Grammes> &poids)
{
    return poids ? Format::grammes(*poids) : QString();
}

} // namespace Quillet
