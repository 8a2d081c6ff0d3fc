#pragma once

#include <QString>

#include <optional>

// The link by which a buyer pays: on PayPal's site, or on the seller's own, where a PayPal button may stand.
namespace Quillet::LienPaypal {

enum class Defaut { signeDeSens, pasHttps, autreSite };

// What is wrong with it, blanks around it aside. `site`: host name of the seller's; none: only PayPal's counts.
std::optional<Defaut> defaut(const QString &lien, const std::optional<QString> &site);
// The host that it leads to; empty when it is no address.
QString hote(const QString &lien);

} // namespace Quillet::LienPaypal
