#include "textes/TextesReprise.h"

#include "model/Format.h"
#include "textes/NomsVendeurs.h"

#include <QHash>

namespace Quillet {

namespace {

constexpr qsizetype nomsCites = 12;

QString cites(const QStringList &noms)
{
    QString texte = noms.first(qMin(noms.size(), nomsCites)).join(QStringLiteral(", "));
    if (noms.size() > nomsCites)
        texte += QStringLiteral(" et %1 autres").arg(noms.size() - nomsCites);
    return texte;
}

QString compte(qsizetype nombre, const QString &un)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(nombre), un, nombre > 1 ? QStringLiteral("s") : QString());
}

// A field as its screens call it.
QString enMots(const QString &cle)
{
    static const QHash<QString, QString> mots{
        {QStringLiteral("titreComplet"), QStringLiteral("titre complet")},
        {QStringLiteral("isbn"), QStringLiteral("ISBN")},
        {QStringLiteral("disponible"), QStringLiteral("disponibilité")},
        {QStringLiteral("teinte"), QStringLiteral("couleur")},
        {QStringLiteral("lienPaypal"), QStringLiteral("lien PayPal")},
        {QStringLiteral("prixPaypal"), QStringLiteral("prix des boutons PayPal")},
        {QStringLiteral("prixEcartes"), QStringLiteral("boutons PayPal gardés")},
        {QStringLiteral("siret"), QStringLiteral("SIRET")},
        {QStringLiteral("eori"), QStringLiteral("EORI")},
        {QStringLiteral("mentionTva"), QStringLiteral("mention de TVA")},
        {QStringLiteral("retourPaypal"), QStringLiteral("page de retour")},
        {QStringLiteral("nomCourt"), QStringLiteral("nom court")},
        {QStringLiteral("grilles"), QStringLiteral("prix")},
        {QStringLiteral("releve"), QStringLiteral("jour du relevé")},
    };
    return mots.value(cle, cle);
}

QStringList enPhrases(const QList<Comparaison::Changement> &changements)
{
    QStringList phrases;
    for (const auto &[nom, cles] : changements) {
        QStringList mots;
        for (const QString &cle : cles)
            mots.append(enMots(cle));
        phrases.append(QStringLiteral("%1 (%2)").arg(nom, mots.join(QStringLiteral(", "))));
    }
    return phrases;
}

TextesReprise::Ligne ligne(const QString &un, const QStringList &noms)
{
    return {noms.size() > 1 ? un + u's' : un, QString::number(noms.size()), cites(noms)};
}

TextesReprise::Section section(const QString &titre, const Comparaison::Liste &liste)
{
    TextesReprise::Section section{titre, {}};
    if (!liste.ajoutes.isEmpty())
        section.lignes.append(ligne(QStringLiteral("Ajouté"), liste.ajoutes));
    if (!liste.changes.isEmpty())
        section.lignes.append(ligne(QStringLiteral("Changé"), enPhrases(liste.changes)));
    if (!liste.disparus.isEmpty())
        section.lignes.append(ligne(QStringLiteral("Retiré"), liste.disparus));
    return section;
}

Comparaison::Liste enDates(Comparaison::Liste tarifs)
{
    const auto dater = [](QString &jour) { jour = Format::date(Jour(jour)); };
    for (QString &jour : tarifs.ajoutes)
        dater(jour);
    for (QString &jour : tarifs.disparus)
        dater(jour);
    for (auto &changement : tarifs.changes)
        dater(changement.nom);
    return tarifs;
}

} // namespace

QList<TextesReprise::Section> TextesReprise::sections(const Comparaison &comparaison)
{
    QList<Section> sections{
        section(QStringLiteral("Livres"), comparaison.livres),
        section(QStringLiteral("Vendeurs"), comparaison.vendeurs),
        section(QStringLiteral("Emballages"), comparaison.emballages),
        section(QStringLiteral("Tarifs Colissimo, selon leur premier jour"), enDates(comparaison.tarifs))};
    if (comparaison.ordre)
        sections[0].lignes.append({QStringLiteral("Leur ordre change"), {}, {}});
    Section autres{QStringLiteral("Autres réglages"), {}};
    if (comparaison.frais)
        autres.lignes.append({QStringLiteral("Les frais PayPal changent"), {}, {}});
    if (comparaison.douane)
        autres.lignes.append({QStringLiteral("Les mentions pour la douane changent"), {}, {}});
    if (comparaison.destinations)
        autres.lignes.append({QStringLiteral("Les destinations ou leurs pays changent"), {}, {}});
    sections.append(autres);
    sections.removeIf([](const Section &section) { return section.lignes.isEmpty(); });
    return sections;
}

