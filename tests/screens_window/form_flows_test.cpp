// Update, Add New, Delete, Validation and the walk on the forms' own buttons.
#include <gmock/gmock.h>

#include "screens_window/real_form.h"
#include "support/waiting.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;

const std::string kAskUpdate =
    "Save Notice: Saving changes will update the Database. Do you want to proceed?";
const std::string kAskAdd = "Save Notice: ADD this NEW notice to the END of Database?";
const std::string kAskDelete = "Delete Notice: Do you want to delete the notice from the Database?";
const std::string kUpdated = "Save Notice: The notice was sucessfully updated in the Database";
const std::string kAdded = "Save Notice: The NEW notice was sucessfully saved to the Database";

constexpr const char* kPlanTypes[] = {"GS1", "GT1", "GS2", "GT2"};

class FormFlows : public RealForm {
 protected:
  void outOfCountry() {
    map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("D  "); };
  }
  // Presses Validation and gives what the dialog shows: its caption, and its text.
  std::pair<std::string, std::string> validate(Operator& hand) {
    std::pair<std::string, std::string> told;
    dialogSteps.push_back([&told](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "ErrMsgFrm");
      EXPECT_TRUE(dialog.isModal());
      auto& text = childOf<QPlainTextEdit>(dialog, "ErrorMsgTxt");
      EXPECT_TRUE(text.isReadOnly());
      told = {toText(dialog.windowTitle()), toText(text.toPlainText())};
      QTest::mouseClick(&childOf<QPushButton>(dialog, "Button_Close"), Qt::LeftButton);
      EXPECT_FALSE(dialog.isVisible());
    });
    hand.click("Button_Validate");
    EXPECT_TRUE(hand.window.isVisible());
    return told;
  }
};

// --- Update

TEST_F(FormFlows, an_update_is_asked_for_stored_and_told_and_the_form_stays) {
  for (const char* type : kPlanTypes) {
    SCOPED_TRACE(type);
    const std::int32_t key = openNew(type, [this](Operator& hand) {
      hand.enter("Txt_AdmRefID", "F-changed");
      script.answers = {true};
      hand.click("Button_Next");
      EXPECT_TRUE(hand.window.isVisible());
      EXPECT_EQ(hand.text("Txt_AdmRefID"), "F-CHANGED");
    });
    expectTold({kUpdated}, {kAskUpdate});
    EXPECT_EQ(stored(key).t_adm_ref_id, "F-CHANGED");
    EXPECT_EQ(stored(key).d_updated, "2026-03-07");
    EXPECT_TRUE(std::exchange(work.state.ntcListChanged, false));
  }
}

TEST_F(FormFlows, No_at_the_errors_still_updates_and_reports_success) {
  for (const char* type : kPlanTypes) {
    SCOPED_TRACE(type);
    const std::int32_t key = openNew(type, [this](Operator& hand) {
      hand.pick("Combo_9D_Polariz", "");
      script.answers = {true, true, false};
      hand.click("Button_Next");
      ASSERT_EQ(script.questions.size(), 3U);
      EXPECT_EQ(script.questions[0].title, "Save Invalid Notice");
      EXPECT_EQ(script.questions[2].title, "Update Notice with errors");
      EXPECT_THAT(script.questions[2].text,
                  testing::AllOf(testing::StartsWith("The notice contains error\r\nFATAL ERROR : \r\n"),
                                 testing::EndsWith("\r\nContinue to update the notice?")));
    });
    expectBoxes({kUpdated});
    script.boxes.clear();
    script.questions.clear();
    EXPECT_EQ(stored(key).t_polar, "");
  }
}

TEST_F(FormFlows, No_leaves_the_database_as_it_is_but_the_grid_is_read_again) {
  for (const char* type : kPlanTypes) {
    const NtcRec before = makeKind(type);
    const std::int32_t key = openNew(before, [this](Operator& hand) {
      hand.enter("Txt_AdmRefID", "F-CHANGED");
      script.answers = {false};
      hand.click("Button_Next");
      EXPECT_EQ(hand.text("Txt_AdmRefID"), "F-CHANGED");
      EXPECT_TRUE(hand.window.isVisible());
    });
    expectTold({}, {kAskUpdate});
    EXPECT_EQ(stored(key).t_adm_ref_id, before.t_adm_ref_id);
    EXPECT_TRUE(std::exchange(work.state.ntcListChanged, false));
  }
}

