#include "echanges/CelluleDeListe.h"

#include "model/ChiffresAscii.h"
#include "model/Saisie.h"

#include <QStringList>

#include <initializer_list>

namespace Quillet {

namespace {

constexpr qsizetype chiffresAuPlus = 9;

// One line, without what spreadsheets put around.
QString nette(const QString &cellule)
{
    return cellule.simplified();
}

// The names by which a seller is known; the first is the one to write.
QStringList nomsDe(Vendeur vendeur, const Reglages &reglages)
{
    QStringList noms;
    if (const auto identite = reglages.identite(vendeur)) {
        noms.append(identite->nomCourt.value_or(QString()));
        noms.append(identite->nom);
        noms.append(identite->site.value_or(QString()));
    }
    noms.append(brut(vendeur));
    noms.removeAll(QString());
    return noms;
}

std::optional<Vendeur> vendeurDit(const QString &nom, const Reglages &reglages)
{
    const QString cherche = ColonnesDeListe::cle(nom);
    std::optional<Vendeur> trouve;
    for (const Vendeur vendeur : tous<Vendeur>)
        for (const QString &connu : nomsDe(vendeur, reglages))
            if (reglages.identite(vendeur) && ColonnesDeListe::cle(connu) == cherche) {
                if (trouve && *trouve != vendeur)
                    return std::nullopt; // both are called so
                trouve = vendeur;
            }
    return trouve;
}

QString nomDe(Vendeur vendeur, const Reglages &reglages)
{
    for (const QString &nom : nomsDe(vendeur, reglages))
        if (vendeurDit(nom, reglages) == vendeur)
            return nom;
    return brut(vendeur);
}

QString lireVendeur(const QString &texte, const Reglages &reglages, Livre &livre)
{
    const auto vendeur = vendeurDit(texte, reglages);
    if (vendeur) {
        livre.vendeur = *vendeur;
        return {};
    }
    QStringList noms;
    for (const Vendeur connu : tous<Vendeur>)
        if (reglages.identite(connu))
            noms.append(nomDe(connu, reglages));
    return QStringLiteral("« %1 » n’est pas un vendeur : %2 attendu.").arg(texte, noms.join(QStringLiteral(" ou ")));
}

QString lirePrix(QString texte, Livre &livre)
{
    for (const auto *devise : {"EUR", "€"})
        texte.remove(QString::fromUtf8(devise), Qt::CaseInsensitive);
    return Saisie::prendre(Saisie::prix(texte), livre.prix);
}

// What a number is of: "212 pages".
QString sansUnite(QString texte, std::initializer_list<const char *> unites)
{
    for (const auto *unite : unites)
        if (texte.endsWith(QLatin1String(unite), Qt::CaseInsensitive))
            texte.chop(QLatin1String(unite).size());
    return texte;
}

QString lireNumero(const QString &texte, qint64 &numero)
{
    if (!queDesChiffres(texte) || texte.size() > chiffresAuPlus)
        return QStringLiteral("« %1 » n’est pas un nombre entier.").arg(texte);
    numero = texte.toLongLong();
    return {};
}

QString lireDisponible(const QString &texte, Livre &livre)
{
    const QString dit = ColonnesDeListe::cle(texte);
    const QStringList oui = QStringLiteral("oui o yes y vrai true 1 x disponible enstock available").split(u' ');
    const QStringList non = QStringLiteral("non n no faux false 0 epuise indisponible soldout unavailable").split(u' ');
    if (!oui.contains(dit) && !non.contains(dit))
        return QStringLiteral("« %1 » n’est ni oui ni non.").arg(texte);
    livre.disponible = oui.contains(dit);
    return {};
}

QString lireTexte(const QString &texte, QString &champ)
{
    champ = texte;
    return {};
}

} // namespace

QString CelluleDeListe::ecrite(const Livre &livre, ColonneDeListe colonne, const Reglages &reglages)
{
    switch (colonne) {
    case ColonneDeListe::id:
        return QString::number(livre.id);
    case ColonneDeListe::titre:
        return livre.titre;
    case ColonneDeListe::titreComplet:
        return livre.titreComplet;
    case ColonneDeListe::auteur:
        return livre.auteur;
    case ColonneDeListe::vendeur:
        return nomDe(livre.vendeur, reglages);
    case ColonneDeListe::prix:
        return QStringLiteral("%1,%2")
            .arg(livre.prix.valeur() / 100)
            .arg(livre.prix.valeur() % 100, 2, 10, QLatin1Char('0'));
    case ColonneDeListe::poids:
        return livre.poids ? QString::number(livre.poids->valeur()) : QString();
    case ColonneDeListe::isbn:
        return livre.isbn;
    case ColonneDeListe::pages:
        return QString::number(livre.pages);
    case ColonneDeListe::format:
        return livre.format;
    case ColonneDeListe::langue:
        return livre.langue;
    case ColonneDeListe::disponible:
        return livre.disponible ? QStringLiteral("oui") : QStringLiteral("non");
    case ColonneDeListe::lienPaypal:
        return livre.lienPaypal ? QString::fromLatin1(livre.lienPaypal->toEncoded()) : QString();
    }
    return {};
}

QString CelluleDeListe::lire(const QString &cellule, ColonneDeListe colonne, const Reglages &reglages, Livre &livre)
{
    const QString texte = nette(cellule);
    if (texte.isEmpty() || texte == nette(ecrite(livre, colonne, reglages)))
        return {}; // as it was written: what a cell cannot hold, as a line break, stays
    switch (colonne) {
    case ColonneDeListe::id:
        return lireNumero(texte, livre.id);
    case ColonneDeListe::titre:
        return lireTexte(texte, livre.titre);
    case ColonneDeListe::titreComplet:
        return lireTexte(texte, livre.titreComplet);
    case ColonneDeListe::auteur:
        return lireTexte(texte, livre.auteur);
    case ColonneDeListe::vendeur:
        return lireVendeur(texte, reglages, livre);
    case ColonneDeListe::prix:
        return lirePrix(texte, livre);
    case ColonneDeListe::poids:
        return Saisie::prendre(Saisie::poids(sansUnite(texte, {"grammes", "gramme", "gr."})), livre.poids);
    case ColonneDeListe::isbn:
        return lireTexte(texte, livre.isbn);
    case ColonneDeListe::pages:
        return Saisie::prendre(Saisie::pages(sansUnite(texte, {"pages", "p.", "p"})), livre.pages);
    case ColonneDeListe::format:
        return lireTexte(texte, livre.format);
    case ColonneDeListe::langue:
        return lireTexte(texte, livre.langue);
    case ColonneDeListe::disponible:
        return lireDisponible(texte, livre);
    case ColonneDeListe::lienPaypal:
        return Saisie::prendre(Saisie::adresse(texte), livre.lienPaypal);
    }
    return {};
}

} // namespace Quillet
