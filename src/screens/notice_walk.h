// Which form shows a notice, and the walk through the selection with << and >>.
#pragma once

#include <cstdint>
#include <string_view>

#include "screens/notice_form.h"

namespace zamo {

inline constexpr int kBackward = 0;
inline constexpr int kForward = 1;

// By the notice's type, compared exactly; kNoForm for any other.
FormCode getNtcFormCode(const NtcRec& ntc);

// The key at a place of IndexList, or the next one in the direction that isn't deleted; IndexPos goes there.
// kNoSuchEntry beyond the list; 0 for a deleted entry and another direction.
std::int32_t getNtcKeyAt(RunState& run, std::int32_t idx, int direction);

// Whether an entry that isn't deleted stands at the place or behind it, or before it.
bool hasNtcFrom(const RunState& run, std::int32_t idx);
bool hasNtcBefore(const RunState& run, std::int32_t idx);

// Opens the form of a notice, filled, and gives back when the walk has ended. Within a form of the walk it
// returns at once, and the notice's form opens when the present one has closed: however long the walk, one
// form is open. A code without a form opens nothing.
void showNtcScreen(Workplace& work, std::int32_t key, const NtcRec& ntc, FormCode code, std::int32_t idx);

// Reads the notice that was chosen in the grid and shows it.
void openNtcFromGrid(Workplace& work, std::int32_t key, std::int32_t idx, std::string_view type);

// Brings the notice at a place of the selection to the form, or closes the form and goes on in another one.
void showNtcAt(NoticeForm& form, std::int32_t idx, int direction);

// The entry at IndexPos is passed over from now on.
void markDeleted(RunState& run);

// The notice behind the one at IndexPos, or else the one before it; the form closes when there is neither.
void showNeighbourAfterDelete(NoticeForm& form);

// The notice of SelKey once more, as the database has it.
void showAgain(NoticeForm& form);

void closeNtcScreen(NoticeForm& form);

// Title and the states that hang on it.
void setNtcScreenTitle(Screen& screen);

// Makes a form ready to be filled: controls, texts, title, events and the states it opens with.
void loadForm(NoticeForm& form);

// Sets the two buttons of the walk by what stands around the notice in the selection.
void setWalkButtons(NoticeForm& form);

}  // namespace zamo
