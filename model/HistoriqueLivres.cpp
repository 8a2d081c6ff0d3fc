#include "model/HistoriqueLivres.h"

#include "model/Catalogue.h"

namespace Quillet {

namespace {

// What stood before, of the books that a change of the catalogue touched. Shipped data may be shorter than it was: the
// program may be upgraded while it runs.
QList<Livre> touches(const QList<Livre> &avant, const QList<Livre> &apres)
{
    QList<Livre> touches;
    for (qsizetype i = 0; i < avant.size(); ++i)
        if (i >= apres.size() || avant[i] != apres[i])
            touches.append(avant[i]);
    return touches;
}

} // namespace

HistoriqueLivres::HistoriqueLivres(Catalogue &catalogue, QObject *parent) : QObject(parent), catalogue_(catalogue) {}

void HistoriqueLivres::modifier(const Livre &livre, const QString &nom)
{
    if (!catalogue_.donnees().livres.contains(livre)) // else a value was typed again: nothing to write
        executer(nom, [this, livre] { catalogue_.modifier({livre}); });
}

void HistoriqueLivres::garder(const Livre &livre, const PrixBouton &ligne, const QString &nom)
{
    executer(nom, [this, livre, ligne] { catalogue_.garder(livre, ligne); });
}

void HistoriqueLivres::reporter(const Livre &livre, const QList<PrixBouton> &lignes, const QString &nom)
{
    executer(nom, [this, livre, lignes] { catalogue_.reporter(livre, lignes); });
}

void HistoriqueLivres::revenirAuxValeursLivrees(const QString &nom)
{
    executer(nom, [this] { catalogue_.revenirAuxValeursLivrees(); });
}

void HistoriqueLivres::executer(const QString &nom, const std::function<void()> &faire)
{
    const QList<Livre> avant = catalogue_.donnees().livres;
    faire();
    const QList<Livre> livresTouches = touches(avant, catalogue_.donnees().livres);
    if (livresTouches.isEmpty())
        return;
    faits_.append({nom, faire, livresTouches});
    annules_.clear();
    emit change();
}

QString HistoriqueLivres::aAnnuler() const
{
    return faits_.isEmpty() ? QString() : faits_.last().nom;
}

QString HistoriqueLivres::aRetablir() const
{
    return annules_.isEmpty() ? QString() : annules_.last().nom;
}

qint64 HistoriqueLivres::annuler()
{
    catalogue_.modifier(faits_.last().avant);
    annules_.append(faits_.takeLast());
    emit change();
    return annules_.last().avant.first().id;
}

qint64 HistoriqueLivres::retablir()
{
    annules_.last().faire();
    faits_.append(annules_.takeLast());
    emit change();
    return faits_.last().avant.first().id;
}

} // namespace Quillet
