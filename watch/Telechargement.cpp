#include "watch/Telechargement.h"

#include <QScopeGuard>

#include <utility>

#define ZLIB_CONST
#include <zlib.h>

namespace Quillet {

namespace {

constexpr qint64 tampon = qint64{64} << 10;

QString contenuIllisible()
{
    return QStringLiteral("contenu compressé illisible");
}

// Exactly one whole stream: left to itself, the platform takes a cut one for a shorter page.
QByteArray deplier(const QByteArray &gzip, qint64 taille)
{
    z_stream flux{};
    if (inflateInit2(&flux, MAX_WBITS + 16) != Z_OK)
        throw ErreurReleve::reseau(contenuIllisible());
    const auto fin = qScopeGuard([&] { inflateEnd(&flux); });
    flux.next_in = reinterpret_cast<const Bytef *>(gzip.constData());
    flux.avail_in = static_cast<uInt>(gzip.size());
    QByteArray clair;
    int etat = Z_OK;
    while (etat == Z_OK) {
        const qsizetype avant = clair.size();
        clair.resize(avant + tampon);
        flux.next_out = reinterpret_cast<Bytef *>(clair.data() + avant);
        flux.avail_out = tampon;
        etat = inflate(&flux, Z_NO_FLUSH);
        clair.chop(flux.avail_out);
        if (clair.size() > taille)
            throw ErreurReleve::reseau(Transfert::tropVolumineuse());
    }
    if (etat != Z_STREAM_END || flux.avail_in > 0)
        throw ErreurReleve::reseau(contenuIllisible());
    return clair;
}

QByteArray decoder(const QByteArray &corps, const QByteArray &codage, qint64 taille)
{
    if (codage.isEmpty() || codage == "identity")
        return corps;
    if (codage == "gzip" || codage == "x-gzip")
        return deplier(corps, taille);
    throw ErreurReleve::reseau(contenuIllisible());
}

// Throws ErreurReleve.
QString texte(const QByteArray &corps, const QByteArray &codage, qint64 taille)
{
    const QByteArray page = decoder(corps, codage, taille);
    if (!QUtf8StringView(page).isValidUtf8())
        throw ErreurReleve::pageIllisible(QStringLiteral("texte illisible"));
    return QString::fromUtf8(page);
}

} // namespace

Telechargement::Telechargement(const Limites &limites, Transfert::Usage usage)
    : taille_(limites.taille), transfert_(limites, usage)
{
    connect(&transfert_, &Transfert::recu, this, [this](const QByteArray &morceau) { corps_ += morceau; });
    connect(&transfert_, &Transfert::termine, this, &Telechargement::conclure);
    connect(&transfert_, &Transfert::echoue, this, [this](const QString &raison) {
        corps_.clear();
        emit echouee(ErreurReleve::reseau(raison));
    });
}

void Telechargement::conclure(const QByteArray &codage)
{
    const QByteArray corps = std::exchange(corps_, {});
    QString lu;
    try {
        lu = texte(corps, codage, taille_);
    } catch (const ErreurReleve &erreur) {
        emit echouee(erreur);
        return;
    }
    emit lue(lu);
}

} // namespace Quillet
