#include "documents/Facture.h"

#include "documents/VendeurUnique.h"

#include <algorithm>

namespace Quillet {

namespace {

constexpr qsizetype octetsDuNom = 240; // systems stop at 255, and some add a suffix while they write

} // namespace

Centimes Facture::sousTotal() const
{
    Centimes somme;
    for (const Ligne &ligne : lignes)
        somme += ligne.montant();
    return somme;
}

QString Facture::titre() const
{
    return QStringLiteral("Facture ") + numero + QStringLiteral(" – ") + vendeur.nom;
}

QString Facture::nomDeFichier() const
{
    QString nom = titre();
    std::ranges::replace_if(
        nom,
        [](QChar lettre) {
            return lettre.category() == QChar::Other_Control || QStringView(u"/\\:*?\"<>|").contains(lettre);
        },
        u'-');
    while (nom.toUtf8().size() > octetsDuNom)
        nom.chop(1);
    if (nom.back().isHighSurrogate())
        nom.chop(1);
    return nom + QStringLiteral(".pdf");
}

std::optional<Facture> Facture::de(const Calcul &calcul, const Reglages &reglages, const QString &numero, QDate date,
                                   const QString &acheteur)
{
    const auto vendeur = vendeurUnique(calcul, reglages);
    if (!vendeur || !calcul.destination || !calcul.envoi)
        return std::nullopt;
    Facture facture{
        .numero = numero,
        .date = date,
        .vendeur = *vendeur,
        .acheteur = acheteur,
        .libelleEnvoi = QStringLiteral("Envoi Colissimo · Colissimo shipping – ") + calcul.destination->libelleEn,
        .envoi = *calcul.envoi,
        .codeSH = reglages.douane.codeSH,
    };
    for (const auto &[livre, quantite] : calcul.lignes)
        facture.lignes.append({livre.id, livre.titre, livre.isbn, quantite, livre.prix});
    return facture;
}

QStringList coordonnees(const IdentiteVendeur &vendeur)
{
    QStringList lignes = vendeur.adresse;
    if (vendeur.siret)
        lignes.append(QStringLiteral("SIRET ") + *vendeur.siret);
    return lignes;
}

} // namespace Quillet
