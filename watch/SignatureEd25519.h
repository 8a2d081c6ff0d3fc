#pragma once

#include <QByteArray>

#include <array>
#include <optional>
#include <span>

namespace Quillet::SignatureEd25519 {

using Cle = std::array<unsigned char, 32>; // public
using Signature = std::array<unsigned char, 64>;

// None when the base64 is not exactly that.
std::optional<Cle> cle(const QByteArray &base64);
std::optional<Signature> signature(const QByteArray &base64);
// Whether whoever holds the key's other half signed just these bytes.
bool valide(const Cle &cle, const Signature &signature, std::span<const unsigned char> octets);

} // namespace Quillet::SignatureEd25519
