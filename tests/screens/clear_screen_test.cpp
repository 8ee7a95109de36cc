#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "screens/complete_screens.h"
#include "screens/form_at_work.h"
#include "screens/visibility.h"

namespace zamo::test {
namespace {

// All that a control shows.
std::string stateOf(const Control& control) {
  std::ostringstream out;
  out << control.caption << '|' << control.text << '|' << control.index << '|';
  if (control.kind == ControlKind::list) out << control.items.size();
  out << (control.isSet ? " set" : "") << (control.visible ? "" : " hidden")
      << (control.enabled ? "" : " disabled") << (control.grey ? " grey" : "");
  return out.str();
}

std::map<std::string, std::string> statesOf(const Screen& screen) {
  std::map<std::string, std::string> states;
  screen.forEach([&states](const Control& control) { states[control.name] = stateOf(control); });
  return states;
}

// Leaves on a form as much of a notice as there can be.
void spoil(Screen& screen) {
  std::vector<Control> controls;
  screen.forEach([&controls](const Control& control) { controls.push_back(control); });
  for (const Control& control : controls) {
    const ControlName name = madeName(control.name);
    switch (control.kind) {
      case ControlKind::combo:
        screen.choose(name, static_cast<int>(control.items.size()) - 1);
        break;
      case ControlKind::list:
        if (control.name != "ListAdmAvail") screen.setItems(name, {"one", "two"});
        break;
      case ControlKind::option:
        screen.setOption(name);
        break;
      case ControlKind::text:
      case ControlKind::memo:
        screen.setText(name, "9");
        break;
      default:
        break;
    }
  }
}

// Controls of the notice that some rule, filler or event hides, renames or disables.
const std::map<FormCode, std::vector<ControlName>> kTouched = {
    {kGS1Assign,
     {"Txt_TrgAdmRefID",
      "Lbl_TrgAdmRefID",
      "Txt_trg_freq_assgn",
      "Txt_trg_long_DD",
      "Txt_trg_long_MM",
      "Txt_trg_long_SS",
      "Txt_trg_long_EW",
      "Txt_trg_lat_DD",
      "Txt_trg_lat_MM",
      "Txt_trg_lat_SS",
      "Txt_trg_lat_NS",
      "Lbl_trg_or",
      "Opt_TB2",
      "Opt_TB3",
      "Frame_ART5_Only",
      "Frame_Art4_Only",
      "Frame_9NH_AttnH",
      "Button_Fill9NV",
      "Txt_8BH_Erp_H",
      "Lbl_8BV_Erp_V",
      "Txt_LMZ04_SfnID",
      "Txt_KV19_assoc_allot_sfnID",
      "Lbl_LMZ04_AdmAllotID"}},
    {kGT1Assign,
     {"Combo_LMZ04_RefPlan", "Lbl_LMZ04_RefPlan", "LblOr", "Combo_LMZ04_Sys_Var", "Lbl_LMZ04_DigSys",
      "Combo_LMZ04_RxMode", "Lbl_LMZ04_RxMode", "Opt_TB2", "Opt_TB3", "Txt_TrgAdmRefID"}},
    {kGS2Allot, {"Combo_LMZ04_geo_area", "Lbl_LMZ04_or", "Txt_LMZ04_SfnID", "Frame_Art4_Only"}},
    {kGT2Allot, {"Txt_LMZ04_nb_sub_areas", "Lbl_LMZ04_nb_sub_areas", "FrameSubArea", "Lbl_LMZ04_geo_area"}},
    {kTB2,
     {"Txt_TrgAdmRefID", "Lbl_trg_YBKO", "LblOr", "Lbl_FreqUnit", "lbl_freqAssgn", "Lbl_4C_Long",
      "Lbl_4C_Lat", "Txt_TrgFreq", "Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_EW",
      "Txt_4C_Deg_Lat", "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_4C_NS"}},
};

class ClearScreen : public testing::TestWithParam<std::tuple<FormCode, bool>> {
 protected:
  ClearScreen() : at(std::get<0>(GetParam())), fresh(at.screen.code()) {
    if (std::get<1>(GetParam())) connectEvents(at.form);
    applyDefaultVisibility(at.screen);
    makeControls(fresh);
    applyDefaultVisibility(fresh);
  }

