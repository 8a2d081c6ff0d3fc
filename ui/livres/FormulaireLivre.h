#pragma once

#include "echanges/CouverturePrete.h"
#include "model/Livre.h"
#include "model/controle/Regles.h"
#include "textes/ChampsDuLivre.h"

#include <QHash>
#include <QList>
#include <QWidget>

#include <optional>
#include <utility>

namespace Quillet {

class ChampCouverture;
class ChampDeFiche;
class Choix;
class ChoixCouleur;
class ImagesCouvertures;
class Interrupteur;

namespace Formulaire {
class Groupe;
}

// Every field of a book, to be filled in. Each is checked when it is left: what is wrong is said beside it, and what
// was typed stays.
class FormulaireLivre : public QWidget
{
    Q_OBJECT

public:
    // What the fields are held against, and offer.
    struct Cadre
    {
        QList<Livre> livres; // of which a new one is proposed fields
        Regles::Reperes reperes;
        QList<std::pair<Vendeur, QString>> vendeurs; // one: it is not asked who sells
    };

    explicit FormulaireLivre(ImagesCouvertures &images, QWidget *parent = nullptr);

    void setCadre(const Cadre &cadre);
    // A draft, of which nothing is said before it is typed.
    void commencer(const Livre &brouillon);
    // A book that is there, and a picture that could not yet become its cover. What is being typed of the same book is
    // left alone.
    void montrer(const Livre &livre, const std::optional<CouverturePrete> &couverture = {});
    // With all that was typed and not refused.
    [[nodiscard]] const Livre &livre() const { return livre_; }
    // The picture that is to become the book's cover, which `livre` does not name yet.
    [[nodiscard]] const std::optional<CouverturePrete> &couverture() const { return couverture_; }
    // Takes what is still being typed. False: a picture is still being read, which is said beside it.
    bool conclure();
    // Whether anything was typed or chosen since that draft, be it refused.
    [[nodiscard]] bool aSaisi(const Livre &depart) const;
    // Says all that is wrong or awaited, and takes the focus to the first of it; true: nothing is.
    [[nodiscard]] bool verifier();
    void prendreLeFocus();

signals:
    // A field was left with something new, or another cover chosen: the book as it should become, and what that does
    // ("titre de « … »").
    void saisi(const Livre &livre, const QString &geste);
    void refuse(); // what was typed; the field says why

private:
    Formulaire::Groupe *groupe(const QString &cles);
    ChampDeFiche *creer(const ChampDuLivre &champ);
    void saisir(const ChampDuLivre &champ, ChampDeFiche *ou, const QString &texte);
    void oublier();
    void actualiser();
    void objecter();
    void signaler(const QString &nom);

    Cadre cadre_;
    Livre livre_;
    bool brouillon_ = false;
    QList<ChampDuLivre> description_;
    QHash<QString, ChampDeFiche *> champs_; // by the key that rules have for them
    QWidget *rangeeDuVendeur_ = nullptr;
    ChampCouverture *image_;
    std::optional<CouverturePrete> couverture_;
    QList<qint64> couleurProposee_; // as long as it stands, a new cover proposes its own
    Choix *vendeur_;
    Interrupteur *disponible_;
    ChoixCouleur *couleur_;
};

} // namespace Quillet
