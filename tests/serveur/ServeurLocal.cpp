#include "tests/serveur/ServeurLocal.h"

#include <QFile>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTest>
#include <QTimer>

namespace Quillet {

namespace {

QString cheminDe(const QString &nom)
{
    return QFINDTESTDATA(nom);
}

QByteArray lire(const QString &nom)
{
    QFile fichier(cheminDe(nom));
    if (!fichier.open(QIODevice::ReadOnly))
        qFatal("%s : %s", qPrintable(nom), qPrintable(fichier.errorString()));
    return fichier.readAll();
}

QSslCertificate certificatDe(const QString &nom)
{
    return QSslCertificate(lire(nom + QStringLiteral(".pem")));
}

std::unique_ptr<QTcpServer> serveurChiffre(const QString &nom)
{
    auto configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificatDe(nom));
    // As the public sites do: whoever asks for HTTP/2 gets it, and none of these answers is one.
    configuration.setAllowedNextProtocols({"h2", "http/1.1"});
    configuration.setPrivateKey(QSslKey(lire(QStringLiteral("cle.pem")), QSsl::Ec));
    auto serveur = std::make_unique<QSslServer>();
    serveur->setSslConfiguration(configuration);
    return serveur;
}

std::unique_ptr<QTcpServer> serveurPour(ServeurLocal::Certificat certificat)
{
    switch (certificat) {
    case ServeurLocal::Certificat::aucun:
        break;
    case ServeurLocal::Certificat::sur:
        return serveurChiffre(QStringLiteral("sur"));
    case ServeurLocal::Certificat::inconnu:
        return serveurChiffre(QStringLiteral("inconnu"));
    }
    return std::make_unique<QTcpServer>();
}

} // namespace

Reponse http(const QByteArray &statut, const QByteArray &corps, const QByteArray &entetes)
{
    return {"HTTP/1.1 " + statut + "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(corps.size())
            + "\r\n" + entetes + "\r\n" + corps};
}

Reponse redirection(const QUrl &cible)
{
    return http("302 Found", "ailleurs", "Location: " + cible.toEncoded() + "\r\n");
}

QByteArray entete(const QByteArray &tete, const QByteArray &nom)
{
    for (const QByteArray &ligne : tete.split('\n'))
        if (const qsizetype fin = ligne.indexOf(':'); ligne.left(fin).compare(nom, Qt::CaseInsensitive) == 0)
            return ligne.sliced(fin + 1).trimmed();
    return {};
}

void ServeurLocal::faireConfiance()
{
    qputenv("CURL_CA_BUNDLE", cheminDe(QStringLiteral("autorite.pem")).toLocal8Bit());
}

ServeurLocal::ServeurLocal(Certificat certificat)
    : chiffre_(certificat != Certificat::aucun), serveur_(serveurPour(certificat))
{
    connect(serveur_.get(), &QTcpServer::pendingConnectionAvailable, this, [this] {
        while (QTcpSocket *ligne = serveur_->nextPendingConnection())
            accueillir(*ligne);
    });
    if (!serveur_->listen(QHostAddress::LocalHost))
        qFatal("%s", qPrintable(serveur_->errorString()));
}

QUrl ServeurLocal::adresse(const QString &chemin) const
{
    return QUrl(QStringLiteral("%1://localhost:%2%3")
                    .arg(chiffre_ ? QStringLiteral("https") : QStringLiteral("http"))
                    .arg(serveur_->serverPort())
                    .arg(chemin));
}

void ServeurLocal::accueillir(QTcpSocket &ligne)
{
    ++ouvertes_;
    connect(&ligne, &QTcpSocket::disconnected, this, [this, &ligne] {
        --ouvertes_;
        ligne.deleteLater();
    });
    connect(&ligne, &QTcpSocket::bytesWritten, this, [this](qint64 octets) { envoyes_ += octets; });
    const auto recevoir = [this, &ligne, tete = QByteArray()]() mutable {
        tete += ligne.readAll();
        if (tete.endsWith("\r\n\r\n"))
            repondre(ligne, std::exchange(tete, {}));
    };
    connect(&ligne, &QTcpSocket::readyRead, this, recevoir);
}

void ServeurLocal::repondre(QTcpSocket &ligne, const QByteArray &tete)
{
    requetes_.append(tete);
    const QString chemin = QString::fromLatin1(tete.split(' ').value(1));
    const Reponse reponse = reponses_.value(chemin, http("404 Not Found", "rien ici"));
    const qsizetype dUnCoup =
        reponse.parOctet.count() > 0 ? reponse.octets.indexOf("\r\n\r\n") + 4 : reponse.octets.size();
    ligne.write(reponse.octets.first(dUnCoup));
    auto *horloge = new QTimer(&ligne);
    connect(horloge, &QTimer::timeout, &ligne, [&ligne, horloge, reponse, rang = dUnCoup]() mutable {
        if (rang < reponse.octets.size()) {
            ligne.write(reponse.octets.sliced(rang++, 1));
            return;
        }
        horloge->stop();
        if (reponse.fermer)
            ligne.disconnectFromHost();
    });
    horloge->start(reponse.parOctet);
}

} // namespace Quillet
