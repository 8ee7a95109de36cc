#include "screens/save_flows.h"

#include <gtest/gtest.h>

#include "database/delete_notice.h"
#include "database/raw_database.h"
#include "screens/notice_desk.h"

namespace zamo {
namespace {

const std::string kAskUpdate =
    "Save Notice: Saving changes will update the Database. Do you want to proceed?";
const std::string kAskAdd = "Save Notice: ADD this NEW notice to the END of Database?";
const std::string kUpdated = "Save Notice: The notice was sucessfully updated in the Database";
const std::string kAdded = "Save Notice: The NEW notice was sucessfully saved to the Database";

class SaveFlows : public test::NoticeDesk {
 protected:
  SaveFlows() { run.qryIsNotice = true; }

  void expectUntouched() {
    expectBoxes({});
    expectQuestions({});
    EXPECT_TRUE(results.empty());
  }
  void forget() {
    script.boxes.clear();
    script.questions.clear();
    results.clear();
  }
  std::int64_t rowsOf(const std::string& table) {
    return std::stoll(test::RawDatabase(run.DbFileName).value("SELECT count(*) FROM " + table));
  }
};

// What stands before every flow but the deletion.

TEST_F(SaveFlows, an_assignment_without_an_article_is_refused_first) {
  add("GT1");
  open(0, [&](NoticeForm& form) {
    form.screen.unsetOption("Opt_Art4");
    for (const ControlName button : ControlNames{"Button_Validate", "Button_Next", "Button_AddNew"}) {
      click(form, button);
      expectBoxes({"Select Article: Please select under which article this assignment is been submitted"});
      script.boxes.clear();
      expectUntouched();
    }
  });
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, a_form_that_identifies_nothing_is_refused) {
  add("TB3");
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_TrgAdmRefID", "");
    for (const ControlName button : ControlNames{"Button_Validate", "Button_Next", "Button_AddNew"}) {
      click(form, button);
      expectBoxes({"Missing values: Not enough fields to validate"});
      script.boxes.clear();
      expectUntouched();
    }
  });
}

TEST_F(SaveFlows, a_blank_screen_is_refused_like_one_with_too_few_fields) {
  add("GS1");
  open(0, [&](NoticeForm& form) {
    work.state.screenIsBlank = true;
    for (const ControlName button : ControlNames{"Button_Validate", "Button_Next", "Button_AddNew"}) {
      click(form, button);
      expectBoxes({"Missing values: Not enough fields to validate"});
      script.boxes.clear();
      expectUntouched();
    }
  });
}

// Validation.

TEST_F(SaveFlows, a_good_notice_is_receivable_and_nothing_is_saved) {
  add("GT1");
  open(0, [&](NoticeForm& form) { click(form, "Button_Validate"); });
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].title, "Notice Receivable");
  EXPECT_EQ(results[0].text, "The notice is receivable\r\n");
  results.clear();
  expectUntouched();
  EXPECT_EQ(script.hourglasses, 0);
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, warnings_follow_the_good_news) {
  add("GT1");
  map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("   "); };
  map.gzmpNearestCountries = [](const GzmpPoint&, float, int, const std::string&, int) {
    GzmpNearest nearest;
    nearest.count = 1;
    nearest.distances[0] = 3;
    nearest.codes = "F  ";
    return nearest;
  };
  open(0, [&](NoticeForm& form) { click(form, "Button_Validate"); });
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].title, "Notice Receivable");
  EXPECT_EQ(results[0].text.rfind("The notice is receivable\r\nWARNING : \r\n", 0), 0U) << results[0].text;
}

TEST_F(SaveFlows, findings_come_alone) {
  add("GT1");
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_9E_AntHgt", "");
    click(form, "Button_Validate");
  });
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].title, "Notice Error(s)");
  EXPECT_EQ(results[0].text, "FATAL ERROR : \r\n :  t_hgt_agl is a mandatory value (9E)\r\n");
}

TEST_F(SaveFlows, validation_asks_the_map_at_every_level) {
  add("GT1");
  map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("SUI"); };
  for (const std::int16_t level : {kBasic, kCompleteWithoutGeo, kCompleteWithGeo}) {
    run.ValLevel = level;
    open(0, [&](NoticeForm& form) { click(form, "Button_Validate"); });
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].title, "Notice Error(s)") << level;
    results.clear();
  }
}

