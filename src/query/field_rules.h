// What may stand in the fields of the query form and of the date dialog.
#pragma once

#include <string_view>

#include "platform/host.h"

namespace zamo {

// Whether the text may stay in the field of that name; the user is told otherwise. Fields without a rule take
// anything, and so does every field nothing.
bool mayStandIn(const Host& host, std::string_view field, std::string_view text);

// Whether a date can be compared this way; the user is told otherwise.
bool mayCompareDates(const Host& host, bool after, bool prior);

}  // namespace zamo
