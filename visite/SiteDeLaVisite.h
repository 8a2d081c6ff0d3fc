#pragma once

#include "model/Reglages.h"
#include "model/Tarifs.h"
#include "watch/Verifications.h"

#include <QTcpServer>

namespace Quillet {

// Poses as La Poste and PayPal on this machine, with tariffs of its own making, so that the checks find changes.
class SiteDeLaVisite
{
public:
    // Tables like those of La Poste's page.
    static QString page(const TarifsColissimo &tarifs, const QString &dateDEffet);
    static QString page(const FraisPaypal &frais);

    // Both pages are served from now on, whenever they are asked for: these, or else those of the tour.
    SiteDeLaVisite(QString laPoste, QString paypal);
    SiteDeLaVisite();
    [[nodiscard]] PagesSurveillees pages() const;

private:
    void servir();

    QString laPoste_;
    QString paypal_;
    QTcpServer serveur_;
};

} // namespace Quillet
