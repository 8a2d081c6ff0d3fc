#include "ui/Fenetre.h"

#include "composants/Place.h"
#include "composants/Theme.h"
#include "ui/ContenuPrincipal.h"
#include "ui/misesajour/FeuilleMiseAJour.h"
#include "watch/MisesAJour.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QShortcut>
#include <QTimer>

#include <array>
#include <tuple>

namespace {

constexpr QSize contenuParDefaut(1320, 860);

} // namespace

Fenetre::Fenetre(Catalogue &catalogue, Commande &commande, Verifications &verifications, MisesAJour &misesAJour,
                 ImagesCouvertures &images, const Preferences &preferences, JourCourant &jour)
    : contenu_(new ContenuPrincipal(catalogue, commande, verifications, images, preferences, jour))
{
    setObjectName(QStringLiteral("quillet"));
    setWindowTitle(QStringLiteral("Quillet"));
    setCentralWidget(contenu_);
    creerMenu(misesAJour);
    creerRaccourcis();
    qApp->installEventFilter(this);
    resize(tailleParDefaut().boundedTo(Place::surLEcran(this)).expandedTo(minimumSizeHint()));
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
    return QMainWindow::eventFilter(objet, evenement);
}

// What could not be saved stays in sight; closing again leaves it.
void Fenetre::closeEvent(QCloseEvent *evenement)
{
    evenement->setAccepted(contenu_->conclure());
}

// Drawing the icon in all its sizes takes a tenth of what the first image does.
void Fenetre::showEvent(QShowEvent *evenement)
{
    QMainWindow::showEvent(evenement);
    if (windowIcon().isNull())
        QTimer::singleShot(ContenuPrincipal::apresLaPremiereImage, this,
                           [] { QApplication::setWindowIcon(QIcon(QStringLiteral(":/quillet.svg"))); });
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

void Fenetre::creerMenu(MisesAJour &misesAJour)
{
    QMenu *menu = menuBar()->addMenu(QStringLiteral("&Quillet"));
    menu->addAction(QStringLiteral("À &propos de Quillet"), this, &Fenetre::aPropos)->setMenuRole(QAction::AboutRole);
    QAction *rechercher = menu->addAction(QStringLiteral("&Rechercher les mises à jour…"), this,
                                          [this, &misesAJour] { (new FeuilleMiseAJour(misesAJour, this))->ouvrir(); });
    rechercher->setMenuRole(QAction::ApplicationSpecificRole);
    const auto suivre = [rechercher, &misesAJour] { rechercher->setEnabled(misesAJour.peutVerifier()); };
    connect(&misesAJour, &MisesAJour::change, rechercher, suivre);
    suivre();
    menu->addSeparator();
    QAction *quitter = menu->addAction(QStringLiteral("&Quitter"), this, &QWidget::close);
    quitter->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    quitter->setMenuRole(QAction::QuitRole);
}

void Fenetre::creerRaccourcis()
{
    // The second key of each is where a French keyboard has the digit.
    const std::array<std::tuple<Qt::Key, Qt::Key, Rubrique>, 3> touches{{
        {Qt::Key_1, Qt::Key_Ampersand, Rubrique::commande},
        {Qt::Key_2, Qt::Key_Eacute, Rubrique::tarifs},
        {Qt::Key_3, Qt::Key_QuoteDbl, Rubrique::livres},
    }};
    for (const auto &[chiffre, francaise, rubrique] : touches) {
        auto *raccourci = new QShortcut(this);
        raccourci->setKeys({QKeySequence(Qt::CTRL | chiffre), QKeySequence(Qt::CTRL | francaise)});
        connect(raccourci, &QShortcut::activated, this, [this, choisie = rubrique] { contenu_->montrer(choisie); });
    }
}

void Fenetre::aPropos()
{
    QMessageBox::about(
        this, QStringLiteral("À propos de Quillet"),
        QStringLiteral(
            "<h3>Quillet %1</h3><p>Le prix d’une commande, et ce qu’il en reste, pour les auteurs qui vendent leurs "
            "livres par la poste.</p>"
            "<p>© 2026 The Quillet authors · licence MIT</p>")
            .arg(QApplication::applicationVersion()));
}
