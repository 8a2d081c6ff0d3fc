#pragma once

namespace LecteurDEcran {

// Says to screen readers what Qt cannot know of our own widgets: which are groups, which is a page to read, which
// lines are to be spoken as they appear.
void preparer();

} // namespace LecteurDEcran
