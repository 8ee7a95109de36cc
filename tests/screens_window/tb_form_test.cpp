// The TB forms in their windows, opened from the selection and from another notice.
#include <gmock/gmock.h>

#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAskUpdate =
    "Save Notice: Saving changes will update the Database. Do you want to proceed?";
const std::string kAskAdd = "Save Notice: ADD this NEW notice to the END of Database?";
const std::string kUpdated = "Save Notice: The notice was sucessfully updated in the Database";
const std::string kAdded = "Save Notice: The NEW notice was sucessfully saved to the Database";

const std::vector<ControlName> kOfStoredNotices = {"Txt_Ntc_Number", "Lbl_Ntc_Number",  "Button_Finish",
                                                   "Button_Next",    "Button_Next_Ntc", "Button_Prev_Ntc"};

class CreatedNotice : public RealForm {
 protected:
  // From a notice of this kind, with the option; the step gets the form that opens.
  void create(const NtcRec& ntc, ControlName option, FormStep onCreated) {
    openNew(ntc, [&](Operator& hand) {
      const Contents before = hand.contents();
      hand.click(option);
      steps.push_back(std::move(onCreated));
      hand.click("btn_Create");
      EXPECT_TRUE(steps.empty()) << "nothing opened";
      EXPECT_FALSE(work.state.ntcFromOtherNotice);
      Contents after = before;
      after[std::string(option)] = "set";
      EXPECT_EQ(hand.contents(), after);
    });
  }

  static void expectFresh(const Operator& hand) {
    for (const ControlName name : kOfStoredNotices) EXPECT_FALSE(hand.sees(name)) << name;
    for (const ControlName name : ControlNames{"Button_AddNew", "Button_Validate", "Button_Reset"})
      EXPECT_TRUE(hand.canUse(name)) << name;
    EXPECT_EQ(hand.text("Combo_B_Adm"), "F");
    EXPECT_FALSE(hand.canUse("Combo_B_Adm"));
  }
};

constexpr const char* kSources[] = {"GS1", "GT1", "GS2", "GT2"};

TEST_F(CreatedNotice, a_TB3_of_a_notice_has_its_target_and_its_administration) {
  for (const char* kind : kSources) {
    const NtcRec source = makeKind(kind);
    create(source, "Opt_TB3", [&](Operator& hand) {
      EXPECT_EQ(hand.window.objectName(), "TB3FrmKV19");
      EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), source.t_adm_ref_id);
      EXPECT_EQ(hand.text("Txt_Filename"), run.DbFileName);
      expectFresh(hand);
    });
  }
  expectTold({});
  EXPECT_EQ(mostWindows, 2);
}

TEST_F(CreatedNotice, a_TB5_of_an_assignment_takes_its_article_and_its_address_too) {
  for (const char* kind : {"GS1", "GT1", "GS1/5", "GT1/5"}) {
    NtcRec source = makeKind(kind);
    source.digital.t_email_addr = "plan@adm.example";
    create(source, "Opt_TB5", [&](Operator& hand) {
      EXPECT_EQ(hand.window.objectName(), "TB5FrmKV19");
      EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "F-0001");
      EXPECT_EQ(hand.text("Txt_EmailAddr"), "plan@adm.example");
      EXPECT_TRUE(hand.isSet("OptInt_WDraw"));
      EXPECT_EQ(hand.isSet("Opt_Art5"), source.t_fragment == "NTFD_PZ");
      EXPECT_EQ(hand.isSet("Opt_Art4"), source.t_fragment == "KV19D");
      expectFresh(hand);
    });
  }
  expectTold({});
}

TEST_F(CreatedNotice, a_TB5_of_an_allotment_is_one_under_article_4) {
  for (const char* kind : {"GS2", "GT2"}) {
    create(makeKind(kind), "Opt_TB5", [](Operator& hand) {
      EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "F-0002");
      EXPECT_TRUE(hand.isSet("Opt_Art4"));
      EXPECT_TRUE(hand.isSet("OptInt_WDraw"));
      expectFresh(hand);
    });
  }
}

TEST_F(CreatedNotice, a_TB2_of_an_assignment_names_it_as_the_plan_entry) {
  NtcRec television = makeGt1();
  television.digital.t_ref_plan_cfg.clear();
  television.t_sys_var = "C2";
  television.digital.t_rx_mode = "FX";
  for (const NtcRec& source : {makeGs1(), television}) {
    create(source, "Opt_TB2", [](Operator& hand) {
      EXPECT_EQ(hand.window.objectName(), "TB2FrmKV19");
      EXPECT_EQ(hand.text("Txt_PlanAdmRefID"), "F-0001");
      expectFresh(hand);
    });
  }
  expectTold({});
}

