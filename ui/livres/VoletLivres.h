#pragma once

#include "composants/AnnonceAuRepos.h"
#include "model/EditionLivres.h"
#include "model/Tarifs.h"
#include "textes/FiltreLivres.h"

#include <QWidget>

class QStackedWidget;

namespace Quillet {

class Catalogue;
class ChoixSegmente;
class EtatVide;
class ImagesCouvertures;
class ListeLivres;
class ModeleLivres;
class LigneDeTexte;

// The list of books, with what narrows it down: words, seller, state.
class VoletLivres : public QWidget
{
    Q_OBJECT

public:
    static constexpr int margeGauche = 24; // px, in line with the title above
    static constexpr int marge = 16;       // px, on the right

    VoletLivres(const Catalogue &catalogue, ImagesCouvertures &images, QWidget *parent = nullptr);

    void setTarifs(const TarifsColissimo &tarifs);
    // The book chosen in the list; null when the list is empty.
    [[nodiscard]] const Livre *choisi() const;
    // Whatever the filters say.
    void choisir(qint64 id);
    // How many buttons of the whole catalogue wait for a new price.
    [[nodiscard]] qsizetype aReporter() const;
    // Whether another book of the list has prices to report; goes to it.
    [[nodiscard]] bool aUnSuivant() const;
    void passerAuSuivant();
    void chercher();
    void prendreLeFocus();
    // The books as they are shown.
    [[nodiscard]] QList<qint64> ordre() const;

signals:
    // Another book, or none.
    void choixChange();
    // The chosen book.
    void modifier();
    void dupliquer();
    void retirer();
    void deplace(qint64 id, Quillet::EditionLivres::Cote cote, qint64 voisin);

private:
    QWidget *filtres();
    void filtrer();
    void nommerLesVendeurs();
    void seReplacer();
    void proposer(const QPoint &ou);

    const Catalogue &catalogue_;
    FiltreLivres filtre_;
    ModeleLivres *modele_;
    LigneDeTexte *recherche_;
    ChoixSegmente *vendeur_ = nullptr;
    ListeLivres *liste_;
    EtatVide *vide_;
    QStackedWidget *place_;
    qint64 choisi_ = 0;      // id of the book last chosen
    int rang_ = 0;           // where it was
    AnnonceAuRepos annonce_; // of how many books answer the filter
};

} // namespace Quillet
