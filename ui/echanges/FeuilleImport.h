#pragma once

#include "composants/Feuille.h"
#include "echanges/Comparaison.h"

#include <memory>

namespace Quillet {

class Alerte;
class Interrupteur;
class Reprise;
struct Contexte;

// What an archive holds and what it would replace, before anything of it is taken: all of it, or nothing.
class FeuilleImport : public Feuille
{
    Q_OBJECT

public:
    // `geste`: the button that takes it.
    FeuilleImport(const Contexte &contexte, std::unique_ptr<Reprise> reprise, const QString &geste, QWidget *parent);
    ~FeuilleImport() override;
    Q_DISABLE_COPY_MOVE(FeuilleImport)

private:
    QWidget *page();
    QWidget *series(const QList<Comparaison::Serie> &series);
    QString suites(bool change) const;
    void prendre();
    void recharger();

    const Contexte &contexte_;
    std::unique_ptr<Reprise> reprise_;
    QList<std::pair<Comparaison::Serie, Interrupteur *>> series_;
    Alerte *erreur_;
};

} // namespace Quillet
