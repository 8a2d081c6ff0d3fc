#include "model/Catalogue.h"

#include <QThread>

#include <algorithm>

namespace Quillet {

namespace {

Cle<Livre> cle(const Livre &livre)
{
    return Cle<Livre>(QString::number(livre.id));
}

QList<TarifsColissimo> fusion(QList<TarifsColissimo> livrees, const QList<TarifsColissimo> &enregistrees)
{
    for (const TarifsColissimo &tarifs : enregistrees) {
        const auto remplacee = std::ranges::find(livrees, tarifs.validite, &TarifsColissimo::validite);
        if (remplacee == livrees.end())
            livrees.append(tarifs);
        else
            *remplacee = tarifs;
    }
    return livrees;
}

template <typename Modification>
QList<Livre> avecModification(QList<Livre> livres, qint64 id, Modification modification)
{
    const auto livre = std::ranges::find(livres, id, &Livre::id);
    if (livre != livres.end())
        modification(*livre);
    return livres;
}

PrixParDestination &creeAuBesoin(std::optional<PrixParDestination> &prix)
{
    return prix ? *prix : prix.emplace();
}

Reglages reglagesAvecFrais(const Ressources &ressources, Stockage &stockage)
{
    auto reglages = ressources.lire<Reglages>(QStringLiteral("reglages"));
    if (const auto frais = stockage.lire<FraisPaypal>(Stockage::fichierDesFrais()))
        reglages.fraisPaypal = *frais;
    return reglages;
}

// Overrides are of books that cannot be written: the sellers' own hold what the screens changed.
QList<Livre> livresModifies(const Ressources &ressources, Stockage &stockage)
{
    auto livres = ressources.lire<QList<Livre>>(QStringLiteral("livres"));
    if (ressources.origine() == Origine::utilisateur)
        return livres;
    const auto modifications =
        stockage.lire<ModificationsLivres>(Stockage::fichierDesLivres()).value_or(ModificationsLivres{});
    for (Livre &livre : livres)
        if (const auto trouvee = modifications.find(cle(livre)); trouvee != modifications.end())
            trouvee->appliquer(livre);
    return livres;
}

// The first that cannot be read is the one that the user is told of.
Donnees charger(const Ressources &ressources, Stockage &stockage)
{
    Donnees donnees;
    donnees.grillesConnues = fusion(ressources.tarifs(), stockage.grillesEnregistrees());
    donnees.reglages = reglagesAvecFrais(ressources, stockage);
    donnees.livres = livresModifies(ressources, stockage);
    donnees.destinations = ressources.lire<QList<Destination>>(QStringLiteral("destinations"));
    if (ressources.existe(QStringLiteral("pays")))
        donnees.pays = ressources.lire<QList<Pays>>(QStringLiteral("pays"));
    donnees.personnelles = ressources.origine() == Origine::utilisateur;
    return donnees;
}

} // namespace

struct Catalogue::Lecture
{
    Ressources ressources;
    Stockage stockage; // which notes what it has read
    std::optional<DossierPersonnel> personnel;
    Donnees donnees;
    FraisPaypal fraisDuDossier;

    // What the folder holds is noted before it is read: what changes in between shows.
    static Lecture de(const Ressources &ressources, const Stockage &stockage)
    {
        Lecture lecture{ressources, stockage, std::nullopt, {}, {}};
        if (ressources.origine() == Origine::utilisateur)
            lecture.personnel.emplace(ressources.dossier());
        lecture.donnees = charger(ressources, lecture.stockage);
        if (lecture.personnel)
            lecture.fraisDuDossier = ressources.lire<Reglages>(QStringLiteral("reglages")).fraisPaypal;
        return lecture;
    }
};

Catalogue::Catalogue(const Lecture &lecture)
    : ressources_(lecture.ressources),
      stockage_(lecture.stockage),
      personnel_(lecture.personnel),
      donnees_(lecture.donnees),
      fraisDuDossier_(lecture.fraisDuDossier)
{
}

std::unique_ptr<Catalogue> Catalogue::charge(const Ressources &ressources, const Stockage &stockage)
{
    return std::unique_ptr<Catalogue>(new Catalogue(Lecture::de(ressources, stockage)));
}

template <typename T>
void Catalogue::adopter(T &champ, const T &valeur)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (champ == valeur)
        return;
    champ = valeur;
    emit change();
}

