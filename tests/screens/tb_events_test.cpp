#include <gtest/gtest.h>

#include "screens/field_checks.h"
#include "screens/notice_desk.h"
#include "screens/notice_walk.h"

namespace zamo {
namespace {

constexpr ControlName kHiddenOnCreated[] = {"Txt_Ntc_Number", "Lbl_Ntc_Number",  "Button_Finish",
                                            "Button_Next",    "Button_Next_Ntc", "Button_Prev_Ntc"};

class Creation : public test::NoticeDesk {
 protected:
  Creation() { run.qryIsNotice = true; }

  // Opens the notice, presses the button with the option set, and does `onCreated` on the form that opens.
  void create(std::string_view kind, ControlName option, std::function<void(NoticeForm&)> onCreated) {
    const std::int32_t idx = run.NtcCount;
    add(kind);
    steps.push_back([&, option](NoticeForm& form) {
      if (!option.empty()) form.screen.setOption(option);
      if (change) change(form);
      steps.push_back(onCreated);
      click(form, "btn_Create");
      if (!steps.empty()) steps.pop_back();
      EXPECT_FALSE(work.state.ntcFromOtherNotice);
      after = form.screen.at("Button_Next_Ntc").enabled;
    });
    open(idx);
  }

  std::function<void(NoticeForm&)> change;
  bool after = false;
};

TEST_F(Creation, a_TB3_of_an_assignment_has_its_target_and_administration) {
  create("GT1", "Opt_TB3", [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.code(), kTB3);
    EXPECT_TRUE(work.state.ntcFromOtherNotice);
    EXPECT_EQ(form.screen.text("Txt_TrgAdmRefID"), "F-0001");
    EXPECT_EQ(form.screen.text("Combo_B_Adm"), "F");
    EXPECT_EQ(form.screen.text("Txt_Filename"), run.DbFileName);
    for (const ControlName name : kHiddenOnCreated) EXPECT_FALSE(form.screen.isVisible(name)) << name;
    for (const ControlName name : ControlNames{"Button_AddNew", "Button_Validate", "Button_Reset"})
      EXPECT_TRUE(form.screen.isVisible(name)) << name;
  });
  EXPECT_EQ(shown, (std::vector<FormCode>{kGT1Assign, kTB3}));
  expectBoxes({});
}

TEST_F(Creation, a_TB5_of_an_assignment_takes_email_and_article) {
  change = [](NoticeForm& form) { form.screen.setText("Txt_EmailAddr", "a@b.int"); };
  create("GS1/5", "Opt_TB5", [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.code(), kTB5);
    EXPECT_TRUE(form.screen.isSet("OptInt_WDraw"));
    EXPECT_EQ(form.screen.text("Txt_EmailAddr"), "a@b.int");
    EXPECT_TRUE(form.screen.isSet("Opt_Art5"));
    EXPECT_FALSE(form.screen.isSet("Opt_Art4"));
    for (const ControlName name : kHiddenOnCreated) EXPECT_FALSE(form.screen.isVisible(name)) << name;
  });
}

TEST_F(Creation, a_TB5_of_an_assignment_without_an_article_has_none) {
  change = [](NoticeForm& form) { form.screen.unsetOption("Opt_Art4"); };
  create("GT1", "Opt_TB5", [&](NoticeForm& form) {
    EXPECT_FALSE(form.screen.isSet("Opt_Art4"));
    EXPECT_FALSE(form.screen.isSet("Opt_Art5"));
  });
}

TEST_F(Creation, a_TB5_of_an_allotment_is_under_article_4) {
  change = [](NoticeForm& form) { form.screen.setText("Txt_EmailAddr", "a@b.int"); };
  for (const char* kind : {"GT2", "GS2"}) {
    create(kind, "Opt_TB5", [&](NoticeForm& form) {
      EXPECT_TRUE(form.screen.isSet("OptInt_WDraw"));
      EXPECT_TRUE(form.screen.isSet("Opt_Art4"));
      EXPECT_EQ(form.screen.text("Txt_EmailAddr"), "");
      EXPECT_EQ(form.screen.text("Combo_B_Adm"), "F");
    });
  }
}

TEST_F(Creation, an_allotment_offers_no_TB2) {
  add("GT2");
  add("GS2");
  for (const std::int32_t idx : {0, 1}) {
    open(idx, [](NoticeForm& form) {
      EXPECT_FALSE(form.screen.has("Opt_TB2"));
      EXPECT_TRUE(form.screen.has("Opt_TB3"));
      EXPECT_TRUE(form.screen.has("Opt_TB5"));
    });
  }
}

TEST_F(Creation, a_TB2_of_a_sound_assignment_has_its_plan_entry) {
  create("GS1", "Opt_TB2", [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.code(), kTB2);
    EXPECT_EQ(form.screen.text("Txt_PlanAdmRefID"), "F-0001");
    EXPECT_EQ(form.screen.text("Txt_Filename"), run.DbFileName);
    EXPECT_EQ(form.screen.text("Combo_B_Adm"), "F");
  });
  expectBoxes({});
}