TEST_F(SaveFlows, agencies_are_asked_for_assignments_and_TB2) {
  agenciesKnown = false;
  const auto isAskedFor = [&](std::string_view kind) {
    const std::int32_t idx = run.NtcCount;
    add(kind);
    open(idx, [&](NoticeForm& form) {
      if (form.screen.has("Txt_12A_OpAgcy")) type(form, "Txt_12A_OpAgcy", "001");
      click(form, "Button_Validate");
    });
    const Box result = results.empty() ? Box() : results.back();
    results.clear();
    const bool isTold = result.text.find("t_op_agcy") != std::string::npos;
    EXPECT_EQ(result.title, isTold ? "Notice Error(s)" : "Notice Receivable") << kind;
    return isTold;
  };
  EXPECT_TRUE(isAskedFor("GT1/5"));
  EXPECT_TRUE(isAskedFor("GS1/5"));
  EXPECT_TRUE(isAskedFor("TB2"));
  EXPECT_FALSE(isAskedFor("GT2"));
  EXPECT_FALSE(isAskedFor("TB3"));
}

// Update.

TEST_F(SaveFlows, an_update_is_asked_for_stored_and_told) {
  const std::int32_t key = add("GT1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
    EXPECT_FALSE(closed);
  });
  expectQuestions({kAskUpdate});
  expectBoxes({kUpdated});
  const NtcRec after = stored(key);
  EXPECT_EQ(after.t_site_name, "NEVERS");
  EXPECT_EQ(after.d_updated, "2026-03-07");
  EXPECT_EQ(after.src_update, "tester");
  EXPECT_TRUE(work.state.ntcListChanged);
  EXPECT_EQ(rowsOf("fmtv_vorna"), 1);
}

TEST_F(SaveFlows, No_leaves_the_database_but_the_grid_is_read_again) {
  const std::int32_t key = add("GT1");
  script.answers = {false};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
  });
  expectQuestions({kAskUpdate});
  expectBoxes({});
  EXPECT_EQ(stored(key).t_site_name, "BOURGES");
  EXPECT_TRUE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, a_missing_site_name_ends_with_the_identifying_list) {
  const std::int32_t key = add("GS1");
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "");
    click(form, "Button_Next");
  });
  expectBoxes(
      {"Cannot save the notice: To save a notice at least the following Mandatory Identifying fields are "
       "necessary : \r\nName of the location of the transmitting station : t_sitename (4A)\r\n"});
  EXPECT_EQ(script.boxes[0].buttons, BoxButtons::cancelTryContinue);
  expectQuestions({});
  EXPECT_EQ(stored(key).t_site_name, "BOURGES");
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, a_notice_that_is_invalid_is_saved_when_the_user_wants_it) {
  const std::int32_t key = add("GS1");
  const std::string saveInvalid =
      "Save Invalid Notice: The following fields are either missing or invalid\r\n"
      "Height antenna : t_hgt_agl (9E)\r\n\r\nSave invalid Notice";
  script.answers = {false};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_9E_AntHgt", "");
    click(form, "Button_Next");
    expectQuestions({saveInvalid});
    expectBoxes({});
    EXPECT_FALSE(work.state.ntcListChanged);
    forget();
    script.answers = {true, true, true};
    click(form, "Button_Next");
  });
  expectQuestions({saveInvalid, kAskUpdate,
                   "Update Notice with errors: The notice contains error\r\nFATAL ERROR : \r\n :  t_hgt_agl "
                   "is a mandatory value (9E)\r\n\r\nContinue to update the notice?"});
  expectBoxes({kUpdated});
  EXPECT_EQ(stored(key).t_hgt_agl, "");
}

TEST_F(SaveFlows, No_at_the_errors_still_updates) {
  const std::int32_t key = add("GS1");
  script.answers = {true, true, false};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_9E_AntHgt", "");
    click(form, "Button_Next");
  });
  ASSERT_EQ(script.questions.size(), 3U);
  EXPECT_EQ(script.questions[2].title, "Update Notice with errors");
  expectBoxes({kUpdated});
  EXPECT_EQ(stored(key).t_hgt_agl, "");
}