TEST_F(FormFlows, an_assignment_without_an_article_is_refused_first) {
  for (const char* type : {"GS1", "GT1"}) {
    NtcRec ntc = makeKind(type);
    ntc.t_fragment.clear();
    openNew(ntc, [this](Operator& hand) {
      EXPECT_FALSE(hand.isSet("Opt_Art4"));
      EXPECT_FALSE(hand.isSet("Opt_Art5"));
      for (const ControlName button : ControlNames{"Button_Validate", "Button_Next", "Button_AddNew"}) {
        hand.click(button);
        expectTold({"Select Article: Please select under which article this assignment is been submitted"});
      }
      hand.click("Opt_Art4");
      EXPECT_EQ(validate(hand).first, "Notice Receivable");
    });
  }
}

// --- Add New

TEST_F(FormFlows, a_new_notice_stands_at_the_end_and_the_old_one_is_shown_again) {
  for (const char* type : kPlanTypes) {
    SCOPED_TRACE(type);
    const NtcRec old = makeKind(type);
    openNew(old, [&](Operator& hand) {
      const std::string number = hand.text("Txt_Ntc_Number");
      EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
      hand.enter("Txt_KV19_Offset", "7");
      script.texts = {std::string("F-NEW-") + type};
      script.answers = {true, true};
      hand.click("Button_AddNew");
      EXPECT_EQ(hand.text("Txt_Ntc_Number"), number);
      EXPECT_EQ(hand.text("Txt_AdmRefID"), old.t_adm_ref_id);
      EXPECT_EQ(hand.text("Txt_KV19_Offset"), "");
      EXPECT_TRUE(hand.canUse("Button_Next_Ntc"));
      hand.click("Button_Next_Ntc");
      EXPECT_EQ(hand.text("Txt_AdmRefID"), std::string("F-NEW-") + type);
      EXPECT_EQ(hand.text("Txt_KV19_Offset"), "7");
      EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(run.IndexList.back()));
      EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
    });
    expectTold({kAdded}, {kAskAdd});
    EXPECT_EQ(std::exchange(script.prompts, {}).size(), 1U);
    EXPECT_EQ(stored(run.IndexList.back()).t_action, "ADD");
    script.answers.clear();
  }
}

TEST_F(FormFlows, an_identifier_of_20_characters_is_taken) {
  for (const char* type : kPlanTypes) {
    SCOPED_TRACE(type);
    const std::string twenty = std::string("12345678901234567-") + (type + 1);
    EXPECT_EQ(twenty.size(), 20U);
    openNew(type, [&](Operator& hand) {
      script.texts = {twenty};
      script.answers = {true};
      hand.click("Button_AddNew");
    });
    expectTold({kAdded}, {kAskAdd});
    EXPECT_EQ(stored(run.IndexList.back()).t_adm_ref_id, twenty);
  }
  EXPECT_EQ(run.NtcCount, 8);
}

TEST_F(FormFlows, an_identifier_of_21_characters_ends_at_the_duplicate) {
  for (const char* type : kPlanTypes) {
    SCOPED_TRACE(type);
    NtcRec ntc = makeKind(type);
    ntc.t_adm_ref_id = std::string("F-") + type;
    const std::int32_t key = openNew(ntc, [&](Operator& hand) {
      script.texts = {"123456789012345678901"};
      script.answers = {true};
      hand.click("Button_AddNew");
      EXPECT_TRUE(hand.window.isVisible());
    });
    expectTold({"New AdminRefID:  t_adm_ref_id : Maximum number of alphanumerical characters is 20",
                "Error: Duplicate notice as " + std::to_string(key) +
                    "\r\nPlease change the admRefID to save the notice"},
               {kAskAdd});
  }
  EXPECT_EQ(run.NtcCount, 4);
}

TEST_F(FormFlows, no_identifier_no_notice) {
  openNew("GT1", [](Operator& hand) { hand.click("Button_AddNew"); });
  expectTold({"New AdminRefID: Cannot save the notice as it will create a duplicate notice"});
  EXPECT_EQ(run.NtcCount, 1);
}

