// One valid notice of each type: no rule on a record has a finding on it, so that a test makes one change and
// expects what comes of that change alone. Today is 15 January 2009 to them.
#pragma once

#include <array>
#include <chrono>
#include <cstdio>
#include <ostream>
#include <string>
#include <string_view>

#include "model/ntc_rec.h"
#include "platform/dates.h"

namespace zamo {

inline constexpr Date kToday{std::chrono::year(2009), std::chrono::month(1), std::chrono::day(15)};

// What the findings stand behind.
inline constexpr std::string_view kLabel = "Notice No : 7";

// A finding with all that stands around it; `text` is what follows the label.
inline std::string fatal(std::string_view text) {
  return "FATAL ERROR : \r\nNotice No : 7" + std::string(text) + "\r\n";
}
inline std::string warning(std::string_view text) {
  return "WARNING : \r\nNotice No : 7" + std::string(text) + "\r\n";
}

// What a rule group gives for a record.
struct Verdict {
  bool good = false;
  std::string errs;
  bool operator==(const Verdict&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Verdict& verdict) {
  return out << (verdict.good ? "passed" : "failed") << " with:\n" << verdict.errs;
}

using RuleGroup = bool (*)(const NtcRec&, std::string&, std::string_view);

inline Verdict judge(RuleGroup group, const NtcRec& ntc) {
  Verdict verdict;
  verdict.good = group(ntc, verdict.errs, kLabel);
  return verdict;
}

inline const Verdict kPassed{true, ""};

// Failed with these findings.
inline Verdict failed(std::string_view errs) {
  return {false, std::string(errs)};
}

inline constexpr std::array<std::string_view, 8> kNoticeTypes = {"GT1", "GS1", "GT2", "GS2",
                                                                 "GA1", "TB2", "TB3", "TB5"};

// All 36 azimuths from 000 to 350 with one and the same value.
inline std::array<AzmValueRec, kAzimuths> makeAzimuths(std::string_view value) {
  std::array<AzmValueRec, kAzimuths> all;
  for (std::size_t i = 0; i < kAzimuths; ++i) {
    std::array<char, 24> azm;
    std::snprintf(azm.data(), azm.size(), "%03zu", i * 10);
    all[i] = {true, azm.data(), std::string(value)};
  }
  return all;
}

// Attenuations of a normalized diagram: 0 to the north, 3.5 elsewhere.
inline std::array<AzmValueRec, kAzimuths> makeDiagram() {
  auto all = makeAzimuths("3.5");
  all[0].value = "0";
  return all;
}

// Under Art 4, plan entry 1, horizontally polarized, directional.
inline NtcRec makeAssignment(std::string_view type) {
  NtcRec ntc;
  ntc.t_action = "ADD";
  ntc.t_fragment = "KV19D";
  ntc.t_adm_ref_id = "F-0001";
  ntc.t_notice_type = type;
  ntc.t_adm = "F";
  ntc.t_ctry = "F";
  ntc.t_is_pub_req = "TRUE";
  ntc.t_plan_entry = "1";
  ntc.t_assgn_code = "S";
  ntc.t_erp_h_dbw = "43";
  ntc.t_polar = "H";
  ntc.t_ant_dir = "D";
  ntc.t_hgt_agl = "75";
  ntc.t_eff_hgtmax = "300";
  ntc.t_site_alt = "150";
  ntc.t_site_name = "BOURGES";
  ntc.long_deg = "2";
  ntc.long_ew = "E";
  ntc.long_min = "24";
  ntc.long_sec = "10";
  ntc.lat_deg = "47";
  ntc.lat_ns = "N";
  ntc.lat_min = "5";
  ntc.lat_sec = "30";
  ntc.ant_hgt = makeAzimuths("250");
  ntc.ant_diagr_h = makeDiagram();
  ntc.digital.present = true;
  return ntc;
}

inline NtcRec makeGt1() {
  NtcRec ntc = makeAssignment("GT1");
  ntc.stn_cls = "BT";
  ntc.t_freq_assgn = "474";
  ntc.digital.t_spect_mask = "N";
  ntc.digital.t_ref_plan_cfg = "RPC1";
  return ntc;
}

inline NtcRec makeGs1() {
  NtcRec ntc = makeAssignment("GS1");
  ntc.stn_cls = "BC";
  ntc.t_freq_assgn = "174.928";
  ntc.digital.t_spect_mask = "1";
  ntc.digital.t_ref_plan_cfg = "RPC4";
  return ntc;
}

// The same station put into use under Art 5.
inline NtcRec putIntoUse(NtcRec ntc) {
  ntc.t_fragment = "NTFD_PZ";
  ntc.t_prov = "PZ11.2";
  ntc.t_plan_adm_ref_id = "F-PLAN-0001";
  ntc.t_is_pub_req.clear();
  ntc.t_is_resub = "FALSE";
  ntc.t_remark_conds_met = "TRUE";
  ntc.t_signed_commitment = "TRUE";
  ntc.t_addr_code = "A";
  ntc.t_op_agcy = "001";
  ntc.t_d_inuse = "2009-02-01";
  ntc.op_hours = {true, "0000", "2400"};
  return ntc;
}

inline NtcRec makeGt1UnderArt5() {
  NtcRec ntc = putIntoUse(makeGt1());
  ntc.digital.t_ref_plan_cfg.clear();
  ntc.t_sys_var = "C2";
  ntc.digital.t_rx_mode = "FX";
  return ntc;
}

inline NtcRec makeGs1UnderArt5() {
  return putIntoUse(makeGs1());
}

// Plan entry 3 over the whole country.
inline NtcRec makeAllotment(std::string_view type) {
  NtcRec ntc;
  ntc.t_action = "ADD";
  ntc.t_fragment = "KV19D";
  ntc.t_adm_ref_id = "F-0002";
  ntc.t_notice_type = type;
  ntc.t_adm = "F";
  ntc.t_ctry = "F";
  ntc.t_is_pub_req = "TRUE";
  ntc.t_plan_entry = "3";
  ntc.t_polar = "M";
  ntc.digital.present = true;
  ntc.digital.t_sfn_id = "F-SFN-0001";
  ntc.digital.allot.present = true;
  ntc.digital.allot.t_allot_name = "CENTRE";
  ntc.digital.allot.t_geo_area = "F";
  return ntc;
}

inline NtcRec makeGt2() {
  NtcRec ntc = makeAllotment("GT2");
  ntc.stn_cls = "BT";
  ntc.t_freq_assgn = "474";
  ntc.digital.t_spect_mask = "N";
  ntc.digital.t_ref_plan_cfg = "RPC1";
  ntc.digital.allot.t_typ_ref_netwk = "RN1";
  return ntc;
}

inline NtcRec makeGs2() {
  NtcRec ntc = makeAllotment("GS2");
  ntc.stn_cls = "BC";
  ntc.t_freq_assgn = "174.928";
  ntc.digital.t_spect_mask = "1";
  ntc.digital.t_ref_plan_cfg = "RPC4";
  return ntc;
}

// A triangle.
inline NtcRec makeGa1() {
  NtcRec ntc;
  ntc.t_action = "ADD";
  ntc.t_notice_type = "GA1";
  ntc.t_adm = "F";
  ntc.t_ctry = "F";
  ntc.digital.present = true;
  ntc.digital.contour.present = true;
  ntc.digital.contour.t_contour_id = "1";
  ntc.digital.contour.t_nb_test_pts = "3";
  ntc.digital.contour.points = {
      {true, "+0020000", "+470000"}, {true, "+0030000", "+470000"}, {true, "+0023000", "+480000"}, {}};
  return ntc;
}

inline NtcRec makeTb2() {
  NtcRec ntc;
  ntc.t_action = "CONFORM";
  ntc.t_plan = "KV19D";
  ntc.t_notice_type = "TB2";
  ntc.t_adm = "F";
  ntc.t_trg_adm_ref_id = "F-0001";
  ntc.t_plan_adm_ref_id = "F-PLAN-0001";
  ntc.t_addr_code = "A";
  ntc.t_d_inuse = "2009-02-01";
  return ntc;
}

inline NtcRec makeTb3() {
  NtcRec ntc;
  ntc.t_action = "PARTB";
  ntc.t_plan = "KV19D";
  ntc.t_notice_type = "TB3";
  ntc.t_adm = "F";
  ntc.t_trg_adm_ref_id = "F-0001";
  return ntc;
}

inline NtcRec makeTb5() {
  NtcRec ntc;
  ntc.t_action = "SUPPRESS";
  ntc.t_fragment = "KV19D";
  ntc.t_notice_type = "TB5";
  ntc.t_adm = "F";
  ntc.t_trg_adm_ref_id = "F-0001";
  return ntc;
}

// The one of kNoticeTypes.
inline NtcRec makeNotice(std::string_view type) {
  if (type == "GT1") return makeGt1();
  if (type == "GS1") return makeGs1();
  if (type == "GT2") return makeGt2();
  if (type == "GS2") return makeGs2();
  if (type == "GA1") return makeGa1();
  if (type == "TB2") return makeTb2();
  if (type == "TB3") return makeTb3();
  return makeTb5();
}

// The same, and "GT1/5" and "GS1/5" for the assignments under Art 5.
inline NtcRec makeKind(std::string_view kind) {
  if (kind == "GT1/5") return makeGt1UnderArt5();
  if (kind == "GS1/5") return makeGs1UnderArt5();
  return makeNotice(kind);
}

}  // namespace zamo
