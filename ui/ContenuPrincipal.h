#pragma once

#include "ui/Rubriques.h"

#include <QList>
#include <QWidget>

#include <optional>

class QStackedWidget;

namespace Quillet {

class Libelle;
class ListeRubriques;
struct Contexte;

// The window's two columns: the sections on the left, the chosen one's screen beside them.
class ContenuPrincipal : public QWidget
{
    Q_OBJECT

public:
    explicit ContenuPrincipal(const Contexte &contexte, QWidget *parent = nullptr);

    // No section at all shows the order.
    void montrer(std::optional<Rubrique> rubrique);
    [[nodiscard]] std::optional<Rubrique> rubrique() const;
    // The focus goes where the screen's work begins, if there is anything to do.
    void prendreLeFocus();
    // The focus goes to the next part of the window, or with -1 to the one before.
    void changerDeZone(int pas);
    // Ends the edit under way; false when it could not be saved, which its screen says.
    [[nodiscard]] bool conclure();
    // What its screens need, and never less than what they are drawn for.
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    QWidget *barreLaterale();
    QWidget *tarifsEnVigueur();
    [[nodiscard]] EcranDeRubrique *ecran(Rubrique rubrique);
    [[nodiscard]] EcranDeRubrique *ecranMontre() const;
    void changerDEcran();
    void actualiser();

    const Contexte &contexte_;
    ListeRubriques *rubriques_;
    Libelle *enVigueur_;
    QStackedWidget *detail_;
    QList<EcranDeRubrique *> ecrans_; // by section; a screen is built when it is first shown
};

} // namespace Quillet
