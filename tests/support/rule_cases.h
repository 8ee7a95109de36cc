// Catalogues of rules: one change to a valid notice and all that comes of it, in every type of notice.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "model/fields.h"
#include "support/valid_notices.h"
#include "validation/common_rules.h"

namespace zamo {

inline Verdict valuesOf(const NtcRec& ntc, const Date& today) {
  Verdict verdict;
  verdict.good = checkNtcValues(ntc, verdict.errs, kLabel, today);
  return verdict;
}

inline Verdict valuesOf(const NtcRec& ntc) {
  return valuesOf(ntc, kToday);
}

inline Verdict mandatoryOf(const NtcRec& ntc) {
  return judge(checkNtcMandatory, ntc);
}

using Texts = std::vector<std::string>;

inline Texts words(const std::string& text) {
  std::istringstream in(text);
  Texts all;
  for (std::string word; in >> word;) all.push_back(word);
  return all;
}

inline constexpr const char* kAllKinds = "GT1 GS1 GT1/5 GS1/5 GT2 GS2 GA1 TB2 TB3 TB5";
inline constexpr const char* kAssignmentKinds = "GT1 GS1 GT1/5 GS1/5";

// The findings of a change in some kinds of notices.
struct Outcome {
  const char* kinds;
  std::string errs;
};

// A change to a valid notice, and what comes of it: in a kind of no outcome, nothing.
struct ChangeCase {
  const char* name;
  void (*change)(NtcRec&);
  std::vector<Outcome> outcomes;
};

// What a notice of a kind gives after the change. Only warnings leave it passed.
inline Verdict verdictFor(const ChangeCase& one, std::string_view kind) {
  for (const Outcome& outcome : one.outcomes) {
    for (const std::string& each : words(outcome.kinds)) {
      if (each == kind) return {outcome.errs.find("FATAL ERROR") == std::string::npos, outcome.errs};
    }
  }
  return kPassed;
}

// Every change in every kind of notice: before it the notice passes, after it the outcome is all there is.
inline void expectChanges(const std::vector<ChangeCase>& cases, Verdict (*group)(const NtcRec&)) {
  for (const ChangeCase& one : cases) {
    SCOPED_TRACE(one.name);
    for (const std::string& kind : words(kAllKinds)) {
      NtcRec ntc = makeKind(kind);
      EXPECT_EQ(group(ntc), kPassed) << kind;
      one.change(ntc);
      EXPECT_EQ(group(ntc), verdictFor(one, kind)) << kind;
    }
  }
}

// Values of one field in some kinds of notices: `accepted` give no finding, each of `refused` gives `errs`
// alone.
struct FieldCase {
  const char* kinds;
  TextMember field;
  Texts accepted;
  Texts refused;
  std::string errs;
};

inline void expectValues(const FieldCase& one) {
  for (const std::string& kind : words(one.kinds)) {
    NtcRec ntc = makeKind(kind);
    for (const std::string& value : one.accepted) {
      one.field.of(ntc) = value;
      EXPECT_EQ(valuesOf(ntc), kPassed) << kind << " \"" << value << '"';
    }
    for (const std::string& value : one.refused) {
      one.field.of(ntc) = value;
      EXPECT_EQ(valuesOf(ntc), failed(one.errs)) << kind << " \"" << value << '"';
    }
  }
}

}  // namespace zamo
