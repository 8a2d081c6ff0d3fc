#include "tests/Rangees.h"
#include "tests/textes/Cas.h"
#include "textes/FiltreLivres.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesDocuments.h"
#include "textes/TextesLivres.h"
#include "textes/TextesReponse.h"
#include "textes/TextesReprise.h"
#include "textes/TextesRetour.h"
#include "textes/TextesTarifs.h"
#include "textes/TextesVerifications.h"
#include "visite/HorsReseau.h"

using namespace Quillet;

namespace {

QString autreSite(const char *hote)
{
    return QStringLiteral("Ce lien mène à %1, pas à PayPal : vérifiez-le avant d’envoyer le message.")
        .arg(QString::fromUtf8(hote));
}

} // namespace

class TestTextes : public QObject
{
    Q_OBJECT

private slots:
    void liensDouteux()
    {
        const char *retourne = "Un signe invisible retourne une partie de ce lien : copiez-le de nouveau dans PayPal.";
        const char *pasHttps = "Ce lien n’est pas une adresse https:// : copiez-le de nouveau dans PayPal.";
        for (const auto &[lien, remarque] : Rangees<QString>{
                 {"", ""},
                 {" \n", ""},
                 {" https://www.paypal.com/ncp/payment/ABC\n", ""},
                 {"HTTPS://PayPal.com/x", ""},
                 {"https://paypal.me/davrel/37,59", ""},
                 {"https://py.pl/Ab12Cd", ""},
                 {"https://davrel.example/merci", ""},
                 {"https://boutique.davrel.example", ""},
                 {"http://www.paypal.com/ncp/payment/ABC", pasHttps},
                 {"www.paypal.com/ncp/payment/ABC", pasHttps},
                 {"javascript:alert(1)", pasHttps},
                 {"https:// www.paypal.com", pasHttps},
                 {"https://www.paypal.com@exemple.fr/x", autreSite("exemple.fr")},
                 {"https://faux-paypal.com", autreSite("faux-paypal.com")},
                 {"https://paypal.com.exemple.fr", autreSite("paypal.com.exemple.fr")},
                 {"https://happy.pl/Ab12Cd", autreSite("happy.pl")},
                 {"https://www.p\u0430ypal.com", autreSite("www.p\u0430ypal.com")},
                 {"https://www.paypal.com/\u202Ecba", retourne},
                 {"https://www.paypal.com/%E2%81%A7cba", retourne},
                 {"\u200Fhttps://www.paypal.com", retourne},
                 {"\u061Chttps://www.paypal.com", retourne},
                 {"https://paypal.com/\u2010", ""},
             }) {
            const Rangee rangee(lien);
            Cas cas;
            cas.bon.ajuster(cas.banc.livres[0], 1);
            const auto reponse = ReponseType::de(cas.calcul(), cas.banc.reglages, cas.bon, lien);
            QVERIFY(reponse);
            QCOMPARE(TextesReponse::lienDouteux(*reponse), remarque);
        }
    }

    // Own data never call anybody by the example's names, nor speak of a seller who is not there.
    void nomsDesVendeurs()
    {
        struct Attendu
        {
            const char *court;
            const char *site;
            const char *vendu;
            const char *obstacle;
        };
        const char *separez = "Une réponse par vendeur : séparez les livres de Davrel et ceux de Mireva.";
        for (const auto &[nom, personnelles, nomCourt, deux, attendu] : Rangees<bool, const char *, bool, Attendu>{
                 {"exemple", false, nullptr, true, {"Davrel", "davrel.example", "vendu par Davrel", separez}},
                 {"les siennes",
                  true,
                  nullptr,
                  true,
                  {"Éditions Davrel", "davrel.example", "vendu par Éditions Davrel",
                   "Une réponse par vendeur : séparez les livres de Éditions Davrel et ceux de Vendeur 2."}},
                 {"nom court",
                  true,
                  "Anne",
                  true,
                  {"Anne", "davrel.example", "vendu par Anne",
                   "Une réponse par vendeur : séparez les livres de Anne et ceux de Vendeur 2."}},
                 {"un seul",
                  true,
                  "Anne",
                  false,
                  {"Anne", "davrel.example", "", "La commande n’a pas encore de livre."}},
             }) {
            const Rangee rangee(nom);
            Donnees donnees = Banc().donnees();
            donnees.personnelles = personnelles;
            if (nomCourt)
                donnees.reglages.vendeurs[Vendeur::davrel].nomCourt = QString::fromUtf8(nomCourt);
            if (!deux)
                donnees.livres.removeIf([](const Livre &livre) { return livre.vendeur == Vendeur::mireva; });
            QCOMPARE(NomsVendeurs::court(Vendeur::davrel, donnees), attendu.court);
            QCOMPARE(NomsVendeurs::site(Vendeur::davrel, donnees), attendu.site);
            const QString vendu = TextesLivres::vendu(Vendeur::davrel, donnees);
            QCOMPARE(vendu, attendu.vendu);
            const QString suite = vendu.isEmpty() ? QString() : ", " + vendu;
            const Livre &livre = donnees.livres[0];
            QVERIFY(TextesLivres::enMots(livre, vendu).contains("200 pages" + suite + ", 200"));
            QCOMPARE(TextesLivres::origine(livre, donnees), vendu.isEmpty() ? "Une autrice" : "Une autrice · " + vendu);
            QCOMPARE(lisible(TextesReponse::impossible(Calcul(), donnees)), attendu.obstacle);
            for (const bool efface : {true, false}) {
                donnees.reglages.vendeurs[Vendeur::davrel] = {};
                if (!efface)
                    donnees.reglages.vendeurs.remove(Vendeur::davrel);
                const char *place = efface ? "" : "Davrel";
                QCOMPARE(TextesReprise::serie({.vendeur = Vendeur::davrel}, donnees),
                         personnelles ? "Vendeur 1" : place);
            }
            if (!deux) {
                BonDeCommande bon;
                bon.ajuster(livre, 1);
                QCOMPARE(TextesReponse::impossible(Calcul::de(donnees, bon, jourDuBanc), donnees),
                         "Le nom et l’adresse de Vendeur 1 manquent dans les réglages.");
            }
        }
    }

