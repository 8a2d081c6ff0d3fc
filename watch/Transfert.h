#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <optional>

class QNetworkReply;

namespace Quillet {

// What a download may cost.
struct Limites
{
    std::chrono::milliseconds silence{std::chrono::seconds{30}}; // since the last sign of the server
    std::chrono::milliseconds duree{std::chrono::seconds{60}};   // in all
    qint64 taille = qint64{16} << 20;                            // bytes of the body, packed or not
};

// Fetches an answer piece by piece, within limits, and never leaves https once there. Destroying it gives the answer
// up at once, without a signal.
class Transfert : public QObject
{
    Q_OBJECT

public:
    // A public page is asked for as a browser would, and its cookies are kept as long as this object. An update is
    // asked for in our own name, without any.
    enum class Usage { pagePublique, miseAJour };

    // Why it failed, also for what is too large once unpacked.
    static QString tropVolumineuse();

    Transfert(const Limites &limites, Usage usage);
    ~Transfert() override;
    Q_DISABLE_COPY_MOVE(Transfert)

    [[nodiscard]] bool enCours() const { return reponse_; }
    // Exactly one of `termine` and `echoue` follows, never before this returns; whoever hears it may ask for the next
    // answer or destroy this object. `codages`: what the caller can unpack. Not to be called while `enCours`.
    void demander(const QUrl &url, const QByteArray &codages);
    // `echoue` follows, unless all has come already.
    void interrompre(const QString &raison);

signals:
    // A piece of an answer of status 200, as sent. Not a place to destroy this object.
    void recu(const QByteArray &morceau);
    void termine(const QByteArray &codage); // empty: none
    void echoue(const QString &raison);     // a short phrase in lower case, or what `interrompre` was told

private:
    void recevoirEntete();
    void recevoir();
    void conclure();
    [[nodiscard]] std::optional<QString> raisonDEchec(const QNetworkReply &reponse) const;

    Limites limites_;
    Usage usage_;
    QNetworkAccessManager reseau_;
    QTimer silence_;
    QTimer duree_;
    QNetworkReply *reponse_ = nullptr; // owned by `reseau_`
    QUrl adresse_;
    bool entete_ = false; // of the last answer asked for: a redirection takes it back
    qint64 octets_ = 0;
    QString interruption_; // why it was broken off here; empty when it was not
};

} // namespace Quillet