// --- Validation

TEST_F(FormFlows, validation_shows_its_result_and_saves_nothing) {
  for (const char* kind : {"GS1", "GT1", "GS2", "GT2", "GA1", "TB5", "TB3", "TB2"}) {
    SCOPED_TRACE(kind);
    openNew(kind, [this](Operator& hand) {
      Contents before = hand.contents();
      // Its blank hours become those of a whole day.
      if (hand.form.screen.code() == kTB2) before["Txt_10B_Ophhfr"] = "0000";
      if (hand.form.screen.code() == kTB2) before["Txt_10B_Ophhto"] = "2400";
      const auto told = validate(hand);
      EXPECT_EQ(told.first, "Notice Receivable");
      EXPECT_THAT(told.second, testing::StartsWith("The notice is receivable"));
      EXPECT_EQ(hand.contents(), before);
    });
  }
  expectTold({});
  EXPECT_FALSE(work.state.ntcListChanged);
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(FormFlows, validation_tells_what_is_wrong_with_what_stands_on_the_screen) {
  const std::int32_t key = openNew("GT1", [this](Operator& hand) {
    hand.enter("Txt_9E_AntHgt", "");
    const auto told = validate(hand);
    EXPECT_EQ(told.first, "Notice Error(s)");
    EXPECT_EQ(told.second, "FATAL ERROR : \n :  t_hgt_agl is a mandatory value (9E)\n");
  });
  expectTold({});
  EXPECT_EQ(stored(key).t_hgt_agl, "75");
}

TEST_F(FormFlows, validation_asks_the_map_at_level_2_and_an_update_does_not) {
  for (const char* type : {"GS1", "GT1"}) {
    SCOPED_TRACE(type);
    run.ValLevel = kCompleteWithoutGeo;
    openNew(type, [this](Operator& hand) {
      map.gzmpCountryAtPoint = makeOneCountryMap("D").gzmpCountryAtPoint;
      EXPECT_EQ(validate(hand).first, "Notice Error(s)");
      script.answers = {true, true};
      hand.click("Button_Next");
      ASSERT_EQ(script.questions.size(), 2U);
      EXPECT_EQ(script.questions[0].title, "Save Invalid Notice");
      EXPECT_EQ(script.questions[1].title, "Save Notice");
      script.questions.clear();
      expectTold({kUpdated});
      run.ValLevel = kCompleteWithGeo;
      script.answers = {true, true, true};
      hand.click("Button_Next");
      ASSERT_EQ(script.questions.size(), 3U);
      EXPECT_EQ(script.questions[2].title, "Update Notice with errors");
    });
    script.boxes.clear();
    script.questions.clear();
    map.gzmpCountryAtPoint = makeOneCountryMap("F").gzmpCountryAtPoint;
  }
}

// --- Delete

TEST_F(FormFlows, deleting_the_last_one_moves_backward_and_deleting_the_only_one_closes) {
  add("GT1", "A");
  add("GS2", "B");
  add("GT1", "C");
  const FormStep removeIt = [this](Operator& hand) {
    script.answers = {true};
    hand.click("Button_Finish");
  };
  steps = {[&](Operator& hand) {
             EXPECT_EQ(hand.text("Txt_AdmRefID"), "C");
             removeIt(hand);
             EXPECT_FALSE(hand.window.isVisible());
           },
           [&](Operator& hand) {
             EXPECT_EQ(hand.text("Txt_AdmRefID"), "B");
             EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
             EXPECT_TRUE(hand.canUse("Button_Prev_Ntc"));
             removeIt(hand);
           },
           [&](Operator& hand) {
             EXPECT_EQ(hand.text("Txt_AdmRefID"), "A");
             EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
             EXPECT_FALSE(hand.canUse("Button_Prev_Ntc"));
             removeIt(hand);
             EXPECT_FALSE(hand.window.isVisible());
           }};
  open(2);
  expectTold({}, {kAskDelete, kAskDelete, kAskDelete});
  EXPECT_THAT(shown, ElementsAre("GT1AssignFrmKV19", "GS2AllotFrmKV19", "GT1AssignFrmKV19"));
  EXPECT_THAT(run.IndexList, ElementsAre(888888888, 888888888, 888888888));
  EXPECT_EQ(mostWindows, 1);
  EXPECT_TRUE(work.state.ntcListChanged);
}

TEST_F(FormFlows, the_walk_passes_over_what_was_deleted) {
  add("GT1", "A");
  const std::int32_t gone = add("GT1", "B");
  add("GT1", "C");
  open(0, [this](Operator& hand) {
    hand.click("Button_Next_Ntc");
    EXPECT_EQ(hand.text("Txt_AdmRefID"), "B");
    script.answers = {true};
    hand.click("Button_Finish");
    EXPECT_EQ(hand.text("Txt_AdmRefID"), "C");
    hand.click("Button_Prev_Ntc");
    EXPECT_EQ(hand.text("Txt_AdmRefID"), "A");
    EXPECT_FALSE(hand.canUse("Button_Prev_Ntc"));
    hand.click("Button_Next_Ntc");
    EXPECT_EQ(hand.text("Txt_AdmRefID"), "C");
    EXPECT_FALSE(hand.canUse("Button_Next_Ntc"));
  });
  expectTold({}, {kAskDelete});
  EXPECT_FALSE(isStored(gone));
  EXPECT_EQ(shown.size(), 1U);
}

TEST_F(FormFlows, No_deletes_nothing) {
  const std::int32_t key = openNew("TB5", [](Operator& hand) {
    hand.click("Button_Finish");
    EXPECT_TRUE(hand.window.isVisible());
  });
  expectTold({}, {kAskDelete});
  EXPECT_TRUE(isStored(key));
  EXPECT_FALSE(work.state.ntcListChanged);
}

// --- the walk

struct Stop {
  const char* kind;  // empty: an entry that was deleted
  const char* form;
};
// clang-format off
constexpr Stop kMixed[] = {
    {"", ""}, {"GT1", "GT1AssignFrmKV19"}, {"", ""}, {"GS1", "GS1AssignFrmKV19"}, {"GT2", "GT2AllotFrmKV19"}, {"", ""}, {"", ""},
    {"GS2", "GS2AllotFrmKV19"}, {"TB5", "TB5FrmKV19"}, {"TB3", "TB3FrmKV19"}, {"", ""}, {"TB2", "TB2FrmKV19"}, {"", ""},
};
// clang-format on

class Walk : public RealForm {
 protected:
  void addDeleted() { appendKeyToList(run.IndexList, run.NtcCount, 888888888); }

  // One form of the walk: what it shows, and the button that leads on.
  FormStep stop(std::int32_t key, bool hasPrev, bool hasNext, ControlName button) {
    return [=, this](Operator& hand) {
      EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(key));
      EXPECT_EQ(hand.text("Txt_Filename"), run.DbFileName);
      EXPECT_EQ(run.SelKey, key);
      EXPECT_EQ(hand.canUse("Button_Prev_Ntc"), hasPrev);
      EXPECT_EQ(hand.canUse("Button_Next_Ntc"), hasNext);
      hand.type("Txt_notified_Rmks", "dropped");
      hand.click(button);
      EXPECT_FALSE(hand.window.isVisible());
    };
  }
};