    void champsVides()
    {
        Livre livre = unLivre(1, Vendeur::davrel, Centimes{1500}, Grammes{200});
        livre.isbn.clear();
        QCOMPARE(TextesLivres::edition(livre), "14 × 21 cm · 200 pages");
        QCOMPARE(TextesDocuments::vendeur({.nom = "Davrel", .adresse = {"1 rue Exemple"}}), "Davrel\n1 rue Exemple");
    }

    void recherche()
    {
        Livre livre = unLivre(1, Vendeur::davrel, Centimes{100}, Grammes{10});
        livre.titre = "Au cœur de l’été";
        for (const auto &[recherche, retenu] : Rangees<bool>{
                 {" ", true},
                 {"coeur l'ete", true},
                 {"ÉTÉ cœur", true},
                 {"autr", true},
                 {"9780000000", true},
                 {"978-0-00", true},
                 {"coeur hiver", false},
             }) {
            const FiltreLivres filtre{.recherche = FiltreLivres::mots(recherche), .vendeur = {}, .etat = {}};
            QVERIFY2(filtre.retient({livre, FiltreLivres::texteCherche(livre), 0}) == retenu, recherche);
        }
    }

    void pertes()
    {
        QList<Livre> livres;
        for (int id = 1; id <= 11; ++id)
            livres.append(unLivre(id, Vendeur::davrel, Centimes{1000}, Grammes{100}));
        QList<Livre> actuels = livres;
        QVERIFY(TextesRetour::pertes(actuels, livres).isEmpty());
        actuels[0].poids.reset();
        actuels[0].disponible = false;
        actuels[0].prixPaypal = {{vers("france"), Centimes{1}}, {vers("ue"), Centimes{2}}};
        actuels[0].prixEcartes = {{vers("ue"), Centimes{2}}};
        for (Livre &livre : actuels)
            livre.prix = Centimes{1250};
        const QStringList pertes = TextesRetour::pertes(actuels, livres);
        QCOMPARE(lisible(pertes.first()), "Livre 1 : 12,50 €, Poids à peser, Épuisé, 2 prix reportés, 1 prix gardé");
        QCOMPARE(pertes.size(), 9);
        QCOMPARE(pertes.last(), "et 3 autres livres");
    }

    void tarifs()
    {
        Cas cas;
        TarifsColissimo &tarifs = cas.banc.tarifs.last();
        GrilleColissimo lointaine = tarifs.grilles[1];
        lointaine.code = ZoneColissimo::royaumeUni;
        lointaine.nomCourt = lointaine.nom = "Royaume-Uni";
        lointaine.paliers.removeAt(1);
        GrilleColissimo ailleurs = tarifs.grilles[0];
        ailleurs.famille = Cle<FamilleTarifs>("lune");
        tarifs.grilles += {lointaine, ailleurs};
        cas.bon.ajuster(cas.banc.livres[0], 2);
        cas.bon.codeDestination = vers("ue");

        const auto familles = TextesTarifs::familles(tarifs, cas.calcul());
        QCOMPARE(familles.size(), 2);
        QCOMPARE(familles[0].titre, "France métropolitaine, Monaco, Andorre");
        const auto &europe = familles[1];
        QCOMPARE(europe.titre, "Europe");
        QCOMPARE(europe.zones, (QStringList{"UE et Suisse", "Royaume-Uni"}));
        QCOMPARE(europe.pays, QStringList{"UE et Suisse : ici et là"});
        QCOMPARE(europe.paliers.size(), 3);
        QCOMPARE(europe.paliers[2].poids, "jusqu’à 2 kg");
        const auto &moyen = europe.paliers[1].prix;
        QCOMPARE(lisible(moyen[0].texte), "7,59 €");
        QVERIFY(moyen[0].enCours); // 440 g for the Union
        QCOMPARE(moyen[1], (TextesTarifs::Prix{"—", false}));
        QVERIFY(!familles[0].paliers[1].prix[0].enCours && !europe.paliers[0].prix[0].enCours);
    }