TEST_F(SaveFlows, an_update_asks_the_map_at_level_3_alone) {
  add("GT1");
  map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("SUI"); };
  const auto updateAt = [&](std::int16_t level) {
    forget();
    run.ValLevel = level;
    script.answers = {true, true, true};
    open(0, [&](NoticeForm& form) { click(form, "Button_Next"); });
    return std::any_of(script.questions.begin(), script.questions.end(),
                       [](const Box& box) { return box.title == "Update Notice with errors"; });
  };
  EXPECT_FALSE(updateAt(1));
  EXPECT_FALSE(updateAt(2));
  EXPECT_TRUE(updateAt(3));
}

TEST_F(SaveFlows, without_a_map_notices_are_corrected_all_the_same) {
  const std::int32_t key = add("GT1");
  map = {};
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    click(form, "Button_Next");
  });
  expectBoxes({kUpdated});
  EXPECT_EQ(stored(key).t_site_name, "NEVERS");
}

TEST_F(SaveFlows, an_update_that_the_database_refuses_is_told_and_the_screen_stays) {
  const std::int32_t key = add("GT1");
  test::RawDatabase(run.DbFileName)
      .run("CREATE TRIGGER refusal BEFORE UPDATE ON fmtv_vorna BEGIN SELECT RAISE(ABORT, 'no room'); END");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
    EXPECT_FALSE(closed);
  });
  ASSERT_FALSE(script.boxes.empty());
  EXPECT_EQ(script.boxes.back().title + ": " + script.boxes.back().text,
            "Save Notice: Failed to update the notice in the Database");
  EXPECT_EQ(stored(key).t_site_name, "BOURGES");
}

// Another program that is in the middle of a change, for longer than one waits.
class ABusyDatabase : public SaveFlows {
 protected:
  void expectTold(const std::string& operation) {
    ASSERT_FALSE(script.boxes.empty());
    EXPECT_EQ(script.boxes[0].title + ": " + script.boxes[0].text,
              operation + ": Erreur 5:database is locked");
    EXPECT_FALSE(closed);
  }

  std::unique_ptr<test::RawDatabase> other;
  void begin() {
    other = std::make_unique<test::RawDatabase>(run.DbFileName);
    other->run("BEGIN IMMEDIATE");
  }
};

TEST_F(ABusyDatabase, leaves_an_update_on_the_form_until_it_is_free) {
  const std::int32_t key = add("GT1");
  script.answers = {true, true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    begin();
    const auto start = std::chrono::steady_clock::now();
    click(form, "Button_Next");
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1900));
    expectTold("updateNtcInDB");
    EXPECT_EQ(script.boxes.back().text, "Failed to update the notice in the Database");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
    EXPECT_EQ(stored(key).t_site_name, "BOURGES");
    other->run("COMMIT");
    click(form, "Button_Next");
    EXPECT_EQ(stored(key).t_site_name, "NEVERS");
  });
}

TEST_F(ABusyDatabase, keeps_a_notice_on_the_form_that_was_to_be_deleted) {
  const std::int32_t key = add("GT1");
  add("GS1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    begin();
    click(form, "Button_Finish");
    expectTold("deleteNtcFromDB");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
    other.reset();
  });
  EXPECT_EQ(run.IndexList[0], key);
  EXPECT_TRUE(isStored(key));
}

TEST_F(ABusyDatabase, keeps_a_TB_notice_on_the_form) {
  const std::int32_t key = add("TB5");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_TrgAdmRefID", "F-NEW");
    begin();
    click(form, "Button_Next");
    expectTold("writeNtcToDB");
    EXPECT_EQ(form.screen.text("Txt_TrgAdmRefID"), "F-NEW");
    other.reset();
  });
  EXPECT_EQ(run.NtcCount, 1);
  EXPECT_TRUE(isStored(key));
}

TEST_F(SaveFlows, a_recorded_notice_is_updated_as_a_modification) {
  NtcRec ntc = makeGt1();
  ntc.t_action = "RECORDED";
  const std::int32_t key = add(ntc);
  script.answers = {true, true, true};
  open(0, [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.at("OptInt_Add").caption, "RECORDED");
    EXPECT_TRUE(form.screen.isSet("OptInt_Add"));
    click(form, "Button_Next");
    EXPECT_TRUE(form.screen.isSet("OptInt_Mod"));
  });
  expectBoxes({kUpdated});
  EXPECT_EQ(stored(key).t_action, "MODIFY");
}

