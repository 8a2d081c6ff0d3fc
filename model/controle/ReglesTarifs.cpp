#include "model/controle/Regles.h"
#include "model/controle/ReglesCommunes.h"

namespace Quillet {

namespace {

template <Enumeration Enum>
QString valeurs()
{
    QStringList textes;
    for (const Enum cas : tous<Enum>)
        textes.append(brut(cas));
    return textes.join(QStringLiteral(", "));
}

void paliers(const QList<Palier> &paliers, const Json::Lieu &lieu)
{
    if (paliers.isEmpty())
        lieu.noter(QStringLiteral("aucun palier"));
    Grammes precedent;
    for (qsizetype i = 0; i < paliers.size(); ++i) {
        if (paliers[i].jusqua <= precedent)
            Json::Lieu(lieu, i).noter(
                "jusqua", QStringLiteral("plus de %1 g attendus, les paliers vont en montant").arg(precedent.valeur()));
        if (paliers[i].prix == Centimes{})
            Json::Lieu(lieu, i).noter("prix", QStringLiteral("plus de 0 attendu"));
        precedent = paliers[i].jusqua;
    }
}

void grille(const GrilleColissimo &grille, const Json::Lieu &lieu)
{
    if (!grille.code.cas())
        lieu.noter("code", QStringLiteral("grille inconnue « %1 » ; celles de La Poste : %2")
                               .arg(grille.code.texte(), valeurs<ZoneColissimo>()));
    if (!grille.famille.cas())
        lieu.noter("famille", QStringLiteral("famille inconnue « %1 », la grille ne serait pas montrée ; attendu : %2")
                                  .arg(grille.famille.texte(), valeurs<FamilleTarifs>()));
    paliers(grille.paliers, Json::Lieu(lieu, QStringLiteral("paliers")));
}

} // namespace

void Regles::tarifs(const TarifsColissimo &tarifs, const TarifsParFichier &precedents, const Json::Lieu &lieu)
{
    for (const auto &[nom, precedent] : precedents)
        if (precedent.validite == tarifs.validite)
            lieu.noter("validite", QStringLiteral("déjà pris par %1").arg(nom));

    const Json::Lieu grilles(lieu, QStringLiteral("grilles"));
    if (tarifs.grilles.isEmpty())
        grilles.noter(QStringLiteral("aucune grille"));
    ReglesCommunes::sansDoublon(tarifs.grilles, "code", &GrilleColissimo::code, grilles);
    for (qsizetype i = 0; i < tarifs.grilles.size(); ++i)
        grille(tarifs.grilles[i], Json::Lieu(grilles, i));
}

} // namespace Quillet
