#include "ui/Raccourcis.h"

#include "model/Enumeration.h"
#include "ui/Rubriques.h"

#include <QAbstractButton>
#include <QShortcut>

#include <algorithm>

namespace Quillet {

namespace {

using Raccourcis::Geste;
using Raccourcis::Groupe;
using Raccourcis::Raccourci;

QString texteDe(const QKeySequence &touches)
{
    return touches.toString(QKeySequence::NativeText);
}

// The platform's keys, of which the first is told: some keyboards have others.
Raccourci standard(Geste geste, QKeySequence::StandardKey quoi, const QString &effet)
{
    const auto touches = QKeySequence::keyBindings(quoi);
    return {geste, touches, effet, {texteDe(touches.value(0))}};
}

Groupe partout()
{
    Groupe groupe{QStringLiteral("Partout"), {}};
    for (const Rubrique rubrique : tous<Rubrique>) {
        const TraitsDeRubrique t = traits(rubrique);
        const QKeySequence touches(Qt::CTRL | t.touches.front());
        groupe.raccourcis.append({{}, {touches}, QStringLiteral("Écran %1").arg(t.libelle)});
    }
    groupe.raccourcis += QList<Raccourci>{
        {Geste::zoneSuivante, {Qt::Key_F6}, QStringLiteral("Partie suivante de la fenêtre")},
        {Geste::zonePrecedente, {Qt::SHIFT | Qt::Key_F6}, QStringLiteral("Partie précédente de la fenêtre")},
        {{}, {Qt::Key_Tab, Qt::SHIFT | Qt::Key_Tab}, QStringLiteral("D’un champ ou d’un bouton à l’autre")},
        {{}, {Qt::Key_Space}, QStringLiteral("Presser le bouton")},
        {{},
         {Qt::Key_Escape},
         QStringLiteral(
             "Quitter le champ où l’on a tapé, puis fermer la feuille ; à l’écran Livres, rendre la valeur d’avant")},
        {Geste::aide, {Qt::Key_F1, Qt::Key_Question}, QStringLiteral("Raccourcis clavier")},
        {Geste::quitter, {Qt::CTRL | Qt::Key_Q}, QStringLiteral("Quitter")},
    };
    return groupe;
}

Groupe surUneCouverture()
{
    return {
        QStringLiteral("Sur une couverture"),
        {{{},
          {},
          QStringLiteral("D’une couverture à l’autre"),
          {QStringLiteral("←"), QStringLiteral("→"), QStringLiteral("↑"), QStringLiteral("↓")}},
         {{}, {Qt::Key_Home, Qt::Key_End}, QStringLiteral("La première, la dernière")},
         {{}, {}, QStringLiteral("Le livre dont un mot du titre commence par ces lettres"), {QStringLiteral("A…Z")}},
         {{},
          {},
          QStringLiteral("Un exemplaire de plus"),
          {QStringLiteral("+"), QStringLiteral("Espace"), QStringLiteral("Entrée")}},
         {{}, {}, QStringLiteral("Un exemplaire de moins"), {QStringLiteral("−")}},
         {{}, {}, QStringLiteral("Ce nombre d’exemplaires (1 puis 2 : douze)"), {QStringLiteral("0…9")}},
         {{}, {Qt::Key_Delete, Qt::Key_Backspace}, QStringLiteral("Aucun exemplaire")}}};
}

} // namespace

QStringList Raccourcis::Raccourci::enTexte() const
{
    if (!dites.isEmpty())
        return dites;
    QStringList textes;
    std::ranges::transform(touches, std::back_inserter(textes), texteDe);
    return textes;
}

QList<Groupe> Raccourcis::table()
{
    return {partout(),
            surUneCouverture(),
            {QStringLiteral("Écran Commande"),
             {{Geste::chercherUnPays, {Qt::CTRL | Qt::Key_L}, QStringLiteral("Chercher un pays")},
              {Geste::etapeSuivante,
               {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter},
               QStringLiteral("Étape suivante : le lien, la réponse, la facture"),
               {QStringLiteral("Ctrl+Entrée")}},
              {Geste::repondre, {Qt::CTRL | Qt::Key_E}, QStringLiteral("Ouvrir la réponse")},
              {Geste::reinitialiser, {Qt::CTRL | Qt::Key_R}, QStringLiteral("Tout réinitialiser")},
              standard(Geste::rendre, QKeySequence::Undo, QStringLiteral("Rétablir la commande vidée")),
              {Geste::copierLeSuivant, {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, QStringLiteral("Copier le suivant")}}},
            {QStringLiteral("Facture"),
             {{Geste::imprimer, {Qt::CTRL | Qt::Key_P}, QStringLiteral("Imprimer la facture")},
              {Geste::enregistrer, {Qt::CTRL | Qt::Key_S}, QStringLiteral("Enregistrer la facture en PDF")}}},
            {QStringLiteral("Écran Livres"),
             {{Geste::chercherUnLivre, {Qt::CTRL | Qt::Key_F}, QStringLiteral("Chercher un livre")},
              {Geste::ajouterUnLivre, {Qt::CTRL | Qt::Key_N}, QStringLiteral("Ajouter un livre")},
              {Geste::modifierLeLivre, {Qt::Key_F2}, QStringLiteral("Modifier le livre")},
              {Geste::dupliquerLeLivre, {Qt::CTRL | Qt::Key_D}, QStringLiteral("Dupliquer le livre")},
              {Geste::retirerLeLivre, {Qt::Key_Delete}, QStringLiteral("Dans la liste, retirer le livre")},
              {Geste::monterLeLivre, {Qt::ALT | Qt::Key_Up}, QStringLiteral("Dans la liste, monter le livre")},
              {Geste::descendreLeLivre, {Qt::ALT | Qt::Key_Down}, QStringLiteral("Dans la liste, descendre le livre")},
              {Geste::livrePrecedent, {Qt::CTRL | Qt::Key_PageUp}, QStringLiteral("Livre précédent, dans sa feuille")},
              {Geste::livreSuivant, {Qt::CTRL | Qt::Key_PageDown}, QStringLiteral("Livre suivant, dans sa feuille")},
              standard(Geste::annuler, QKeySequence::Undo, QStringLiteral("Annuler")),
              standard(Geste::retablir, QKeySequence::Redo, QStringLiteral("Rétablir"))}}};
}

namespace {

Raccourci trouver(Geste geste)
{
    for (const Groupe &groupe : Raccourcis::table())
        for (const Raccourci &raccourci : groupe.raccourcis)
            if (raccourci.geste == geste)
                return raccourci;
    Q_UNREACHABLE();
}

} // namespace

QList<QKeySequence> Raccourcis::touches(Geste geste)
{
    return trouver(geste).touches;
}

void Raccourcis::dire(QWidget *controle, Geste geste)
{
    const Raccourci raccourci = trouver(geste);
    const QString touches = raccourci.enTexte().constFirst();
    if (controle->toolTip().isEmpty())
        controle->setToolTip(QStringLiteral("%1 (%2)").arg(raccourci.effet, touches));
    if (controle->accessibleDescription().isEmpty()) // the tooltip would be read, which says the name again
        controle->setAccessibleDescription(touches);
}

void Raccourcis::lier(QWidget *page, Geste geste, const std::function<void()> &faire)
{
    auto *raccourci = new QShortcut(page);
    raccourci->setKeys(touches(geste));
    raccourci->setAutoRepeat(false);
    QObject::connect(raccourci, &QShortcut::activated, page, faire);
}

void Raccourcis::presser(QAbstractButton *bouton, Geste geste, QWidget *page)
{
    lier(page ? page : bouton, geste, [bouton] { bouton->click(); });
    dire(bouton, geste);
}

} // namespace Quillet
