#pragma once

#include "echanges/Bagage.h"
#include "echanges/Demeure.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace Quillet {

// A state kept in the folder of copies.
struct Copie
{
    QString chemin;
    QDateTime moment; // its day; of one kept before an import, its hour too
    bool avantReprise = false;
};

// The states kept by themselves: one a day at most, and one before each import; ten of each. All throw Echec.
class Copies
{
public:
    static constexpr qsizetype gardees = 10;

    explicit Copies(const Demeure &demeure) : demeure_(demeure) {}

    // The latest first.
    [[nodiscard]] QList<Copie> liste() const;
    // Keeps today's unless there is one, or nothing changed since the last; then the eleventh goes. Whether one was.
    // One that is kept but lacks something throws too.
    bool duJour(QDate aujourdhui) const;
    // Keeps what an import is about to replace, if there is anything; refuses when a part of it would be lost.
    void avantReprise(const QDateTime &maintenant, Bagage::Propres propres = Bagage::Propres::prises) const;

private:
    [[nodiscard]] QDir dossier() const { return {demeure_.utilisateur.filePath(QStringLiteral("copies"))}; }
    void garder(const QString &nom, const Bagage &bagage) const;
    void eclaircir(bool avantReprise, QDate aujourdhui) const;
    [[nodiscard]] bool aQuelqueChoseDeLUtilisateur(const Bagage &bagage) const;
    static QString empreinte(const QString &copie);

    Demeure demeure_;
};

} // namespace Quillet
