// What a form must show before its notice is saved: a first, gentler gate that looks at the controls alone.
#pragma once

#include <string>

#include "map/gzmp_map.h"
#include "platform/host.h"
#include "screens/screen.h"

namespace zamo {

// Each gives a header and a line for everything that is missing or wrong, or an empty text; `flag` tells
// whether there is a line. Without a map no place is judged. Throws what the map throws.

// All rules of an assignment or an allotment; the one list of a contour or a TB notice.
std::string getFullSaveRules(const Host& host, const GzmpMap& map, const Screen& screen, bool& flag);

// What identifies a notice; without it nothing can be saved. On a contour or a TB notice its one list.
std::string getIdentifyingSaveRules(const Screen& screen, bool& flag);

// Whether the form holds enough to work on at all.
bool hasEnoughFields(const Screen& screen);

}  // namespace zamo
