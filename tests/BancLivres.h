#pragma once

#include "tests/BancEcran.h"
#include "ui/ContenuPrincipal.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>

namespace Quillet {

// The books' screen, opened on the bench's books; the first one has a PayPal button.
struct BancLivres : BancEcran
{
    explicit BancLivres(Origine deQui = Origine::dossier)
    {
        origine = deQui;
        donnees.livres[0].prixPaypal = {{vers("france"), Centimes{2000}}};
        demarrer();
        app->fenetre().contenu()->montrer(Rubrique::livres);
    }
    [[nodiscard]] Fenetre *fenetre() const { return &app->fenetre(); }
    [[nodiscard]] QList<Livre> enregistres() const
    {
        donnees.deposer();
        return Catalogue::charge(ressources(), donnees.stockage())->donnees().livres;
    }
    [[nodiscard]] Livre enregistre(qsizetype rang) const { return enregistres()[rang]; }
    [[nodiscard]] QListView *liste() const
    {
        return qobject_cast<QListView *>(Ecran::controle(fenetre(), QStringLiteral("Livres")));
    }
    [[nodiscard]] QLineEdit *champ(const QString &nom) const
    {
        return qobject_cast<QLineEdit *>(Ecran::controle(fenetre(), nom));
    }
    void choisir(int rang) const { liste()->setCurrentIndex(liste()->model()->index(rang, 0)); }
    [[nodiscard]] QString courant() const { return liste()->currentIndex().data().toString(); }
    // The text on screen that begins like this.
    [[nodiscard]] QString texte(const QString &debut) const
    {
        for (const auto *libelle : fenetre()->findChildren<QLabel *>())
            if (libelle->isVisible() && libelle->text().startsWith(debut))
                return lisible(libelle->text());
        return {};
    }
    [[nodiscard]] bool cliquer(const QString &bouton) const { return Ecran::cliquer(fenetre(), bouton); }
};

inline const QString champDuPrix = QStringLiteral("Prix, en euros");

} // namespace Quillet
