#include "bench/Releve.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace Quillet {

namespace {

using Rangee = std::array<QString, 7>;

QString nombre(double valeur)
{
    const int decimales = valeur < 10 ? 2 : valeur < 100 ? 1 : 0;
    return QLocale(QLocale::French).toString(valeur, 'f', decimales);
}

QString avecUnite(const std::optional<double> &valeur, const QString &unite)
{
    return valeur ? nombre(*valeur) + u' ' + unite : QString();
}

Rangee enTexte(const Releve &releve)
{
    const auto rapport = releve.reference ? std::optional(releve.mediane / *releve.reference) : std::nullopt;
    const QString fois = QStringLiteral("×");
    return {releve.nom,
            avecUnite(releve.mediane, releve.unite),
            avecUnite(releve.centile95, releve.unite),
            avecUnite(releve.reference, releve.unite),
            avecUnite(rapport, fois),
            avecUnite(releve.but, rapport ? fois : releve.unite),
            !releve.but                                       ? QString()
            : rapport.value_or(releve.mediane) <= *releve.but ? QStringLiteral("tenu")
                                                              : QStringLiteral("DÉPASSÉ")};
}

} // namespace

double centile(QList<double> valeurs, double part)
{
    const auto rang =
        valeurs.begin() + static_cast<qsizetype>(std::lround(part * static_cast<double>(valeurs.size() - 1)));
    std::ranges::nth_element(valeurs, rang);
    return *rang;
}

Releve releve(const QString &nom, const QString &unite, const QList<double> &valeurs)
{
    return {.nom = nom, .unite = unite, .mediane = centile(valeurs, 0.5), .centile95 = centile(valeurs, 0.95)};
}

QList<Releve> avecBut(double but, QList<Releve> releves)
{
    for (Releve &ligne : releves)
        ligne.but = but;
    return releves;
}

QList<Releve> parTaille(double but, const QList<Releve> &peu, const QList<Releve> &beaucoup, QList<Releve> trop)
{
    for (qsizetype i = 0; i < peu.size(); ++i)
        trop[i].reference = peu[i].mediane;
    return avecBut(but, peu + beaucoup) + trop;
}

QString tableau(const QList<Releve> &releves, Forme forme)
{
    QList<Rangee> rangees{{QStringLiteral("Mesure"),
                           QStringLiteral("médiane"),
                           QStringLiteral("95e centile"),
                           QStringLiteral("référence"),
                           QStringLiteral("rapport"),
                           QStringLiteral("but, au plus"),
                           {}}};
    std::ranges::transform(releves, std::back_inserter(rangees), enTexte);
    std::array<qsizetype, 7> largeurs{};
    for (const Rangee &rangee : rangees)
        for (size_t i = 0; i < rangee.size(); ++i)
            largeurs[i] = std::max(largeurs[i], rangee[i].size());
    const bool markdown = forme == Forme::markdown;
    const QString entre = markdown ? QStringLiteral(" | ") : QStringLiteral("  ");
    QString texte;
    for (const Rangee &rangee : rangees) {
        QString ligne = rangee[0].leftJustified(largeurs[0]);
        for (size_t i = 1; i + 1 < rangee.size(); ++i)
            ligne += entre + rangee[i].rightJustified(largeurs[i]);
        ligne = (ligne + entre + rangee.back()).trimmed();
        texte += (markdown ? QStringLiteral("| %1 |").arg(ligne) : ligne) + u'\n';
        if (markdown && &rangee == &rangees.constFirst())
            texte += QStringLiteral("|---|--:|--:|--:|--:|--:|---|\n");
    }
    return texte;
}

} // namespace Quillet
