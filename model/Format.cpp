#include "model/Format.h"

#include "model/Enumeration.h"

#include <QTimeZone>

#include <unicode/gregocal.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace Quillet {

namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::NumberFormatter;
using icu::number::Precision;

const icu::Locale &francais()
{
    static const icu::Locale locale(traits(Langue::francais).locale);
    return locale;
}

// A whole number of hundredths or thousandths as a decimal text: no value ever passes through a double.
std::string decimal(qint64 valeur, std::size_t decimales)
{
    const quint64 grandeur = valeur < 0 ? 0 - static_cast<quint64>(valeur) : static_cast<quint64>(valeur);
    std::string chiffres = std::to_string(grandeur);
    if (chiffres.size() <= decimales)
        chiffres.insert(0, decimales + 1 - chiffres.size(), '0');
    if (decimales > 0)
        chiffres.insert(chiffres.size() - decimales, 1, '.');
    if (valeur < 0)
        chiffres.insert(0, 1, '-');
    return chiffres;
}

QString versTexte(const icu::UnicodeString &texte)
{
    return QString(reinterpret_cast<const QChar *>(texte.getBuffer()), texte.length());
}

QString formater(const LocalizedNumberFormatter &formateur, qint64 valeur, std::size_t decimales)
{
    UErrorCode statut = U_ZERO_ERROR;
    const auto resultat = formateur.formatDecimal(decimal(valeur, decimales), statut).toString(statut);
    if (U_FAILURE(statut))
        qFatal("ICU : %s", u_errorName(statut));
    return versTexte(resultat);
}

LocalizedNumberFormatter enEuros(Langue langue)
{
    UErrorCode statut = U_ZERO_ERROR;
    const icu::CurrencyUnit euro(u"EUR", statut);
    if (U_FAILURE(statut))
        qFatal("ICU : %s", u_errorName(statut));
    return NumberFormatter::withLocale(icu::Locale(traits(langue).locale)).unit(euro);
}

LocalizedNumberFormatter avecDecimales(int decimales)
{
    return NumberFormatter::withLocale(francais()).precision(Precision::fixedFraction(decimales));
}

// Days have no time zone here: noon in UTC, written in UTC, in the Gregorian calendar throughout.
std::unique_ptr<icu::SimpleDateFormat> formateurDeDate()
{
    UErrorCode statut = U_ZERO_ERROR;
    auto formateur = std::make_unique<icu::SimpleDateFormat>(u"d MMMM yyyy", francais(), statut);
    auto calendrier = std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), francais(), statut);
    calendrier->setGregorianChange(-1e18, statut);
    if (U_FAILURE(statut))
        qFatal("ICU : %s", u_errorName(statut));
    formateur->adoptCalendar(calendrier.release());
    return formateur;
}

} // namespace

QString Format::dit(const QString &montant)
{
    return montant == absent ? QStringLiteral("aucun montant") : montant;
}

QString Format::euros(Centimes montant, Langue langue)
{
    static const auto formateurs = [] {
        std::array<LocalizedNumberFormatter, tous<Langue>.size()> parLangue;
        std::ranges::transform(tous<Langue>, parLangue.begin(), enEuros);
        return parLangue;
    }();
    return formater(formateurs[static_cast<std::size_t>(langue)], montant.valeur(), 2);
}

QString Format::euros(const std::optional<Centimes> &montant, Langue langue)
{
    return montant ? euros(*montant, langue) : QString(absent);
}

QString Format::ecart(Centimes difference)
{
    return (difference > Centimes{} ? QStringLiteral("+") : QString()) + euros(difference);
}

QString Format::montant(Centimes montant)
{
    static const LocalizedNumberFormatter formateur = avecDecimales(2);
    return formater(formateur, montant.valeur(), 2);
}

QString Format::kilos(Grammes poids)
{
    static const LocalizedNumberFormatter formateur = avecDecimales(3);
    return formater(formateur, poids.valeur(), 3);
}

QString Format::grammes(Grammes poids)
{
    static const LocalizedNumberFormatter formateur = avecDecimales(0);
    return formater(formateur, poids.valeur(), 0);
}

QString Format::poids(Grammes poids)
{
    return grammes(poids) + QStringLiteral(" g");
}

QString Format::palier(Grammes jusqua)
{
    const qint64 grammes = jusqua.valeur();
    return grammes >= 1000 && grammes % 1000 == 0 ? QString::number(grammes / 1000) + QStringLiteral(" kg")
                                                  : QString::number(grammes) + QStringLiteral(" g");
}

QString Format::jusqua(Grammes palier)
{
    return QStringLiteral("jusqu’à ") + Format::palier(palier);
}

QString Format::pourcentage(Taux taux)
{
    static const LocalizedNumberFormatter formateur = avecDecimales(2);
    return formater(formateur, taux.valeur(), 2) + QStringLiteral(" %");
}

QString Format::iso(QDate jour)
{
    return Jour(jour).texte();
}

QString Format::date(QDate jour)
{
    static const std::unique_ptr<const icu::SimpleDateFormat> formateur = formateurDeDate();
    Q_ASSERT(jour.isValid());
    const QDateTime midi(jour, QTime(12, 0), QTimeZone::utc());
    icu::UnicodeString sortie;
    const QString texte = versTexte(formateur->format(static_cast<UDate>(midi.toMSecsSinceEpoch()), sortie));
    return texte.startsWith(QLatin1String("1 ")) ? QStringLiteral("1er ") + texte.mid(2) : texte;
}

QString Format::date(const Jour &jour)
{
    const QDate date = jour.date();
    return date.isValid() ? Format::date(date) : jour.texte();
}

} // namespace Quillet
