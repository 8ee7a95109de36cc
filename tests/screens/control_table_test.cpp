#include "screens/control_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "screens/control_catalogue.h"

namespace zamo {
namespace {

using namespace test::catalogue;
using ::testing::IsEmpty;

std::vector<std::string> namesOnScreen(const Screen& screen) {
  std::vector<std::string> names;
  screen.forEach([&](const Control& control) { names.push_back(control.name); });
  return names;
}

TEST(ControlTable, each_form_has_its_controls_with_their_captions_and_tips_and_no_other) {
  for (const FormCode code : kForms) {
    SCOPED_TRACE(code);
    Screen screen(code);
    makeControls(screen);
    const auto expected = catalogueOf(code);

    std::vector<std::string> names;
    for (const auto& [name, row] : expected) {
      names.push_back(name);
      ASSERT_TRUE(screen.has(madeName(name))) << name;
      const Control& control = screen.at(madeName(name));
      EXPECT_EQ(control.kind, row.kind) << name;
      EXPECT_EQ(control.caption, row.caption) << name;
      EXPECT_EQ(control.tip, row.tip) << name;
    }
    EXPECT_EQ(namesOnScreen(screen), names);
  }
}

TEST(ControlTable, each_control_stands_in_its_frame) {
  for (const FormCode code : kForms) {
    SCOPED_TRACE(code);
    const auto expected = catalogueOf(code);
    const std::vector<ControlRow> rows = controlRows(code);
    EXPECT_EQ(rows.size(), expected.size());
    for (const ControlRow& row : rows) {
      const auto found = expected.find(std::string(row.name));
      ASSERT_NE(found, expected.end()) << row.name;
      EXPECT_EQ(row.frame, found->second.frame) << row.name;
    }
  }
}

TEST(ControlTable, names_are_unique_and_a_frame_comes_before_what_it_holds) {
  for (const FormCode code : kForms) {
    SCOPED_TRACE(code);
    std::set<std::string> names;
    std::set<std::string> frames = {""};
    for (const ControlRow& row : controlRows(code)) {
      EXPECT_TRUE(names.emplace(row.name).second) << row.name;
      EXPECT_EQ(frames.count(std::string(row.frame)), 1U) << row.name;
      if (row.kind == ControlKind::frame) frames.emplace(row.name);
    }
  }
}

TEST(ControlTable, a_label_comes_before_its_field_and_a_unit_behind_it) {
  const std::vector<ControlRow> rows = controlRows(kGT1Assign);
  const auto field = std::ranges::find(rows, "Txt_9E_AntHgt", &ControlRow::name);
  ASSERT_NE(field, rows.end());
  EXPECT_EQ((field - 1)->name, "Lbl_9E_AntHgt");
  EXPECT_EQ((field + 1)->name, "Lbl_9E_AntHgt_Unit");
}

TEST(ControlTable, everything_is_shown_enabled_and_empty_at_first) {
  for (const FormCode code : kForms) {
    SCOPED_TRACE(code);
    Screen screen(code);
    makeControls(screen);
    screen.forEach([&](const Control& control) {
      EXPECT_TRUE(control.visible && control.enabled && !control.grey && !control.isSet) << control.name;
      EXPECT_EQ(control.text, "") << control.name;
      if (control.kind != ControlKind::combo) {
        EXPECT_EQ(control.index, -1) << control.name;
        return;
      }
      EXPECT_EQ(control.index, 0) << control.name;
      ASSERT_FALSE(control.items.empty()) << control.name;
      EXPECT_EQ(control.items.front(), "") << control.name;
    });
  }
}

TEST(ControlTable, the_options_of_a_frame_exclude_each_other) {
  Screen screen(kGT1Assign);
  makeControls(screen);
  screen.setOption("Opt_Art4");
  screen.setOption("OptInt_Mod");
  screen.setOption("Opt_TB2");
  screen.setOption("Opt_Art5");
  screen.setOption("Opt_TB5");
  EXPECT_FALSE(screen.isSet("Opt_Art4"));
  EXPECT_TRUE(screen.isSet("Opt_Art5"));
  EXPECT_TRUE(screen.isSet("OptInt_Mod"));
  EXPECT_FALSE(screen.isSet("Opt_TB2"));
  EXPECT_TRUE(screen.isSet("Opt_TB5"));
}

TEST(ControlTable, no_form_has_no_controls) {
  Screen screen(kNoForm);
  makeControls(screen);
  EXPECT_THAT(namesOnScreen(screen), IsEmpty());
}

TEST(ControlTable, short_lists_are_told_whole) {
  for (const FormCode code : kForms) {
    SCOPED_TRACE(code);
    Screen screen(code);
    makeControls(screen);
    for (const ExpectedList& row : kShortLists) {
      if (!isOneOf(code, row.forms)) continue;
      EXPECT_EQ(screen.items(madeName(row.name)), row.items) << row.name;
    }
  }
}

bool holds(const Items& items, const std::string& item) {
  return std::find(items.begin(), items.end(), item) != items.end();
}

TEST(ControlTable, lists_of_codes_begin_with_the_empty_row_and_have_no_unused_place) {
  for (const FormCode code : kForms) {
    Screen screen(code);
    makeControls(screen);
    for (const CodeList& row : kCodeLists) {
      if (!isOneOf(code, row.forms)) continue;
      SCOPED_TRACE(row.name);
      const Items& items = screen.items(madeName(row.name));
      ASSERT_EQ(items.size(), row.rows);
      EXPECT_EQ(items[0], "");
      EXPECT_EQ(items[1], "AFS");
      EXPECT_EQ(items[2], "AGL");
      EXPECT_EQ(items.back(), "ZWE");
      EXPECT_EQ(std::count(items.begin(), items.end(), ""), 1);
      EXPECT_TRUE(std::is_sorted(items.begin(), items.end()) || row.isOfAreas);
      EXPECT_EQ(holds(items, "PSE"), !row.isOfAreas);
      for (const char* area :
           {"AOE", "ASC", "AZR", "CNR", "FRO", "GIB", "MDR", "MYT", "REU", "SHN", "TRC", "XGZ", "XWB"}) {
        EXPECT_EQ(holds(items, area), row.isOfAreas) << area;
      }
    }
  }
}

TEST(ControlTable, every_list_of_a_form_is_known_here) {
  std::set<std::pair<FormCode, std::string>> known;
  for (const FormCode code : kForms) {
    for (const ExpectedList& row : kShortLists) {
      if (isOneOf(code, row.forms)) known.emplace(code, row.name);
    }
    for (const CodeList& row : kCodeLists) {
      if (isOneOf(code, row.forms)) known.emplace(code, row.name);
    }
  }
  for (const FormCode code : kForms) {
    for (const ControlRow& row : controlRows(code)) {
      const bool hasItems = row.kind == ControlKind::combo || row.kind == ControlKind::list;
      EXPECT_EQ(known.count({code, std::string(row.name)}), hasItems ? 1U : 0U) << code << ' ' << row.name;
    }
  }
}

// clang-format off
const std::map<FormCode, std::set<std::string>> kUpperCase = {
  {kGS1Assign, {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_PlanAdm_RefID", "Txt_4A_SiteName", "Combo_4B_Ctry", "Txt_4C_EW",
                "Txt_4C_NS", "Txt_trg_lat_NS", "Txt_trg_long_EW", "Txt_12A_OpAgcy", "Txt_12B_AddrCde", "Txt_3A1_CallSign",
                "Txt_LMZ04_AdmAllotID", "Txt_LMZ04_SfnID", "Txt_KV19_assoc_allot_sfnID"}},
  {kGT1Assign, {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_PlanAdm_RefID", "Txt_4A_SiteName", "Combo_4B_Ctry", "Txt_4C_EW",
                "Txt_4C_NS", "Txt_trg_lat_NS", "Txt_trg_long_EW", "Txt_12A_OpAgcy", "Txt_12B_AddrCde", "Txt_3A1_CallSign",
                "Txt_LMZ04_AdmAllotID", "Txt_LMZ04_SfnID", "Txt_KV19_assoc_allot_sfnID"}},
  {kGS2Allot, {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_LMZ04_allot_name", "Txt_LMZ04_SfnID"}},
  {kGT2Allot, {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_LMZ04_allot_name", "Txt_LMZ04_SfnID"}},
  {kGA1SubAllot, {"Txt_LMZ04_NS", "Txt_LMZ04_EW", "Combo_4B_Ctry"}},
  {kTB5, {"Txt_TrgAdmRefID"}},
  {kTB3, {"Txt_TrgAdmRefID"}},
  {kTB2, {"Txt_12A_OpAgcy", "Txt_12B_AddrCde", "Txt_PlanAdmRefID", "Txt_TrgAdmRefID", "Txt_4C_EW", "Txt_4C_NS"}},
};
// clang-format on

TEST(ControlTable, fields_that_turn_what_is_typed_to_upper_case) {
  for (const FormCode code : kForms) {
    std::set<std::string> upper;
    for (const ControlRow& row : controlRows(code)) {
      if (row.upperCase) upper.emplace(row.name);
    }
    EXPECT_EQ(upper, kUpperCase.at(code)) << code;
  }
}

TEST(ControlTable, azimuth_boxes_are_named_with_three_digits) {
  EXPECT_EQ(azimuthBox("Txt_9EC_azm", 0), "Txt_9EC_azm000");
  EXPECT_EQ(azimuthBox("Txt_9NHAzm", 50), "Txt_9NHAzm050");
  EXPECT_EQ(azimuthBox("Txt_9NVAzm", 350), "Txt_9NVAzm350");
}

}  // namespace
}  // namespace zamo
