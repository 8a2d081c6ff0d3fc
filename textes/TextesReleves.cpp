#include "textes/TextesReleves.h"

#include "model/Format.h"
#include "textes/TextesTarifs.h"
#include "watch/Vraisemblance.h"

namespace Quillet {

namespace {

constexpr qsizetype prixCites = 2;
constexpr qsizetype phrasesEnumerees = 8;

QString paliersQuiChangent(qsizetype nombre)
{
    if (nombre == 0)
        return QStringLiteral("aucun palier ne change");
    return nombre == 1 ? QStringLiteral("1 palier change") : QStringLiteral("%1 paliers changent").arg(nombre);
}

QString auLieuDe(const QString &quoi, const QString &lu, const QString &avant)
{
    return QStringLiteral("%1 : %2 au lieu de %3.").arg(quoi, lu, avant);
}

QString prixAVerifier(const EcartTarif &ecart)
{
    const QString palier = ecart.grille.nomCourt + QStringLiteral(", ") + Format::jusqua(ecart.jusqua);
    if (!ecart.apres)
        return QStringLiteral("%1 : ce palier n’est plus sur la page.").arg(palier);
    if (!ecart.avant)
        return QStringLiteral("%1 : nouveau palier à %2.").arg(palier, Format::euros(ecart.apres));
    return auLieuDe(palier, Format::euros(ecart.apres), Format::euros(ecart.avant));
}

} // namespace

QString TextesReleves::effet(const PorteeTarifs &portee)
{
    const QString changent = paliersQuiChangent(portee.ecarts.size());
    if (portee.sansEffet)
        return {};
    if (portee.desAujourdhui)
        return QStringLiteral("Pour les commandes d’aujourd’hui, %1.").arg(changent);
    if (portee.correction)
        return QStringLiteral("Par rapport aux tarifs que vous aviez déjà pour ce jour, %1.").arg(changent);
    return QStringLiteral("Rien ne change pour les commandes d’aujourd’hui.");
}

QString TextesReleves::depuisLaVeille(const QList<EcartTarif> &ecarts)
{
    const QString parRapport = QStringLiteral("Par rapport aux tarifs de la veille");
    return ecarts.isEmpty() ? parRapport + QStringLiteral(", aucun palier ne change.") : parRapport;
}

QStringList TextesReleves::reserves(const PorteeTarifs &portee, const TarifsColissimo &lus, const Donnees &donnees,
                                    const Jour &aujourdhui)
{
    QStringList phrases;
    const QDate jour = lus.validite.date();
    if (!jour.isValid())
        phrases.append(QStringLiteral("Le jour d’effet lu sur la page, %1, n’existe pas.").arg(lus.validite.texte()));
    else if (jour > aujourdhui.date().addYears(1))
        phrases.append(QStringLiteral("Le jour d’effet est dans plus d’un an."));
    if (portee.sansEffet)
        phrases.append(QStringLiteral("Enregistrer ces tarifs n’aura pas d’effet : ceux du %1, plus récents, sont "
                                      "déjà en vigueur.")
                           .arg(Format::date(donnees.tarifs(aujourdhui).validite)));
    for (const QString &grille : portee.grillesDisparues)
        phrases.append(QStringLiteral("La grille « %1 » n’est plus sur la page.").arg(grille));
    return phrases;
}

QStringList TextesReleves::prixAVerifier(const PorteeTarifs &portee)
{
    QStringList phrases;
    for (const EcartTarif &ecart : portee.ecarts)
        if (ecart.aVerifier())
            phrases.append(Quillet::prixAVerifier(ecart));
    return phrases;
}

QStringList TextesReleves::resume(const QStringList &prixAVerifier)
{
    if (prixAVerifier.size() <= prixCites)
        return prixAVerifier;
    return {QStringLiteral("%1 prix à vérifier : un triangle les marque dans la liste.").arg(prixAVerifier.size())};
}

QList<TextesReleves::Frais> TextesReleves::frais(const FraisPaypal &enVigueur, const FraisPaypal &lus)
{
    QList<bool> aVerifier{Quillet::aVerifier(enVigueur.taux, lus.taux), Quillet::aVerifier(enVigueur.fixe, lus.fixe)};
    for (const RegionPaypal region : tous<RegionPaypal>)
        aVerifier.append(Quillet::aVerifier(enVigueur.supplement(region), lus.supplement(region)));

    const auto avant = TextesTarifs::frais(enVigueur);
    const auto apres = TextesTarifs::frais(lus);
    QList<Frais> lignes;
    for (qsizetype i = 0; i < avant.size(); ++i)
        lignes.append({avant[i].libelle, avant[i].valeur, apres[i].valeur, avant[i] != apres[i], aVerifier[i]});
    return lignes;
}

QStringList TextesReleves::fraisAVerifier(const QList<Frais> &frais)
{
    QStringList phrases;
    for (const Frais &ligne : frais)
        if (ligne.aVerifier)
            phrases.append(auLieuDe(ligne.libelle, ligne.lu, ligne.enVigueur));
    return phrases;
}

QString TextesReleves::fraisMarques(const QStringList &fraisAVerifier)
{
    return fraisAVerifier.isEmpty()
               ? QString()
               : QStringLiteral("À vérifier, marqué d’un triangle : zéro, ou plus d’un tiers d’écart.");
}

QString TextesReleves::enumeration(const QStringList &phrases)
{
    const QString puce = QStringLiteral("• ");
    const QString ligne = u'\n' + puce;
    if (phrases.size() == 1)
        return phrases.first();
    const qsizetype autres = phrases.size() - phrasesEnumerees;
    if (autres <= 1) // the last one takes no more room than its count
        return puce + phrases.join(ligne);
    return puce + phrases.first(phrasesEnumerees).join(ligne) + QStringLiteral("\n… et %1 autres.").arg(autres);
}

} // namespace Quillet
