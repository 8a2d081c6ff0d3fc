#include "ui/documents/LettresPdf.h"

#include "model/Echec.h"

#include <QCryptographicHash>
#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QRegularExpression>
#include <QTextLayout>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>

namespace Quillet {

namespace {

using Lettres = QHash<char16_t, char16_t>; // what a glyph stands for, the character that was written

// Each once, in order. A PDF's table has no room for what takes two units, and a line ends the layout.
QString lettresDe(QString texte)
{
    texte.removeIf([](QChar c) { return c.isSurrogate() || c == QChar::LineSeparator; });
    std::ranges::sort(texte);
    texte.erase(std::ranges::unique(texte).begin(), texte.cend());
    return texte;
}

QString toutesJusqua(QChar derniere)
{
    QString toutes;
    for (char16_t code = 1; code <= derniere.unicode() && !QChar::isSurrogate(code); ++code)
        toutes.append(QChar(code));
    return toutes;
}

// Several typefaces draw a text when the first lacks some of its letters.
QList<QRawFont> policesDe(const QString &texte, const QFont &police)
{
    QTextLayout mise(texte, police);
    mise.beginLayout();
    mise.createLine();
    mise.endLayout();
    QList<QRawFont> polices;
    for (const QGlyphRun &suite : mise.glyphRuns())
        polices.append(suite.rawFont());
    return polices;
}

Lettres prisesPourDAutres(const QString &lettres, const QFont &police)
{
    Lettres autres;
    if (lettres.isEmpty())
        return autres;
    const QString toutes = toutesJusqua(lettres.back());
    for (const QRawFont &brute : policesDe(lettres, police)) {
        QHash<quint32, char16_t> ecrites;
        const QList<quint32> dessins = brute.glyphIndexesForString(lettres);
        for (qsizetype i = lettres.size() - 1; i >= 0; --i)
            ecrites.insert(dessins[i], lettres[i].unicode()); // the first, as Qt, of those written
        const QList<quint32> tous = brute.glyphIndexesForString(toutes);
        for (qsizetype i = 0; i < toutes.size(); ++i)
            if (tous[i] && ecrites.contains(tous[i]) && !lettres.contains(toutes[i]))
                autres.insert(toutes[i].unicode(), ecrites[tous[i]]);
    }
    return autres;
}

// A table of characters: "<first glyph> <last glyph> <character of the first>" or "… [<character of each>]".
QByteArray corrigee(const QByteArray &table, const Lettres &autres)
{
    static const QRegularExpression plage(
        QStringLiteral("(<(\\w{4})> <(\\w{4})> )(?:<(\\w{4})>|\\[((?:<\\w{4}> ?)+)\\])"));
    const auto code = [](QStringView chiffres) { return chiffres.toInt(nullptr, 16); };
    const QString texte = QString::fromLatin1(table);
    QString sortie;
    qsizetype lu = 0;
    for (const QRegularExpressionMatch &trouvee : plage.globalMatch(texte)) {
        const QStringList liste = trouvee.captured(5).split(u' ', Qt::SkipEmptyParts);
        sortie += texte.mid(lu, trouvee.capturedStart() - lu) + trouvee.captured(1) + u'[';
        for (int i = 0; i <= code(trouvee.capturedView(3)) - code(trouvee.capturedView(2)); ++i) {
            const int lettre =
                liste.isEmpty() ? code(trouvee.capturedView(4)) + i : code(QStringView(liste.value(i)).mid(1, 4));
            const auto cle = static_cast<char16_t>(lettre);
            sortie += QStringLiteral("<%1> ").arg(int{autres.value(cle, cle)}, 4, 16, QLatin1Char('0'));
        }
        sortie += u']';
        lu = trouvee.capturedEnd();
    }
    return (sortie + texte.mid(lu)).toLatin1();
}

// "QCBAAA+Inter-Bold", whose six letters say that only a part of the typeface is there. Qt numbers them as a hash is
// walked, which is another way each time that the program runs.
QPDFObjectHandle nomStable(const std::string &police)
{
    const std::string nom = police.substr(police.rfind('+') + 1);
    const QByteArray empreinte = QCryptographicHash::hash(nom, QCryptographicHash::Sha256);
    std::string marque = "/";
    for (int i = 0; i < 6; ++i)
        marque += static_cast<char>('A' + static_cast<uchar>(empreinte[i]) % 26);
    return QPDFObjectHandle::newName(marque + '+' + nom);
}

} // namespace

QByteArray LettresPdf::retablir(const QByteArray &document, const QString &ecrit, const QFont &police)
{
    const Lettres autres = prisesPourDAutres(lettresDe(ecrit), police);
    try {
        QPDF pdf;
        pdf.processMemoryFile("", document.constData(), static_cast<size_t>(document.size()));
        for (QPDFObjectHandle objet : pdf.getAllObjects()) {
            if (!objet.isDictionary())
                continue;
            if (objet.hasKey("/FontName") && objet.getKey("/FontName").getName().find('+') != std::string::npos)
                objet.replaceKey("/FontName", nomStable(objet.getKey("/FontName").getName()));
            if (!objet.getKey("/ToUnicode").isStream())
                continue;
            QPDFObjectHandle table = objet.getKey("/ToUnicode");
            const auto lu = table.getStreamData();
            const QByteArray ancienne(reinterpret_cast<const char *>(lu->getBuffer()),
                                      static_cast<qsizetype>(lu->getSize()));
            table.replaceStreamData(corrigee(ancienne, autres).toStdString(), QPDFObjectHandle::newNull(),
                                    QPDFObjectHandle::newNull());
        }
        QPDFWriter ecriture(pdf);
        ecriture.setOutputMemory();
        ecriture.setObjectStreamMode(qpdf_o_disable);
        ecriture.write();
        const auto octets = ecriture.getBufferSharedPointer();
        return {reinterpret_cast<const char *>(octets->getBuffer()), static_cast<qsizetype>(octets->getSize())};
    } catch (const std::exception &) {
        throw Echec(QStringLiteral("La facture n’a pas pu être mise en page."));
    }
}

} // namespace Quillet
