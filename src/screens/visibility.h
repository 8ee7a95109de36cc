// Which controls of a form show, by what stands on the form.
#pragma once

#include "screens/screen.h"

namespace zamo {

// A rule that clears what it hides spares, while a stored notice is brought to the screen, what is stored:
// such a box stays to be seen.

// Add or Mod, on assignments and allotments.
void applyIntentRule(Screen& screen);
// Art. 4, Art. 5 or neither, on assignments.
void applyArticleRule(Screen& screen);
// Directivity and polarization, on assignments.
void applyAntennaRule(Screen& screen);
// Plan entry, on assignments and allotments.
void applyPlanEntryRule(Screen& screen);
// Planning configuration or system variant and reception mode, on GT1AssignFrmKV19; elsewhere nothing.
void applyPlanningRule(Screen& screen);
// Both ways of telling an allotment's area are shown.
void applyAreaRule(Screen& screen);

// Locks or unlocks the sub-areas of an allotment; locking clears their list.
void lockSubAreas(Screen& screen, bool locked);
// The same for the test points of the contour form.
void lockTestPoints(Screen& screen, bool locked);

// The states that a form opens with.
void applyDefaultVisibility(Screen& screen);

// Empties the form for another notice.
void clearScreen(Screen& screen);

// After a stored notice was brought to the screen: the rules that depend on several of its values.
void settleAfterFill(Screen& screen);

}  // namespace zamo
