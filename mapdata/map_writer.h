// Writes the countries in the form that the program maps into memory.
#pragma once

#include <string>

#include "composition.h"

namespace zamo::mapdata {

// Throws std::runtime_error.
void writeMap(const World& world, const std::string& path);

}  // namespace zamo::mapdata
