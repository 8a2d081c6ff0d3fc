#include "ui/echanges/RetourAuDemarrage.h"

#include "composants/Attente.h"
#include "echanges/Reprise.h"
#include "textes/TextesReprise.h"

#include <QDateTime>
#include <QFileInfo>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>

#include <memory>
#include <optional>

namespace Quillet {

namespace {

const QString titre = QStringLiteral("Revenir à une copie");
const QString gardees = QStringLiteral("Copies gardées");

QString suites(const QString &donnees)
{
    return QFileInfo(donnees).isSymLink()
               ? QStringLiteral("Le lien « donnees » sera mis de côté, et un dossier ordinaire prendra sa place.")
               : QStringLiteral("Le dossier d’aujourd’hui sera gardé tel quel, sous un autre nom.");
}

bool veutUneCopie(const QString &raison, const QString &suites)
{
    QMessageBox boite(QMessageBox::Critical, QStringLiteral("Quillet"), raison);
    boite.setInformativeText(suites);
    const QPushButton *revenir = boite.addButton(titre + u'…', QMessageBox::ActionRole);
    QPushButton *fermer = boite.addButton(QStringLiteral("Fermer"), QMessageBox::RejectRole);
    boite.setDefaultButton(fermer);
    boite.setEscapeButton(fermer);
    boite.exec();
    return boite.clickedButton() == revenir;
}

std::optional<Copie> choisie(const QList<Copie> &copies)
{
    QStringList noms;
    for (const Copie &copie : copies)
        noms.append(TextesReprise::copie(copie));
    QInputDialog choix;
    choix.setWindowTitle(titre);
    choix.setLabelText(gardees + QStringLiteral(" :"));
    choix.setOption(QInputDialog::UseListViewForComboBoxItems);
    choix.setComboBoxItems(noms);
    auto *liste = choix.findChild<QListView *>(QString(), Qt::FindDirectChildrenOnly);
    liste->setAccessibleName(gardees); // the label is another field's
    choix.setTextValue(noms.first());  // the latest
    choix.setOkButtonText(QStringLiteral("Reprendre cette copie"));
    choix.setCancelButtonText(QStringLiteral("Annuler"));
    return choix.exec() == QDialog::Accepted ? std::optional(copies[noms.indexOf(choix.textValue())]) : std::nullopt;
}

bool aDesDonneesPropres(const Copie &copie)
{
    try {
        return Archive::manifeste(copie.chemin).aDesDonneesPropres();
    } catch (const Echec &) {
        return false; // damaged
    }
}

} // namespace

RetourAuDemarrage::RetourAuDemarrage(const Stockage &stockage, const Preferences &preferences)
    : demeure_{.donnees = Ressources(stockage.donneesPersonnelles(), Origine::utilisateur),
               .livres = {},
               .utilisateur = stockage.dossier(),
               .preferences = preferences}
{
    if (!QFileInfo(demeure_.donnees.dossier().path()).isDir())
        return; // others' data, or a link to a disk that is away today
    try {
        copies_ = Copies(demeure_).liste();
        copies_.removeIf([](const Copie &copie) { return !aDesDonneesPropres(copie); });
    } catch (const Echec &) {
        copies_.clear(); // no way out: the program says what stops it
    }
}

bool RetourAuDemarrage::accepte(const QString &raison) const
{
    while (veutUneCopie(raison, suites(demeure_.donnees.dossier().path())))
        if (const auto copie = choisie(copies_))
            try {
                reprendre(*copie);
                return true;
            } catch (const RepriseInachevee &) {
                throw; // the next start ends it
            } catch (const Echec &erreur) {
                QMessageBox::warning(nullptr, titre, erreur.texte());
            }
    return false;
}

void RetourAuDemarrage::reprendre(const Copie &copie) const
{
    const QDateTime maintenant = QDateTime::currentDateTime();
    std::unique_ptr<Reprise> reprise;
    Attente::jusquAuBout(nullptr, QStringLiteral("Lecture de la copie…"),
                         [&] { reprise = Reprise::preparer(copie.chemin, demeure_, maintenant.date()); });
    const QString ecart = reprise->prendreALaPlace(maintenant, [](const std::function<void()> &travail) {
        Attente::jusquAuBout(nullptr, QStringLiteral("Reprise de la copie…"), travail);
    });
    QStringList phrases{QStringLiteral("Vos données sont celles de la copie du %1.").arg(TextesReprise::copie(copie))};
    phrases.append(TextesReprise::laisses(reprise->inconnus()));
    phrases.append(TextesReprise::aCorriger(reprise->remarques()));
    phrases.append(QStringLiteral("Le dossier d’avant est gardé tel quel : %1").arg(ecart));
    phrases.removeAll(QString());
    QMessageBox::information(nullptr, titre, phrases.join(QStringLiteral("\n\n")));
}

} // namespace Quillet
