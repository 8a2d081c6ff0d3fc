#include "ui/Fenetre.h"

#include "ui/ContenuPrincipal.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QShortcut>

namespace {

constexpr QSize tailleParDefaut(1320, 860);
constexpr QSize tailleMinimale(980, 640);

} // namespace

Fenetre::Fenetre(Catalogue &catalogue, Commande &commande, ImagesCouvertures &images, Aujourdhui aujourdhui)
    : contenu_(new ContenuPrincipal(catalogue, commande, images, std::move(aujourdhui)))
{
    setObjectName(QStringLiteral("quillet"));
    setWindowTitle(QStringLiteral("Quillet"));
    contenu_->setMinimumSize(tailleMinimale);
    setCentralWidget(contenu_);
    creerMenu();
    creerRaccourcis();
    qApp->installEventFilter(this);
    resize(tailleParDefaut.width(), tailleParDefaut.height() + menuBar()->sizeHint().height());
}

// Qt remembers that the keyboard moved the focus, and never forgets it: focus rings would follow the mouse.
bool Fenetre::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::MouseButtonPress && objet->isWidgetType())
        static_cast<QWidget *>(objet)->window()->setAttribute(Qt::WA_KeyboardFocusChange, false);
    return QMainWindow::eventFilter(objet, evenement);
}

void Fenetre::ramener()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Fenetre::creerMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Quillet"));
    menu->addAction(tr("À &propos de Quillet"), this, &Fenetre::aPropos)->setMenuRole(QAction::AboutRole);
    menu->addSeparator();
    QAction *quitter = menu->addAction(tr("&Quitter"), this, &QWidget::close);
    quitter->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    quitter->setMenuRole(QAction::QuitRole);
}

void Fenetre::creerRaccourcis()
{
    const QList<std::pair<int, Rubrique>> touches{
        {Qt::Key_1, Rubrique::commande}, {Qt::Key_2, Rubrique::tarifs}, {Qt::Key_3, Rubrique::livres}};
    for (const auto &[touche, rubrique] : touches) {
        auto *raccourci = new QShortcut(QKeySequence(QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(touche))), this);
        connect(raccourci, &QShortcut::activated, contenu_, [this, choisie = rubrique] { contenu_->montrer(choisie); });
    }
}

void Fenetre::aPropos()
{
    QMessageBox::about(
        this, tr("À propos de Quillet"),
        tr("<h3>Quillet %1</h3><p>Le prix d’une commande, la réponse à l’acheteur, la facture et la douane, "
           "pour les auteurs qui vendent leurs livres par la poste.</p>"
           "<p>© 2026 The Quillet authors · licence MIT</p>")
            .arg(QApplication::applicationVersion()));
}
