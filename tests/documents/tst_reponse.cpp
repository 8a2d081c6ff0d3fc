#include "documents/AdresseMail.h"
#include "documents/ReponseType.h"
#include "model/Format.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

#include <QTest>

using namespace Quillet;

namespace {

struct Cas
{
    Banc banc;
    BonDeCommande bon;

    [[nodiscard]] ReponseType reponse(Langue langue, const QString &lien = {}) const
    {
        return {Calcul::de(banc.donnees(), bon, jourDuBanc), langue, *banc.donnees().reglages.identite(Vendeur::davrel),
                lien, bon.paysLivraison};
    }
};

} // namespace

class TestReponse : public QObject
{
    Q_OBJECT

private slots:
    void corpsEnFrancais()
    {
        Cas cas;
        cas.bon.ajuster(cas.banc.livres[0], 2);
        const auto reponse = cas.reponse(Langue::francais, " \n https://lien.example/1 ");
        QCOMPARE(lisible(reponse.corps()),
                 "Bonjour,\n\nMerci pour votre commande :\n\n"
                 "   • Livre 1 × 2 : 30,00 €\n"
                 "   • Envoi via Colissimo (France) : 7,59 €\n\n"
                 "Total à payer (livres + envoi) : 37,59 €\n\n"
                 "Pour régler, ouvrez ce lien : https://lien.example/1\n\n"
                 "Vous pouvez payer avec un compte PayPal, par Apple Pay ou par carte bancaire.\n"
                 "Indiquez sur la page PayPal l’adresse où envoyer le colis.\n\n"
                 "Le paquet part dès réception du paiement sous 2 jours ouvrés avec un numéro de suivi.\n"
                 "\nBien cordialement,\n\nÉditions Davrel");
        QVERIFY(reponse.corps().contains(reponse.ligneTotal()));
    }

    void corpsEnAnglaisEtDouane()
    {
        Cas cas;
        cas.bon.ajuster(cas.banc.livres[0], 1);
        cas.bon.ajuster(cas.banc.livres[1], 1); // not weighed: no price
        cas.bon.codeDestination = vers("suisse");
        QCOMPARE(cas.reponse(Langue::anglais, "  ").corps(),
                 "Hello,\n\nThank you for your order:\n\n"
                 "   • Livre 1 × 1: €15.00\n"
                 "   • Livre 2 × 1: €22.00\n"
                 "   • Shipping via Colissimo (Switzerland): —\n\n"
                 "Total to pay (books + shipping): —\n\n"
                 "To pay, please open this link: [link]\n\n"
                 "You can pay with a PayPal account, Apple Pay or a card.\n"
                 "Please give the address the parcel should be sent to on the PayPal page.\n\n"
                 "The parcel is sent within 2 working days of payment, with a tracking number.\n"
                 "\nThe parcel goes through customs: import duties or taxes may be charged on delivery.\n"
                 "\nBest regards,\n\nÉditions Davrel");
        QVERIFY(cas.reponse(Langue::francais)
                    .corps()
                    .contains("suivi.\n\nLe colis passe en douane : des taxes d’importation peuvent vous "
                              "être demandées à la livraison.\n\nBien cordialement"));
        QVERIFY(cas.reponse(Langue::francais).corps().contains("[lien]"));
        cas.bon.codeDestination = vers("mars");
        QVERIFY(cas.reponse(Langue::francais).corps().contains("Envoi via Colissimo () : —"));
    }

    void sujet()
    {
        Cas cas;
        QCOMPARE(cas.reponse(Langue::anglais).sujet(), "Your book order – Éditions Davrel");
        cas.bon.ajuster(cas.banc.livres[0], 1);
        QCOMPARE(cas.reponse(Langue::francais).sujet(), "Votre commande de livres – davrel.example");
        auto sansSite = cas.reponse(Langue::francais);
        sansSite.vendeur.site.reset();
        QCOMPARE(sansSite.sujet(), "Votre commande de livres – Éditions Davrel");
    }

