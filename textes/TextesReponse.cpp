#include "textes/TextesReponse.h"

#include "documents/AdresseMail.h"
#include "model/LienPaypal.h"
#include "textes/NomsVendeurs.h"
#include "textes/TextesDocuments.h"

namespace Quillet {

QString TextesReponse::impossible(const Calcul &calcul, const Donnees &donnees)
{
    if (donnees.vendeurs().size() > 1)
        return QStringLiteral("Une réponse par vendeur : séparez %1.").arg(NomsVendeurs::livresDeChacun(donnees));
    const QString sansIdentite = TextesDocuments::sansIdentite(calcul, donnees);
    return sansIdentite.isEmpty() ? TextesDocuments::sansLivre() : sansIdentite;
}

QString TextesReponse::lienAbsent(const ReponseType &reponse)
{
    if (!reponse.lien.trimmed().isEmpty())
        return {};
    return QStringLiteral("Collez le lien de paiement : sinon le message garde « %1 » à remplacer.")
        .arg(ReponseType::placeDuLien(reponse.langue));
}

QString TextesReponse::lienDouteux(const ReponseType &reponse)
{
    if (reponse.lien.trimmed().isEmpty())
        return {};
    const auto defaut = LienPaypal::defaut(reponse.lien, reponse.vendeur.site);
    if (!defaut)
        return {};
    switch (*defaut) {
    case LienPaypal::Defaut::signeDeSens:
        return QStringLiteral("Un signe invisible retourne une partie de ce lien : copiez-le de nouveau dans PayPal.");
    case LienPaypal::Defaut::pasHttps:
        return QStringLiteral("Ce lien n’est pas une adresse https:// : copiez-le de nouveau dans PayPal.");
    case LienPaypal::Defaut::autreSite:
        return QStringLiteral("Ce lien mène à %1, pas à PayPal : vérifiez-le avant d’envoyer le message.")
            .arg(LienPaypal::hote(reponse.lien));
    }
    Q_UNREACHABLE();
}

QString TextesReponse::destinataire(const QString &adresse)
{
    if (adresse.trimmed().isEmpty())
        return {};
    const QString remise = AdresseMail::dans(adresse);
    return remise.isEmpty() ? QStringLiteral("—") : remise;
}

QString TextesReponse::adresseRefusee(const QString &adresse)
{
    if (adresse.trimmed().isEmpty() || !AdresseMail::dans(adresse).isEmpty())
        return {};
    return QStringLiteral("Ce n’est pas une adresse seule : le message s’ouvrira sans destinataire.");
}

} // namespace Quillet
