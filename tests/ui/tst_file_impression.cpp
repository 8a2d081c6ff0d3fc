#include "model/Echec.h"
#include "ui/documents/FileImpression.h"

#include <QTest>

using namespace Quillet;

// What a print queue is asked, and what its silence becomes.
class TestFileImpression : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("CUPS_SERVER", "/nulle/part"); } // no test prints on a real printer

    void optionsDuTravail()
    {
        const QList<std::pair<QByteArray, QByteArray>> attendues{
            {"copies", "3"},          {"media", "iso_a4_210x297mm"},
            {"print-scaling", "fit"}, {"orientation-requested", "3"},
            {"sides", "one-sided"},   {"print-color-mode", "monochrome"}};
        QCOMPARE(FileImpression::options({"file", 3, false}), attendues);
    }

    void refusDeLaFile()
    {
        try {
            FileImpression::envoyer("%PDF-", "Facture.pdf", {});
            QFAIL("no server, and yet a job");
        } catch (const Echec &refus) {
            QVERIFY2(refus.texte().contains("le service d’impression ne répond pas"), qPrintable(refus.texte()));
        }
    }
};

QTEST_MAIN(TestFileImpression)
#include "tst_file_impression.moc"
