#include "echanges/ListeDeLivres.h"
#include "echanges/TableCsv.h"
#include "model/Echec.h"
#include "tests/Banc.h"
#include "tests/Rangees.h"

#include <QStringEncoder>
#include <QTest>

using namespace Quillet;

namespace {

using Sort = RangeeDeListe::Sort;

QString refus(const std::function<void()> &geste)
{
    try {
        geste();
    } catch (const Echec &echec) {
        return lisible(echec.texte());
    }
    return {};
}

QByteArray en(QStringConverter::Encoding encodage, const QString &texte)
{
    QStringEncoder encodeur(encodage, QStringConverter::Flag::WriteBom);
    return encodeur(texte);
}

// Texts that lists find hard to hold.
Donnees difficiles()
{
    Banc banc;
    const QStringList titres{
        "=1+1",         "'=1",     "-",        "''@x", "'un'", "dit « \"oui\" »", "un; deux, trois\tquatre",
        "deux\nlignes", " bords ", "Œuvre Ÿ €"};
    const Livre modele = banc.livres[0];
    banc.livres.clear();
    for (qsizetype rang = 0; rang < titres.size(); ++rang) {
        Livre livre = modele;
        livre.id = 100 + rang;
        livre.titre = livre.titreComplet = titres[rang];
        livre.isbn.clear();
        livre.prix = Centimes{rang * 111'111 + 5};
        if (rang % 2)
            livre.poids.reset();
        livre.disponible = rang % 3;
        if (rang == 4)
            livre.lienPaypal = QUrl(QStringLiteral("https://www.paypal.com/ncp/payment/A%20B?x=1&y=é"));
        banc.livres.append(livre);
    }
    return banc.donnees();
}

Regles::Reperes reperes(const Donnees &donnees)
{
    return {{}, donnees.reglages.vendeurs, {}, {}};
}

ListeDeLivres lue(const QByteArray &octets, const Donnees &donnees)
{
    return ListeDeLivres::lue(octets, donnees, reperes(donnees));
}

constexpr auto tete = "Titre;Auteur;Vendeur;Prix;Poids;Pages;Format;Langue;Disponible;ISBN;Lien PayPal;Titre complet\n";

} // namespace

// Books as a spreadsheet lists them.
class TestListeCsv : public QObject
{
    Q_OBJECT

private slots:
    void luQuelQueSoitLeTableur()
    {
        const QString texte =
            QStringLiteral("Titre;Auteur\r\n\"L’Été ; \"\"hier\"\"\nà l’ombre\";Zoé\r\n\r\nŒuvre;€\r\n");
        const QList<QStringList> attendu{
            {"Titre", "Auteur"}, {"L’Été ; \"hier\"\nà l’ombre", "Zoé"}, {}, {"Œuvre", "€"}};
        QByteArray windows = texte.toLatin1();
        for (const auto &[signe, octet] : {std::pair{u'’', '\x92'}, {u'Œ', '\x8c'}, {u'€', '\x80'}})
            for (qsizetype place = 0; place < texte.size(); ++place)
                if (texte[place] == signe)
                    windows[place] = octet;
        for (const auto &[nom, octets] :
             Rangees<QByteArray>{{"UTF-8", texte.toUtf8()},
                                 {"UTF-8 marqué", en(QStringConverter::Utf8, texte)},
                                 {"UTF-16 LE", en(QStringConverter::Utf16LE, texte)},
                                 {"UTF-16 BE", en(QStringConverter::Utf16BE, texte)},
                                 {"Windows-1252", windows},
                                 {"sauts de ligne simples", QString(texte).remove(u'\r').toUtf8()},
                                 {"virgules", QString(texte)
                                                  .replace(u';', u',')
                                                  .replace(QStringLiteral("Été ,"), QStringLiteral("Été ;"))
                                                  .toUtf8()},
                                 {"tabulations", QString(texte)
                                                     .replace(u';', u'\t')
                                                     .replace(QStringLiteral("Été \t"), QStringLiteral("Été ;"))
                                                     .toUtf8()},
                                 {"séparateur nommé", "sep=;\r\n" + texte.toUtf8()}}) {
            const Rangee rangee(nom);
            QCOMPARE(TableCsv::lue(octets).rangees, attendu);
        }
    }

