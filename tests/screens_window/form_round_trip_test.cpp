// Notices with every field filled go from the database into the windows, and back with an update that changes
// nothing.
#include <gmock/gmock.h>

#include "database/notice_store.h"
#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

const std::string kAskUpdate =
    "Save Notice: Saving changes will update the Database. Do you want to proceed?";
const std::string kUpdated = "Save Notice: The notice was sucessfully updated in the Database";

void fillCommon(NtcRec& ntc) {
  ntc.src_update = "other";
  ntc.d_rcv = ntc.d_updated = ntc.digital.contour.d_updated = "2009-01-15";
  ntc.digital.t_email_addr = "plan@adm.example";
  ntc.coord = makeCoordination({"BEL", "SUI"});
  ntc.t_remarks = "notified \351";
  ntc.t_int_remarks = "internal";
}

void fillPlace(NtcRec& ntc) {
  ntc.t_trg_freq_assgn = ntc.t_notice_type == "GS1" ? "176.64" : "482";
  ntc.trg_long_deg = "001";
  ntc.trg_long_min = "02";
  ntc.trg_long_sec = "03";
  ntc.trg_long_ew = "W";
  ntc.trg_lat_deg = "46";
  ntc.trg_lat_min = "05";
  ntc.trg_lat_sec = "06";
  ntc.trg_lat_ns = "N";
}

// Both planes, in a network and linked with an allotment.
NtcRec makeFullAssignment(std::string_view kind) {
  NtcRec ntc = makeKind(kind);
  fillCommon(ntc);
  ntc.t_polar = "M";
  ntc.t_erp_h_dbw = "43";
  ntc.t_erp_v_dbw = "40.5";
  ntc.ant_diagr_v = makeDiagram();
  ntc.t_plan_entry = "4";
  ntc.t_assgn_code = "L";
  ntc.digital.t_sfn_id = "F-SFN-0001";
  ntc.digital.t_associated_adm_allot_id = "F-ALLOT-0001";
  ntc.digital.t_associated_allot_sfn_id = "F-SFN-0001";
  ntc.t_offset = "-166.7";
  ntc.t_d_expiry = "2030-12-31";
  return ntc;
}

NtcRec makeFullUnderArt5(std::string_view kind) {
  NtcRec ntc = makeFullAssignment(kind);
  ntc.t_action = "MODIFY";
  fillPlace(ntc);
  ntc.t_call_sign = "RADIO 5";
  ntc.op_hours = {true, "0600", "1830"};
  ntc.t_d_inuse = "2026-04-05";
  return ntc;
}

NtcRec makeFullTelevision() {
  NtcRec ntc = makeFullUnderArt5("GT1/5");
  ntc.t_erp_beam_tilt_dbw = "44";
  ntc.t_beam_tilt_angle = "-1.5";
  return ntc;
}

NtcRec makeFullAllotment(std::string_view type) {
  NtcRec ntc = makeKind(type);
  fillCommon(ntc);
  ntc.t_plan_entry = "4";
  ntc.t_offset = "500";
  ntc.t_d_expiry = "2030-01-02";
  ntc.digital.allot.t_geo_area.clear();
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_contour_id = {"11", "12"};
  return ntc;
}

NtcRec makeFullTb(std::string_view type) {
  NtcRec ntc = makeKind(type);
  fillCommon(ntc);
  if (type == "TB3") return ntc;
  ntc.coord = {};
  if (type == "TB5") return ntc;
  ntc.t_trg_adm_ref_id.clear();
  fillPlace(ntc);
  ntc.t_op_agcy = "001";
  ntc.op_hours = {true, "0600", "1830"};
  ntc.t_d_inuse = "2026-04-05";
  return ntc;
}

NtcRec makeFullContour() {
  NtcRec ntc = makeGa1();
  fillCommon(ntc);
  ntc.t_int_remarks.clear();
  ntc.coord = {};
  return ntc;
}

// --- what the windows show

Contents grid(const std::string& boxes, const std::string& north, const std::string& elsewhere) {
  Contents all;
  for (int azimuth = 0; azimuth < 360; azimuth += 10)
    all[boxes + std::to_string(1000 + azimuth).substr(1)] = azimuth == 0 ? north : elsewhere;
  return all;
}