TEST_F(Creation, a_TB2_of_a_television_assignment_needs_mode_and_variant) {
  change = [](NoticeForm& form) {
    form.screen.choose("Combo_LMZ04_Sys_Var", 0);
    form.screen.choose("Combo_LMZ04_RxMode", 0);
    EXPECT_TRUE(form.screen.isVisible("Combo_LMZ04_RefPlan"));
  };
  create("GT1", "Opt_TB2", [](NoticeForm&) { ADD_FAILURE() << "opened"; });
  expectBoxes(
      {"Notice creation Error: TB2 notices can be created, ONLY if the notice has rx_mode and sys_var"});
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::exclamation);
  EXPECT_EQ(shown, std::vector<FormCode>{kGT1Assign});
  script.boxes.clear();
  change = [](NoticeForm& form) {
    form.screen.chooseText("Combo_LMZ04_Sys_Var", "C2");
    form.screen.chooseText("Combo_LMZ04_RxMode", "FX");
    EXPECT_FALSE(form.screen.isVisible("Combo_LMZ04_RefPlan"));
  };
  create("GT1", "Opt_TB2", [](NoticeForm& form) { EXPECT_EQ(form.screen.code(), kTB2); });
  expectBoxes({});
}

TEST_F(Creation, without_a_type_it_beeps_and_opens_nothing) {
  create("GT1", {}, [](NoticeForm&) { ADD_FAILURE() << "opened"; });
  EXPECT_EQ(script.beeps, 1);
  expectBoxes({"MN/QST/WQN: Please, choose a notice type"});
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::exclamation);
  EXPECT_EQ(shown, std::vector<FormCode>{kGT1Assign});
}

TEST_F(Creation, without_a_type_an_allotment_opens_nothing_either) {
  for (const char* kind : {"GT2", "GS2"}) {
    create(kind, {}, [](NoticeForm&) { ADD_FAILURE() << "opened"; });
    expectBoxes({"MN/QST/WQN: Please, choose a notice type"});
    script.boxes.clear();
  }
  EXPECT_EQ(script.beeps, 2);
}

TEST_F(Creation, a_variant_or_a_mode_beside_a_stored_configuration_is_enough_for_a_TB2) {
  struct Given {
    ControlName combo;
    const char* value;
  };
  for (const Given& given : {Given{"Combo_LMZ04_Sys_Var", "C2"}, Given{"Combo_LMZ04_RxMode", "FX"}}) {
    change = [&](NoticeForm& form) {
      form.screen.choose("Combo_LMZ04_Sys_Var", 0);
      form.screen.choose("Combo_LMZ04_RxMode", 0);
      form.screen.chooseText(given.combo, given.value);
      form.screen.setVisible("Combo_LMZ04_RefPlan", true);
    };
    bool opened = false;
    create("GT1", "Opt_TB2", [&](NoticeForm& form) { opened = form.screen.code() == kTB2; });
    EXPECT_TRUE(opened) << given.combo;
  }
  expectBoxes({});
}

TEST_F(Creation, a_blank_source_makes_no_blank_form_and_stays_blank) {
  change = [&](NoticeForm&) { work.state.screenIsBlank = true; };
  create("GS1", "Opt_TB3", [&](NoticeForm&) { EXPECT_FALSE(work.state.screenIsBlank); });
  EXPECT_TRUE(work.state.screenIsBlank);
}

TEST_F(Creation, the_new_notice_is_added_without_a_prompt_and_the_source_stays) {
  script.answers = {true};
  create("GT1", "Opt_TB5", [&](NoticeForm& form) {
    click(form, "Button_AddNew");
    EXPECT_TRUE(closed);
  });
  EXPECT_TRUE(script.prompts.empty());
  expectBoxes({"Save Notice: The NEW notice was sucessfully saved to the Database"});
  EXPECT_TRUE(after);
  ASSERT_EQ(run.NtcCount, 2);
  const NtcRec ntc = stored(run.IndexList[1]);
  EXPECT_EQ(ntc.t_notice_type, "TB5");
  EXPECT_EQ(ntc.t_action, "WITHDRAW");
  EXPECT_EQ(ntc.t_fragment, "KV19D");
  EXPECT_EQ(ntc.t_trg_adm_ref_id, "F-0001");
  EXPECT_EQ(ntc.t_adm, "F");
}

class TargetOfTB2 : public test::NoticeDesk {
 protected:
  TargetOfTB2() { run.qryIsNotice = true; }
};

