#include "bench/fautes/Poste.h"

#include "tests/Banc.h"

namespace Quillet {

namespace {

const QString fichierLivres = QStringLiteral("livres-modifies.json");
const QString fichierTarifs = QStringLiteral("tarifs-colissimo-2099-01-01.json");
const QString fichierFrais = QStringLiteral("frais-paypal.json");
const QString cleVerification = QStringLiteral("verification.laPoste");
const QString fichierNumeros = QStringLiteral("Quillet.ini");

void rien(Poste &) {}

void changerUnPrix(Poste &poste, int rang)
{
    Livre livre = poste.catalogue->donnees().livres.first();
    livre.prix = Centimes{1000 + rang};
    poste.historique.modifier(livre, QStringLiteral("prix"));
}

// Every book, so that a mixture of two writings shows.
void changerLesPrix(Poste &poste, int rang)
{
    QList<Livre> livres = poste.catalogue->donnees().livres;
    for (Livre &livre : livres) {
        livre.prix = Centimes{1000 + rang};
        livre.prixPaypal = {{CodeDestination(QStringLiteral("france")), Centimes{rang}}};
    }
    poste.catalogue->modifier(livres);
}

void enregistrerLesTarifs(Poste &poste, int rang)
{
    poste.catalogue->enregistrer(desTarifs("2099-01-01", Centimes{1 + rang}));
}

void enregistrerLesFrais(Poste &poste, int rang)
{
    const QUrl page(QStringLiteral("https://paypal.example/frais"));
    poste.catalogue->enregistrer(
        FraisPaypal{QDate(2026, 7, 24), page, Taux{290}, Centimes{1 + rang}, {{RegionPaypal::autres, Taux{rang}}}});
}

void retenirUnNumero(Poste &poste, int rang)
{
    poste.numeros.retenir(QStringLiteral("2026-%1").arg(rang, 3, 10, QLatin1Char('0')), Vendeur::davrel);
}

void noterUneVerification(Poste &poste, int rang)
{
    poste.numeros.preferences.ecrire(cleVerification, QStringLiteral("2026-03-02T10:00:%1Z").arg(10 + rang));
}

// Prices that no grid gives, so that the buttons have something to take over.
void fausserLesBoutons(Poste &poste)
{
    changerLesPrix(poste, 7);
}

QList<PrixBouton> boutons(const Poste &poste)
{
    const Catalogue &catalogue = *poste.catalogue;
    return catalogue.donnees().boutons(catalogue.donnees().livres.first(), catalogue.donnees().grillesConnues.first());
}

} // namespace

Poste::Poste(const Ressources &ressources, const QString &dossier)
    : catalogue(Catalogue::charge(ressources, Stockage(QDir(dossier)))),
      historique(*catalogue),
      numeros{Preferences(QDir(dossier).filePath(fichierNumeros))}
{
}

Contenu::Contenu(const Poste &poste)
    : livres(poste.catalogue->donnees().livres),
      frais(poste.catalogue->donnees().reglages.fraisPaypal),
      verification(poste.numeros.preferences.texte(cleVerification)),
      aAnnuler(poste.historique.aAnnuler())
{
    for (const TarifsColissimo &jeu : poste.catalogue->donnees().grillesConnues)
        tarifs.insert(jeu.validite, jeu);
    for (const Vendeur vendeur : tous<Vendeur>) {
        try {
            numeros.append(poste.numeros.prochain(vendeur, QDate(2026, 3, 2)));
        } catch (const ErreurStockage &) {
            numeros.append(QStringLiteral("aucun")); // as the sheet would show
        }
    }
}

bool Contenu::memesDonnees(const Contenu &autre) const
{
    return livres == autre.livres && tarifs == autre.tarifs && frais == autre.frais && numeros == autre.numeros
           && verification == autre.verification;
}

QList<Geste> gestes()
{
    const auto changer = [](Poste &poste) { changerUnPrix(poste, 7); };
    return {
        {"changer un prix", fichierLivres, rien, changerUnPrix},
        {"garder un bouton", fichierLivres, fausserLesBoutons,
         [](Poste &poste, int) {
             poste.historique.garder(poste.catalogue->donnees().livres.first(), boutons(poste).first(),
                                     QStringLiteral("garde"));
         }},
        {"reporter les boutons", fichierLivres, fausserLesBoutons,
         [](Poste &poste, int) {
             poste.historique.reporter(poste.catalogue->donnees().livres.first(), boutons(poste),
                                       QStringLiteral("report"));
         }},
        {"revenir aux valeurs livrées", fichierLivres, rien,
         [](Poste &poste, int) { poste.historique.revenirAuxValeursLivrees(QStringLiteral("retour")); }},
        {"annuler", fichierLivres, changer, [](Poste &poste, int) { poste.historique.annuler(); }},
        {"rétablir", fichierLivres,
         [](Poste &poste) {
             changerUnPrix(poste, 7);
             poste.historique.annuler();
         },
         [](Poste &poste, int) { poste.historique.retablir(); }},
        {"enregistrer des tarifs", fichierTarifs, rien, enregistrerLesTarifs},
        {"enregistrer des frais", fichierFrais, rien, enregistrerLesFrais},
        {"retenir un numéro", fichierNumeros, rien, retenirUnNumero},
        {"noter une vérification", fichierNumeros, rien, noterUneVerification},
        {"réimprimer un ancien numéro", fichierNumeros, rien, [](Poste &poste, int) { retenirUnNumero(poste, 1); }},
    };
}

QList<Geste> gestesEntiers()
{
    return {
        {"les livres", fichierLivres, rien, changerLesPrix},
        {"les tarifs", fichierTarifs, rien, enregistrerLesTarifs},
        {"les frais", fichierFrais, rien, enregistrerLesFrais},
        {"un numéro", fichierNumeros, rien, retenirUnNumero},
    };
}

} // namespace Quillet
