#pragma once

#include "model/Echec.h"

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace Quillet::Json {

// Says where and what was expected, in words for the user: "livres[3].prix : entier attendu".
class Erreur : public Echec
{
public:
    using Echec::Echec;
};

// What a reading that goes on after a mistake has to say of one file. One mistake a place: what repeats it, or lies
// inside a refused value, adds nothing.
class Constats
{
public:
    void noter(const QString &lieu, const QString &raison);
    // A mistake beside all others of its place.
    void ajouter(const QString &texte) { textes_.append(texte); }
    [[nodiscard]] const QStringList &textes() const { return textes_; }
    struct Note
    {
        QString lieu;
        QString raison;
    };
    // What was noted at a place.
    [[nodiscard]] const QList<Note> &notes() const { return notes_; }

private:
    [[nodiscard]] bool couvre(const QString &lieu) const;

    QList<Note> notes_;
    QStringList textes_;
};

// The way from the root of a file to the value being read; it lives on the stack of the calls that descend.
class Lieu
{
public:
    // With findings to note, which must outlive the place, reading goes on after a mistake.
    explicit Lieu(QString racine, Constats *constats = nullptr) : constats_(constats), nom_(std::move(racine)) {}
    Lieu(const Lieu &parent, QString cle) : parent_(&parent), constats_(parent.constats_), nom_(std::move(cle)) {}
    Lieu(const Lieu &parent, qsizetype indice) : parent_(&parent), constats_(parent.constats_), indice_(indice) {}

    [[nodiscard]] QString chemin() const;

    // Throws Erreur.
    [[noreturn]] void refuser(const QString &raison) const;
    // Refuses a value of the wrong kind; one that is not there reads better as missing.
    void exiger(bool bonne, const QJsonValue &json, const QString &attendu) const;

    // Whether refusals are collected; else the first one ends the reading.
    [[nodiscard]] bool collecte() const { return constats_; }
    // A mistake that does not keep the value from being read. Only where refusals are collected.
    void noter(const QString &raison) const;
    // The same of one of its keys.
    void noter(const char *cle, const QString &raison) const;
    // Reads one of several values, so that its refusal does not hide the others' where refusals are collected.
    template <typename Lecture>
    void tenter(Lecture lecture) const
    {
        if (!collecte())
            return lecture();
        try {
            lecture();
        } catch (const Erreur &) { // noted where it was refused
        }
    }

private:
    const Lieu *parent_ = nullptr;
    Constats *constats_ = nullptr;
    QString nom_;
    qsizetype indice_ = -1;
};

} // namespace Quillet::Json