    void pasUneListe()
    {
        const Donnees donnees = Banc().donnees();
        for (const auto &[nom, octets, phrase] : Rangees<QByteArray, const char *>{
                 {"rien", "", "Cette liste est vide."},
                 {"des blancs", "\r\n;;\r\n", "Cette liste est vide."},
                 {"classeur", "PK\x03\x04xyz", "est un classeur"},
                 {"image", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "n’est pas une liste"},
                 {"sans titres", "a;b\nc;d\n", "ne nomme aucune colonne connue"},
                 {"guillemet ouvert", "Titre;Prix\nA;1\n\"B;2\n", "Ligne 3 : des guillemets ouverts"},
                 {"trop de lignes", QByteArray("Titre\n").repeated(10'001), "lit 10000 lignes"},
                 {"trop de colonnes", QByteArray(";").repeated(200), "La ligne 1 a trop de colonnes"},
                 {"trop lourde", QByteArray(8'388'609, 'x'), "en lit 8 Mo"}}) {
            const Rangee rangee(nom);
            const QString raison = refus([&] { lue(octets, donnees); });
            QVERIFY2(raison.contains(lisible(QString::fromUtf8(phrase))), qPrintable(raison));
        }
    }

    void relueCommeEcrite()
    {
        const Donnees donnees = difficiles();
        const QByteArray ecrite = ListeDeLivres::ecrite(donnees);
        QVERIFY2(ecrite.startsWith("\xef\xbb\xbfNuméro;Titre;") && ecrite.contains(";0,05;")
                     && ecrite.contains(";'=1+1;"),
                 ecrite.constData());
        const auto liste = lue(ecrite, donnees);
        for (const auto &rangee : liste.rangees)
            QVERIFY2(rangee.sort == Sort::inchangee, qPrintable(rangee.livre.titre + rangee.refus.join(u' ')));
        QCOMPARE(liste.appliquee(donnees.livres), donnees.livres);
        // In another catalogue they come as they are, but for a line break and blanks around.
        Donnees vide = donnees;
        vide.livres.clear();
        const auto venus = lue(ecrite, vide).appliquee({});
        QCOMPARE(venus.size(), donnees.livres.size());
        for (qsizetype rang = 0; rang < venus.size(); ++rang) {
            Livre attendu = donnees.livres[rang];
            attendu.titre = attendu.titreComplet = attendu.titre.simplified();
            attendu.couverture.clear();
            attendu.teinte = venus[rang].teinte;
            attendu.prixPaypal = attendu.prixEcartes = std::nullopt;
            QCOMPARE(venus[rang], attendu);
        }
    }

    void colonnesParLeurNom()
    {
        for (const auto &[nom, colonne] :
             Rangees<std::optional<ColonneDeListe>>{{"PRIX TTC", ColonneDeListe::prix},
                                                    {"Prix de vente", ColonneDeListe::prix},
                                                    {"Poids (g)", ColonneDeListe::poids},
                                                    {"Poids (kg)", std::nullopt},
                                                    {"Full title", ColonneDeListe::titreComplet},
                                                    {"N°", ColonneDeListe::id},
                                                    {"Nb. de pages", ColonneDeListe::pages},
                                                    {"Éditeur", ColonneDeListe::vendeur},
                                                    {"titreComplet", ColonneDeListe::titreComplet},
                                                    {"Remarques", std::nullopt},
                                                    {"", std::nullopt}}) {
            const Rangee rangee(nom);
            QCOMPARE(ColonnesDeListe::trouvee(QString::fromUtf8(nom)), colonne);
        }
        const auto liste = lue("Titre;Prix;Price;Remarques\n", Banc().donnees());
        QVERIFY(liste.tetes[1].colonne && !liste.tetes[2].colonne && !liste.tetes[3].colonne);
    }

    void cellulesTellesQuOnLesTape()
    {
        const QByteArray debut = tete + QByteArray("Sel;Ada;Davrel;");
        QVERIFY(lisible(lue("Titre;Vendeur\nSel;Mireva\n", Banc().donnees()).rangees[0].refus.join(u' '))
                    .contains("Vendeur : « Mireva » n’est pas un vendeur : Éditions Davrel attendu."));
        for (const auto &[nom, suite, phrase] : Rangees<const char *, const char *>{
                 {"telles quelles", "18,50;355;212;A5;Français;oui", ""},
                 {"avec leurs unités", "18.5 €;1 355 g;212 p.;A5;Français;En stock", ""},
                 {"prix en lettres", "dix;355;212;A5;Français;oui", "Prix (€) : Un prix s’écrit en chiffres"},
                 {"sans prix", ";355;212;A5;Français;oui", "Prix (€) : il faut un prix."},
                 {"prix nul", "0;355;212;A5;Français;oui", "Prix (€) : Un prix de plus de 0"},
                 {"kilos", "18;0,355 kg;212;A5;Français;oui", "Poids (g) : Un poids s’écrit en grammes entiers"},
                 {"pages", "18;355;beaucoup;A5;Français;oui",
                  "Pages : Un nombre de pages s’écrit en chiffres, comme 288."},
                 {"encyclopédie", "18;355;100000;A5;Français;oui", "Pages : 99 999 pages au plus."},
                 {"sans format", "18;355;212;;Français;oui", "Format : À remplir."},
                 {"peut-être", "18;355;212;A5;Français;peut-être", "Disponible : « peut-être » n’est ni oui ni non."},
                 {"ISBN", "18;355;212;A5;Français;oui;978-2-00-000000-1",
                  "ISBN : « 978-2-00-000000-1 » n’est pas un ISBN"},
                 {"adresse", "18;355;212;A5;Français;oui;;paypal", "Lien PayPal : Une adresse web s’écrit en entier"},
                 {"http", "18;355;212;A5;Français;oui;;http://www.paypal.com/x",
                  "Lien PayPal : Adresse https attendue."},
                 {"cellule de trop", "18;355;212;A5;Français;oui;;;;un reste",
                  "« un reste » dépasse la dernière colonne"}}) {
            const Rangee rangee(nom);
            const auto liste = lue(debut + suite + "\n", Banc().donnees());
            QCOMPARE(liste.rangees.size(), 1);
            const auto &lue = liste.rangees[0];
            const QString raisons = lisible(lue.refus.join(u'|'));
            if (*phrase) {
                QVERIFY2(raisons.startsWith(lisible(QString::fromUtf8(phrase))) && lue.refus.size() == 1,
                         qPrintable(raisons));
                QVERIFY(lue.sort == Sort::refusee && lue.numero == 2);
            } else {
                QVERIFY2(lue.sort == Sort::ajoutee, qPrintable(raisons));
                QVERIFY(lue.livre.prix == Centimes{1850} && lue.livre.disponible && lue.livre.pages == 212);
                QCOMPARE(lue.livre.titreComplet, QStringLiteral("Sel"));
            }
        }
    }

    void lesLivresRetrouves()
    {
        Banc banc;
        banc.livres[0].isbn = QStringLiteral("978-2-07-036002-4");
        banc.livres[0].auteur = QStringLiteral("Zoé Œil");
        const Donnees donnees = banc.donnees();
        const Livre &premier = donnees.livres[0];
        const QByteArray id = QByteArray::number(premier.id);
        const QByteArray titre = premier.titre.toUtf8();
        for (const auto &[nom, texte, sort] : Rangees<QByteArray, Sort>{
                 {"par numéro", "Numéro;Prix\n" + id + ";99\n", Sort::changee},
                 {"par ISBN", "ISBN;Prix\n9782070360024;99\n", Sort::changee},
                 {"par titre et auteur", "Titre;Auteur;Prix\n" + titre.toUpper() + ";zoe oeil;99\n", Sort::changee},
                 {"par titre seul", "Titre;Prix\n" + titre + ";99\n", Sort::changee},
                 {"un numéro d’ailleurs", "Numéro;Titre;Auteur;Prix\n" + id + ";Autre;Autre;99\n", Sort::refusee},
                 {"un numéro inconnu", "Numéro;Prix\n987;99\n", Sort::refusee},
                 {"rien ne change", "Titre;Prix;Poids\n" + titre + ";;\n", Sort::inchangee}}) {
            const Rangee rangee(nom);
            const auto liste = lue(texte, donnees);
            const auto &lue = liste.rangees[0];
            QVERIFY2(lue.sort == sort, qPrintable(lue.refus.join(u'|')));
            QList<Livre> attendus = donnees.livres;
            if (sort == Sort::changee)
                attendus[0].prix = Centimes{9900};
            QCOMPARE(liste.appliquee(donnees.livres), attendus);
        }
        // Twice the same, known or new; an old fault that the list does not touch is none of its own.
        const auto liste = lue("Numéro;Titre;Auteur;Vendeur;Prix;Pages;Format\n" + id + ";;;;99\n" + id + ";;;;98\n"
                                   + ";Neuf;Ada;davrel;5;9;A5\n;neuf;ADA;davrel;5;9;A5\n;Autre;Ada;davrel;5;9;A5\n",
                               donnees);
        QCOMPARE(liste.nombre(Sort::changee), 1);
        QCOMPARE(liste.nombre(Sort::ajoutee), 2);
        QVERIFY(lisible(liste.rangees[1].refus.join(u' ')).contains("La ligne 2 parle déjà de ce livre."));
        QVERIFY(lisible(liste.rangees[3].refus.join(u' ')).contains("La ligne 4 parle déjà de ce livre."));
        const auto livres = liste.appliquee(donnees.livres);
        QCOMPARE(livres.size(), donnees.livres.size() + 2);
        QVERIFY(livres.last().titre == "Autre" && livres.last().id == livres[livres.size() - 2].id + 1);
    }
};

QTEST_MAIN(TestListeCsv)
#include "tst_liste_csv.moc"
