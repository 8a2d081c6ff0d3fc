#include "model/Ressources.h"
#include "tests/Rangees.h"
#include "watch/ErreurReleve.h"
#include "watch/ReleveColissimo.h"
#include "watch/RelevePaypal.h"

#include <QFile>

using namespace Quillet;

namespace {

const QDate jour(2026, 11, 22);

QString page(const QString &nom)
{
    QFile fichier(QFINDTESTDATA(QStringLiteral("pages/") + nom));
    if (!fichier.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(fichier.errorString()));
    return QString::fromUtf8(fichier.readAll());
}

// The good page with one thing changed: a replacement that replaces nothing would prove nothing.
QString pageChangee(const QString &nom, const char *avant, const char *apres)
{
    QString changee = page(nom);
    if (!changee.contains(avant))
        qFatal("%s : pas de « %s »", qPrintable(nom), avant);
    return changee.replace(avant, apres);
}

TarifsColissimo tarifsLivres(const QString &validite)
{
    for (const TarifsColissimo &jeu : Ressources::duProgramme().tarifs())
        if (jeu.validite.texte() == validite)
            return jeu;
    qFatal("Pas de tarifs livrés au %s", qPrintable(validite));
}

// What the reading failed on, with plain spaces; empty when it did not.
template <typename Lecture>
QString refus(Lecture lecture)
{
    try {
        lecture();
    } catch (const ErreurReleve &erreur) {
        return erreur.cas() == ErreurReleve::Cas::pageIllisible ? erreur.detail().simplified() : erreur.texte();
    }
    return {};
}

// The refusal, or the base rate, the fixed part and the three rates by region.
QString frais(const QString &html)
{
    FraisPaypal lus;
    QString texte = refus([&] { lus = RelevePaypal::analyser(html, jour); });
    if (!texte.isEmpty())
        return texte;
    texte = QStringLiteral("%1 %2").arg(lus.taux.valeur()).arg(lus.fixe.valeur());
    for (const RegionPaypal region : tous<RegionPaypal>)
        texte += u' ' + QString::number(lus.supplement(region).valeur());
    return texte;
}

} // namespace

class TestReleves : public QObject
{
    Q_OBJECT

private slots:
    void colissimo()
    {
        const auto lu = ReleveColissimo::analyser(page("colissimo.html"), tarifsLivres("2025-01-01"), jour);
        TarifsColissimo attendus = tarifsLivres("2026-01-01");
        attendus.releve = jour;
        for (qsizetype i = 0; i < attendus.grilles.size(); ++i)
            QCOMPARE(lu.tarifs.grilles[i].paliers, attendus.grilles[i].paliers);
        QCOMPARE(lu, (ReleveColissimo{attendus, true}));
    }

