#include "model/Catalogue.h"

#include "model/Format.h"

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

QString fichierDes(const TarifsColissimo &tarifs)
{
    return QStringLiteral("tarifs-colissimo-%1.json").arg(tarifs.validite);
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

} // namespace

Catalogue::Catalogue(const Ressources &ressources, Stockage stockage)
    : ressources_(ressources),
      stockage_(std::move(stockage)),
      livres_(ressources.lire<QList<Livre>>(QStringLiteral("livres"))),
      grillesConnues_(fusion(ressources.tarifs(), stockage_.grillesEnregistrees())),
      destinations_(ressources.lire<QList<Destination>>(QStringLiteral("destinations"))),
      reglages_(ressources.lire<Reglages>(QStringLiteral("reglages")))
{
    if (const auto frais = stockage_.lire<FraisPaypal>(fichierDesFrais()))
        reglages_.fraisPaypal = *frais;
    if (const auto modifications = stockage_.lire<ModificationsLivres>(fichierDesLivres()))
        for (Livre &livre : livres_)
            if (const auto modification = modifications->find(QString::number(livre.id));
                modification != modifications->end())
                modification->appliquer(livre);
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

void Catalogue::enregistrer(const TarifsColissimo &tarifs)
{
    stockage_.ecrire(tarifs, fichierDes(tarifs));
    grillesConnues_.removeIf([&](const TarifsColissimo &connus) { return connus.validite == tarifs.validite; });
    grillesConnues_.append(tarifs);
    emit change();
}

void Catalogue::enregistrer(const FraisPaypal &frais)
{
    stockage_.ecrire(frais, fichierDesFrais());
    if (reglages_.fraisPaypal == frais)
        return;
    reglages_.fraisPaypal = frais;
    emit change();
}

void Catalogue::enregistrerLivres()
{
    ecrireLivres(livres_);
}

void Catalogue::modifier(const Livre &livre)
{
    ecrireLivres(avecModification(livres_, livre.id, [&](Livre &ancien) { ancien = livre; }));
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
    const auto livres = ressources_.lire<QList<Livre>>(QStringLiteral("livres"));
    stockage_.effacer<ModificationsLivres>(fichierDesLivres());
    if (livres_ == livres)
        return;
    livres_ = livres;
    emit change();
}

void Catalogue::ecrireLivres(const QList<Livre> &livres)
{
    ModificationsLivres modifications;
    for (const Livre &livre : livres)
        modifications.insert(QString::number(livre.id), ModificationLivre::de(livre));
    stockage_.ecrire(modifications, fichierDesLivres());
    if (livres_ == livres)
        return;
    livres_ = livres;
    emit change();
}
