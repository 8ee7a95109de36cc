// The name of a control. A literal that names no control of any form doesn't compile.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "model/key_index.h"
#include "screens/control_specs.h"

namespace zamo {

namespace control_names {

constexpr std::size_t countSpecs() {
  std::size_t count = 0;
  for (const auto& table : kControlTables) count += table.size();
  return count;
}

// Of each row the control and the label.
constexpr auto listNames() {
  std::array<std::string_view, 2 * countSpecs()> names;
  std::size_t place = 0;
  for (const auto& table : kControlTables) {
    for (const ControlSpec& spec : table) {
      names[place++] = spec.name;
      names[place++] = spec.label;
    }
  }
  return names;
}
inline constexpr auto kNames = listNames();
inline constexpr KeyIndex kIndex(kNames);

constexpr bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Three digits that are one of the grids' azimuths.
constexpr bool isAzimuth(std::string_view text) {
  return text.size() == 3 && isDigit(text[0]) && isDigit(text[1]) && text[2] == '0' && text < "360";
}

constexpr bool isInGrid(std::string_view name) {
  for (const GridSpec& grid : kAzimuthGrids) {
    for (const std::string_view stem : {grid.boxes, grid.labels}) {
      if (name.starts_with(stem)) return isAzimuth(name.substr(stem.size()));
    }
  }
  return false;
}

constexpr bool isControl(std::string_view name) {
  return kIndex.find(name) != kNoKey || isInGrid(name);
}

// The forms that have the control, the boxes of grids apart.
constexpr FormSet formsWith(std::string_view name) {
  FormSet forms = 0;
  for (const auto& table : kControlTables) {
    for (const ControlSpec& spec : table) {
      const bool isLabel = !spec.caption.empty() && spec.label == name;
      if (spec.name == name || isLabel) forms |= spec.forms;
    }
  }
  return forms;
}

constexpr bool isStem(std::string_view stem) {
  for (const GridSpec& grid : kAzimuthGrids) {
    if (stem == grid.boxes || stem == grid.labels) return true;
  }
  for (const std::string_view name : kNames) {
    if (name.starts_with(stem)) return true;
  }
  return false;
}

}  // namespace control_names

class ControlName {
 public:
  constexpr ControlName() = default;  // names no control
  consteval ControlName(const char* literal) : name_(literal) {
    if (!control_names::isControl(name_)) throw "no form has a control of this name";
  }

  constexpr operator std::string_view() const { return name_; }
  constexpr bool empty() const { return name_.empty(); }

  friend constexpr bool operator==(ControlName one, ControlName other) { return one.name_ == other.name_; }
  friend constexpr ControlName madeName(std::string_view name);

 private:
  std::string_view name_;
};

using ControlNames = std::initializer_list<ControlName>;

// A name that is made while the program runs, as those of azimuths and dates are. The text must outlive the
// name, and nothing is looked up: a screen that has no such control says so.
constexpr ControlName madeName(std::string_view name) {
  ControlName made;
  made.name_ = name;
  return made;
}

// Whether each row's control is on all forms of its row; rows without a control pass.
template <typename Row, std::size_t Count>
constexpr bool areOnTheirForms(const Row (&rows)[Count], ControlName Row::*control) {
  for (const Row& row : rows) {
    if ((row.*control).empty()) continue;
    if ((row.forms & ~control_names::formsWith(row.*control)) != 0) return false;
  }
  return true;
}

// What the names of a group of controls begin with, or the whole name of one.
class ControlStem {
 public:
  constexpr ControlStem() = default;  // begins no name
  consteval ControlStem(const char* literal) : stem_(literal) {
    if (!control_names::isStem(stem_)) throw "no form has a control whose name begins like this";
  }

  constexpr operator std::string_view() const { return stem_; }
  constexpr bool begins(ControlName name) const {
    return !stem_.empty() && std::string_view(name).starts_with(stem_);
  }

  friend constexpr ControlStem boxesOf(const GridSpec& grid);
  friend constexpr ControlStem labelsOf(const GridSpec& grid);

 private:
  std::string_view stem_;
};

constexpr ControlStem boxesOf(const GridSpec& grid) {
  ControlStem stem;
  stem.stem_ = grid.boxes;
  return stem;
}

constexpr ControlStem labelsOf(const GridSpec& grid) {
  ControlStem stem;
  stem.stem_ = grid.labels;
  return stem;
}

}  // namespace zamo
