#include "textes/TextesDocuments.h"

#include "documents/ArticleDouane.h"
#include "documents/Facture.h"
#include "documents/NumerotationFactures.h"
#include "documents/VendeurUnique.h"
#include "model/Format.h"
#include "textes/NomsVendeurs.h"

namespace Quillet {

namespace {

using TextesDocuments::Champ;
using TextesDocuments::Rubrique;

Champ texte(const QString &titre, const QString &valeur)
{
    return {.titre = titre, .valeur = valeur};
}

Champ montant(const QString &titre, Centimes valeur)
{
    return {.titre = titre, .valeur = Format::montant(valeur), .affichage = Format::euros(valeur)};
}

Champ poids(const QString &titre, Grammes valeur, bool connu, const QString &alerte)
{
    const bool sur = connu && valeur > Grammes{};
    return {.titre = titre, .valeur = Format::kilos(valeur), .alerte = sur ? QString() : alerte};
}

Rubrique envoi(const Calcul &calcul)
{
    Rubrique envoi{.titre = QStringLiteral("Envoi"),
                   .champs = {texte(QStringLiteral("Nature de l’envoi"), QStringLiteral("Vente de marchandises"))}};
    if (calcul.envoi)
        envoi.champs.append(montant(QStringLiteral("Frais de port"), *calcul.envoi));
    envoi.champs.append(poids(QStringLiteral("Poids brut du colis (kg)"), calcul.poidsRetenu, calcul.poidsConnu(),
                              QStringLiteral("Le poids du colis n’est pas encore connu : pesez-le, et tapez son poids "
                                             "dans la commande.")));
    envoi.champs.append(montant(QStringLiteral("Valeur totale"), calcul.sousTotal));
    return envoi;
}

// `codeALArrivee`: empty when the one of everywhere does.
Rubrique article(int numero, const ArticleDouane &article, const QString &codeALArrivee)
{
    Rubrique rubrique{.titre = QStringLiteral("Article %1").arg(numero),
                      .precision =
                          QStringLiteral("%1 exemplaire%2")
                              .arg(QString::number(article.quantite), QLatin1String(article.quantite > 1 ? "s" : "")),
                      .champs = {texte(QStringLiteral("Description"), article.description),
                                 poids(QStringLiteral("Poids net unitaire (kg)"), article.poidsUnitaire, true,
                                       QStringLiteral("Ce livre n’a pas encore été pesé : déclarez son vrai poids.")),
                                 montant(QStringLiteral("Valeur unitaire"), article.valeurUnitaire),
                                 texte(QStringLiteral("Pays d’origine"), article.origine),
                                 texte(QStringLiteral("N° tarifaire (SH)"), article.codeSH)}};
    if (!codeALArrivee.isEmpty())
        rubrique.champs.append(texte(QStringLiteral("N° tarifaire à l’arrivée"), codeALArrivee));
    return rubrique;
}

Rubrique expediteur(const IdentiteVendeur &vendeur)
{
    Rubrique expediteur{.titre = QStringLiteral("Expéditeur")};
    for (const QString &ligne : vendeur.adresse)
        expediteur.champs.append(texte(expediteur.champs.isEmpty() ? QStringLiteral("Adresse") : QString(), ligne));
    if (vendeur.eori)
        expediteur.champs.append(texte(QStringLiteral("N° EORI"), *vendeur.eori));
    return expediteur;
}

// Of a number of the day's series.
QString remarqueDansLaSerie(const QString &numero, const PlaceDuNumero &place, QDate jour)
{
    using Rapport = NumerotationFactures::Rapport;
    const Rapport dernier = NumerotationFactures::rapport(place.dernier, jour);
    if (dernier == Rapport::posterieur)
        return QStringLiteral("La suite de %1 n’avance plus : le dernier numéro retenu, %2, est d’une année à venir.")
            .arg(QString::number(jour.year()), place.dernier);
    if (place.reparti)
        return {};
    if (!place.dernier.isEmpty() && dernier == Rapport::aucun)
        return QStringLiteral("Le dernier numéro retenu, « %1 », n’est pas compris : vérifiez que celui-ci le suit.")
            .arg(place.dernier);
    if (!NumerotationFactures::avance(numero, place.dernier))
        return place.dejaParti
                   ? QString()
                   : QStringLiteral(
                         "Ce numéro ne vient pas après %1, le dernier retenu : une facture le porte peut-être déjà.")
                         .arg(place.dernier);
    if (!place.suivant.isEmpty() && NumerotationFactures::avance(numero, place.suivant))
        return QStringLiteral("Ce numéro n’est pas le suivant : la suite attend %1, et les numéros sautés resteraient "
                              "sans facture.")
            .arg(place.suivant);
    return {};
}

QString rapportALaSerie(const QString &numero, const PlaceDuNumero &place, QDate jour)
{
    using Rapport = NumerotationFactures::Rapport;
    switch (NumerotationFactures::rapport(numero, jour)) {
    case Rapport::aucun:
        return QStringLiteral("Ce numéro n’a pas la forme %1 : il ne sera pas retenu.")
            .arg(NumerotationFactures::premier(jour));
    case Rapport::anterieur:
        return QStringLiteral("Ce numéro est d’une année passée : la suite de %1 n’en change pas.").arg(jour.year());
    case Rapport::posterieur:
        return QStringLiteral("Ce numéro est d’une année à venir : après lui, ceux de %1 ne seront plus retenus.")
            .arg(jour.year());
    case Rapport::dansLaSerie:
        return remarqueDansLaSerie(numero, place, jour);
    }
    Q_UNREACHABLE();
}

} // namespace

QString TextesDocuments::siteDeLaPoste()
{
    return QStringLiteral("laposte.fr");
}

QStringList TextesDocuments::instructionsDeDouane()
{
    static_assert(Facture::exemplaires == 2); // as the third one says
    return {QStringLiteral("1. Achetez l’affranchissement Colissimo, en ligne ou au guichet."),
            QStringLiteral("2. Sur %1, remplissez la déclaration avec les valeurs ci-dessous ; le destinataire est "
                           "l’adresse de livraison du paiement PayPal.")
                .arg(siteDeLaPoste()),
            QStringLiteral("3. Imprimez-la et signez les deux exemplaires. Glissez-les, avec deux exemplaires de la "
                           "facture, dans une pochette plastique collée sur le colis.")};
}

QList<Rubrique> TextesDocuments::declaration(const Calcul &calcul, const Reglages &reglages)
{
    QList<Rubrique> rubriques{envoi(calcul)};
    const auto codes = reglages.douane.codesParDestination.value_or(QMap<CodeDestination, QString>());
    const QString codeALArrivee = calcul.destination ? codes.value(calcul.destination->code) : QString();
    int numero = 0;
    for (const ArticleDouane &declare : articlesDouane(calcul, reglages.douane.codeSH))
        rubriques.append(article(++numero, declare, codeALArrivee));
    if (const auto vendeur = vendeurUnique(calcul, reglages))
        if (const Rubrique rubrique = expediteur(*vendeur); !rubrique.champs.isEmpty())
            rubriques.append(rubrique);
    return rubriques;
}

std::optional<TextesDocuments::Obstacle> TextesDocuments::obstacleALaFacture(const Calcul &calcul,
                                                                             const Donnees &donnees)
{
    const QString impossible = QStringLiteral("Facture impossible");
    if (calcul.vendeurs().size() != 1)
        return Obstacle{QStringLiteral("person.2"), impossible,
                        donnees.vendeurs().size() > 1
                            ? QStringLiteral("Une facture par vendeur : séparez %1 en deux commandes.")
                                  .arg(NomsVendeurs::livresDeChacun(donnees))
                            : sansLivre()};
    if (const QString manque = sansIdentite(calcul, donnees); !manque.isEmpty())
        return Obstacle{QStringLiteral("person.2"), impossible, manque};
    if (!calcul.envoi)
        return Obstacle{QStringLiteral("doc.plaintext"),
                        {},
                        QStringLiteral("Le port n’est pas encore connu : la facture apparaîtra avec lui.")};
    return std::nullopt;
}

QString TextesDocuments::sansLivre()
{
    return QStringLiteral("La commande n’a pas encore de livre.");
}

QString TextesDocuments::sansIdentite(const Calcul &calcul, const Donnees &donnees)
{
    for (const Vendeur vendeur : calcul.vendeurs())
        if (!donnees.reglages.identite(vendeur))
            return QStringLiteral("Le nom et l’adresse de %1 manquent dans les réglages.")
                .arg(NomsVendeurs::court(vendeur, donnees));
    return {};
}

QString TextesDocuments::remarqueSurLeNumero(const QString &numero, const PlaceDuNumero &place, QDate jour)
{
    if (numero.trimmed().isEmpty())
        return QStringLiteral("La facture n’a pas de numéro : aucun ne sera retenu.");
    QStringList remarques{rapportALaSerie(numero, place, jour)};
    if (place.dejaParti)
        remarques.prepend(QStringLiteral("Une facture %1 est déjà partie depuis l’ouverture de Quillet.").arg(numero));
    remarques.removeAll(QString());
    return remarques.join(u'\n');
}

QString TextesDocuments::dejaPartie(const QString &partie, const QString &numero)
{
    if (partie.isEmpty())
        return {};
    const QString phrase = QStringLiteral("La facture %1 est déjà partie pour cette commande.").arg(partie);
    return numero == partie ? phrase : phrase + QStringLiteral(" Pour la sortir de nouveau, reprenez ce numéro.");
}

QString TextesDocuments::numeroPris(const QString &numero, const QString &suivant)
{
    return QStringLiteral(
               "Le numéro %1 a été retenu entre-temps, sans doute dans une autre session. La facture n’est pas "
               "partie : elle porte maintenant le numéro %2. Vérifiez-la, puis recommencez.")
        .arg(numero, suivant);
}

QString TextesDocuments::vendeur(const IdentiteVendeur &vendeur)
{
    QStringList lignes = QStringList{vendeur.nom} + coordonnees(vendeur);
    if (!vendeur.mentionTva.isEmpty())
        lignes.append(vendeur.mentionTva);
    return lignes.join(u'\n');
}

QString TextesDocuments::sansAcheteur(const QString &acheteur)
{
    return acheteur.trimmed().isEmpty()
               ? QStringLiteral("Acheteur manquant : son nom et son adresse sont obligatoires sur la facture.")
               : QString();
}

QString TextesDocuments::sansSiret(const IdentiteVendeur &vendeur)
{
    return vendeur.siret ? QString()
                         : QStringLiteral("Numéro SIRET manquant : obligatoire sur la facture d’une micro-entreprise.");
}

} // namespace Quillet