TEST_F(CreatedNotice, a_television_assignment_with_a_planning_configuration_has_no_TB2) {
  openNew("GT1", [this](Operator& hand) {
    hand.click("Opt_TB2");
    hand.click("btn_Create");
    EXPECT_EQ(script.boxes.at(0).icon, BoxIcon::exclamation);
    expectTold(
        {"Notice creation Error: TB2 notices can be created, ONLY if the notice has rx_mode and sys_var"});
    EXPECT_FALSE(work.state.ntcFromOtherNotice);
  });
  EXPECT_THAT(shown, ElementsAre("GT1AssignFrmKV19"));
}

TEST_F(CreatedNotice, without_a_type_there_is_a_beep_and_nothing_opens) {
  for (const char* kind : kSources) {
    openNew(kind, [this](Operator& hand) {
      hand.turnTo("btn_Create");
      hand.click("btn_Create");
      EXPECT_EQ(std::exchange(script.beeps, 0), 1);
      EXPECT_EQ(script.boxes.at(0).icon, BoxIcon::exclamation);
      expectTold({"MN/QST/WQN: Please, choose a notice type"});
    });
  }
  EXPECT_EQ(shown.size(), 4U);
  EXPECT_FALSE(work.state.ntcFromOtherNotice);
}

TEST_F(CreatedNotice, an_entry_under_article_5_offers_neither_TB2_nor_TB3) {
  for (const char* kind : {"GS1/5", "GT1/5"}) {
    openNew(kind, [](Operator& hand) {
      EXPECT_FALSE(hand.sees("Opt_TB2"));
      EXPECT_FALSE(hand.sees("Opt_TB3"));
      EXPECT_TRUE(hand.sees("Opt_TB5"));
    });
  }
}

TEST_F(CreatedNotice, is_added_without_asking_for_an_identifier_and_stands_behind_its_source) {
  openNew("GT1", [this](Operator& hand) {
    hand.click("Opt_TB3");
    EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
    steps.push_back([this](Operator& created) {
      created.doubleClickItem("ListAdmAvail", "BEL");
      script.answers = {true};
      created.click("Button_AddNew");
      EXPECT_FALSE(created.window.isVisible());
    });
    hand.click("btn_Create");
    EXPECT_TRUE(hand.canUse("Button_Next_Ntc"));
    EXPECT_EQ(hand.text("Txt_AdmRefID"), "F-0001");
  });
  EXPECT_TRUE(script.prompts.empty());
  expectTold({kAdded}, {kAskAdd});
  ASSERT_EQ(run.NtcCount, 2);
  const NtcRec added = stored(run.IndexList[1]);
  EXPECT_EQ(added.t_notice_type, "TB3");
  EXPECT_EQ(added.t_action, "PARTB");
  EXPECT_EQ(added.t_trg_adm_ref_id, "F-0001");
  EXPECT_EQ(added.t_adm, "F");
  ASSERT_EQ(added.coord.entries.size(), 1U);
  EXPECT_EQ(added.coord.entries[0].adm, "BEL");
  EXPECT_TRUE(work.state.ntcListChanged);
}

TEST_F(CreatedNotice, is_validated_and_closed_like_any_other) {
  openNew("GT1", [this](Operator& hand) {
    hand.click("Opt_TB5");
    steps.push_back([this](Operator& created) {
      dialogSteps.push_back(
          [](QDialog& dialog) { EXPECT_EQ(toText(dialog.windowTitle()), "Notice Receivable"); });
      created.click("Button_Validate");
      EXPECT_TRUE(created.window.isVisible());
      created.click("Button_Reset");
      EXPECT_FALSE(created.window.isVisible());
    });
    hand.click("btn_Create");
    EXPECT_TRUE(hand.window.isVisible());
  });
  EXPECT_EQ(run.NtcCount, 1);
  expectTold({});
}

// --- from the selection

class TbForms : public RealForm {};

