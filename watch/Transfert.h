#pragma once

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <memory>

class QProcess;

namespace Quillet {

// What a download may cost.
struct Limites
{
    std::chrono::milliseconds silence{std::chrono::seconds{30}}; // until the body begins, then between its pieces
    std::chrono::milliseconds duree{std::chrono::seconds{60}};   // in all
    qint64 taille = qint64{16} << 20;                            // bytes of the body, packed or not
};

// Fetches an answer piece by piece, within limits, and never leaves https once there. Destroying it gives the answer
// up at once, without a signal. What servers send is read by curl, which bounds what may come before a body (Qt does
// not), in a process of its own, with little memory.
class Transfert : public QObject
{
    Q_OBJECT

public:
    // A public page is asked for as a browser would, and what it has kept (cookies) is given back on its redirections.
    // An update is asked for in our own name, without any.
    enum class Usage { pagePublique, miseAJour };

    // Why it failed, also for what is too large once unpacked.
    static QString tropVolumineuse();

    Transfert(const Limites &limites, Usage usage);
    ~Transfert() override;
    Q_DISABLE_COPY_MOVE(Transfert)

    [[nodiscard]] bool enCours() const { return curl_ != nullptr; }
    // Exactly one of `termine` and `echoue` follows, never before this returns; whoever hears it may ask for the next
    // answer or destroy this object. `codages`: what the caller can unpack. Not to be called while `enCours`.
    void demander(const QUrl &url, const QByteArray &codages);
    // `echoue` follows, unless nothing is under way.
    void interrompre(const QString &raison);

signals:
    // A piece of the body, as sent; only `termine` tells that its status was 200. Not a place to destroy this object.
    void recu(const QByteArray &morceau);
    void termine(const QByteArray &codage); // empty: none
    void echoue(const QString &raison);     // a short phrase in lower case, or what `interrompre` was told

private:
    void recevoir();
    void conclure();

    Limites limites_;
    Usage usage_;
    QTimer silence_;
    std::unique_ptr<QProcess> curl_;
    QUrl adresse_;
    qint64 octets_ = 0;
    QString interruption_; // why it was broken off here; empty when it was not
};

} // namespace Quillet
