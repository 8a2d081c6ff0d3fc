#pragma once

#include "model/Donnees.h"
#include "model/controle/Regles.h"

#include <QMap>
#include <QString>

// What the rules of the data files hold against a record that is being typed, for the screens to say beside each field.
namespace Quillet::Objections {

// Sentences by the way from the record to the field: "isbn", "teinte[1]", "emballages[0].nom". Empty: nothing is wrong.
using ParChamp = QMap<QString, QString>;

// What books are held against: the data in force, and the folder of their covers.
Regles::Reperes reperes(const Donnees &donnees, const QDir &couvertures);

ParChamp surLeLivre(const Livre &livre, const Regles::Reperes &reperes);
// About this field, or a part of it; empty: nothing.
QString auChamp(const ParChamp &objections, const QString &champ);
// What a change of this field has brought about: about the field itself, else elsewhere. Empty: nothing.
QString nouvelle(const ParChamp &avant, const ParChamp &apres, const QString &champ);
ParChamp surLesReglages(const Reglages &reglages, const QList<CodeDestination> &destinations);

} // namespace Quillet::Objections
