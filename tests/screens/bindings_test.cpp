// Each field has its control and back, on every form that has it.
#include "screens/bindings.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "database/notice_store.h"
#include "screens/mapped_notice.h"

namespace zamo {
namespace {

using test::addedTo;
using test::BareScreen;
using test::Contents;
using test::contentsOf;
using test::formOf;
using test::setDate;
using test::wordsOf;

enum Flag { noFlag, digitalFlag, hoursFlag, contourFlag };

// A field with a value of it, what its control shows of it, and what is read back.
struct Case {
  const char* types;
  const char* control;  // of a date the beginning of its boxes' names
  TextMember field;
  const char* stored;
  const char* shown;
  const char* read;
  Flag needs = noFlag;  // without which nothing is shown
  Flag marks = noFlag;  // that a value on the screen sets
};

template <auto Member>
constexpr TextMember own = textAt<Member>;
template <auto Member>
constexpr TextMember inHours = textAt<&NtcRec::op_hours, Member>;
template <auto Member>
constexpr TextMember inDigital = textAt<&NtcRec::digital, Member>;
template <auto Member>
constexpr TextMember inAllot = textAt<&NtcRec::digital, &DigitalRec::allot, Member>;
template <auto Member>
constexpr TextMember inContour = textAt<&NtcRec::digital, &DigitalRec::contour, Member>;

constexpr const char* kAssignmentsAndAllotments = "GS1 GT1 GS2 GT2";
constexpr const char* kAssignments = "GS1 GT1";
constexpr const char* kAllotments = "GS2 GT2";

// clang-format off
const std::vector<Case> kCases = {
    // assignments and allotments
    {kAssignmentsAndAllotments, "Combo_B_Adm",                own<&NtcRec::t_adm>,                               " F ",        "F",         "F"},
    {kAssignmentsAndAllotments, "Combo_4B_Ctry",              own<&NtcRec::t_ctry>,                              " SUI",       "SUI",       "SUI"},
    {kAssignmentsAndAllotments, "Txt_Exp_",                   own<&NtcRec::t_d_expiry>,                          "2019-08-05", "5.8.2019",  "2019-8-5"},
    {kAssignmentsAndAllotments, "Txt_AdmRefID",               own<&NtcRec::t_adm_ref_id>,                        " f-1 ",      " f-1 ",     " f-1 "},
    {kAssignmentsAndAllotments, "Combo_9D_Polariz",           own<&NtcRec::t_polar>,                             "V",          "V",         "V"},
    {kAllotments,               "Combo_9D_Polariz",           own<&NtcRec::t_polar>,                             "U",          "U",         "U"},
    {kAssignmentsAndAllotments, "Txt_KV19_Offset",            own<&NtcRec::t_offset>,                            "-166.70",    "-166.70",   "-166.70"},
    {kAssignmentsAndAllotments, "Txt_notified_Rmks",          own<&NtcRec::t_remarks>,                           "a; b",       "a; b",      "a; b"},
    {kAssignmentsAndAllotments, "Txt_EmailAddr",              inDigital<&DigitalRec::t_email_addr>,              "a@b.int",    "a@b.int",   "a@b.int",   digitalFlag, digitalFlag},
    {"GS1 GS2",                 "Combo_LMZ04_RefPlan",        inDigital<&DigitalRec::t_ref_plan_cfg>,            "RPC5",       "RPC5",      "RPC5",      digitalFlag, digitalFlag},
    {"GT1 GT2",                 "Combo_LMZ04_RefPlan",        inDigital<&DigitalRec::t_ref_plan_cfg>,            "RPC3",       "RPC3",      "RPC3",      digitalFlag, digitalFlag},
    {kAssignmentsAndAllotments, "Txt_LMZ04_SfnID",            inDigital<&DigitalRec::t_sfn_id>,                  "SFN 1",      "SFN 1",     "SFN 1",     digitalFlag, digitalFlag},
    {"GS1 GS2",                 "Combo_LMZ04_SpectMask",      inDigital<&DigitalRec::t_spect_mask>,              "2",          "2",         "2",         digitalFlag, digitalFlag},
    {"GT1 GT2",                 "Combo_LMZ04_SpectMask",      inDigital<&DigitalRec::t_spect_mask>,              "S",          "S",         "S",         digitalFlag, digitalFlag},
    {kAssignmentsAndAllotments, "Combo_KV19_PubReq",          own<&NtcRec::t_is_pub_req>,                        "FALSE",      "FALSE",     "FALSE",     digitalFlag, digitalFlag},
    {kAssignmentsAndAllotments, "Combo_KV19_Plan",            own<&NtcRec::t_plan_entry>,                        "4",          "4",         "4",         digitalFlag, digitalFlag},

    // assignments
    {kAssignments,              "Txt_4A_SiteName",            own<&NtcRec::t_site_name>,                         "Gen\350ve",  "Gen\350ve", "Gen\350ve"},
    {kAssignments,              "Txt_4C_Deg_Long",            own<&NtcRec::long_deg>,                            "5",          "005",       "005"},
    {kAssignments,              "Txt_4C_EW",                  own<&NtcRec::long_ew>,                             "W",          "W",         "W"},
    {kAssignments,              "Txt_4C_Min_Long",            own<&NtcRec::long_min>,                            "7",          "07",        "07"},
    {kAssignments,              "Txt_4C_Sec_Long",            own<&NtcRec::long_sec>,                            "9",          "09",        "09"},
    {kAssignments,              "Txt_4C_Deg_Lat",             own<&NtcRec::lat_deg>,                             "4",          "04",        "04"},
    {kAssignments,              "Txt_4C_NS",                  own<&NtcRec::lat_ns>,                              "S",          "S",         "S"},
    {kAssignments,              "Txt_4C_Min_Lat",             own<&NtcRec::lat_min>,                             "6",          "06",        "06"},
    {kAssignments,              "Txt_4C_Sec_Lat",             own<&NtcRec::lat_sec>,                             "8",          "08",        "08"},
    {kAssignments,              "Txt_9E_AntHgt",              own<&NtcRec::t_hgt_agl>,                           "75.5",       "75.5",      "75.5"},
    {kAssignments,              "Txt_9EB_Eff_hgtmax",         own<&NtcRec::t_eff_hgtmax>,                        "-300",       "-300",      "-300"},
    {kAssignments,              "Txt_8BH_Erp_H",              own<&NtcRec::t_erp_h_dbw>,                         "43.1",       "43.1",      "43.1"},
    {kAssignments,              "Txt_8BV_Erp_V",              own<&NtcRec::t_erp_v_dbw>,                         "-4",         "-4",        "-4"},
    {kAssignments,              "Combo_9_AntDir",             own<&NtcRec::t_ant_dir>,                           "ND",         "ND",        "ND"},
    {kAssignments,              "Txt_9EA_SiteAlt",            own<&NtcRec::t_site_alt>,                          "150",        "150",       "150"},
    {kAssignments,              "Combo_KV19_assgnCde",        own<&NtcRec::t_assgn_code>,                        "L",          "L",         "L"},
    {kAssignments,              "Txt_LMZ04_AdmAllotID",       inDigital<&DigitalRec::t_associated_adm_allot_id>, "F-ALLOT",    "F-ALLOT",   "F-ALLOT",   digitalFlag, digitalFlag},
    {kAssignments,              "Txt_KV19_assoc_allot_sfnID", inDigital<&DigitalRec::t_associated_allot_sfn_id>, "F-SFN",      "F-SFN",     "F-SFN",     digitalFlag, digitalFlag},
    {kAssignments,              "Txt_InUse_",                 own<&NtcRec::t_d_inuse>,                           "2009-05-03", "3.5.2009",  "2009-5-3"},
    {kAssignments,              "Txt_3A1_CallSign",           own<&NtcRec::t_call_sign>,                         "CALL",       "CALL",      "CALL"},
    {kAssignments,              "Txt_12A_OpAgcy",             own<&NtcRec::t_op_agcy>,                           "12",         "12",        "12"},
    {kAssignments,              "Txt_12B_AddrCde",            own<&NtcRec::t_addr_code>,                         "A",          "A",         "A"},
    {kAssignments,              "Txt_10B_Ophhfr",             inHours<&OpHoursRec::t_op_hh_fr>,                  "0600",       "0600",      "0600",      hoursFlag,   hoursFlag},
    {kAssignments,              "Txt_10B_Ophhto",             inHours<&OpHoursRec::t_op_hh_to>,                  "1800",       "1800",      "1800",      hoursFlag,   hoursFlag},
    {kAssignments,              "Txt_PlanAdm_RefID",          own<&NtcRec::t_plan_adm_ref_id>,                   "F-PLAN",     "F-PLAN",    "F-PLAN"},
    {kAssignments,              "Combo_KV19_IsResub",         own<&NtcRec::t_is_resub>,                          "FALSE",      "FALSE",     "FALSE"},
    {kAssignments,              "Combo_KV19_Rmk_Cond",        own<&NtcRec::t_remark_conds_met>,                  "TRUE",       "TRUE",      "TRUE"},
    {"GS1",                     "Combo_KV19_FreqAssgn",       own<&NtcRec::t_freq_assgn>,                        "176.64",     "176.64",    "176.64"},
    {"GT1",                     "Txt_KV19_freqAssgn",         own<&NtcRec::t_freq_assgn>,                        "474.5",      "474.5",     "474.5"},
    {"GT1",                     "Combo_LMZ04_Sys_Var",        own<&NtcRec::t_sys_var>,                           "C2",         "C2",        "C2"},
    {"GT1",                     "Combo_LMZ04_RxMode",         inDigital<&DigitalRec::t_rx_mode>,                 "PO",         "PO",        "PO",        digitalFlag, digitalFlag},
    {"GT1",                     "Txt_KV19_erpBeam_tilt",      own<&NtcRec::t_erp_beam_tilt_dbw>,                 "41",         "41",        "41"},
    {"GT1",                     "Txt_KV19_TiltAngle",         own<&NtcRec::t_beam_tilt_angle>,                   "-1.5",       "-1.5",      "-1.5"},

    // allotments
    {"GS2",                     "Combo_KV19_FreqAssgn",       own<&NtcRec::t_freq_assgn>,                        "229.072",    "229.072",   "229.072"},
    {"GT2",                     "Txt_KV19_freqAssgn",         own<&NtcRec::t_freq_assgn>,                        "474",        "474",       "474"},
    {"GT2",                     "Combo_LMZ04_TypRefNetwk",    inAllot<&AllotRec::t_typ_ref_netwk>,               "RN4",        "RN4",       "RN4",       digitalFlag, digitalFlag},
    {kAllotments,               "Txt_LMZ04_allot_name",       inAllot<&AllotRec::t_allot_name>,                  "CENTRE",     "CENTRE",    "CENTRE"},
    {kAllotments,               "Combo_LMZ04_geo_area",       inAllot<&AllotRec::t_geo_area>,                    "F",          "F",         "F"},
    {kAllotments,               "Txt_LMZ04_nb_sub_areas",     inAllot<&AllotRec::t_nb_sub_areas>,                "3",          "3",         "3"},

    // contours
    {"GA1",                     "Txt_notified_Rmks",          own<&NtcRec::t_remarks>,                           "one",        "one",       "one"},
    {"GA1",                     "Combo_B_Adm",                own<&NtcRec::t_adm>,                               "F  ",        "F",         "F"},
    {"GA1",                     "Combo_4B_Ctry",              own<&NtcRec::t_ctry>,                              " F",         "F",         "F"},
    {"GA1",                     "Txt_EmailAddr",              inDigital<&DigitalRec::t_email_addr>,              "a@b.int",    "a@b.int",   "a@b.int",   digitalFlag, digitalFlag},
    {"GA1",                     "Txt_LMZ04_contour_id",       inContour<&ContourRec::t_contour_id>,              "007",        "007",       "007",       contourFlag, contourFlag},

    // TB notices
    {"TB2 TB3 TB5",             "Combo_B_Adm",                own<&NtcRec::t_adm>,                               " F",         "F",         "F"},
    {"TB2 TB3 TB5",             "Txt_EmailAddr",              inDigital<&DigitalRec::t_email_addr>,              "a@b.int",    "a@b.int",   "a@b.int",   noFlag,      digitalFlag},
    {"TB2 TB3 TB5",             "Txt_notified_Rmks",          own<&NtcRec::t_remarks>,                           "one",        "one",       "one"},
    {"TB2 TB3 TB5",             "Txt_TrgAdmRefID",            own<&NtcRec::t_trg_adm_ref_id>,                    "F-1",        "F-1",       "F-1"},
    {"TB2",                     "Txt_PlanAdmRefID",           own<&NtcRec::t_plan_adm_ref_id>,                   "F-PLAN",     "F-PLAN",    "F-PLAN"},
    {"TB2",                     "Txt_InUse_",                 own<&NtcRec::t_d_inuse>,                           "2010-12-31", "31.12.2010", "2010-12-31"},
    {"TB2",                     "Txt_12A_OpAgcy",             own<&NtcRec::t_op_agcy>,                           "001",        "001",       "001"},
    {"TB2",                     "Txt_12B_AddrCde",            own<&NtcRec::t_addr_code>,                         "b",          "b",         "b"},
    {"TB2",                     "Txt_10B_Ophhfr",             inHours<&OpHoursRec::t_op_hh_fr>,                  "0001",       "0001",      "0001",      hoursFlag,   hoursFlag},
    {"TB2",                     "Txt_10B_Ophhto",             inHours<&OpHoursRec::t_op_hh_to>,                  "2359",       "2359",      "2359",      hoursFlag,   hoursFlag},
    {"TB2",                     "Txt_TrgFreq",                own<&NtcRec::t_trg_freq_assgn>,                    "474",        "474",       "474"},
    {"TB2",                     "Txt_4C_Deg_Long",            own<&NtcRec::trg_long_deg>,                        "5",          "005",       "005"},
    {"TB2",                     "Txt_4C_Min_Long",            own<&NtcRec::trg_long_min>,                        "7",          "07",        "07"},
    {"TB2",                     "Txt_4C_Sec_Long",            own<&NtcRec::trg_long_sec>,                        "9",          "09",        "09"},
    {"TB2",                     "Txt_4C_EW",                  own<&NtcRec::trg_long_ew>,                         "E",          "E",         "E"},
    {"TB2",                     "Txt_4C_Deg_Lat",             own<&NtcRec::trg_lat_deg>,                         "4",          "04",        "04"},
    {"TB2",                     "Txt_4C_Min_Lat",             own<&NtcRec::trg_lat_min>,                         "6",          "06",        "06"},
    {"TB2",                     "Txt_4C_Sec_Lat",             own<&NtcRec::trg_lat_sec>,                         "8",          "08",        "08"},
    {"TB2",                     "Txt_4C_NS",                  own<&NtcRec::trg_lat_ns>,                          "N",          "N",         "N"},
};

// The target of a modification: shown as it is, padded when it is read.
const std::vector<Case> kTargetCases = {
    {kAssignments,              "Txt_TrgAdmRefID",            own<&NtcRec::t_trg_adm_ref_id>,                    "F-9",        "F-9",       "F-9"},
    {kAssignments,              "Txt_trg_freq_assgn",         own<&NtcRec::t_trg_freq_assgn>,                    "474.0",      "474.0",     "474.0"},
    {kAssignments,              "Txt_trg_long_DD",            own<&NtcRec::trg_long_deg>,                        "5",          "5",         "005"},
    {kAssignments,              "Txt_trg_long_MM",            own<&NtcRec::trg_long_min>,                        "7",          "7",         "07"},
    {kAssignments,              "Txt_trg_long_SS",            own<&NtcRec::trg_long_sec>,                        "9",          "9",         "09"},
    {kAssignments,              "Txt_trg_long_EW",            own<&NtcRec::trg_long_ew>,                         "E",          "E",         "E"},
    {kAssignments,              "Txt_trg_lat_DD",             own<&NtcRec::trg_lat_deg>,                         "4",          "4",         "04"},
    {kAssignments,              "Txt_trg_lat_MM",             own<&NtcRec::trg_lat_min>,                         "6",          "6",         "06"},
    {kAssignments,              "Txt_trg_lat_SS",             own<&NtcRec::trg_lat_sec>,                         "8",          "8",         "08"},
    {kAssignments,              "Txt_trg_lat_NS",             own<&NtcRec::trg_lat_ns>,                          "S",          "S",         "S"},
    {kAllotments,               "Txt_TrgAdmRefID",            own<&NtcRec::t_trg_adm_ref_id>,                    "F-9",        "F-9",       "F-9"},
};
// clang-format on

void raise(NtcRec& ntc, Flag flag) {
  if (flag == digitalFlag) ntc.digital.present = true;
  if (flag == hoursFlag) ntc.op_hours.present = true;
  if (flag == contourFlag) ntc.digital.contour.present = true;
}

bool isDate(const Case& one) {
  return std::string(one.control).ends_with('_');
}

// What the control, or the three boxes of a date, shows.
Contents expectedOn(const Case& one) {
  if (!isDate(one)) return {{one.control, one.shown}};
  const std::string boxes = one.control;
  const std::string date = one.shown;
  const std::size_t first = date.find('.');
  const std::size_t second = date.find('.', first + 1);
  return {{boxes + "DD", date.substr(0, first)},
          {boxes + "MM", date.substr(first + 1, second - first - 1)},
          {boxes + "YY", date.substr(second + 1)}};
}

void setControl(Screen& screen, const Case& one) {
  if (isDate(one)) return setDate(screen, one.control, one.shown);
  const ControlName control = madeName(one.control);
  if (screen.at(control).kind == ControlKind::combo) {
    ASSERT_TRUE(screen.chooseText(control, one.shown)) << control;
  } else {
    screen.setText(control, one.shown);
  }
}

// What the field adds to a screen that is filled with `base`.
Contents shownOf(const Case& one, const std::string& type, NtcRec base) {
  BareScreen before(type);
  BareScreen after(type);
  before.fill(base);
  one.field.of(base) = one.stored;
  after.fill(base);
  return addedTo(contentsOf(before.screen), contentsOf(after.screen));
}

void expectShown(const Case& one, const std::string& type, const std::string& action) {
  NtcRec base;
  base.t_action = action;
  if (one.needs != noFlag) {
    EXPECT_EQ(shownOf(one, type, base), Contents()) << type << " " << one.control << " without the flag";
  }
  raise(base, one.needs);
  EXPECT_EQ(shownOf(one, type, base), expectedOn(one)) << type << " " << one.control;
}

void expectRead(const Case& one, const std::string& type, ControlName option) {
  BareScreen empty(type);
  BareScreen filled(type);
  for (BareScreen* screen : {&empty, &filled}) {
    if (!option.empty()) screen->screen.setOption(option);
  }
  setControl(filled.screen, one);
  NtcRec expected = empty.read();
  EXPECT_EQ(one.field.in(expected), "") << type << " " << one.control;
  one.field.of(expected) = one.read;
  raise(expected, one.marks);
  EXPECT_TRUE(filled.read() == expected)
      << type << " " << one.control << " gives " << one.field.in(filled.read());
}

TEST(Bindings, each_field_is_shown_in_its_control_and_nowhere_else) {
  for (const Case& one : kCases) {
    for (const std::string& type : wordsOf(one.types)) expectShown(one, type, "");
  }
}

TEST(Bindings, each_control_is_read_into_its_field_and_nowhere_else) {
  for (const Case& one : kCases) {
    for (const std::string& type : wordsOf(one.types)) expectRead(one, type, {});
  }
}

TEST(Bindings, the_parts_of_a_target_are_shown_whatever_the_intent) {
  for (const Case& one : kTargetCases) {
    for (const std::string& type : wordsOf(one.types)) {
      expectShown(one, type, "MODIFY");
      expectShown(one, type, "ADD");
    }
  }
}

TEST(Bindings, the_parts_of_a_target_are_read_of_a_modification) {
  for (const Case& one : kTargetCases) {
    for (const std::string& type : wordsOf(one.types)) expectRead(one, type, "OptInt_Mod");
  }
}

TEST(Bindings, no_part_of_a_target_is_read_of_an_addition) {
  for (const Case& one : kTargetCases) {
    for (const std::string& type : wordsOf(one.types)) {
      BareScreen empty(type);
      BareScreen filled(type);
      empty.screen.setOption("OptInt_Add");
      filled.screen.setOption("OptInt_Add");
      setControl(filled.screen, one);
      EXPECT_TRUE(filled.read() == empty.read()) << type << " " << one.control;
    }
  }
}

// The controls that a case above goes through, by form. Others have tests of their own.
std::set<std::string> testedControls(FormCode code) {
  std::set<std::string> controls = {"Combo_KV19_SigComit", "Txt_LMZ04_nb_test_pts"};
  for (const std::vector<Case>* cases : {&kCases, &kTargetCases}) {
    for (const Case& one : *cases) {
      for (const std::string& type : wordsOf(one.types)) {
        if (formOf(type) == code) controls.insert(one.control + std::string(isDate(one) ? "DD" : ""));
      }
    }
  }
  return controls;
}

template <typename Visit>
void forEachBinding(Visit visit) {
  for (const Binding& one : bindings()) {
    for (const std::string_view type : kNoticeTypes) {
      if (isOneOf(formOf(type), one.forms)) visit(one, std::string(type));
    }
  }
}

TEST(Bindings, every_row_has_a_case) {
  int rows = 0;
  forEachBinding([&](const Binding& one, const std::string& type) {
    EXPECT_EQ(testedControls(formOf(type)).count(std::string(one.control)), 1U) << type << " " << one.control;
    ++rows;
  });
  EXPECT_GT(rows, 150);
}

TEST(Bindings, every_control_stands_on_its_form_and_is_of_the_right_kind) {
  forEachBinding([](const Binding& one, const std::string& type) {
    const BareScreen bare(type);
    if (one.conversion == Conversion::date) {
      const DateBoxes boxes = dateBoxes(one.control);
      for (const std::string& box : {boxes.day, boxes.month, boxes.year}) {
        EXPECT_TRUE(bare.screen.has(madeName(box))) << type << " " << box;
      }
      EXPECT_EQ(boxes.day, std::string(one.control));
      return;
    }
    ASSERT_TRUE(bare.screen.has(one.control)) << type << " " << one.control;
    const bool isCombo = one.conversion == Conversion::combo || one.conversion == Conversion::comboTrimmed ||
                         one.conversion == Conversion::comboOrFirst;
    EXPECT_EQ(bare.screen.at(one.control).kind == ControlKind::combo, isCombo) << type << " " << one.control;
  });
}

// A value that is in the form in which the control gives it back.
std::string settledValue(const Binding& one, const Screen& screen) {
  switch (one.conversion) {
    case Conversion::date:
      return "2011-12-13";
    case Conversion::pad2:
    case Conversion::pad2Back:
      return "12";
    case Conversion::pad3:
    case Conversion::pad3Back:
      return "123";
    case Conversion::plain:
      return "7";
    default:
      return screen.items(one.control).back();
  }
}

TEST(Bindings, every_value_goes_to_the_screen_and_back_unchanged) {
  for (const std::string_view type : kNoticeTypes) {
    BareScreen bare(type);
    NtcRec ntc;
    ntc.t_action = "MODIFY";
    ntc.digital.present = ntc.op_hours.present = ntc.digital.contour.present = true;
    forEachBinding([&](const Binding& one, const std::string& other) {
      if (other == type) one.field.of(ntc) = settledValue(one, bare.screen);
    });
    // The screen shows one answer for both.
    if (bare.screen.has("Combo_KV19_SigComit")) ntc.t_signed_commitment = ntc.t_remark_conds_met;
    bare.fill(ntc);
    const NtcRec back = bare.read();
    forEachBinding([&](const Binding& one, const std::string& other) {
      if (other != type) return;
      EXPECT_FALSE(one.field.in(ntc).empty()) << type << " " << one.control;
      EXPECT_EQ(one.field.in(back), one.field.in(ntc)) << type << " " << one.control;
    });
  }
}

TEST(Bindings, an_empty_field_leaves_its_control_as_it_is) {
  for (const std::string_view type : kNoticeTypes) {
    BareScreen bare(type);
    Contents before;
    forEachBinding([&](const Binding& one, const std::string& other) {
      if (other != type) return;
      if (one.conversion == Conversion::date) {
        const std::string day(one.control);
        setDate(bare.screen, day.substr(0, day.size() - 2), "1.2.2010");
      } else if (bare.screen.at(one.control).kind == ControlKind::combo) {
        bare.screen.choose(one.control, 1);
      } else {
        bare.screen.setText(one.control, "x");
      }
    });
    before = contentsOf(bare.screen);
    NtcRec ntc;
    ntc.op_hours.present = ntc.digital.present = ntc.digital.contour.present = true;
    bare.fill(ntc);
    Contents after = contentsOf(bare.screen);
    after.erase("Txt_CountDownTP");  // counts the points that are missing
    EXPECT_EQ(after, before) << type;
    EXPECT_GT(before.size(), 3U) << type;
  }
}

TEST(Bindings, a_combo_keeps_what_it_shows_when_its_list_lacks_the_value) {
  for (const char* value : {"A9", "c2", "C2 ", " C2"}) {
    BareScreen bare("GT1");
    bare.screen.chooseText("Combo_LMZ04_Sys_Var", "B1");
    NtcRec ntc;
    ntc.t_sys_var = value;
    bare.fill(ntc);
    EXPECT_EQ(bare.screen.text("Combo_LMZ04_Sys_Var"), "B1") << value;
  }
  BareScreen fresh("GT1");
  NtcRec ntc;
  ntc.t_adm = "XYZ";
  ntc.t_sys_var = "A9";
  fresh.fill(ntc);
  EXPECT_EQ(contentsOf(fresh.screen), Contents());
}

TEST(Bindings, what_is_typed_into_a_combo_is_read) {
  BareScreen bare("GS1");
  bare.screen.setText("Combo_4B_Ctry", "XYZ");
  EXPECT_EQ(bare.read().t_ctry, "XYZ");
}

TEST(Bindings, zeros_are_put_before_short_coordinates_and_other_lengths_stay) {
  struct Pad {
    const char* typed;
    const char* degrees;
    const char* minutes;
  };
  for (const Pad& pad : {Pad{"5", "005", "05"},
                         {"12", "012", "12"},
                         {"123", "123", "123"},
                         {"1234", "1234", "1234"},
                         {"-5", "0-5", "-5"}}) {
    BareScreen bare("GS1");
    bare.screen.setText("Txt_4C_Deg_Long", pad.typed);
    bare.screen.setText("Txt_4C_Min_Long", pad.typed);
    EXPECT_EQ(bare.read().long_deg, pad.degrees);
    EXPECT_EQ(bare.read().long_min, pad.minutes);
    NtcRec ntc;
    ntc.long_deg = ntc.long_min = pad.typed;
    bare.fill(ntc);
    EXPECT_EQ(bare.screen.text("Txt_4C_Deg_Long"), pad.degrees);
    EXPECT_EQ(bare.screen.text("Txt_4C_Min_Long"), pad.minutes);
  }
  BareScreen empty("GS1");
  EXPECT_EQ(empty.read().long_deg, "");
  EXPECT_EQ(empty.read().lat_sec, "");
}

TEST(Bindings, a_date_loses_its_zeros_on_the_screen_and_is_joined_without_them) {
  BareScreen bare("GT1");
  NtcRec ntc;
  ntc.t_d_inuse = "2009-05-03";
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.text("Txt_InUse_DD"), "3");
  EXPECT_EQ(bare.screen.text("Txt_InUse_MM"), "5");
  EXPECT_EQ(bare.screen.text("Txt_InUse_YY"), "2009");
  EXPECT_EQ(bare.read().t_d_inuse, "2009-5-3");
  setDate(bare.screen, "Txt_InUse_", "03.05.2009");
  EXPECT_EQ(bare.read().t_d_inuse, "2009-05-03");
}

TEST(Bindings, dates_in_any_of_the_systems_forms_are_shown) {
  for (const char* date : {"2009-5-3", "03.05.2009", "3/5/2009", "2009/05/03"}) {
    BareScreen bare("TB2");
    NtcRec ntc;
    ntc.t_d_inuse = date;
    bare.fill(ntc);
    EXPECT_EQ(bare.read().t_d_inuse, "2009-5-3") << date;
  }
}

TEST(Bindings, a_date_without_one_of_its_parts_is_none) {
  for (const ControlName box : ControlNames{"Txt_Exp_DD", "Txt_Exp_MM", "Txt_Exp_YY"}) {
    BareScreen bare("GT2");
    setDate(bare.screen, "Txt_Exp_", "3.5.2009");
    EXPECT_EQ(bare.read().t_d_expiry, "2009-5-3");
    bare.screen.setText(box, "");
    EXPECT_EQ(bare.read().t_d_expiry, "") << box;
  }
}

TEST(Bindings, what_is_no_date_is_not_shown_as_one) {
  BareScreen bare("GT1");
  NtcRec ntc;
  ntc.t_d_inuse = "soon";
  ntc.t_d_expiry = "2009-13";
  bare.fill(ntc);
  EXPECT_EQ(contentsOf(bare.screen), Contents());
}

// A stored answer is asked for, but what is shown is the answer on the remarks' conditions.
TEST(Bindings, the_commitment_shows_the_answer_on_the_conditions) {
  BareScreen bare("GT1");
  NtcRec ntc;
  ntc.t_remark_conds_met = "TRUE";
  ntc.t_signed_commitment = "FALSE";
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.text("Combo_KV19_Rmk_Cond"), "TRUE");
  EXPECT_EQ(bare.screen.text("Combo_KV19_SigComit"), "TRUE");
  EXPECT_EQ(bare.read().t_signed_commitment, "TRUE");
}

