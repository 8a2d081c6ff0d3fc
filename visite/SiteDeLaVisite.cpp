#include "visite/SiteDeLaVisite.h"

#include "model/Format.h"
#include "model/Ressources.h"

#include <QHash>
#include <QTcpSocket>

#include <utility>

namespace Quillet {

namespace {

// What La Poste writes over the column of each grid.
QString entete(const CodeGrille &code)
{
    static const QHash<ZoneColissimo, QString> entetes{
        {ZoneColissimo::franceDomicile, QStringLiteral("France métropolitaine – livraison à domicile")},
        {ZoneColissimo::om1, QStringLiteral("Outre-mer zone OM 1")},
        {ZoneColissimo::om2, QStringLiteral("Outre-mer zone OM 2")},
        {ZoneColissimo::ueSuisse, QStringLiteral("Union européenne (UE) et Suisse")},
        {ZoneColissimo::royaumeUni, QStringLiteral("Royaume-Uni")},
        {ZoneColissimo::zoneB, QStringLiteral("Zone B")},
        {ZoneColissimo::zoneC, QStringLiteral("Zone C")}};
    const auto zone = code.cas();
    return zone ? entetes.value(*zone) : code.texte();
}

QString euros(Centimes montant)
{
    return Format::montant(montant) + QStringLiteral(" €");
}

// Every third tier dearer, and another rate.
TarifsColissimo augmentes()
{
    auto tarifs = Ressources::duProgramme().lire<TarifsColissimo>(QStringLiteral("tarifs-colissimo-2026-01-01"));
    int rang = 0;
    for (GrilleColissimo &grille : tarifs.grilles)
        for (Palier &palier : grille.paliers)
            if (rang++ % 3 == 0)
                palier.prix = palier.prix + Centimes{25 + rang};
    return tarifs;
}

FraisPaypal renegocies()
{
    FraisPaypal frais = Ressources::duProgramme().lire<Reglages>(QStringLiteral("reglages")).fraisPaypal;
    frais.taux = Taux{320};
    return frais;
}

} // namespace

QString SiteDeLaVisite::page(const TarifsColissimo &tarifs, const QString &dateDEffet)
{
    QString page = QStringLiteral("<html><p>Tarifs en vigueur à partir du %1</p>").arg(dateDEffet);
    for (const GrilleColissimo &grille : tarifs.grilles) {
        page += QStringLiteral("<table><tr><th>Poids</th><th>%1</th></tr>").arg(entete(grille.code));
        for (const Palier &palier : grille.paliers)
            page += QStringLiteral("<tr><td>Jusqu’à %1</td><td>%2</td></tr>")
                        .arg(Format::palier(palier.jusqua), euros(palier.prix));
        page += QStringLiteral("</table>");
    }
    return page + QStringLiteral("</html>");
}

QString SiteDeLaVisite::page(const FraisPaypal &frais)
{
    const auto supplement = [&](RegionPaypal region) { return Format::pourcentage(frais.supplement(region)); };
    return QStringLiteral("<html><p>Toutes les autres transactions commerciales %1</p><p>Euro %2 EUR</p><p>EEE %3</p>"
                          "<p>Royaume-Uni %4</p><p>Tous les autres marchés %5</p></html>")
        .arg(Format::pourcentage(frais.taux), Format::montant(frais.fixe), supplement(RegionPaypal::eee),
             supplement(RegionPaypal::royaumeUni), supplement(RegionPaypal::autres));
}

SiteDeLaVisite::SiteDeLaVisite()
    : SiteDeLaVisite(page(augmentes(), QStringLiteral("1er avril 2026")), page(renegocies()))
{
}

SiteDeLaVisite::SiteDeLaVisite(QString laPoste, QString paypal)
    : laPoste_(std::move(laPoste)), paypal_(std::move(paypal))
{
    QObject::connect(&serveur_, &QTcpServer::newConnection, &serveur_, [this] { servir(); });
    if (!serveur_.listen(QHostAddress::LocalHost))
        qFatal("%s", qPrintable(serveur_.errorString()));
}

PagesSurveillees SiteDeLaVisite::pages() const
{
    const auto adresse = [this](const char *chemin) {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/%2")
                        .arg(QString::number(serveur_.serverPort()), QString::fromLatin1(chemin)));
    };
    return {adresse("poste"), adresse("paypal")};
}

void SiteDeLaVisite::servir()
{
    QTcpSocket *visiteur = serveur_.nextPendingConnection();
    QObject::connect(visiteur, &QTcpSocket::disconnected, visiteur, &QObject::deleteLater);
    QObject::connect(visiteur, &QTcpSocket::readyRead, visiteur, [this, visiteur] {
        const QByteArray demande = visiteur->peek(4096);
        if (!demande.contains("\r\n\r\n"))
            return;
        visiteur->readAll();
        const QByteArray corps = (demande.startsWith("GET /poste ") ? laPoste_ : paypal_).toUtf8();
        visiteur->write("HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\nConnection: close\r\n"
                        "Content-Length: "
                        + QByteArray::number(corps.size()) + "\r\n\r\n" + corps);
        visiteur->disconnectFromHost();
    });
}

} // namespace Quillet