void Catalogue::enregistrer(const TarifsColissimo &tarifs)
{
    stockage_.ecrire(tarifs, tarifs.nomDeFichier());
    auto connues = donnees_.grillesConnues;
    connues.removeIf([&](const TarifsColissimo &connus) { return connus.validite == tarifs.validite; });
    connues.append(tarifs);
    adopter(donnees_.grillesConnues, connues);
}

void Catalogue::enregistrer(const FraisPaypal &frais)
{
    stockage_.ecrire(frais, Stockage::fichierDesFrais());
    adopter(donnees_.reglages.fraisPaypal, frais);
}

void Catalogue::modifier(const QList<Livre> &livres)
{
    QList<Livre> modifies = donnees_.livres;
    for (const Livre &livre : livres)
        modifies = avecModification(std::move(modifies), livre.id, [&](Livre &ancien) { ancien = livre; });
    ecrireLivres(modifies);
}

void Catalogue::garder(const Livre &livre, const PrixBouton &ligne)
{
    if (!ligne.calcule)
        return;
    ecrireLivres(avecModification(donnees_.livres, livre.id, [&](Livre &garde) {
        creeAuBesoin(garde.prixEcartes).insert(ligne.destination.code, *ligne.calcule);
    }));
}

void Catalogue::reporter(const Livre &livre, const QList<PrixBouton> &lignes)
{
    ecrireLivres(avecModification(donnees_.livres, livre.id, [&](Livre &reporte) {
        for (const PrixBouton &ligne : lignes) {
            if (!ligne.calcule || ligne.calcule == ligne.actuel)
                continue;
            creeAuBesoin(reporte.prixPaypal).insert(ligne.destination.code, *ligne.calcule);
            creeAuBesoin(reporte.prixEcartes).remove(ligne.destination.code);
        }
    }));
}

void Catalogue::revenirAuxValeursLivrees()
{
    const QList<Livre> livres = valeursLivrees();
    stockage_.effacer(Stockage::fichierDesLivres());
    adopter(donnees_.livres, livres);
}

QList<Livre> Catalogue::valeursLivrees() const
{
    return ressources_.lire<QList<Livre>>(QStringLiteral("livres"));
}

void Catalogue::remplacer(const QList<Livre> &livres)
{
    personnel_.value().ecrire(livres);
    adopter(donnees_.livres, livres);
}

void Catalogue::remplacer(const Reglages &reglages)
{
    Reglages nouveaux = reglages;
    nouveaux.fraisPaypal = fraisDuDossier_;
    personnel_.value().ecrire(nouveaux);
    nouveaux.fraisPaypal = donnees_.reglages.fraisPaypal;
    adopter(donnees_.reglages, nouveaux);
}

std::function<Catalogue::Lue()> Catalogue::relecture() const
{
    return [ressources = ressources_, stockage = stockage_] {
        const bool dejaPropres = ressources.origine() == Origine::utilisateur; // even lost, nothing stands for them
        const auto enVigueur =
            dejaPropres ? ressources : Ressources::personnelles(stockage.donneesPersonnelles()).value_or(ressources);
        return std::make_shared<const Lecture>(Lecture::de(enVigueur, stockage));
    };
}

void Catalogue::prendre(const Lue &lue)
{
    ressources_ = lue->ressources;
    stockage_ = lue->stockage;
    personnel_ = lue->personnel;
    donnees_ = lue->donnees;
    fraisDuDossier_ = lue->fraisDuDossier;
    emit recharge();
    emit change();
}

void Catalogue::ecrireLivres(const QList<Livre> &livres)
{
    if (personnel_)
        return remplacer(livres);
    ModificationsLivres modifications;
    for (const Livre &livre : livres)
        modifications.insert(cle(livre), ModificationLivre::de(livre));
    stockage_.ecrire(modifications, Stockage::fichierDesLivres());
    adopter(donnees_.livres, livres);
}

} // namespace Quillet
