// The names of controls beside those that widgets have, and in the messages of failed tests.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "screens/control_name.h"

namespace zamo {

inline std::ostream& operator<<(std::ostream& out, ControlName name) {
  return out << std::string_view(name);
}

inline bool operator==(const std::string& text, ControlName name) {
  return text == std::string_view(name);
}

}  // namespace zamo
