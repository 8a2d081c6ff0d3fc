#pragma once

#include <QWidget>

class QBoxLayout;

namespace Quillet {

class Alerte;
class Libelle;
class LigneDeTexte;
class ZoneDeTexte;

// A labelled text of a record that is being filled in. What was typed is handed over when the field is left, and stays
// as it was typed: what is wrong with it is said under the field.
class ChampDeFiche : public QWidget
{
    Q_OBJECT

public:
    // Without a label the field takes the whole width, and is given a name. More lines than one: each Return begins
    // another.
    explicit ChampDeFiche(const QString &libelle, int lignes = 1, QWidget *parent = nullptr);

    // What is known of the value. Leaves alone what is being typed, or was refused, while that stays the same.
    void montrer(const QString &valeur);
    // Gives up what was typed, and what was said of it.
    void oublier();
    // What is wrong with the text; empty: nothing.
    void objecter(const QString &phrase);
    [[nodiscard]] bool estRefuse() const { return !objection_.isEmpty(); }
    // What was handed over last was not kept: leaving the field hands it over again.
    void reessayer() { aRedonner_ = true; }
    // What the field holds at this moment.
    [[nodiscard]] QString texte() const;
    // An example of what to type, as long as nothing is.
    void setInvite(const QString &invite);
    // What the value is for, under the field.
    void setAide(const QString &aide);
    // A command about the value, behind the field.
    void accoler(QWidget *commande);
    // The line that says what is wrong, for whoever has a better place for it than under the field.
    [[nodiscard]] QWidget *raison() const;
    // Its name for those who do not see the record it stands in.
    void setNomDit(const QString &nom);
    // As leaving the field does.
    void conclure();
    void toutPrendre(); // to be typed over
    // Gives a label the width that those of all fields have: what they name lines up.
    static void aligner(Libelle *libelle);

signals:
    // Typed since it was last shown or handed over; whoever takes it calls `objecter`, and `montrer` once it counts.
    void saisi(const QString &texte);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void hideEvent(QHideEvent *evenement) override;

private:
    void poser(const QString &texte);
    void decrire(); // the field, to a reader

    LigneDeTexte *ligne_ = nullptr; // null: the field has several lines
    ZoneDeTexte *zone_ = nullptr;   // null: it has one
    QWidget *champ_ = nullptr;      // either
    Libelle *titre_;
    QBoxLayout *rangee_; // the field and its command
    Libelle *aide_;
    Alerte *alerte_;
    QString valeur_;         // as shown
    QString rendu_;          // as last shown or handed over
    bool aRedonner_ = false; // though it is the same
    QString objection_;
    bool pose_ = false; // the text is being set by the program
};

} // namespace Quillet
