#include "ui/Fenetre.h"

#include "composants/Pile.h"
#include "composants/Place.h"
#include "composants/Theme.h"
#include "model/Enumeration.h"
#include "ui/ContenuPrincipal.h"
#include "ui/Contexte.h"
#include "ui/Menus.h"
#include "ui/PlaceDeLaFenetre.h"
#include "ui/Raccourcis.h"
#include "ui/VeilleDesDonnees.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr QSize contenuParDefaut(1320, 860);
constexpr auto apresLaPremiereImage = 150ms;
const QString clePlace = QStringLiteral("fenetre");

// What a window may take of each, the first one's first.
QList<QRect> placesDesEcrans()
{
    QList<QRect> places;
    for (const QScreen *ecran : QGuiApplication::screens())
        places.append({ecran->availableGeometry().topLeft(), Place::de(ecran)});
    return places;
}

} // namespace

Fenetre::Fenetre(const Contexte &contexte, MisesAJour &misesAJour)
    : preferences_(contexte.preferences), contenu_(new ContenuPrincipal(contexte))
{
    setObjectName(QStringLiteral("quillet"));
    setWindowTitle(QStringLiteral("Quillet"));
    setCentralWidget(Pile::enColonne({.espace = 0}, {new VeilleDesDonnees(contexte), {contenu_, 1}}));
    contenu_->prendreLeFocus();
    Menus::garnir(*this, contexte, misesAJour);
    creerRaccourcis();
    repos_.setSingleShot(true);
    repos_.setInterval(1s);
    connect(&repos_, &QTimer::timeout, this, &Fenetre::retenirLaPlace);
    qApp->installEventFilter(this);
    resize(tailleParDefaut().boundedTo(Place::surLEcran(this)).expandedTo(minimumSizeHint()));
    reprendreLaPlace();
}

void Fenetre::reprendreLaPlace()
{
    ordinaire_ = QRect(pos(), size());
    const auto place = PlaceDeLaFenetre::lue(preferences_.texte(clePlace));
    const auto ecrans = placesDesEcrans();
    if (!place || ecrans.isEmpty())
        return;
    ordinaire_ = place->dans(ecrans, minimumSizeHint());
    move(ordinaire_.topLeft());
    resize(ordinaire_.size());
    setWindowState(windowState().setFlag(Qt::WindowMaximized, place->agrandie));
}

void Fenetre::retenirLaPlace()
{
    const bool seulementOuverte = !std::exchange(dejaPosee_, true) && size() == ordinaire_.size();
    if (seulementOuverte)
        return; // where and as large as nobody has chosen
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized)))
        ordinaire_ = QRect(pos(), size());
    preferences_.retenirSiPossible(clePlace, PlaceDeLaFenetre{ordinaire_, isMaximized()}.texte());
}

QSize Fenetre::tailleParDefaut() const
{
    return Theme::aLaTaille(contenuParDefaut) + QSize(0, menuBar()->sizeHint().height());
}

// Qt remembers that the keyboard moved the focus, and never forgets it: focus rings would follow the mouse.
bool Fenetre::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::MouseButtonPress && objet->isWidgetType())
        static_cast<QWidget *>(objet)->window()->setAttribute(Qt::WA_KeyboardFocusChange, false);
    const bool touche = evenement->type() == QEvent::KeyPress || evenement->type() == QEvent::KeyRelease;
    if (touche && static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Alt)
        menuBar()->update(); // which shows its letters or hides them
    return QMainWindow::eventFilter(objet, evenement);
}

// What could not be saved stays in sight; closing again leaves it.
void Fenetre::closeEvent(QCloseEvent *evenement)
{
    evenement->setAccepted(contenu_->conclure());
}

void Fenetre::moveEvent(QMoveEvent *evenement)
{
    QMainWindow::moveEvent(evenement);
    repos_.start();
}

void Fenetre::resizeEvent(QResizeEvent *evenement)
{
    QMainWindow::resizeEvent(evenement);
    repos_.start();
}

void Fenetre::showEvent(QShowEvent *evenement)
{
    QMainWindow::showEvent(evenement);
    if (!std::exchange(dejaMontree_, true))
        QTimer::singleShot(apresLaPremiereImage, this, &Fenetre::posee);
}

void Fenetre::ramener(const QByteArray &jeton)
{
    constexpr auto pourQt = "XDG_ACTIVATION_TOKEN"; // where its Wayland plugin looks
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    QWidget *devant = QApplication::activeModalWidget();           // a sheet keeps its place over the window
    if (!devant || devant->testAttribute(Qt::WA_DontShowOnScreen)) // the platform's own dialog stands for it
        devant = this;
    // Qt 6.4 has no other way, and other threads read the environment: only where it serves.
    const bool aRemettre = !jeton.isEmpty() && QGuiApplication::platformName().startsWith(u"wayland");
    if (aRemettre)
        qputenv(pourQt, jeton);
    devant->activateWindow();
    if (aRemettre)
        qunsetenv(pourQt); // it serves once, and is not for the programs started from here
}

void Fenetre::creerRaccourcis()
{
    for (const Rubrique rubrique : tous<Rubrique>) {
        auto *raccourci = new QShortcut(this);
        QList<QKeySequence> touches;
        for (const Qt::Key touche : traits(rubrique).touches)
            touches.append(QKeySequence(Qt::CTRL | touche));
        raccourci->setKeys(touches);
        connect(raccourci, &QShortcut::activated, this, [this, rubrique] { contenu_->montrer(rubrique); });
    }
    using Raccourcis::Geste;
    for (const auto &[geste, pas] : {std::pair(Geste::zoneSuivante, 1), std::pair(Geste::zonePrecedente, -1)}) {
        auto *raccourci = new QShortcut(this);
        raccourci->setKeys(Raccourcis::touches(geste));
        connect(raccourci, &QShortcut::activated, this, [this, pas = pas] { contenu_->changerDeZone(pas); });
    }
}

} // namespace Quillet
