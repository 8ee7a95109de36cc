// What the tests of the way between records and screens share: the forms with the types of their notices,
// what stands on a screen, and reading a screen.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "model/ntc_rec.h"
#include "screens/control_table.h"
#include "screens/form_at_work.h"
#include "screens/form_events.h"
#include "screens/screen.h"
#include "screens/screen_mapping.h"
#include "support/scripted_host.h"

namespace zamo::test {

inline FormCode formOf(std::string_view type) {
  static const std::map<std::string, FormCode, std::less<>> forms = {
      {"GS1", kGS1Assign},   {"GT1", kGT1Assign}, {"GS2", kGS2Allot}, {"GT2", kGT2Allot},
      {"GA1", kGA1SubAllot}, {"TB5", kTB5},       {"TB3", kTB3},      {"TB2", kTB2}};
  return forms.at(std::string(type.substr(0, 3)));
}

// A form with its controls and lists, and without rules.
struct BareScreen {
  explicit BareScreen(std::string_view type) : screen(formOf(type)) { makeControls(screen); }

  // The record as the filler leaves it.
  NtcRec fill(NtcRec ntc) {
    fillForm(ntc, screen);
    return ntc;
  }
  NtcRec read() {
    NtcRec ntc;
    readForm(ntc, screen, host);
    return ntc;
  }

  Script script;
  Host host = makeScriptedHost(script);
  Screen screen;
};

// A form whose rules follow what stands on it.
struct RuledScreen : FormAtWork {
  explicit RuledScreen(FormCode code) : FormAtWork(code) { connectEvents(form); }
  NtcRec fill(NtcRec ntc) {
    fillForm(ntc, screen);
    return ntc;
  }
  NtcRec read() {
    NtcRec ntc;
    readForm(ntc, screen, host);
    return ntc;
  }
};

// Everything that a screen holds of a notice, control by control: texts, chosen options and the items of the
// lists of administrations, contours and points.
using Contents = std::map<std::string, std::string>;

inline Contents contentsOf(const Screen& screen) {
  Contents all;
  screen.forEach([&all](const Control& control) {
    if (!control.text.empty()) all[control.name] = control.text;
    if (control.isSet) all[control.name] = "set";
    if (control.kind != ControlKind::list || control.name == "ListAdmAvail") return;
    for (const std::string& item : control.items) all[control.name] += "[" + item + "]";
  });
  return all;
}

// What `now` holds that `before` did not.
inline Contents addedTo(const Contents& before, const Contents& now) {
  Contents added;
  for (const auto& [name, text] : now) {
    const auto old = before.find(name);
    if (old == before.end() || old->second != text) added[name] = text;
  }
  return added;
}

// The screen's date boxes by the beginning of their names, as day.month.year.
inline void setDate(Screen& screen, const std::string& boxes, const std::string& date) {
  const std::size_t first = date.find('.');
  const std::size_t second = date.find('.', first + 1);
  screen.setText(madeName(boxes + "DD"), date.substr(0, first));
  screen.setText(madeName(boxes + "MM"), date.substr(first + 1, second - first - 1));
  screen.setText(madeName(boxes + "YY"), date.substr(second + 1));
}

}  // namespace zamo::test
