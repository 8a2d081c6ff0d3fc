#include "model/Historique.h"

#include "model/Catalogue.h"

#include <algorithm>

namespace Quillet {

namespace {

bool memesLivres(const QList<Livre> &avant, const QList<Livre> &apres)
{
    return std::ranges::equal(avant, apres, {}, &Livre::id, &Livre::id);
}

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

// A book that is not as it was, or has come; else one that stands where one has gone.
std::optional<qint64> premierTouche(const QList<Livre> &avant, const QList<Livre> &apres)
{
    const auto [ancien, nouveau] = std::ranges::mismatch(avant, apres);
    if (nouveau != apres.end())
        return nouveau->id;
    if (ancien != avant.end() && !apres.isEmpty())
        return apres.last().id;
    return std::nullopt;
}

} // namespace

Historique::Historique(Catalogue &catalogue, QObject *parent) : QObject(parent), catalogue_(catalogue)
{
    connect(&catalogue, &Catalogue::recharge, this, [this] {
        faits_.clear();
        annules_.clear();
        emit change();
    });
}

void Historique::modifier(const Livre &livre, const QString &nom)
{
    if (!catalogue_.donnees().livres.contains(livre)) // else a value was typed again: nothing to write
        executer(nom, [this, livre] { catalogue_.modifier({livre}); });
}

void Historique::garder(const Livre &livre, const PrixBouton &ligne, const QString &nom)
{
    executer(nom, [this, livre, ligne] { catalogue_.garder(livre, ligne); });
}

void Historique::reporter(const Livre &livre, const QList<PrixBouton> &lignes, const QString &nom)
{
    executer(nom, [this, livre, lignes] { catalogue_.reporter(livre, lignes); });
}

void Historique::revenirAuxValeursLivrees(const QString &nom)
{
    executer(nom, [this] { catalogue_.revenirAuxValeursLivrees(); });
}

void Historique::remplacer(const QList<Livre> &livres, const QString &nom)
{
    if (livres != catalogue_.donnees().livres)
        executer(nom, [this, livres] { catalogue_.remplacer(livres); });
}

void Historique::remplacer(const Reglages &reglages, const QString &nom)
{
    if (reglages != catalogue_.donnees().reglages)
        executer(nom, [this, reglages] { catalogue_.remplacer(reglages); });
}

void Historique::executer(const QString &nom, const std::function<void()> &faire)
{
    const QList<Livre> livres = catalogue_.donnees().livres;
    const Reglages reglages = catalogue_.donnees().reglages;
    faire();
    const Donnees &apres = catalogue_.donnees();
    Geste geste{nom, faire, {}};
    if (apres.reglages != reglages)
        geste.defaire = [this, reglages] { catalogue_.remplacer(reglages); };
    else if (catalogue_.donnees().personnelles && !memesLivres(livres, apres.livres))
        geste.defaire = [this, livres] { catalogue_.remplacer(livres); };
    else if (const QList<Livre> changes = touches(livres, apres.livres); !changes.isEmpty())
        geste.defaire = [this, changes] { catalogue_.modifier(changes); };
    else
        return;
    faits_.append(geste);
    annules_.clear();
    emit change();
}

QString Historique::aAnnuler() const
{
    return faits_.isEmpty() ? QString() : faits_.last().nom;
}

QString Historique::aRetablir() const
{
    return annules_.isEmpty() ? QString() : annules_.last().nom;
}

std::optional<qint64> Historique::toucher(const std::function<void()> &geste)
{
    const QList<Livre> avant = catalogue_.donnees().livres;
    geste();
    return premierTouche(avant, catalogue_.donnees().livres);
}

std::optional<qint64> Historique::annuler()
{
    const auto touche = toucher(faits_.last().defaire);
    annules_.append(faits_.takeLast());
    emit change();
    return touche;
}

std::optional<qint64> Historique::retablir()
{
    const auto touche = toucher(annules_.last().faire);
    faits_.append(annules_.takeLast());
    emit change();
    return touche;
}

} // namespace Quillet