    // What is expected: the refusal, or the day in force and the France grid's first tier.
    void colissimoChange()
    {
        for (const auto &[nom, avant, apres, attendu] : Rangees<const char *, const char *, const char *>{
                 {"date à venir", "janvier\u00A02026", "juillet 2027", "2027-07-01, 250 g, 549, datée"},
                 {"sans « en vigueur »", "en vigueur", "affichés", "2026-07-01, 250 g, 549, datée"},
                 {"sans date", "à partir du", "à compter du", "2026-11-22, 250 g, 549, non datée"},
                 {"date seulement dans un script", "<p class=\"chapeau\">", "<script>à partir du 1er mai 2026</script>",
                  "2026-01-01, 250 g, 549, datée"},
                 {"prix changé", ">5,49&nbsp;€", ">5,6", "2026-01-01, 250 g, 560, datée"},
                 {"prix absent", ">5,49&nbsp;€", ">–", "2026-01-01, 500 g, 759, datée"},
                 {"prix trop grand", ">5,49&nbsp;€", ">100000,00 €",
                  "prix de la grille « France » au-delà de 99 999,99 €"},
                 {"prix hors de tout nombre", ">5,49&nbsp;€", ">99999999999999999999,00 €",
                  "2026-01-01, 500 g, 759, datée"},
                 {"poids trop grand", "Jusqu’à 30&nbsp;kg", "Jusqu’à 1000&nbsp;kg",
                  "poids de la grille « Outre-mer OM1 » au-delà de 999 999 g"},
                 {"poids trop grand, en désordre", "Jusqu’à 250&nbsp;g", "Jusqu’à 9999999999 kg",
                  "paliers de la grille « France » dans le désordre"},
                 {"poids hors de tout nombre", "Jusqu’à 250&nbsp;g", "Jusqu’à 99999999999999999999 kg",
                  "2026-01-01, 500 g, 759, datée"},
                 {"rangée courte", "<td\n  data-colonne=\"Livraison à domicile France\">5,49&nbsp;€</td>", "",
                  "2026-01-01, 250 g, 449, datée"},
                 {"chiffres dans l’en-tête",
                  "Poids<br>jusqu’à</th><th scope=\"col\" data-texte=\"Livraison à domicile France\" data-rang=\"1\">",
                  "Moins de 9 g</th><th>1,00 € ", "2026-01-01, 250 g, 549, datée"},
                 {"grille absente", "ROYAUME-UNI", "Irlande", "grille « Royaume-Uni » introuvable"},
                 {"tableaux dans un script", "main>", "script>", "grille « France » introuvable"},
                 {"leurre", "Colissimo Eco Outre-Mer zone OM 1", "Outre-Mer zone OM 1",
                  "paliers de la grille « Outre-mer OM1 » dans le désordre"},
                 {"paliers en désordre", "Jusqu’à 250&nbsp;g", "Jusqu’à 0,9 kg",
                  "paliers de la grille « France » dans le désordre"},
                 {"même poids deux fois", "Jusqu’à 250&nbsp;g", "Jusqu’à 0,5 kg",
                  "paliers de la grille « France » dans le désordre"},
                 {"deux rangées d’en-tête", "<thead>", "<thead><tr><th colspan=\"3\">Tarifs</th></tr>",
                  "grille « France » introuvable"},
             }) {
            const Rangee rangee(nom);
            const QString html = pageChangee("colissimo.html", avant, apres);
            ReleveColissimo lu;
            QString obtenu = refus([&] { lu = ReleveColissimo::analyser(html, tarifsLivres("2025-01-01"), jour); });
            if (obtenu.isEmpty()) {
                const Palier premier = lu.tarifs.grilles[0].paliers[0];
                obtenu = QStringLiteral("%1, %2 g, %3, %4")
                             .arg(lu.tarifs.validite.texte())
                             .arg(premier.jusqua.valeur())
                             .arg(premier.prix.valeur())
                             .arg(lu.dateTrouvee ? QStringLiteral("datée") : QStringLiteral("non datée"));
            }
            QCOMPARE(obtenu, attendu);
        }
    }

