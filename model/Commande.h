#pragma once

#include "model/Langue.h"
#include "model/Livre.h"
#include "model/Quantite.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <optional>

// The one order being prepared: inputs only. What follows from them is a Calcul.
class Commande : public QObject
{
    Q_OBJECT

public:
    static constexpr int quantiteMaximale = 99;
    // The packaging whose weight the seller types.
    static QString autrePoids() { return QStringLiteral("Autre poids"); }

    using QObject::QObject;

    [[nodiscard]] Vendeur vendeur() const { return vendeur_; }
    [[nodiscard]] const QMap<qint64, int> &quantites() const { return quantites_; }
    [[nodiscard]] int quantite(const Livre &livre) const { return quantites_.value(livre.id); }
    [[nodiscard]] const QString &emballage() const { return emballage_; }
    [[nodiscard]] Grammes poidsEmballageLibre() const { return poidsEmballageLibre_; }
    [[nodiscard]] std::optional<Grammes> poidsPese() const { return poidsPese_; }
    [[nodiscard]] const QString &codeDestination() const { return codeDestination_; }
    [[nodiscard]] bool horsUE() const { return horsUE_; }
    [[nodiscard]] const QString &paysLivraison() const { return paysLivraison_; }
    [[nodiscard]] std::optional<Langue> langue() const { return langue_; }
    // No copy of any book, of either seller.
    [[nodiscard]] bool estVide() const;

    void setVendeur(Vendeur vendeur);
    void setEmballage(const QString &nom);
    void setPoidsEmballageLibre(Grammes poids);
    void setPoidsPese(std::optional<Grammes> poids);
    // Another destination asks its own questions: country, language and customs exception start afresh.
    void setCodeDestination(const QString &code);
    void setHorsUE(bool horsUE);
    void setPaysLivraison(const QString &pays);
    void setLangue(std::optional<Langue> langue);

    // Keeps the count between 0 and `quantiteMaximale`.
    void ajuster(const Livre &livre, int delta);
    // Ready for the next buyer; seller, packaging and destination stay.
    void vider();

signals:
    void change();

private:
    template <typename T>
    bool remplacer(T &champ, const T &valeur);
    template <typename T>
    void changer(T &champ, const T &valeur);

    Vendeur vendeur_ = Vendeur::davrel;
    QMap<qint64, int> quantites_;
    QString emballage_ = QStringLiteral("Enveloppe à bulles");
    Grammes poidsEmballageLibre_{100};
    std::optional<Grammes> poidsPese_;
    QString codeDestination_ = QStringLiteral("france");
    bool horsUE_ = false;
    QString paysLivraison_;
    std::optional<Langue> langue_;
};
