#pragma once

#include "watch/ErreurReleve.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>

class QNetworkReply;

// What a page may cost.
struct Limites
{
    std::chrono::milliseconds silence{std::chrono::seconds{30}}; // since the last sign of the server
    std::chrono::milliseconds duree{std::chrono::seconds{60}};   // in all
    qint64 taille = qint64{16} << 20;                            // bytes of the body, packed or not
};

// Fetches a public page as text, without waiting for it. Destroying it gives the download up at once, without a signal.
class Telechargement : public QObject
{
    Q_OBJECT

public:
    explicit Telechargement(const Limites &limites = {});
    ~Telechargement() override;
    Q_DISABLE_COPY_MOVE(Telechargement)

    [[nodiscard]] bool enCours() const { return reponse_; }
    // Exactly one of the signals follows, never before this returns; whoever hears it may ask for the next page or
    // destroy this object. Not to be called while `enCours`.
    void page(const QUrl &url);

signals:
    void lue(const QString &texte);
    void echouee(const ErreurReleve &erreur);

private:
    void recevoirEntete();
    void recevoir();
    void interrompre(const QString &raison);
    void conclure();
    [[nodiscard]] QString texte(const QNetworkReply &reponse, const QByteArray &corps) const;

    Limites limites_;
    QNetworkAccessManager reseau_;
    QTimer silence_;
    QTimer duree_;
    QNetworkReply *reponse_ = nullptr; // owned by `reseau_`
    QUrl adresse_;
    bool entete_ = false; // of the last answer asked for: a redirection takes it back
    QByteArray corps_;
    QString interruption_; // why the download was broken off here; empty when it was not
};