    // A page in its form, with tiers without end.
    void tropDePaliers()
    {
        const TarifsColissimo modele = tarifsLivres("2026-01-01");
        for (const auto &[nom, enTrop, attendu] : Rangees<int, const char *>{
                 {"beaucoup", TarifsColissimo::paliersMaximaux - 51, ""},
                 {"trop", TarifsColissimo::paliersMaximaux - 50, "301 paliers, plus qu’un tarif n’en compte"},
                 {"trente mille", 30'000, "30051 paliers, plus qu’un tarif n’en compte"},
             }) {
            const Rangee rangee(nom);
            TarifsColissimo tarifs = modele;
            QList<Palier> &paliers = tarifs.grilles.last().paliers;
            QString rangees;
            for (int i = 1; i <= enTrop; ++i) {
                paliers.append({Grammes{30'000 + i}, Centimes{100}});
                rangees += QStringLiteral("<tr><td>%1 g</td><td>1,00 €</td></tr>").arg(30'000 + i);
            }
            const QString html =
                page("colissimo.html") + "<table><tr><th>Poids</th><th>Zone C</th></tr>" + rangees + "</table>";
            QCOMPARE(refus([&] { ReleveColissimo::analyser(html, modele, jour); }), attendu);
            QString refusDuFichier;
            try {
                Json::decoder<TarifsColissimo>(Json::encoder(tarifs), "tarifs");
            } catch (const Json::Erreur &erreur) {
                refusDuFichier = erreur.texte();
            }
            QCOMPARE(refusDuFichier, *attendu ? QStringLiteral("tarifs : ") + attendu : QString());
        }
    }

    void codes()
    {
        for (const auto &[entete, code] : Rangees<const char *>{
                 // empty: none
                 {"Outre-mer OM 1", "om1"},
                 {"OM 2 et OM 1", "om1"},
                 {"Zone om 2", "om2"},
                 {"Outre-mer OM1", ""},
                 {"Colissimo Eco Outre-Mer zone OM 1", ""},
                 {"France métropolitaine – livraison à domicile", "france-domicile"},
                 {"Livraison à domicile", ""},
                 {"Livraison à domicile, zone C", "zone-c"},
                 {"France – retrait, ou à domicile", ""},
                 {"PRÊT-À-ENVOYER France domicile", ""},
                 {"ROYAUME-UNI, UE et Suisse", "royaume-uni"},
                 {"Suisse (UE)", "ue-suisse"},
                 {"Suisse", ""},
                 {"Zone B", "zone-b"},
                 {"Poids", ""},
             }) {
            const Rangee rangee(entete);
            QCOMPARE(ReleveColissimo::code(entete).value_or(CodeGrille()).texte(), code);
        }
    }

    void dates()
    {
        for (const auto &[texte, date] : Rangees<const char *>{
                 // empty: none
                 {"à partir du 1er janvier 2026", "2026-01-01"},
                 {"À PARTIR DU 15 DÉCEMBRE 2026", "2026-12-15"},
                 {"à partir du 1 er août 2026", "2026-08-01"},
                 {"à partir du 1erfévrier 2026", ""},
                 {"à partir du 31 février 2026", "2026-02-31"},
                 {"à partir du 1er juillet 2026, en vigueur à partir du 1er janvier 2026", "2026-01-01"},
                 {"en vigueur, à partir du 2 mars 2026 puis à partir du 3 avril 2026", "2026-03-02"},
                 {"à partir du 2 mars 2026 puis à partir du 3 avril 2026", "2026-03-02"},
                 {"à partir du 1er fevrier 2026", ""},
                 {"à partir du 1er marſ 2026", ""},
                 {"à partir du ٣ mars 2026", ""},
                 {"à partir du 3 mars ٢٠٢٦", ""},
                 {"à partir du 123 mars 2026", ""},
             }) {
            const Rangee rangee(texte);
            QCOMPARE(ReleveColissimo::dateDEffet(texte).value_or(Jour()).texte(), date);
        }
    }

    void paypal()
    {
        FraisPaypal attendus = Ressources::duProgramme().lire<Reglages>("reglages").fraisPaypal;
        attendus.releve = jour;
        attendus.supplements.insert(RegionPaypal::eee, Taux{0});
        QCOMPARE(RelevePaypal::analyser(page("paypal.html"), jour), attendus);
    }

    // What is expected: the refusal, or the rates and the fixed part.
    void paypalChange()
    {
        for (const auto &[nom, avant, apres, attendu] : Rangees<const char *, const char *, const char *>{
                 {"taux changé", "2,90\u00A0%", "3,49%", "349 35 0 129 199"},
                 {"s long, capitales", "transactions commerciales", "TRANſACTIONS Commerciales", "290 35 0 129 199"},
                 {"ß pour ss", "Aucune commission", "Aucune commißion", "290 35 0 129 199"},
                 {"supplément pour l’EEE", "Aucune commission", "0,5 %", "290 35 50 129 199"},
                 {"supplément illisible pour l’EEE", "Aucune commission", "٣,٣ %", "290 35 0 129 199"},
                 {"autre devise", "0,35\u00A0EUR", "0,35 USD", "290 25 0 129 199"},
                 {"point décimal", "2,90\u00A0%", "2.90 %", "500 35 0 129 199"},
                 {"taux absent", "Toutes les autres", "Les autres", "taux de base introuvable"},
                 {"pas d’euros", "EUR", "€", "part fixe en euros introuvable"},
                 {"pas d’EEE", "EEE", "Europe", "supplément EEE introuvable"},
                 {"pas de Royaume-Uni", "Royaume-Uni", "Royaume Uni", "supplément Royaume-Uni introuvable"},
                 {"pas d’autres marchés", "Tous les autres", "Les autres", "supplément des autres pays introuvable"},
                 {"figures dans un script", "main>", "script>", "taux de base introuvable"},
                 {"chiffres d’ailleurs", "0,35\u00A0EUR", "٣,٣٥ EUR", "chiffres illisibles"},
                 {"supplément démesuré pour l’EEE", "Aucune commission", "150,00 %", "290 35 15000 129 199"},
                 {"taux démesuré", "2,90\u00A0%", "100,01 %", "taux de base au-delà de 100,00 %"},
                 {"part fixe démesurée", "0,35\u00A0EUR", "100000,00 EUR", "part fixe en euros au-delà de 99 999,99 €"},
                 {"supplément démesuré", "1,29\u00A0%", "129,00 %", "supplément Royaume-Uni au-delà de 100,00 %"},
                 {"taux hors de tout nombre", "2,90\u00A0%", "99999999999999999999,00 %", "chiffres illisibles"},
             }) {
            const Rangee rangee(nom);
            QCOMPARE(frais(pageChangee("paypal.html", avant, apres)), attendu);
        }
    }
};

QTEST_GUILESS_MAIN(TestReleves)
#include "tst_releves.moc"
