#include "bench/Mesures.h"
#include "model/Ressources.h"
#include "watch/ErreurReleve.h"
#include "watch/ReleveColissimo.h"
#include "watch/RelevePaypal.h"

#include <QFile>

#ifdef QUILLET_GUMBO
#include <gumbo.h>
#endif

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>

namespace Quillet {

namespace {

const QDate jour(2026, 3, 2);
constexpr qsizetype unMio = qsizetype{1} << 20;

double millisecondes(const std::function<void()> &travail)
{
    const auto debut = std::chrono::steady_clock::now();
    travail();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - debut).count();
}

Releve mesurer(const QString &nom, int fois, const std::function<void()> &travail)
{
    travail(); // what is built once, at the first page
    QList<double> durees;
    while (durees.size() < fois)
        durees.append(millisecondes(travail));
    return releve(nom, QStringLiteral("ms"), durees);
}

QString lirePage(const QString &nom)
{
    QFile fichier(QStringLiteral(QUILLET_PAGES "/") + nom);
    if (!fichier.open(QIODevice::ReadOnly))
        qFatal("%s : %s", qPrintable(nom), qPrintable(fichier.errorString()));
    return QString::fromUtf8(fichier.readAll());
}

// What stands between two marks of a page, over and over, until the page is as long as the real ones.
QString allonger(const QString &page, const QString &debut, const QString &fin)
{
    constexpr auto longueur = qsizetype{200} * 1024;
    const qsizetype place = page.lastIndexOf(debut);
    const QString passage = page.sliced(place, page.indexOf(fin, place) - place);
    return QString(page).insert(place, passage.repeated((longueur - page.size()) / passage.size()));
}

using Lecture = std::function<void(const QString &)>;

// A refusal is a reading too.
void lireColissimo(const QString &page)
{
    static const TarifsColissimo modele = Ressources::duProgramme().tarifs().last();
    try {
        ReleveColissimo::analyser(page, modele, jour);
    } catch (const ErreurReleve &) {
        return;
    }
}

void lirePaypal(const QString &page)
{
    try {
        RelevePaypal::analyser(page, jour);
    } catch (const ErreurReleve &) {
        return;
    }
}

Releve contreGumbo(const QString &nom, const QString &page, const Lecture &lire)
{
    constexpr int fois = 51;
    const QByteArray octets = page.toUtf8();
    Releve duree = mesurer(nom, fois, [&] { lire(QString::fromUtf8(octets)); });
#ifdef QUILLET_GUMBO
    duree.nom += QStringLiteral(", contre libgumbo");
    duree.reference = mesurer({}, fois, [&] {
                          gumbo_destroy_output(&kGumboDefaultOptions,
                                               gumbo_parse_with_options(&kGumboDefaultOptions, octets.constData(),
                                                                        static_cast<size_t>(octets.size())));
                      }).mediane;
    duree.but = 1;
#endif
    return duree;
}

// A good page, and a text without end that must not slow its reading down.
struct Hostile
{
    QString avant;
    QString motif; // again and again
    QString apres;
    Lecture lire;
};

QList<Hostile> hostiles()
{
    const QString finDeTableau = QStringLiteral("</td></tr></table>");
    QList<Hostile> liste;
    const auto ajouter = [&](const QString &avant, const QStringList &motifs, const QString &apres, const QString &page,
                             const Lecture &lire) {
        for (const QString &motif : motifs)
            liste.append({avant, motif, apres + page, lire});
    };
    const QStringList balises =
        QStringLiteral(
            "<script|<script></script |<style><script>|<table|<table><tr><td|<table></table|<tr|<td|<|<>|\t<b>|"
            "<table><tr><td>1 kg</td></tr></table>|&|&amp|&#x41;")
            .split(u'|');
    const QStringList cellules =
        QStringLiteral("<td>om 1|<td></td>|<tr>|<tr></tr>|<tr><td>1 kg</td></tr>|7|1,|1,1 kgs |1 | ").split(u'|');
    const QStringList textes =
        QStringLiteral("7|1,|1,1 | |e|t|à|Euro |Euro 1|Euro 1,1|EEE 1,1|EEE Aucune |Royaume-Uni 1,|"
                       "Tous les autres marchés |en vigueur |en vigueur à partir du 1|à partir du 1 er ")
            .split(u'|');
    for (const auto &[nom, lire] : {std::pair<QString, Lecture>{QStringLiteral("colissimo.html"), lireColissimo},
                                    {QStringLiteral("paypal.html"), lirePaypal}}) {
        const QString page = lirePage(nom);
        ajouter(page, balises, {}, {}, lire);
        ajouter({}, balises, {}, page, lire);
        ajouter(page + QStringLiteral("<table><tr><th>om 1</th></tr><tr><td>"), cellules, finDeTableau, {}, lire);
        // A figure is looked for up to its first place: what comes before the page is read for each.
        ajouter({}, textes, {}, page, lire);
        for (const char *libelle : {"Toutes les autres transactions commerciales 1,", "Euro ", "à partir du "})
            ajouter(QString::fromUtf8(libelle), textes.first(4), {}, page, lire);
    }
    return liste;
}

constexpr std::array tailles{1, 2, 4, 8}; // Mio

// Milliseconds at each length.
using Durees = std::array<double, tailles.size()>;

Durees mesurer(const Hostile &hostile)
{
    Durees durees{};
    for (size_t i = 0; i < tailles.size(); ++i) {
        const QString page =
            hostile.avant + hostile.motif.repeated(tailles[i] * unMio / hostile.motif.size()) + hostile.apres;
        QList<double> essais;
        for (int n = tailles.back() / tailles[i]; n > 0; --n) // the shorter ones need it more
            essais.append(millisecondes([&] { hostile.lire(page); }));
        durees[i] = centile(essais, 0.5);
    }
    return durees;
}

QList<Releve> mesurerHostiles()
{
    struct Mesure
    {
        QString motif;
        Durees durees;
        // What takes next to no time is mostly the system handing out memory, which slows down by itself.
        [[nodiscard]] double croissance() const
        {
            return durees.back() < 100 ? 1 : durees.back() / durees.front() / tailles.back();
        }
    };
    QList<Mesure> mesures;
    for (const Hostile &hostile : hostiles())
        mesures.append({hostile.motif, mesurer(hostile)});
    const auto lente =
        *std::ranges::max_element(mesures, {}, [](const Mesure &mesure) { return mesure.durees.back(); });
    const auto ralentie = *std::ranges::max_element(mesures, {}, &Mesure::croissance);

    const auto parOctet = [](const QString &nom, const Mesure &mesure, size_t i, double but) {
        constexpr double nsParMs = 1e6;
        const auto ns = [&](size_t n) { return mesure.durees[n] * nsParMs / (tailles[n] * double{unMio}); };
        return Releve{.nom = nom.arg(mesure.motif).arg(tailles[i]),
                      .unite = QStringLiteral("ns"),
                      .mediane = ns(i),
                      .reference = ns(0),
                      .but = but};
    };
    const QString nom = QStringLiteral("Texte hostile le plus lent (« %1 »), par octet : %2 Mio contre 1");
    return {{.nom = QStringLiteral("Texte hostile le plus lent (« %1 »), 8 Mio").arg(lente.motif),
             .unite = QStringLiteral("ms"),
             .mediane = lente.durees.back(),
             .but = 500},
            parOctet(nom, lente, 1, 1.5),
            parOctet(nom, lente, 2, 1.5),
            parOctet(nom, lente, 3, 1.5),
            parOctet(QStringLiteral("Texte hostile qui ralentit le plus (« %1 »), par octet : %2 Mio contre 1"),
                     ralentie, 3, 3)};
}

} // namespace

QList<Releve> mesurerPages()
{
    const QString colissimo = lirePage(QStringLiteral("colissimo.html"));
    const QString paypal = lirePage(QStringLiteral("paypal.html"));
    QList<Releve> releves{
        contreGumbo(QStringLiteral("Page de La Poste, 200 Kio"),
                    allonger(colissimo, QStringLiteral("<nav"), QStringLiteral("<div class=\"tarif-bloc\"")),
                    lireColissimo),
        contreGumbo(QStringLiteral("Page de PayPal, 200 Kio"),
                    allonger(paypal, QStringLiteral("<section"), QStringLiteral("<p>Les commissions")), lirePaypal),
    };
    return releves + mesurerHostiles();
}

} // namespace Quillet