TEST_F(SaveFlows, a_field_that_was_emptied_stays_empty) {
  NtcRec ntc = makeGt1UnderArt5();
  ntc.t_call_sign = "ABC";
  const std::int32_t key = add(ntc);
  script.answers = {true, true, true};
  open(0, [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.text("Txt_3A1_CallSign"), "ABC");
    type(form, "Txt_3A1_CallSign", "");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_3A1_CallSign"), "");
  });
  EXPECT_EQ(stored(key).t_call_sign, "");
}

TEST_F(SaveFlows, after_an_update_the_screen_shows_what_was_stored) {
  add("GT1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4C_Deg_Long", "2");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_4C_Deg_Long"), "002");
  });
  expectBoxes({kUpdated});
}

TEST_F(SaveFlows, a_TB_notice_is_replaced_and_gets_a_new_key) {
  const std::int32_t old = add("TB5");
  const std::int32_t other = add("TB5");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_TrgAdmRefID", "F-NEW");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_Ntc_Number"), std::to_string(other));
    EXPECT_NE(form.screen.text("Txt_TrgAdmRefID"), "F-NEW");
    EXPECT_TRUE(form.screen.at("Button_Next_Ntc").enabled);
  });
  expectQuestions({kAskUpdate});
  expectBoxes({kUpdated});
  EXPECT_FALSE(isStored(old));
  ASSERT_EQ(run.NtcCount, 3);
  EXPECT_EQ(run.IndexList[0], 888888888);
  EXPECT_EQ(run.IndexList[1], other);
  EXPECT_EQ(stored(run.IndexList[2]).t_trg_adm_ref_id, "F-NEW");
  EXPECT_EQ(run.SelKey, other);
}

TEST_F(SaveFlows, a_TB_notice_that_cannot_be_replaced_is_not_lost) {
  const std::int32_t key = add("TB5");
  test::RawDatabase(run.DbFileName)
      .run("CREATE TRIGGER refusal BEFORE INSERT ON fmtv_vorna BEGIN SELECT RAISE(ABORT, 'no room'); END");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_TrgAdmRefID", "F-NEW");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_TrgAdmRefID"), "F-NEW");
  });
  ASSERT_FALSE(script.boxes.empty());
  EXPECT_EQ(script.boxes.back().text, "Failed to update the notice in the Database");
  EXPECT_TRUE(isStored(key));
  EXPECT_EQ(run.IndexList, std::vector<std::int32_t>{key});
}

TEST_F(SaveFlows, the_only_TB_notice_of_a_selection_is_shown_again_under_its_new_key) {
  const std::int32_t old = add("TB5");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_TrgAdmRefID", "F-NEW");
    click(form, "Button_Next");
    EXPECT_EQ(form.screen.text("Txt_TrgAdmRefID"), "F-NEW");
    EXPECT_NE(form.screen.text("Txt_Ntc_Number"), std::to_string(old));
    EXPECT_FALSE(form.screen.at("Button_Prev_Ntc").enabled);
    EXPECT_FALSE(closed);
  });
  EXPECT_EQ(run.IndexPos, 1);
  expectBoxes({kUpdated});
}

TEST_F(SaveFlows, a_TB_form_and_a_contour_have_no_question_about_invalid_notices) {
  add("TB3");
  open(0, [&](NoticeForm& form) {
    form.screen.choose("Combo_B_Adm", 0);
    click(form, "Button_Next");
  });
  expectBoxes(
      {"Cannot save the notice: To save a notice the following Mandatory fields are necessary : \r\n"
       "Notifying Administration : t_adm (B)\r\n"});
  expectQuestions({});
}

// Add New.

