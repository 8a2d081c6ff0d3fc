#pragma once

#include "tests/BancEcran.h"

#include <QScrollArea>

namespace Quillet {

// The order screen in the real window, afresh for each test, and what tests do there.
class BancCommande : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QuilletApp::preparer(Theme::Mode::clair); }

    void init()
    {
        banc_ = std::make_unique<BancEcran>();
        banc_->donnees.livres.append(
            unLivre(5, Vendeur::davrel, Centimes{1200}, Grammes{180})); // after the one sold out
        banc_->demarrer();
    }

    void cleanup() { banc_.reset(); }

protected:
    static inline const QString colisPese = QStringLiteral("Colis pesé, en grammes");
    static inline const QString reinitialiser = QStringLiteral("Tout réinitialiser");

    [[nodiscard]] Fenetre *fenetre() const { return &banc_->app->fenetre(); }
    [[nodiscard]] const BonDeCommande &bon() const { return banc_->app->commande().bon(); }
    template <typename Controle = QWidget>
    [[nodiscard]] Controle *controle(const QString &nom) const
    {
        return qobject_cast<Controle *>(Ecran::controle(fenetre(), nom));
    }
    // That scrolls around it; null when nothing does.
    [[nodiscard]] static QScrollArea *defilement(QWidget *page)
    {
        while (page && !qobject_cast<QScrollArea *>(page))
            page = page->parentWidget();
        return static_cast<QScrollArea *>(page);
    }
    // Of the sections of the summary.
    [[nodiscard]] QScrollArea *panneau() const { return defilement(controle(colisPese)); }
    [[nodiscard]] QString valeur(const QString &libelle) const
    {
        return lisible(Ecran::valeurEnFaceDe(fenetre(), libelle));
    }
    [[nodiscard]] bool montre(const char *texte) const { return Ecran::montre(fenetre(), QString::fromUtf8(texte)); }
    void cliquer(const QString &nom) { QVERIFY(Ecran::cliquer(fenetre(), nom)); }
    void taper(const QString &nom, const QString &texte) { QVERIFY(Ecran::taper(fenetre(), nom, texte)); }
    void choisir(const QString &nom, const QString &entree) { QVERIFY(Ecran::choisir(fenetre(), nom, entree)); }
    [[nodiscard]] int quantite(int livre) const { return bon().quantite(banc_->donnees.livres[livre - 1]); }

    std::unique_ptr<BancEcran> banc_;
};

} // namespace Quillet
