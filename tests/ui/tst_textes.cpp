#include "tests/Banc.h"
#include "textes/TextesDocuments.h"
#include "textes/TextesLivres.h"
#include "textes/TextesRecapitulatif.h"
#include "ui/ControlePoste.h"

#include <QTest>

using namespace Quillet;

using namespace TextesRecapitulatif;

class TestTextes : public QObject
{
    Q_OBJECT

private slots:
    void avertissements_data();
    void avertissements();
    void sousTitres();
    void resumes();
    void lignesEtPalier();
    void detailsDesMontants_data();
    void detailsDesMontants();
    void lienDePaiementSelonLaLangue();
    void lienDePaiementAbsent_data();
    void lienDePaiementAbsent();
    void champsVides();
    void manquesDuPoste();
};

namespace {

struct Cas
{
    Banc banc;
    BonDeCommande bon;

    [[nodiscard]] Calcul calcul() const { return Calcul::de(banc.donnees(), bon, jourDuBanc); }
};

} // namespace

void TestTextes::avertissements_data()
{
    QTest::addColumn<QList<int>>("quantites"); // of books 1 and 2; the second was never weighed
    QTest::addColumn<qint64>("pesee");         // 0: not weighed
    QTest::addColumn<QString>("destination");
    QTest::addColumn<QStringList>("attendus");
    const QString france = QStringLiteral("france");
    const QString triangle = QStringLiteral("exclamationmark.triangle|");
    const QString deuxColis =
        triangle + QStringLiteral("Au-delà de 2 kg, le dernier palier de la grille : faire deux colis.");
    const QString aPeser = QStringLiteral("scalemass|Livre 2 n’a pas encore été pesé : pesez le colis.");

    QTest::newRow("rien") << QList{0, 0} << qint64{0} << france << QStringList{};
    QTest::newRow("rien, pesé trop lourd") << QList{0, 0} << qint64{5000} << france << QStringList{};
    QTest::newRow("tout va bien") << QList{2, 0} << qint64{450} << france << QStringList{};
    QTest::newRow("plus léger que les livres")
        << QList{2, 0} << qint64{399} << france
        << QStringList{
               triangle
               + QStringLiteral("Le colis pesé est plus léger que les livres seuls (400 g) : vérifiez la pesée.")};
    QTest::newRow("pesé juste comme les livres") << QList{2, 0} << qint64{400} << france << QStringList{};
    QTest::newRow("jamais pesé") << QList{1, 2} << qint64{0} << france << QStringList{aPeser};
    QTest::newRow("jamais pesé et trop lourd : un seul avertissement")
        << QList{11, 1} << qint64{0} << france << QStringList{aPeser};
    QTest::newRow("calculé trop lourd") << QList{11, 0} << qint64{0} << france << QStringList{deuxColis};
    QTest::newRow("pesé trop lourd") << QList{1, 1} << qint64{2001} << france << QStringList{deuxColis};
    QTest::newRow("sans grille") << QList{11, 0} << qint64{0} << QStringLiteral("lune") << QStringList{};
}

void TestTextes::avertissements()
{
    QFETCH(QList<int>, quantites);
    QFETCH(qint64, pesee);
    QFETCH(QString, destination);
    QFETCH(QStringList, attendus);
    Cas cas;
    cas.bon.ajuster(cas.banc.livres[0], quantites[0]);
    cas.bon.ajuster(cas.banc.livres[1], quantites[1]);
    cas.bon.codeDestination = CodeDestination(destination);
    if (pesee > 0)
        cas.bon.poidsPese = Grammes{pesee};
    QStringList obtenus;
    for (const auto &avertissement : avertissementsDePesee(cas.calcul()))
        obtenus.append(avertissement.symbole + u'|' + lisible(avertissement.texte));
    QCOMPARE(obtenus, attendus);
}

