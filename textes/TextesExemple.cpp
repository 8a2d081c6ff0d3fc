#include "textes/TextesExemple.h"

namespace Quillet {

namespace {

QString siExemple(Origine origine, const QString &phrase)
{
    return origine == Origine::exemple ? phrase : QString();
}

} // namespace

QString TextesExemple::surLaCommande()
{
    return QStringLiteral("Ces livres et leurs vendeurs sont un exemple.");
}

QString TextesExemple::surLaFacture(Origine origine)
{
    return siExemple(origine, QStringLiteral("Cette facture porte le nom et l’adresse inventés de l’exemple : elle ne "
                                             "vaut rien tant que vous n’avez pas mis les vôtres."));
}

QString TextesExemple::surLaReponse(Origine origine)
{
    return siExemple(origine, QStringLiteral("Ce message nomme les livres et le vendeur inventés de l’exemple : ne "
                                             "l’envoyez pas avant d’avoir mis les vôtres."));
}

} // namespace Quillet
