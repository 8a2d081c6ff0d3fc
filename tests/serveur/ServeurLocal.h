#pragma once

#include <QByteArrayList>
#include <QHash>
#include <QTcpServer>
#include <QUrl>

#include <chrono>
#include <memory>

namespace Quillet {

// What the server sends for a path, byte for byte: a broken answer is written as it breaks.
struct Reponse
{
    QByteArray octets;
    bool fermer = true;                    // else the line stays open, silent, after the last byte
    std::chrono::milliseconds parOctet{0}; // how long each byte of the body waits for its turn
};

// A whole and honest answer. `statut` is "200 OK"; each of `entetes` ends with "\r\n".
Reponse http(const QByteArray &statut, const QByteArray &corps = {}, const QByteArray &entetes = {});
Reponse redirection(const QUrl &cible);
// What a request's head says there, whatever the case of the name; empty when it says nothing.
QByteArray entete(const QByteArray &tete, const QByteArray &nom);

// A web server on this machine, on a port of its own. A path without an answer is a 404.
class ServeurLocal : public QObject
{
    Q_OBJECT

public:
    // Of the files of this folder; `aucun` speaks plain HTTP. All are made out to "localhost".
    enum class Certificat { aucun, sur, inconnu };
    // The whole program trusts the authority of `sur`, and no other.
    static void faireConfiance();

    explicit ServeurLocal(Certificat certificat = Certificat::aucun);

    void servir(const QString &chemin, const Reponse &reponse) { reponses_.insert(chemin, reponse); }
    [[nodiscard]] QUrl adresse(const QString &chemin) const;

    // Heads of the requests received, in order.
    [[nodiscard]] const QByteArrayList &requetes() const { return requetes_; }
    // Bytes that left for a client; lines that are open.
    [[nodiscard]] qint64 envoyes() const { return envoyes_; }
    [[nodiscard]] int ouvertes() const { return ouvertes_; }

private:
    void accueillir(QTcpSocket &ligne);
    void repondre(QTcpSocket &ligne, const QByteArray &tete);

    bool chiffre_;
    std::unique_ptr<QTcpServer> serveur_;
    QHash<QString, Reponse> reponses_;
    QByteArrayList requetes_;
    qint64 envoyes_ = 0;
    int ouvertes_ = 0;
};

} // namespace Quillet