    void verifications()
    {
        Banc banc;
        banc.tarifs.append(desTarifs("2026-04-01", Centimes{600}));
        banc.reglages.fraisPaypal.supplements = {
            {RegionPaypal::eee, Taux{0}}, {RegionPaypal::royaumeUni, Taux{129}}, {RegionPaypal::autres, Taux{199}}};
        const auto catalogue = banc.charger();
        for (const auto &[verifie, symbole, etat, rappele] : Rangees<const char *, const char *, bool>{
                 // as kept; whether a failure does not hide it
                 {"", "", "Pas encore vérifiés depuis l’app", true},
                 {"2026-03-01T12:00:00Z", "checkmark.circle", "Vérifiés le 1er mars 2026", false},
                 {"2025-11-03T12:00:00Z", "clock.badge.exclamationmark", "Vérifiés le 3 novembre 2025 : à revérifier",
                  true},
                 {"2026-03-02T20:00:00Z", "checkmark.circle", "Vérifiés le 2 mars 2026", false},
                 {"2026-03-04T12:00:00Z", "checkmark.circle",
                  "Vérifiés le 4 mars 2026, une date à venir : l’horloge a changé", false},
             }) {
            const Rangee rangee(verifie);
            Preferences preferences = banc.preferences();
            preferences.ecrire("verification.laPoste", verifie);
            const auto maintenant = [] { return QDateTime(jourDuBanc, QTime(10, 0)); };
            Verifications verifications(*catalogue, preferences, maintenant, horsReseau());
            const auto dite = [&] {
                return TextesVerifications::laPoste(verifications, catalogue->donnees(), jourDuBanc);
            };
            const auto ligne = dite();
            QCOMPARE(ligne.detail, "en vigueur au 1er janvier 2026, nouvelle grille au 1er avril 2026");
            QCOMPARE(ligne.etat.symbole, symbole);
            QCOMPARE(ligne.etat.texte, etat);
            QCOMPARE(lisible(TextesVerifications::paypal(verifications, catalogue->donnees()).detail),
                     "2,90 % + 0,35 € ; Royaume-Uni + 1,29 %, autres pays + 1,99 %");

            verifications.verifierLaPoste();
            QTRY_COMPARE(verifications.etatLaPoste().cas, Verifications::Etat::Cas::erreur);
            QCOMPARE(dite().etat.symbole, "exclamationmark.triangle");
            QCOMPARE(dite().etat.texte, verifications.etatLaPoste().message);
            QCOMPARE(dite().rappel.symbole, rappele ? symbole : "");
            QCOMPARE(dite().rappel.texte, rappele ? etat : "");
        }
    }