void TestTextes::sousTitres()
{
    Cas cas;
    QCOMPARE(sousTitre(cas.calcul()), QStringLiteral("Aucun livre"));
    cas.bon.ajuster(cas.banc.livres[0], 1);
    QCOMPARE(sousTitre(cas.calcul()), QStringLiteral("1 livre · 240 g"));
    cas.bon.ajuster(cas.banc.livres[0], 5);
    QCOMPARE(lisible(sousTitre(cas.calcul())), QStringLiteral("6 livres · 1 240 g"));
    cas.bon.poidsPese = Grammes{1300};
    QCOMPARE(lisible(sousTitre(cas.calcul())), QStringLiteral("6 livres · 1 300 g"));
}

// What is heard after each change: a missing total is said in words, not as a dash.
void TestTextes::resumes()
{
    Cas cas;
    QCOMPARE(resume(cas.calcul()), QStringLiteral("Aucun livre"));
    cas.bon.ajuster(cas.banc.livres[0], 1);
    QCOMPARE(lisible(resume(cas.calcul())), QStringLiteral("1 livre · 240 g, total à payer : 20,49 €"));
    cas.bon.poidsPese = Grammes{2001}; // beyond the last tier
    QCOMPARE(lisible(resume(cas.calcul())), QStringLiteral("1 livre · 2 001 g, total à payer : aucun montant"));
}

void TestTextes::lignesEtPalier()
{
    Cas cas;
    QVERIFY(!palier(cas.calcul()));
    cas.bon.ajuster(cas.banc.livres[0], 2);
    const auto lignes = livres(cas.calcul());
    QCOMPARE(lignes.size(), 1);
    QCOMPARE(lignes[0].libelle, QStringLiteral("Livre 1"));
    QCOMPARE(lisible(lignes[0].detail), QStringLiteral("2 × 15,00 €"));
    QCOMPARE(lisible(lignes[0].valeur), QStringLiteral("30,00 €"));
    const auto tranche = palier(cas.calcul());
    QVERIFY(tranche);
    QCOMPARE(tranche->detail, QStringLiteral("encore 60 g avant le palier suivant"));
    QCOMPARE(tranche->valeur, QStringLiteral("jusqu’à 500 g"));
    QCOMPARE(emballage(cas.banc.reglages.emballages[1]), QStringLiteral("Carton (180 g)"));
}

void TestTextes::detailsDesMontants_data()
{
    QTest::addColumn<QString>("destination");
    QTest::addColumn<QString>("envoi");
    QTest::addColumn<QString>("frais");
    QTest::addColumn<QString>("declaration");
    QTest::newRow("France") << QStringLiteral("france") << QStringLiteral("France, jusqu’à 250 g")
                            << QStringLiteral("2,90 % + 0,35 € · Europe (EEE)") << QStringLiteral("Non");
    QTest::newRow("Suisse") << QStringLiteral("suisse") << QStringLiteral("UE et Suisse, jusqu’à 250 g")
                            << QStringLiteral("4,89 % + 0,35 € · Autre pays") << QStringLiteral("Oui, CN23");
    QTest::newRow("sans grille") << QStringLiteral("lune") << QString()
                                 << QStringLiteral("4,89 % + 0,35 € · Autre pays") << QStringLiteral("Oui, CN23");
    QTest::newRow("inconnue") << QStringLiteral("mars") << QString() << QString() << QStringLiteral("Non");
}

void TestTextes::detailsDesMontants()
{
    QFETCH(QString, destination);
    QFETCH(QString, envoi);
    QFETCH(QString, frais);
    QFETCH(QString, declaration);
    Cas cas;
    cas.bon.ajuster(cas.banc.livres[0], 1);
    cas.bon.codeDestination = CodeDestination(destination);
    const Calcul calcul = cas.calcul();
    QCOMPARE(detailEnvoi(calcul), envoi);
    QCOMPARE(lisible(detailFrais(calcul, cas.banc.reglages.fraisPaypal)), frais);
    QCOMPARE(TextesRecapitulatif::declaration(calcul), declaration);
}