Contents together(std::initializer_list<Contents> parts) {
  Contents all;
  for (Contents part : parts) all.merge(part);
  return all;
}

// clang-format off
const Contents kCommon = {
    {"Combo_B_Adm", "F"}, {"Txt_EmailAddr", "plan@adm.example"}, {"Txt_notified_Rmks", "notified \351"}, {"txt_int_rmk", "internal"},
};
const Contents kCoordination = {{"ListAdmSel", "BEL|SUI"}};
const Contents kAssignment = together({kCommon, kCoordination, {
    {"Combo_4B_Ctry", "F"}, {"Txt_AdmRefID", "F-0001"}, {"Combo_9D_Polariz", "M"}, {"Txt_KV19_Offset", "-166.7"},
    {"Txt_Exp_DD", "31"}, {"Txt_Exp_MM", "12"}, {"Txt_Exp_YY", "2030"},
    {"Txt_LMZ04_SfnID", "F-SFN-0001"}, {"Combo_KV19_Plan", "4"}, {"Combo_KV19_assgnCde", "L"},
    {"Txt_LMZ04_AdmAllotID", "F-ALLOT-0001"}, {"Txt_KV19_assoc_allot_sfnID", "F-SFN-0001"},
    {"Txt_4A_SiteName", "BOURGES"},
    {"Txt_4C_Deg_Long", "002"}, {"Txt_4C_Min_Long", "24"}, {"Txt_4C_Sec_Long", "10"}, {"Txt_4C_EW", "E"},
    {"Txt_4C_Deg_Lat", "47"}, {"Txt_4C_Min_Lat", "05"}, {"Txt_4C_Sec_Lat", "30"}, {"Txt_4C_NS", "N"},
    {"Txt_9E_AntHgt", "75"}, {"Txt_9EB_Eff_hgtmax", "300"}, {"Txt_9EA_SiteAlt", "150"},
    {"Txt_8BH_Erp_H", "43"}, {"Txt_8BV_Erp_V", "40.5"}, {"Combo_9_AntDir", "D"}},
    grid("Txt_9EC_azm", "250", "250"), grid("Txt_9NHAzm", "0", "3.5"), grid("Txt_9NVAzm", "0", "3.5")});
const Contents kArt4 = {{"OptInt_Add", "set"}, {"Opt_Art4", "set"}, {"Combo_KV19_PubReq", "TRUE"}};
const Contents kArt5 = {
    {"OptInt_Mod", "set"}, {"Opt_Art5", "set"}, {"Txt_PlanAdm_RefID", "F-PLAN-0001"},
    
    {"Txt_trg_long_DD", "001"}, {"Txt_trg_long_MM", "02"}, {"Txt_trg_long_SS", "03"}, {"Txt_trg_long_EW", "W"},
    {"Txt_trg_lat_DD", "46"}, {"Txt_trg_lat_MM", "05"}, {"Txt_trg_lat_SS", "06"}, {"Txt_trg_lat_NS", "N"},
    {"Combo_KV19_IsResub", "FALSE"}, {"Combo_KV19_Rmk_Cond", "TRUE"}, {"Combo_KV19_SigComit", "TRUE"},
    {"Txt_3A1_CallSign", "RADIO 5"}, {"Txt_12A_OpAgcy", "001"}, {"Txt_12B_AddrCde", "A"},
    {"Txt_10B_Ophhfr", "0600"}, {"Txt_10B_Ophhto", "1830"},
    {"Txt_InUse_DD", "5"}, {"Txt_InUse_MM", "4"}, {"Txt_InUse_YY", "2026"},
};
const Contents kSound = {{"Combo_KV19_FreqAssgn", "174.928"}, {"Combo_LMZ04_RefPlan", "RPC4"}, {"Combo_LMZ04_SpectMask", "1"}};
const Contents kTelevisionPlan = {{"Txt_KV19_freqAssgn", "474"}, {"Combo_LMZ04_RefPlan", "RPC1"}, {"Combo_LMZ04_SpectMask", "N"}};
const Contents kTelevisionSystem = {
    {"Txt_KV19_freqAssgn", "474"}, {"Combo_LMZ04_SpectMask", "N"}, {"Combo_LMZ04_Sys_Var", "C2"}, {"Combo_LMZ04_RxMode", "FX"},
    {"Txt_trg_freq_assgn", "482"}, {"Txt_KV19_erpBeam_tilt", "44"}, {"Txt_KV19_TiltAngle", "-1.5"},
};
const Contents kAllotment = together({kCommon, kCoordination, {
    {"OptInt_Add", "set"}, {"Combo_4B_Ctry", "F"}, {"Txt_AdmRefID", "F-0002"}, {"Combo_9D_Polariz", "M"}, {"Txt_KV19_Offset", "500"},
    {"Txt_Exp_DD", "2"}, {"Txt_Exp_MM", "1"}, {"Txt_Exp_YY", "2030"},
    {"Combo_KV19_Plan", "4"}, {"Txt_LMZ04_SfnID", "F-SFN-0001"}, {"Combo_KV19_PubReq", "TRUE"},
    {"Txt_LMZ04_allot_name", "CENTRE"}, {"Txt_LMZ04_nb_sub_areas", "2"}, {"ListBoxContourID", "11|12"}}});
