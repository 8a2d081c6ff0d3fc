#include "model/Ressources.h"
#include "watch/ErreurReleve.h"
#include "watch/ReleveColissimo.h"
#include "watch/RelevePaypal.h"

#include <QFile>
#include <QTest>

using namespace Quillet;

class TestReleves : public QObject
{
    Q_OBJECT

private slots:
    void colissimo();
    void colissimoChange_data();
    void colissimoChange();
    void codes_data();
    void codes();
    void dates_data();
    void dates();
    void paypal();
    void paypalChange_data();
    void paypalChange();
};

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
QString pageChangee(const QString &nom)
{
    QFETCH(QString, avant);
    QFETCH(QString, apres);
    const QString bonne = page(nom);
    return bonne.contains(avant) ? QString(bonne).replace(avant, apres) : QString();
}

TarifsColissimo tarifsLivres(const QString &validite)
{
    for (const TarifsColissimo &jeu : Ressources::duProgramme().tarifs())
        if (jeu.validite.texte() == validite)
            return jeu;
    qFatal("Pas de tarifs livrés au %s", qPrintable(validite));
}

// What the reading failed on; empty when it did not.
template <typename Lecture>
QString refus(Lecture lecture)
{
    try {
        lecture();
    } catch (const ErreurReleve &erreur) {
        return erreur.cas() == ErreurReleve::Cas::pageIllisible ? erreur.detail() : erreur.texte();
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

void ajouter(const char *nom, const char *avant, const char *apres, const char *attendu)
{
    QTest::newRow(nom) << QString::fromUtf8(avant) << QString::fromUtf8(apres) << QString::fromUtf8(attendu);
}

} // namespace

void TestReleves::colissimo()
{
    const auto lu = ReleveColissimo::analyser(page(QStringLiteral("colissimo.html")),
                                              tarifsLivres(QStringLiteral("2025-01-01")), jour);
    TarifsColissimo attendus = tarifsLivres(QStringLiteral("2026-01-01"));
    attendus.releve = jour;
    for (qsizetype i = 0; i < attendus.grilles.size(); ++i)
        QCOMPARE(lu.tarifs.grilles[i].paliers, attendus.grilles[i].paliers);
    QCOMPARE(lu, (ReleveColissimo{attendus, true}));
}

void TestReleves::colissimoChange_data()
{
    QTest::addColumn<QString>("avant");
    QTest::addColumn<QString>("apres");
    QTest::addColumn<QString>("attendu"); // the refusal, or the day in force and the France grid's first tier
    ajouter("date à venir", "janvier\u00A02026", "juillet 2027", "2027-07-01, 250 g, 549, datée");
    ajouter("sans « en vigueur »", "en vigueur", "affichés", "2026-07-01, 250 g, 549, datée");
    ajouter("sans date", "à partir du", "à compter du", "2026-11-22, 250 g, 549, non datée");
    ajouter("date seulement dans un script", "<p class=\"chapeau\">", "<script>à partir du 1er mai 2026</script>",
            "2026-01-01, 250 g, 549, datée");
    ajouter("prix changé", ">5,49&nbsp;€", ">5,6", "2026-01-01, 250 g, 560, datée");
    ajouter("prix absent", ">5,49&nbsp;€", ">–", "2026-01-01, 500 g, 759, datée");
    ajouter("prix démesuré", ">5,49&nbsp;€", ">99999999999,00 €", "2026-01-01, 500 g, 759, datée");
    ajouter("poids démesuré", "Jusqu’à 250&nbsp;g", "Jusqu’à 9999999999 kg", "2026-01-01, 500 g, 759, datée");
    ajouter("rangée courte", "<td\n  data-colonne=\"Livraison à domicile France\">5,49&nbsp;€</td>", "",
            "2026-01-01, 250 g, 449, datée");
    ajouter("chiffres dans l’en-tête",
            "Poids<br>jusqu’à</th><th scope=\"col\" data-texte=\"Livraison à domicile France\" data-rang=\"1\">",
            "Moins de 9 g</th><th>1,00 € ", "2026-01-01, 250 g, 549, datée");
    ajouter("grille absente", "ROYAUME-UNI", "Irlande", "grille « Royaume-Uni » introuvable");
    ajouter("grille d’un autre service", "Zone B</a>", "Zone B en retrait</a>", "grille « Zone B » introuvable");
    ajouter("tableaux dans un script", "main>", "script>", "grille « France » introuvable");
    ajouter("leurre", "Colissimo Eco Outre-Mer zone OM 1", "Outre-Mer zone OM 1",
            "paliers de la grille « Outre-mer OM1 » dans le désordre");
    ajouter("paliers en désordre", "Jusqu’à 250&nbsp;g", "Jusqu’à 0,9 kg",
            "paliers de la grille « France » dans le désordre");
    ajouter("même poids deux fois", "Jusqu’à 250&nbsp;g", "Jusqu’à 0,5 kg",
            "paliers de la grille « France » dans le désordre");
    ajouter("deux rangées d’en-tête", "<thead>", "<thead><tr><th colspan=\"3\">Tarifs</th></tr>",
            "grille « France » introuvable");
}

void TestReleves::colissimoChange()
{
    QFETCH(QString, attendu);
    const QString html = pageChangee(QStringLiteral("colissimo.html"));
    QVERIFY(!html.isEmpty());
    ReleveColissimo lu;
    QString obtenu =
        refus([&] { lu = ReleveColissimo::analyser(html, tarifsLivres(QStringLiteral("2025-01-01")), jour); });
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

void TestReleves::codes_data()
{
    QTest::addColumn<QString>("entete");
    QTest::addColumn<QString>("code"); // empty: none
    const auto cas = [](const char *entete, const char *code) {
        QTest::addRow("%s", entete) << QString::fromUtf8(entete) << QString::fromLatin1(code);
    };
    cas("Outre-mer OM 1", "om1");
    cas("OM 2 et OM 1", "om1");
    cas("Zone om 2", "om2");
    cas("Outre-mer OM1", "");
    cas("Colissimo Eco Outre-Mer zone OM 1", "");
    cas("France métropolitaine – livraison à domicile", "france-domicile");
    cas("Livraison à domicile", "");
    cas("Livraison à domicile, zone C", "zone-c");
    cas("France – retrait, ou à domicile", "");
    cas("PRÊT-À-ENVOYER France domicile", "");
    cas("ROYAUME-UNI, UE et Suisse", "royaume-uni");
    cas("Suisse (UE)", "ue-suisse");
    cas("Suisse", "");
    cas("Zone B", "zone-b");
    cas("Poids", "");
}

void TestReleves::codes()
{
    QFETCH(QString, entete);
    QFETCH(QString, code);
    QCOMPARE(ReleveColissimo::code(entete).value_or(CodeGrille()).texte(), code);
}

void TestReleves::dates_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("date"); // empty: none
    const auto cas = [](const char *texte, const char *date) {
        QTest::addRow("%s", texte) << QString::fromUtf8(texte) << QString::fromLatin1(date);
    };
    cas("à partir du 1er janvier 2026", "2026-01-01");
    cas("À PARTIR DU 15 DÉCEMBRE 2026", "2026-12-15");
    cas("à partir du 1 er août 2026", "2026-08-01");
    cas("à partir du 1erfévrier 2026", "");
    cas("à partir du 31 février 2026", "2026-02-31");
    cas("à partir du 1er juillet 2026, en vigueur à partir du 1er janvier 2026", "2026-01-01");
    cas("en vigueur, à partir du 2 mars 2026 puis à partir du 3 avril 2026", "2026-03-02");
    cas("à partir du 2 mars 2026 puis à partir du 3 avril 2026", "2026-03-02");
    cas("à partir du 1er fevrier 2026", "");
    cas("à partir du 1er marſ 2026", "");
    cas("à partir du ٣ mars 2026", "");
    cas("à partir du 3 mars ٢٠٢٦", "");
    cas("à partir du 123 mars 2026", "");
}

void TestReleves::dates()
{
    QFETCH(QString, texte);
    QFETCH(QString, date);
    QCOMPARE(ReleveColissimo::dateDEffet(texte).value_or(Jour()).texte(), date);
}

void TestReleves::paypal()
{
    FraisPaypal attendus = Ressources::duProgramme().lire<Reglages>(QStringLiteral("reglages")).fraisPaypal;
    attendus.releve = jour;
    attendus.supplements.insert(RegionPaypal::eee, Taux{0});
    QCOMPARE(RelevePaypal::analyser(page(QStringLiteral("paypal.html")), jour), attendus);
}

void TestReleves::paypalChange_data()
{
    QTest::addColumn<QString>("avant");
    QTest::addColumn<QString>("apres");
    QTest::addColumn<QString>("attendu"); // the refusal, or the rates and the fixed part
    ajouter("taux changé", "2,90\u00A0%", "3,49%", "349 35 0 129 199");
    ajouter("s long, capitales", "transactions commerciales", "TRANſACTIONS Commerciales", "290 35 0 129 199");
    ajouter("ß pour ss", "Aucune commission", "Aucune commißion", "290 35 0 129 199");
    ajouter("supplément pour l’EEE", "Aucune commission", "0,5 %", "290 35 50 129 199");
    ajouter("supplément illisible pour l’EEE", "Aucune commission", "٣,٣ %", "290 35 0 129 199");
    ajouter("autre devise", "0,35\u00A0EUR", "0,35 USD", "290 25 0 129 199");
    ajouter("point décimal", "2,90\u00A0%", "2.90 %", "500 35 0 129 199");
    ajouter("taux absent", "Toutes les autres", "Les autres", "taux de base introuvable");
    ajouter("pas d’euros", "EUR", "€", "part fixe en euros introuvable");
    ajouter("pas d’EEE", "EEE", "Europe", "supplément EEE introuvable");
    ajouter("pas de Royaume-Uni", "Royaume-Uni", "Royaume Uni", "supplément Royaume-Uni introuvable");
    ajouter("pas d’autres marchés", "Tous les autres", "Les autres", "supplément des autres pays introuvable");
    ajouter("figures dans un script", "main>", "script>", "taux de base introuvable");
    ajouter("chiffres d’ailleurs", "0,35\u00A0EUR", "٣,٣٥ EUR", "chiffres illisibles");
    ajouter("supplément démesuré pour l’EEE", "Aucune commission", "150,00 %", "chiffres illisibles");
    ajouter("taux démesuré", "2,90\u00A0%", "290,00 %", "chiffres illisibles");
}

void TestReleves::paypalChange()
{
    QFETCH(QString, attendu);
    const QString html = pageChangee(QStringLiteral("paypal.html"));
    QVERIFY(!html.isEmpty());
    QCOMPARE(frais(html), attendu);
}

QTEST_GUILESS_MAIN(TestReleves)
#include "tst_releves.moc"
