#include "watch/FluxSigne.h"

#include "watch/ErreurMiseAJour.h"

#include <algorithm>

namespace Quillet {

namespace {

constexpr QByteArrayView avant("<!-- signature: ");
constexpr QByteArrayView apres(" -->\n");
constexpr qsizetype base64 = 88; // of 64 bytes
constexpr qsizetype longueur = avant.size() + base64 + apres.size();

} // namespace

QString FluxSigne::contenu(const QString &flux, const SignatureEd25519::Cle &cle)
{
    const QByteArray octets = flux.toUtf8(); // as they came, or the signature is not theirs
    const QByteArray pied = octets.last(std::min(longueur, octets.size()));
    if (pied.size() < longueur || !pied.startsWith(avant) || !pied.endsWith(apres))
        throw ErreurMiseAJour::inconnue(QStringLiteral("la liste reçue est coupée ou n’est pas signée"));
    const auto signature = SignatureEd25519::signature(pied.sliced(avant.size(), base64));
    const QByteArrayView signes = QByteArrayView(octets).chopped(longueur);
    if (!signature
        || !SignatureEd25519::valide(
            cle, *signature, {reinterpret_cast<const uchar *>(signes.data()), static_cast<size_t>(signes.size())}))
        throw ErreurMiseAJour::inconnue(QStringLiteral("la signature de la liste reçue n’est pas celle de Quillet"));
    return flux.chopped(longueur); // as many characters as bytes
}

} // namespace Quillet
