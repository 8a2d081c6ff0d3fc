#include "watch/Transfert.h"

#include <QHash>
#include <QNetworkProxy>
#include <QProcess>

#include <sys/prctl.h>
#include <sys/resource.h>

#include <csignal>
#include <utility>

namespace Quillet {

namespace {

constexpr rlim_t memoire = rlim_t{256} << 20; // of addresses: four times what curl takes for an honest answer
constexpr int mortEnMillisecondes = 1000;

// How curl ended: its manual lists all codes.
enum Code { reussi = 0, protocoleRefuse = 1, reponseRefusee = 22 };

const QString interrompue = QStringLiteral("connexion interrompue"); // also for want of memory

// Of the others, in our own words.
QString cause(int code)
{
    const QString introuvable = QStringLiteral("serveur introuvable");
    const QString nonSecurisee = QStringLiteral("connexion sécurisée impossible");
    const QString mandataire = QStringLiteral("serveur mandataire inaccessible");
    const QHash<int, QString> causes{
        {2, introuvable}, // no address, which is what Qt 6.8 makes of an invalid one
        {3, introuvable}, // an invalid one
        {6, introuvable}, // by its name
        {5, mandataire},  // the proxy, by its name
        {97, mandataire}, // the proxy refused
        {7, QStringLiteral("connexion impossible")},
        {28, QStringLiteral("téléchargement trop long")}, // its time was up
        {35, nonSecurisee},                               // the handshake
        {60, nonSecurisee},                               // its certificate
        {77, nonSecurisee},                               // no authority to ask
        {47, QStringLiteral("trop de redirections")},
        {63, Transfert::tropVolumineuse()}, // announced so
    };
    return causes.value(code, interrompue);
}

const QString marqueDuBilan = QStringLiteral("\n--\n"); // other words may stand before it

// What curl says at its end, on one line each.
struct Bilan
{
    int statut = 0; // of the last answer; 0: none
    QByteArray codage;
    bool delimite = false; // by its head: else the end of the line ends the body
    QByteArray erreur;

    static QString demande()
    {
        return QStringLiteral("%{stderr}") + marqueDuBilan
               + QStringLiteral("%{response_code}\n%header{content-encoding}\n"
                                "%header{content-length}%header{transfer-encoding}\n%{errormsg}");
    }

    static Bilan lu(const QByteArray &texte)
    {
        const QByteArray marque = marqueDuBilan.toLatin1();
        const QByteArrayList lignes = texte.mid(texte.lastIndexOf(marque) + marque.size()).split('\n');
        return {lignes.value(0).toInt(), lignes.value(1).trimmed().toLower(), !lignes.value(2).isEmpty(),
                lignes.value(3)};
    }

    [[nodiscard]] bool autreQue200() const { return statut > 200 && statut / 100 != 3; }
};

// The one that the desktop is set up for: curl knows but variables of its own.
QStringList mandataire(const QUrl &url)
{
    const QNetworkProxy choisi = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url)).value(0);
    const bool socks = choisi.type() == QNetworkProxy::Socks5Proxy;
    if (!socks && choisi.type() != QNetworkProxy::HttpProxy)
        return {};
    const QString modele = socks ? QStringLiteral("socks5h://%1:%2") : QStringLiteral("http://%1:%2");
    return {QStringLiteral("--proxy"), modele.arg(choisi.hostName()).arg(choisi.port())};
}

QString agent(Transfert::Usage usage)
{
    if (usage == Transfert::Usage::miseAJour)
        return QStringLiteral("Quillet");
    return QStringLiteral("Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 (KHTML, like Gecko) "
                          "Version/18.0 Safari/605.1.15");
}

QStringList arguments(const QUrl &url, const QByteArray &codages, const Limites &limites, Transfert::Usage usage)
{
    const bool chiffree = url.scheme() == QStringLiteral("https");
    // Nothing of the user's own settings, nothing held back, nothing that needs more than HTTP/1.1.
    QStringList arguments =
        QStringLiteral("--disable --silent --no-buffer --fail --http1.1 --globoff --location --max-redirs 20 "
                       "--proto =http,https --proto-redir %1 --max-time %2 --max-filesize %3")
            .arg(chiffree ? QStringLiteral("=https") : QStringLiteral("=http,https"))
            .arg(std::chrono::duration<double>(limites.duree).count())
            .arg(limites.taille)
            .split(u' ');
    const auto ajouter = [&](const char *option, const QString &valeur) {
        arguments.append({QString::fromLatin1(option), valeur});
    };
    ajouter("--user-agent", agent(usage));
    ajouter("--header", QStringLiteral("Accept-Language: fr-FR,fr;q=0.9"));
    // Said here: unpacking is the caller's.
    ajouter("--header", QStringLiteral("Accept-Encoding: ") + QString::fromLatin1(codages));
    if (usage == Transfert::Usage::pagePublique)
        ajouter("--cookie", {});
    ajouter("--write-out", Bilan::demande());
    ajouter("--url", QString::fromLatin1(url.toEncoded()));
    return arguments + mandataire(url);
}

