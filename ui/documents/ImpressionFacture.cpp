#include "ui/documents/ImpressionFacture.h"

#include "composants/Attente.h"
#include "composants/CheminChoisi.h"
#include "model/Fichier.h"
#include "ui/documents/DialogueImpression.h"
#include "ui/documents/LettresPdf.h"
#include "ui/documents/MetadonneesPdf.h"
#include "ui/documents/PageFacture.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

namespace Quillet {

namespace {

const QString titreDuDialogue = QStringLiteral("Enregistrer la facture");

void ecrire(const QString &chemin, const QByteArray &pdf)
{
    try {
        Fichier::ecrire(chemin, pdf);
    } catch (const ErreurStockage &erreur) {
        throw Echec(QStringLiteral("La facture n’a pas été enregistrée.\n%1").arg(erreur.texte()));
    }
}

} // namespace

QByteArray ImpressionFacture::pdf(const Facture &facture)
{
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&octets);
    pdf.setResolution(72); // a unit is a point
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins({});
    pdf.setTitle(facture.titre());
    pdf.setCreator(QStringLiteral("Quillet"));
    pdf.setDocumentXmpMetadata(MetadonneesPdf::paquet(facture.titre(), facture.vendeur.nom));
    QPainter peintre;
    const bool commence = peintre.begin(&pdf);
    if (commence)
        PageFacture::peindre(peintre, facture, PageFacture::imprimees());
    if (!commence || !peintre.end() || !octets.data().startsWith("%PDF-"))
        throw Echec(QStringLiteral("La facture n’a pas pu être mise en page."));
    return LettresPdf::retablir(octets.data(), PageFacture::textes(facture), QApplication::font());
}

bool ImpressionFacture::imprimantesJoignables(QWidget *parent, std::chrono::milliseconds patience)
{
    return Attente::auPlus(patience, parent, QStringLiteral("Recherche des imprimantes…"), FileImpression::consulter);
}

bool ImpressionFacture::proposerLePdf(QWidget *parent)
{
    QMessageBox question(QMessageBox::Warning, QStringLiteral("Facture"),
                         QStringLiteral("Le service d’impression ne répond pas : aucune imprimante ne peut être "
                                        "proposée.\nLa facture peut être enregistrée en PDF, et imprimée plus tard."),
                         QMessageBox::Cancel, parent);
    const QPushButton *enPdf = question.addButton(QStringLiteral("Enregistrer en PDF…"), QMessageBox::AcceptRole);
    question.exec();
    return question.clickedButton() == enPdf;
}

std::optional<QString> ImpressionFacture::imprimer(const Facture &facture, int exemplaires, const Permission &permise,
                                                   QWidget *parent)
{
    const QByteArray page = pdf(facture);
    QPrinter reglages;
    reglages.setPageSize(QPageSize(QPageSize::A4));
    reglages.setFullPage(true);
    reglages.setPageMargins({});
    reglages.setCopyCount(exemplaires);
    reglages.setDocName(facture.nomDeFichier()); // what the dialog proposes to a print to file
    DialogueImpression dialogue(&reglages, parent);
    if (dialogue.exec() != QDialog::Accepted || !permise())
        return std::nullopt;
    if (!dialogue.fichier().isEmpty())
        ecrire(dialogue.fichier(), page);
    else
        Attente::jusquAuBout(parent, QStringLiteral("Envoi de la facture à l’imprimante…"),
                             [&, titre = facture.titre() + QStringLiteral(".pdf"), travail = dialogue.travail()] {
                                 FileImpression::envoyer(page, titre, travail);
                             });
    return dialogue.fichier();
}

std::optional<QString> ImpressionFacture::enregistrer(const Facture &facture, const QString &dossier,
                                                      const Permission &permise, QWidget *parent)
{
    const bool connu = !dossier.isEmpty() && QDir(dossier).exists();
    QFileDialog dialogue(parent, titreDuDialogue,
                         connu ? dossier : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                         QStringLiteral("Documents PDF (*.pdf)"));
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setDefaultSuffix(QStringLiteral("pdf"));
    dialogue.selectFile(facture.nomDeFichier());
    if (dialogue.exec() != QDialog::Accepted)
        return std::nullopt;
    const auto chemin = CheminChoisi::avecSuffixe(dialogue.selectedFiles().constFirst(), QStringLiteral(".pdf"),
                                                  titreDuDialogue, parent);
    if (!chemin || !permise())
        return std::nullopt;
    ecrire(*chemin, pdf(facture));
    return chemin;
}

} // namespace Quillet
