#include "bench/Gestes.h"
#include "bench/Memoire.h"
#include "bench/Mesures.h"
#include "bench/Scene.h"
#include "ui/Fenetre.h"
#include "ui/commande/Couverture.h"
#include "ui/commande/SelecteurQuantite.h"

#include <QAbstractButton>
#include <QTest>

namespace Quillet {

namespace {

// What is held may move a little with the pictures that happen to be cached.
constexpr double sansCroitre = 1.01;

struct Tenu
{
    double tas;
    double residente;
};

// Once everything is at rest, and what was closed is gone.
Tenu tenu(Scene &scene)
{
    scene.reposer();
    return {Memoire::tas(), Memoire::residente()};
}

QList<Releve> comparer(const QString &nom, const Tenu &avant, const Tenu &apres)
{
    const auto comparaison = [&](const QString &quoi, double Tenu::*champ) {
        return Releve{.nom = quoi + QStringLiteral(", ") + nom,
                      .unite = QStringLiteral("Kio"),
                      .mediane = apres.*champ,
                      .reference = avant.*champ,
                      .but = sansCroitre};
    };
    return {comparaison(QStringLiteral("Tas"), &Tenu::tas),
            comparaison(QStringLiteral("Mémoire résidente"), &Tenu::residente)};
}

// One order after the other: a click on a cover, one copy more or less, another destination, another weight.
class Vendeur
{
public:
    explicit Vendeur(Scene &scene)
        : scene_(scene),
          couvertures_(Gestes::couverturesVisibles(scene)),
          destination_(scene.controle(QStringLiteral("Envoi vers"))),
          poids_(scene.controle(QStringLiteral("Colis pesé, en grammes")))
    {
        couvertures_.removeIf(
            [](Couverture *couverture) { return quantite(*couverture).first()->visibleRegion().isEmpty(); });
        QObject::connect(&scene.commande(), &Commande::change, &scene.fenetre(), [this] { ++changements_; });
    }

    void travaillerJusqua(int changements)
    {
        while (changements_ < changements) {
            faire(gestes_++);
            QCoreApplication::processEvents();
        }
    }

private:
    // One less, one more.
    static QList<QAbstractButton *> quantite(const Couverture &couverture)
    {
        return couverture.parentWidget()->findChild<SelecteurQuantite *>()->findChildren<QAbstractButton *>();
    }

    void faire(int geste)
    {
        const Couverture &couverture = *couvertures_[geste % couvertures_.size()];
        if (geste % 100 == 0)
            return scene_.commande().vider();
        switch (geste % 5) {
        case 0:
            return scene_.cliquer(scene_.milieu(couverture));
        case 1:
            return scene_.cliquer(scene_.milieu(*quantite(couverture).last()));
        case 2:
            return scene_.cliquer(scene_.milieu(*quantite(couverture).first()));
        case 3:
            return QTest::keyClick(&destination_, geste % 50 == 3 ? Qt::Key_Home : Qt::Key_Down);
        default:
            return QTest::keyClick(&poids_, geste % 2 == 0 ? Qt::Key_5 : Qt::Key_Backspace);
        }
    }

    Scene &scene_;
    QList<Couverture *> couvertures_;
    QWidget &destination_;
    QWidget &poids_;
    int changements_ = 0;
    int gestes_ = 0;
};

QList<Releve> changements(Temoin &temoin)
{
    const Echantillon livre;
    Scene scene(temoin, livre);
    Vendeur vendeur(scene);
    vendeur.travaillerJusqua(1'000);
    const Tenu mille = tenu(scene);
    vendeur.travaillerJusqua(5'500);
    const Tenu aMiChemin = tenu(scene);
    vendeur.travaillerJusqua(10'000);
    return comparer(QStringLiteral("5 500 changements de la commande contre 1 000"), mille, aMiChemin)
           + comparer(QStringLiteral("10 000 contre 1 000"), mille, tenu(scene));
}

QList<Releve> repeter(Temoin &temoin, const Gestes::Geste &geste, int fois)
{
    constexpr int misesEnTrain = 10;
    const Echantillon livre;
    Scene scene(temoin, livre);
    geste.preparer(scene);
    int rang = 0;
    while (rang < misesEnTrain)
        geste.jouer(scene, rang++);
    const Tenu avant = tenu(scene);
    while (rang < misesEnTrain + fois)
        geste.jouer(scene, rang++);
    return comparer(QStringLiteral("%1, encore %2 fois").arg(geste.enMots).arg(fois), avant, tenu(scene));
}

} // namespace

QList<Releve> mesurerMemoire(Temoin &temoin)
{
    QuilletApp::preparer();
    QList<Releve> releves = changements(temoin);
    for (const Gestes::Geste &feuille : Gestes::feuilles())
        releves += repeter(temoin, feuille, 50);
    for (const Gestes::Geste &ecran : Gestes::ecrans())
        releves += repeter(temoin, ecran, 200);
    return releves;
}

} // namespace Quillet
