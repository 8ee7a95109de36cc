// The blocks of keys that the administrations have in the working database.
#pragma once

#include <cstdint>
#include <string_view>

namespace zamo {

// The base of an administration's block of 100000 keys in the working database, in any case; 0 for an
// unlisted code.
std::int32_t admNumericBase(std::string_view code);

}  // namespace zamo