TEST_F(TbForms, an_update_gives_a_new_key_and_moves_the_screen_on) {
  for (const char* kind : {"TB5", "TB3", "TB2"}) {
    SCOPED_TRACE(kind);
    run.IndexList.clear();
    run.NtcCount = 0;
    const std::int32_t old = add(kind);
    const std::int32_t other = add(kind);
    script.answers = {true};
    open(0, [&](Operator& hand) {
      hand.type("Txt_notified_Rmks", "corrected");
      hand.click("Button_Next");
      EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(other));
      EXPECT_EQ(hand.text("Txt_notified_Rmks"), "");
      EXPECT_TRUE(hand.canUse("Button_Next_Ntc"));
      EXPECT_FALSE(hand.canUse("Button_Prev_Ntc"));
      hand.click("Button_Next_Ntc");
      EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(run.IndexList.at(2)));
      EXPECT_EQ(hand.text("Txt_notified_Rmks"), "corrected");
      EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
    });
    expectTold({kUpdated}, {kAskUpdate});
    EXPECT_FALSE(isStored(old));
    ASSERT_EQ(run.NtcCount, 3);
    EXPECT_EQ(run.IndexList[0], 888888888);
    EXPECT_GT(run.IndexList[2], other);
    EXPECT_TRUE(std::exchange(work.state.ntcListChanged, false));
  }
}

TEST_F(TbForms, a_notice_that_is_alone_is_shown_anew_under_its_new_key) {
  const std::int32_t old = openNew("TB5", [this](Operator& hand) {
    hand.type("Txt_TrgAdmRefID", "F-new");
    script.answers = {true};
    hand.click("Button_Next");
    EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "F-NEW");
    EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(run.IndexList.at(1)));
    EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
    EXPECT_FALSE(hand.canUse("Button_Prev_Ntc"));
  });
  expectTold({kUpdated}, {kAskUpdate});
  EXPECT_FALSE(isStored(old));
}

TEST_F(TbForms, leaving_the_target_of_a_TB2_with_a_value_hides_frequency_and_place) {
  const std::vector<ControlName> place = {
      "LblOr",          "Lbl_FreqUnit",    "lbl_freqAssgn",   "Lbl_4C_Long",     "Lbl_4C_Lat",
      "Txt_TrgFreq",    "Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_EW",
      "Txt_4C_Deg_Lat", "Txt_4C_Min_Lat",  "Txt_4C_Sec_Lat",  "Txt_4C_NS"};
  openNew("TB2", [&](Operator& hand) {
    hand.enter("Txt_TrgAdmRefID", "");
    for (const ControlName name : place) EXPECT_TRUE(hand.sees(name)) << name;
    hand.type("Txt_TrgAdmRefID", "F-0007");
    for (const ControlName name : place) EXPECT_TRUE(hand.sees(name)) << name << " while typing";
    hand.click("Txt_12A_OpAgcy");
    for (const ControlName name : place) EXPECT_FALSE(hand.sees(name)) << name;
    hand.type("Txt_TrgAdmRefID", "");
    hand.click("Txt_12A_OpAgcy");
    for (const ControlName name : place) EXPECT_TRUE(hand.sees(name)) << name;
  });
  expectTold({});
}

TEST_F(TbForms, a_TB2_whose_target_is_a_place_shows_it_instead_of_the_reference) {
  NtcRec ntc = makeTb2();
  ntc.t_trg_adm_ref_id.clear();
  ntc.t_trg_freq_assgn = "474";
  ntc.trg_long_deg = "002";
  ntc.trg_long_min = "24";
  ntc.trg_long_sec = "10";
  ntc.trg_long_ew = "E";
  ntc.trg_lat_deg = "47";
  ntc.trg_lat_min = "05";
  ntc.trg_lat_sec = "30";
  ntc.trg_lat_ns = "N";
  openNew(ntc, [](Operator& hand) {
    EXPECT_EQ(hand.text("Txt_TrgFreq"), "474");
    EXPECT_EQ(hand.text("Txt_4C_EW"), "E");
    for (const ControlName name :
         ControlNames{"Txt_TrgFreq", "Txt_4C_Deg_Long", "Txt_4C_NS", "Lbl_4C_Long", "Lbl_4C_Lat"})
      EXPECT_TRUE(hand.sees(name)) << name;
    for (const ControlName name : ControlNames{"Txt_TrgAdmRefID", "Lbl_trg_YBKO", "LblOr"})
      EXPECT_FALSE(hand.sees(name)) << name;
  });
}

struct Refusal {
  ControlName field;
  const char* wrong;
  const char* told;
  const char* right;
};

