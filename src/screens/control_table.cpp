#include "screens/control_table.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "screens/control_specs.h"

namespace zamo {

namespace {

constexpr bool isField(ControlKind kind) {
  return kind == ControlKind::text || kind == ControlKind::memo || kind == ControlKind::combo ||
         kind == ControlKind::list;
}

template <typename Test>
constexpr bool everySpec(Test test) {
  for (const auto& table : kControlTables) {
    for (const ControlSpec& spec : table) {
      if (!test(spec)) return false;
    }
  }
  return true;
}

// The forms that have a control which passes the test; `twice`: one of them has several.
struct Found {
  FormSet forms = 0;
  bool twice = false;
};

template <typename Test>
constexpr Found formsWith(Test test) {
  Found found;
  everySpec([&](const ControlSpec& spec) {
    if (test(spec)) {
      found.twice = found.twice || (found.forms & spec.forms) != 0;
      found.forms |= spec.forms;
    }
    return true;
  });
  return found;
}

constexpr bool isNamedOnce(const ControlSpec& spec) {
  return !formsWith([&](const ControlSpec& other) { return other.name == spec.name; }).twice;
}

constexpr bool hasItsFrame(const ControlSpec& spec) {
  const auto isFrame = [&](const ControlSpec& other) {
    return other.kind == ControlKind::frame && other.name == spec.frame;
  };
  return spec.frame.empty() || (spec.forms & ~formsWith(isFrame).forms) == 0;
}

static_assert(everySpec(isNamedOnce));
static_assert(everySpec(hasItsFrame));
static_assert(everySpec([](const ControlSpec& spec) { return spec.forms != 0 && !spec.name.empty(); }));
static_assert(everySpec([](const ControlSpec& spec) {
  return isField(spec.kind) ? spec.caption.empty() == spec.label.empty() : spec.label.empty();
}));

// Keeps a made-up text as long as the program runs, for the rows hold no text of their own.
std::string_view kept(std::string text) {
  static std::set<std::string, std::less<>> texts;
  return *texts.insert(std::move(text)).first;
}

std::string azimuthText(int azimuth) {
  std::string digits = std::to_string(azimuth);
  return std::string(3 - std::min<std::size_t>(digits.size(), 3), '0') + digits;
}

// A field behind its label.
void appendField(std::vector<ControlRow>& rows, const ControlSpec& spec) {
  if (!spec.caption.empty()) {
    rows.push_back({spec.forms, spec.label, ControlKind::label, spec.frame, spec.caption, spec.tip});
  }
  rows.push_back({spec.forms, spec.name, spec.kind, spec.frame, "", spec.tip, spec.items, spec.upperCase});
}

void appendGrid(std::vector<ControlRow>& rows, const ControlSpec& frame) {
  const auto* grid = std::ranges::find(kAzimuthGrids, frame.name, &GridSpec::frame);
  if (grid == std::end(kAzimuthGrids)) return;
  for (int azimuth = 0; azimuth < 360; azimuth += 10) {
    const std::string_view box = kept(azimuthBox(boxesOf(*grid), azimuth));
    const std::string_view label = kept(azimuthBox(labelsOf(*grid), azimuth));
    appendField(rows,
                {frame.forms, ControlKind::text, box, label, frame.name, kept(azimuthText(azimuth)), ""});
  }
}

void appendControl(std::vector<ControlRow>& rows, const ControlSpec& spec) {
  if (isField(spec.kind)) return appendField(rows, spec);
  rows.push_back({spec.forms, spec.name, spec.kind, spec.frame, spec.caption, spec.tip});
  appendGrid(rows, spec);
}

Control controlOf(const ControlRow& row) {
  Control control;
  control.name = row.name;
  control.kind = row.kind;
  control.caption = row.caption;
  control.tip = row.tip;
  if (row.items != nullptr) control.items = row.items();
  if (row.kind == ControlKind::combo) control.index = 0;
  if (row.kind == ControlKind::option) control.optionGroup = row.frame;
  return control;
}

}  // namespace

std::vector<ControlRow> controlRows(FormCode code) {
  std::vector<ControlRow> rows;
  for (const auto& table : kControlTables) {
    for (const ControlSpec& spec : table) {
      if (isOneOf(code, spec.forms)) appendControl(rows, spec);
    }
  }
  return rows;
}

void makeControls(Screen& screen) {
  for (const ControlRow& row : controlRows(screen.code())) screen.add(controlOf(row));
}

std::string azimuthBox(ControlStem grid, int azimuth) {
  return std::string(std::string_view(grid)) + azimuthText(azimuth);
}

}  // namespace zamo
