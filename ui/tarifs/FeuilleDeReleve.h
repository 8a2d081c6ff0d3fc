#pragma once

#include "composants/Feuille.h"

#include <QStringList>

#include <functional>

namespace Quillet {

// A sheet that shows what a check found: kept on demand, put off otherwise. Nothing changes before that.
class FeuilleDeReleve : public Feuille
{
    Q_OBJECT

public:
    using Feuille::Feuille;

protected:
    static QString fermer() { return QStringLiteral("Fermer"); }
    static QString plusTard() { return QStringLiteral("Plus tard"); }

    struct Accord
    {
        QString bouton;
        QString question;                  // asked once more while there is something to look at twice
        QStringList reserves;              // which is this
        std::function<bool()> tientEncore; // what is kept is what the sheet shows: the page may have been read again
        std::function<void()> accepter;    // stores it; when it throws ErreurStockage the sheet stays open and says why
        bool sansEcart = false;            // nothing to put off: the sheet is closed, also by Return
    };
    // `page`, then the buttons.
    void composer(QWidget *page, const Accord &accord);
    // A page in place of a finding, with the one button that closes it.
    void composerVide(QWidget *page);

private:
    [[nodiscard]] bool confirme(const Accord &accord);
};

} // namespace Quillet
