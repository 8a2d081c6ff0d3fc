#include "tests/Banc.h"
#include "ui/QuilletApp.h"
#include "ui/documents/ImpressionFacture.h"
#include "ui/documents/PageFacture.h"

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Quillet;

// The invoice's page, read back from the bytes of its PDF.
class TestPageFacture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void textes();
    void document();
    void toujoursUnePage_data();
    void toujoursUnePage();
    void encreEtMarges();
};

namespace {

Facture uneFacture()
{
    const Banc banc;
    return {.numero = QStringLiteral("2026-004"),
            .date = jourDuBanc,
            .vendeur = *banc.reglages.identite(Vendeur::davrel),
            .acheteur = QStringLiteral("Zoë d’Œuvre-Été\n3, rue de l’Exemple ιώτα\n😀\n00000 Exempleville"),
            .lignes = {{1, QStringLiteral("L’efflorescence à 25 °C – essai"), QStringLiteral("979-99-0417-001-8"), 2,
                        Centimes{123456}}},
            .libelleEnvoi = QStringLiteral("Envoi Colissimo · Colissimo shipping – Switzerland"),
            .envoi = Centimes{2219},
            .codeSH = QStringLiteral("490199")};
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
    for (const QString &ligne :
         lire(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-"), QStringLiteral("-")}, pdf)
             .split(u'\n'))
        if (!ligne.trimmed().isEmpty())
            lignes.append(ligne.simplified());
    return lignes;
}

} // namespace

void TestPageFacture::initTestCase()
{
    QuilletApp::preparer(Theme::Mode::sombre); // a page is printed black on white all the same
}

void TestPageFacture::textes()
{
    const QStringList lignes = lignesDe(ImpressionFacture::pdf(uneFacture()));
    const auto ligne = [&](const char *texte) {
        const QString voulue = QString::fromUtf8(texte);
        if (!lignes.contains(voulue))
            QFAIL(qPrintable(voulue + QStringLiteral(" absent de :\n") + lignes.join(u'\n')));
    };
    ligne("Éditions Davrel 2026-004");
    ligne("1 rue Exemple FACTURE · INVOICE");
    ligne("00000 Exempleville 2 mars 2026");
    ligne("SIRET 00000000000000");
    ligne("Facturé à · Bill to");
    ligne("Zoë d’Œuvre-Été");
    ligne("3, rue de l’Exemple ιώτα"); // letters that a typeface may draw like others
    ligne("Désignation · Description Montant · Amount");
    ligne("L’efflorescence à 25 °C – essai 2 × 1 234,56 € 2 469,12 €");
    ligne("ISBN 979-99-0417-001-8");
    ligne("Envoi Colissimo · Colissimo shipping – Switzerland 22,19 €");
    ligne("Total 2 491,31 €");
    ligne("TVA non applicable");
    ligne("Réglée par PayPal · Paid via PayPal");
    ligne("Marchandises : livres imprimés, origine France, code SH 490199 · Goods: printed books, made in France, HS "
          "code "
          "490199");
    Facture sansIsbn = uneFacture();
    sansIsbn.lignes[0].isbn.clear();
    QVERIFY(lignesDe(ImpressionFacture::pdf(sansIsbn)).filter(QStringLiteral("ISBN")).isEmpty());
}

void TestPageFacture::document()
{
    const QByteArray pdf = ImpressionFacture::pdf(uneFacture());
    QVERIFY(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
    const QString infos = lire(QStringLiteral("pdfinfo"), {QStringLiteral("-")}, pdf);
    QVERIFY2(infos.contains(QStringLiteral("Facture 2026-004 – Éditions Davrel")), qPrintable(infos));
    QVERIFY2(infos.contains(QStringLiteral("595 x 842 pts (A4)")), qPrintable(infos));
    const QString auteur = lire(QStringLiteral("pdfinfo"), {QStringLiteral("-meta"), QStringLiteral("-")}, pdf);
    QVERIFY2(auteur.contains(QStringLiteral("<dc:creator><rdf:Seq><rdf:li>Éditions Davrel</rdf:li>")),
             qPrintable(auteur));
    const QString polices = lire(QStringLiteral("pdffonts"), {QStringLiteral("-")}, pdf);
    QVERIFY2(polices.count(QStringLiteral(" yes ")) > 0 && !polices.contains(QStringLiteral(" no  no ")),
             qPrintable(polices)); // embedded, and with their characters
}

void TestPageFacture::toujoursUnePage_data()
{
    QTest::addColumn<int>("livres");
    QTest::addColumn<QString>("acheteur");
    QTest::addColumn<QStringList>("attendues");
    QStringList tomes;
    for (int i = 2; i <= 150; ++i)
        tomes.append(QStringLiteral("Tome %1 1 × 10,00 € 10,00 €").arg(i));
    QStringList etages;
    for (int i = 1; i <= 90; ++i)
        etages.append(QStringLiteral("Étage %1").arg(i));
    QTest::newRow("ordinaire") << 3 << QStringLiteral("Ada Exemple") << tomes.mid(0, 2);
    QTest::newRow("longue commande") << 150 << QStringLiteral("Ada Exemple") << tomes;
    QTest::newRow("longue adresse") << 3 << etages.join(u'\n') << etages;
    QTest::newRow("d’un seul mot") << 3 << QString(3000, u'm') << QStringList();
}

void TestPageFacture::toujoursUnePage()
{
    QFETCH(int, livres);
    QFETCH(QString, acheteur);
    QFETCH(QStringList, attendues);
    Facture facture = uneFacture();
    facture.acheteur = acheteur;
    while (facture.lignes.size() < livres) {
        const qint64 tome = facture.lignes.size() + 1;
        facture.lignes.append(
            {tome, QStringLiteral("Tome %1").arg(tome), QStringLiteral("979-99-0417-001-8"), 1, Centimes{1000}});
    }
    const QByteArray pdf = ImpressionFacture::pdf(facture);
    const QString infos = lire(QStringLiteral("pdfinfo"), {QStringLiteral("-")}, pdf);
    QVERIFY2(infos.contains(QRegularExpression(QStringLiteral("Pages: +1\n"))), qPrintable(infos));
    const QStringList lignes = lignesDe(pdf);
    for (const QString &ligne : attendues)
        QVERIFY2(lignes.contains(ligne), qPrintable(ligne));
    QVERIFY(lignes.last().startsWith(QStringLiteral("Marchandises")));
    QVERIFY(lignes.join(QString()).count(u'm') >= acheteur.count(u'm'));
}

void TestPageFacture::encreEtMarges()
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
    const auto proche = [&](const QColor &couleur) {
        return std::ranges::any_of(teintes, [&](QRgb teinte) {
            return qAbs(qRed(teinte) - couleur.red()) + qAbs(qGreen(teinte) - couleur.green())
                       + qAbs(qBlue(teinte) - couleur.blue())
                   < 40;
        });
    };
    QVERIFY(proche(QColor(13, 104, 98)));
}

QTEST_MAIN(TestPageFacture)
#include "tst_page_facture.moc"