void TestTextes::lienDePaiementSelonLaLangue()
{
    Cas cas;
    cas.bon.ajuster(cas.banc.livres[0], 1);
    cas.bon.codeDestination = vers("suisse");
    const auto lien = [&] { return lienDePaiement(cas.calcul(), cas.banc.reglages, cas.bon); };
    QVERIFY(lien());
    QCOMPARE(lien()->indicationDuPays, QStringLiteral("en anglais, pour la description"));
    QCOMPARE(lien()->paysPropose, QStringLiteral("Switzerland"));
    QCOMPARE(lien()->prix, QStringLiteral("20,49"));
    QCOMPARE(lisible(lien()->prixAffiche), QStringLiteral("20,49 €"));
    QCOMPARE(lien()->retour, QStringLiteral("https://davrel.example/merci"));
    cas.bon.langue = Langue::francais;
    cas.bon.paysLivraison = QStringLiteral("la Suisse");
    QCOMPARE(lien()->indicationDuPays,
             QStringLiteral("en français, avec l’article : la Belgique, l’Italie, le Canada"));
    QCOMPARE(lien()->paysPropose, QStringLiteral("Suisse"));
    QVERIFY(lien()->description.endsWith(QStringLiteral("vers la Suisse.")));
}

void TestTextes::lienDePaiementAbsent_data()
{
    QTest::addColumn<qint64>("livre"); // 0: none
    QTest::addColumn<Vendeur>("vendeur");
    QTest::newRow("commande vide") << qint64{0} << Vendeur::davrel;
    QTest::newRow("total inconnu") << qint64{2} << Vendeur::davrel;
    QTest::newRow("vendeur sans identité") << qint64{3} << Vendeur::mireva;
}

void TestTextes::lienDePaiementAbsent()
{
    QFETCH(qint64, livre);
    QFETCH(Vendeur, vendeur);
    Cas cas;
    cas.bon.vendeur = vendeur;
    if (livre > 0)
        cas.bon.ajuster(cas.banc.livres[livre - 1], 1);
    QVERIFY(!lienDePaiement(cas.calcul(), cas.banc.reglages, cas.bon));
}

void TestTextes::champsVides()
{
    Livre livre = unLivre(1, Vendeur::davrel, Centimes{1500}, Grammes{200});
    livre.isbn.clear();
    QCOMPARE(TextesLivres::edition(livre), QStringLiteral("14 × 21 cm · 200 pages"));
    QCOMPARE(TextesDocuments::vendeur({.nom = QStringLiteral("Davrel"), .adresse = {QStringLiteral("1 rue Exemple")}}),
             QStringLiteral("Davrel\n1 rue Exemple"));
}

void TestTextes::manquesDuPoste()
{
    using ControlePoste::manques;
    const QStringList couvertures{QStringLiteral("a.svg"), QStringLiteral("b.SVG"), QStringLiteral("c.jpg"),
                                  QStringLiteral("notes.txt")};
    const ControlePoste::Moyens complet{.images = {"jpg", "svg"},
                                        .polices = {QStringLiteral("Inter"), QStringLiteral("Linux Libertine O")},
                                        .francais = true,
                                        .tls = true};
    QCOMPARE(manques(complet, couvertures), QStringList());

    const QStringList tous = manques({.images = {"jpg"}, .polices = {QStringLiteral("DejaVu Sans")}}, couvertures);
    QCOMPARE(tous.size(), 5);
    QVERIFY(tous[0].startsWith(QStringLiteral("ce système ne lit pas les images SVG : 2 couvertures")));
    QVERIFY(tous[1].contains(QStringLiteral("la police Inter (paquet fonts-inter)")));
    QVERIFY(tous[2].contains(QStringLiteral("Libertinus Serif ou Linux Libertine O")));
    QVERIFY(tous[3].contains(QStringLiteral("textes français de Qt")));
    QVERIFY(tous[4].contains(QStringLiteral("TLS")));
}

QTEST_GUILESS_MAIN(TestTextes)
#include "tst_textes.moc"
