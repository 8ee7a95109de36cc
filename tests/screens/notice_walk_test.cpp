#include "screens/notice_walk.h"

#include <gtest/gtest.h>

#include <limits>

#include "database/delete_notice.h"
#include "platform/run_time_error.h"
#include "screens/notice_desk.h"

namespace zamo {
namespace {

FormCode codeOf(std::string_view type) {
  NtcRec ntc;
  ntc.t_notice_type = type;
  return getNtcFormCode(ntc);
}

TEST(NoticeForms, a_type_has_its_form) {
  EXPECT_EQ(codeOf("GS1"), 3);
  EXPECT_EQ(codeOf("DS1"), 3);
  EXPECT_EQ(codeOf("GT1"), 4);
  EXPECT_EQ(codeOf("DT1"), 4);
  EXPECT_EQ(codeOf("GS2"), 5);
  EXPECT_EQ(codeOf("DS2"), 5);
  EXPECT_EQ(codeOf("GT2"), 6);
  EXPECT_EQ(codeOf("DT2"), 6);
  EXPECT_EQ(codeOf("GA1"), 7);
  EXPECT_EQ(codeOf("DA1"), 7);
  EXPECT_EQ(codeOf("TB5"), 8);
  EXPECT_EQ(codeOf("TB3"), 9);
  EXPECT_EQ(codeOf("TB2"), 10);
}

TEST(NoticeForms, other_types_and_other_case_have_none) {
  for (const char* type : {"", "gt1", "GT3", "GT1 ", "TB1", "DB5"}) EXPECT_EQ(codeOf(type), 0) << type;
}

class Walk : public testing::Test {
 protected:
  void select(std::vector<std::int32_t> keys) {
    run.IndexList = std::move(keys);
    run.NtcCount = static_cast<std::int32_t>(run.IndexList.size());
  }
  RunState run;
};

TEST_F(Walk, the_key_at_a_place_moves_the_position) {
  select({11, 12, 13});
  EXPECT_EQ(getNtcKeyAt(run, 1, 1), 12);
  EXPECT_EQ(run.IndexPos, 1);
}

TEST_F(Walk, deleted_entries_are_passed_over_in_the_direction) {
  select({11, 888888888, 888888888, 14});
  EXPECT_EQ(getNtcKeyAt(run, 1, 1), 14);
  EXPECT_EQ(run.IndexPos, 3);
  EXPECT_EQ(getNtcKeyAt(run, 2, 0), 11);
  EXPECT_EQ(run.IndexPos, 0);
}

TEST_F(Walk, beyond_the_list_there_is_no_entry) {
  select({11, 888888888});
  run.IndexPos = 0;
  EXPECT_EQ(getNtcKeyAt(run, 2, 1), 999999999);
  EXPECT_EQ(getNtcKeyAt(run, 1, 1), 999999999);
  EXPECT_EQ(getNtcKeyAt(run, -1, 0), 999999999);
  EXPECT_EQ(run.IndexPos, 0);
  select({});
  EXPECT_EQ(getNtcKeyAt(run, 0, 1), 999999999);
}

TEST_F(Walk, a_deleted_entry_and_no_direction_give_0) {
  select({888888888, 12});
  EXPECT_EQ(getNtcKeyAt(run, 0, 2), 0);
  EXPECT_EQ(getNtcKeyAt(run, 1, 2), 12);
}

TEST_F(Walk, neighbours_are_those_that_are_not_deleted) {
  select({888888888, 12, 888888888, 888888888});
  EXPECT_TRUE(hasNtcFrom(run, 0));
  EXPECT_TRUE(hasNtcFrom(run, 1));
  EXPECT_FALSE(hasNtcFrom(run, 2));
  EXPECT_FALSE(hasNtcFrom(run, 4));
  EXPECT_FALSE(hasNtcFrom(run, -1));
  EXPECT_TRUE(hasNtcBefore(run, 3));
  EXPECT_TRUE(hasNtcBefore(run, 1));
  EXPECT_FALSE(hasNtcBefore(run, 0));
  EXPECT_FALSE(hasNtcBefore(run, -1));
  EXPECT_FALSE(hasNtcBefore(run, 4));
}

TEST_F(Walk, a_list_and_a_count_that_differ_end_at_the_lesser) {
  select({11, 12});
  run.NtcCount = 1;
  EXPECT_EQ(getNtcKeyAt(run, 1, 1), 999999999);
  EXPECT_FALSE(hasNtcFrom(run, 1));
  run.NtcCount = 5;
  EXPECT_EQ(getNtcKeyAt(run, 2, 1), 999999999);
  EXPECT_FALSE(hasNtcFrom(run, 2));
}

TEST_F(Walk, the_entry_that_is_marked_is_the_one_at_the_position) {
  select({11, 12});
  run.IndexPos = 1;
  markDeleted(run);
  EXPECT_EQ(run.IndexList, (std::vector<std::int32_t>{11, 888888888}));
  for (const std::int32_t beyond : {-1, 2}) {
    run.IndexPos = beyond;
    markDeleted(run);
  }
  EXPECT_EQ(run.IndexList, (std::vector<std::int32_t>{11, 888888888}));
}

TEST_F(Walk, a_million_deleted_entries_are_no_depth) {
  select(std::vector<std::int32_t>(1000000, 888888888));
  EXPECT_FALSE(hasNtcFrom(run, 0));
  EXPECT_FALSE(hasNtcBefore(run, 999999));
  EXPECT_EQ(getNtcKeyAt(run, 0, 1), 999999999);
}

class OpenNotice : public test::NoticeDesk {
 protected:
  OpenNotice() { run.qryIsNotice = true; }
};

TEST_F(OpenNotice, the_form_shows_key_file_and_values) {
  const std::int32_t key = add("GT1");
  open(0, [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.code(), kGT1Assign);
    EXPECT_EQ(form.screen.text("Txt_Ntc_Number"), std::to_string(key));
    EXPECT_EQ(form.screen.text("Txt_Filename"), run.DbFileName);
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "F-0001");
    EXPECT_FALSE(form.screen.at("Combo_B_Adm").enabled);
    EXPECT_EQ(form.screen.text("Combo_B_Adm"), "F");
    EXPECT_FALSE(form.screen.at("Button_Next_Ntc").enabled);
    EXPECT_FALSE(form.screen.at("Button_Prev_Ntc").enabled);
    EXPECT_FALSE(form.isNewNotice);
    EXPECT_FALSE(work.state.screenIsBlank);
  });
  expectBoxes({});
}

