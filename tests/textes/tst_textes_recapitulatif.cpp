#include "tests/Rangees.h"
#include "tests/textes/Cas.h"
#include "textes/TextesRecapitulatif.h"

using namespace Quillet;

using namespace TextesRecapitulatif;

// What the order screen and its summary say of one order.
class TestTextesRecapitulatif : public QObject
{
    Q_OBJECT

private slots:
    void avertissements()
    {
        const char *deuxColis =
            "exclamationmark.triangle|Au-delà de 2 kg, le dernier palier de la grille : faire deux colis.";
        const char *aPeser = "scalemass|Livre 2 n’a pas encore été pesé : pesez le colis.";
        // Copies of books 1 and 2, the second of which was never weighed, and what the parcel weighs; 0: not weighed.
        for (const auto &[nom, premiers, seconds, pesee, destination, attendu] :
             Rangees<int, int, int, const char *, const char *>{
                 {"rien, pesé trop lourd", 0, 0, 5000, "france", ""},
                 {"plus léger que les livres", 2, 0, 399, "france",
                  "exclamationmark.triangle|Le colis pesé est plus léger que les livres seuls (400 g) : vérifiez la "
                  "pesée."},
                 {"pesé juste comme les livres", 2, 0, 400, "france", ""},
                 {"jamais pesé", 1, 2, 0, "france", aPeser},
                 {"jamais pesé et trop lourd : un seul avertissement", 11, 1, 0, "france", aPeser},
                 {"calculé trop lourd", 11, 0, 0, "france", deuxColis},
                 {"pesé trop lourd", 1, 1, 2001, "france", deuxColis},
                 {"sans grille", 11, 0, 0, "lune", ""},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            cas.bon.ajuster(cas.banc.livres[0], premiers);
            cas.bon.ajuster(cas.banc.livres[1], seconds);
            cas.bon.codeDestination = vers(destination);
            if (pesee > 0)
                cas.bon.poidsPese = Grammes{pesee};
            QStringList obtenus;
            for (const auto &avertissement : avertissementsDePesee(cas.calcul()))
                obtenus.append(avertissement.symbole + u'|' + lisible(avertissement.texte));
            QCOMPARE(obtenus.join(u' '), attendu);
        }
    }

    // What is heard after each change: a missing total is said in words, not as a dash.
    void resumes()
    {
        Cas cas;
        QCOMPARE(sousTitre(cas.calcul()), "Aucun livre");
        QCOMPARE(resume(cas.calcul()), "Aucun livre");
        QCOMPARE(resume(cas.calcul(), true), "Aucun livre. Ctrl+Z rétablit la commande.");
        cas.bon.ajuster(cas.banc.livres[0], 1);
        QCOMPARE(sousTitre(cas.calcul()), "1 livre · 240 g");
        QCOMPARE(lisible(resume(cas.calcul())), "1 livre · 240 g, total à payer : 20,49 €");
        cas.bon.ajuster(cas.banc.livres[0], 5);
        cas.bon.poidsPese = Grammes{2001}; // beyond the last tier
        QCOMPARE(lisible(resume(cas.calcul())), "6 livres · 2 001 g, total à payer : aucun montant");
    }

    void lignesEtPalier()
    {
        Cas cas;
        QVERIFY(!palier(cas.calcul()));
        cas.bon.ajuster(cas.banc.livres[0], 2);
        const auto lignes = livres(cas.calcul());
        QCOMPARE(lignes.size(), 1);
        QCOMPARE(lignes[0].libelle, "Livre 1");
        QCOMPARE(lisible(lignes[0].detail), "2 × 15,00 €");
        QCOMPARE(lisible(lignes[0].valeur), "30,00 €");
        const auto tranche = palier(cas.calcul());
        QVERIFY(tranche);
        QCOMPARE(tranche->detail, "encore 60 g avant le palier suivant");
        QCOMPARE(tranche->valeur, "jusqu’à 500 g");
        QCOMPARE(emballage(cas.banc.reglages.emballages[1]), "Carton (180 g)");
        QCOMPARE(dernierPalier(cas.calcul()), "");
        cas.bon.poidsPese = Grammes{501};
        QCOMPARE(dernierPalier(cas.calcul()),
                 "C’est le dernier palier de la grille : au-delà, il faut faire deux colis.");
    }

    void livresDeLAutre()
    {
        for (const auto &[nom, miens, siens, phrase] : Rangees<int, int, const char *>{
                 {"aucun", 2, 0, ""},
                 {"un", 2, 1, "1 livre de Mireva reste aussi dans la commande ; il ne compte pas ici."},
                 {"trois", 0, 3, "3 livres de Mireva restent aussi dans la commande ; ils ne comptent pas ici."},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            cas.bon.ajuster(cas.banc.livres[0], miens);
            cas.bon.ajuster(cas.banc.livres[2], siens);
            QCOMPARE(autresLivres(cas.banc.donnees(), cas.bon), phrase);
        }
    }

    void etapes()
    {
        for (const auto &[nom, livre, etape, texte, possible, attendue] : Rangees<int, Etape, const char *, bool, bool>{
                 // 0: none; 2: never weighed
                 {"commande vide", 0, Etape::lien, "Créer le lien dans PayPal", true, false},
                 {"total inconnu", 2, Etape::lien, "Créer le lien dans PayPal", true, false},
                 {"à payer", 1, Etape::lien, "Créer le lien dans PayPal", true, true},
                 {"à répondre", 1, Etape::reponse, "E-mail en anglais", true, true},
                 {"à facturer", 1, Etape::facture, "Facture", true, true},
                 {"plus de total", 2, Etape::facture, "Facture", false, false},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            if (livre > 0)
                cas.bon.ajuster(cas.banc.livres[livre - 1], 1);
            const auto suivante = etapeSuivante(etape, cas.calcul(), Langue::anglais);
            QCOMPARE(suivante.texte, texte);
            QCOMPARE(suivante.possible, possible);
            QCOMPARE(suivante.attendue, attendue);
        }
    }

    void piedEtTourDeCopie()
    {
        Cas cas;
        cas.bon.codeDestination = vers("mars"); // unknown
        QCOMPARE(colis(cas.calcul()), "Envoi : —");
        cas.bon.codeDestination = vers("suisse");
        QCOMPARE(colis(cas.calcul()), "Envoi : Suisse");
        cas.bon.ajuster(cas.banc.livres[0], 1);
        QCOMPARE(lisible(colis(cas.calcul())), "Envoi : Suisse · 240 g");

        QList<TexteACopier> textes{{"Description", "un livre"}, {"Prix", "20,49"}};
        Suivi suivi;
        QCOMPARE(tourDeCopie(suivi, textes), "À copier : Description");
        suivi.copier(textes[0]);
        QCOMPARE(tourDeCopie(suivi, textes), "Copié : Description. Ensuite : Prix");
        suivi.copier(textes[1]);
        QCOMPARE(tourDeCopie(suivi, textes), "Copié : Prix. Tout est copié.");
        textes[1].valeur = "21,00";
        QCOMPARE(tourDeCopie(suivi, textes), "À copier : Prix");
    }

    void detailsDesMontants()
    {
        for (const auto &[destination, envoi, frais, declaration] : Rangees<const char *, const char *, const char *>{
                 {"france", "France, jusqu’à 250 g", "2,90 % + 0,35 € · Europe (EEE)", "Non"},
                 {"suisse", "UE et Suisse, jusqu’à 250 g", "4,89 % + 0,35 € · Autre pays", "Oui, CN23"},
                 {"lune", "", "4,89 % + 0,35 € · Autre pays", "Oui, CN23"}, // no grid
                 {"mars", "", "", "Non"},                                   // unknown
             }) {
            const Rangee rangee(destination);
            Cas cas;
            cas.bon.ajuster(cas.banc.livres[0], 1);
            cas.bon.codeDestination = vers(destination);
            const Calcul calcul = cas.calcul();
            QCOMPARE(detailEnvoi(calcul), envoi);
            QCOMPARE(lisible(detailFrais(calcul, cas.banc.reglages.fraisPaypal)), frais);
            QCOMPARE(TextesRecapitulatif::declaration(calcul), declaration);
        }
    }

    void commandeAPerte()
    {
        for (const auto &[nom, prix, fixe, aPerte] : Rangees<qint64, qint64, bool>{
                 {"un reste", 1500, 35, false},
                 {"rien ne reste", 100, 81, false}, // 6,49 € at 2,90 %: 19 cents
                 {"un centime de trop", 100, 82, true},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            cas.banc.livres[0].prix = Centimes{prix};
            cas.banc.reglages.fraisPaypal.fixe = Centimes{fixe};
            QCOMPARE(perte(cas.calcul()), ""); // nothing ordered
            cas.bon.ajuster(cas.banc.livres[0], 1);
            QCOMPARE(perte(cas.calcul()),
                     aPerte ? "Commande à perte : les frais PayPal dépassent le prix des livres." : "");
        }
    }

    void lienDePaiementSelonLaLangue()
    {
        Cas cas;
        cas.bon.ajuster(cas.banc.livres[0], 1);
        cas.bon.codeDestination = vers("suisse");
        const auto lien = [&] { return lienDePaiement(cas.calcul(), cas.banc.donnees(), cas.bon); };
        QVERIFY(lien());
        QCOMPARE(lien()->indicationDuPays, "en anglais, pour la description");
        QCOMPARE(lien()->paysPropose, "Switzerland");
        QCOMPARE(lien()->prix, "20,49");
        QCOMPARE(lisible(lien()->prixAffiche), "20,49 €");
        QCOMPARE(lien()->retour, "https://davrel.example/merci");
        cas.bon.langue = Langue::francais;
        cas.bon.paysLivraison = "la Suisse";
        QCOMPARE(lien()->indicationDuPays, "en français, avec l’article : la Belgique, l’Italie, le Canada");
        QCOMPARE(lien()->paysPropose, "Suisse");
        QVERIFY(lien()->description.endsWith("vers la Suisse."));
    }

    void lienDePaiementAbsent()
    {
        for (const auto &[nom, livre, vendeur] : Rangees<int, Vendeur>{
                 // 0: none
                 {"commande vide", 0, Vendeur::davrel},
                 {"total inconnu", 2, Vendeur::davrel},
                 {"vendeur sans identité", 3, Vendeur::mireva},
             }) {
            const Rangee rangee(nom);
            Cas cas;
            cas.bon.vendeur = vendeur;
            if (livre > 0)
                cas.bon.ajuster(cas.banc.livres[livre - 1], 1);
            QVERIFY(!lienDePaiement(cas.calcul(), cas.banc.donnees(), cas.bon));
        }
    }
};

QTEST_GUILESS_MAIN(TestTextesRecapitulatif)
#include "tst_textes_recapitulatif.moc"
