// From an open database to a notice: the selection that the query form makes, its rows in the grid, and the
// row that the user opens.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "shell/shell.h"

namespace zamo {

// Lets the user choose a working database, opens it and shows the query form. Cancel ends silently, and what
// fails is told in a box; a file that is no working database is closed again.
void mnuFileOpenDB(Shell& shell);

// Shows the query form again. Without an open database a RunTimeError is thrown.
void mnuQueryNew(Shell& shell);

// Shows the query form and then the grid of what it selects. After Cancel the grid stays as it is. A
// statement that the engine refuses is told in one box, and gives a grid without rows.
void runQuery(Shell& shell);

// Shows the grid with the rows of qrySql; without a statement it has none.
void bindNoticeGrid(Shell& shell);

// Takes the grid off the open database, if there is one. Rows in sight stay as they were read.
void detachNoticeGrid(Shell& shell);

// How many of the grid's leading columns are fixed, which depends on what was selected.
int fixedColumnCount(const RunState& run);

// What the grid tells of one of its rows.
struct GridRow {
  std::int32_t key = 0;
  std::string type;  // of notice, as it is stored
};

// Opens the notice of the row that the user acted on, and shows the grid anew when its screen has closed.
// Nothing stands for a grid without a row.
void openGridRow(Shell& shell, const std::optional<GridRow>& row);

// The place of SelKey in IndexList; kNoSuchEntry when it isn't there.
std::int32_t findNtcIndex(const RunState& run);

}  // namespace zamo
