#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace Quillet::LecteurDEcran {

// Makes screen readers see the parts that widgets play.
void preparer();

// What Qt cannot know of our own widgets: that this one is a group, a page to read, a line to be spoken as it appears.
// Said before the widget is given a name, which asks for its part.
void jouer(QWidget *widget, QAccessible::Role role);

// Has it spoken now: what a gesture changed elsewhere than under the focus.
void annoncer(QWidget *origine, const QString &texte);

} // namespace Quillet::LecteurDEcran
