#include "ui/echanges/Listes.h"

#include "composants/Attente.h"
#include "composants/CheminChoisi.h"
#include "echanges/ListeDeLivres.h"
#include "model/Fichier.h"
#include "model/controle/Objections.h"
#include "textes/TextesListe.h"
#include "ui/Contexte.h"
#include "ui/echanges/DialoguesDeFichier.h"
#include "ui/echanges/FeuilleListe.h"

#include <QFileDialog>
#include <QFileInfo>

namespace Quillet {

namespace {

const QString cleDossier = QStringLiteral("dossierListes");

Regles::Reperes reperes(const Catalogue &catalogue)
{
    const QDir couvertures(catalogue.ressources().chemin(QStringLiteral("couvertures")));
    return Objections::reperes(catalogue.donnees(), couvertures);
}

QByteArray octets(const QString &chemin)
{
    if (const auto octets = Fichier::lireOuRefuser(chemin, Fichier::Borne::donnees))
        return *octets;
    throw Echec(QStringLiteral("Ce fichier n’existe plus."));
}

} // namespace

void Listes::lire(const Contexte &contexte, QWidget *fenetre)
{
    QFileDialog *choix =
        DialoguesDeFichier::choix(QStringLiteral("Lire une liste"), QStringLiteral("Listes (*.csv *.tsv *.txt)"),
                                  contexte.preferences, cleDossier, fenetre);
    choix->setFileMode(QFileDialog::ExistingFile);
    DialoguesDeFichier::ouvrir(choix, fenetre, [&contexte, fenetre](const QString &chemin) {
        contexte.preferences.retenirSiPossible(cleDossier, QFileInfo(chemin).absolutePath());
        montrer(contexte, chemin, fenetre);
    });
}

void Listes::montrer(const Contexte &contexte, const QString &chemin, QWidget *fenetre)
{
    try {
        QByteArray lus;
        ListeDeLivres liste;
        Attente::jusquAuBout(fenetre, QStringLiteral("Lecture de la liste…"),
                             [&, donnees = contexte.donnees(), connus = reperes(contexte.catalogue)] {
                                 lus = octets(chemin);
                                 liste = ListeDeLivres::lue(lus, donnees, connus);
                             });
        (new FeuilleListe(contexte, lus, liste, fenetre))->ouvrir();
    } catch (const Echec &echec) {
        DialoguesDeFichier::prevenir(QStringLiteral("Lire une liste"), echec.texte(), fenetre);
    }
}

ListeDeLivres Listes::lue(const QByteArray &octets, const Contexte &contexte)
{
    return ListeDeLivres::lue(octets, contexte.donnees(), reperes(contexte.catalogue));
}

void Listes::ecrire(const Contexte &contexte, QWidget *fenetre)
{
    const QString titre = QStringLiteral("Écrire la liste des livres");
    QFileDialog *choix =
        DialoguesDeFichier::choix(titre, QStringLiteral("Listes (*.csv)"), contexte.preferences, cleDossier, fenetre);
    choix->setAcceptMode(QFileDialog::AcceptSave);
    choix->setDefaultSuffix(QStringLiteral("csv"));
    choix->selectFile(TextesListe::nomDeFichier(contexte.jour.aujourdhui()));
    DialoguesDeFichier::ouvrir(choix, fenetre, [&contexte, fenetre, titre](const QString &choisi) {
        const auto chemin = CheminChoisi::avecSuffixe(choisi, QStringLiteral(".csv"), titre, fenetre);
        if (!chemin)
            return;
        try {
            Fichier::ecrire(*chemin, ListeDeLivres::ecrite(contexte.donnees()));
            contexte.preferences.retenirSiPossible(cleDossier, QFileInfo(*chemin).absolutePath());
        } catch (const ErreurStockage &echec) {
            DialoguesDeFichier::prevenir(titre, QStringLiteral("La liste n’a pas été écrite.\n%1").arg(echec.texte()),
                                         fenetre);
        }
    });
}

} // namespace Quillet