QString TextesReprise::resume(const Comparaison &comparaison)
{
    QStringList parties;
    for (const Section &section : sections(comparaison)) {
        QStringList mots;
        for (const Ligne &ligne : section.lignes)
            mots.append(ligne.nombre.isEmpty() ? ligne.libelle.toLower()
                                               : ligne.nombre + u' ' + ligne.libelle.toLower());
        parties.append(
            QStringLiteral("%1 : %2").arg(section.titre.section(u',', 0, 0), mots.join(QStringLiteral(", "))));
    }
    return parties.isEmpty() ? QStringLiteral("Comme maintenant") : parties.join(QStringLiteral(" ; "));
}

QString TextesReprise::suites(bool change, bool commandeEnCours)
{
    if (!change)
        return QStringLiteral("Tout y est comme ici.");
    const QString garde =
        QStringLiteral("Ce que vous avez aujourd’hui sera gardé : « Revenir à une copie… » le rendra.");
    return commandeEnCours ? garde + QStringLiteral(" La commande en cours sera vidée.") : garde;
}

QString TextesReprise::origine(const Manifeste &manifeste, const Donnees &donnees, bool propres)
{
    const QString faite =
        QStringLiteral("Faite le %1 par Quillet %2").arg(Format::date(manifeste.jour), manifeste.programme);
    if (!propres)
        return faite
               + QStringLiteral(", sur l’exemple livré : elle n’a ni livres ni vendeurs, ceux que vous avez restent.");
    return QStringLiteral("%1 : %2, %3.")
        .arg(faite, compte(donnees.livres.size(), QStringLiteral("livre")),
             compte(donnees.reglages.vendeurs.size(), QStringLiteral("vendeur")));
}

QString TextesReprise::serie(const Comparaison::Serie &serie, const Donnees &la)
{
    return NomsVendeurs::complet(serie.vendeur, la);
}

QString TextesReprise::passage(const Comparaison::Serie &serie)
{
    const QString ici = serie.ici.isEmpty() ? QStringLiteral("aucune") : serie.ici;
    const QString passage = QStringLiteral("Dernière facture : %1 ici, %2 dans l’archive.").arg(ici, serie.la);
    return serie.recule ? passage + QStringLiteral(" La reprendre redonnerait des numéros déjà pris.") : passage;
}

QString TextesReprise::laisses(const QStringList &inconnus)
{
    return inconnus.isEmpty() ? QString()
                              : QStringLiteral("N’est pas repris, et reste dans l’archive : %1.").arg(cites(inconnus));
}

QString TextesReprise::aCorriger(const QStringList &remarques)
{
    return remarques.isEmpty()
               ? QString()
               : QStringLiteral("À corriger ensuite, dans ce qui est repris :\n%1").arg(remarques.join(u'\n'));
}

QString TextesReprise::absents(const QStringList &absents)
{
    return absents.isEmpty() ? QString() : QStringLiteral("N’ont pas pu être pris :\n%1").arg(absents.join(u'\n'));
}

QString TextesReprise::nomDExport(QDate jour)
{
    return QStringLiteral("Quillet %1.zip").arg(Format::iso(jour));
}

QString TextesReprise::explicationDesCopies()
{
    return QStringLiteral(
               "Une copie de vos livres, de vos réglages et de vos numéros de factures se fait chaque jour où "
               "quelque chose a changé, et avant chaque import. Les %1 dernières de chaque sorte sont gardées.")
        .arg(Copies::gardees);
}

QString TextesReprise::copieManquee(const QString &echec)
{
    return echec.isEmpty() ? QString()
                           : QStringLiteral("La copie du jour n’a pas pu être faite, ou pas en entier : %1").arg(echec);
}

QString TextesReprise::copie(const Copie &copie)
{
    const QString jour = Format::date(copie.moment.date());
    return copie.avantReprise
               ? QStringLiteral("%1, %2, avant un import").arg(jour, copie.moment.time().toString(u"H:mm:ss"))
               : jour;
}

} // namespace Quillet
