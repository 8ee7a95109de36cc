// Single values of a Jet file, from their bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "jetfile/jet_parts.h"
#include "platform/dates.h"

namespace zamo {

// Text of a newer file: packed behind the bytes FF FE, UTF-16 without them. Nothing when the bytes don't come
// out even.
std::optional<std::u16string> jetText(std::string_view bytes);

// 17 bytes: the sign, and a number of 128 bits in units of the scale. Nothing for a scale that no column has.
std::optional<JetDecimal> jetDecimal(std::string_view bytes, int scale);

// Units of a ten-thousandth.
JetDecimal jetMoney(std::int64_t units);

// Through its shortest text, so that 176.64 stays that.
double jetSingle(float value);

// To the second. Nothing outside the years 100 to 9999.
std::optional<DateTime> jetDateTime(JetMoment moment);

}  // namespace zamo
