// Memos: text that stands in its row, in one other place or in a chain of places.
#pragma once

#include <string_view>

#include "jetfile/jet_pages.h"

namespace zamo {

// The value of a memo, from what its row has of it: text, or why there is none.
JetValue jetMemo(const JetPages& pages, std::string_view inRow);

// The text of a column's bytes in the way of the file.
JetValue jetTextValue(const JetPages& pages, std::string_view bytes);

}  // namespace zamo
