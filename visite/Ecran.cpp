#include "visite/Ecran.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QTest>

#include <algorithm>
#include <cstdio>

namespace Quillet {

namespace {

bool porteLeNom(const QWidget *widget, const QString &nom)
{
    const auto *bouton = qobject_cast<const QAbstractButton *>(widget);
    const QString lu = widget->accessibleName().isEmpty() && bouton ? bouton->text() : widget->accessibleName();
    return lu == nom || lu.startsWith(nom + QStringLiteral(", "));
}

template <typename Controle>
Controle *trouver(const QWidget *fenetre, const QString &nom)
{
    auto *trouve = qobject_cast<Controle *>(Ecran::controle(fenetre, nom));
    if (!trouve)
        std::fprintf(stderr, "Introuvable à l’écran : %s\n", qPrintable(nom));
    return trouve;
}

void montrer(QWidget *controle)
{
    QCoreApplication::processEvents(); // what has just changed is laid out first
    for (QWidget *parent = controle->parentWidget(); parent; parent = parent->parentWidget())
        if (auto *defilement = qobject_cast<QScrollArea *>(parent))
            defilement->ensureWidgetVisible(controle);
}

} // namespace

QWidget *Ecran::controle(const QWidget *fenetre, const QString &nom)
{
    const auto widgets = fenetre->findChildren<QWidget *>();
    const auto trouve = std::ranges::find_if(widgets, [&](const QWidget *widget) {
        return widget->isVisible() && !qobject_cast<const QLabel *>(widget) && porteLeNom(widget, nom);
    });
    return trouve == widgets.end() ? nullptr : *trouve;
}

bool Ecran::cliquer(QWidget *fenetre, const QString &nom)
{
    auto *bouton = trouver<QAbstractButton>(fenetre, nom);
    if (!bouton)
        return false;
    montrer(bouton);
    QTest::mouseClick(bouton, Qt::LeftButton);
    return true;
}

bool Ecran::choisirAuMenu(const QWidget *fenetre, const QString &entree)
{
    for (const auto *menu : fenetre->findChildren<QMenu *>())
        for (QAction *action : menu->actions())
            if (action->isEnabled() && action->text().remove(u'&') == entree) {
                action->trigger();
                return true;
            }
    std::fprintf(stderr, "Introuvable aux menus : %s\n", qPrintable(entree));
    return false;
}

bool Ecran::taper(QWidget *fenetre, const QString &nom, const QString &texte)
{
    auto *champ = trouver<QWidget>(fenetre, nom);
    if (!champ)
        return false;
    montrer(champ);
    QTest::keyClick(champ, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(champ, Qt::Key_Delete);
    const QStringList lignes = texte.split(u'\n');
    for (qsizetype i = 0; i < lignes.size(); ++i) {
        if (i > 0)
            QTest::keyClick(champ, Qt::Key_Return);
        QTest::keyClicks(champ, lignes[i]);
    }
    return true;
}

bool Ecran::choisir(QWidget *fenetre, const QString &nom, const QString &entree)
{
    auto *choix = trouver<QComboBox>(fenetre, nom);
    if (!choix)
        return false;
    const int rang = choix->findText(entree);
    if (rang < 0) {
        std::fprintf(stderr, "%s n’offre pas : %s\n", qPrintable(nom), qPrintable(entree));
        return false;
    }
    montrer(choix);
    choix->setFocus();
    QTest::keyClick(choix, Qt::Key_Home);
    for (int i = 0; choix->currentIndex() != rang && i < choix->count(); ++i)
        QTest::keyClick(choix, Qt::Key_Down);
    return choix->currentIndex() == rang;
}

bool Ecran::defiler(QWidget *fenetre, const QString &nom)
{
    auto *controle = trouver<QWidget>(fenetre, nom);
    if (controle)
        montrer(controle);
    return controle != nullptr;
}

QLabel *Ecran::etiquette(const QWidget *fenetre, const QString &texte)
{
    const auto etiquettes = fenetre->findChildren<QLabel *>();
    const auto trouvee = std::ranges::find_if(
        etiquettes, [&](const QLabel *etiquette) { return etiquette->isVisible() && etiquette->text() == texte; });
    return trouvee == etiquettes.end() ? nullptr : *trouvee;
}

bool Ecran::montre(const QWidget *fenetre, const QString &texte)
{
    return etiquette(fenetre, texte) != nullptr;
}

QString Ecran::valeurEnFaceDe(const QWidget *fenetre, const QString &libelle)
{
    const QLabel *titre = etiquette(fenetre, libelle);
    if (!titre)
        return {};
    const auto valeurs = titre->parentWidget()->findChildren<QLabel *>(Qt::FindDirectChildrenOnly);
    const auto valeur = std::ranges::find_if(valeurs, [&](const QLabel *texte) {
        return texte->isVisible() && texte->geometry().left() > titre->geometry().right();
    });
    return valeur == valeurs.end() ? QString() : (*valeur)->text();
}

} // namespace Quillet
