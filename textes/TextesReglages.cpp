#include "textes/TextesReglages.h"

#include "documents/NumerotationFactures.h"
#include "model/controle/NumeroDeControle.h"

#include <algorithm>
#include <iterator>

namespace Quillet {

namespace {

using TextesReglages::Champ;

Champ champ(const char *cle, const QString &libelle, QString IdentiteVendeur::*membre)
{
    return {.cle = cle,
            .libelle = libelle,
            .lire = [membre](const IdentiteVendeur &identite) { return identite.*membre; },
            .poser = [membre](IdentiteVendeur &identite, const QString &texte) { identite.*membre = texte.trimmed(); }};
}

Champ champ(const char *cle, const QString &libelle, std::optional<QString> IdentiteVendeur::*membre)
{
    return {.cle = cle,
            .libelle = libelle,
            .lire = [membre](const IdentiteVendeur &identite) { return (identite.*membre).value_or(QString()); },
            .poser =
                [membre](IdentiteVendeur &identite, const QString &texte) {
                    identite.*membre = texte.trimmed().isEmpty() ? std::nullopt : std::optional(texte.trimmed());
                }};
}

Champ adresse()
{
    return {.cle = "adresse",
            .libelle = QStringLiteral("Adresse"),
            .invite = QStringLiteral("12 rue des Tilleuls\n00000 Villebourg\nFrance"),
            .lignes = 4,
            .lire = [](const IdentiteVendeur &identite) { return identite.adresse.join(u'\n'); },
            .poser =
                [](IdentiteVendeur &identite, const QString &texte) {
                    identite.adresse.clear();
                    for (const QString &ligne : texte.split(u'\n'))
                        if (const QString pleine = ligne.trimmed(); !pleine.isEmpty())
                            identite.adresse.append(pleine);
                }};
}

QString sansEspaces(QString texte)
{
    texte.removeIf([](QChar signe) { return signe.isSpace(); });
    return texte;
}

Champ avec(Champ champ, const QString &aide, const QString &invite = {})
{
    champ.aide = aide;
    champ.invite = invite;
    return champ;
}

} // namespace

QList<Champ> TextesReglages::champsDuVendeur()
{
    Champ eori = avec(champ("eori", QStringLiteral("Numéro EORI"), &IdentiteVendeur::eori),
                      QStringLiteral("Pour la douane, si vous en avez un : « FR », puis le SIRET."));
    eori.poser = [](IdentiteVendeur &identite, const QString &texte) {
        const QString numero = sansEspaces(texte).toUpper();
        identite.eori = numero.isEmpty() ? std::nullopt : std::optional(numero);
    };
    return {
        avec(champ("nom", QStringLiteral("Nom"), &IdentiteVendeur::nom),
             QStringLiteral("Celui des factures : le vôtre, ou celui de votre maison.")),
        avec(champ("nomCourt", QStringLiteral("Nom court"), &IdentiteVendeur::nomCourt),
             QStringLiteral("Celui des écrans ; sans lui, le nom entier.")),
        adresse(),
        avec(champ("siret", QStringLiteral("SIRET"), &IdentiteVendeur::siret),
             QStringLiteral("Quatorze chiffres ; obligatoire sur la facture d’une micro-entreprise.")),
        champ("mentionTva", QStringLiteral("Mention de TVA"), &IdentiteVendeur::mentionTva),
        avec(champ("site", QStringLiteral("Site"), &IdentiteVendeur::site), {}, QStringLiteral("mes-livres.example")),
        avec(champ("retourPaypal", QStringLiteral("Page de retour"), &IdentiteVendeur::retourPaypal),
             QStringLiteral("Là où PayPal ramène l’acheteur qui a payé."),
             QStringLiteral("https://mes-livres.example/merci")),
        eori,
    };
}

std::optional<QString> TextesReglages::eoriPropose(const IdentiteVendeur &identite)
{
    if (!identite.siret || !NumeroDeControle::siret(*identite.siret))
        return std::nullopt;
    const QString propose = QStringLiteral("FR") + sansEspaces(*identite.siret);
    return identite.eori == propose ? std::nullopt : std::optional(propose);
}

QString TextesReglages::chemin(Vendeur vendeur)
{
    return QStringLiteral("vendeurs.") + brut(vendeur);
}

QString TextesReglages::geste(const QString &libelle, const IdentiteVendeur &identite)
{
    const bool sigle = libelle.size() > 1 && libelle[1].isUpper();
    const QString quoi = sigle ? libelle : libelle.left(1).toLower() + libelle.mid(1);
    return QStringLiteral("%1 de « %2 »").arg(quoi, identite.nom);
}

QString TextesReglages::premierPas(int rang)
{
    switch (rang) {
    case 0:
        return QStringLiteral("Qui vend ? Ces lignes iront sur vos factures. Rien n’est écrit avant la fin, et tout se "
                              "change ensuite dans « Vendeurs et emballages… ».");
    case 1:
        return QStringLiteral("Dans quoi partent vos livres ? Gardez ces emballages, ou mettez les vôtres : leur poids "
                              "compte dans les frais de port.");
    default:
        return QStringLiteral("Votre premier livre, que vous pouvez aussi ajouter plus tard.");
    }
}

QString TextesReglages::titre(Vendeur vendeur)
{
    switch (vendeur) {
    case Vendeur::davrel:
        return QStringLiteral("Vendeur");
    case Vendeur::mireva:
        return QStringLiteral("Second vendeur");
    }
    Q_UNREACHABLE();
}

QString TextesReglages::ouLesChanger(const QString &dossier)
{
    return QStringLiteral("Vos livres, vos vendeurs et vos emballages ont été mis là par qui administre cet "
                          "ordinateur, et c’est là qu’ils se changent :\n%1")
        .arg(dossier);
}

QString TextesReglages::chezUnAutre(const QString &dossier)
{
    return ouLesChanger(dossier)
           + QStringLiteral(
               "\n\nVous pouvez aussi les reprendre chez vous, tels qu’ils sont, et les changer d’ici : ce "
               "dossier ne servira plus.");
}

QString TextesReglages::prochaineFacture(const QString &derniere, QDate jour)
{
    return QStringLiteral(
               "Facultatif : le numéro de la dernière facture que vous avez faite en %1. La prochaine portera "
               "le numéro %2.")
        .arg(QString::number(jour.year()), NumerotationFactures::suivant(derniere, jour));
}

QString TextesReglages::derniereFactureRefusee(const QString &derniere, QDate jour)
{
    using Rapport = NumerotationFactures::Rapport;
    if (derniere.isEmpty() || NumerotationFactures::rapport(derniere, jour) == Rapport::dansLaSerie)
        return {};
    return QStringLiteral("Numéro de %1 attendu, de la forme %2.")
        .arg(QString::number(jour.year()), NumerotationFactures::premier(jour));
}

QString TextesReglages::nePeutPartir(Vendeur vendeur, const Donnees &donnees)
{
    if (donnees.reglages.vendeurs.size() < 2)
        return QStringLiteral("Il reste toujours un vendeur.");
    const auto livres = std::ranges::count(donnees.livres, vendeur, &Livre::vendeur);
    if (livres == 0)
        return {};
    return livres == 1 ? QStringLiteral("Un livre est vendu sous ce nom : confiez-le d’abord à l’autre vendeur.")
                       : QStringLiteral("%1 livres sont vendus sous ce nom : confiez-les d’abord à l’autre vendeur.")
                             .arg(livres);
}

QList<Destination> TextesReglages::destinationsADeclarer(const Donnees &donnees)
{
    QList<Destination> destinations;
    std::ranges::copy_if(donnees.destinations, std::back_inserter(destinations),
                         [](const Destination &destination) { return destination.douane || destination.douaneSauf; });
    return destinations;
}

} // namespace Quillet
