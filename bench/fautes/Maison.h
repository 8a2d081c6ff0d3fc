#pragma once

#include "echanges/Reprise.h"

#include <QByteArray>
#include <QMap>

namespace Quillet {

// A seller's folder with own data and numbers of invoices, at work on what touches many of its files at once.
class Maison
{
public:
    Maison(Ressources ressources, const QString &dossier);

    // Data of that rank: own books and their pictures, unless it is 0, accepted fees, the last invoice.
    void installer(int rang) const;
    void creerLesDonnees(int rang) const;
    [[nodiscard]] Demeure demeure() const;
    [[nodiscard]] std::unique_ptr<Catalogue> catalogue() const;
    // An archive unpacked here; its pictures, which are none, pass for good.
    [[nodiscard]] std::unique_ptr<Reprise> preparer(const QString &archive) const;

    // What counts of it, by name: no copies, nothing unpacked, left by a kill, or pictured without a book that says so.
    [[nodiscard]] QMap<QString, QByteArray> etat() const;
    // As a program does that starts on it.
    void demarrer() const;

    [[nodiscard]] const QDir &dossier() const { return dossier_; }

private:
    Ressources ressources_;
    QDir dossier_;
    Preferences preferences_;
};

// One thing that a seller does, from one state to another.
struct GesteDeMaison
{
    const char *nom;
    int rang; // of the data that it starts from
    void (*faire)(const Maison &maison, const QString &archive);
    bool laisseUneCopie;
};
QList<GesteDeMaison> gestesDeMaison();

} // namespace Quillet
