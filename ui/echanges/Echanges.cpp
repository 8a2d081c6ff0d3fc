#include "ui/echanges/Echanges.h"

#include "composants/Attente.h"
#include "composants/CheminChoisi.h"
#include "composants/Lien.h"
#include "echanges/Archive.h"
#include "echanges/Copies.h"
#include "echanges/Reprise.h"
#include "textes/TextesReprise.h"
#include "ui/Contexte.h"
#include "ui/echanges/DialoguesDeFichier.h"
#include "ui/echanges/FeuilleCopies.h"
#include "ui/echanges/FeuilleImport.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

const QString cleDossier = QStringLiteral("dossierArchives");
const QString suffixe = QStringLiteral(".zip");
const QString filtre = QStringLiteral("Archives (*.zip)");
const QString titreExport = QStringLiteral("Exporter mes données");

void direExporte(const QString &chemin, const QString &absents, QWidget *parent)
{
    auto *boite = new QMessageBox(QMessageBox::Information, titreExport,
                                  QStringLiteral("Vos données sont dans « %1 ».").arg(QFileInfo(chemin).fileName()),
                                  QMessageBox::Ok, parent);
    boite->setInformativeText(absents);
    boite->setEscapeButton(QMessageBox::Ok);
    boite->setAttribute(Qt::WA_DeleteOnClose);
    const QPushButton *dossier = boite->addButton(QStringLiteral("Ouvrir le dossier"), QMessageBox::ActionRole);
    QObject::connect(dossier, &QPushButton::clicked, parent,
                     [chemin, parent] { Lien::ouvrirFichier(QFileInfo(chemin).absolutePath(), parent); });
    boite->open();
}

} // namespace

Echanges::Echanges(const Contexte &contexte, QWidget *fenetre)
    : QObject(fenetre), contexte_(contexte), fenetre_(fenetre)
{
}

// A copy under way owns all that it touches.
Echanges::~Echanges()
{
    constexpr auto patience = 2s;
    if (fil_)
        fil_->wait(QDeadlineTimer(patience));
}

void Echanges::exporter()
{
    QFileDialog *choix = DialoguesDeFichier::choix(titreExport, filtre, contexte_.preferences, cleDossier, fenetre_);
    choix->setAcceptMode(QFileDialog::AcceptSave);
    choix->setDefaultSuffix(suffixe.sliced(1));
    choix->selectFile(TextesReprise::nomDExport(contexte_.jour.aujourdhui()));
    DialoguesDeFichier::ouvrir(choix, this, [this](const QString &choisi) { enregistrer(choisi); });
}

void Echanges::enregistrer(const QString &choisi)
{
    const auto chemin = CheminChoisi::avecSuffixe(choisi, suffixe, titreExport, fenetre_);
    if (!chemin)
        return;
    const Demeure demeure = Demeure::de(contexte_.catalogue, contexte_.preferences);
    const QDate jour = contexte_.jour.aujourdhui();
    QStringList absents;
    try {
        Attente::jusquAuBout(fenetre_, QStringLiteral("Export de vos données…"), [&] {
            const Bagage bagage = Bagage::de(demeure, jour);
            absents = bagage.absents;
            Archive::ecrire(*chemin, bagage);
        });
    } catch (const Echec &erreur) {
        DialoguesDeFichier::prevenir(
            titreExport, QStringLiteral("Vos données n’ont pas été exportées.\n%1").arg(erreur.texte()), fenetre_);
        return;
    }
    contexte_.preferences.retenirSiPossible(cleDossier, QFileInfo(*chemin).absolutePath());
    direExporte(*chemin, TextesReprise::absents(absents), fenetre_);
}

void Echanges::importer()
{
    QFileDialog *choix =
        DialoguesDeFichier::choix(QStringLiteral("Importer"), filtre, contexte_.preferences, cleDossier, fenetre_);
    choix->setFileMode(QFileDialog::ExistingFile);
    DialoguesDeFichier::ouvrir(choix, this, [this](const QString &archive) {
        sansCopie([&] { return montrer(contexte_, archive, QStringLiteral("Importer"), fenetre_); });
    });
}

void Echanges::revenirAUneCopie()
{
    sansCopie([this] {
        auto *feuille = new FeuilleCopies(contexte_, echec_, fenetre_);
        feuille->ouvrir();
        return feuille;
    });
}

void Echanges::attendreLaCopie()
{
    if (!fil_)
        return;
    Attente::jusquAuBout(fenetre_, QStringLiteral("Copie du jour…"), [copie = copie_] { copie.wait(); });
    echec_ = copie_.get();
}

// No copy of the day starts under the sheet, which may stay open until another day.
void Echanges::sansCopie(const std::function<QDialog *()> &ouvrir)
{
    const auto reprendre = [this] {
        occupe_ = false;
        if (aFaire_)
            garder();
    };
    occupe_ = true;
    attendreLaCopie();
    if (QDialog *feuille = ouvrir())
        connect(feuille, &QDialog::finished, this, reprendre);
    else
        reprendre();
}

QDialog *Echanges::montrer(const Contexte &contexte, const QString &archive, const QString &geste, QWidget *parent)
{
    const Demeure demeure = Demeure::de(contexte.catalogue, contexte.preferences);
    const QDate jour = contexte.jour.aujourdhui();
    std::unique_ptr<Reprise> reprise;
    try {
        Attente::jusquAuBout(parent, QStringLiteral("Lecture de l’archive…"),
                             [&] { reprise = Reprise::preparer(archive, demeure, jour); });
    } catch (const Echec &erreur) {
        DialoguesDeFichier::prevenir(geste, erreur.texte(), parent);
        return nullptr;
    }
    auto *feuille = new FeuilleImport(contexte, std::move(reprise), geste, parent);
    feuille->ouvrir();
    return feuille;
}

void Echanges::garderChaqueJour()
{
    connect(&contexte_.jour, &JourCourant::change, this, &Echanges::garder);
    garder();
}

// Unsaid when it fails, but in the sheet of the copies: who is at work is not to be held up by it.
void Echanges::garder()
{
    aFaire_ = fil_ || occupe_;
    if (aFaire_)
        return;
    const auto echec = std::make_shared<std::promise<QString>>();
    copie_ = echec->get_future().share();
    fil_ = QThread::create(
        [demeure = Demeure::de(contexte_.catalogue, contexte_.preferences), jour = contexte_.jour.aujourdhui(), echec] {
            try {
                Copies(demeure).duJour(jour);
                echec->set_value({});
            } catch (const Echec &erreur) {
                echec->set_value(erreur.texte());
            }
        });
    connect(fil_, &QThread::finished, fil_, &QObject::deleteLater);
    connect(fil_, &QThread::finished, this, [this] {
        fil_ = nullptr;
        echec_ = copie_.get();
        emit copieFaite();
        if (aFaire_)
            garder();
    });
    fil_->start(QThread::LowPriority);
}

} // namespace Quillet