TEST_F(TargetOfTB2, leaving_its_identifier_hides_and_shows_frequency_and_place) {
  constexpr ControlName elements[] = {"LblOr",           "Lbl_FreqUnit", "lbl_freqAssgn",   "Lbl_4C_Long",
                                      "Lbl_4C_Lat",      "Txt_TrgFreq",  "Txt_4C_Deg_Long", "Txt_4C_Min_Long",
                                      "Txt_4C_Sec_Long", "Txt_4C_EW",    "Txt_4C_Deg_Lat",  "Txt_4C_Min_Lat",
                                      "Txt_4C_Sec_Lat",  "Txt_4C_NS"};
  add("TB2");
  open(0, [&](NoticeForm& form) {
    work.state.screenIsBlank = true;
    type(form, "Txt_TrgAdmRefID", "F-9");
    EXPECT_TRUE(mayLeaveField(form, "Txt_TrgAdmRefID"));
    for (const ControlName name : elements) EXPECT_FALSE(form.screen.isVisible(name)) << name;
    EXPECT_FALSE(work.state.screenIsBlank);
    work.state.screenIsBlank = true;
    type(form, "Txt_TrgAdmRefID", "");
    EXPECT_TRUE(mayLeaveField(form, "Txt_TrgAdmRefID"));
    EXPECT_TRUE(work.state.screenIsBlank);
    for (const ControlName name : elements) EXPECT_TRUE(form.screen.isVisible(name)) << name;
  });
  expectBoxes({});
}

TEST_F(TargetOfTB2, empty_hours_become_the_whole_day_in_every_flow) {
  for (const ControlName button : ControlNames{"Button_Validate", "Button_Next", "Button_AddNew"}) {
    const std::int32_t idx = run.NtcCount;
    add("TB2");
    script.answers = {false};
    open(idx, [&](NoticeForm& form) {
      type(form, "Txt_10B_Ophhfr", "");
      type(form, "Txt_10B_Ophhto", "");
      click(form, button);
      EXPECT_EQ(form.screen.text("Txt_10B_Ophhfr"), "0000") << button;
      EXPECT_EQ(form.screen.text("Txt_10B_Ophhto"), "2400") << button;
    });
    script.boxes.clear();
    script.questions.clear();
  }
}

TEST_F(TargetOfTB2, hours_that_are_told_stay) {
  NtcRec ntc = makeTb2();
  ntc.op_hours = {true, "0600", "1800"};
  const std::int32_t key = add(ntc);
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    click(form, "Button_Validate");
    EXPECT_EQ(form.screen.text("Txt_10B_Ophhfr"), "0600");
    EXPECT_EQ(form.screen.text("Txt_10B_Ophhto"), "1800");
    click(form, "Button_Next");
  });
  EXPECT_FALSE(isStored(key));
  const NtcRec after = stored(run.IndexList.back());
  EXPECT_EQ(after.op_hours.t_op_hh_fr, "0600");
  EXPECT_EQ(after.op_hours.t_op_hh_to, "1800");
}

TEST_F(TargetOfTB2, a_stored_place_that_is_emptied_gives_way_to_the_identifier) {
  NtcRec ntc = makeTb2();
  ntc.t_trg_adm_ref_id.clear();
  ntc.t_trg_freq_assgn = "474";
  add(ntc);
  open(0, [&](NoticeForm& form) {
    EXPECT_FALSE(form.screen.isVisible("Txt_TrgAdmRefID"));
    type(form, "Txt_4C_EW", "E");
    type(form, "Txt_TrgFreq", "");
    EXPECT_TRUE(mayLeaveField(form, "Txt_TrgFreq"));
    EXPECT_FALSE(form.screen.isVisible("Txt_TrgAdmRefID"));
    type(form, "Txt_4C_EW", "");
    EXPECT_TRUE(mayLeaveField(form, "Txt_4C_EW"));
    for (const ControlName name : ControlNames{"Txt_TrgAdmRefID", "Lbl_trg_YBKO", "LblOr"})
      EXPECT_TRUE(form.screen.isVisible(name)) << name;
  });
  expectBoxes({});
}

TEST_F(TargetOfTB2, each_box_of_the_place_gives_way_when_it_is_the_last) {
  for (const ControlName box :
       ControlNames{"Txt_TrgFreq", "Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_EW",
                    "Txt_4C_Deg_Lat", "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_4C_NS"}) {
    const std::int32_t idx = run.NtcCount;
    NtcRec ntc = makeTb2();
    ntc.t_trg_adm_ref_id.clear();
    ntc.t_trg_freq_assgn = "474";
    add(ntc);
    open(idx, [&](NoticeForm& form) {
      type(form, "Txt_TrgFreq", "");
      EXPECT_FALSE(form.screen.isVisible("Txt_TrgAdmRefID"));
      EXPECT_TRUE(mayLeaveField(form, box));
      EXPECT_TRUE(form.screen.isVisible("Txt_TrgAdmRefID")) << box;
    });
  }
}

TEST_F(TargetOfTB2, internal_remarks_show_on_TB_forms_only_when_there_are_any) {
  NtcRec ntc = makeTb2();
  add(ntc);
  ntc.t_int_remarks = "seen";
  add(ntc);
  open(0, [](NoticeForm& form) {
    EXPECT_FALSE(form.screen.isVisible("txt_int_rmk"));
    EXPECT_FALSE(form.screen.isVisible("Lbl_int_rmk"));
    click(form, "Button_Next_Ntc");
    EXPECT_TRUE(form.screen.isVisible("txt_int_rmk"));
    EXPECT_TRUE(form.screen.isVisible("Lbl_int_rmk"));
    EXPECT_EQ(form.screen.text("txt_int_rmk"), "seen");
  });
}

}  // namespace
}  // namespace zamo
