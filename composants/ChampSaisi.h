#pragma once

#include <QWidget>

#include <functional>

namespace Quillet {

class Alerte;
class LigneDeTexte;

// A labelled value that is taken when the typist leaves the field or presses Enter. What is refused is said under the
// field while it is typed, and the last good value comes back; Escape brings it back too.
class ChampSaisi : public QWidget
{
    Q_OBJECT

public:
    // Why a text is refused; empty when it is not.
    using Objection = std::function<QString(const QString &)>;

    struct Unite
    {
        QString symbole; // behind the field: "€"
        QString nom;     // as it is spoken: "euros"
    };

    ChampSaisi(const QString &libelle, const Unite &unite, Objection objection, QWidget *parent = nullptr);

    void setInvite(const QString &invite); // what an empty field means
    // Leaves what is being typed alone while the value stays the same.
    void montrer(const QString &valeur);
    // Gives up what is being typed, and what was said of it.
    void oublier();
    // As leaving the field does.
    void conclure();

signals:
    void saisi(const QString &texte);
    void refuse(); // what was typed is given up; the field says why

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
    void hideEvent(QHideEvent *evenement) override;

private:
    void direLeRefus(const QString &refus);

    Objection objection_;
    QString valeur_; // as shown
    LigneDeTexte *champ_;
    Alerte *alerte_;
};

} // namespace Quillet
