#pragma once

#include "model/Calcul.h"

#include <QList>
#include <QScrollArea>

class ChampACopier;
class ChampEntier;
class Choix;
class ChoixSegmente;
class Interrupteur;
class Libelle;
class NombreRoulant;
class QLineEdit;
class QVBoxLayout;

namespace Formulaire {
class Groupe;
class Rangee;
class RangeeHaute;
class Section;
} // namespace Formulaire

// The side panel: everything that follows from the order, and the choices that complete it. Its widgets are built
// once; `montrer` brings them up to date.
class Recapitulatif : public QScrollArea
{
    Q_OBJECT

public:
    Recapitulatif(const Catalogue &catalogue, Commande &commande, QWidget *parent = nullptr);

    void montrer(const Calcul &calcul);

private:
    struct RangeeMontant
    {
        Formulaire::Rangee *rangee;
        NombreRoulant *montant;
    };

    QWidget *sectionLivres();
    QWidget *sectionPoids();
    QWidget *sectionDestination();
    QWidget *sectionMontants();
    QWidget *sectionLien();
    QWidget *totalAPayer();

    void montrerLivres(const Calcul &calcul);
    void montrerPoids(const Calcul &calcul);
    void montrerAvertissements(const Calcul &calcul);
    void montrerDestination(const Calcul &calcul);
    void montrerMontants(const Calcul &calcul);
    void montrerLien(const Calcul &calcul);

    const Catalogue &catalogue_;
    Commande &commande_;

    Formulaire::Groupe *groupeLivres_ = nullptr;
    Libelle *aucunLivre_ = nullptr;
    QList<RangeeMontant> rangeesLivres_;
    RangeeMontant sousTotal_{};

    NombreRoulant *poidsLivres_ = nullptr;
    Choix *emballage_ = nullptr;
    QWidget *rangeePoidsLibre_ = nullptr;
    ChampEntier *poidsLibre_ = nullptr;
    RangeeMontant poidsCalcule_{};
    ChampEntier *poidsPese_ = nullptr;
    RangeeMontant palier_{};
    QWidget *avertissements_ = nullptr;
    QStringList avertissementsMontres_;

    Choix *destination_ = nullptr;
    Libelle *destinationComplete_ = nullptr;
    Formulaire::Rangee *rangeeHorsUE_ = nullptr;
    Interrupteur *horsUE_ = nullptr;
    Formulaire::Rangee *rangeeDeclaration_ = nullptr;
    Libelle *declaration_ = nullptr;

    RangeeMontant envoi_{};
    NombreRoulant *total_ = nullptr;
    RangeeMontant frais_{};
    RangeeMontant reste_{};

    ChoixSegmente *langue_ = nullptr;
    Formulaire::RangeeHaute *rangeePays_ = nullptr;
    QLineEdit *pays_ = nullptr;
    ChampACopier *nomDeLObjet_ = nullptr;
    ChampACopier *description_ = nullptr;
    ChampACopier *prix_ = nullptr;
    ChampACopier *retour_ = nullptr;
};