TEST_F(SaveFlows, a_new_notice_stands_at_the_end_and_the_old_one_is_shown) {
  const std::int32_t key = add("GT1", "F-1");
  script.texts = {"F-2"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    type(form, "Txt_3A1_CallSign", "ABC");
    click(form, "Button_AddNew");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "F-1");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "BOURGES");
    EXPECT_EQ(form.screen.text("Txt_3A1_CallSign"), "");
    EXPECT_TRUE(form.screen.at("Button_Next_Ntc").enabled);
    click(form, "Button_Next_Ntc");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "F-2");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
  });
  ASSERT_EQ(script.prompts.size(), 1U);
  EXPECT_EQ(script.prompts[0].title, "New AdminRefID");
  EXPECT_EQ(script.prompts[0].text, "Please enter a new AdminRef_ID, maximum 20 characters long");
  expectQuestions({kAskAdd});
  expectBoxes({kAdded});
  ASSERT_EQ(run.NtcCount, 2);
  EXPECT_EQ(run.IndexList[0], key);
  EXPECT_EQ(stored(run.IndexList[1]).t_action, "ADD");
  EXPECT_TRUE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, no_identifier_no_notice) {
  add("GT1");
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({"New AdminRefID: Cannot save the notice as it will create a duplicate notice"});
  expectQuestions({});
  EXPECT_EQ(rowsOf("fmtv_vorna"), 1);
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, twenty_characters_are_taken) {
  add("GT1");
  script.texts = {"12345678901234567890"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({kAdded});
  EXPECT_EQ(stored(run.IndexList[1]).t_adm_ref_id, "12345678901234567890");
}

TEST_F(SaveFlows, twenty_one_characters_end_at_the_duplicate_test) {
  const std::int32_t key = add("GT1");
  script.texts = {"123456789012345678901"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({"New AdminRefID:  t_adm_ref_id : Maximum number of alphanumerical characters is 20",
               "Error: Duplicate notice as " + std::to_string(key) +
                   "\r\nPlease change the admRefID to save the notice"});
  expectQuestions({kAskAdd});
  EXPECT_EQ(rowsOf("fmtv_vorna"), 1);
}

TEST_F(SaveFlows, No_adds_nothing) {
  add("GT1");
  script.texts = {"F-2"};
  script.answers = {false};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectQuestions({kAskAdd});
  expectBoxes({});
  EXPECT_EQ(rowsOf("fmtv_vorna"), 1);
  EXPECT_TRUE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, a_new_notice_that_fails_its_checks_is_refused) {
  add("GT1");
  script.texts = {"F-2"};
  script.answers = {true};
  map.gzmpFindCrossings = {};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_KV19_Offset", "900");
    click(form, "Button_AddNew");
  });
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Error");
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::exclamation);
  EXPECT_EQ(script.boxes[0].text.rfind("Notice in valid. Cannot be saved\r\nFATAL ERROR : \r\n", 0), 0U);
  EXPECT_EQ(rowsOf("fmtv_vorna"), 1);
}

TEST_F(SaveFlows, who_agreed_to_an_invalid_notice_gets_it_stored) {
  add("GT1");
  script.texts = {"F-2"};
  script.answers = {true, true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_9E_AntHgt", "");
    click(form, "Button_AddNew");
  });
  ASSERT_EQ(script.questions.size(), 2U);
  EXPECT_EQ(script.questions[0].title, "Save Invalid Notice");
  expectBoxes({kAdded});
  EXPECT_EQ(stored(run.IndexList.back()).t_hgt_agl, "");
}

TEST_F(SaveFlows, adding_asks_no_agencies) {
  add("GT1/5");
  agenciesKnown = false;
  script.texts = {"F-2"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({kAdded});
}

TEST_F(SaveFlows, a_new_notice_that_the_database_refuses_is_told) {
  add("GT1");
  test::RawDatabase(run.DbFileName)
      .run("CREATE TRIGGER refusal BEFORE INSERT ON fmtv_vorna BEGIN SELECT RAISE(ABORT, 'no room'); END");
  script.texts = {"F-2"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_4A_SiteName", "NEVERS");
    click(form, "Button_AddNew");
    EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "NEVERS");
    EXPECT_FALSE(closed);
  });
  ASSERT_FALSE(script.boxes.empty());
  EXPECT_EQ(script.boxes.back().title + ": " + script.boxes.back().text,
            "Save Notice: Failed to save the NEW notice to the Database");
  EXPECT_EQ(run.NtcCount, 1);
}

