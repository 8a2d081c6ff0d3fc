#include "tests/BancEcran.h"
#include "tests/Rangees.h"
#include "ui/FeuilleGuide.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

using namespace Quillet;

namespace {

QStringList liensDe(const QTextBrowser *page)
{
    QStringList liens;
    for (QTextBlock bloc = page->document()->begin(); bloc.isValid(); bloc = bloc.next())
        for (auto i = bloc.begin(); !i.atEnd(); ++i)
            if (i.fragment().charFormat().isAnchor())
                liens.append(i.fragment().charFormat().anchorHref());
    return liens;
}

QStringList titresDe(const QTextBrowser *page)
{
    QStringList titres;
    for (QTextBlock bloc = page->document()->begin(); bloc.isValid(); bloc = bloc.next())
        if (bloc.blockFormat().headingLevel() > 0)
            titres.append(bloc.text());
    return titres;
}

} // namespace

// The guide, as it is shipped and as any file could be.
class TestGuide : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(); }

    void parLeMenu()
    {
        BancEcran banc;
        banc.demarrer();
        QVERIFY(Ecran::choisirAuMenu(&banc.app->fenetre(), "Guide"));
        QDialog *feuille = Dialogues::devant();
        QVERIFY(feuille);
        auto *page = qobject_cast<QTextBrowser *>(Ecran::controle(feuille, "Guide"));
        QVERIFY(page);
        QTRY_VERIFY(page->hasFocus());
        const QStringList titres = titresDe(page);
        for (const char *titre : {"Le guide de Quillet", "La déclaration en douane", "Ce que les écrans ne disent pas"})
            QVERIFY2(titres.contains(titre), titre);

        // Each link of the head leads to the section that it names; keys do it too.
        const QStringList liens = liensDe(page);
        QVERIFY(liens.size() > 8);
        for (const QString &lien : liens) {
            emit page->anchorClicked(QUrl(lien));
            const QTextBlock titre = page->textCursor().block();
            QVERIFY2(titre.blockFormat().headingLevel() == 2, qPrintable(lien));
            QTRY_COMPARE(page->verticalScrollBar()->value(),
                         std::min(page->verticalScrollBar()->maximum(),
                                  qRound(page->document()->documentLayout()->blockBoundingRect(titre).top())));
        }
        page->moveCursor(QTextCursor::Start);
        for (const Qt::Key touche : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return})
            QTest::keyClick(page, touche);
        QCOMPARE(page->textCursor().block().text(), titres[2]);
        QTest::keyClick(page, Qt::Key_Home);
        QCOMPARE(page->verticalScrollBar()->value(), 0);
        QTest::keyClick(page, Qt::Key_PageDown);
        QVERIFY(page->verticalScrollBar()->value() > 0);
        QTest::keyClick(page, Qt::Key_Escape);
        QVERIFY(!feuille->isVisible());
    }

    // Neither a picture nor a table asks for more than the narrowest sheet has.
    void rienNeDepasse()
    {
        FeuilleGuide feuille(FeuilleGuide::fichierLivre(), nullptr);
        feuille.resize(feuille.minimumSizeHint());
        feuille.show();
        const auto *page = feuille.findChild<QTextBrowser *>();
        QTRY_COMPARE(page->horizontalScrollBar()->maximum(), 0);
        const qreal largeur = page->document()->textWidth();
        QVERIFY(page->document()->size().width() <= largeur);
        for (QTextBlock bloc = page->document()->begin(); bloc.isValid(); bloc = bloc.next())
            QVERIFY2(bloc.layout()->boundingRect().width() <= largeur, qPrintable(bloc.text()));
    }

    void liensEtEspaces()
    {
        const QTemporaryDir dossier;
        QFile fichier(dossier.filePath("guide.md"));
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write("# Là-bas : l’été\n\n[a](#là-bas--lété) [b](#ailleurs) [c](autre.md) [d](https://a.example/)\n"
                      "[e](http://a.example/) [f](mailto:a@b.example) « oui » ; `« a : b »`\n\n![x](absente.png)");
        fichier.close();
        FeuilleGuide feuille(fichier.fileName(), nullptr);
        const auto *page = feuille.findChild<QTextBrowser *>();
        QCOMPARE(liensDe(page), QStringList({"#là-bas--lété", "https://a.example/"}));
        QVERIFY(page->document()->toRawText().contains("«\u00A0oui\u00A0»\u00A0; « a : b »"));
    }

    void sansFichier()
    {
        for (const auto &[nom, chemin, raison] : Rangees<QString, QString>{
                 {"absent", "/nulle/part/guide.md", "fichier introuvable"},
                 {"dossier", "/usr", "un dossier occupe la place du fichier"},
             }) {
            const Rangee rangee(nom);
            FeuilleGuide feuille(chemin, nullptr);
            feuille.show();
            QVERIFY(Ecran::montre(&feuille, "Pas de guide"));
            QVERIFY(Ecran::montre(&feuille, chemin + " : " + raison + "\n\nRéinstaller Quillet le remet à sa place."));
        }
    }
};

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