const Contents kContour = {
    {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "F"}, {"OptInt_Add", "set"}, {"Txt_notified_Rmks", "notified \351"},
    {"Txt_LMZ04_contour_id", "1"}, {"Txt_LMZ04_nb_test_pts", "3"}, {"Txt_CountDownTP", "0"},
    {"ListBox_LMZ04_Coordinates", "0020000E 470000N|0030000E 470000N|0023000E 480000N"},
};
const Contents kTb2 = together({kCommon, {
    {"Txt_PlanAdmRefID", "F-PLAN-0001"}, {"Txt_12A_OpAgcy", "001"}, {"Txt_12B_AddrCde", "A"},
    {"Txt_10B_Ophhfr", "0600"}, {"Txt_10B_Ophhto", "1830"},
    {"Txt_InUse_DD", "5"}, {"Txt_InUse_MM", "4"}, {"Txt_InUse_YY", "2026"}, {"Txt_TrgFreq", "482"},
    {"Txt_4C_Deg_Long", "001"}, {"Txt_4C_Min_Long", "02"}, {"Txt_4C_Sec_Long", "03"}, {"Txt_4C_EW", "W"},
    {"Txt_4C_Deg_Lat", "46"}, {"Txt_4C_Min_Lat", "05"}, {"Txt_4C_Sec_Lat", "06"}, {"Txt_4C_NS", "N"}}});
const Contents kTb3 = together({kCommon, kCoordination, {{"Txt_TrgAdmRefID", "F-0001"}}});
const Contents kTb5 = together({kCommon, {{"Txt_TrgAdmRefID", "F-0001"}, {"OptInt_Supp", "set"}, {"Opt_Art4", "set"}}});
// clang-format on

struct Trip {
  const char* name;
  std::function<NtcRec()> make;
  Contents shown;
};
const Trip kTrips[] = {
    {"sound_assignment_under_article_4", [] { return makeFullAssignment("GS1"); },
     together({kAssignment, kArt4, kSound})},
    {"sound_assignment_under_article_5", [] { return makeFullUnderArt5("GS1/5"); },
     together({kAssignment, kArt5, kSound, {{"Txt_trg_freq_assgn", "176.64"}}})},
    {"television_assignment_under_article_4", [] { return makeFullAssignment("GT1"); },
     together({kAssignment, kArt4, kTelevisionPlan})},
    {"television_assignment_under_article_5", makeFullTelevision,
     together({kAssignment, kArt5, kTelevisionSystem})},
    {"sound_allotment", [] { return makeFullAllotment("GS2"); }, together({kAllotment, kSound})},
    {"television_allotment", [] { return makeFullAllotment("GT2"); },
     together({kAllotment, kTelevisionPlan, {{"Combo_LMZ04_TypRefNetwk", "RN1"}}})},
    {"contour", makeFullContour, kContour},
    {"TB2", [] { return makeFullTb("TB2"); }, kTb2},
    {"TB3", [] { return makeFullTb("TB3"); }, kTb3},
    {"TB5", [] { return makeFullTb("TB5"); }, kTb5},
};