TEST_F(OpenNotice, each_form_has_its_title) {
  struct Title {
    const char* kind;
    const char* title;
  };
  const Title titles[] = {
      {"GS1",
       "GS1      Digital Sound Broadcasting (T-DAB) Assignment - Data Correction -  KV19 Zamo HDLK Digital "
       "Version 2.08 / 08.04.2009"},
      {"GT1",
       "GT1      Digital Television Broadcasting (DVB-T) Assignment - Data Correction -  KV19 Zamo HDLK "
       "Digital Version 2.08 / 08.04.2009"},
      {"GS2",
       "GS2 Digital Sound Broadcasting (T_DAB) Allotment - Data Correction -  KV19 Zamo HDLK Digital Version "
       "2.08 / 08.04.2009"},
      {"GT2",
       "GT2 Digital Television Broadcasting (DVB-T) Allotment - Data Correction -  KV19 Zamo HDLK Digital "
       "Version 2.08 / 08.04.2009"},
      {"TB5",
       "TB5 Suppression of an Assignment/Allotment or Withdrawal of a Notice under treatment - Data "
       "Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
      {"TB3",
       "TB3   Request Publication in Part B - Data Correction - KV19 Zamo HDLK Digital Version 2.08 / "
       "08.04.2009"},
      {"TB2",
       "TB2   Copy of Plan Assignment to Master Register (Art.11PZ) - Data Correction -  KV19 Zamo HDLK "
       "Digital Version 2.08 / 08.04.2009"},
  };
  std::int32_t idx = 0;
  for (const Title& row : titles) {
    add(row.kind);
    open(idx++, [&](NoticeForm& form) {
      EXPECT_EQ(form.screen.title(), row.title);
      EXPECT_FALSE(form.screen.at("Combo_B_Adm").enabled) << row.kind;
      EXPECT_TRUE(form.screen.isVisible("Txt_EmailAddr")) << row.kind;
      EXPECT_TRUE(form.screen.isVisible("Lbl_EmailAddr")) << row.kind;
    });
  }
}

TEST_F(OpenNotice, a_contour_opens_on_its_form_without_email) {
  run.qryIsNotice = false;
  add("GA1");
  open(0, [&](NoticeForm& form) {
    EXPECT_EQ(form.screen.title(),
              "GA1 Sub Allotment Area for Digital Broadcasting - Data Correction -  KV19 Zamo HDLK Digital "
              "Version 2.08 / 08.04.2009");
    EXPECT_FALSE(form.screen.isVisible("Txt_EmailAddr"));
    EXPECT_FALSE(form.screen.isVisible("Lbl_EmailAddr"));
    EXPECT_FALSE(form.screen.items("ListBox_LMZ04_Coordinates").empty());
  });
}

TEST_F(OpenNotice, an_older_type_opens_the_form_of_its_twin_and_stays) {
  NtcRec ntc = makeGs1();
  ntc.t_notice_type = "DS1";
  const std::int32_t key = add(ntc);
  open(0, [](NoticeForm& form) { EXPECT_EQ(form.screen.code(), kGS1Assign); });
  EXPECT_EQ(stored(key).t_notice_type, "DS1");
}

TEST_F(OpenNotice, a_type_without_a_form_opens_nothing_without_a_word) {
  NtcRec ntc = makeGs1();
  ntc.t_notice_type = "XX1";
  add(ntc);
  open(0);
  EXPECT_TRUE(shown.empty());
  expectBoxes({});
}

TEST_F(OpenNotice, the_walk_shows_the_neighbours_and_drops_edits) {
  const std::int32_t first = add("GT1", "A");
  const std::int32_t second = add("GT1", "B");
  open(0, [&](NoticeForm& form) {
    EXPECT_TRUE(form.screen.at("Button_Next_Ntc").enabled);
    EXPECT_FALSE(form.screen.at("Button_Prev_Ntc").enabled);
    type(form, "Txt_3A1_CallSign", "LOST");
    click(form, "Button_Next_Ntc");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "B");
    EXPECT_EQ(form.screen.text("Txt_3A1_CallSign"), "");
    EXPECT_EQ(form.screen.text("Txt_Ntc_Number"), std::to_string(second));
    EXPECT_EQ(run.SelKey, second);
    EXPECT_EQ(run.IndexPos, 1);
    EXPECT_FALSE(form.screen.at("Button_Next_Ntc").enabled);
    EXPECT_TRUE(form.screen.at("Button_Prev_Ntc").enabled);
    click(form, "Button_Prev_Ntc");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "A");
    EXPECT_EQ(form.screen.text("Txt_3A1_CallSign"), "");
    EXPECT_EQ(run.SelKey, first);
    EXPECT_EQ(run.IndexPos, 0);
  });
  EXPECT_EQ(shown.size(), 1U);
  expectBoxes({});
  expectQuestions({});
}

