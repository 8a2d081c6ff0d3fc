#pragma once

#include <QString>

class QWidget;

namespace LecteurDEcran {

// Says to screen readers what Qt cannot know of our own widgets: which are groups, which is a page to read, which
// lines are to be spoken as they appear.
void preparer();

// The name of the labels whose text describes the control of their row: said there, not again with the whole group.
inline constexpr QLatin1String detail("detail");

// Has it spoken now: what a gesture changed elsewhere than under the focus.
void annoncer(QWidget *origine, const QString &texte);

// An amount as it is spoken: the dash of a missing one would be silence.
QString montant(const QString &ecrit);

} // namespace LecteurDEcran
