#include "validation/assignment_rules.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "support/rule_cases.h"

namespace zamo {
namespace {

// ---- mandatory fields

TEST(AssignmentMandatory, fields_that_every_assignment_has) {
  // clang-format off
  expectChanges({
      {"reference", [](NtcRec& ntc) { ntc.t_adm_ref_id.clear(); }, {{"GT1 GS1 GT1/5 GS1/5 GT2 GS2", fatal(" :  t_adm_ref_id is a mandatory value")}}},
      {"site name", [](NtcRec& ntc) { ntc.t_site_name.clear(); }, {{kAssignmentKinds, fatal(" :  t_sitename is a mandatory value (4A)")}}},
      {"degrees east", [](NtcRec& ntc) { ntc.long_deg.clear(); }, {{kAssignmentKinds, fatal(" :  t_long is a mandatory value (4C)")}}},
      {"minutes east", [](NtcRec& ntc) { ntc.long_min.clear(); }, {{kAssignmentKinds, fatal(" :  t_long is a mandatory value (4C)")}}},
      {"east", [](NtcRec& ntc) { ntc.long_ew.clear(); }, {{kAssignmentKinds, fatal(" :  t_long is a mandatory value (4C)")}}},
      {"seconds east", [](NtcRec& ntc) { ntc.long_sec.clear(); }, {}},
      {"degrees north", [](NtcRec& ntc) { ntc.lat_deg.clear(); }, {{kAssignmentKinds, fatal(" :  t_lat is a mandatory value (4C)")}}},
      {"minutes north", [](NtcRec& ntc) { ntc.lat_min.clear(); }, {{kAssignmentKinds, fatal(" :  t_lat is a mandatory value (4C)")}}},
      {"north", [](NtcRec& ntc) { ntc.lat_ns.clear(); }, {{kAssignmentKinds, fatal(" :  t_lat is a mandatory value (4C)")}}},
      {"seconds north", [](NtcRec& ntc) { ntc.lat_sec.clear(); }, {}},
      {"site altitude", [](NtcRec& ntc) { ntc.t_site_alt.clear(); }, {{kAssignmentKinds, fatal(" :  t_site_alt is a mandatory value (9EA)")}}},
      {"polarization", [](NtcRec& ntc) { ntc.t_polar.clear(); }, {{"GT1 GS1 GT1/5 GS1/5 GT2 GS2", fatal(" :  t_polar is a mandatory value (9D)")}}},
      {"antenna height", [](NtcRec& ntc) { ntc.t_hgt_agl.clear(); }, {{kAssignmentKinds, fatal(" :  t_hgt_agl is a mandatory value (9E)")}}},
      {"directivity", [](NtcRec& ntc) { ntc.t_ant_dir.clear(); }, {{kAssignmentKinds, fatal(" :  t_ant_dir is a mandatory value (9)")}}},
      {"highest height", [](NtcRec& ntc) { ntc.t_eff_hgtmax.clear(); }, {{kAssignmentKinds, fatal(" :  t_eff_hgtmax is a mandatory value (9EB)")}}},
      {"spectrum mask", [](NtcRec& ntc) { ntc.digital.t_spect_mask.clear(); }, {{kAssignmentKinds, fatal(" :  t_spect_mask is a mandatory value")}}},
      {"frequency", [](NtcRec& ntc) { ntc.t_freq_assgn.clear(); }, {{kAssignmentKinds, fatal(" :  t_freq_assgn is a mandatory value (1A)")}}},
      {"plan entry", [](NtcRec& ntc) { ntc.t_plan_entry.clear(); },
       {{"GT1 GS1 GT1/5 GS1/5 GT2 GS2", fatal(" :  t_plan_entry is a mandatory value")}}},
      {"assignment code", [](NtcRec& ntc) { ntc.t_assgn_code.clear(); }, {{kAssignmentKinds, fatal(" :  t_assgn_code is a mandatory value")}}},
  }, mandatoryOf);
  // clang-format on
}

TEST(AssignmentMandatory, all_36_heights_with_azimuth_and_value) {
  const std::string all =
      fatal(" :  (9EC) <ANT_HGT> : All 36 values of the effective antenna height must be provided");
  // clang-format off
  expectChanges({
      {"first value", [](NtcRec& ntc) { ntc.ant_hgt[0].value.clear(); }, {{kAssignmentKinds, all}}},
      {"a value", [](NtcRec& ntc) { ntc.ant_hgt[17].value.clear(); }, {{kAssignmentKinds, all}}},
      {"last value", [](NtcRec& ntc) { ntc.ant_hgt[35].value.clear(); }, {{kAssignmentKinds, all}}},
      {"first azimuth", [](NtcRec& ntc) { ntc.ant_hgt[0].azm.clear(); }, {{kAssignmentKinds, all}}},
      {"last azimuth", [](NtcRec& ntc) { ntc.ant_hgt[35].azm.clear(); }, {{kAssignmentKinds, all}}},
      {"no heights", [](NtcRec& ntc) { ntc.ant_hgt = {}; }, {{kAssignmentKinds, all}}},
  }, mandatoryOf);
  // clang-format on
}

TEST(AssignmentMandatory, fields_by_fragment) {
  // clang-format off
  expectChanges({
      {"publication", [](NtcRec& ntc) { ntc.t_is_pub_req.clear(); },
       {{"GT1 GS1 GT2 GS2", fatal(" :  t_is_pub_req is a mandatory value if notified under Art 4")}}},
      {"date of use", [](NtcRec& ntc) { ntc.t_d_inuse.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_d_inuse is a mandatory value if notified under Art 5 (2C)")},
        {"TB2", fatal(" :  t_d_inuse is a mandatory value (2C)")}}},
      {"address", [](NtcRec& ntc) { ntc.t_addr_code.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_addr_code is a mandatory value if notified under Art 5 (12B)")},
        {"TB2", fatal(" :  t_addr_code is a mandatory value (12B)")}}},
      {"first hour", [](NtcRec& ntc) { ntc.op_hours.t_op_hh_fr.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_op_hh_fr is a mandatory value if notified under Art 5 (10B)")}}},
      {"last hour", [](NtcRec& ntc) { ntc.op_hours.t_op_hh_to.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_op_hh_to is a mandatory value if notified under Art 5 (10B)")}}},
      {"conditions", [](NtcRec& ntc) { ntc.t_remark_conds_met.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_remark_conds_met is a mandatory value if notified under Art 5")}}},
      {"resubmission", [](NtcRec& ntc) { ntc.t_is_resub.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_is_resub is a mandatory value if notified under Art 5")}}},
      {"commitment", [](NtcRec& ntc) { ntc.t_signed_commitment.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_signed_commitment is a mandatory value if notified under Art 5")}}},
      {"plan reference", [](NtcRec& ntc) { ntc.t_plan_adm_ref_id.clear(); },
       {{"GT1/5 GS1/5", fatal(" :  t_plan_adm_ref_id is a mandatory value if notified under Art 5")},
        {"TB2", fatal(" :  t_plan_adm_ref_id is a mandatory value")}}},
      {"provision", [](NtcRec& ntc) { ntc.t_prov.clear(); },
       {{"GT1/5 GS1/5",
         "FATAL ERROR : \r\n"
         "Notice No : 7 :  t_prov is a mandatory value if notified under Art 5\r\n"
         "(The value will be automatically generated if validated through Zamo and saved back to text file)\r\n"}}},
      {"agency", [](NtcRec& ntc) { ntc.t_op_agcy.clear(); }, {}},
  }, mandatoryOf);
  // clang-format on
}

TEST(AssignmentMandatory, a_fragment_in_lower_case_counts_and_another_fragment_asks_for_nothing) {
  NtcRec ntc = makeGs1();
  ntc.t_is_pub_req.clear();
  ntc.t_fragment = "kv19d";
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_is_pub_req is a mandatory value if notified under Art 4")));
  ntc.t_fragment = "KV18";
  EXPECT_EQ(mandatoryOf(ntc), kPassed);
  ntc = makeGs1UnderArt5();
  ntc.t_is_resub.clear();
  ntc.t_fragment = "ntfd_pz";
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_is_resub is a mandatory value if notified under Art 5")));
  ntc.t_fragment = "KV18";
  ntc.t_plan_adm_ref_id.clear();
  EXPECT_EQ(mandatoryOf(ntc), kPassed);
}

// ---- target of a modification

TEST(AssignmentTarget, under_article_4_a_modification_names_its_target) {
  for (const char* type : {"GT1", "GS1"}) {
    NtcRec ntc = makeNotice(type);
    ntc.t_action = "MODIFY";
    EXPECT_EQ(judge(checkAssgnMandatory, ntc), failed(fatal(" : t_trg_adm_ref_id is a mandatory value")))
        << type;
    EXPECT_EQ(mandatoryOf(ntc),
              failed(fatal(" :  t_trg_adm_ref_id must be same as t_adm_ref_id for fragment KV19D") +
                     fatal(" : t_trg_adm_ref_id is a mandatory value")));
    ntc.t_fragment.clear();
    EXPECT_EQ(judge(checkAssgnMandatory, ntc), failed(fatal(" : t_trg_adm_ref_id is a mandatory value")))
        << type;
    ntc.t_fragment = "KV19D";
    ntc.t_action = "modify";
    EXPECT_EQ(judge(checkAssgnMandatory, ntc), failed(fatal(" : t_trg_adm_ref_id is a mandatory value")))
        << type;
    ntc.t_trg_adm_ref_id = ntc.t_adm_ref_id;
    EXPECT_EQ(mandatoryOf(ntc), kPassed) << type;
    ntc.t_trg_adm_ref_id.clear();
    ntc.t_action = "ADD";
    EXPECT_EQ(mandatoryOf(ntc), kPassed) << type;
  }
}

void giveTarget(NtcRec& ntc) {
  ntc.t_trg_freq_assgn = "474";
  ntc.trg_long_deg = "2";
  ntc.trg_long_min = "24";
  ntc.trg_lat_deg = "47";
  ntc.trg_lat_min = "5";
}

const std::vector<TextMember> kTargetParts = {textAt<&NtcRec::t_trg_freq_assgn>,
                                              textAt<&NtcRec::trg_long_deg>, textAt<&NtcRec::trg_long_min>,
                                              textAt<&NtcRec::trg_lat_deg>, textAt<&NtcRec::trg_lat_min>};
const std::vector<TextMember> kFurtherTargetParts = {
    textAt<&NtcRec::trg_long_sec>, textAt<&NtcRec::trg_long_ew>, textAt<&NtcRec::trg_lat_sec>,
    textAt<&NtcRec::trg_lat_ns>};

TEST(AssignmentTarget, under_article_5_a_modification_names_its_target_in_one_of_two_ways) {
  const Verdict neither =
      failed(fatal(" :  Either t_trg_adm_ref_id Or t_trg_freq, t_trg_long and t_trg_lat must be provided"));
  const Verdict both =
      failed(fatal(" :  Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be provided, "
                   "but not both"));
  for (const char* kind : {"GT1/5", "GS1/5"}) {
    SCOPED_TRACE(kind);
    NtcRec bare = makeKind(kind);
    bare.t_action = "MODIFY";
    EXPECT_EQ(mandatoryOf(bare), neither);
    NtcRec named = bare;
    named.t_trg_adm_ref_id = "F-0099";
    EXPECT_EQ(mandatoryOf(named), kPassed);
    NtcRec located = bare;
    giveTarget(located);
    EXPECT_EQ(mandatoryOf(located), kPassed);
    for (const TextMember part : kTargetParts) {
      NtcRec lacking = located;
      part.of(lacking).clear();
      EXPECT_EQ(mandatoryOf(lacking), neither);
      NtcRec mixed = named;
      part.of(mixed) = part.in(located);
      EXPECT_EQ(mandatoryOf(mixed), both);
    }
    for (const TextMember part : kFurtherTargetParts) {
      NtcRec mixed = named;
      part.of(mixed) = "1";
      EXPECT_EQ(mandatoryOf(mixed), kPassed);
    }
    NtcRec mixed = located;
    mixed.t_trg_adm_ref_id = "F-0099";
    EXPECT_EQ(mandatoryOf(mixed), both);
    mixed.t_trg_adm_ref_id.clear();
    mixed.t_action = "ADD";
    EXPECT_EQ(mandatoryOf(mixed), kPassed);
  }
}

// ---- polarization

using Azimuths = std::array<AzmValueRec, kAzimuths>;

// What is given in a diagram.
enum class Given { none, one, all, allButOne };

Azimuths diagram(Given given) {
  if (given == Given::none) return {};
  Azimuths all = makeDiagram();
  if (given == Given::allButOne) all[20].value.clear();
  if (given == Given::one) {
    all = {};
    all[20] = {true, "200", "0"};
  }
  return all;
}

struct PolarizationCase {
  const char* polar;
  const char* antDir;
  const char* powerV;
  const char* powerH;
  Given v;
  Given h;
  std::string errs;
};

void expectPolarization(const std::vector<PolarizationCase>& cases) {
  for (const PolarizationCase& one : cases) {
    for (const std::string& kind : words(kAssignmentKinds)) {
      NtcRec ntc = makeKind(kind);
      ntc.t_polar = one.polar;
      ntc.t_ant_dir = one.antDir;
      ntc.t_erp_v_dbw = one.powerV;
      ntc.t_erp_h_dbw = one.powerH;
      ntc.ant_diagr_v = diagram(one.v);
      ntc.ant_diagr_h = diagram(one.h);
      EXPECT_EQ(mandatoryOf(ntc), (Verdict{one.errs.empty(), one.errs}))
          << kind << ' ' << one.polar << ' ' << one.antDir << " V \"" << one.powerV << "\" H \"" << one.powerH
          << '"' << " diagrams " << static_cast<int>(one.v) << static_cast<int>(one.h);
    }
  }
}

const std::string kNoPowerV = fatal(" :  t_erp_v_dbw is a mandatory value (8BV)");
const std::string kNoPowerH = fatal(" :  t_erp_h_dbw is a mandatory value (8BH)");
const std::string kNotAllOfH = fatal(
    " :  (9NH) <ANT_DIAGR_H> : All 36 values of e.r.p reduction of horizontally-polarized component must be "
    "provided");
const std::string kNotAllOfV = fatal(
    " :  (9NV) <ANT_DIAGR_V> : All 36 values of e.r.p reduction of vertically-polarized component must be "
    "provided");

TEST(AssignmentPolarization, mixed) {
  expectPolarization({
      {"M", "ND", "30", "30", Given::none, Given::none, ""},
      {"M", "ND", "", "30", Given::none, Given::none, kNoPowerV},
      {"M", "ND", "30", "", Given::none, Given::none, kNoPowerH},
      {"M", "ND", "", "", Given::none, Given::none, kNoPowerV + kNoPowerH},
      {"M", "D", "30", "30", Given::all, Given::all, ""},
      {"M", "D", "30", "30", Given::all, Given::none, kNotAllOfH},
      {"M", "D", "30", "30", Given::all, Given::one, kNotAllOfH},
      {"M", "D", "30", "30", Given::all, Given::allButOne, kNotAllOfH},
      {"M", "D", "30", "30", Given::none, Given::all, kNotAllOfV},
      {"M", "D", "30", "30", Given::allButOne, Given::all, kNotAllOfV},
      {"M", "D", "", "", Given::one, Given::none, kNoPowerV + kNoPowerH + kNotAllOfH + kNotAllOfV},
      {"M", "d", "30", "30", Given::none, Given::one, ""},
  });
}

TEST(AssignmentPolarization, vertical) {
  const std::string powerH = fatal(" :  t_erp_h_dbw should not be notified when polarization is V (8BH)");
  const std::string diagramH =
      fatal(" :  (9NH) <ANT_DIAGR_H> : should not be notified if the polarization isV");
  expectPolarization({
      {"V", "ND", "30", "", Given::none, Given::none, ""},
      {"V", "ND", "", "", Given::none, Given::none, kNoPowerV},
      {"V", "ND", "30", "30", Given::none, Given::none, powerH},
      {"V", "ND", "", "30", Given::none, Given::none, powerH},
      {"V", "D", "30", "", Given::all, Given::none, ""},
      {"V", "D", "30", "", Given::none, Given::none, kNotAllOfV},
      {"V", "D", "30", "", Given::allButOne, Given::none, kNotAllOfV},
      {"V", "D", "30", "", Given::all, Given::one, diagramH},
      {"V", "D", "30", "", Given::all, Given::all, diagramH},
      {"V", "D", "", "30", Given::none, Given::all, powerH + kNotAllOfV + diagramH},
      {"V", "d", "30", "", Given::one, Given::all, ""},
  });
}

TEST(AssignmentPolarization, horizontal) {
  const std::string powerV = fatal(" :  t_erp_v_dbw should not be notified when polarization is H (8BV)");
  const std::string diagramV =
      fatal(" :  (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is H");
  expectPolarization({
      {"H", "ND", "", "30", Given::none, Given::none, ""},
      {"H", "ND", "", "", Given::none, Given::none, kNoPowerH},
      {"H", "ND", "30", "30", Given::none, Given::none, powerV},
      {"H", "ND", "30", "", Given::none, Given::none, powerV},
      {"H", "D", "", "30", Given::none, Given::all, ""},
      {"H", "D", "", "30", Given::none, Given::none, kNotAllOfH},
      {"H", "D", "", "30", Given::none, Given::allButOne, kNotAllOfH},
      {"H", "D", "", "30", Given::one, Given::all, diagramV},
      {"H", "D", "", "30", Given::all, Given::all, diagramV},
      {"H", "D", "30", "", Given::all, Given::none, powerV + kNotAllOfH + diagramV},
      {"H", "d", "", "30", Given::all, Given::one, ""},
  });
}

TEST(AssignmentPolarization, polarization_is_compared_exactly) {
  expectPolarization({
      {"m", "D", "", "", Given::none, Given::none, ""},
      {"v", "D", "", "30", Given::none, Given::all, ""},
      {"h", "D", "30", "", Given::all, Given::none, ""},
      {"U", "D", "", "", Given::one, Given::one, ""},
  });
}

TEST(AssignmentPolarization, a_non_directional_antenna_has_no_diagram) {
  expectPolarization({
      {"V", "ND", "30", "", Given::one, Given::none,
       fatal(" :  (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is V and the antenna is "
             "ND")},
      {"V", "ND", "30", "", Given::none, Given::one,
       fatal(" (9NH) <ANT_DIAGR_H> : should not be notified if the polarization isV and the antenna is ND")},
      {"H", "ND", "", "30", Given::none, Given::all,
       fatal(" (9NH) <ANT_DIAGR_H> : should not be notified if the polarization isH and the antenna is ND")},
      {"H", "ND", "", "30", Given::all, Given::all,
       fatal(" :  (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is H and the antenna is "
             "ND")},
      {"M", "ND", "30", "30", Given::one, Given::one,
       fatal(" :  (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is M and the antenna is "
             "ND")},
      {"M", "nd", "30", "30", Given::one, Given::one, ""},
  });
}

TEST(AssignmentPolarization, other_types_are_not_asked) {
  expectChanges({{"V",
                  [](NtcRec& ntc) {
                    ntc.t_polar = "V";
                    ntc.t_ant_dir = "D";
                    ntc.t_erp_v_dbw = ntc.t_erp_h_dbw;
                    ntc.t_erp_h_dbw.clear();
                    std::swap(ntc.ant_diagr_v, ntc.ant_diagr_h);
                  },
                  {}},
                 {"ND",
                  [](NtcRec& ntc) {
                    ntc.t_ant_dir = "ND";
                    ntc.ant_diagr_h = {};
                  },
                  {}}},
                mandatoryOf);
  for (const char* type : {"GT2", "GS2"}) {
    for (const char* polar : {"V", "H", "M", "U"}) {
      NtcRec ntc = makeNotice(type);
      ntc.t_polar = polar;
      EXPECT_EQ(mandatoryOf(ntc), kPassed) << type << polar;
    }
  }
}

// ---- network, plan and system

TEST(AssignmentMandatory, a_single_station_has_no_network_of_an_allotment) {
  const std::string told =
      fatal(" : if t_assgn_code = S then t_associated_allot_sfn_id must not be provided");
  for (const std::string& kind : words(kAssignmentKinds)) {
    SCOPED_TRACE(kind);
    NtcRec ntc = makeKind(kind);
    ntc.digital.t_associated_allot_sfn_id = "F-SFN-0001";
    EXPECT_EQ(mandatoryOf(ntc), failed(told));
    ntc.t_assgn_code = "s";
    EXPECT_EQ(mandatoryOf(ntc), failed(told));
    ntc.t_plan_entry.clear();
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_plan_entry is a mandatory value") + told));
    ntc.t_assgn_code = "L";
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_plan_entry is a mandatory value")));
  }
}

TEST(AssignmentMandatory, the_network_of_the_allotment_is_the_one_of_the_assignment) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    SCOPED_TRACE(kind);
    NtcRec ntc = makeKind(kind);
    ntc.t_plan_entry = "3";
    ntc.t_assgn_code = "C";
    ntc.digital.t_sfn_id = "F-SFN-0001";
    ntc.digital.t_associated_adm_allot_id = "F-0002";
    for (const char* other : {"F-SFN-0002", "f-sfn-0001", "F-SFN-0001 "}) {
      ntc.digital.t_associated_allot_sfn_id = other;
      EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_associated_allot_sfn_id must be equal to t_sfn_id")));
    }
    ntc.digital.t_associated_allot_sfn_id = "F-SFN-0001";
    EXPECT_EQ(mandatoryOf(ntc), kPassed);
    ntc.digital.t_sfn_id.clear();
    EXPECT_EQ(mandatoryOf(ntc),
              failed("FATAL ERROR : \r\n"
                     "Notice No : 7 : For t_plan_entry = 3, t_sfn_id MUST be provided\r\n\r\n"));
  }
}

TEST(AssignmentMandatory, a_sound_assignment_has_a_planning_configuration) {
  expectChanges(
      {{"configuration",
        [](NtcRec& ntc) { ntc.digital.t_ref_plan_cfg.clear(); },
        {{"GS1 GS1/5 GT2 GS2", fatal(" :  t_ref_plan_cfg is mandatory")},
         {"GT1", fatal(" :  Either {t_sys_var, t_rx_mode} or {t_ref_plan_cfg} must be provided if notifed "
                       "under Art 4")}}}},
      mandatoryOf);
}

TEST(AssignmentMandatory, system_or_planning_configuration_of_television) {
  const std::string either =
      fatal(" :  Either {t_sys_var, t_rx_mode} or {t_ref_plan_cfg} must be provided if notifed under Art 4");
  const std::string pair = fatal(" : {t_sys_var, t_rx_mode} must be provided");
  const std::string notBoth = fatal(
      " :  If t_ref_plan_cfg is provided then {t_sys_var, t_rx_mode} must NOT be provided if notifed under "
      "Art 4");
  const std::string noConfiguration = fatal(
      " : t_ref_plan_cfg must not be provided if notified under Art 5, however {t_sys_var, t_rx_mode} must "
      "be "
      "provided");
  const struct {
    const char* configuration;
    const char* variant;
    const char* mode;
    std::string underArt4;
    std::string underArt5;
  } cases[] = {
      {"", "", "", either, pair},
      {"", "C2", "", pair, pair},
      {"", "", "FX", pair, pair},
      {"", "C2", "FX", "", ""},
      {"RPC1", "", "", "", noConfiguration + pair},
      {"RPC1", "C2", "", notBoth, noConfiguration + pair},
      {"RPC1", "", "FX", notBoth, noConfiguration + pair},
      {"RPC1", "C2", "FX", notBoth, noConfiguration},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(std::string(one.configuration) + '/' + one.variant + '/' + one.mode);
    const auto verdictOn = [&one](NtcRec ntc, const char* fragment) {
      ntc.t_fragment = fragment;
      ntc.digital.t_ref_plan_cfg = one.configuration;
      ntc.t_sys_var = one.variant;
      ntc.digital.t_rx_mode = one.mode;
      return mandatoryOf(ntc);
    };
    const Verdict underArt4{one.underArt4.empty(), one.underArt4};
    const Verdict underArt5{one.underArt5.empty(), one.underArt5};
    EXPECT_EQ(verdictOn(makeGt1(), "KV19D"), underArt4);
    EXPECT_EQ(verdictOn(makeGt1(), "kv19d"), underArt4);
    EXPECT_EQ(verdictOn(makeGt1(), "KV18"), kPassed);
    EXPECT_EQ(verdictOn(makeGt1UnderArt5(), "NTFD_PZ"), underArt5);
    EXPECT_EQ(verdictOn(makeGt1UnderArt5(), "ntfd_pz"), underArt5);
  }
}

TEST(AssignmentMandatory, power_and_angle_of_a_beam_tilt_come_together) {
  const auto absentIn = [](const char* key) {
    std::vector<Outcome> outcomes;
    for (const char* type : {"GT2", "GS2", "GA1", "TB2", "TB3", "TB5"}) {
      outcomes.push_back({type, fatal(std::string(" : ") + key + " should not be notified for a " + type)});
    }
    outcomes.push_back({"GS1 GS1/5", fatal(std::string(" : ") + key + " should not be notified for a GS1")});
    return outcomes;
  };
  std::vector<Outcome> power = absentIn("t_erp_beam_tilt_dbw");
  power.push_back(
      {"GT1 GT1/5", fatal(" : if t_erp_beam_tilt_dbw is provided then t_beam_tilt_angle must be provided")});
  std::vector<Outcome> angle = absentIn("t_beam_tilt_angle");
  angle.push_back(
      {"GT1 GT1/5", fatal(" : if t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided")});
  expectChanges({{"power", [](NtcRec& ntc) { ntc.t_erp_beam_tilt_dbw = "45"; }, power},
                 {"angle", [](NtcRec& ntc) { ntc.t_beam_tilt_angle = "1"; }, angle}},
                mandatoryOf);
  for (NtcRec ntc : {makeGt1(), makeGt1UnderArt5()}) {
    ntc.t_erp_beam_tilt_dbw = "45";
    ntc.t_beam_tilt_angle = "1";
    EXPECT_EQ(mandatoryOf(ntc), kPassed);
  }
}

// ---- absent fields

// A line for each type of `types` that says a key should not be notified for it.
std::vector<Outcome> absentFor(const char* types, const char* key) {
  std::vector<Outcome> outcomes;
  for (const char* kind : {"GT1", "GT1/5", "GS1", "GS1/5", "GT2", "GS2", "GA1", "TB2", "TB3", "TB5"}) {
    const std::string type = std::string(kind).substr(0, 3);
    for (const std::string& one : words(types)) {
      if (one == type)
        outcomes.push_back({kind, fatal(std::string(" : ") + key + " should not be notified for a " + type)});
    }
  }
  return outcomes;
}

std::vector<Outcome> operator+(std::vector<Outcome> first, const std::vector<Outcome>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST(AssignmentAbsent, what_belongs_to_an_allotment) {
  // clang-format off
  expectChanges({
      {"network", [](NtcRec& ntc) { ntc.digital.allot.t_typ_ref_netwk = "RN1"; }, absentFor("GT1 GS1 GA1 TB2 TB3 TB5", "t_typ_ref_netwk")},
      {"name", [](NtcRec& ntc) { ntc.digital.allot.t_allot_name = "CENTRE"; }, absentFor("GT1 GS1 GA1 TB2 TB3 TB5", "t_allot_name")},
      {"area", [](NtcRec& ntc) { ntc.digital.allot.t_geo_area = "F"; }, absentFor("GT1 GS1 GA1 TB2 TB3 TB5", "t_geo_area")},
      {"first contour", [](NtcRec& ntc) { ntc.digital.allot.t_contour_id[0] = "1"; }, absentFor("GT1 GS1 GA1 TB2 TB3 TB5", "t_contour_id")},
      {"last contour", [](NtcRec& ntc) { ntc.digital.allot.t_contour_id[9] = "1"; }, absentFor("GT1 GS1 GA1 TB2 TB3 TB5", "t_contour_id")},
      {"sub-areas", [](NtcRec& ntc) { ntc.digital.allot.t_nb_sub_areas = "1"; },
       std::vector<Outcome>{{"GT2 GS2", fatal(" :  If t_geo_area is provided then t_nb_sub_areas should not be given")}}
           + absentFor("GT1 GS1 GA1 TB2 TB3 TB5", "t_nb_sub_areas")},
  }, mandatoryOf);
  // clang-format on
}

TEST(AssignmentAbsent, each_contour_is_told) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    NtcRec ntc = makeKind(kind);
    const std::string line = fatal(" : t_contour_id should not be notified for a " + ntc.t_notice_type);
    ntc.digital.allot.t_contour_id[1] = "1";
    ntc.digital.allot.t_contour_id[4] = "1";
    EXPECT_EQ(mandatoryOf(ntc), failed(line + line)) << kind;
    ntc.digital.allot.t_contour_id.fill("2");
    EXPECT_EQ(mandatoryOf(ntc), failed(line + line + line + line + line + line + line + line + line + line))
        << kind;
  }
}

TEST(AssignmentAbsent, a_contour_and_its_points) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    SCOPED_TRACE(kind);
    NtcRec ntc = makeKind(kind);
    const std::string& type = ntc.t_notice_type;
    ContourRec& contour = ntc.digital.contour;
    contour.t_contour_id = "1";
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_contour_id should not be notified for a " + type)));
    contour.t_contour_id.clear();
    contour.points = {{true, "+0020000", "+470000"}, {}, {true, "+0030000", "+470000"}, {true, "", ""}};
    EXPECT_EQ(mandatoryOf(ntc), kPassed);
    contour.t_nb_test_pts = "1";
    const std::string point = fatal(" : t_long and t_lat should not be notified for a " + type);
    EXPECT_EQ(mandatoryOf(ntc),
              failed(fatal(" : t_nb_test_pts should not be notified for a " + type) + point + point + point));
    contour.points.clear();
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_nb_test_pts should not be notified for a " + type)));
  }
}

TEST(AssignmentAbsent, the_target_of_an_addition) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    SCOPED_TRACE(kind);
    NtcRec ntc = makeKind(kind);
    ntc.t_trg_adm_ref_id = ntc.t_adm_ref_id;
    EXPECT_EQ(mandatoryOf(ntc),
              failed(fatal(" : t_trg_adm_ref_id should not be notified for a ADD; t_adm_ref_id is "
                           "used as the identifier of the target")));
    ntc.t_action = "add";
    EXPECT_EQ(mandatoryOf(ntc),
              failed(fatal(" : t_trg_adm_ref_id should not be notified for a add; t_adm_ref_id is "
                           "used as the identifier of the target")));
    for (const char* action : {"MODIFY", "SUPPRESS", "WITHDRAW"}) {
      ntc.t_action = action;
      EXPECT_EQ(mandatoryOf(ntc), kPassed) << action;
    }
  }
}

TEST(AssignmentAbsent, system_of_a_sound_assignment) {
  const std::string pair = fatal(
      " :  If t_ref_plan_cfg is provided then {t_sys_var, t_rx_mode} must NOT be provided if notifed under "
      "Art 4");
  const std::vector<Outcome> television = {{"GT1", pair}};
  expectChanges({{"variant", [](NtcRec& ntc) { ntc.t_sys_var = "C2"; },
                  television + absentFor("GS1 GT2 GS2 GA1 TB2 TB3 TB5", "t_sys_var")},
                 {"mode", [](NtcRec& ntc) { ntc.digital.t_rx_mode = "FX"; },
                  television + absentFor("GS1 GT2 GS2 GA1 TB2 TB3 TB5", "t_rx_mode")}},
                mandatoryOf);
}

TEST(AssignmentAbsent, what_belongs_to_the_other_article) {
  const auto underArt4 = [](const char* key, const char* otherTypes) {
    return std::vector<Outcome>{
               {"GT1 GS1", fatal(std::string(" : ") + key + " should not be notified under Art 4")}} +
           absentFor(otherTypes, key);
  };
  // clang-format off
  expectChanges({
      {"agency", [](NtcRec& ntc) { ntc.t_op_agcy = "001"; }, underArt4("t_op_agcy", "GT2 GS2 GA1 TB3 TB5")},
      {"address", [](NtcRec& ntc) { ntc.t_addr_code = "A"; }, underArt4("t_addr_code", "GT2 GS2 GA1 TB3 TB5")},
      {"first hour", [](NtcRec& ntc) { ntc.op_hours.t_op_hh_fr = "0000"; }, underArt4("t_op_hh_fr", "GT2 GS2 GA1 TB3 TB5")},
      {"last hour", [](NtcRec& ntc) { ntc.op_hours.t_op_hh_to = "2400"; }, underArt4("t_op_hh_to", "GT2 GS2 GA1 TB3 TB5")},
      {"conditions", [](NtcRec& ntc) { ntc.t_remark_conds_met = "TRUE"; }, underArt4("t_remarks_conds_met", "GT2 GS2 GA1 TB2 TB3 TB5")},
      {"resubmission", [](NtcRec& ntc) { ntc.t_is_resub = "TRUE"; }, underArt4("t_is_resub", "GT2 GS2 GA1 TB2 TB3 TB5")},
      {"commitment", [](NtcRec& ntc) { ntc.t_signed_commitment = "TRUE"; }, underArt4("t_signed_commitment", "GT2 GS2 GA1 TB2 TB3 TB5")},
      {"publication", [](NtcRec& ntc) { ntc.t_is_pub_req = "TRUE"; },
       std::vector<Outcome>{{"GT1/5 GS1/5 GA1", fatal(" : t_is_pub_req should not be notified under Art 5")}}
           + absentFor("TB2 TB3 TB5", "t_is_pub_req")},
      {"date of use", [](NtcRec& ntc) { ntc.t_d_inuse = "2009-02-01"; }, absentFor("GT2 GS2 GA1 TB3 TB5", "t_d_inuse")},
      {"provision", [](NtcRec& ntc) { ntc.t_prov = "PZ11.2"; }, {}},
  }, mandatoryOf);
  // clang-format on
}

TEST(AssignmentAbsent, a_fragment_in_lower_case_counts_and_another_fragment_forbids_nothing) {
  NtcRec ntc = makeGs1();
  ntc.t_op_agcy = "001";
  ntc.t_fragment = "kv19d";
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_op_agcy should not be notified under Art 4")));
  ntc.t_fragment = "KV18";
  EXPECT_EQ(mandatoryOf(ntc), kPassed);
  ntc = makeGs1UnderArt5();
  ntc.t_is_pub_req = "TRUE";
  ntc.t_fragment = "ntfd_pz";
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_is_pub_req should not be notified under Art 5")));
}

// ---- order

TEST(AssignmentMandatory, findings_on_an_empty_television_notice_come_in_order) {
  NtcRec ntc;
  ntc.t_notice_type = "GT1";
  ntc.t_action = "MODIFY";
  ntc.t_fragment = "KV19D";
  ntc.t_adm = "F";
  ntc.t_ctry = "F";
  const std::string errs =
      fatal(" :  t_adm_ref_id is a mandatory value") + fatal(" : t_trg_adm_ref_id is a mandatory value") +
      fatal(" :  t_sitename is a mandatory value (4A)") + fatal(" :  t_long is a mandatory value (4C)") +
      fatal(" :  t_lat is a mandatory value (4C)") + fatal(" :  t_site_alt is a mandatory value (9EA)") +
      fatal(" :  t_polar is a mandatory value (9D)") + fatal(" :  t_hgt_agl is a mandatory value (9E)") +
      fatal(" :  t_ant_dir is a mandatory value (9)") + fatal(" :  t_eff_hgtmax is a mandatory value (9EB)") +
      fatal(" :  t_spect_mask is a mandatory value") +
      fatal(" :  (9EC) <ANT_HGT> : All 36 values of the effective antenna height must be provided") +
      fatal(" :  t_freq_assgn is a mandatory value (1A)") + fatal(" :  t_plan_entry is a mandatory value") +
      fatal(" :  t_assgn_code is a mandatory value") +
      fatal(" :  t_is_pub_req is a mandatory value if notified under Art 4") +
      fatal(" :  Either {t_sys_var, t_rx_mode} or {t_ref_plan_cfg} must be provided if notifed under Art 4");
  EXPECT_EQ(judge(checkAssgnMandatory, ntc), failed(errs));
  EXPECT_EQ(mandatoryOf(ntc), failed(errs));
}

TEST(AssignmentMandatory, findings_on_an_empty_sound_notice_under_article_5_come_in_order) {
  NtcRec ntc;
  ntc.t_notice_type = "GS1";
  ntc.t_action = "MODIFY";
  ntc.t_fragment = "NTFD_PZ";
  ntc.t_polar = "M";
  ntc.t_ant_dir = "D";
  EXPECT_EQ(
      judge(checkAssgnMandatory, ntc),
      failed(
          fatal(" :  t_adm_ref_id is a mandatory value") +
          fatal(" :  Either t_trg_adm_ref_id Or t_trg_freq, t_trg_long and t_trg_lat must be provided") +
          fatal(" :  t_sitename is a mandatory value (4A)") + fatal(" :  t_long is a mandatory value (4C)") +
          fatal(" :  t_lat is a mandatory value (4C)") + fatal(" :  t_site_alt is a mandatory value (9EA)") +
          fatal(" :  t_hgt_agl is a mandatory value (9E)") +
          fatal(" :  t_eff_hgtmax is a mandatory value (9EB)") +
          fatal(" :  t_spect_mask is a mandatory value") +
          fatal(" :  (9EC) <ANT_HGT> : All 36 values of the effective antenna height must be provided") +
          fatal(" :  t_freq_assgn is a mandatory value (1A)") + kNoPowerV + kNoPowerH + kNotAllOfH +
          kNotAllOfV + fatal(" :  t_plan_entry is a mandatory value") +
          fatal(" :  t_assgn_code is a mandatory value") +
          fatal(" :  t_d_inuse is a mandatory value if notified under Art 5 (2C)") +
          fatal(" :  t_addr_code is a mandatory value if notified under Art 5 (12B)") +
          fatal(" :  t_op_hh_fr is a mandatory value if notified under Art 5 (10B)") +
          fatal(" :  t_op_hh_to is a mandatory value if notified under Art 5 (10B)") +
          fatal(" :  t_remark_conds_met is a mandatory value if notified under Art 5") +
          fatal(" :  t_is_resub is a mandatory value if notified under Art 5") +
          fatal(" :  t_signed_commitment is a mandatory value if notified under Art 5") +
          fatal(" :  t_plan_adm_ref_id is a mandatory value if notified under Art 5") +
          fatal(" :  t_prov is a mandatory value if notified under Art 5\r\n(The value will be automatically "
                "generated if validated through Zamo and saved back to text file)") +
          fatal(" :  t_ref_plan_cfg is mandatory")));
}

// All that an assignment of sound may not have under Art 4.
NtcRec makeOverfullGs1() {
  NtcRec ntc = makeGs1();
  ntc.t_polar = "V";
  ntc.t_erp_v_dbw = "30";
  ntc.t_ant_dir = "ND";
  ntc.digital.t_sfn_id = "SFN-1";
  ntc.digital.t_associated_adm_allot_id = "F-0002";
  ntc.digital.t_associated_allot_sfn_id = "SFN-2";
  ntc.digital.allot = {true, "CENTRE", "F", "2", "RN1", {"1", "2"}};
  ntc.t_trg_adm_ref_id = "F-0001";
  ntc.digital.contour.t_contour_id = "3";
  ntc.digital.contour.t_nb_test_pts = "1";
  ntc.digital.contour.points[0].present = true;
  ntc.t_sys_var = "D2";
  ntc.digital.t_rx_mode = "FX";
  ntc.t_erp_beam_tilt_dbw = "45";
  ntc.t_beam_tilt_angle = "1";
  ntc.t_op_agcy = "001";
  ntc.t_addr_code = "A";
  ntc.op_hours = {true, "0000", "2400"};
  ntc.t_remark_conds_met = ntc.t_is_resub = ntc.t_signed_commitment = "TRUE";
  return ntc;
}

TEST(AssignmentMandatory, findings_on_what_should_be_absent_come_in_order) {
  NtcRec ntc = makeOverfullGs1();
  const std::string errs =
      fatal(" :  t_erp_h_dbw should not be notified when polarization is V (8BH)") +
      fatal(" (9NH) <ANT_DIAGR_H> : should not be notified if the polarization isV and the antenna is ND") +
      fatal(
          " : For t_plan_entry = 1, t_sfn_id must NOT be provided\r\n"
          "For t_plan_entry = 1, t_associated_adm_allot_id must NOT be provided\r\n") +
      fatal(" : if t_assgn_code = S then t_associated_allot_sfn_id must not be provided") +
      fatal(" : t_typ_ref_netwk should not be notified for a GS1") +
      fatal(
          " : t_trg_adm_ref_id should not be notified for a ADD; t_adm_ref_id is used as the identifier of "
          "the "
          "target") +
      fatal(" : t_allot_name should not be notified for a GS1") +
      fatal(" : t_geo_area should not be notified for a GS1") +
      fatal(" : t_nb_sub_areas should not be notified for a GS1") +
      fatal(" : t_contour_id should not be notified for a GS1") +
      fatal(" : t_contour_id should not be notified for a GS1") +
      fatal(" : t_nb_test_pts should not be notified for a GS1") +
      fatal(" : t_long and t_lat should not be notified for a GS1") +
      fatal(" : t_contour_id should not be notified for a GS1") +
      fatal(" : t_sys_var should not be notified for a GS1") +
      fatal(" : t_rx_mode should not be notified for a GS1") +
      fatal(" : t_erp_beam_tilt_dbw should not be notified for a GS1") +
      fatal(" : t_beam_tilt_angle should not be notified for a GS1") +
      fatal(" : t_op_agcy should not be notified under Art 4") +
      fatal(" : t_addr_code should not be notified under Art 4") +
      fatal(" : t_op_hh_fr should not be notified under Art 4") +
      fatal(" : t_op_hh_to should not be notified under Art 4") +
      fatal(" : t_remarks_conds_met should not be notified under Art 4") +
      fatal(" : t_is_resub should not be notified under Art 4") +
      fatal(" : t_signed_commitment should not be notified under Art 4") +
      fatal(" : t_associated_allot_sfn_id must be equal to t_sfn_id");
  EXPECT_EQ(mandatoryOf(ntc), failed(errs));
}

TEST(AssignmentMandatory, television_under_article_5_ends_with_beam_tilt_system_and_publication) {
  NtcRec ntc = makeGt1UnderArt5();
  ntc.t_beam_tilt_angle = "1";
  ntc.digital.t_ref_plan_cfg = "RPC1";
  ntc.t_sys_var.clear();
  ntc.t_is_pub_req = "TRUE";
  EXPECT_EQ(
      mandatoryOf(ntc),
      failed(fatal(" : if t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided") +
             fatal(" : t_ref_plan_cfg must not be provided if notified under Art 5, however {t_sys_var, "
                   "t_rx_mode} must be provided") +
             fatal(" : {t_sys_var, t_rx_mode} must be provided") +
             fatal(" : t_is_pub_req should not be notified under Art 5")));
}

}  // namespace
}  // namespace zamo
