#pragma once

#include "composants/Feuille.h"

#include <optional>

class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace Quillet {

class Alerte;
class ApercuMessage;
class ChoixLangue;
class EtatVide;
struct Contexte;
struct ReponseType;

// The reply to the buyer: the seller pastes the payment link, reads the message, and hands it to the mail program.
class VueReponse : public Feuille
{
    Q_OBJECT

public:
    explicit VueReponse(const Contexte &contexte, QWidget *parent = nullptr);

signals:
    // To the mail program.
    void remise();

private:
    enum class Page { reponse, impossible };

    void actualiser();
    QWidget *saisie();
    QWidget *message();
    void passerA(Page page);
    void ouvrirDansMail();
    [[nodiscard]] std::optional<ReponseType> reponse() const;

    const Contexte &contexte_;
    ChoixLangue *langue_;
    QLineEdit *lien_;
    QLineEdit *adresse_;
    Alerte *lienDouteux_;
    Alerte *adresseRefusee_;
    Alerte *exemple_; // that the books and names in it are invented
    Alerte *lienAbsent_;
    ApercuMessage *apercu_;
    QPushButton *envoyer_;
    EtatVide *impossible_;
    QStackedWidget *pages_;
};

} // namespace Quillet
