#include "textes/TextesGestes.h"

namespace Quillet {

QString TextesGestes::prix(const Livre &livre)
{
    return QStringLiteral("prix de « %1 »").arg(livre.titre);
}

QString TextesGestes::poids(const Livre &livre)
{
    return QStringLiteral("poids de « %1 »").arg(livre.titre);
}

QString TextesGestes::disponibilite(const Livre &livre)
{
    return QStringLiteral("disponibilité de « %1 »").arg(livre.titre);
}

QString TextesGestes::garde(const Livre &livre)
{
    return QStringLiteral("prix gardé de « %1 »").arg(livre.titre);
}

QString TextesGestes::report(const Livre &livre, qsizetype boutons)
{
    return boutons == 1 ? QStringLiteral("prix reporté de « %1 »").arg(livre.titre)
                        : QStringLiteral("%1 prix reportés de « %2 »").arg(boutons).arg(livre.titre);
}

QString TextesGestes::retour()
{
    return QStringLiteral("retour aux valeurs d’origine");
}

// A name of capitals keeps them.
QString TextesGestes::champ(const QString &libelle, const Livre &livre)
{
    const bool sigle = libelle == libelle.toUpper();
    const QString nom = sigle ? libelle : libelle.left(1).toLower() + libelle.mid(1);
    return QStringLiteral("%1 de « %2 »").arg(nom, livre.titre);
}

QString TextesGestes::modification(const Livre &livre)
{
    return QStringLiteral("modification de « %1 »").arg(livre.titre);
}

QString TextesGestes::ajout(const Livre &livre)
{
    return QStringLiteral("ajout de « %1 »").arg(livre.titre);
}

QString TextesGestes::retrait(const Livre &livre)
{
    return QStringLiteral("retrait de « %1 »").arg(livre.titre);
}

QString TextesGestes::place(const Livre &livre)
{
    return QStringLiteral("place de « %1 »").arg(livre.titre);
}

QString TextesGestes::nonEnregistre(const Echec &echec)
{
    return QStringLiteral("Modification non enregistrée : %1").arg(echec.texte());
}

} // namespace Quillet
