#pragma once

#include "model/Donnees.h"
#include "watch/EcartTarif.h"
#include "watch/Verifications.h"

#include <QList>
#include <QString>

// What the screens say of the two weekly checks, and of what they found: texts only, laid out by the widgets.
namespace Quillet::TextesVerifications {

// One check: what it watches, and where it stands.
struct Ligne
{
    enum class Ton { neutre, accent, alerte };

    // A sentence and its symbol, either may be empty.
    struct Etat
    {
        QString symbole;
        QString texte;
        Ton ton = Ton::neutre; // of the symbol
    };

    QString symbole;
    QString titre;
    QString detail;
    Etat etat;
    Etat rappel; // beside a failure: that the last success is too old
    Verifications::Etat::Cas cas = Verifications::Etat::Cas::inconnu;
    bool trouvaille = false; // there is something to show, be it of an earlier run
    QUrl page;               // the one that was read
};

// When the pages are read, and that nothing follows by itself.
QString rythme();
Ligne laPoste(const Verifications &verifications, const Donnees &donnees, QDate jour);
Ligne paypal(const Verifications &verifications, const Donnees &donnees);

// One tier whose price changes.
struct Ecart
{
    QString zone;
    QString jusqua;
    QString avant;
    QString apres;
    QString ecart;     // "+0,50 €", or that the tier is new or gone
    QString variation; // "+5,32 %"; may be empty
};

QList<Ecart> ecarts(const QList<EcartTarif> &ecarts);
// "3 paliers sur 84 changent."
QString compte(const QList<EcartTarif> &ecarts, const TarifsColissimo &nouveaux);
// From when they are in force, and when they were read.
QString dates(const TarifsColissimo &nouveaux);

} // namespace Quillet::TextesVerifications
