#include "tests/Banc.h"
#include "tests/Rangees.h"
#include "ui/couvertures/ChampCouverture.h"
#include "ui/couvertures/ImagesCouvertures.h"
#include "visite/Ecran.h"

#include <QBuffer>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>

using namespace Quillet;

namespace {

QByteArray rouge()
{
    QImage image(60, 90, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer sortie;
    return sortie.open(QIODevice::WriteOnly) && image.save(&sortie, "PNG") ? sortie.data() : QByteArray();
}

QMimeData *image(const QByteArray &octets)
{
    auto *donnees = new QMimeData;
    donnees->setData(QStringLiteral("image/png"), octets);
    return donnees;
}

QMimeData *adresses(const QList<QUrl> &adresses)
{
    auto *donnees = new QMimeData;
    donnees->setUrls(adresses);
    return donnees;
}

struct Essai
{
    Essai()
    {
        champ.resize(560, 240);
        champ.show();
    }

    QTemporaryDir dossier;
    ImagesCouvertures images{QDir(dossier.path())};
    ChampCouverture champ{images, QCoreApplication::applicationDirPath() + QStringLiteral("/quillet")};
    QSignalSpy choisie{&champ, &ChampCouverture::choisie};
    QSignalSpy retiree{&champ, &ChampCouverture::retiree};

    bool deposer(QMimeData *donnees)
    {
        const std::unique_ptr<QMimeData> tenues(donnees);
        QDragEnterEvent entree(QPoint(9, 9), Qt::CopyAction | Qt::MoveAction, donnees, Qt::LeftButton, {});
        if (!QCoreApplication::sendEvent(&champ, &entree) || !entree.isAccepted())
            return false;
        QDropEvent depot(QPointF(9, 9), Qt::CopyAction | Qt::MoveAction, donnees, Qt::LeftButton, {});
        return QCoreApplication::sendEvent(&champ, &depot) && depot.dropAction() == Qt::CopyAction;
    }
    void coller(const QByteArray &octets)
    {
        QGuiApplication::clipboard()->setMimeData(image(octets));
        QTest::keyClick(champ.findChild<QPushButton *>(), Qt::Key_V, Qt::ControlModifier);
    }
    [[nodiscard]] QColor milieu() { return champ.grab().toImage().pixelColor(56, 84); }
    [[nodiscard]] bool dit(const QString &debut) const
    {
        for (const auto *texte : champ.findChildren<QLabel *>())
            if (texte->isVisible() && lisible(texte->text()).contains(debut))
                return true;
        return false;
    }
    [[nodiscard]] QString fichier(const QByteArray &octets) const
    {
        QFile fichier(dossier.filePath(QStringLiteral("une image.png")));
        return fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size() ? fichier.fileName()
                                                                                            : QString();
    }
};

} // namespace

// The field that gives a book its picture.
class TestChampCouverture : public QObject
{
    Q_OBJECT

private slots:
    void deposeeColleeChoisie()
    {
        const std::initializer_list<std::function<void(Essai &)>> gestes{
            [](Essai &essai) { QVERIFY(essai.deposer(adresses({QUrl::fromLocalFile(essai.fichier(rouge()))}))); },
            [](Essai &essai) { QVERIFY(essai.deposer(image(rouge()))); }, [](Essai &essai) { essai.coller(rouge()); },
            [](Essai &essai) {
                const QString fichier = essai.fichier(rouge());
                QVERIFY(Ecran::cliquer(&essai.champ, QStringLiteral("Choisir une image…")));
                auto *dialogue = essai.champ.findChild<QFileDialog *>();
                QVERIFY(dialogue);
                dialogue->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(fichier);
                QMetaObject::invokeMethod(dialogue, "accept");
            }};
        for (const auto &geste : gestes) {
            Essai essai;
            Livre livre = unLivre(1, Vendeur::davrel, Centimes{1000}, {});
            livre.couverture.clear();
            essai.champ.montrer(livre);
            auto *retirer =
                qobject_cast<QPushButton *>(Ecran::controle(&essai.champ, QStringLiteral("Retirer l’image")));
            QVERIFY(retirer && !retirer->isEnabled());
            geste(essai);
            QTRY_COMPARE_WITH_TIMEOUT(essai.choisie.count(), 1, 30'000);
            QVERIFY(!essai.choisie[0][0].value<CouverturePrete>().octets.isEmpty());
            QVERIFY(essai.milieu().red() > 200); // in sight before it is kept
            essai.champ.montrer(livre);          // its title was typed
            QVERIFY(essai.milieu().red() > 200 && retirer->isEnabled());
            retirer->click();
            QVERIFY(essai.retiree.count() == 1 && essai.milieu().red() < 200 && !retirer->isEnabled());
        }
    }

    void refuseeAvecSaRaison()
    {
        const QUrl ici = QUrl::fromLocalFile(QStringLiteral("/tmp"));
        for (const auto &[nom, donnees, raison] : Rangees<QMimeData *, const char *>{
                 {"pas une image", image("Le Phare de sel"), "n’est pas une image connue"},
                 {"un dossier", adresses({ici}), "un dossier occupe"},
                 {"deux", adresses({ici, ici}), "une seule image"},
                 {"ailleurs", adresses({QUrl(QStringLiteral("https://exemple.fr/a.png"))}), "est sur Internet"}}) {
            const Rangee rangee(nom);
            Essai essai;
            QVERIFY(essai.deposer(donnees));
            QTRY_VERIFY_WITH_TIMEOUT(essai.dit(QString::fromUtf8(raison)), 30'000);
            QVERIFY(essai.choisie.isEmpty() && !essai.dit(QStringLiteral("Lecture de l’image…")));
            essai.coller(rouge()); // the reason goes with what it spoke of
            QVERIFY(!essai.dit(QString::fromUtf8(raison)) && essai.dit(QStringLiteral("Lecture de l’image…")));
            QTRY_COMPARE_WITH_TIMEOUT(essai.choisie.count(), 1, 30'000);
        }
        Essai essai;
        QMimeData texte;
        texte.setText(QStringLiteral("Le Phare de sel"));
        QDragEnterEvent entree(QPoint(9, 9), Qt::CopyAction, &texte, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&essai.champ, &entree);
        QVERIFY(!entree.isAccepted());
    }

    // A picture that was being read for a book does not come to the next one.
    void unAutreLivre()
    {
        Essai essai;
        essai.champ.montrer(unLivre(1, Vendeur::davrel, Centimes{1000}, {}));
        essai.coller(rouge());
        essai.champ.montrer(unLivre(2, Vendeur::davrel, Centimes{1000}, {}));
        QVERIFY(!essai.dit(QStringLiteral("Lecture de l’image…")));
        QVERIFY(essai.milieu().red() < 200);
    }
};

QTEST_MAIN(TestChampCouverture)
#include "tst_champ_couverture.moc"
