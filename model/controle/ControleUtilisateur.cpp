#include "model/controle/ControleUtilisateur.h"

#include "model/Livre.h"
#include "model/Stockage.h"
#include "model/controle/FichierControle.h"
#include "model/controle/Regles.h"

#include <QFileInfo>

namespace Quillet {

namespace {

template <typename T, typename Regle>
QStringList dans(const Ressources &dossier, const QString &fichier, Regle regle)
{
    try {
        if (!Fichier::existe(dossier.chemin(fichier)))
            return {};
    } catch (const ErreurStockage &erreur) {
        return {QStringLiteral("%1 : %2").arg(fichier, erreur.raison())};
    }
    FichierControle<T> controle(dossier, QFileInfo(fichier).completeBaseName());
    controle.controler(regle);
    return controle.erreurs();
}

} // namespace

QStringList ControleUtilisateur::erreurs(const QDir &dossier)
{
    const Ressources fichiers(dossier);
    const auto toutLivre = [](const ModificationsLivres &, const Json::Lieu &) {}; // one that is not sold any more, too
    const auto unJeu = [](const TarifsColissimo &tarifs, const Json::Lieu &lieu) { Regles::tarifs(tarifs, {}, lieu); };
    QStringList erreurs = dans<ModificationsLivres>(fichiers, Stockage::fichierDesLivres(), toutLivre)
                          + dans<FraisPaypal>(fichiers, Stockage::fichierDesFrais(), Regles::frais);
    for (const QString &nom : fichiers.nomsDesTarifs())
        erreurs += dans<TarifsColissimo>(fichiers, nom + QStringLiteral(".json"), unJeu);
    for (QString &erreur : erreurs)
        erreur = QDir::toNativeSeparators(dossier.filePath(erreur));
    return erreurs;
}

} // namespace Quillet
