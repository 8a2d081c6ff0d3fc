#pragma once

#include "watch/SignatureEd25519.h"

#include <QString>

// The feed of updates ends with a comment, the signature of all bytes before it: one file, which no server can give out
// beside the signature of another, and which is not even read as XML before it is known to be ours.
namespace Quillet::FluxSigne {

// What was signed. Throws ErreurMiseAJour when this key's other half did not sign just that.
QString contenu(const QString &flux, const SignatureEd25519::Cle &cle);

} // namespace Quillet::FluxSigne
