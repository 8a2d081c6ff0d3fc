#include "model/BonDeCommande.h"
#include "model/ChiffresAscii.h"
#include "model/controle/NumeroDeControle.h"
#include "model/controle/Regles.h"
#include "model/controle/ReglesCommunes.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace Quillet {

namespace {

using Json::Lieu;

// Only a case is ever looked up.
template <typename Enum, typename T>
void clesConnues(const QMap<Cle<Enum>, T> &table, const Lieu &lieu)
{
    for (const Cle<Enum> &cle : table.keys())
        if (!cle.cas())
            Lieu(lieu, cle.texte()).noter(QStringLiteral("clé inconnue"));
}

void emballages(const Reglages &reglages, const Lieu &racine)
{
    const QList<Emballage> &emballages = reglages.emballages;
    const Lieu lieu(racine, QStringLiteral("emballages"));
    if (emballages.isEmpty())
        return; // sellers who weigh every parcel need none
    QSet<QString> noms;
    for (qsizetype i = 0; i < emballages.size(); ++i) {
        if (noms.contains(emballages[i].nom))
            Lieu(lieu, i).noter("nom", QStringLiteral("un autre emballage a déjà ce nom"));
        if (emballages[i].nom == BonDeCommande::autrePoids())
            Lieu(lieu, i).noter("nom", QStringLiteral("nom réservé au poids que l’on tape"));
        noms.insert(emballages[i].nom);
    }
    if (emballages.first().poids == Grammes{})
        Lieu(lieu, 0).noter("poids",
                            QStringLiteral("plus de 0 g attendus, ce poids compte dans les prix des boutons PayPal"));
    const QString deDepart = BonDeCommande::emballageDeDepart(reglages);
    if (deDepart != BonDeCommande::autrePoids()
        && std::ranges::find(emballages, deDepart, &Emballage::nom) == emballages.end())
        lieu.noter(QStringLiteral("aucun ne s’appelle « %1 », l’emballage d’une nouvelle commande : il compterait 0 g")
                       .arg(deDepart));
}

void codeDouanier(const QString &code, const Lieu &lieu)
{
    if (code.size() < 6 || code.size() > 10 || !queDesChiffres(code))
        lieu.noter(QStringLiteral("six à dix chiffres attendus"));
}

void douane(const MentionsDouane &douane, const QList<CodeDestination> &destinations, const Lieu &lieu)
{
    codeDouanier(douane.codeSH, Lieu(lieu, QStringLiteral("codeSH")));
    if (!douane.codesParDestination)
        return;
    const Lieu codes(lieu, QStringLiteral("codesParDestination"));
    for (auto code = douane.codesParDestination->begin(); code != douane.codesParDestination->end(); ++code) {
        const Lieu place(codes, code.key().texte());
        codeDouanier(code.value(), place);
        if (!destinations.isEmpty() && !destinations.contains(code.key()))
            place.noter(QStringLiteral("aucune destination n’a ce code"));
    }
}

// The country that gave it, then up to fifteen signs of its choice.
bool estUnEori(const QString &numero)
{
    static const QRegularExpression forme(QStringLiteral("^[A-Z]{2}[0-9A-Z]{1,15}$"));
    return forme.match(numero).hasMatch();
}

bool estUnNomDeSite(const QString &site)
{
    return QUrl(QStringLiteral("https://") + site, QUrl::StrictMode).host() == site.toLower() && site.contains(u'.');
}

void vendeur(const IdentiteVendeur &identite, const Lieu &lieu)
{
    if (identite.adresse.isEmpty())
        lieu.noter("adresse", QStringLiteral("adresse à remplir"));
    if (identite.siret && !NumeroDeControle::siret(*identite.siret))
        lieu.noter("siret", QStringLiteral("ce n’est pas un numéro SIRET"));
    if (identite.retourPaypal)
        ReglesCommunes::controler(QUrl(*identite.retourPaypal), Lieu(lieu, QStringLiteral("retourPaypal")));
    if (identite.site && !estUnNomDeSite(*identite.site))
        lieu.noter("site", QStringLiteral("nom de site attendu, sans https:// ni page"));
    if (identite.eori && !estUnEori(*identite.eori))
        lieu.noter("eori",
                   QStringLiteral("numéro EORI attendu : deux lettres, puis quinze chiffres au plus, sans espace"));
}

} // namespace

void Regles::frais(const FraisPaypal &frais, const Lieu &lieu)
{
    clesConnues(frais.supplements, Lieu(lieu, QStringLiteral("supplements")));
}

void Regles::reglages(const Reglages &reglages, const QList<CodeDestination> &destinations, const Lieu &lieu)
{
    frais(reglages.fraisPaypal, Lieu(lieu, QStringLiteral("fraisPaypal")));
    emballages(reglages, lieu);
    douane(reglages.douane, destinations, Lieu(lieu, QStringLiteral("douane")));

    const Lieu vendeurs(lieu, QStringLiteral("vendeurs"));
    if (reglages.vendeurs.isEmpty())
        vendeurs.noter(QStringLiteral("aucun vendeur"));
    clesConnues(reglages.vendeurs, vendeurs);
    for (auto entree = reglages.vendeurs.begin(); entree != reglages.vendeurs.end(); ++entree)
        vendeur(entree.value(), Lieu(vendeurs, entree.key().texte()));
}

} // namespace Quillet
