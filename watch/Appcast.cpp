#include "watch/Appcast.h"

#include "model/SensDeLecture.h"
#include "watch/ErreurMiseAJour.h"
#include "watch/TexteHTML.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace Quillet {

namespace {

using Appcast::Flux;
using Appcast::Parution;

constexpr qsizetype attributsMaximaux = 500;
constexpr int profondeurMaximale = 100;
constexpr qsizetype nomMaximal = 32;
constexpr qsizetype notesMaximales = 10'000;

// Private characters, which no note needs, stand for what HTML breaks the line with while its tags are taken out.
constexpr QChar ligne(0xE000);
constexpr QChar puce(0xE001);

const QString &sparkle()
{
    static const QString espace = QStringLiteral("http://www.andymatuschak.org/xml-namespaces/sparkle");
    return espace;
}

const QString &quillet()
{
    static const QString espace = QStringLiteral("https://quillet.example/flux");
    return espace;
}

// The XML reader compares each attribute of a tag to all others: ten thousand would hold it for seconds. Each has its
// value in quotes. No "<" stands within a tag, so that what a comment or a text leaves open ends with the next one; one
// that opens with "!" is none.
bool tropDAttributs(QStringView flux)
{
    qsizetype attributs = 0;
    bool balise = false;
    QChar guillemet; // of the value under way, null when there is none
    for (qsizetype place = 0; place < flux.size(); ++place) {
        const QChar signe = flux[place];
        if (signe == u'<') {
            balise = place + 1 < flux.size() && flux[place + 1] != u'!';
            guillemet = {};
            attributs = 0;
        } else if (!balise) {
            continue;
        } else if (!guillemet.isNull()) {
            if (signe == guillemet)
                guillemet = {};
        } else if (signe == u'>') {
            balise = false;
        } else if (signe == u'"' || signe == u'\'') {
            guillemet = signe;
            if (++attributs > attributsMaximaux)
                return true;
        }
    }
    return false;
}

// Sound to its end, past the root too, and not deeper than the stack: Qt calls itself for each level of a text.
void exigerSain(const QString &flux)
{
    QXmlStreamReader xml(flux);
    for (int profondeur = 0; !xml.atEnd();) {
        xml.readNext();
        profondeur += xml.isStartElement() - xml.isEndElement();
        if (profondeur > profondeurMaximale)
            throw ErreurMiseAJour::listeIllisible(QStringLiteral("ses éléments s’emboîtent trop profondément"));
    }
    if (xml.hasError())
        throw ErreurMiseAJour::listeIllisible(QStringLiteral("le document est coupé ou mal formé"));
}

// Never half a character.
QString debut(const QString &texte, qsizetype auPlus)
{
    const bool coupe = auPlus < texte.size() && texte[auPlus].isLowSurrogate();
    return texte.left(coupe ? auPlus - 1 : auPlus);
}

// A feed may serve several systems: whom a package is for, from the least to the most fitting.
enum class Pour { unAutre, tous, celuiCi };

Pour destinataire(const QXmlStreamAttributes &paquet, const QString &systeme)
{
    const QStringView nomme = paquet.value(sparkle(), QStringLiteral("os"));
    if (nomme.isEmpty() || nomme == u"linux")
        return Pour::tous;
    return nomme == systeme ? Pour::celuiCi : Pour::unAutre;
}

struct Element
{
    QString version;
    QString nom;
    QString description;
    QString canal;
    QString versionDUnPaquet; // the first that is understood, of whatever system
    QXmlStreamAttributes paquet;
    Pour destinataire = Pour::tous; // of the package
    bool autreSysteme = false;      // has a package that is not for this one
};

QString version(const QXmlStreamAttributes &paquet)
{
    return paquet.value(sparkle(), QStringLiteral("version")).toString();
}

void retenir(const QXmlStreamAttributes &paquet, const QString &systeme, Element &lu)
{
    if (lu.versionDUnPaquet.isEmpty() && NumeroDeVersion::lire(version(paquet)))
        lu.versionDUnPaquet = version(paquet);
    const Pour pour = destinataire(paquet, systeme);
    if (pour == Pour::unAutre) {
        lu.autreSysteme = true;
    } else if (pour >= lu.destinataire) {
        lu.paquet = paquet;
        lu.destinataire = pour;
    }
}

// Not of another system alone, nor of a channel, which nobody here has joined.
bool pourNous(const Element &lu)
{
    return lu.canal.isEmpty() && (!lu.autreSysteme || !lu.paquet.isEmpty());
}

Element element(QXmlStreamReader &xml, const QString &systeme)
{
    Element lu;
    while (xml.readNextStartElement()) {
        const bool deSparkle = xml.namespaceUri() == sparkle();
        const bool duFlux = xml.namespaceUri().isEmpty();
        if (deSparkle && xml.name() == u"version") {
            lu.version = xml.readElementText(QXmlStreamReader::SkipChildElements);
        } else if (deSparkle && xml.name() == u"shortVersionString") {
            lu.nom = xml.readElementText(QXmlStreamReader::SkipChildElements);
        } else if (deSparkle && xml.name() == u"channel") {
            lu.canal = xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
        } else if (duFlux && xml.name() == u"description") {
            lu.description = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else {
            if (duFlux && xml.name() == u"enclosure")
                retenir(xml.attributes(), systeme, lu);
            xml.skipCurrentElement();
        }
    }
    return lu;
}

QByteArray empreinte(const QByteArray &hexadecimale)
{
    const QByteArray octets = QByteArray::fromHex(hexadecimale); // which skips what is none
    const bool juste = octets.size() == QCryptographicHash::hashLength(QCryptographicHash::Sha256);
    return juste && octets.toHex() == hexadecimale ? octets : QByteArray();
}

// The item's; else its package's; else that of a package beside it.
QString version(const Element &lu)
{
    if (!lu.version.isEmpty())
        return lu.version;
    const QString sienne = version(lu.paquet);
    return NumeroDeVersion::lire(sienne) ? sienne : lu.versionDUnPaquet;
}

// None without a number that is understood: an item from another time must not hide those that follow.
std::optional<Parution> parution(const Element &lu)
{
    const QString court = lu.paquet.value(sparkle(), QStringLiteral("shortVersionString")).toString();
    const QString nom = lu.nom.isEmpty() ? court : lu.nom;
    const bool lisible = !nom.isEmpty() && !contientUnSigneDeSens(nom);
    const QString ecrit = version(lu);
    const auto numero = NumeroDeVersion::lire(ecrit);
    if (!numero)
        return std::nullopt;
    return Parution{.numero = *numero,
                    .nom = debut((lisible ? nom : ecrit).simplified(), nomMaximal),
                    .notes = Appcast::notes(lu.description),
                    .paquet = QUrl(lu.paquet.value(QLatin1String("url")).toString().trimmed(), QUrl::StrictMode),
                    .longueur = lu.paquet.value(QLatin1String("length")).toLongLong(),
                    .empreinte = empreinte(lu.paquet.value(quillet(), QStringLiteral("sha256")).toLatin1())};
}

// Of the root.
QDateTime date(const QXmlStreamAttributes &racine, const QString &nom)
{
    auto lue = QDateTime::fromString(racine.value(quillet(), nom).toString(), Qt::ISODate);
    if (!lue.isValid() || lue.timeSpec() != Qt::UTC)
        throw ErreurMiseAJour::listeIllisible(QStringLiteral("elle n’est pas datée"));
    return lue;
}

Flux entrer(QXmlStreamReader &xml)
{
    xml.readNextStartElement();
    if (xml.name() != u"rss")
        throw ErreurMiseAJour::listeIllisible(QStringLiteral("ce n’est pas un flux de mises à jour"));
    return {.etabli = date(xml.attributes(), QStringLiteral("etabli")),
            .expire = date(xml.attributes(), QStringLiteral("expire")),
            .parutions = {}};
}

} // namespace

Flux Appcast::lire(const QString &flux, const QString &systeme)
{
    if (tropDAttributs(flux))
        throw ErreurMiseAJour::listeIllisible(QStringLiteral("une balise a trop d’attributs"));
    // It brings entities, and reading it may take as long as its author likes.
    if (flux.contains(QStringLiteral("<!DOCTYPE")))
        throw ErreurMiseAJour::listeIllisible(QStringLiteral("un type de document n’y a pas sa place"));
    exigerSain(flux);
    QXmlStreamReader xml(flux);
    Flux lu = entrer(xml);
    QList<Element> lus;
    while (xml.readNextStartElement()) {
        if (xml.name() != u"channel") {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (xml.name() == u"item")
                lus.append(element(xml, systeme));
            else
                xml.skipCurrentElement();
        }
    }
    lus.removeIf([](const Element &un) { return !pourNous(un); });
    for (const Element &un : lus)
        if (const auto comprise = parution(un))
            lu.parutions.append(*comprise);
    if (lu.parutions.isEmpty() && !lus.isEmpty())
        throw ErreurMiseAJour::listeIllisible(QStringLiteral("aucun numéro de version n’y est compris"));
    return lu;
}

std::optional<Parution> Appcast::aProposer(const QList<Parution> &parutions, const NumeroDeVersion &installee)
{
    const auto derniere = std::ranges::max_element(parutions, {}, &Parution::numero);
    if (derniere == parutions.end() || derniere->numero <= installee)
        return std::nullopt;
    // An address may be malformed and still have these.
    if (!derniere->paquet.isValid() || derniere->paquet.scheme() != u"https" || derniere->paquet.host().isEmpty())
        throw ErreurMiseAJour::refusee(QStringLiteral("son adresse n’est pas sécurisée"));
    if (derniere->empreinte.isEmpty())
        throw ErreurMiseAJour::refusee(QStringLiteral("son empreinte n’est pas annoncée"));
    if (derniere->longueur <= 0)
        throw ErreurMiseAJour::refusee(QStringLiteral("sa longueur n’est pas annoncée"));
    if (derniere->longueur > longueurMaximale)
        throw ErreurMiseAJour::refusee(QStringLiteral("elle est trop volumineuse"));
    return *derniere;
}

QString Appcast::notes(const QString &description)
{
    // What is no HTML tag, like "<nom>", may stand in a plain text.
    static const QRegularExpression balise(
        QStringLiteral("</?(?:p|br|div|span|[ou]l|li|h[1-6]|table|tr|a|b|i|u|em|strong|code|pre|blockquote|hr|img|"
                       "script|style|html|body)\\b[^<>]*>"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression item(QStringLiteral("<li\\b[^<>]*>"), QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression bloc(QStringLiteral("</?(?:p|br|div|[ou]l|h[1-6]|tr|blockquote|pre|hr)\\b[^<>]*>"),
                                         QRegularExpression::CaseInsensitiveOption);
    QString texte = description.trimmed();
    if (texte.contains(balise)) {
        texte.replace(item, puce);
        texte.replace(bloc, ligne);
        QStringList lignes;
        for (const QString &morceau : TexteHTML::texte(texte).replace(puce, ligne + QStringLiteral("• ")).split(ligne))
            if (const QString epure = morceau.trimmed(); !epure.isEmpty() && epure != u"•")
                lignes.append(epure);
        texte = lignes.join(u'\n');
    }
    return texte.size() > notesMaximales ? debut(texte, notesMaximales) + u'…' : texte;
}

} // namespace Quillet