TEST_F(SaveFlows, the_prompt_for_an_identifier_is_the_forms_own) {
  struct Prompt {
    const char* kind;
    const char* title;
    const char* text;
  };
  const Prompt prompts[] = {
      {"GS1", "New AdminRefID", "Please enter a new AdminRef_ID, maximum 20 characters long"},
      {"GT2", "New AdminRefID", "Please enter a new AdminRef_ID, maximum 20 characters long"},
      {"GS2", "New AdminRefID", "Please enter a new AdminRef_ID, maximum 20 characters long"},
      {"TB2", "New Plan AdminRefID", "Please enter a new Plan AdminRef_ID, maximum 20 characters long"},
      {"TB3", "New Target AdminRefID", "Please enter a new Target AdminRef_ID, maximum 20 characters long"},
      {"TB5", "New Target AdminRefID", "Please enter a new Target AdminRef_ID, maximum 20 characters long"},
  };
  for (const Prompt& row : prompts) {
    const std::int32_t idx = run.NtcCount;
    add(row.kind);
    forget();
    script.prompts.clear();
    script.answers = {true};
    open(idx, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
    ASSERT_EQ(script.prompts.size(), 1U) << row.kind;
    EXPECT_EQ(script.prompts[0].title, row.title);
    EXPECT_EQ(script.prompts[0].text, row.text);
    expectBoxes({std::string(row.title) + ": Cannot save the notice as it will create a duplicate notice"});
  }
}

TEST_F(SaveFlows, a_new_TB_notice_keeps_its_own_action) {
  struct Action {
    const char* kind;
    const char* action;
    std::string NtcRec::*identifier;
  };
  const Action actions[] = {{"TB2", "CONFORM", &NtcRec::t_plan_adm_ref_id},
                            {"TB3", "PARTB", &NtcRec::t_trg_adm_ref_id},
                            {"TB5", "SUPPRESS", &NtcRec::t_trg_adm_ref_id}};
  for (const Action& row : actions) {
    forget();
    const std::int32_t idx = run.NtcCount;
    NtcRec ntc = makeNotice(row.kind);
    ntc.t_action = row.action;
    add(ntc);
    script.texts = {"F-NEW"};
    script.answers = {true};
    open(idx, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
    expectBoxes({kAdded});
    const NtcRec added = stored(run.IndexList.back());
    EXPECT_EQ(added.t_action, row.action);
    EXPECT_EQ(added.*row.identifier, "F-NEW");
  }
}

TEST_F(SaveFlows, a_TB_notice_from_another_one_asks_no_identifier_and_closes) {
  add("TB5");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    work.state.ntcFromOtherNotice = true;
    type(form, "Txt_TrgAdmRefID", "F-7");
    click(form, "Button_AddNew");
    EXPECT_TRUE(closed);
  });
  EXPECT_TRUE(script.prompts.empty());
  expectBoxes({kAdded});
  EXPECT_EQ(stored(run.IndexList[1]).t_trg_adm_ref_id, "F-7");
}

TEST_F(SaveFlows, a_TB_notice_from_another_one_that_the_database_refuses_stays_on_the_screen) {
  add("TB5");
  test::RawDatabase(run.DbFileName)
      .run("CREATE TRIGGER refusal BEFORE INSERT ON fmtv_vorna BEGIN SELECT RAISE(ABORT, 'no room'); END");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    work.state.ntcFromOtherNotice = true;
    type(form, "Txt_TrgAdmRefID", "F-7");
    click(form, "Button_AddNew");
    EXPECT_EQ(form.screen.text("Txt_TrgAdmRefID"), "F-7");
    EXPECT_FALSE(closed);
  });
}

// Contours.

class SaveContour : public SaveFlows {
 protected:
  SaveContour() { run.qryIsNotice = false; }
  std::string value(const std::string& sql) { return test::RawDatabase(run.DbFileName).value(sql); }
};

TEST_F(SaveContour, a_contour_is_updated) {
  add("GA1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_notified_Rmks", "seen");
    click(form, "Button_Next");
  });
  expectQuestions({kAskUpdate});
  expectBoxes({kUpdated});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "1");
  EXPECT_EQ(value("SELECT d_updated FROM lmz_contour"), "2026-03-07");
}

