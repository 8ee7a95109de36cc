// The edge between the core's text, which is in the code page, and the toolkit's.
#pragma once

#include <QString>
#include <string_view>

#include "platform/code_page.h"

namespace zamo {

inline QString fromText(std::string_view text) {
  return QString::fromStdU16String(utf16FromText(text));
}

}  // namespace zamo
