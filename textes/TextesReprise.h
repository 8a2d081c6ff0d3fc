#pragma once

#include "echanges/Comparaison.h"
#include "echanges/Copies.h"

#include <QString>
#include <QStringList>

// What is said of an archive before it is taken, and of the copies that were kept.
namespace Quillet::TextesReprise {

struct Ligne
{
    QString libelle;
    QString nombre; // may be empty
    QString detail; // may be empty
};

// One after the other, of what would change; none when nothing would.
struct Section
{
    QString titre;
    QList<Ligne> lignes;
};
QList<Section> sections(const Comparaison &comparaison);
// The same in one line.
QString resume(const Comparaison &comparaison);
// What becomes of what stands here: of an order under way, too.
QString suites(bool change, bool commandeEnCours);

// Where it comes from, when, and what it holds. Without own data, that the sellers' stay.
QString origine(const Manifeste &manifeste, const Donnees &donnees, bool propres);
// A seller's series: what stands now, and what would; that numbers would be given again.
QString serie(const Comparaison::Serie &serie, const Donnees &la);
QString passage(const Comparaison::Serie &serie);
// What the archive has that is left there; empty for none. What is to be corrected in it, empty for nothing.
QString laisses(const QStringList &inconnus);
QString aCorriger(const QStringList &remarques);
// What could not be put into an archive; empty for nothing.
QString absents(const QStringList &absents);

QString nomDExport(QDate jour);
// Of a copy: its day, why it was kept.
QString copie(const Copie &copie);
QString explicationDesCopies();
// Empty for no failure.
QString copieManquee(const QString &echec);

} // namespace Quillet::TextesReprise