// Run in the new process, before curl.
void limiter()
{
    const rlimit limite{memoire, memoire};
    setrlimit(RLIMIT_AS, &limite);
    prctl(PR_SET_PDEATHSIG, SIGKILL); // it does not outlive Quillet
}

} // namespace

Transfert::Transfert(const Limites &limites, Usage usage) : limites_(limites), usage_(usage)
{
    silence_.setSingleShot(true);
    connect(&silence_, &QTimer::timeout, this, [this] { interrompre(QStringLiteral("délai d’attente dépassé")); });
}

Transfert::~Transfert()
{
    if (!curl_)
        return;
    curl_->disconnect(this);
    curl_->kill();
    curl_->waitForFinished(mortEnMillisecondes);
}

QString Transfert::tropVolumineuse()
{
    return QStringLiteral("page trop volumineuse");
}

void Transfert::demander(const QUrl &url, const QByteArray &codages)
{
    Q_ASSERT_X(!enCours(), "Transfert::demander", "one answer at a time");
    adresse_ = url;
    octets_ = 0;
    interruption_.clear();
    curl_ = std::make_unique<QProcess>();
    curl_->setChildProcessModifier(limiter);
    // Queued: the process is not destroyed while its own signal is under way.
    connect(curl_.get(), &QProcess::readyReadStandardOutput, this, &Transfert::recevoir);
    connect(curl_.get(), &QProcess::finished, this, &Transfert::conclure, Qt::QueuedConnection);
    const auto nePartPas = [this](QProcess::ProcessError erreur) {
        if (erreur == QProcess::FailedToStart)
            conclure();
    };
    connect(curl_.get(), &QProcess::errorOccurred, this, nePartPas, Qt::QueuedConnection);
    silence_.start(limites_.silence);
    curl_->start(QStringLiteral("curl"), arguments(url, codages, limites_, usage_), QIODevice::ReadOnly);
}

void Transfert::recevoir()
{
    const QByteArray morceau = curl_->readAllStandardOutput();
    if (morceau.isEmpty() || !interruption_.isEmpty())
        return;
    silence_.start();
    octets_ += morceau.size();
    if (octets_ > limites_.taille)
        interrompre(tropVolumineuse());
    else
        emit recu(morceau);
}

void Transfert::interrompre(const QString &raison)
{
    if (!curl_)
        return;
    interruption_ = raison;
    curl_->kill();
}

void Transfert::conclure()
{
    recevoir(); // what came with the end
    silence_.stop();
    const auto curl = std::exchange(curl_, nullptr);
    const Bilan bilan = Bilan::lu(curl->readAllStandardError());
    if (!interruption_.isEmpty())
        return emit echoue(interruption_);
    if (curl->error() == QProcess::FailedToStart)
        return emit echoue(QStringLiteral("le programme curl n’est pas installé"));
    if (curl->exitStatus() == QProcess::CrashExit)
        return emit echoue(interrompue);
    const int code = curl->exitCode();
    if (code == protocoleRefuse && bilan.erreur.startsWith("Protocol \"http\""))
        return emit echoue(QStringLiteral("redirection vers une adresse non sécurisée"));
    const bool repondu = code == reussi || code == reponseRefusee || code == protocoleRefuse;
    if (!repondu && !bilan.autreQue200())
        return emit echoue(cause(code));
    if (code != reussi || bilan.statut != 200)
        return emit echoue(QStringLiteral("réponse %1 de %2").arg(bilan.statut).arg(adresse_.host()));
    if (octets_ == 0 && !bilan.delimite) // curl takes a head that was cut for a whole one
        return emit echoue(interrompue);
    emit termine(bilan.codage);
}

} // namespace Quillet