// clang-format off
constexpr Refusal kRefusals[] = {
    {"Txt_TrgFreq",     "47,5", "Prevalidation Error - Target Assign frequency: Value must be numerical", "474.5"},
    {"Txt_4C_Deg_Lat",  "90",   "Prevalidation Error - Latitude: Value must be between [0,90]",   "89"},
    {"Txt_4C_Min_Lat",  "60",   "Prevalidation Error - Latitude: Value must be between [0,59]",   "59"},
    {"Txt_4C_Sec_Lat",  "60",   "Prevalidation Error - Latitude: Value must be between [0,59]",   "59"},
    {"Txt_4C_NS",       "E",    "Prevalidation Error - Latitude: Value can only be N or S",       "S"},
    {"Txt_4C_Deg_Long", "180",  "Prevalidation Error - Longitude: Value must be between [0,180]", "179"},
    {"Txt_4C_Min_Long", "60",   "Prevalidation Error - Longitude: Value must be between [0,59]",  "59"},
    {"Txt_4C_Sec_Long", "60",   "Prevalidation Error - Longitude: Value must be between [0,59]",  "59"},
    {"Txt_4C_EW",       "N",    "Prevalidation Error - Longitude: Value can only be E or W",      "W"},
    {"Txt_InUse_DD",    "32",   "Prevalidation Error - Date (day): Value should be between [1,31]", "28"},
    {"Txt_InUse_MM",    "13",   "Prevalidation Error - Date (month): Value should be between [1,12]", "12"},
    {"Txt_InUse_YY",    "1999", "Prevalidation Error - Date (year): The year must be entered as YYYY and must be after 2000", "2000"},
};
// clang-format on

TEST_F(TbForms, every_wrong_value_of_a_TB2_is_told_once_and_keeps_the_focus_until_it_is_put_right) {
  openNew("TB2", [this](Operator& hand) {
    hand.enter("Txt_TrgAdmRefID", "");
    for (const Refusal& row : kRefusals) {
      hand.enter(row.field, row.wrong);
      EXPECT_EQ(hand.focused(), row.field);
      expectTold({row.told});
      hand.click("Button_Next");
      EXPECT_EQ(hand.focused(), row.field);
      expectTold({row.told});
      hand.enter(row.field, row.right);
      EXPECT_NE(hand.focused(), row.field);
      expectTold({});
    }
    hand.type("Txt_4C_EW", "X");
    hand.click("Button_Reset");
    EXPECT_FALSE(hand.window.isVisible());
  });
  EXPECT_LE(script.boxes.size(), 1U);
}

TEST_F(TbForms, the_agency_of_a_TB2_gets_its_zeros_without_a_word) {
  openNew("TB2", [this](Operator& hand) {
    hand.enter("Txt_12A_OpAgcy", "7");
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "007");
    hand.enter("Txt_12A_OpAgcy", "x");
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "00X");
    expectTold({});
  });
}

TEST_F(TbForms, the_blank_hours_of_a_TB2_are_those_of_a_whole_day_when_it_is_saved) {
  openNew("TB2", [this](Operator& hand) {
    for (const ControlName box : ControlNames{"Txt_10B_Ophhfr", "Txt_10B_Ophhto"}) hand.enter(box, "");
    dialogSteps.push_back([](QDialog&) {});
    hand.click("Button_Validate");
    EXPECT_EQ(hand.text("Txt_10B_Ophhfr"), "0000");
    EXPECT_EQ(hand.text("Txt_10B_Ophhto"), "2400");
    for (const ControlName box : ControlNames{"Txt_10B_Ophhfr", "Txt_10B_Ophhto"}) hand.enter(box, "");
    script.answers = {true};
    hand.click("Button_Next");
  });
  expectTold({kUpdated}, {kAskUpdate});
  EXPECT_EQ(stored(run.IndexList.back()).op_hours, (OpHoursRec{true, "0000", "2400"}));
}

TEST_F(TbForms, what_a_TB_notice_lacks_is_told_and_nothing_is_asked) {
  openNew("TB2", [this](Operator& hand) {
    hand.enter("Txt_12B_AddrCde", "");
    hand.enter("Txt_InUse_DD", "");
    hand.click("Button_Next");
    EXPECT_EQ(script.boxes.at(0).buttons, BoxButtons::cancelTryContinue);
    expectTold(
        {"Cannot save the notice: To save a notice the following Mandatory fields are necessary : \r\n"
         "Date of bringing into use : t_d_inuse \r\n Address code : t_addr_code \r\n"});
  });
}

TEST_F(TbForms, a_TB3_coordinates_as_the_assignments_do) {
  const std::int32_t old = openNew("TB3", [this](Operator& hand) {
    hand.doubleClickItem("ListAdmAvail", "BEL");
    hand.doubleClickItem("ListAdmAvail", "SUI");
    hand.clickItem("ListAdmSel", "BEL");
    hand.click("Button_Coord_Del");
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("SUI"));
    script.answers = {true};
    hand.click("Button_Next");
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("SUI"));
  });
  EXPECT_FALSE(isStored(old));
  expectTold({kUpdated}, {kAskUpdate});
}

}  // namespace
}  // namespace zamo::test
