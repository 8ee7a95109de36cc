#include "validation/assignment_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/rule_cases.h"

namespace zamo {
namespace {

struct PlanEntryCase {
  const char* planEntry;
  const char* codes;  // accepted, in both cases
  const char* codeMessage;
  int sfnId;  // 1 must be given, 0 must be absent, -1 isn't tested
  const char* sfnIdMessage;
  int admAllotId;
  const char* admAllotIdMessage;
  int allotSfnId;
  const char* allotSfnIdMessage;
};

// clang-format off
const PlanEntryCase kPlanEntries[] = {
    {"1", "S s", "For t_plan_entry = 1, t_assgn_code must be 'S' \r\n",
     0, "For t_plan_entry = 1, t_sfn_id must NOT be provided\r\n",
     0, "For t_plan_entry = 1, t_associated_adm_allot_id must NOT be provided\r\n",
     -1, ""},
    {"2", "L l", "For t_plan_entry = 2, t_assgn_code must be 'L'\r\n",
     1, "For t_plan_entry = 2, t_sfn_id MUST be provided\r\n",
     0, "For t_plan_entry = 2, t_associated_adm_allot_id must NOT be provided\r\n",
     0, "For t_plan_entry = 2, t_associated_allot_sfn_id must NOT be provided\r\n"},
    {"3", "C c", "For t_plan_entry = 3, t_assgn_code must be 'C'\r\n",
     1, "For t_plan_entry = 3, t_sfn_id MUST be provided\r\n",
     1, "For t_plan_entry = 3, t_associated_adm_allot_id must be provided\r\n",
     1, "For t_plan_entry = 3, t_associated_allot_sfn_id must be provided and it must be equal to t_sfn_id of the allotment\r\n"},
    {"4", "L C l c", "For t_plan_entry = 4, t_assgn_code can only be {L, C}\r\n",
     1, "For t_plan_entry = 4, t_sfn_id MUST be provided\r\n",
     1, "For t_plan_entry = 4, t_associated_adm_allot_id must be provided\r\n",
     1, "For t_plan_entry = 4, t_associated_allot_sfn_id must be provided and it must be equal to t_sfn_id of the allotment\r\n"},
    {"5", "L l", "For t_plan_entry = 5, t_assgn_code must be 'L'\r\n",
     0, "For t_plan_entry = 5, t_sfn_id MUST NOT be provided\r\n",
     1, "For t_plan_entry = 5, t_associated_adm_allot_id must be provided\r\n",
     0, "For t_plan_entry = 5, t_associated_allot_sfn_id must NOT be provided\r\n"},
};
// clang-format on

bool meets(int demand, bool given) {
  return demand < 0 || (demand == 1) == given;
}

TEST(PlanEntryOfAssignment, all_entries_and_columns) {
  for (const PlanEntryCase& entry : kPlanEntries) {
    const Texts accepted = words(entry.codes);
    for (const char* code : {"S", "L", "C", "s", "l", "c", "X", "SS", "LC", " L", ""}) {
      for (int given = 0; given < 8; ++given) {
        const bool sfn = (given & 1) != 0;
        const bool adm = (given & 2) != 0;
        const bool allot = (given & 4) != 0;
        std::string expected;
        if (std::find(accepted.begin(), accepted.end(), code) == accepted.end())
          expected += entry.codeMessage;
        if (!meets(entry.sfnId, sfn)) expected += entry.sfnIdMessage;
        if (!meets(entry.admAllotId, adm)) expected += entry.admAllotIdMessage;
        if (!meets(entry.allotSfnId, allot)) expected += entry.allotSfnIdMessage;
        std::string msg;
        const bool wrong = checkPlanEntryAssgn(entry.planEntry, code, sfn ? "SFN" : "", adm ? "ALLOT" : "",
                                               allot ? "SFN" : "", msg);
        EXPECT_EQ(msg, expected) << entry.planEntry << ' ' << code << ' ' << given;
        EXPECT_EQ(wrong, !expected.empty()) << entry.planEntry << ' ' << code << ' ' << given;
      }
    }
  }
}

TEST(PlanEntryOfAssignment, the_findings_of_a_call_are_joined) {
  std::string msg;
  EXPECT_TRUE(checkPlanEntryAssgn("5", "C", "SFN", "", "SFN", msg));
  EXPECT_EQ(msg,
            "For t_plan_entry = 5, t_assgn_code must be 'L'\r\n"
            "For t_plan_entry = 5, t_sfn_id MUST NOT be provided\r\n"
            "For t_plan_entry = 5, t_associated_adm_allot_id must be provided\r\n"
            "For t_plan_entry = 5, t_associated_allot_sfn_id must NOT be provided\r\n");
}

TEST(PlanEntryOfAssignment, other_entries_are_not_tested) {
  for (const char* entry : {"", "0", "6", "11", " 1", "X"}) {
    std::string msg;
    EXPECT_FALSE(checkPlanEntryAssgn(entry, "X", "SFN", "ALLOT", "SFN", msg)) << entry;
    EXPECT_EQ(msg, "") << entry;
  }
}

TEST(PlanEntryOfAssignment, the_joined_text_stands_behind_one_head_and_ends_in_a_blank_line) {
  // clang-format off
  expectChanges({
      {"entry 2", [](NtcRec& ntc) { ntc.t_plan_entry = "2"; },
       {{kAssignmentKinds,
         "FATAL ERROR : \r\n"
         "Notice No : 7 : For t_plan_entry = 2, t_assgn_code must be 'L'\r\n"
         "For t_plan_entry = 2, t_sfn_id MUST be provided\r\n"
         "\r\n"}}},
      {"network of entry 1", [](NtcRec& ntc) { ntc.digital.t_sfn_id = "F-SFN-0001"; },
       {{kAssignmentKinds,
         "FATAL ERROR : \r\nNotice No : 7 : For t_plan_entry = 1, t_sfn_id must NOT be provided\r\n\r\n"},
        {"TB2", fatal(" : t_sfn_id should not be notified for a TB2")},
        {"TB3", fatal(" : t_sfn_id should not be notified for a TB3")},
        {"TB5", fatal(" : t_sfn_id should not be notified for a TB5")}}},
  }, mandatoryOf);
  // clang-format on
}

TEST(PlanEntryOfAssignment, it_is_judged_when_both_entry_and_code_are_given) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    NtcRec ntc = makeKind(kind);
    ntc.digital.t_sfn_id = "F-SFN-0001";
    ntc.t_plan_entry.clear();
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_plan_entry is a mandatory value"))) << kind;
    ntc.t_assgn_code.clear();
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_plan_entry is a mandatory value") +
                                       fatal(" :  t_assgn_code is a mandatory value")))
        << kind;
    ntc.t_plan_entry = "1";
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_assgn_code is a mandatory value"))) << kind;
  }
}

TEST(PlanEntryOfAssignment, a_valid_notice_of_each_entry_passes) {
  const struct {
    const char* entry;
    const char* code;
    const char* sfnId;
    const char* admAllotId;
    const char* allotSfnId;
  } cases[] = {{"1", "S", "", "", ""},
               {"2", "L", "SFN", "", ""},
               {"3", "C", "SFN", "ALLOT", "SFN"},
               {"4", "L", "SFN", "ALLOT", "SFN"},
               {"4", "c", "SFN", "ALLOT", "SFN"},
               {"5", "L", "", "ALLOT", ""}};
  for (const auto& one : cases) {
    for (const std::string& kind : words(kAssignmentKinds)) {
      NtcRec ntc = makeKind(kind);
      ntc.t_plan_entry = one.entry;
      ntc.t_assgn_code = one.code;
      ntc.digital.t_sfn_id = one.sfnId;
      ntc.digital.t_associated_adm_allot_id = one.admAllotId;
      ntc.digital.t_associated_allot_sfn_id = one.allotSfnId;
      EXPECT_EQ(mandatoryOf(ntc), kPassed) << kind << " entry " << one.entry;
    }
  }
}

}  // namespace
}  // namespace zamo
