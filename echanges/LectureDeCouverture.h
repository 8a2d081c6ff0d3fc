#pragma once

#include "echanges/CouverturePrete.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

class QProcess;

namespace Quillet {

// Prepares a picture that comes from outside for a cover, in a process of its own with little memory and little time:
// the program itself, asked by `option`. Destroying it gives the picture up at once, without a signal.
class LectureDeCouverture : public QObject
{
    Q_OBJECT

public:
    // `programme`: this one's file. `patience`: for a picture, with a disk that is slow to answer.
    explicit LectureDeCouverture(const QString &programme = QCoreApplication::applicationFilePath(),
                                 std::chrono::milliseconds patience = std::chrono::seconds{20},
                                 QObject *parent = nullptr);
    ~LectureDeCouverture() override;

    [[nodiscard]] bool enCours() const { return processus_ != nullptr; }
    // Exactly one of `prete` and `refusee` follows, never before this returns. What was under way is given up.
    void lireFichier(const QString &chemin);
    void lireOctets(const QByteArray &octets);
    void abandonner();

    // In the other process: the option's name, and what it answers when it is given a file's path, or `entree` for its
    // standard input. The text is the picture's (CouverturePrete) or, with the code `refus`, the sentence.
    static QString option() { return QStringLiteral("lire-couverture"); }
    static QString entree() { return QStringLiteral("-"); }
    static constexpr int refus = 4;
    struct Reponse
    {
        int code;
        QByteArray texte;
    };
    static Reponse repondre(const QString &source);

signals:
    void prete(const CouverturePrete &couverture);
    void refusee(const QString &raison); // a sentence

private:
    void demander(const QString &source, const QByteArray &octets);
    void recevoir();
    void conclure();

    QString programme_;
    QTimer delai_;
    std::unique_ptr<QProcess> processus_;
    QByteArray recu_;
};

} // namespace Quillet