TEST_F(OpenNotice, the_walk_skips_a_deleted_entry_and_ends_behind_the_last_live_one) {
  add("GT1", "A");
  add("GT1", "B");
  add("GT1", "C");
  run.IndexList[1] = 888888888;
  open(0, [&](NoticeForm& form) {
    click(form, "Button_Next_Ntc");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "C");
    EXPECT_FALSE(form.screen.at("Button_Next_Ntc").enabled);
    click(form, "Button_Prev_Ntc");
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "A");
    EXPECT_FALSE(form.screen.at("Button_Prev_Ntc").enabled);
  });
}

TEST_F(OpenNotice, a_blank_screen_is_not_blank_with_the_next_notice) {
  add("GS1", "A");
  add("GS1", "B");
  open(0, [&](NoticeForm& form) {
    work.state.screenIsBlank = true;
    click(form, "Button_Next_Ntc");
    EXPECT_FALSE(work.state.screenIsBlank);
  });
}

TEST_F(OpenNotice, what_was_clicked_on_one_notice_is_forgotten_on_the_next) {
  run.qryIsNotice = false;
  add("GA1");
  NtcRec other = makeGa1();
  other.digital.contour.t_contour_id = "2";
  add(other);
  open(0, [&](NoticeForm& form) {
    form.screen.choose("ListBox_LMZ04_Coordinates", 1);
    click(form, "Button_Next_Ntc");
    click(form, "Button_Del_Coordinates");
    EXPECT_EQ(form.screen.items("ListBox_LMZ04_Coordinates").size(), 3U);
    EXPECT_EQ(form.screen.text("Txt_CountDownTP"), "0");
  });
}

TEST_F(OpenNotice, beyond_the_ends_of_the_selection_the_notice_stays) {
  const std::int32_t key = add("GT1");
  open(0, [&](NoticeForm& form) {
    for (const ControlName button : ControlNames{"Button_Next_Ntc", "Button_Prev_Ntc"}) {
      click(form, button);
      EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "F-0001") << button;
      EXPECT_FALSE(closed) << button;
    }
  });
  EXPECT_EQ(run.SelKey, key);
  EXPECT_EQ(run.IndexPos, 0);
}