    // What a seller adds comes after the values that are always there.
    void valeursDeDouane()
    {
        const char *toujours = "Nature de l’envoi|Frais de port|Poids brut du colis (kg)|Valeur totale|Description|"
                               "Poids net unitaire (kg)|Valeur unitaire|Pays d’origine|N° tarifaire (SH)";
        for (const auto &[nom, eori, codes, adresse, titres] :
             Rangees<bool, QMap<CodeDestination, QString>, bool, QString>{
                 {"rien de plus", false, {}, true, "%1|Adresse|"},
                 {"tout",
                  true,
                  {{vers("suisse"), "4901990000"}},
                  true,
                  "%1|N° tarifaire à l’arrivée=4901990000|Adresse||N° EORI=FR1"},
                 {"sans adresse", true, {{vers("lune"), "4901990000"}}, false, "%1|N° EORI=FR1"},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            cas.bon.codeDestination = vers("suisse");
            cas.bon.ajuster(cas.banc.livres[0], 1);
            cas.banc.reglages.douane.codesParDestination = codes;
            IdentiteVendeur &vendeur = cas.banc.reglages.vendeurs[Vendeur::davrel];
            if (eori)
                vendeur.eori = "FR1";
            if (!adresse)
                vendeur.adresse.clear();
            QStringList lus;
            for (const auto &rubrique : TextesDocuments::declaration(cas.calcul(), cas.banc.reglages))
                for (const auto &champ : rubrique.champs) {
                    const bool ajoute = champ.titre == "N° EORI" || champ.titre.endsWith("l’arrivée");
                    lus.append(ajoute ? champ.titre + u'=' + champ.valeur : champ.titre);
                }
            QCOMPARE(lus.join(u'|'), titres.arg(QString::fromUtf8(toujours)));
        }
    }

    // No weight of zero, nor one that a book is missing from, goes without a word.
    void poidsDeclares()
    {
        for (const auto &[nom, pese, livre, averti] : Rangees<int, int, const char *>{
                 // weighed parcel, in grams; the book's number; titles of what is warned of
                 {"livre pesé", 0, 1, ""},
                 {"livre à peser", 0, 2, "Poids brut du colis (kg) Poids net unitaire (kg) "},
                 {"livre à peser, colis pesé", 500, 2, "Poids net unitaire (kg) "},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            cas.bon.codeDestination = vers("suisse");
            cas.bon.ajuster(cas.banc.livres[livre - 1], 1);
            if (pese)
                cas.bon.poidsPese = Grammes{pese};
            QString titres;
            for (const auto &rubrique : TextesDocuments::declaration(cas.calcul(), cas.banc.reglages))
                for (const auto &champ : rubrique.champs)
                    if (!champ.alerte.isEmpty())
                        titres += champ.titre + u' ';
            QCOMPARE(titres, averti);
        }
    }

    void remarquesSurLeNumero()
    {
        const QString trou = "Ce numéro n’est pas le suivant : la suite attend 2026-005, et les numéros sautés "
                             "resteraient sans facture.";
        const QString arret =
            "La suite de 2026 n’avance plus : le dernier numéro retenu, 2027-002, est d’une année à venir.";
        const QString autre = "Une facture %1 est déjà partie depuis l’ouverture de Quillet.";
        const PlaceDuNumero suivie{.dernier = "2026-004", .suivant = "2026-005"};
        const PlaceDuNumero arretee{.dernier = "2027-002", .suivant = "2026-001"};
        for (const auto &[numero, place, remarque] : Rangees<PlaceDuNumero, QString>{
                 {"2026-005", suivie, ""},
                 {"2026-006", suivie, trou},
                 {"2026-006", {}, ""}, // nothing could be read
                 {"2026-004", {.dernier = "2026-004", .suivant = "2026-005", .reparti = true}, ""},
                 {"2026-004", {.dernier = "2026-004", .suivant = "2026-005", .dejaParti = true}, autre.arg("2026-004")},
                 {"2026-001", arretee, arret},
                 {"2026-001", {.dernier = "2027-002", .suivant = "2026-001", .reparti = true}, arret},
                 {"2026-001",
                  {.dernier = "2027-002", .suivant = "2026-001", .dejaParti = true},
                  autre.arg("2026-001") + u'\n' + arret},
             }) {
            const Rangee rangee(numero);
            QCOMPARE(TextesDocuments::remarqueSurLeNumero(numero, place, jourDuBanc), remarque);
        }
    }

    void ecarts()
    {
        const TarifsColissimo tarifs = desTarifs("2026-04-01", Centimes{600});
        using Prix = std::optional<Centimes>;
        for (const auto &[ecart, avant, apres] : Rangees<Prix, Prix>{
                 {"+0,50 € +5,32 %", Centimes{940}, Centimes{990}},
                 {"-0,50 € -5,05 %", Centimes{990}, Centimes{940}},
                 {"+9,40 €", Centimes{0}, Centimes{940}},
                 {"nouveau palier", {}, Centimes{940}},
                 {"palier supprimé", Centimes{940}, {}},
             }) {
            const Rangee rangee(ecart);
            const auto texte = TextesVerifications::ecarts({{tarifs.grilles[1], Grammes{2000}, avant, apres}});
            QCOMPARE(texte[0].zone, "UE et Suisse");
            QCOMPARE(texte[0].jusqua, "2 kg");
            QCOMPARE(texte[0].avant == QStringLiteral("—"), !avant);
            QCOMPARE(lisible(texte[0].ecart + u' ' + texte[0].variation).trimmed(), ecart);
        }
        const QList<EcartTarif> un(1);
        QCOMPARE(TextesVerifications::compte(un, tarifs), "1 palier sur 6 changent.");
        QCOMPARE(TextesVerifications::compte(un + un, tarifs), "2 paliers sur 6 changent.");
    }
};

QTEST_GUILESS_MAIN(TestTextes)
#include "tst_textes.moc"
