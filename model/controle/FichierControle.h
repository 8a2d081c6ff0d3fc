#pragma once

#include "model/Fichier.h"
#include "model/Ressources.h"
#include "model/controle/ClesDoublees.h"
#include "model/controle/ReglesCommunes.h"

#include <optional>

namespace Quillet {

// One file: what could be read of it, and what is wrong with it.
template <typename T>
class FichierControle
{
public:
    FichierControle(const Ressources &ressources, const QString &nom)
        : nom_(nom),
          chemin_(ressources.chemin(nom + QStringLiteral(".json"))),
          lu_(ressources.examiner<T>(nom, constats_)),
          valeur_(lu_.value_or(T{}))
    {
    }

    [[nodiscard]] const T &valeur() const { return valeur_; }
    [[nodiscard]] const QString &nom() const { return nom_; }
    [[nodiscard]] const QStringList &erreurs() const { return constats_.textes(); }

    // Nothing to say of the content of a file that could not be read at all.
    template <typename Regle, typename... Reperes>
    void controler(Regle regle, const Reperes &...reperes)
    {
        if (!lu_)
            return;
        for (const auto &[ligne, cle] :
             ClesDoublees::dans(Fichier::lire(chemin_, Fichier::Borne::donnees).value_or(QByteArray())))
            constats_.ajouter(QStringLiteral("%1.json, ligne %2 : clé « %3 » écrite deux fois, la dernière compte")
                                  .arg(nom_, QString::number(ligne), cle));
        const Json::Lieu racine(nom_, &constats_);
        ReglesCommunes::controler(valeur_, racine);
        regle(valeur_, reperes..., racine);
    }

private:
    QString nom_;
    QString chemin_;
    Json::Constats constats_;
    std::optional<T> lu_;
    T valeur_;
};

} // namespace Quillet