TEST_F(Walk, goes_through_all_types_and_back_over_deleted_entries_one_window_at_a_time) {
  std::vector<std::int32_t> keys;
  std::vector<std::string> forms;
  for (const Stop& one : kMixed) {
    if (*one.kind == '\0') {
      addDeleted();
    } else {
      keys.push_back(add(one.kind));
      forms.emplace_back(one.form);
    }
  }
  const std::size_t last = keys.size() - 1;
  for (std::size_t i = 0; i < last; ++i) steps.push_back(stop(keys[i], i > 0, true, "Button_Next_Ntc"));
  for (std::size_t i = last; i > 0; --i) steps.push_back(stop(keys[i], true, i < last, "Button_Prev_Ntc"));
  steps.push_back(stop(keys[0], false, true, "Button_Reset"));
  open(1);
  std::vector<std::string> there = forms;
  there.insert(there.end(), forms.rbegin() + 1, forms.rend());
  EXPECT_EQ(shown, there);
  EXPECT_EQ(mostWindows, 1);
  EXPECT_EQ(run.IndexPos, 1);
  expectTold({});
  for (const std::int32_t key : keys) EXPECT_EQ(stored(key).t_remarks, "");
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(Walk, goes_through_contours_and_back_in_one_window) {
  run.qryIsNotice = false;
  addDeleted();
  std::vector<std::int32_t> keys;
  for (const char* id : {"11", "12", "13"}) {
    NtcRec ntc = makeGa1();
    ntc.digital.contour.t_contour_id = id;
    keys.push_back(add(ntc));
    if (keys.size() == 1) addDeleted();
  }
  addDeleted();
  open(1, [&](Operator& hand) {
    const auto expectContour = [&](const char* id, std::size_t place) {
      EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), id);
      EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(keys[place]));
      EXPECT_EQ(hand.items("ListBox_LMZ04_Coordinates").size(), 3U);
      EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
      EXPECT_EQ(hand.canUse("Button_Prev_Ntc"), place > 0);
      EXPECT_EQ(hand.canUse("Button_Next_Ntc"), place < 2);
    };
    expectContour("11", 0);
    hand.click("Button_Next_Ntc");
    expectContour("12", 1);
    hand.clickItem("ListBox_LMZ04_Coordinates", 0);
    hand.click("Button_Del_Coordinates");
    hand.click("Button_Next_Ntc");
    expectContour("13", 2);
    hand.press(Qt::Key_Left, Qt::AltModifier);
    waitForButtons(hand.window);
    expectContour("12", 1);
    hand.click("Button_Prev_Ntc");
    expectContour("11", 0);
  });
  EXPECT_THAT(shown, ElementsAre("GA1SubAllotFrmKV19"));
  expectTold({});
}

