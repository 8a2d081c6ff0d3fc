#include "textes/TextesReponse.h"

#include "documents/AdresseMail.h"

namespace Quillet {

QString TextesReponse::lienAbsent(const ReponseType &reponse)
{
    if (!reponse.lien.trimmed().isEmpty())
        return {};
    return QStringLiteral("Collez le lien de paiement : sinon le message garde « %1 » à remplacer.")
        .arg(ReponseType::placeDuLien(reponse.langue));
}

QString TextesReponse::adresseRefusee(const QString &adresse)
{
    if (adresse.trimmed().isEmpty() || AdresseMail::estSeule(adresse))
        return {};
    return QStringLiteral("Ce n’est pas une adresse seule : le message s’ouvrira sans destinataire.");
}

} // namespace Quillet
