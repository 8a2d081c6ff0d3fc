#include "ui/FeuilleGuide.h"

#include "composants/EtatVide.h"
#include "composants/Libelle.h"
#include "composants/PageMarkdown.h"
#include "composants/Theme.h"
#include "model/Fichier.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

namespace Quillet {

namespace {

const QString titre = QStringLiteral("Guide");
constexpr QSize taille(760, 780);

// The file is written with plain spaces: before what must not begin a line, after what must not end one. Not in code.
QString avecInsecables(QString texte)
{
    static const QRegularExpression espaces(QStringLiteral("`[^`]*`(*SKIP)(*FAIL)| (?=[:;?!»%](?!\\[))|(?<=«) "));
    return texte.replace(espaces, QStringLiteral("\u00A0"));
}

QWidget *page(const QString &fichier)
{
    try {
        if (const auto octets = Fichier::lireOuRefuser(fichier, Fichier::Borne::donnees))
            return new PageMarkdown(avecInsecables(QString::fromUtf8(*octets)), QFileInfo(fichier).dir());
        throw ErreurStockage(fichier, QStringLiteral("fichier introuvable"));
    } catch (const ErreurStockage &erreur) {
        const QString conseil = QStringLiteral("%1\n\nRéinstaller Quillet le remet à sa place.");
        return new EtatVide(QStringLiteral("doc.text.magnifyingglass"), QStringLiteral("Pas de guide"),
                            conseil.arg(erreur.texte()));
    }
}

} // namespace

FeuilleGuide::FeuilleGuide(const QString &fichier, QWidget *parent) : Feuille(titre, parent)
{
    auto *tete = new Libelle(titre);
    tete->setFont(Theme::titreSection());
    QWidget *lue = page(fichier);
    lue->setAccessibleName(titre);
    meubler(tete, lue);
    lue->setFocus();
    prendreLaTaille(taille);
}

QString FeuilleGuide::fichierLivre()
{
    const QDir programme(QCoreApplication::applicationDirPath());
    const QString installe =
        QDir::cleanPath(programme.filePath(QStringLiteral(QUILLET_PARTAGE "/quillet-guide/guide.md")));
    const QString construit = programme.filePath(QStringLiteral("docs/guide.md"));
    return !QFileInfo::exists(installe) && QFileInfo::exists(construit) ? construit : installe;
}

} // namespace Quillet
