#include "echanges/TableCsv.h"

#include "model/Echec.h"
#include "model/Fichier.h"

#include <QStringDecoder>
#include <QUtf8StringView>

#include <algorithm>
#include <array>

namespace Quillet {

namespace {

constexpr auto separateurs = std::to_array<QChar>({u';', u',', u'\t'});
constexpr QChar guillemet(u'"');

// What Windows-1252 has in place of the second series of control characters; the holes stay what they were.
constexpr auto windows =
    std::to_array<char16_t>({0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                             0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                             0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178});

QString deWindows(const QByteArray &octets)
{
    QString texte = QString::fromLatin1(octets);
    for (QChar &signe : texte)
        if (signe >= u'\u0080' && signe <= u'\u009F')
            signe = windows[signe.unicode() - 0x80u];
    return texte;
}

QString texte(const QByteArray &octets)
{
    for (const auto &[marque, encodage] :
         {std::pair{"\xff\xfe", QStringConverter::Utf16LE}, std::pair{"\xfe\xff", QStringConverter::Utf16BE}})
        if (octets.startsWith(marque))
            return QStringDecoder(encodage).decode(octets.sliced(2));
    const QByteArray sansMarque = octets.startsWith("\xef\xbb\xbf") ? octets.sliced(3) : octets;
    return QUtf8StringView(sansMarque).isValidUtf8() ? QString::fromUtf8(sansMarque) : deWindows(octets);
}

void refuserUnClasseur(const QByteArray &octets)
{
    if (octets.startsWith("PK\x03\x04") || octets.startsWith("\xd0\xcf\x11\xe0"))
        throw Echec(
            QStringLiteral("Ce fichier est un classeur, pas une liste. Dans le tableur, choisissez « Enregistrer "
                           "sous », puis le format CSV."));
}

class Analyse
{
public:
    Analyse(QStringView texte, QChar separateur) : texte_(texte), separateur_(separateur) {}

    QList<QStringList> rangees()
    {
        QList<QStringList> rangees;
        while (place_ < texte_.size()) {
            if (rangees.size() == TableCsv::rangeesAuPlus)
                throw Echec(QStringLiteral("Cette liste est trop longue : Quillet lit %1 lignes au plus.")
                                .arg(TableCsv::rangeesAuPlus));
            rangees.append(rangee(rangees.size() + 1));
        }
        return rangees;
    }

private:
    QStringList rangee(qsizetype numero)
    {
        QStringList cellules;
        do {
            if (cellules.size() == TableCsv::colonnesAuPlus)
                throw Echec(QStringLiteral("La ligne %1 a trop de colonnes : Quillet en lit %2 au plus.")
                                .arg(numero)
                                .arg(TableCsv::colonnesAuPlus));
            cellules.append(cellule(numero));
        } while (avance(separateur_));
        if (avance(u'\r'))
            avance(u'\n');
        else
            avance(u'\n');
        return cellules.size() == 1 && cellules[0].isEmpty() ? QStringList() : cellules;
    }

    QString cellule(qsizetype numero)
    {
        QString cellule;
        if (avance(guillemet)) {
            do {
                const qsizetype fin = texte_.indexOf(guillemet, place_);
                if (fin < 0)
                    throw Echec(QStringLiteral("Ligne %1 : des guillemets ouverts ne se referment pas.").arg(numero));
                cellule += texte_.sliced(place_, fin - place_);
                place_ = fin + 1;
                if (place_ < texte_.size() && texte_[place_] == guillemet)
                    cellule += guillemet;
            } while (avance(guillemet));
        }
        const qsizetype debut = place_; // what follows a quotation belongs to it
        while (place_ < texte_.size() && texte_[place_] != separateur_ && texte_[place_] != u'\n'
               && texte_[place_] != u'\r')
            ++place_;
        return cellule.append(texte_.sliced(debut, place_ - debut));
    }

    bool avance(QChar signe)
    {
        const bool la = place_ < texte_.size() && texte_[place_] == signe;
        place_ += la ? 1 : 0;
        return la;
    }

    QStringView texte_;
    QChar separateur_;
    qsizetype place_ = 0;
};

// The one that its heads have the most of; what is quoted does not count.
QChar separateurDe(QStringView texte)
{
    std::array<qsizetype, separateurs.size()> comptes{};
    bool cite = false;
    bool tete = false; // blank lines may stand before it
    for (const QChar signe : texte) {
        if ((signe == u'\n' || signe == u'\r') && !cite && tete)
            break;
        tete = tete || !signe.isSpace();
        cite = cite != (signe == guillemet);
        for (std::size_t rang = 0; rang < separateurs.size() && !cite; ++rang)
            comptes[rang] += signe == separateurs[rang] ? 1 : 0;
    }
    return separateurs[static_cast<std::size_t>(std::ranges::max_element(comptes) - comptes.begin())];
}

// Begins a formula, and so would do harm in a spreadsheet; an apostrophe before it, which spreadsheets take for "this
// is text", makes it harmless. One that stands there already gets another.
bool seraitFormule(QStringView cellule)
{
    const auto debut = std::ranges::find_if(cellule, [](QChar signe) { return signe != u'\''; });
    return debut != cellule.end() && QStringView(u"=+-@\t\r").contains(*debut);
}

QString rendue(const QString &cellule)
{
    return cellule.startsWith(u'\'') && seraitFormule(cellule) ? cellule.sliced(1) : cellule;
}

QString citee(const QString &cellule)
{
    const QString sure = seraitFormule(cellule) ? u'\'' + cellule : cellule;
    const bool nue = std::ranges::none_of(sure, [](QChar signe) { return QStringView(u";\t\"\r\n").contains(signe); });
    return nue ? sure : u'"' + QString(sure).replace(guillemet, QStringLiteral("\"\"")) + u'"';
}

} // namespace

TableCsv TableCsv::lue(const QByteArray &octets)
{
    refuserUnClasseur(octets);
    if (octets.size() > Fichier::Borne::donnees)
        throw Echec(QStringLiteral("Cette liste est trop longue : Quillet en lit %1 Mo au plus.")
                        .arg(Fichier::Borne::donnees / Fichier::Borne::mebioctet));
    const QString tout = texte(octets);
    if (tout.contains(QChar::Null))
        throw Echec(QStringLiteral("Ce fichier n’est pas une liste au format CSV."));
    QStringView reste(tout);
    QChar separateur = separateurDe(reste);
    if (reste.startsWith(u"sep=") && reste.size() > 4) { // as one spreadsheet says it
        separateur = reste[4];
        reste = reste.sliced(5);
        reste = reste.sliced(reste.startsWith(u"\r\n") ? 2 : reste.startsWith(u'\n') ? 1 : 0);
    }
    TableCsv table{Analyse(reste, separateur).rangees(), separateur};
    for (QStringList &rangee : table.rangees)
        std::ranges::transform(rangee, rangee.begin(), rendue);
    return table;
}

QByteArray TableCsv::ecrite(const QList<QStringList> &rangees)
{
    QString tout(QChar::ByteOrderMark);
    for (QStringList rangee : rangees) {
        std::ranges::transform(rangee, rangee.begin(), citee);
        tout += rangee.join(u';') + QStringLiteral("\r\n");
    }
    return tout.toUtf8();
}

} // namespace Quillet
