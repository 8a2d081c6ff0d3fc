#include "ui/documents/MetadonneesPdf.h"

#include <QXmlStreamWriter>

namespace Quillet {

namespace {

const QString rdf = QStringLiteral("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
const QString dublinCore = QStringLiteral("http://purl.org/dc/elements/1.1/");

// A property holds a list, be it of one value: `liste` says of which kind.
void propriete(QXmlStreamWriter &xml, const QString &nom, const QString &liste, const QXmlStreamAttributes &attributs,
               const QString &valeur)
{
    xml.writeStartElement(dublinCore, nom);
    xml.writeStartElement(rdf, liste);
    xml.writeStartElement(rdf, QStringLiteral("li"));
    xml.writeAttributes(attributs);
    xml.writeCharacters(valeur);
    for (int i = 0; i < 3; ++i)
        xml.writeEndElement();
}

} // namespace

QByteArray MetadonneesPdf::paquet(const QString &titre, const QString &auteur)
{
    QByteArray octets;
    QXmlStreamWriter xml(&octets);
    xml.writeProcessingInstruction(QStringLiteral("xpacket"),
                                   QStringLiteral("begin='\uFEFF' id='W5M0MpCehiHzreSzNTczkc9d'"));
    xml.writeNamespace(QStringLiteral("adobe:ns:meta/"), QStringLiteral("x"));
    xml.writeStartElement(QStringLiteral("adobe:ns:meta/"), QStringLiteral("xmpmeta"));
    xml.writeNamespace(rdf, QStringLiteral("rdf"));
    xml.writeStartElement(rdf, QStringLiteral("RDF"));
    xml.writeNamespace(dublinCore, QStringLiteral("dc"));
    xml.writeStartElement(rdf, QStringLiteral("Description"));
    xml.writeAttribute(rdf, QStringLiteral("about"), QString());
    QXmlStreamAttributes touteLangue;
    touteLangue.append(QStringLiteral("xml:lang"), QStringLiteral("x-default"));
    propriete(xml, QStringLiteral("title"), QStringLiteral("Alt"), touteLangue, titre);
    propriete(xml, QStringLiteral("creator"), QStringLiteral("Seq"), {}, auteur);
    xml.writeEndDocument();
    octets += "\n<?xpacket end='w'?>";
    return octets;
}

} // namespace Quillet
