// The intent, the article, remarks and targets on their way to the screen and back.
#include "screens/screen_mapping.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "database/notice_store.h"
#include "screens/mapped_notice.h"
#include "screens/visibility.h"

namespace zamo {
namespace {

using test::BareScreen;
using test::Contents;
using test::contentsOf;
using test::RuledScreen;
using test::Texts;

const Texts kAssignmentsAndAllotments = {"GS1", "GT1", "GS2", "GT2"};
const Texts kAssignments = {"GS1", "GT1"};
const Texts kAllotments = {"GS2", "GT2"};
const Texts kTbs = {"TB2", "TB3", "TB5"};

NtcRec withAction(const std::string& action) {
  NtcRec ntc;
  ntc.t_action = action;
  return ntc;
}

NtcRec withFragment(const std::string& fragment) {
  NtcRec ntc;
  ntc.t_fragment = fragment;
  return ntc;
}

// --- stamps and constants

TEST(ScreenMapping, every_reader_tells_the_type_the_day_and_the_user) {
  struct Expected {
    const char* type;
    const char* stationClass;
    const char* action;
    const char* fragment;
    const char* plan;
  };
  // clang-format off
  const Expected all[] = {
      {"GS1", "BC", "",        "",        ""},
      {"GT1", "BT", "",        "",        ""},
      {"GS2", "BC", "",        "KV19D",   ""},
      {"GT2", "BT", "",        "KV19D",   ""},
      {"GA1", "",   "",        "",        ""},
      {"TB5", "",   "",        "NTFD_PZ", ""},
      {"TB3", "",   "PARTB",   "",        "KV19D"},
      {"TB2", "",   "CONFORM", "",        "KV19D"},
  };
  // clang-format on
  for (const Expected& one : all) {
    BareScreen bare(one.type);
    bare.script.logonName = "longlogonname";
    NtcRec expected;
    expected.t_notice_type = one.type;
    expected.stn_cls = one.stationClass;
    expected.t_action = one.action;
    expected.t_fragment = one.fragment;
    expected.t_plan = one.plan;
    expected.d_updated = "2026-03-07";
    expected.src_update = "longlogo";
    if (std::string(one.type) == "GA1") {
      expected.digital.contour.d_updated = "2026-03-07";
      expected.digital.contour.points = std::vector<PointRec>(1);
    }
    expected.digital.allot.present = expected.t_notice_type.ends_with("2") && expected.stn_cls != "";
    EXPECT_TRUE(bare.read() == expected) << one.type;
  }
}

TEST(ScreenMapping, a_notice_of_the_older_letter_is_read_as_its_twin) {
  BareScreen bare("GS1");
  NtcRec ntc = makeGs1();
  ntc.t_notice_type = "DS1";
  bare.fill(ntc);
  EXPECT_EQ(bare.read().t_notice_type, "GS1");
}

// --- filling

TEST(ScreenMapping, rules_know_that_a_notice_is_being_filled_in) {
  for (const std::string_view type : kNoticeTypes) {
    BareScreen bare(type);
    int events = 0;
    bare.screen.raised = [&](Event, std::string_view) {
      EXPECT_TRUE(bare.screen.filling) << type;
      ++events;
    };
    bare.fill(makeNotice(type));
    EXPECT_GT(events, 0) << type;
    EXPECT_FALSE(bare.screen.filling) << type;
  }
}

TEST(ScreenMapping, the_filling_ends_when_a_rule_throws) {
  for (const std::string_view type : {"GT1", "GA1"}) {
    BareScreen bare(type);
    bare.screen.raised = [](Event, std::string_view) { throw std::runtime_error("no"); };
    EXPECT_THROW(bare.fill(makeNotice(type)), std::runtime_error);
    EXPECT_FALSE(bare.screen.filling);
  }
}

TEST(ScreenMapping, filling_is_not_the_hand_of_the_user) {
  BareScreen bare("GT1");
  bare.screen.raised = [&](Event, std::string_view) { EXPECT_FALSE(bare.screen.byUser); };
  bare.fill(makeGt1());
  EXPECT_FALSE(bare.screen.byUser);
}

TEST(ScreenMapping, a_filled_form_settles_by_its_rules) {
  BareScreen allotment("GT2");
  allotment.screen.setEnabled("FrameSubArea", false);
  NtcRec ntc = makeGt2();
  ntc.digital.allot.t_nb_sub_areas = "1";
  allotment.fill(ntc);
  EXPECT_TRUE(allotment.screen.at("FrameSubArea").enabled);
  BareScreen contour("GA1");
  contour.screen.setEnabled("Button_View", false);
  contour.fill(makeGa1());
  EXPECT_TRUE(contour.screen.at("Button_View").enabled);
}

// --- internal remarks

const Texts kWithInternalRemarks = {"GS1", "GT1", "GS2", "GT2", "TB2", "TB3", "TB5"};

TEST(ScreenMapping, internal_remarks_are_shown_when_there_are_some) {
  for (const std::string& type : kWithInternalRemarks) {
    BareScreen bare(type);
    bare.screen.setVisible({"txt_int_rmk", "Lbl_int_rmk"}, false);
    NtcRec ntc;
    ntc.t_int_remarks = "seen";
    bare.fill(ntc);
    EXPECT_TRUE(bare.screen.isVisible("txt_int_rmk")) << type;
    EXPECT_TRUE(bare.screen.isVisible("Lbl_int_rmk")) << type;
    EXPECT_EQ(bare.screen.text("txt_int_rmk"), "seen") << type;
    EXPECT_EQ(bare.read().t_int_remarks, "seen") << type;
    bare.fill(NtcRec());
    EXPECT_FALSE(bare.screen.isVisible("txt_int_rmk")) << type;
    EXPECT_FALSE(bare.screen.isVisible("Lbl_int_rmk")) << type;
    EXPECT_EQ(bare.screen.text("txt_int_rmk"), "") << type;
    EXPECT_EQ(bare.read().t_int_remarks, "") << type;
  }
}

TEST(ScreenMapping, internal_remarks_are_read_only_where_the_box_and_its_label_show) {
  for (const std::string& type : kWithInternalRemarks) {
    for (const ControlName hidden : ControlNames{"txt_int_rmk", "Lbl_int_rmk"}) {
      BareScreen bare(type);
      bare.screen.setText("txt_int_rmk", "seen");
      bare.screen.setVisible(hidden, false);
      EXPECT_EQ(bare.read().t_int_remarks, "") << type << " " << hidden;
      bare.screen.setVisible(hidden, true);
      EXPECT_EQ(bare.read().t_int_remarks, "seen") << type << " " << hidden;
    }
  }
}

// --- intent

TEST(ScreenMapping, the_intent_sets_its_option_and_the_caption_of_the_first) {
  struct Expected {
    const char* stored;
    const char* option;
    const char* caption;
    const char* read;
  };
  // clang-format off
  const Expected all[] = {
      {"ADD",      "OptInt_Add", "ADD",      "ADD"},
      {"add",      "OptInt_Add", "ADD",      "ADD"},
      {"MODIFY",   "OptInt_Mod", "ADD",      "MODIFY"},
      {"Modify",   "OptInt_Mod", "ADD",      "MODIFY"},
      {"RECORDED", "OptInt_Add", "RECORDED", "ADD"},
      {"SUPPRESS", "OptInt_Add", "RECORDED", "ADD"},
      {"x",        "OptInt_Add", "RECORDED", "ADD"},
  };
  // clang-format on
  for (const std::string& type : kAssignmentsAndAllotments) {
    for (const Expected& one : all) {
      BareScreen bare(type);
      bare.fill(withAction(one.stored));
      EXPECT_EQ(contentsOf(bare.screen), (Contents{{one.option, "set"}})) << type << " " << one.stored;
      EXPECT_EQ(bare.screen.at("OptInt_Add").caption, one.caption) << type << " " << one.stored;
      EXPECT_EQ(bare.screen.at("OptInt_Mod").caption, "Mod") << type << " " << one.stored;
      EXPECT_EQ(bare.read().t_action, one.read) << type << " " << one.stored;
    }
  }
}

TEST(ScreenMapping, without_an_intent_the_options_stay) {
  for (const std::string& type : kAssignmentsAndAllotments) {
    BareScreen bare(type);
    bare.fill(withAction("RECORDED"));
    bare.screen.setOption("OptInt_Mod");
    bare.fill(NtcRec());
    EXPECT_EQ(contentsOf(bare.screen), (Contents{{"OptInt_Mod", "set"}})) << type;
    EXPECT_EQ(bare.screen.at("OptInt_Add").caption, "RECORDED") << type;
  }
}

TEST(ScreenMapping, a_caption_of_a_recorded_entry_goes_with_the_next_intent) {
  BareScreen bare("GT2");
  bare.fill(withAction("RECORDED"));
  bare.fill(withAction("MODIFY"));
  EXPECT_EQ(bare.screen.at("OptInt_Add").caption, "ADD");
  EXPECT_FALSE(bare.screen.isSet("OptInt_Add"));
}

TEST(ScreenMapping, an_addition_wins_where_both_intents_are_set) {
  BareScreen bare("GT1");
  for (const ControlName option : ControlNames{"OptInt_Add", "OptInt_Mod"}) {
    Control control = bare.screen.at(option);
    control.isSet = true;
    bare.screen.add(control);
  }
  EXPECT_EQ(bare.read().t_action, "ADD");
}

// --- article

TEST(ScreenMapping, the_fragment_sets_the_article_and_the_notices_that_may_follow) {
  struct Expected {
    const char* stored;
    const char* option;
    bool followers;
    const char* read;
    const char* prov;
  };
  // clang-format off
  const Expected all[] = {
      {"KV19D",   "Opt_Art4", true,  "KV19D",   ""},
      {"kv19d",   "Opt_Art4", true,  "KV19D",   ""},
      {"NTFD_PZ", "Opt_Art5", false, "NTFD_PZ", "PZ11.2"},
  };
  // clang-format on
  for (const std::string& type : kAssignments) {
    for (const Expected& one : all) {
      BareScreen bare(type);
      bare.screen.setVisible({"Opt_TB2", "Opt_TB3"}, !one.followers);
      bare.fill(withFragment(one.stored));
      EXPECT_EQ(contentsOf(bare.screen), (Contents{{one.option, "set"}})) << type << " " << one.stored;
      EXPECT_EQ(bare.screen.isVisible("Opt_TB2"), one.followers) << type << " " << one.stored;
      EXPECT_EQ(bare.screen.isVisible("Opt_TB3"), one.followers) << type << " " << one.stored;
      EXPECT_EQ(bare.read().t_fragment, one.read) << type << " " << one.stored;
      EXPECT_EQ(bare.read().t_prov, one.prov) << type << " " << one.stored;
    }
  }
}

TEST(ScreenMapping, another_fragment_leaves_the_article) {
  for (const char* fragment : {"", "OTHER"}) {
    BareScreen bare("GS1");
    bare.screen.setOption("Opt_Art5");
    bare.fill(withFragment(fragment));
    EXPECT_EQ(contentsOf(bare.screen), (Contents{{"Opt_Art5", "set"}}));
  }
}

TEST(ScreenMapping, allotments_are_always_in_the_plan) {
  for (const std::string& type : kAllotments) {
    BareScreen bare(type);
    bare.fill(withFragment("NTFD_PZ"));
    EXPECT_EQ(contentsOf(bare.screen), Contents()) << type;
    EXPECT_EQ(bare.read().t_fragment, "KV19D") << type;
    EXPECT_EQ(bare.read().t_prov, "") << type;
  }
}

// --- target of an assignment

const std::vector<ControlName> kTargetPlace = {"Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_long_MM",
                                               "Txt_trg_long_SS",    "Txt_trg_long_EW", "Txt_trg_lat_DD",
                                               "Txt_trg_lat_MM",     "Txt_trg_lat_SS",  "Txt_trg_lat_NS"};

NtcRec putTargetPlace(NtcRec ntc) {
  ntc.t_trg_freq_assgn = "474";
  ntc.trg_long_deg = "002";
  ntc.trg_long_ew = "E";
  ntc.trg_long_min = "24";
  ntc.trg_long_sec = "10";
  ntc.trg_lat_deg = "47";
  ntc.trg_lat_ns = "N";
  ntc.trg_lat_min = "05";
  ntc.trg_lat_sec = "30";
  return ntc;
}

NtcRec makeModification() {
  NtcRec ntc = makeGt1UnderArt5();
  ntc.t_action = "MODIFY";
  return ntc;
}

void expectTarget(const Screen& screen, bool idShown, bool placeShown, bool orShown) {
  EXPECT_EQ(screen.isVisible("Txt_TrgAdmRefID"), idShown);
  for (const ControlName box : kTargetPlace) EXPECT_EQ(screen.isVisible(box), placeShown) << box;
  EXPECT_EQ(screen.isVisible("Lbl_trg_or"), orShown);
}

TEST(ScreenMapping, a_target_by_identifier_shows_that_alone) {
  NtcRec ntc = makeModification();
  ntc.t_trg_adm_ref_id = "F-9";
  BareScreen bare("GT1");
  bare.fill(ntc);
  expectTarget(bare.screen, true, false, false);
  RuledScreen ruled(kGT1Assign);
  ruled.fill(ntc);
  expectTarget(ruled.screen, true, false, false);
  EXPECT_TRUE(ruled.screen.isVisible("Lbl_TrgAdmRefID"));
}

TEST(ScreenMapping, a_target_by_frequency_and_place_shows_those_alone) {
  const NtcRec ntc = putTargetPlace(makeModification());
  BareScreen bare("GT1");
  bare.fill(ntc);
  expectTarget(bare.screen, false, true, false);
  RuledScreen ruled(kGT1Assign);
  ruled.fill(ntc);
  expectTarget(ruled.screen, false, true, false);
  EXPECT_FALSE(ruled.screen.isVisible("Lbl_TrgAdmRefID"));
}

TEST(ScreenMapping, a_target_that_is_told_twice_shows_all_of_it) {
  NtcRec ntc = putTargetPlace(makeModification());
  ntc.t_trg_adm_ref_id = "F-9";
  RuledScreen ruled(kGT1Assign);
  ruled.fill(ntc);
  expectTarget(ruled.screen, true, true, true);
  EXPECT_TRUE(ruled.screen.isVisible("Lbl_TrgAdmRefID"));
}

TEST(ScreenMapping, the_empty_parts_of_a_target_are_hidden_one_by_one) {
  NtcRec ntc = putTargetPlace(makeModification());
  ntc.trg_lat_sec.clear();
  RuledScreen ruled(kGT1Assign);
  ruled.fill(ntc);
  for (const ControlName box : kTargetPlace) {
    EXPECT_EQ(ruled.screen.isVisible(box), box != "Txt_trg_lat_SS") << box;
  }
  EXPECT_FALSE(ruled.screen.isVisible("Lbl_trg_or"));
}

TEST(ScreenMapping, the_identifier_shows_again_after_a_target_by_place) {
  RuledScreen ruled(kGS1Assign);
  NtcRec ntc = putTargetPlace(makeModification());
  ruled.fill(ntc);
  clearScreen(ruled.screen);
  ntc = makeModification();
  ntc.t_trg_adm_ref_id = "F-9";
  ruled.fill(ntc);
  expectTarget(ruled.screen, true, false, false);
  EXPECT_TRUE(ruled.screen.isVisible("Lbl_TrgAdmRefID"));
}

// The rule of Art. 4 names the notice itself where no target is stored.
TEST(ScreenMapping, what_a_rule_puts_in_for_a_missing_target_is_seen) {
  RuledScreen ruled(kGT1Assign);
  NtcRec ntc = makeGt1();
  ntc.t_action = "MODIFY";
  ruled.fill(ntc);
  EXPECT_EQ(ruled.screen.text("Txt_TrgAdmRefID"), "F-0001");
  expectTarget(ruled.screen, true, false, false);
}

TEST(ScreenMapping, the_rules_leave_a_stored_target_as_it_is) {
  for (const FormCode code : {kGS1Assign, kGT1Assign}) {
    for (const bool byPlace : {false, true}) {
      for (const bool art5 : {false, true}) {
        NtcRec ntc = code == kGS1Assign ? makeGs1() : makeGt1();
        if (art5) ntc = code == kGS1Assign ? makeGs1UnderArt5() : makeGt1UnderArt5();
        if (byPlace && !art5) continue;
        ntc.t_action = "MODIFY";
        if (byPlace) ntc = putTargetPlace(ntc);
        if (!byPlace) ntc.t_trg_adm_ref_id = "F-9";
        RuledScreen ruled(code);
        clearScreen(ruled.screen);
        ruled.fill(ntc);
        const NtcRec back = ruled.read();
        EXPECT_EQ(back.t_trg_adm_ref_id, ntc.t_trg_adm_ref_id);
        EXPECT_EQ(back.t_trg_freq_assgn, ntc.t_trg_freq_assgn);
        EXPECT_EQ(back.trg_long_deg + back.trg_long_ew, ntc.trg_long_deg + ntc.trg_long_ew);
        EXPECT_EQ(back.trg_lat_sec + back.trg_lat_ns, ntc.trg_lat_sec + ntc.trg_lat_ns);
      }
    }
  }
}

// --- TB notices

TEST(ScreenMapping, a_suppression_or_a_withdrawal_and_its_article) {
  struct Expected {
    const char* action;
    const char* fragment;
    Contents shown;
    const char* readAction;
    const char* readFragment;
  };
  const Expected all[] = {
      {"WITHDRAW", "KV19D", {{"OptInt_WDraw", "set"}, {"Opt_Art4", "set"}}, "WITHDRAW", "KV19D"},
      {"withdraw", "kv19d", {{"OptInt_WDraw", "set"}, {"Opt_Art4", "set"}}, "WITHDRAW", "KV19D"},
      {"SUPPRESS", "NTFD_PZ", {{"OptInt_Supp", "set"}, {"Opt_Art5", "set"}}, "SUPPRESS", "NTFD_PZ"},
      {"suppress", "", {{"OptInt_Supp", "set"}}, "SUPPRESS", "NTFD_PZ"},
      {"ADD", "", {{"OptInt_Supp", "set"}}, "SUPPRESS", "NTFD_PZ"},
      {"", "", {}, "", "NTFD_PZ"},
  };
  for (const Expected& one : all) {
    BareScreen bare("TB5");
    NtcRec ntc;
    ntc.t_action = one.action;
    ntc.t_fragment = one.fragment;
    bare.fill(ntc);
    EXPECT_EQ(contentsOf(bare.screen), one.shown) << one.action;
    EXPECT_EQ(bare.read().t_action, one.readAction) << one.action;
    EXPECT_EQ(bare.read().t_fragment, one.readFragment) << one.action;
    EXPECT_EQ(bare.read().t_prov, "");
  }
}

TEST(ScreenMapping, only_a_publication_has_administrations_among_the_tb_notices) {
  for (const std::string& type : kTbs) {
    BareScreen bare(type);
    EXPECT_EQ(bare.screen.has("ListAdmSel"), type == "TB3");
  }
}

const std::vector<ControlName> kTb2Place = {"Txt_TrgFreq",     "Txt_4C_Deg_Long", "Txt_4C_Min_Long",
                                            "Txt_4C_Sec_Long", "Txt_4C_EW",       "Txt_4C_Deg_Lat",
                                            "Txt_4C_Min_Lat",  "Txt_4C_Sec_Lat",  "Txt_4C_NS"};
const std::vector<ControlName> kTb2Reference = {"Txt_TrgAdmRefID", "Lbl_trg_YBKO", "LblOr"};

TEST(ScreenMapping, each_part_of_a_tb2_target_shows_itself_with_its_label_and_hides_the_reference) {
  struct Part {
    std::string NtcRec::*field;
    ControlName box;
    ControlName label;
  };
  // clang-format off
  const Part parts[] = {
      {&NtcRec::t_trg_freq_assgn, "Txt_TrgFreq",     "lbl_freqAssgn"},
      {&NtcRec::trg_long_deg,     "Txt_4C_Deg_Long", "Lbl_4C_Long"},
      {&NtcRec::trg_long_min,     "Txt_4C_Min_Long", "Lbl_4C_Long"},
      {&NtcRec::trg_long_sec,     "Txt_4C_Sec_Long", "Lbl_4C_Long"},
      {&NtcRec::trg_long_ew,      "Txt_4C_EW",       "Lbl_4C_Long"},
      {&NtcRec::trg_lat_deg,      "Txt_4C_Deg_Lat",  "Lbl_4C_Lat"},
      {&NtcRec::trg_lat_min,      "Txt_4C_Min_Lat",  "Lbl_4C_Lat"},
      {&NtcRec::trg_lat_sec,      "Txt_4C_Sec_Lat",  "Lbl_4C_Lat"},
      {&NtcRec::trg_lat_ns,       "Txt_4C_NS",       "Lbl_4C_Lat"},
  };
  // clang-format on
  for (const Part& part : parts) {
    BareScreen bare("TB2");
    for (const ControlName box : kTb2Place) bare.screen.setVisible(box, false);
    for (const ControlName label :
         ControlNames{"lbl_freqAssgn", "Lbl_FreqUnit", "Lbl_4C_Long", "Lbl_4C_Lat"}) {
      bare.screen.setVisible(label, false);
    }
    NtcRec ntc;
    ntc.*part.field = "12";
    bare.fill(ntc);
    for (const ControlName box : kTb2Place) EXPECT_EQ(bare.screen.isVisible(box), box == part.box) << box;
    for (const ControlName label : ControlNames{"lbl_freqAssgn", "Lbl_4C_Long", "Lbl_4C_Lat"}) {
      EXPECT_EQ(bare.screen.isVisible(label), label == part.label) << part.box << " " << label;
    }
    EXPECT_EQ(bare.screen.isVisible("Lbl_FreqUnit"), part.box == "Txt_TrgFreq");
    for (const ControlName control : kTb2Reference) EXPECT_FALSE(bare.screen.isVisible(control)) << control;
  }
}

TEST(ScreenMapping, a_tb2_target_by_reference_hides_nothing) {
  BareScreen bare("TB2");
  bare.fill(makeTb2());
  for (const ControlName control : kTb2Reference) EXPECT_TRUE(bare.screen.isVisible(control)) << control;
  for (const ControlName box : kTb2Place) EXPECT_TRUE(bare.screen.isVisible(box)) << box;
}

}  // namespace
}  // namespace zamo