    void objetEtDescription()
    {
        Cas cas;
        QCOMPARE(cas.reponse(Langue::francais).nomDeLObjet(), "Éditions Davrel – 0 book");
        cas.bon.ajuster(cas.banc.livres[0], 1);
        QCOMPARE(cas.reponse(Langue::francais).nomDeLObjet(), "Éditions Davrel – 1 book");
        cas.bon.ajuster(cas.banc.livres[1], 2);
        cas.bon.codeDestination = vers("ue");
        QCOMPARE(cas.reponse(Langue::francais).nomDeLObjet(), "Éditions Davrel – 3 books");
        QCOMPARE(cas.reponse(Langue::francais).descriptionDuLien(),
                 "Livre 1\nLivre 2 × 2\n\nLe prix comprend les livres et l’envoi vers Union européenne.");
        cas.bon.paysLivraison = " \n";
        QCOMPARE(cas.reponse(Langue::anglais).descriptionDuLien(),
                 "Livre 1\nLivre 2 × 2\n\nPrice includes books and shipping to European Union.");
        cas.bon.paysLivraison = "la Belgique ";
        QVERIFY(cas.reponse(Langue::francais).descriptionDuLien().endsWith("vers la Belgique ."));
    }

    void langueDeLAcheteur()
    {
        Cas cas;
        for (const char *code : {"om1", "om2"}) {
            cas.banc.destinations.append(cas.banc.destinations[0]);
            cas.banc.destinations.last().code = vers(code);
        }
        const auto langue = [&](const char *code) {
            cas.bon.codeDestination = vers(code);
            return langueAcheteur(cas.bon, Calcul::de(cas.banc.donnees(), cas.bon, jourDuBanc).destination);
        };
        for (const char *francophone : {"france", "om1", "om2", "mars"})
            QVERIFY2(langue(francophone) == Langue::francais, francophone);
        QCOMPARE(langue("ue"), Langue::anglais);
        cas.bon.langue = Langue::francais;
        QCOMPARE(langueAcheteur(cas.bon, Calcul::de(cas.banc.donnees(), cas.bon, jourDuBanc).destination),
                 Langue::francais);
    }

    void adresses()
    {
        for (const auto &[texte, adresse] : Rangees<const char *>{
                 {"  ada@exemple.fr\n", "ada@exemple.fr"},
                 {"d'ada+livres&co%1=#/?@exemple.fr", "d'ada+livres&co%1=#/?@exemple.fr"},
                 {"été@exemple.fr", "été@exemple.fr"},
                 {"Ada Exemple <ada@exemple.fr>", "ada@exemple.fr"},
                 {"\"Exemple, Ada\" <ada@exemple.fr> ", "ada@exemple.fr"},
                 {"<ada@exemple.fr>", "ada@exemple.fr"},
                 {"mailto:ada@exemple.fr", "ada@exemple.fr"},
                 {"MAILTO:ada%2Blivres@exemple.fr?subject=Livres&bcc=bob@exemple.fr", "ada+livres@exemple.fr"},
                 {"ada@exemple.fr <mailto:ada@exemple.fr>", "ada@exemple.fr"},
             }) {
            const Rangee rangee(texte);
            QCOMPARE(AdresseMail::dans(texte), adresse);
        }
        for (const char *refusee : {"",
                                    "ada",
                                    "@exemple.fr",
                                    "ada@",
                                    "ada@exemple.fr@ailleurs.fr",
                                    "ada@exemple.fr,bob@exemple.fr",
                                    "ada@exemple.fr;bob",
                                    "bob@exemple.fr <ada@exemple.fr>",
                                    "Bob <bob@exemple.fr>, Ada <ada@exemple.fr>",
                                    "Ada <ada@exemple.fr> et Bob",
                                    "Ada <ada>",
                                    ">ada@exemple.fr<",
                                    "mailto:ada@exemple.fr,bob@exemple.fr",
                                    "mailto:ada@exemple.fr%0ABcc:bob@exemple.fr",
                                    "mailto:?to=ada@exemple.fr",
                                    "\"ada\"@exemple.fr",
                                    "=?utf-8?Q?a=40b.fr=2Cbob?=@exemple.fr",
                                    "ada@=?utf-8?Q?b.fr=2Cbob=40c.fr?=",
                                    "x:ada(bob)@exemple.fr",
                                    "ada\\@exemple.fr",
                                    "ada @exemple.fr",
                                    "ada@exemple.fr\nBcc: bob",
                                    "ada@exemple.fr\u200b",
                                    "ada@exemple.fr\u0001"})
            QVERIFY2(AdresseMail::dans(refusee).isEmpty(), refusee);
    }
};

QTEST_GUILESS_MAIN(TestReponse)
#include "tst_reponse.moc"
