#include "model/Catalogue.h"

#include "model/Format.h"

#include <QThread>

#include <algorithm>

namespace {

QString fichierDesLivres()
{
    return QStringLiteral("livres-modifies.json");
}

QString fichierDesFrais()
{
    return QStringLiteral("frais-paypal.json");
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

bool memesPrix(const TarifsColissimo &connus, const TarifsColissimo &lus)
{
    return connus.grilles.size() == lus.grilles.size()
           && std::ranges::all_of(lus.grilles, [&](const GrilleColissimo &lue) {
                  const GrilleColissimo *connue = connus.grille(lue.code);
                  return connue && connue->paliers == lue.paliers;
              });
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
    if (const auto frais = stockage.lire<FraisPaypal>(fichierDesFrais()))
        reglages.fraisPaypal = *frais;
    return reglages;
}

QList<Livre> livresModifies(const Ressources &ressources, Stockage &stockage)
{
    auto livres = ressources.lire<QList<Livre>>(QStringLiteral("livres"));
    const auto modifications = stockage.lire<ModificationsLivres>(fichierDesLivres()).value_or(ModificationsLivres{});
    for (Livre &livre : livres)
        if (const auto trouvee = modifications.find(QString::number(livre.id)); trouvee != modifications.end())
            trouvee->appliquer(livre);
    return livres;
}

} // namespace

Catalogue::Catalogue(const Ressources &ressources, Stockage stockage)
    : ressources_(ressources),
      stockage_(std::move(stockage)),
      grillesConnues_(fusion(ressources.tarifs(), stockage_.grillesEnregistrees())),
      reglages_(reglagesAvecFrais(ressources, stockage_)),
      livres_(livresModifies(ressources, stockage_)),
      destinations_(ressources.lire<QList<Destination>>(QStringLiteral("destinations")))
{
}

std::unique_ptr<Catalogue> Catalogue::charge(const Ressources &ressources, Stockage stockage)
{
    return std::unique_ptr<Catalogue>(new Catalogue(ressources, std::move(stockage)));
}

const TarifsColissimo &Catalogue::tarifs(const QString &date) const
{
    Q_ASSERT(!grillesConnues_.isEmpty());
    const TarifsColissimo *enVigueur = nullptr;
    for (const TarifsColissimo &tarifs : grillesConnues_)
        if (tarifs.validite <= date && (!enVigueur || tarifs.validite > enVigueur->validite))
            enVigueur = &tarifs;
    return enVigueur ? *enVigueur
                     : *std::ranges::min_element(grillesConnues_, std::ranges::less{}, &TarifsColissimo::validite);
}

std::optional<TarifsColissimo> Catalogue::tarifsAVenir(QDate aujourdhui) const
{
    const QString date = Format::iso(aujourdhui);
    std::optional<TarifsColissimo> prochains;
    for (const TarifsColissimo &tarifs : grillesConnues_)
        if (tarifs.validite > date && (!prochains || tarifs.validite < prochains->validite))
            prochains = tarifs;
    return prochains;
}

bool Catalogue::connait(const TarifsColissimo &tarifs) const
{
    return std::ranges::any_of(grillesConnues_,
                               [&](const TarifsColissimo &connus) { return memesPrix(connus, tarifs); });
}

std::optional<Destination> Catalogue::destination(const QString &code) const
{
    const auto trouvee = std::ranges::find(destinations_, code, &Destination::code);
    return trouvee == destinations_.end() ? std::nullopt : std::optional(*trouvee);
}

QList<PrixBouton> Catalogue::boutons(const Livre &livre, const TarifsColissimo &tarifs) const
{
    const Grammes emballage = reglages_.emballages.isEmpty() ? Grammes{} : reglages_.emballages.first().poids;
    return PrixBouton::calculer(livre, tarifs, destinations_, emballage);
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
    auto connues = grillesConnues_;
    connues.removeIf([&](const TarifsColissimo &connus) { return connus.validite == tarifs.validite; });
    connues.append(tarifs);
    adopter(grillesConnues_, connues);
}

void Catalogue::enregistrer(const FraisPaypal &frais)
{
    stockage_.ecrire(frais, fichierDesFrais());
    adopter(reglages_.fraisPaypal, frais);
}

void Catalogue::enregistrerLivres()
{
    ecrireLivres(livres_);
}

void Catalogue::modifier(const QList<Livre> &livres)
{
    QList<Livre> modifies = livres_;
    for (const Livre &livre : livres)
        modifies = avecModification(std::move(modifies), livre.id, [&](Livre &ancien) { ancien = livre; });
    ecrireLivres(modifies);
}

void Catalogue::garder(const Livre &livre, const PrixBouton &ligne)
{
    if (!ligne.calcule)
        return;
    ecrireLivres(avecModification(livres_, livre.id, [&](Livre &garde) {
        creeAuBesoin(garde.prixEcartes).insert(ligne.destination.code, *ligne.calcule);
    }));
}

void Catalogue::reporter(const Livre &livre, const QList<PrixBouton> &lignes)
{
    ecrireLivres(avecModification(livres_, livre.id, [&](Livre &reporte) {
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
    stockage_.effacer(fichierDesLivres());
    adopter(livres_, livres);
}

QList<Livre> Catalogue::valeursLivrees() const
{
    return ressources_.lire<QList<Livre>>(QStringLiteral("livres"));
}

void Catalogue::ecrireLivres(const QList<Livre> &livres)
{
    ModificationsLivres modifications;
    for (const Livre &livre : livres)
        modifications.insert(QString::number(livre.id), ModificationLivre::de(livre));
    stockage_.ecrire(modifications, fichierDesLivres());
    adopter(livres_, livres);
}
