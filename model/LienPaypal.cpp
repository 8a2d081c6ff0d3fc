#include "model/LienPaypal.h"

#include "model/SensDeLecture.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace Quillet {

namespace {

QUrl adresse(const QString &lien)
{
    return QUrl(lien.trimmed(), QUrl::StrictMode);
}

bool estSur(const QString &hote, const QString &site)
{
    return hote == site || hote.endsWith(u'.' + site);
}

// Whatever was written around it.
QString nomDeSite(const QString &site)
{
    const QString nom = site.toLower().section(QStringLiteral("//"), -1).section(u'/', 0, 0);
    return nom.startsWith(QLatin1String("www.")) ? nom.mid(4) : nom;
}

} // namespace

std::optional<LienPaypal::Defaut> LienPaypal::defaut(const QString &lien, const std::optional<QString> &site)
{
    if (contientUnSigneDeSens(QUrl::fromPercentEncoding(lien.toUtf8())))
        return Defaut::signeDeSens;
    const QString la = hote(lien);
    if (la.isEmpty() || adresse(lien).scheme() != QLatin1String("https"))
        return Defaut::pasHttps;
    QStringList sites{QStringLiteral("paypal.com"), QStringLiteral("paypal.me"),
                      QStringLiteral("py.pl")}; // where it shortens its own links
    if (site && !site->isEmpty())
        sites.append(nomDeSite(*site));
    const bool connu = std::ranges::any_of(sites, [&](const QString &leSien) { return estSur(la, leSien); });
    return connu ? std::nullopt : std::optional(Defaut::autreSite);
}

QString LienPaypal::hote(const QString &lien)
{
    return adresse(lien).host();
}

} // namespace Quillet
