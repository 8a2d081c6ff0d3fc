#include "ui/Rubriques.h"

#include "ui/Contexte.h"
#include "ui/commande/VueCommande.h"
#include "ui/livres/VueLivres.h"
#include "ui/tarifs/VueTarifs.h"

namespace Quillet {

namespace {

template <typename Ecran>
EcranDeRubrique *construire(const Contexte &contexte)
{
    return new Ecran(contexte);
}

int rien(const Contexte &)
{
    return 0;
}

} // namespace

TraitsDeRubrique traits(Rubrique rubrique)
{
    switch (rubrique) {
    case Rubrique::commande:
        return {QStringLiteral("shippingbox"),
                QStringLiteral("Commande"),
                {Qt::Key_1, Qt::Key_Ampersand},
                construire<VueCommande>,
                rien};
    case Rubrique::tarifs:
        return {QStringLiteral("tablecells"),
                QStringLiteral("Tarifs Colissimo"),
                {Qt::Key_2, Qt::Key_Eacute},
                construire<VueTarifs>,
                [](const Contexte &c) { return c.verifications.nombreASignaler(); }};
    case Rubrique::livres:
        return {QStringLiteral("books.vertical"),
                QStringLiteral("Livres"),
                {Qt::Key_3, Qt::Key_QuoteDbl},
                construire<VueLivres>,
                rien};
    }
    Q_UNREACHABLE();
}

} // namespace Quillet
