#include "watch/Transfert.h"

#include <QNetworkReply>

#include <algorithm>
#include <utility>

namespace Quillet {

namespace {

constexpr int redirectionsMaximales = 20;
constexpr qint64 tampon = qint64{64} << 10;
constexpr qint64 redirectionMaximale = qint64{16} << 20; // bytes of its own body

// In our own words: the platform's are English in part, and sentences.
QString cause(QNetworkReply::NetworkError erreur)
{
    switch (erreur) {
    case QNetworkReply::ConnectionRefusedError:
        return QStringLiteral("connexion refusée");
    case QNetworkReply::RemoteHostClosedError:
        return QStringLiteral("connexion interrompue");
    case QNetworkReply::HostNotFoundError:
        return QStringLiteral("serveur introuvable");
    case QNetworkReply::TimeoutError:
        return QStringLiteral("délai d’attente dépassé");
    case QNetworkReply::SslHandshakeFailedError:
        return QStringLiteral("connexion sécurisée impossible");
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return QStringLiteral("réseau inaccessible");
    case QNetworkReply::TooManyRedirectsError:
        return QStringLiteral("trop de redirections");
    case QNetworkReply::InsecureRedirectError:
        return QStringLiteral("redirection vers une adresse non sécurisée");
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyConnectionClosedError:
    case QNetworkReply::ProxyNotFoundError:
    case QNetworkReply::ProxyTimeoutError:
    case QNetworkReply::ProxyAuthenticationRequiredError:
    case QNetworkReply::UnknownProxyError:
        return QStringLiteral("serveur mandataire inaccessible");
    case QNetworkReply::ProtocolUnknownError:
        return QStringLiteral("adresse non prise en charge");
    default:
        return QStringLiteral("connexion interrompue (erreur %1)").arg(erreur);
    }
}

QString agent(Transfert::Usage usage)
{
    if (usage == Transfert::Usage::miseAJour)
        return QStringLiteral("Quillet");
    return QStringLiteral("Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 (KHTML, like Gecko) "
                          "Version/18.0 Safari/605.1.15");
}

int statut(const QNetworkReply &reponse)
{
    // The platform gives a local file the status 200.
    if (!reponse.url().scheme().startsWith(QStringLiteral("http")))
        return 0;
    return reponse.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

Transfert::Transfert(const Limites &limites, Usage usage) : limites_(limites), usage_(usage)
{
    // Not the platform's own time-out: it ends with the first redirection.
    silence_.setSingleShot(true);
    connect(&silence_, &QTimer::timeout, this, [this] { interrompre(QStringLiteral("délai d’attente dépassé")); });
    duree_.setSingleShot(true);
    connect(&duree_, &QTimer::timeout, this, [this] { interrompre(QStringLiteral("téléchargement trop long")); });
}

QString Transfert::tropVolumineuse()
{
    return QStringLiteral("page trop volumineuse");
}

Transfert::~Transfert()
{
    if (reponse_)
        reponse_->abort(); // while its manager still stands
}

void Transfert::demander(const QUrl &url, const QByteArray &codages)
{
    Q_ASSERT_X(!enCours(), "Transfert::demander", "one answer at a time");
    QNetworkRequest requete(url);
    requete.setHeader(QNetworkRequest::UserAgentHeader, agent(usage_));
    requete.setRawHeader("Accept-Language", "fr-FR,fr;q=0.9");
    requete.setRawHeader("Accept-Encoding", codages); // said here, unpacking is ours
    requete.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    requete.setMaximumRedirectsAllowed(redirectionsMaximales);
    // Nothing here needs HTTP/2. Offering it, Qt 6.8 does not notice that an encrypted HTTP/1 answer was cut.
    requete.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    if (usage_ == Usage::miseAJour)
        for (const auto cookies :
             {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute})
            requete.setAttribute(cookies, QNetworkRequest::Manual);

    adresse_ = url;
    entete_ = false;
    octets_ = 0;
    interruption_.clear();
    reponse_ = reseau_.get(requete);
    // A redirection's own body is never read, and must go by.
    reponse_->setReadBufferSize(std::min(limites_.taille, redirectionMaximale));
    // Queued: a reply is neither aborted nor destroyed while its own signal is under way.
    connect(reponse_, &QNetworkReply::metaDataChanged, this, &Transfert::recevoirEntete, Qt::QueuedConnection);
    const auto oublierLEntete = [this] { entete_ = false; };
    connect(reponse_, &QNetworkReply::redirected, this, oublierLEntete, Qt::QueuedConnection);
    connect(reponse_, &QNetworkReply::readyRead, this, &Transfert::recevoir, Qt::QueuedConnection);
    connect(reponse_, &QNetworkReply::finished, this, &Transfert::conclure, Qt::QueuedConnection);
    silence_.start(limites_.silence);
    duree_.start(limites_.duree);
}

void Transfert::recevoirEntete()
{
    if (!reponse_)
        return;
    entete_ = true;
    silence_.start();
    if (statut(*reponse_) / 100 == 3)
        return;
    reponse_->setReadBufferSize(tampon); // else the network runs far ahead of the limit
    if (reponse_->header(QNetworkRequest::ContentLengthHeader).toLongLong() > limites_.taille)
        interrompre(tropVolumineuse());
}

void Transfert::recevoir()
{
    if (!reponse_ || !reponse_->isOpen())
        return;
    silence_.start();
    for (QByteArray morceau; !(morceau = reponse_->read(tampon)).isEmpty();) {
        octets_ += morceau.size();
        if (octets_ > limites_.taille)
            return interrompre(tropVolumineuse());
        if (statut(*reponse_) == 200)
            emit recu(morceau);
    }
}

void Transfert::interrompre(const QString &raison)
{
    if (!reponse_ || reponse_->isFinished()) // finished: `conclure` is on its way
        return;
    interruption_ = raison;
    reponse_->abort();
}

void Transfert::conclure()
{
    recevoir(); // what came with the end
    silence_.stop();
    duree_.stop();
    QNetworkReply *reponse = std::exchange(reponse_, nullptr);
    reponse->deleteLater();
    if (const auto raison = raisonDEchec(*reponse))
        emit echoue(*raison);
    else
        emit termine(reponse->rawHeader("Content-Encoding").trimmed().toLower());
}

// Qt 6.4 reports every cut body but one: in chunks, neither packed nor encrypted, it sometimes passes for whole. What
// is read here is encrypted, and no redirection leaves that.
std::optional<QString> Transfert::raisonDEchec(const QNetworkReply &reponse) const
{
    const QNetworkReply::NetworkError erreur = reponse.error();
    const bool interrompue = !interruption_.isEmpty();
    const QString echec = interrompue || erreur == QNetworkReply::NoError ? interruption_ : cause(erreur);
    const int code = statut(reponse);
    // A redirection that was refused or broken off is no answer.
    const bool enRoute = code / 100 == 3
                         && (interrompue || erreur == QNetworkReply::InsecureRedirectError
                             || erreur == QNetworkReply::TooManyRedirectsError);
    if (!echec.isEmpty() && (!entete_ || enRoute))
        return echec;
    if (code != 200)
        return QStringLiteral("réponse %1 de %2").arg(code).arg(adresse_.host());
    if (!echec.isEmpty())
        return echec;
    if (octets_ > limites_.taille) // all had come before it could be broken off
        return tropVolumineuse();
    return std::nullopt;
}

} // namespace Quillet
