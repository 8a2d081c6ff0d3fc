#include "composants/bureau/Bureau.h"
#include "tests/FauxPortail.h"
#include "ui/QuilletApp.h"

#include <QApplication>
#include <QStyle>
#include <QTest>

using namespace Quillet;

using Mode = Theme::Mode;
using Contraste = Theme::Contraste;

// What the desktop wishes is obeyed while running.
class TestApparence : public QObject
{
    Q_OBJECT

private slots:
    void obeit()
    {
        const QString apparence = "org.freedesktop.appearance";
        const QString couleurs = "color-scheme";
        QuilletApp::preparer();
        FauxPortail portail;
        const QVariantMap dits{{couleurs, 1U}, {"reduced-motion", 1U}};
        portail.reponse = QVariant::fromValue(ReglagesDuPortail{{apparence, dits}});
        portail.paraitre();
        Bureau bureau;
        QuilletApp::suivre(bureau);
        QWidget fenetre;
        QTRY_COMPARE(fenetre.palette(), Theme::palette(Mode::sombre));
        QVERIFY(!QApplication::style()->styleHint(QStyle::SH_Widget_Animate));
        portail.annoncer(apparence, "contrast", 1U);
        QTRY_COMPARE(fenetre.palette(), Theme::palette(Mode::sombre, Contraste::renforce));
        portail.annoncer(apparence, couleurs, 0U);
        QTRY_COMPARE(fenetre.palette(), Theme::palette(Mode::clair, Contraste::renforce));
    }

private:
    BusPrive bus_;
};

QTEST_MAIN(TestApparence)
#include "tst_apparence.moc"
