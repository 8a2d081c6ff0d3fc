#pragma once

#include "documents/ReponseType.h"
#include "model/Donnees.h"

// What the reply's screen says beside the message: texts only, laid out by the widgets.
namespace Quillet::TextesReponse {

// Why no reply can be written: not for one seller alone, or for one whose name is not known.
QString impossible(const Calcul &calcul, const Donnees &donnees);
// That the link is still to be pasted; empty once it is.
QString lienAbsent(const ReponseType &reponse);
// That the link pasted may not be the one that the buyer pays by; empty when it looks right, or when there is none.
QString lienDouteux(const ReponseType &reponse);
// Who the message is for, given the text typed: the address handed over, a dash when the text gives none, nothing
// without a text.
QString destinataire(const QString &adresse);
// That the text typed cannot be the recipient; empty when it can, or when there is none.
QString adresseRefusee(const QString &adresse);

} // namespace Quillet::TextesReponse
