#include "watch/SignatureEd25519.h"

#include <sodium.h>

#include <algorithm>

namespace Quillet {

namespace {

template <typename Octets>
std::optional<Octets> lire(const QByteArray &base64)
{
    Octets octets{};
    const auto lu = QByteArray::fromBase64Encoding(base64.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    if (!lu || (*lu).size() != static_cast<qsizetype>(octets.size()))
        return std::nullopt;
    std::ranges::copy(*lu, octets.begin());
    return octets;
}

} // namespace

std::optional<SignatureEd25519::Cle> SignatureEd25519::cle(const QByteArray &base64)
{
    return lire<Cle>(base64);
}

std::optional<SignatureEd25519::Signature> SignatureEd25519::signature(const QByteArray &base64)
{
    return lire<Signature>(base64);
}

bool SignatureEd25519::valide(const Cle &cle, const Signature &signature, std::span<const unsigned char> octets)
{
    static_assert(std::tuple_size_v<Cle> == crypto_sign_PUBLICKEYBYTES);
    static_assert(std::tuple_size_v<Signature> == crypto_sign_BYTES);
    return sodium_init() >= 0
           && crypto_sign_verify_detached(signature.data(), octets.data(), octets.size(), cle.data()) == 0;
}

} // namespace Quillet