TEST_F(Walk, shows_nothing_of_the_notice_before) {
  NtcRec rich = makeGt1UnderArt5();
  rich.t_call_sign = "ABC";
  rich.digital.t_email_addr = "a@b.int";
  rich.t_remarks = "rich";
  rich.t_int_remarks = "inside";
  rich.t_offset = "100";
  add(rich);
  add("GT1", "F-PLAIN");
  Contents alone;
  open(1, [&](Operator& hand) { alone = hand.contents(); });
  open(0, [&](Operator& hand) {
    hand.click("OptInt_Mod");
    hand.click("Opt_TB5");
    hand.doubleClickItem("ListAdmAvail", "BEL");
    hand.click("Button_Next_Ntc");
    EXPECT_EQ(hand.contents(), alone);
    EXPECT_FALSE(hand.sees("txt_int_rmk"));
    EXPECT_FALSE(hand.sees("FrameTrg"));
    EXPECT_FALSE(hand.sees("Frame_ART5_Only"));
    EXPECT_EQ(hand.caption("OptInt_Add"), "ADD");
  });
  expectTold({});
}

TEST_F(Walk, an_older_type_opens_the_form_of_its_twin_and_stays_in_the_record) {
  const std::pair<const char*, const char*> twins[] = {{"GS1", "GS1AssignFrmKV19"},
                                                       {"GT1", "GT1AssignFrmKV19"},
                                                       {"GS2", "GS2AllotFrmKV19"},
                                                       {"GT2", "GT2AllotFrmKV19"}};
  for (const auto& [type, form] : twins) {
    NtcRec ntc = makeKind(type);
    ntc.t_notice_type = std::string("D") + (type + 1);
    const std::int32_t key = openNew(ntc, [](Operator& hand) { hand.click("Button_Reset"); });
    EXPECT_EQ(shown.back(), form);
    EXPECT_EQ(stored(key).t_notice_type, ntc.t_notice_type);
  }
  expectTold({});
}

TEST_F(Walk, a_type_without_a_form_opens_nothing_without_a_word) {
  NtcRec ntc = makeGs1();
  ntc.t_notice_type = "XX1";
  add(ntc);
  open(0);
  EXPECT_TRUE(shown.empty());
  expectTold({});
}

}  // namespace
}  // namespace zamo::test
