#include "ui/documents/ImpressionFacture.h"

#include "model/Fichier.h"
#include "ui/documents/FileImpression.h"
#include "ui/documents/PageFacture.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>
#include <QXmlStreamWriter>

namespace {

// The standard's packet of metadata: the only place where a QPdfWriter takes an author.
QByteArray metadonnees(const Facture &facture)
{
    const QString rdf = QStringLiteral("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
    const QString dublinCore = QStringLiteral("http://purl.org/dc/elements/1.1/");
    QByteArray octets;
    QXmlStreamWriter xml(&octets);
    const auto propriete = [&](const char *nom, const char *liste, const QString &valeur) {
        xml.writeStartElement(dublinCore, QLatin1String(nom));
        xml.writeStartElement(rdf, QLatin1String(liste));
        xml.writeStartElement(rdf, QStringLiteral("li"));
        if (QLatin1String(liste) == QLatin1String("Alt"))
            xml.writeAttribute(QStringLiteral("xml:lang"), QStringLiteral("x-default"));
        xml.writeCharacters(valeur);
        xml.writeEndElement();
        xml.writeEndElement();
        xml.writeEndElement();
    };
    xml.writeProcessingInstruction(QStringLiteral("xpacket"),
                                   QStringLiteral("begin='\uFEFF' id='W5M0MpCehiHzreSzNTczkc9d'"));
    xml.writeNamespace(QStringLiteral("adobe:ns:meta/"), QStringLiteral("x"));
    xml.writeStartElement(QStringLiteral("adobe:ns:meta/"), QStringLiteral("xmpmeta"));
    xml.writeNamespace(rdf, QStringLiteral("rdf"));
    xml.writeStartElement(rdf, QStringLiteral("RDF"));
    xml.writeNamespace(dublinCore, QStringLiteral("dc"));
    xml.writeStartElement(rdf, QStringLiteral("Description"));
    xml.writeAttribute(rdf, QStringLiteral("about"), QString());
    propriete("title", "Alt", facture.titre());
    propriete("creator", "Seq", facture.vendeur.nom);
    xml.writeEndDocument();
    octets += "\n<?xpacket end='w'?>";
    return octets;
}

// The dialog adds the suffix only to a name without any dot, and asked about replacing another file then.
// Empty when the user keeps the file that stands there.
QString enPdf(const QString &chemin, QWidget *parent)
{
    const QString suffixe = QStringLiteral(".pdf");
    if (chemin.endsWith(suffixe, Qt::CaseInsensitive))
        return chemin;
    const QString complet = chemin + suffixe;
    const QString question =
        QStringLiteral("« %1 » existe déjà. Voulez-vous le remplacer ?").arg(QFileInfo(complet).fileName());
    const bool garde =
        QFile::exists(complet)
        && QMessageBox::question(parent, QStringLiteral("Enregistrer la facture"), question) != QMessageBox::Yes;
    return garde ? QString() : complet;
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
    pdf.setDocumentXmpMetadata(metadonnees(facture));
    QPainter peintre;
    const bool commence = peintre.begin(&pdf);
    if (commence)
        PageFacture(facture, PageFacture::imprimees()).peindre(peintre);
    if (!commence || !peintre.end() || !octets.data().startsWith("%PDF-"))
        throw Erreur(QStringLiteral("La facture n’a pas pu être mise en page."));
    return octets.data();
}

bool ImpressionFacture::imprimer(const Facture &facture, int exemplaires, QWidget *parent)
{
    const QByteArray page = pdf(facture);
    QPrinter choix;
    choix.setPageSize(QPageSize(QPageSize::A4));
    choix.setFullPage(true);
    choix.setPageMargins({});
    choix.setCopyCount(exemplaires);
    const QString titre = facture.titre() + QStringLiteral(".pdf");
    choix.setDocName(titre);
    QPrintDialog dialogue(&choix, parent);
    dialogue.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialogue.exec() != QDialog::Accepted)
        return false;
    if (choix.outputFileName().isEmpty())
        FileImpression::envoyer(page, titre, choix);
    else
        Fichier::ecrire(choix.outputFileName(), page);
    return true;
}

std::optional<QString> ImpressionFacture::enregistrer(const Facture &facture, const QString &dossier, QWidget *parent)
{
    const bool connu = !dossier.isEmpty() && QDir(dossier).exists();
    QFileDialog dialogue(parent, QStringLiteral("Enregistrer la facture"),
                         connu ? dossier : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                         QStringLiteral("Documents PDF (*.pdf)"));
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setDefaultSuffix(QStringLiteral("pdf"));
    dialogue.selectFile(facture.nomDeFichier());
    if (dialogue.exec() != QDialog::Accepted)
        return std::nullopt;
    const QString chemin = enPdf(dialogue.selectedFiles().constFirst(), parent);
    if (chemin.isEmpty())
        return std::nullopt;
    Fichier::ecrire(chemin, pdf(facture));
    return chemin;
}
