// The edge between the core's text, which is in the code page, and the toolkit's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/code_page.h"

namespace zamo {

inline QString fromText(std::string_view text) {
  return QString::fromStdU16String(utf16FromText(text));
}

// The name of a widget, which is ASCII.
inline QString nameOf(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

// What the code page doesn't hold becomes "?".
inline std::string toText(const QString& text) {
  return textFromUtf16(text.toStdU16String());
}

}  // namespace zamo