  // A form as it opens, but for what is told here.
  std::map<std::string, std::string> expectedStates() {
    std::map<std::string, std::string> expected = statesOf(fresh);
    const auto unset = [&](ControlName option, const std::string& caption) {
      if (fresh.has(option)) expected[std::string(option)] = caption + "||-1|";
    };
    if (code() != kGA1SubAllot) unset("OptInt_Add", "Add");
    if (code() == kTB5) {
      unset("OptInt_WDraw", "Withdraw");
      unset("Opt_Art4", "Art. 4");
    }
    if (fresh.has("Txt_10B_Ophhfr")) {
      expected["Txt_10B_Ophhfr"] = "|0000|-1|";
      expected["Txt_10B_Ophhto"] = "|2400|-1|";
    }
    return expected;
  }

  FormCode code() const { return at.screen.code(); }

  FormAtWork at;
  Screen fresh;
};
INSTANTIATE_TEST_SUITE_P(Forms, ClearScreen,
                         testing::Combine(testing::ValuesIn(kFormCodes), testing::Bool()));

TEST_P(ClearScreen, nothing_of_a_notice_is_left) {
  spoil(at.screen);
  if (at.screen.has("OptInt_Add")) at.screen.setCaption("OptInt_Add", "RECORDED");
  clearScreen(at.screen);
  EXPECT_EQ(statesOf(at.screen), expectedStates());
}

TEST_P(ClearScreen, nothing_of_a_complete_notice_is_left) {
  complete(at.screen);
  if (at.screen.has("OptInt_Mod")) at.screen.setOption("OptInt_Mod");
  settleAfterFill(at.screen);
  clearScreen(at.screen);
  EXPECT_EQ(statesOf(at.screen), expectedStates());
}

TEST_P(ClearScreen, what_was_hidden_or_disabled_for_a_notice_is_as_on_opening) {
  const auto touched = kTouched.find(code());
  if (touched != kTouched.end()) {
    for (const ControlName control : touched->second) at.screen.setVisible(control, false);
  }
  if (at.screen.has("txt_int_rmk") && isOneOf(code(), kTbForms)) {
    at.screen.setVisible({"txt_int_rmk", "Lbl_int_rmk"}, true);
  }
  if (code() == kGA1SubAllot) {
    at.screen.setEnabled("Combo_4B_Ctry", false);
    for (const ControlName button :
         ControlNames{"Button_View", "Button_Del_Coordinates", "Button_Upd_Coordinates",
                      "Button_Ins_Coordinates", "Button_Add_Coordinates", "Button_ClearAll_Coordinates"}) {
      at.screen.setEnabled(button, true);
    }
  }
  clearScreen(at.screen);
  EXPECT_EQ(statesOf(at.screen), expectedStates());
}

TEST_P(ClearScreen, clearing_twice_is_clearing_once) {
  spoil(at.screen);
  clearScreen(at.screen);
  const auto once = statesOf(at.screen);
  clearScreen(at.screen);
  EXPECT_EQ(statesOf(at.screen), once);
}

TEST_P(ClearScreen, it_clears_while_the_next_notice_is_on_its_way) {
  complete(at.screen);
  at.screen.filling = true;
  clearScreen(at.screen);
  EXPECT_TRUE(at.screen.filling);
  EXPECT_EQ(statesOf(at.screen), expectedStates());
}

TEST_P(ClearScreen, the_lists_to_choose_from_stay) {
  clearScreen(at.screen);
  at.screen.forEach([this](const Control& control) {
    if (control.kind == ControlKind::combo || control.name == "ListAdmAvail") {
      EXPECT_EQ(control.items, fresh.items(madeName(control.name))) << control.name;
      EXPECT_FALSE(control.items.empty()) << control.name;
    }
  });
}

}  // namespace
}  // namespace zamo::test