TEST_F(OpenNotice, a_form_that_failed_leaves_nothing_for_the_next_opening) {
  add("GT1");
  add("TB5");
  steps.push_back([&](NoticeForm& form) {
    click(form, "Button_Next_Ntc");
    --shownNow;
    throw RunTimeError{kIndexOutOfRange, "Subscript out of range"};
  });
  EXPECT_THROW(open(0), RunTimeError);
  open(0);
  EXPECT_EQ(shown, (std::vector<FormCode>{kGT1Assign, kGT1Assign}));
}

TEST_F(OpenNotice, a_mixed_list_changes_the_form) {
  add("GT1");
  add("GS2");
  add("TB5");
  steps = {[&](NoticeForm& form) {
             click(form, "Button_Next_Ntc");
             EXPECT_TRUE(closed);
           },
           [&](NoticeForm& form) {
             EXPECT_EQ(run.IndexPos, 1);
             EXPECT_EQ(form.screen.text("Txt_Ntc_Number"), std::to_string(run.IndexList[1]));
             EXPECT_TRUE(form.screen.at("Button_Prev_Ntc").enabled);
             EXPECT_TRUE(form.screen.at("Button_Next_Ntc").enabled);
             click(form, "Button_Next_Ntc");
           },
           [&](NoticeForm& form) {
             EXPECT_FALSE(form.screen.at("Button_Next_Ntc").enabled);
             click(form, "Button_Prev_Ntc");
           }};
  open(0);
  EXPECT_EQ(shown, (std::vector<FormCode>{kGT1Assign, kGS2Allot, kTB5, kGS2Allot}));
  EXPECT_EQ(mostShown, 1);
}

TEST_F(OpenNotice, a_walk_over_ten_thousand_mixed_notices_nests_no_form) {
  constexpr std::int32_t count = 10000;
  const std::int32_t tb3 = add("TB3");
  const std::int32_t tb5 = add("TB5");
  for (std::int32_t i = 2; i < count; ++i)
    appendKeyToList(run.IndexList, run.NtcCount, i % 2 == 0 ? tb3 : tb5);
  const auto next = [](NoticeForm& form) { click(form, "Button_Next_Ntc"); };
  steps.assign(static_cast<std::size_t>(count - 1), next);
  open(0);
  EXPECT_EQ(shown.size(), static_cast<std::size_t>(count));
  EXPECT_EQ(shown.back(), kTB5);
  EXPECT_EQ(mostShown, 1);
  EXPECT_EQ(run.IndexPos, count - 1);
}

TEST_F(OpenNotice, a_neighbour_without_a_form_closes_the_screen) {
  add("GT1");
  NtcRec strange = makeGs1();
  strange.t_notice_type = "XX1";
  add(strange);
  open(0, [&](NoticeForm& form) {
    click(form, "Button_Next_Ntc");
    EXPECT_TRUE(closed);
  });
  EXPECT_EQ(shown.size(), 1U);
  expectBoxes({});
}

TEST_F(OpenNotice, a_notice_that_is_gone_from_the_database_closes_the_screen) {
  add("GT1", "A");
  const std::int32_t gone = add("GT1", "B");
  open(0, [&](NoticeForm& form) {
    deleteNtcFromDB(host, gone, *run.DbConn);
    click(form, "Button_Next_Ntc");
    EXPECT_TRUE(closed);
  });
  EXPECT_EQ(shown.size(), 1U);
}

TEST_F(OpenNotice, after_a_deletion_the_next_one_is_shown_then_the_one_before_then_none) {
  add("GT1", "A");
  add("GT1", "B");
  add("GT1", "C");
  open(1, [&](NoticeForm& form) {
    run.IndexList[1] = 888888888;
    showNeighbourAfterDelete(form);
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "C");
    run.IndexList[2] = 888888888;
    showNeighbourAfterDelete(form);
    EXPECT_EQ(form.screen.text("Txt_AdmRefID"), "A");
    EXPECT_FALSE(closed);
    run.IndexList[0] = 888888888;
    showNeighbourAfterDelete(form);
    EXPECT_TRUE(closed);
  });
}

TEST_F(OpenNotice, close_closes_without_a_question) {
  add("GT1");
  open(0, [&](NoticeForm& form) {
    type(form, "Txt_AdmRefID", "X");
    click(form, "Button_Reset");
    EXPECT_TRUE(closed);
  });
  expectBoxes({});
  expectQuestions({});
}

TEST_F(OpenNotice, forms_can_be_opened_one_after_the_other) {
  add("GT1");
  open(0, [](NoticeForm&) {});
  open(0, [](NoticeForm&) {});
  EXPECT_EQ(shown.size(), 2U);
}

}  // namespace
}  // namespace zamo
