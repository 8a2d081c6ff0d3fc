#include "ui/tarifs/TextesTarifs.h"

#include "model/Format.h"

namespace {

QString titre(FamilleTarifs famille)
{
    switch (famille) {
    case FamilleTarifs::france:
        return QStringLiteral("France métropolitaine, Monaco, Andorre");
    case FamilleTarifs::outreMer:
        return QStringLiteral("Outre-mer");
    case FamilleTarifs::europe:
        return QStringLiteral("Europe");
    case FamilleTarifs::monde:
        return QStringLiteral("Monde");
    }
    Q_UNREACHABLE();
}

TextesTarifs::Grille enTextes(const GrilleColissimo &grille)
{
    TextesTarifs::Grille textes{grille.nomCourt, grille.pays().value_or(QString()), {}};
    for (const Palier &palier : grille.paliers)
        textes.paliers.append({QStringLiteral("jusqu’à ") + Format::palier(palier.jusqua), Format::euros(palier.prix)});
    return textes;
}

} // namespace

QString TextesTarifs::enVigueur(const TarifsColissimo &tarifs)
{
    return QStringLiteral("en vigueur au ") + Format::date(tarifs.validite);
}

QList<TextesTarifs::Famille> TextesTarifs::familles(const TarifsColissimo &tarifs)
{
    QList<Famille> familles;
    for (const auto &[famille, brut] : Json::valeursBrutes<FamilleTarifs>) {
        Famille textes{titre(famille), {}};
        for (const GrilleColissimo &grille : tarifs.grilles)
            if (grille.famille == QLatin1String(brut))
                textes.grilles.append(enTextes(grille));
        if (!textes.grilles.isEmpty())
            familles.append(textes);
    }
    return familles;
}
