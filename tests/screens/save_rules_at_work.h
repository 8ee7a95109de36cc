// Save rules asked of forms: a complete form, one change, and the whole text that comes of it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "screens/complete_screens.h"
#include "screens/control_table.h"
#include "screens/save_rules.h"
#include "support/scripted_host.h"

namespace zamo::test {

inline const std::string kIdentifyingOfGs1 =
    "To save a notice at least the following Mandatory Identifying fields are necessary : \r\n";
inline const std::string kMandatory = "To save a notice the following Mandatory fields are necessary : \r\n";
inline const std::string kFull = "The following fields are either missing or invalid\r\n";

inline std::string identityHeader(FormCode code) {
  return code == kGS1Assign ? kIdentifyingOfGs1 : kMandatory;
}

// What a form's rules say: both texts, each with its flag.
struct Told {
  std::string identifying, full;
  bool identifyingFlag = false, fullFlag = false;
  bool operator==(const Told&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Told& told) {
  return out << told.identifyingFlag << " identifying:\n"
             << told.identifying << told.fullFlag << " full:\n"
             << told.full;
}

inline const Told kNothing{};
// A list of what identifies the notice is the full list too.
inline Told identity(const std::string& text) {
  return {text, text, true, true};
}
inline Told furtherOnly(const std::string& text) {
  return {"", text, false, true};
}

class SaveRules : public testing::Test {
 protected:
  // A map with one country; `nearest` is what lies around a point that is not in it.
  SaveRules() {
    map.gzmpParseCoords = [this](const std::string& pair) {
      pairs.push_back(pair);
      return GzmpPoint{48, 2};
    };
    map.gzmpLoadMapAround = [](const GzmpPoint&, float) {};
    map.gzmpCountryAtPoint = [this](const GzmpPoint&) { return country; };
    map.gzmpNearestCountries = [this](const GzmpPoint&, float, int, const std::string&, int) {
      return nearest;
    };
  }

  Told ask(const Screen& screen) {
    Told told;
    told.identifying = getIdentifyingSaveRules(screen, told.identifyingFlag);
    told.full = getFullSaveRules(host, map, screen, told.fullFlag);
    return told;
  }

  // The country is so many kilometres away.
  void moveAway(const std::string& from, float km) {
    country = "D  ";
    nearest.count = 1;
    nearest.codes = from;
    nearest.distances[0] = km;
  }

  Script script;
  Host host = makeScriptedHost(script);
  GzmpMap map;
  std::string country = "F  ";
  GzmpNearest nearest;
  std::vector<std::string> pairs;  // that the map was asked for
};

// A change to a form, and what comes of it. `before` makes the form another complete one.
struct LineCase {
  std::vector<FormCode> forms;
  Entries before;
  Entries change;
  std::string lines;
};

inline std::string textOf(const Entries& entries) {
  std::string text;
  for (const Entry& entry : entries) text += entry.control + "=" + entry.text + " ";
  return text;
}

// Every change on each of its forms: before it nothing is told, after it what `expected` makes of the lines.
inline void expectLines(const std::vector<LineCase>& cases, const std::function<Told(const Screen&)>& ask,
                        Told (*expected)(FormCode, const std::string& lines)) {
  for (const LineCase& one : cases) {
    SCOPED_TRACE(textOf(one.change));
    for (const FormCode code : one.forms) {
      Screen screen(code);
      makeControls(screen);
      complete(screen);
      put(screen, one.before);
      EXPECT_EQ(ask(screen), kNothing) << code;
      put(screen, one.change);
      EXPECT_EQ(ask(screen), one.lines.empty() ? kNothing : expected(code, one.lines)) << code;
    }
  }
}

inline Told asIdentity(FormCode code, const std::string& lines) {
  return identity(identityHeader(code) + lines);
}
inline Told asFurther(FormCode, const std::string& lines) {
  return furtherOnly(kFull + lines);
}

}  // namespace zamo::test
