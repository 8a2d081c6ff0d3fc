#include "composants/HabillageMarkdown.h"

#include "composants/Theme.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>

namespace Quillet {

namespace {

constexpr int interligne = 138; // %

struct Passage
{
    int debut;
    int longueur;
    QTextCharFormat format;
};

// px, of the text itself.
int corpsDe(const QTextDocument &texte)
{
    return QFontInfo(texte.defaultFont()).pixelSize();
}

QString ancreDe(const QString &titre)
{
    QString ancre;
    for (const QChar c : titre.toLower())
        if (c.isLetterOrNumber() || c == u'-' || c == u'_')
            ancre += c;
        else if (c.isSpace())
            ancre += u'-';
    return ancre;
}

QFont policeDuTitre(int rang)
{
    if (rang == 1)
        return Theme::titreEcran();
    return rang == 2 ? Theme::titreSection() : Theme::titreLivre();
}

QFont chasseFixe(const QFont &texte)
{
    QFont police = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    police.setPointSizeF(texte.pointSizeF() * 0.94);
    return police;
}

bool estDuCode(const QTextBlock &bloc)
{
    return bloc.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage);
}

bool meneQuelquePart(const QTextDocument &texte, const QUrl &lien)
{
    if (lien.isRelative() && lien.path().isEmpty())
        return HabillageMarkdown::titre(texte, lien.fragment(QUrl::FullyDecoded)).isValid();
    return lien.scheme() == QLatin1String("https");
}

// What a link had of one.
QTextCharFormat sansLien(QTextCharFormat format)
{
    format.clearProperty(QTextFormat::IsAnchor);
    format.clearProperty(QTextFormat::AnchorHref);
    format.clearForeground();
    format.setFontUnderline(false);
    return format;
}

QTextCharFormat formatDe(const QTextBlock &bloc, const QTextCharFormat &lu, const QPalette &palette)
{
    const QTextDocument &texte = *bloc.document();
    QTextCharFormat format = lu;
    if (const int rang = bloc.blockFormat().headingLevel()) {
        format = {};
        format.setFont(policeDuTitre(rang));
    } else if (lu.fontFixedPitch()) {
        format.setFont(chasseFixe(texte.defaultFont()));
        if (!estDuCode(bloc))
            format.setBackground(Theme::remplissage(palette));
    }
    if (!lu.isAnchor())
        return format;
    if (!meneQuelquePart(texte, QUrl(lu.anchorHref())))
        return sansLien(format);
    format.setForeground(Theme::accentTexte(palette));
    return format;
}

void habillerLesLettres(QTextDocument &texte, const QPalette &palette)
{
    QList<Passage> passages; // first read, then changed: a change would lead the reading astray
    for (QTextBlock bloc = texte.begin(); bloc.isValid(); bloc = bloc.next())
        for (auto i = bloc.begin(); !i.atEnd(); ++i)
            passages.append(
                {i.fragment().position(), i.fragment().length(), formatDe(bloc, i.fragment().charFormat(), palette)});
    QTextCursor plume(&texte);
    for (const Passage &passage : passages) {
        plume.setPosition(passage.debut);
        plume.setPosition(passage.debut + passage.longueur, QTextCursor::KeepAnchor);
        plume.setCharFormat(passage.format);
    }
}

bool montreUneImage(const QTextBlock &bloc)
{
    return bloc.text().contains(QChar::ObjectReplacementCharacter);
}

void espacer(const QTextBlock &bloc, const QPalette &palette)
{
    QTextBlockFormat format = bloc.blockFormat();
    const int corps = corpsDe(*bloc.document());
    const int rang = format.headingLevel();
    const bool image = montreUneImage(bloc);
    QTextCursor plume(bloc);
    const auto espacer = [&](double avant, double apres) { // in proportion to the text
        format.setTopMargin(avant * corps);
        format.setBottomMargin(apres * corps);
    };
    if (rang > 0)
        espacer(rang == 1 ? 0 : rang == 2 ? 2.2 : 1.6, rang == 1 ? 1 : 0.5);
    else if (image)
        espacer(0.3, 1.2);
    else if (plume.currentTable() || (estDuCode(bloc) && estDuCode(bloc.next())))
        espacer(0, 0);
    else
        espacer(0, bloc.textList() && bloc.next().textList() ? 0.35 : 0.8);
    if (rang == 0 && !image) // the picture would be stretched with its line
        format.setLineHeight(interligne, QTextBlockFormat::ProportionalHeight);
    if (estDuCode(bloc))
        format.setBackground(Theme::remplissage(palette));
    plume.setBlockFormat(format);
}

// Its text, under each picture.
void legender(QTextDocument &texte, const QPalette &palette)
{
    QTextCharFormat legende;
    legende.setFont(Theme::encadre());
    legende.setForeground(Theme::secondaire(palette));
    for (QTextBlock bloc = texte.begin(); bloc.isValid(); bloc = bloc.next()) {
        const QTextFragment image = montreUneImage(bloc) ? bloc.begin().fragment() : QTextFragment();
        if (!image.isValid())
            continue;
        const QString dit = image.charFormat().property(QTextFormat::ImageAltText).toString();
        QTextCursor plume(bloc);
        plume.movePosition(QTextCursor::EndOfBlock);
        plume.insertText(QChar(QChar::LineSeparator) + dit, legende);
    }
}

// Rows parted by hairlines, under a head in bold.
void regler(QTextTable &table, const QPalette &palette)
{
    const int corps = corpsDe(*table.document());
    QTextTableFormat format = table.format().toTableFormat();
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setTopMargin(0.3 * corps);
    format.setBottomMargin(1.2 * corps);
    table.setFormat(format);
    for (int rangee = 0; rangee < table.rows(); ++rangee)
        for (int colonne = 0; colonne < table.columns(); ++colonne) {
            QTextTableCell cellule = table.cellAt(rangee, colonne);
            QTextTableCellFormat bord = cellule.format().toTableCellFormat();
            bord.setBottomBorder(1);
            bord.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            bord.setBottomBorderBrush(Theme::filet(palette));
            bord.setTopPadding(0.35 * corps);
            bord.setBottomPadding(0.35 * corps);
            bord.setLeftPadding(colonne > 0 ? corps : 0);
            cellule.setFormat(bord);
        }
}

} // namespace

void HabillageMarkdown::habiller(QTextDocument &texte, const QPalette &palette)
{
    QTextCursor tout(&texte);
    tout.beginEditBlock(); // laid out once, and told once to a screen reader
    habillerLesLettres(texte, palette);
    for (QTextBlock bloc = texte.begin(); bloc.isValid(); bloc = bloc.next())
        espacer(bloc, palette);
    for (QTextFrame *cadre : texte.rootFrame()->childFrames())
        if (auto *table = qobject_cast<QTextTable *>(cadre))
            regler(*table, palette);
    legender(texte, palette);
    tout.endEditBlock();
}

QTextBlock HabillageMarkdown::titre(const QTextDocument &texte, const QString &ancre)
{
    QTextBlock bloc = texte.begin();
    while (bloc.isValid() && !(bloc.blockFormat().headingLevel() > 0 && ancreDe(bloc.text()) == ancre))
        bloc = bloc.next();
    return bloc;
}

} // namespace Quillet
