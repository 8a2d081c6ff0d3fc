#include "textes/ChampsDuLivre.h"

#include "model/Saisie.h"

namespace Quillet {

namespace {

template <QString Livre::*membre>
QString ecritTexte(const Livre &livre)
{
    return livre.*membre;
}

template <QString Livre::*membre>
QString prendreTexte(const QString &texte, Livre &livre)
{
    livre.*membre = texte.trimmed();
    return {};
}

// A full title that says no more goes with the title.
QString prendreTitre(const QString &texte, Livre &livre)
{
    const bool pareil = livre.titreComplet == livre.titre;
    livre.titre = texte.trimmed();
    if (pareil)
        livre.titreComplet = livre.titre;
    return {};
}

QString prendreTitreComplet(const QString &texte, Livre &livre)
{
    const QString titre = texte.trimmed();
    livre.titreComplet = titre.isEmpty() ? livre.titre : titre;
    return {};
}

// A draft's price and pages are not known yet.
QString ecritPrix(const Livre &livre)
{
    return livre.prix == Centimes{} ? QString() : Saisie::ecrit(livre.prix);
}

QString ecritPages(const Livre &livre)
{
    return livre.pages == 0 ? QString() : QString::number(livre.pages);
}

} // namespace

QList<ChampDuLivre> ChampDuLivre::tous()
{
    return {
        {QStringLiteral("titre"), QStringLiteral("Titre"), {}, {}, ecritTexte<&Livre::titre>, prendreTitre},
        {QStringLiteral("titreComplet"),
         QStringLiteral("Titre complet"),
         {},
         QStringLiteral("celui des factures"),
         ecritTexte<&Livre::titreComplet>,
         prendreTitreComplet},
        {QStringLiteral("auteur"),
         QStringLiteral("Auteur"),
         {},
         {},
         ecritTexte<&Livre::auteur>,
         prendreTexte<&Livre::auteur>},
        {QStringLiteral("prix"), QStringLiteral("Prix"), QStringLiteral("€"), QStringLiteral("18,50"), ecritPrix,
         [](const QString &texte, Livre &livre) { return Saisie::prendre(Saisie::prix(texte), livre.prix); }},
        {QStringLiteral("poids"), QStringLiteral("Poids"), QStringLiteral("g"), QStringLiteral("à peser"),
         [](const Livre &livre) { return Saisie::ecrit(livre.poids); },
         [](const QString &texte, Livre &livre) { return Saisie::prendre(Saisie::poids(texte), livre.poids); }},
        {QStringLiteral("pages"),
         QStringLiteral("Pages"),
         {},
         QStringLiteral("288"),
         ecritPages,
         [](const QString &texte, Livre &livre) { return Saisie::prendre(Saisie::pages(texte), livre.pages); }},
        {QStringLiteral("format"),
         QStringLiteral("Format"),
         {},
         QStringLiteral("14 × 21 cm, broché"),
         ecritTexte<&Livre::format>,
         prendreTexte<&Livre::format>},
        {QStringLiteral("langue"),
         QStringLiteral("Langue"),
         {},
         QStringLiteral("Français"),
         ecritTexte<&Livre::langue>,
         prendreTexte<&Livre::langue>},
        {QStringLiteral("isbn"),
         QStringLiteral("ISBN"),
         {},
         QStringLiteral("s’il en a un"),
         ecritTexte<&Livre::isbn>,
         prendreTexte<&Livre::isbn>},
        {QStringLiteral("lienPaypal"),
         QStringLiteral("Lien PayPal"),
         {},
         QStringLiteral("s’il en a un"),
         [](const Livre &livre) { return livre.lienPaypal ? livre.lienPaypal->toString() : QString(); },
         [](const QString &texte, Livre &livre) { return Saisie::prendre(Saisie::adresse(texte), livre.lienPaypal); }},
    };
}

} // namespace Quillet