TEST_F(SaveContour, a_new_contour_stands_at_the_end) {
  add("GA1");
  script.texts = {"77"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    click(form, "Button_AddNew");
    EXPECT_TRUE(form.screen.at("Button_Next_Ntc").enabled);
    click(form, "Button_Next_Ntc");
    EXPECT_EQ(form.screen.text("Txt_LMZ04_contour_id"), "77");
  });
  ASSERT_EQ(script.prompts.size(), 1U);
  EXPECT_EQ(script.prompts[0].title, "New ContourID");
  EXPECT_EQ(script.prompts[0].text, "Please enter a new ContourID,");
  expectQuestions({"Save Notice: ADD this NEW sub area to the END of Database?"});
  expectBoxes({kAdded});
  EXPECT_EQ(run.IndexList, (std::vector<std::int32_t>{1, 2}));
}

TEST_F(SaveContour, a_new_contour_is_an_addition_whatever_the_old_one_asks) {
  NtcRec ntc = makeGa1();
  ntc.t_action = "SUPPRESS";
  add(ntc);
  script.texts = {"77"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    EXPECT_TRUE(form.screen.isSet("OptInt_Suppress"));
    click(form, "Button_AddNew");
    EXPECT_TRUE(form.screen.isSet("OptInt_Suppress"));
  });
  expectBoxes({kAdded});
  EXPECT_EQ(value("SELECT intent FROM lmz_contour WHERE contour_id = 77"), "ADD");
}

TEST_F(SaveContour, the_length_of_a_contour_id_is_not_limited) {
  add("GA1");
  script.texts = {"000000000000000000077"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({kAdded});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour WHERE contour_id = 77"), "1");
}

TEST_F(SaveContour, a_contour_id_beyond_all_numbers_is_told_and_not_stored) {
  add("GA1");
  script.texts = {"1e300"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  ASSERT_FALSE(script.boxes.empty());
  EXPECT_EQ(script.boxes.back().text, "Failed to save the NEW notice to the Database");
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "1");
}

TEST_F(SaveContour, a_contour_that_stands_twice_is_told_once_as_a_duplicate) {
  add("GA1");
  add("GA1");
  script.texts = {"1"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({"Error: Duplicate Contour ID 1\r\nPlease change the Contour ID to save the notice"});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "2");
}

TEST_F(SaveContour, a_contour_that_stands_twice_with_too_few_points_is_told_and_not_stored) {
  add("GA1");
  add("GA1");
  test::RawDatabase(run.DbFileName).run("DELETE FROM lmz_contour_pt WHERE test_pt = 1");
  NtcRec other = makeGa1();
  other.digital.contour.t_contour_id = "88";
  add(other);
  script.texts = {"1"};
  script.answers = {true};
  open(2, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({": Problem : Contour ID is not unique !! Please consult the adminstrator",
               "Error: Duplicate Contour ID 1\r\nPlease change the Contour ID to save the notice"});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "3");
}

TEST_F(SaveContour, a_contour_that_became_a_placeholder_meanwhile_is_updated_with_its_points) {
  const std::int32_t key = add("GA1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    deleteContourFromDB(host, key, *run.DbConn);
    EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "0");
    click(form, "Button_Next");
  });
  expectBoxes({kUpdated});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "3");
}

TEST_F(SaveContour, ninety_nine_points_are_read_and_stored_again) {
  NtcRec ntc = makeGa1();
  ContourRec& contour = ntc.digital.contour;
  contour.t_nb_test_pts = "99";
  contour.points.clear();
  for (int i = 0; i < 99; ++i)
    contour.points.push_back({true, "+00200" + std::to_string(100 + i).substr(1), "+470000"});
  contour.points.emplace_back();
  add(ntc);
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.items("ListBox_LMZ04_Coordinates").size(), 99U);
    EXPECT_EQ(form.screen.text("Txt_CountDownTP"), "0");
    click(form, "Button_Next");
  });
  EXPECT_EQ(script.boxes.back().text, "The notice was sucessfully updated in the Database");
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "99");
}

TEST_F(SaveContour, a_contour_that_is_notified_already_is_never_overwritten) {
  add("GA1");
  const std::string id = value("SELECT contour_id FROM lmz_contour");
  script.texts = {id};
  script.answers = {true, true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({"Error: Duplicate Contour ID " + id + "\r\nPlease change the Contour ID to save the notice"});
  expectQuestions({"Save Notice: ADD this NEW sub area to the END of Database?"});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "1");
}

