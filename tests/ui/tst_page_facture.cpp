#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "ui/QuilletApp.h"
#include "ui/documents/ImpressionFacture.h"
#include "ui/documents/PageFacture.h"

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>

using namespace Quillet;

namespace {

Facture uneFacture()
{
    const Banc banc;
    return {.numero = "2026-004",
            .date = jourDuBanc,
            .vendeur = *banc.reglages.identite(Vendeur::davrel),
            .acheteur = "Zoë d’Œuvre-Été\n3, rue de l’Exemple ιώτα\n😀\n00000 Exempleville",
            .lignes = {{1, "L’efflorescence à 25 °C – essai", "979-99-0417-001-8", 2, Centimes{123456}}},
            .libelleEnvoi = "Envoi Colissimo · Colissimo shipping – Switzerland",
            .envoi = Centimes{2219},
            .codeSH = "490199"};
}

QString lire(const QString &programme, const QStringList &arguments, const QByteArray &pdf)
{
    QProcess lecteur;
    lecteur.start(programme, arguments);
    if (!lecteur.waitForStarted())
        qFatal("%s : %s", qPrintable(programme), qPrintable(lecteur.errorString()));
    lecteur.write(pdf);
    lecteur.closeWriteChannel();
    lecteur.waitForFinished();
    return lisible(QString::fromUtf8(lecteur.readAllStandardOutput()));
}

// Lines as they are read from left to right, without the blanks that only place them.
QStringList lignesDe(const QByteArray &pdf)
{
    QStringList lignes;
    for (const QString &ligne : lire("pdftotext", {"-layout", "-", "-"}, pdf).split(u'\n'))
        if (!ligne.trimmed().isEmpty())
            lignes.append(ligne.simplified());
    return lignes;
}

} // namespace

// The invoice's page, read back from the bytes of its PDF.
class TestPageFacture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QuilletApp::preparer(Theme::Mode::sombre); // a page is printed black on white all the same
    }

    void textes()
    {
        const QStringList lignes = lignesDe(ImpressionFacture::pdf(uneFacture()));
        const QString page = QStringLiteral(" : absent de\n") + lignes.join(u'\n');
        for (const char *voulue : {
                 "Éditions Davrel 2026-004",
                 "1 rue Exemple FACTURE · INVOICE",
                 "00000 Exempleville 2 mars 2026",
                 "SIRET 00000000000000",
                 "Facturé à · Bill to",
                 "Zoë d’Œuvre-Été",
                 "3, rue de l’Exemple ιώτα", // letters that a typeface may draw like others
                 "Désignation · Description Montant · Amount",
                 "L’efflorescence à 25 °C – essai 2 × 1 234,56 € 2 469,12 €",
                 "ISBN 979-99-0417-001-8",
                 "Envoi Colissimo · Colissimo shipping – Switzerland 22,19 €",
                 "Total 2 491,31 €",
                 "TVA non applicable",
                 "Réglée par PayPal · Paid via PayPal",
                 "Marchandises : livres imprimés, origine France, code SH 490199 · Goods: printed books, made in "
                 "France, HS code 490199",
             })
            QVERIFY2(lignes.contains(voulue), qPrintable(voulue + page));
        Facture sansIsbn = uneFacture();
        sansIsbn.lignes[0].isbn.clear();
        QVERIFY(lignesDe(ImpressionFacture::pdf(sansIsbn)).filter("ISBN").isEmpty());
    }

    void document()
    {
        const QByteArray pdf = ImpressionFacture::pdf(uneFacture());
        QVERIFY(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
        const QString infos = lire("pdfinfo", {"-"}, pdf);
        QVERIFY2(infos.contains("Facture 2026-004 – Éditions Davrel"), qPrintable(infos));
        QVERIFY2(infos.contains("595 x 842 pts (A4)"), qPrintable(infos));
        const QString auteur = lire("pdfinfo", {"-meta", "-"}, pdf);
        QVERIFY2(auteur.contains("<dc:creator><rdf:Seq><rdf:li>Éditions Davrel</rdf:li>"), qPrintable(auteur));
        const QString polices = lire("pdffonts", {"-"}, pdf);
        QVERIFY2(polices.count(" yes ") > 0 && !polices.contains(" no  no "),
                 qPrintable(polices)); // embedded, and with their characters
    }

    // Wherever it is made: Qt walks hashes as their seed, another in each run, would have it.
    void lesMemesOctets()
    {
        QSet<QByteArray> factures;
        for (int i = 0; i < 12; ++i) {
            QHashSeed::resetRandomGlobalSeed();
            const QString pdf = QString::fromLatin1(ImpressionFacture::pdf(uneFacture()));
            static const QRegularExpression datee("\\(D:[^)]*\\)|/ID \\[[^\\]]*\\]");
            factures.insert(QString(pdf).remove(datee).toLatin1());
        }
        QCOMPARE(factures.size(), 1);
    }

    void toujoursUnePage()
    {
        QStringList tomes;
        for (int i = 2; i <= 150; ++i)
            tomes.append(QStringLiteral("Tome %1 1 × 10,00 € 10,00 €").arg(i));
        QStringList etages;
        for (int i = 1; i <= 90; ++i)
            etages.append(QStringLiteral("Étage %1").arg(i));
        for (const auto &[nom, livres, acheteur, attendues] : Rangees<int, QString, QStringList>{
                 {"longue commande", 150, "Ada Exemple", tomes},
                 {"longue adresse", 3, etages.join(u'\n'), etages},
                 {"d’un seul mot", 3, QString(3000, u'm'), {}},
             }) {
            const Rangee rangee(nom);
            Facture facture = uneFacture();
            facture.acheteur = acheteur;
            while (facture.lignes.size() < livres) {
                const qint64 tome = facture.lignes.size() + 1;
                facture.lignes.append(
                    {tome, QStringLiteral("Tome %1").arg(tome), "979-99-0417-001-8", 1, Centimes{1000}});
            }
            const QByteArray pdf = ImpressionFacture::pdf(facture);
            const QString infos = lire("pdfinfo", {"-"}, pdf);
            QVERIFY2(infos.contains(QRegularExpression("Pages: +1\n")), qPrintable(infos));
            const QStringList lignes = lignesDe(pdf);
            for (const QString &ligne : attendues)
                QVERIFY2(lignes.contains(ligne), qPrintable(ligne));
            QVERIFY(lignes.last().startsWith("Marchandises"));
            QVERIFY(lignes.join(QString()).count(u'm') >= acheteur.count(u'm'));
        }
    }

    void encreEtMarges()
    {
        QImage page(PageFacture::taille, QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter peintre(&page);
        PageFacture::peindre(peintre, uneFacture(), PageFacture::imprimees());
        peintre.end();
        QSet<QRgb> teintes;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x) {
                teintes.insert(page.pixel(x, y));
                if (!page.rect().adjusted(46, 46, -46, -46).contains(x, y))
                    QCOMPARE(page.pixel(x, y), qRgb(255, 255, 255));
            }
        QVERIFY(teintes.contains(qRgb(0, 0, 0)));
        QVERIFY(teintes.contains(qRgb(13, 104, 98)));
    }
};

QTEST_MAIN(TestPageFacture)
#include "tst_page_facture.moc"
