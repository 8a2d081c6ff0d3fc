#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Quillet {

// One row of the report: what was measured, and what it is held against.
struct Releve
{
    QString nom;
    QString unite;
    double mediane = 0;
    std::optional<double> centile95;
    std::optional<double> reference; // same unit; the goal is then about median / reference
    std::optional<double> but;       // at most
};

// The value below which this part (0 to 1) of the values lies; there must be one value at least.
double centile(QList<double> valeurs, double part);
Releve releve(const QString &nom, const QString &unite, const QList<double> &valeurs);
QList<Releve> avecBut(double but, QList<Releve> releves);
// The same rows with few books, many, and more than anybody will have: the first two have one goal, the last is held
// against the first, to see how it grows.
QList<Releve> parTaille(double but, const QList<Releve> &peu, const QList<Releve> &beaucoup, QList<Releve> trop);

enum class Forme { texte, markdown };
// The whole report, as one table.
QString tableau(const QList<Releve> &releves, Forme forme);

} // namespace Quillet