TEST_F(SaveContour, a_notified_contour_whose_points_are_short_is_not_overwritten_either) {
  add("GA1");
  test::RawDatabase(run.DbFileName).run("DELETE FROM lmz_contour_pt WHERE test_pt = 1");
  const std::string id = value("SELECT contour_id FROM lmz_contour");
  NtcRec other = makeGa1();
  other.digital.contour.t_contour_id = "88";
  add(other);
  script.texts = {id};
  script.answers = {true, true};
  open(1, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({"Error: Duplicate Contour ID " + id + "\r\nPlease change the Contour ID to save the notice"});
  EXPECT_EQ(script.questions.size(), 1U);
}

TEST_F(SaveContour, a_contour_that_an_allotment_names_is_filled) {
  add("GA1");
  test::RawDatabase(run.DbFileName)
      .run("INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm) VALUES (50, 77, 'F', 'F')");
  script.texts = {"77"};
  script.answers = {true};
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  expectBoxes({kAdded});
  EXPECT_EQ(run.IndexList, (std::vector<std::int32_t>{1, 50}));
  EXPECT_EQ(value("SELECT nb_test_pts FROM lmz_contour WHERE contourkey = 50"), "3.0");
}

TEST_F(SaveContour, an_invalid_contour_is_not_added_though_it_could_be_saved) {
  add("GA1");
  script.texts = {"77"};
  script.answers = {true};
  map.gzmpFindCrossings = [](const std::vector<GzmpPoint>&) {
    GzmpCrossings crossings;
    crossings.segments = {{1, 3}};
    crossings.places = {{47, 2}};
    return crossings;
  };
  open(0, [&](NoticeForm& form) { click(form, "Button_AddNew"); });
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Error");
  EXPECT_EQ(script.boxes[0].text.rfind("Notice in valid. Cannot be saved\r\n", 0), 0U);
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "1");
}

// Delete.

TEST_F(SaveFlows, a_deletion_is_asked_for_and_shows_the_neighbour) {
  const std::int32_t key = add("GT1", "A");
  add("GT1", "B");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    click(form, "Button_Finish");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "B");
    EXPECT_FALSE(form.screen.at("Button_Prev_Ntc").enabled);
  });
  expectQuestions({"Delete Notice: Do you want to delete the notice from the Database?"});
  expectBoxes({});
  EXPECT_FALSE(isStored(key));
  EXPECT_EQ(run.IndexList[0], 888888888);
  EXPECT_EQ(run.NtcCount, 2);
  EXPECT_TRUE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, a_deletion_off_the_selection_closes_the_screen) {
  const std::int32_t key = add("GT1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    run.IndexList.clear();
    run.NtcCount = 0;
    click(form, "Button_Finish");
    EXPECT_TRUE(closed);
  });
  EXPECT_FALSE(isStored(key));
  EXPECT_TRUE(run.IndexList.empty());
  expectBoxes({});
}

TEST_F(SaveFlows, No_deletes_nothing) {
  const std::int32_t key = add("GT1");
  open(0, [&](NoticeForm& form) {
    click(form, "Button_Finish");
    EXPECT_FALSE(closed);
  });
  EXPECT_TRUE(isStored(key));
  EXPECT_EQ(run.IndexList[0], key);
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(SaveFlows, the_last_deletion_goes_backward_and_then_closes) {
  add("GT1", "A");
  add("TB5");
  script.answers = {true, true};
  steps = {[&](NoticeForm& form) {
             click(form, "Button_Finish");
             EXPECT_TRUE(closed);
           },
           [&](NoticeForm& form) {
             EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "A");
             click(form, "Button_Finish");
             EXPECT_TRUE(closed);
           }};
  open(1);
  EXPECT_EQ(shown, (std::vector<FormCode>{kTB5, kGT1Assign}));
  EXPECT_EQ(rowsOf("fmtv_vorna"), 0);
}

TEST_F(SaveContour, a_contour_is_deleted_from_its_form) {
  add("GA1");
  script.answers = {true};
  open(0, [&](NoticeForm& form) {
    click(form, "Button_Finish");
    EXPECT_TRUE(closed);
  });
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "0");
}

}  // namespace
}  // namespace zamo