std::ostream& operator<<(std::ostream& out, const Trip& trip) {
  return out << trip.name;
}

// The fields in which two records differ, with both values.
Texts differences(const NtcRec& one, const NtcRec& other) {
  Texts all;
  for (const FieldRow& row : fieldTable()) {
    if (row.text.in == nullptr || row.text.in(one) == row.text.in(other)) continue;
    all.push_back(std::string(row.key) + " " + std::string(row.column) + ": " + row.text.in(one) + " / " +
                  row.text.in(other));
  }
  if (all.empty() && !(one == other)) all.emplace_back("something that is no text of its own");
  return all;
}

class RoundTrip : public RealForm, public testing::WithParamInterface<Trip> {
 protected:
  Contents shownOf(const Operator& hand) const {
    Contents all = hand.contents();
    EXPECT_EQ(all["Txt_Ntc_Number"], std::to_string(run.SelKey));
    EXPECT_EQ(all["Txt_Filename"], run.DbFileName);
    all.erase("Txt_Ntc_Number");
    all.erase("Txt_Filename");
    return all;
  }
  NtcRec read(const NtcRec& ntc, std::int32_t key) {
    return ntc.t_notice_type == "GA1" ? storedContour(key) : stored(key);
  }
};

INSTANTIATE_TEST_SUITE_P(Notices, RoundTrip, testing::ValuesIn(kTrips),
                         [](const auto& chosen) { return std::string(chosen.param.name); });

TEST_P(RoundTrip, the_window_shows_every_field) {
  openNew(GetParam().make(), [this](Operator& hand) { EXPECT_EQ(shownOf(hand), GetParam().shown); });
  expectTold({});
}

// What an update without a change makes of a record, besides the stamps: the notified remarks of a notice
// that stays in its row are gone.
NtcRec afterUpdate(NtcRec ntc) {
  const bool isContour = ntc.t_notice_type == "GA1";
  const bool isTb = ntc.t_notice_type.starts_with("TB");
  if (isContour) {
    ntc.digital.contour.d_updated = "2026-03-07";
    return ntc;
  }
  ntc.d_updated = "2026-03-07";
  ntc.src_update = "tester";
  for (CoordEntryRec& entry : ntc.coord.entries) entry.d_coord_st.clear();
  if (isTb) {
    ntc.d_rcv.clear();
  } else {
    ntc.t_remarks.clear();
  }
  return ntc;
}

TEST_P(RoundTrip, an_update_without_a_change_changes_nothing_but_the_stamps) {
  const NtcRec full = GetParam().make();
  const std::int32_t key = add(full);
  const NtcRec before = read(full, key);
  run.qryIsNotice = full.t_notice_type != "GA1";
  script.answers = {true};
  open(0, [&](Operator& hand) {
    hand.click("Button_Next");
    EXPECT_EQ(shownOf(hand), GetParam().shown);
  });
  expectTold({kUpdated}, {kAskUpdate});
  NtcRec after = read(full, run.IndexList.back());
  after.vornakey = before.vornakey;
  EXPECT_THAT(differences(after, afterUpdate(before)), testing::IsEmpty());
  EXPECT_EQ(run.NtcCount, full.t_notice_type.starts_with("TB") ? 2 : 1);
}

TEST_P(RoundTrip, a_second_update_changes_nothing_at_all) {
  const NtcRec full = GetParam().make();
  add(full);
  run.qryIsNotice = full.t_notice_type != "GA1";
  script.answers = {true, true};
  NtcRec first;
  open(0, [&](Operator& hand) {
    hand.click("Button_Next");
    first = read(full, run.IndexList.back());
    hand.click("Button_Next");
    EXPECT_EQ(shownOf(hand), GetParam().shown);
  });
  expectTold({kUpdated, kUpdated}, {kAskUpdate, kAskUpdate});
  NtcRec second = read(full, run.IndexList.back());
  second.vornakey = first.vornakey;
  EXPECT_THAT(differences(second, first), testing::IsEmpty());
}

}  // namespace
}  // namespace zamo::test