TEST(Bindings, without_a_stored_commitment_its_combo_stays) {
  BareScreen bare("GS1");
  NtcRec ntc;
  ntc.t_remark_conds_met = "TRUE";
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.text("Combo_KV19_SigComit"), "");
  EXPECT_EQ(bare.read().t_signed_commitment, "");
}

TEST(Bindings, a_commitment_without_an_answer_on_the_conditions_shows_the_empty_item) {
  BareScreen bare("GS1");
  bare.screen.chooseText("Combo_KV19_SigComit", "FALSE");
  NtcRec ntc;
  ntc.t_signed_commitment = "TRUE";
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.text("Combo_KV19_SigComit"), "");
}

TEST(Bindings, the_commitment_is_read_from_its_own_combo) {
  BareScreen bare("GS1");
  bare.screen.chooseText("Combo_KV19_Rmk_Cond", "TRUE");
  bare.screen.chooseText("Combo_KV19_SigComit", "FALSE");
  EXPECT_EQ(bare.read().t_remark_conds_met, "TRUE");
  EXPECT_EQ(bare.read().t_signed_commitment, "FALSE");
}

TEST(Bindings, a_planning_on_the_screen_counts_for_a_record_without_one) {
  for (const char* type : {"GS1", "GT1", "GS2", "GT2"}) {
    BareScreen bare(type);
    const std::string shown = bare.screen.items("Combo_LMZ04_RefPlan").at(1);
    bare.screen.choose("Combo_LMZ04_RefPlan", 1);
    NtcRec ntc;
    EXPECT_EQ(bare.fill(ntc).digital.t_ref_plan_cfg, "") << type << " without the flag";
    ntc.digital.present = true;
    EXPECT_EQ(bare.fill(ntc).digital.t_ref_plan_cfg, shown) << type;
    EXPECT_TRUE(bare.fill(ntc).digital.present);
    EXPECT_EQ(bare.screen.text("Combo_LMZ04_RefPlan"), shown);
  }
}

TEST(Bindings, without_any_planning_the_first_item_is_chosen) {
  BareScreen bare("GT1");
  bare.screen.choose("Combo_LMZ04_RefPlan", -1);
  NtcRec ntc;
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.at("Combo_LMZ04_RefPlan").index, -1) << "without the flag";
  ntc.digital.present = true;
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.at("Combo_LMZ04_RefPlan").index, 0);
}

TEST(Bindings, the_hours_come_one_by_one) {
  BareScreen bare("TB2");
  bare.screen.setText("Txt_10B_Ophhto", "2400");
  const NtcRec ntc = bare.read();
  EXPECT_TRUE(ntc.op_hours.present);
  EXPECT_EQ(ntc.op_hours.t_op_hh_fr, "");
  EXPECT_EQ(ntc.op_hours.t_op_hh_to, "2400");
}

}  // namespace
}  // namespace zamo
