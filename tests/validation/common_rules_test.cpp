#include "validation/common_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "support/rule_cases.h"
#include "validation/reference_rules.h"

namespace zamo {
namespace {

Date day(int year, unsigned month, unsigned dayOfMonth) {
  return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(dayOfMonth)};
}

// The number of the error that the values of a record raise, 0 for none.
int errorNumberOf(const NtcRec& ntc) {
  try {
    valuesOf(ntc);
  } catch (const RunTimeError& error) {
    return error.number;
  }
  return 0;
}

// ---- the frame

TEST(CommonRules, valid_notices_have_no_finding) {
  std::vector<NtcRec> notices = {makeGt1UnderArt5(), makeGs1UnderArt5()};
  for (const std::string_view type : kNoticeTypes) notices.push_back(makeNotice(type));
  for (const NtcRec& ntc : notices) {
    SCOPED_TRACE(ntc.t_notice_type + ' ' + ntc.t_fragment);
    EXPECT_EQ(valuesOf(ntc), kPassed);
    EXPECT_EQ(mandatoryOf(ntc), kPassed);
    EXPECT_EQ(judge(checkNtcRefs, ntc), kPassed);
  }
}

TEST(CommonRules, a_fatal_finding_is_a_head_a_label_and_a_message) {
  NtcRec ntc = makeGt1();
  ntc.t_hgt_agl = "801";
  std::string errs;
  EXPECT_FALSE(checkNtcValues(ntc, errs, "Notice No : 12 (GT1)", kToday));
  EXPECT_EQ(errs,
            "FATAL ERROR : \r\n"
            "Notice No : 12 (GT1) :  t_hgt_agl : Value should be between [0, 800] (9E)\r\n");
}

TEST(CommonRules, a_warning_has_its_own_head_and_leaves_the_result) {
  NtcRec ntc = makeGs1();
  ntc.t_call_sign = "FIP";
  std::string errs;
  EXPECT_TRUE(checkNtcValues(ntc, errs, "GS1", kToday));
  EXPECT_EQ(errs, "WARNING : \r\nGS1 : t_call_sign (3A1) provided but NOT validated.\r\n");
}

TEST(CommonRules, a_glued_message_stands_directly_behind_the_label) {
  NtcRec ntc = makeTb3();
  ntc.t_fragment = "KV19D";
  std::string errs;
  EXPECT_FALSE(checkNtcMandatory(ntc, errs, "TB3 in line 4"));
  EXPECT_EQ(errs, "FATAL ERROR : \r\nTB3 in line 4 : t_fragment should not be notified for a TB3\r\n");
}

TEST(CommonRules, findings_are_added_behind_what_stands_there) {
  NtcRec ntc = makeGs2();
  ntc.t_offset = "501";
  ntc.t_ctry.clear();
  std::string errs = "before\r\n";
  EXPECT_FALSE(checkNtcValues(ntc, errs, "L", kToday));
  EXPECT_FALSE(checkNtcMandatory(ntc, errs, "L"));
  EXPECT_EQ(errs,
            "before\r\n"
            "FATAL ERROR : \r\nL :  t_offset  t_offset : Value should be between [-500.0, 500.0] (1E)\r\n"
            "FATAL ERROR : \r\nL :  t_ctry is a mandatory value (4B)\r\n");
}

TEST(CommonRules, types_are_compared_in_any_case) {
  NtcRec ntc = makeGt1();
  ntc.t_notice_type = "gt1";
  ntc.t_erp_h_dbw = "53.1";
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" :  t_erp_h_dbw : Value should be <= 53.0 (8BH)")));
  ntc = makeTb3();
  ntc.t_notice_type = "tb3";
  ntc.t_trg_adm_ref_id.clear();
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_trg_adm_ref_id is a mandatory value")));
}

TEST(CommonRules, a_record_without_a_type_meets_the_rules_of_all_types) {
  NtcRec ntc;
  EXPECT_EQ(valuesOf(ntc), kPassed);
  EXPECT_EQ(
      mandatoryOf(ntc),
      failed(fatal(" :  t_adm is a mandatory value (B)") + fatal(" :  t_notice_type is a mandatory value") +
             fatal(" :  t_action is a mandatory value") + fatal(" :  t_fragment is a mandatory value") +
             fatal(" :  t_ctry is a mandatory value (4B)")));
  ntc.t_action = "SUPPRESS";
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" :  t_action : Acceptable values are {ADD, MODIFY}")));
}

// ---- values

TEST(CommonValues, action_by_type) {
  const TextMember action = textAt<&NtcRec::t_action>;
  expectValues({"GT1 GS1 GT2 GS2",
                action,
                {"", "ADD", "MODIFY", "WITHDRAW", "CONFORM", "PARTB", "add", "X"},
                {"SUPPRESS", "suppress", "Suppress"},
                fatal(" :  t_action : Acceptable values are {ADD, MODIFY}")});
  expectValues({"GA1",
                action,
                {"", "ADD", "SUPPRESS", "WITHDRAW", "CONFORM", "PARTB", "X"},
                {"MODIFY", "modify"},
                fatal(" :  t_action : Acceptable values are {ADD, SUPPRESS}")});
  expectValues({"TB5",
                action,
                {"", "SUPPRESS", "WITHDRAW", "withdraw"},
                {"MODIFY", "modify"},
                fatal(" :  t_action : Acceptable values are {SUPPRESS, WITHDRAW}") +
                    fatal(" :  t_action : Acceptable values are {ADD, SUPPRESS}")});
  expectValues({"TB2 TB3",
                action,
                {""},
                {"SUPPRESS", "suppress"},
                fatal(" :  t_action : Acceptable values are {PARTB}") +
                    fatal(" :  t_action : Acceptable values are {ADD, MODIFY}")});
  expectValues({"TB2",
                action,
                {"CONFORM", "conform"},
                {"ADD", "MODIFY", "PARTB"},
                fatal(" :  t_action : Acceptable values are {PARTB}")});
  expectValues({"TB3",
                action,
                {"PARTB", "partb"},
                {"ADD", "MODIFY", "CONFORM"},
                fatal(" :  t_action : Acceptable values are {PARTB}")});
  expectValues({"TB5",
                action,
                {},
                {"ADD", "PARTB", "CONFORM"},
                fatal(" :  t_action : Acceptable values are {SUPPRESS, WITHDRAW}")});
}

TEST(CommonValues, heights_and_offset_of_all_types) {
  expectValues({kAllKinds,
                textAt<&NtcRec::t_hgt_agl>,
                {"", "0", "-0", "0.0", "400", "799.9", "800", "800.0", "  800", "+800", "800 m", "abc", "-"},
                {"-1", "-0.1", "800.1", "801", "  801", "+801", "801 m", "1e3", "8 01"},
                fatal(" :  t_hgt_agl : Value should be between [0, 800] (9E)")});
  expectValues({kAllKinds,
                textAt<&NtcRec::t_site_alt>,
                {"", "-1000", "-999.9", "0", "8849.9", "8850", "  -1000", "8850m", "abc"},
                {"-1001", "-1000.1", "8850.1", "8851", "  8851", "-  1001", "99999"},
                fatal(" :  t_site_alt : Value should be an integer between [-1000, 8850] (9EA)")});
  expectValues({kAllKinds,
                textAt<&NtcRec::t_offset>,
                {"", "-500", "-500.0", "-499.9", "0", "500", "500.0", "  -500", "500 kHz", "abc"},
                {"-501", "-500.1", "500.1", "501", "  501", "+500.01"},
                fatal(" :  t_offset  t_offset : Value should be between [-500.0, 500.0] (1E)")});
}

TEST(CommonValues, highest_effective_height_of_all_types) {
  const std::string refusal =
      fatal(" : t_eff_hgtmax  : Value should be an integer between [-3000, 3000] (9EB)");
  expectValues({kAllKinds,
                textAt<&NtcRec::t_eff_hgtmax>,
                {"", "250", "2999.9", "3000", "  3000", "3000m"},
                {"3000.1", "3001", "  3001", "1e4"},
                refusal});
  expectValues({"GT2 GS2 GA1 TB2 TB3 TB5",
                textAt<&NtcRec::t_eff_hgtmax>,
                {"-3000", "-2999.9", "0", "abc"},
                {"-3000.1", "-3001"},
                refusal});
  for (const std::string_view type : {"GT1", "GS1"}) {
    NtcRec ntc = makeNotice(type);
    ntc.ant_hgt = makeAzimuths("-3000");
    for (const char* height : {"-3000", "-2999.9"}) {
      ntc.t_eff_hgtmax = height;
      EXPECT_EQ(valuesOf(ntc), kPassed) << type << ' ' << height;
    }
    ntc.t_eff_hgtmax = "-3000.1";
    EXPECT_EQ(valuesOf(ntc), failed(refusal)) << type;
  }
}

TEST(CommonValues, spectrum_mask_by_type) {
  const TextMember mask = textAt<&NtcRec::digital, &DigitalRec::t_spect_mask>;
  expectValues({"GT1 GT2",
                mask,
                {"", "S", "N", "s", "n"},
                {"1", "2", "3", "X", "SN", " S", "S "},
                fatal(" :  t_spect_mask : Acceptable values are : for DVB-T : {N, S} ")});
  expectValues({"GS1 GS2",
                mask,
                {"", "1", "2", "3"},
                {"S", "N", "0", "4", "12", " 1", "1 ", "01"},
                fatal(" :  t_spect_mask : Acceptable values are : for T-DAB : {1, 2, 3}")});
  expectValues({"GA1 TB2 TB3 TB5", mask, {"", "S", "1", "4", "X"}, {}, ""});
}

TEST(CommonValues, planning_configuration_by_type) {
  const TextMember configuration = textAt<&NtcRec::digital, &DigitalRec::t_ref_plan_cfg>;
  const std::string refusal = fatal(
      " :  t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for T_DAB : {RPC4, "
      "RPC5}");
  expectValues({"GT1 GT2",
                configuration,
                {"", "RPC1", "RPC2", "RPC3", "rpc1", "Rpc3"},
                {"RPC4", "RPC5", "RPC0", "RPC6", "RPC", "RPC11", " RPC1", "1"},
                refusal});
  expectValues({"GS1 GS2",
                configuration,
                {"", "RPC4", "RPC5", "rpc4", "rpc5"},
                {"RPC1", "RPC2", "RPC3", "RPC6", "RPC", "RPC44", " RPC4", "4"},
                refusal});
  expectValues({"GA1 TB2 TB3 TB5", configuration, {"", "RPC1", "RPC4", "RPC9", "X"}, {}, ""});
}

TEST(CommonValues, reference_network_of_a_television_allotment) {
  const TextMember network = textAt<&NtcRec::digital, &DigitalRec::allot, &AllotRec::t_typ_ref_netwk>;
  expectValues(
      {"GT2",
       network,
       {"", "RN1", "RN2", "RN3", "RN4", "rn1", "rn4"},
       {"RN0", "RN5", "RN", "RN11", " RN1", "X"},
       fatal(" :  t_typ_ref_netwk : Acceptable values are : for DVB-T allotment : {RN1, RN2, RN3, RN4}")});
  expectValues({"GT1 GS1 GS2 GA1 TB2 TB3 TB5", network, {"RN1", "RN5", "X"}, {}, ""});
}

TEST(CommonValues, number_of_test_points_of_a_contour) {
  const TextMember count = textAt<&NtcRec::digital, &DigitalRec::contour, &ContourRec::t_nb_test_pts>;
  expectValues({"GA1",
                count,
                {"3", "4", "50", "98", "99", "  3", "99 points", "3.5"},
                {"", "0", "2", "2.9", "99.1", "100", "-3", "abc", " "},
                fatal(" : Value must be between [3-99]")});
  expectValues({"GT1 GS1 GT2 GS2 TB2 TB3 TB5", count, {"", "0", "2", "100"}, {}, ""});
}

TEST(CommonValues, system_variant_of_all_types) {
  const TextMember variant = textAt<&NtcRec::t_sys_var>;
  expectValues({kAllKinds,
                variant,
                {""},
                {"A12", "XYZ", "A1 ", "   ", "A1B2C3"},
                fatal(" :  t_sys_var : Maximum number of alphanumerical characters is 2 ")});
  expectValues(
      {kAllKinds,
       variant,
       {},
       {"A", "1", "A4", "A6", "A0", "A8", "A9", "F4", "G1", "@1", "a1", "f7", "1A", " 1", "A ", " "},
       fatal(" :  t_sys_var : Acceptable values are {A1, A2, A3, A5, A7, B1, B2, B3, B5, B7, C1, C2, C3, C5, "
             "C7, D1, D2, D3, D5, D7, E1, E2, E3, E5, E7, F1, F2, F3, F5, F7}")});
  expectValues({"GT1 GT2 GA1 TB2 TB3 TB5",
                variant,
                {"A1", "A2", "A3", "A5", "A7", "B1", "B2", "B3", "B5", "B7", "C1", "C2", "C3", "C5", "C7"},
                {"D1", "D2", "D3", "D5", "D7", "E1", "E2", "E3", "E5", "E7", "F1", "F2", "F3", "F5", "F7"},
                fatal(" :  7MHz system notified in a 8MHz channel.")});
  expectValues({"GS1 GS2",
                variant,
                {"D1", "D2", "D3", "D5", "D7", "E1", "E2", "E3", "E5", "E7", "F1", "F2", "F3", "F5", "F7"},
                {"A1", "A2", "A3", "A5", "A7", "B1", "B2", "B3", "B5", "B7", "C1", "C2", "C3", "C5", "C7"},
                fatal(" :  8MHz system notified in a 7MHz channel.")});
}

TEST(CommonValues, a_misfit_of_the_raster_is_a_warning_under_article_5) {
  NtcRec ntc = makeGt1UnderArt5();
  ntc.t_sys_var = "D1";
  EXPECT_EQ(valuesOf(ntc),
            (Verdict{true, "WARNING : \r\nNotice No : 7 :  7MHz system notified in a 8MHz channel.\r\n"}));
  ntc.t_sys_var = "D4";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(" :  t_sys_var : Acceptable values are {A1, A2, A3, A5, A7, B1, B2, B3, B5, B7, "
                         "C1, C2, C3, C5, C7, D1, D2, D3, D5, D7, E1, E2, E3, E5, E7, F1, F2, F3, F5, "
                         "F7}")));
}

TEST(CommonValues, frequencies_of_television) {
  expectValues({"GT1 GT2",
                textAt<&NtcRec::t_freq_assgn>,
                {"", "474", "482", "858", "177.5", "226.5", "  474"},
                {"475", "850.5"},
                fatal(" : t_freq_assgn : Invalid DVB-T frequency in Bands IV and V")});
  expectValues({"GT1 GT2",
                textAt<&NtcRec::t_trg_freq_assgn>,
                {"", "474", "482", "858", "177.5", "226.5"},
                {"475", "850.5"},
                fatal(" : t_trg_freq_assgn : Invalid DVB-T frequency in Bands IV and V")});
  expectValues(
      {"GT1 GT2",
       textAt<&NtcRec::t_freq_assgn>,
       {},
       {"470", "866", "178", "174.928", "abc"},
       fatal(" : t_freq_assgn : For F the valid frequencies are {177.5, 184.5, 191.5, 198.5, 205.5, 212.5, "
             "219.5, 226.5} or [474, 858] ")});
  expectValues(
      {"GT1 GT2",
       textAt<&NtcRec::t_trg_freq_assgn>,
       {},
       {"470", "866", "178", "174.928", "abc"},
       fatal(" : t_trg_freq_assgn : For F the valid frequencies are {177.5, 184.5, 191.5, 198.5, 205.5, "
             "212.5, 219.5, 226.5} or [474, 858] ")});
}

TEST(CommonValues, frequencies_of_television_follow_the_country) {
  for (const std::string_view type : {"GT1", "GT2"}) {
    NtcRec ntc = makeNotice(type);
    ntc.t_ctry = "REU";
    ntc.t_freq_assgn = "188";
    ntc.t_trg_freq_assgn = "186";
    EXPECT_EQ(valuesOf(ntc),
              failed(fatal(" : t_freq_assgn : For REU the valid frequencies are {178, 188, 194, 202, "
                           "210, 218, 226} or [474, 858]")));
    ntc.t_ctry = "MCO";
    EXPECT_EQ(valuesOf(ntc), failed(fatal(" : t_freq_assgn : No frequency validation found for MCO") +
                                    fatal(" : t_trg_freq_assgn : No frequency validation found for MCO")));
    ntc.t_ctry.clear();
    EXPECT_EQ(valuesOf(ntc), failed(fatal(" : t_freq_assgn : No frequency validation found for ") +
                                    fatal(" : t_trg_freq_assgn : No frequency validation found for ")));
  }
}

TEST(CommonValues, frequencies_of_sound) {
  expectValues({"GS1 GS2",
                textAt<&NtcRec::t_freq_assgn>,
                {"", "174.928", "229.072", "176.64"},
                {"174.93", "177.5", "474", "abc"},
                fatal(" : t_freq_assgn : Invalid T-DAB frequency in Band III")});
  expectValues({"GS1 GS2",
                textAt<&NtcRec::t_trg_freq_assgn>,
                {"", "174.928", "229.072", "176.64"},
                {"174.93", "177.5", "474", "abc"},
                fatal(" : t_trg_freq_assgn : Invalid T-DAB frequency in Band III")});
}

TEST(CommonValues, frequencies_of_other_types_are_not_tested) {
  for (const TextMember field : {textAt<&NtcRec::t_freq_assgn>, textAt<&NtcRec::t_trg_freq_assgn>}) {
    expectValues({"GA1 TB2 TB3 TB5", field, {"", "474", "475", "1", "abc"}, {}, ""});
  }
}

TEST(CommonValues, rules_of_one_family_run_in_its_types_alone) {
  // clang-format off
  const std::vector<ChangeCase> cases = {
      {"power", [](NtcRec& ntc) { ntc.t_erp_v_dbw = "53.1"; }, {{kAssignmentKinds, fatal(" :  t_erp_v_dbw : Value should be <= 53.0 (8BV)")}}},
      {"call sign", [](NtcRec& ntc) { ntc.t_call_sign = "FIP"; }, {{kAssignmentKinds, warning(" : t_call_sign (3A1) provided but NOT validated.")}}},
      {"sub-areas", [](NtcRec& ntc) { ntc.digital.allot.t_nb_sub_areas = "10"; },
       {{"GT2 GS2", fatal(" :  t_nb_sub_area : Value should be between [1, 9]")}}},
      {"fragment", [](NtcRec& ntc) { ntc.t_fragment = "KV19"; },
       {{"GT1 GS1 GT1/5 GS1/5 TB5", fatal(" :  t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}")},
        {"GT2 GS2", fatal(" :  t_fragment : Acceptable value for allotments are {KV19D}")}}},
      {"plan", [](NtcRec& ntc) { ntc.t_plan = "KV18"; }, {{"TB2 TB3", fatal(" :  t_plan : Acceptable value for assignments are {KV19D}")}}},
  };
  // clang-format on
  expectChanges(cases, valuesOf);
}

// ---- dates

TEST(CommonDates, expiry_is_not_before_the_date_of_use) {
  const struct {
    const char* inUse;
    const char* expiry;
    bool good;
  } cases[] = {
      {"2009-02-01", "2009-02-01", true},
      {"2009-02-01", "2009-02-02", true},
      {"2009-02-01", "2009-01-31", false},
      {"2009-02-01", "2010-01-01", true},
      {"2009-02-01", "2008-12-31", false},
      {"2009-10-01", "2009-9-30", false},
      {"2009-9-30", "2009-10-01", true},
      {"01.02.2009", "2009/02/01", true},
      {"02.02.2009", "2009/02/01", false},
      {"01/02/2009", "31.1.2009", false},
      {"01-02-2009", "1-3-2009", true},
      {"", "2009-02-01", true},
      {"2009-02-01", "", true},
      {"", "no date", true},
      {"no date", "", true},
  };
  for (const std::string_view type : kNoticeTypes) {
    for (const auto& one : cases) {
      NtcRec ntc = makeNotice(type);
      ntc.t_d_inuse = one.inUse;
      ntc.t_d_expiry = one.expiry;
      EXPECT_EQ(valuesOf(ntc), one.good ? kPassed : failed(fatal(" :  t_d_inuse =< t_d_expiry")))
          << type << " in use " << one.inUse << " expiry " << one.expiry;
    }
  }
}

const Verdict kTooLate = failed(fatal(" :  t_d_inuse must be =< t_date_rcv + 3 months"));

Verdict verdictOnUse(const char* inUse, const char* received, const Date& today,
                     const char* fragment = "NTFD_PZ") {
  NtcRec ntc = makeGt1UnderArt5();
  ntc.t_fragment = fragment;
  ntc.t_d_inuse = inUse;
  ntc.d_rcv = received;
  return valuesOf(ntc, today);
}

TEST(CommonDates, use_begins_at_most_3_months_from_today) {
  EXPECT_EQ(verdictOnUse("2009-04-15", "", day(2009, 1, 15)), kPassed);
  EXPECT_EQ(verdictOnUse("2009-04-16", "", day(2009, 1, 15)), kTooLate);
  EXPECT_EQ(verdictOnUse("2009-05-15", "", day(2009, 1, 15)), kTooLate);
  EXPECT_EQ(verdictOnUse("2008-01-15", "", day(2009, 1, 15)), kPassed);
  EXPECT_EQ(verdictOnUse("15.4.2009", "", day(2009, 1, 15)), kPassed);
  EXPECT_EQ(verdictOnUse("16/4/2009", "", day(2009, 1, 15)), kTooLate);
  EXPECT_EQ(verdictOnUse("2010-01-31", "", day(2009, 10, 31)), kPassed);
  EXPECT_EQ(verdictOnUse("2010-02-01", "", day(2009, 10, 31)), kTooLate);
  EXPECT_EQ(verdictOnUse("", "", day(2009, 1, 15)), kPassed);
}

TEST(CommonDates, three_months_from_a_day_that_the_month_lacks_end_on_its_last_day) {
  EXPECT_EQ(verdictOnUse("2009-02-28", "", day(2008, 11, 30)), kPassed);
  EXPECT_EQ(verdictOnUse("2009-03-01", "", day(2008, 11, 30)), kTooLate);
  EXPECT_EQ(verdictOnUse("2008-02-29", "", day(2007, 11, 30)), kPassed);
  EXPECT_EQ(verdictOnUse("2008-03-01", "", day(2007, 11, 30)), kTooLate);
  EXPECT_EQ(verdictOnUse("2009-04-30", "", day(2009, 1, 31)), kPassed);
  EXPECT_EQ(verdictOnUse("2009-05-01", "", day(2009, 1, 31)), kTooLate);
}

TEST(CommonDates, the_date_of_receipt_takes_the_place_of_today) {
  for (const char* received : {"2008-11-30", "30.11.2008", "30/11/2008", "2008/11/30", "30-11-2008"}) {
    EXPECT_EQ(verdictOnUse("2009-02-28", received, day(2020, 1, 1)), kPassed) << received;
    EXPECT_EQ(verdictOnUse("2009-03-01", received, day(2020, 1, 1)), kTooLate) << received;
  }
  EXPECT_EQ(verdictOnUse("2009-06-01", "2009-03-01", day(2001, 1, 1)), kPassed);
}

TEST(CommonDates, only_the_fragment_of_use_is_bound_to_3_months_and_is_compared_exactly) {
  EXPECT_EQ(verdictOnUse("2009-05-15", "", day(2009, 1, 15), "NTFD_PZ"), kTooLate);
  for (const char* fragment : {"KV19D", "ntfd_pz", "Ntfd_PZ", ""}) {
    EXPECT_EQ(verdictOnUse("2009-05-15", "", day(2009, 1, 15), fragment), kPassed) << fragment;
  }
}

TEST(CommonDates, three_months_bind_all_types) {
  const std::string late = fatal(" :  t_d_inuse must be =< t_date_rcv + 3 months");
  const std::string noFragmentOfAllotments =
      fatal(" :  t_fragment : Acceptable value for allotments are {KV19D}");
  expectChanges(
      {{"in use in four months",
        [](NtcRec& ntc) {
          ntc.t_fragment = "NTFD_PZ";
          ntc.t_d_inuse = "2009-05-15";
        },
        {{"GT1 GS1 GT1/5 GS1/5 GA1 TB2 TB3 TB5", late}, {"GT2 GS2", late + noFragmentOfAllotments}}}},
      valuesOf);
}

TEST(CommonDates, both_findings_on_dates_come_in_their_order) {
  NtcRec ntc = makeGs1UnderArt5();
  ntc.t_d_inuse = "2009-05-15";
  ntc.t_d_expiry = "2009-05-14";
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" :  t_d_inuse =< t_d_expiry") +
                                  fatal(" :  t_d_inuse must be =< t_date_rcv + 3 months")));
}

TEST(CommonDates, a_text_that_is_no_date_is_error_13) {
  for (const char* text :
       {"2009-02-30", "2009-13-01", "20090201", "2009-02", "soon", "1.2.09", "2009-02-01x", " "}) {
    SCOPED_TRACE(text);
    NtcRec ntc = makeGt1();
    ntc.t_d_inuse = text;
    EXPECT_EQ(errorNumberOf(ntc), 0);
    ntc.t_d_expiry = "2010-01-01";
    EXPECT_EQ(errorNumberOf(ntc), 13);
    ntc.t_d_inuse = "2009-02-01";
    ntc.t_d_expiry = text;
    EXPECT_EQ(errorNumberOf(ntc), 13);

    ntc = makeGt1UnderArt5();
    ntc.t_d_inuse = text;
    EXPECT_EQ(errorNumberOf(ntc), 13);
    ntc.t_d_inuse = "2009-02-01";
    ntc.d_rcv = text;
    EXPECT_EQ(errorNumberOf(ntc), 13);
    ntc.t_fragment = "KV19D";
    EXPECT_EQ(errorNumberOf(ntc), 0);
  }
}

// ---- order and results

TEST(CommonValues, the_findings_of_a_television_assignment_come_in_order) {
  NtcRec ntc = makeGt1UnderArt5();
  ntc.t_polar = "U";
  ntc.t_action = "SUPPRESS";
  ntc.t_d_inuse = "2009-05-15";
  ntc.t_d_expiry = "2009-05-14";
  ntc.t_hgt_agl = "801";
  ntc.t_site_alt = "8851";
  ntc.t_eff_hgtmax = "3001";
  ntc.digital.t_spect_mask = "1";
  ntc.t_sys_var = "D1";
  ntc.t_offset = "501";
  ntc.digital.allot.t_typ_ref_netwk = "RN9";
  ntc.digital.t_ref_plan_cfg = "RPC4";
  ntc.t_freq_assgn = "475";
  ntc.t_trg_freq_assgn = "476";
  EXPECT_EQ(
      valuesOf(ntc),
      failed(fatal(" :  t_polar : For assignments acceptable values are {V, H, M} (9D)") +
             fatal(" :  t_action : Acceptable values are {ADD, MODIFY}") +
             fatal(" :  t_d_inuse =< t_d_expiry") + fatal(" :  t_d_inuse must be =< t_date_rcv + 3 months") +
             fatal(" :  t_hgt_agl : Value should be between [0, 800] (9E)") +
             fatal(" :  t_site_alt : Value should be an integer between [-1000, 8850] (9EA)") +
             fatal(" : t_eff_hgtmax  : Value should be an integer between [-3000, 3000] (9EB)") +
             fatal(" :  t_spect_mask : Acceptable values are : for DVB-T : {N, S} ") +
             warning(" :  7MHz system notified in a 8MHz channel.") +
             fatal(" :  t_offset  t_offset : Value should be between [-500.0, 500.0] (1E)") +
             fatal(" :  t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for "
                   "T_DAB : {RPC4, "
                   "RPC5}") +
             fatal(" : t_freq_assgn : Invalid DVB-T frequency in Bands IV and V") +
             fatal(" : t_trg_freq_assgn : Invalid DVB-T frequency in Bands IV and V")));
}

TEST(CommonValues, the_findings_of_allotments_come_in_order) {
  NtcRec ntc = makeGt2();
  ntc.t_sys_var = "E1";
  ntc.t_offset = "-501";
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_typ_ref_netwk = "RN9";
  ntc.digital.t_ref_plan_cfg = "RPC4";
  ntc.t_freq_assgn = "475";
  EXPECT_EQ(
      valuesOf(ntc),
      failed(
          fatal(" :  7MHz system notified in a 8MHz channel.") +
          fatal(" :  t_offset  t_offset : Value should be between [-500.0, 500.0] (1E)") +
          fatal(" :  t_nb_sub_area and the number of t_contour_id notified, do not match") +
          fatal(" :  t_typ_ref_netwk : Acceptable values are : for DVB-T allotment : {RN1, RN2, RN3, RN4}") +
          fatal(" :  t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for T_DAB : "
                "{RPC4, "
                "RPC5}") +
          fatal(" : t_freq_assgn : Invalid DVB-T frequency in Bands IV and V")));

  ntc = makeGs2();
  ntc.digital.t_spect_mask = "S";
  ntc.digital.allot.t_nb_sub_areas = "0";
  ntc.digital.t_ref_plan_cfg = "RPC3";
  ntc.t_freq_assgn = "177.5";
  ntc.t_trg_freq_assgn = "474";
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" :  t_spect_mask : Acceptable values are : for T-DAB : {1, 2, 3}") +
                                  fatal(" :  t_nb_sub_area : Value should be between [1, 9]") +
                                  fatal(" :  t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, "
                                        "RPC2, RPC3} and for T_DAB : {RPC4, "
                                        "RPC5}") +
                                  fatal(" : t_freq_assgn : Invalid T-DAB frequency in Band III") +
                                  fatal(" : t_trg_freq_assgn : Invalid T-DAB frequency in Band III")));
}

TEST(CommonValues, a_failure_of_one_group_stays_through_the_groups_that_pass) {
  NtcRec ntc = makeTb5();
  ntc.t_fragment = "KV19";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(" :  t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}")));
  ntc = makeTb2();
  ntc.t_plan = "KV18";
  ntc.t_offset = "501";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(" :  t_plan : Acceptable value for assignments are {KV19D}") +
                   fatal(" :  t_offset  t_offset : Value should be between [-500.0, 500.0] (1E)")));
  ntc = makeGt1();
  ntc.t_polar = "U";
  ntc.t_sys_var = "A1";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(" :  t_polar : For assignments acceptable values are {V, H, M} (9D)")));
  ntc = makeGt2();
  ntc.t_sys_var = "D1";
  ntc.digital.allot.t_nb_sub_areas = "1";
  ntc.digital.allot.t_contour_id[0] = "1";
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" :  7MHz system notified in a 8MHz channel.")));
}

// ---- mandatory fields

TEST(CommonMandatory, what_every_notice_or_all_but_some_must_have) {
  // clang-format off
  const std::vector<ChangeCase> cases = {
      {"administration", [](NtcRec& ntc) { ntc.t_adm.clear(); }, {{kAllKinds, fatal(" :  t_adm is a mandatory value (B)")}}},
      {"action", [](NtcRec& ntc) { ntc.t_action.clear(); }, {{kAllKinds, fatal(" :  t_action is a mandatory value")}}},
      {"fragment", [](NtcRec& ntc) { ntc.t_fragment.clear(); },
       {{"GT1 GS1 GT2 GS2 TB5", fatal(" :  t_fragment is a mandatory value")},
        {"GT1/5", fatal(" :  t_fragment is a mandatory value")
                      + fatal(" : t_plan_adm_ref_id should not be notified for a GT1 - Fragment: ")},
        {"GS1/5", fatal(" :  t_fragment is a mandatory value")
                      + fatal(" : t_plan_adm_ref_id should not be notified for a GS1 - Fragment: ")}}},
      {"country", [](NtcRec& ntc) { ntc.t_ctry.clear(); }, {{"GT1 GS1 GT1/5 GS1/5 GT2 GS2 GA1", fatal(" :  t_ctry is a mandatory value (4B)")}}},
  };
  // clang-format on
  expectChanges(cases, mandatoryOf);
}

TEST(CommonMandatory, without_a_type_no_rules_of_a_family_run) {
  NtcRec ntc = makeGt1();
  ntc.t_notice_type.clear();
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_notice_type is a mandatory value")));
  ntc.t_site_name.clear();
  ntc.t_erp_v_dbw = "10";
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" :  t_notice_type is a mandatory value")));
}

TEST(CommonMandatory, a_modification_outside_the_fragment_of_use_targets_its_own_reference) {
  const std::string refusal = fatal(" :  t_trg_adm_ref_id must be same as t_adm_ref_id for fragment KV19D");
  // clang-format off
  const std::vector<ChangeCase> cases = {
      {"same", [](NtcRec& ntc) { ntc.t_action = "MODIFY"; ntc.t_adm_ref_id = ntc.t_trg_adm_ref_id = "F-0007"; },
       {{"TB2", fatal(" : t_adm_ref_id should not be notified for a TB2")},
        {"TB3", fatal(" : t_adm_ref_id should not be notified for a TB3")},
        {"TB5", fatal(" : t_adm_ref_id should not be notified for a TB5")}}},
      {"another", [](NtcRec& ntc) { ntc.t_action = "MODIFY"; ntc.t_trg_adm_ref_id = "F-0099"; }, {{"GT1 GS1 GT2 GS2 TB5", refusal}}},
      {"in lower case", [](NtcRec& ntc) { ntc.t_action = "modify"; ntc.t_trg_adm_ref_id = "f-0002"; }, {{"GT1 GS1 GT2 GS2 TB5", refusal}}},
      {"another with another action", [](NtcRec& ntc) { ntc.t_action = "SUPPRESS"; ntc.t_trg_adm_ref_id = "F-0099"; }, {}},
  };
  // clang-format on
  expectChanges(cases, mandatoryOf);
}

TEST(CommonMandatory, a_modification_of_what_is_in_use_may_target_another_reference) {
  for (NtcRec ntc : {makeGt1UnderArt5(), makeGs1UnderArt5()}) {
    ntc.t_action = "MODIFY";
    ntc.t_trg_adm_ref_id = "F-0099";
    EXPECT_EQ(mandatoryOf(ntc), kPassed);
    ntc.t_fragment = "ntfd_pz";
    EXPECT_EQ(mandatoryOf(ntc),
              failed(fatal(" :  t_trg_adm_ref_id must be same as t_adm_ref_id for fragment ntfd_pz")));
  }
}

TEST(CommonMandatory, each_type_runs_the_rules_of_its_family) {
  const struct {
    const char* type;
    void (*change)(NtcRec&);
    const char* errs;
  } cases[] = {
      {"GT1", [](NtcRec& ntc) { ntc.t_site_name.clear(); }, " :  t_sitename is a mandatory value (4A)"},
      {"GS1", [](NtcRec& ntc) { ntc.t_site_name.clear(); }, " :  t_sitename is a mandatory value (4A)"},
      {"GT2", [](NtcRec& ntc) { ntc.digital.allot.t_allot_name.clear(); }, " :  t_allot_name is mandatory"},
      {"GS2", [](NtcRec& ntc) { ntc.digital.allot.t_allot_name.clear(); }, " :  t_allot_name is mandatory"},
      {"GA1", [](NtcRec& ntc) { ntc.digital.contour.t_contour_id.clear(); }, " : t_countour_id is mandatory"},
      {"TB2", [](NtcRec& ntc) { ntc.t_addr_code.clear(); }, " :  t_addr_code is a mandatory value (12B)"},
      {"TB3", [](NtcRec& ntc) { ntc.t_plan.clear(); }, " :  t_plan is a mandatory value"},
      {"TB5", [](NtcRec& ntc) { ntc.t_trg_adm_ref_id.clear(); }, " : t_trg_adm_ref_id is a mandatory value"},
  };
  for (const auto& one : cases) {
    NtcRec ntc = makeNotice(one.type);
    one.change(ntc);
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(one.errs))) << one.type;
  }
}

TEST(CommonMandatory, a_contour_without_its_count_is_told_by_both_entry_points) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.t_nb_test_pts.clear();
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" : Value must be between [3-99]")));
  EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_nb_test_pts is mandatory")));
}

// ---- what belongs to a fragment

TEST(FragmentFields, fragment_and_plan_belong_to_different_types) {
  // clang-format off
  const std::vector<ChangeCase> cases = {
      {"fragment", [](NtcRec& ntc) { if (ntc.t_fragment.empty()) ntc.t_fragment = "KV19D"; },
       {{"TB2", fatal(" : t_fragment should not be notified for a TB2")},
        {"TB3", fatal(" : t_fragment should not be notified for a TB3")}}},
      {"plan", [](NtcRec& ntc) { ntc.t_plan = "KV19D"; },
       {{"GT1 GT1/5", fatal(" : t_plan should not be notified for a GT1")},
        {"GS1 GS1/5", fatal(" : t_plan should not be notified for a GS1")},
        {"GT2", fatal(" : t_plan should not be notified for a GT2")},
        {"GS2", fatal(" : t_plan should not be notified for a GS2")},
        {"GA1", fatal(" : t_plan should not be notified for a GA1")},
        {"TB5", fatal(" : t_plan should not be notified for a TB5")}}},
  };
  // clang-format on
  expectChanges(cases, mandatoryOf);
}

// The outcomes of a field that only the fragment of use and TB2 may have.
std::vector<Outcome> outcomesOf(const std::string& key) {
  const auto line = [&key](const char* ending) {
    return fatal(" : " + key + " should not be notified for a " + ending);
  };
  return {{"GT1", line("GT1 - Fragment: KV19D")}, {"GS1", line("GS1 - Fragment: KV19D")},
          {"GT2", line("GT2 - Fragment: KV19D")}, {"GS2", line("GS2 - Fragment: KV19D")},
          {"GA1", line("GA1 - Fragment: ")},      {"TB3", line("TB3 - Fragment: ")},
          {"TB5", line("TB5 - Fragment: KV19D")}};
}

std::vector<ChangeCase> fieldsOfUse() {
  return {
      {"plan reference", [](NtcRec& ntc) { ntc.t_plan_adm_ref_id = "F-9"; }, outcomesOf("t_plan_adm_ref_id")},
      {"frequency", [](NtcRec& ntc) { ntc.t_trg_freq_assgn = "474"; }, outcomesOf("t_trg_freq_assgn")},
      {"degrees east", [](NtcRec& ntc) { ntc.trg_long_deg = "2"; }, outcomesOf("t_trg_long")},
      {"east", [](NtcRec& ntc) { ntc.trg_long_ew = "E"; }, outcomesOf("t_trg_long")},
      {"minutes east", [](NtcRec& ntc) { ntc.trg_long_min = "2"; }, outcomesOf("t_trg_long")},
      {"seconds east", [](NtcRec& ntc) { ntc.trg_long_sec = "2"; }, outcomesOf("t_trg_long")},
      {"degrees north", [](NtcRec& ntc) { ntc.trg_lat_deg = "2"; }, outcomesOf("t_trg_lat")},
      {"north", [](NtcRec& ntc) { ntc.trg_lat_ns = "N"; }, outcomesOf("t_trg_lat")},
      {"minutes north", [](NtcRec& ntc) { ntc.trg_lat_min = "2"; }, outcomesOf("t_trg_lat")},
      {"seconds north", [](NtcRec& ntc) { ntc.trg_lat_sec = "2"; }, outcomesOf("t_trg_lat")},
  };
}

// A TB2 may name its target by a reference or by site and frequency, so it gets another finding of its own.
std::string errsOfTb2(const std::string& name) {
  const std::string both = fatal(
      " :  Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be provided, but not "
      "both");
  if (name == "frequency") return both + fatal(" :  t_trg_long and t_trg_lat must be provided");
  const bool ofTarget = name.starts_with("degrees") || name.starts_with("minutes");
  return ofTarget ? both : "";
}

TEST(FragmentFields, target_and_plan_reference_belong_to_what_is_in_use_and_to_TB2) {
  for (ChangeCase one : fieldsOfUse()) {
    one.outcomes.push_back({"TB2", errsOfTb2(one.name)});
    expectChanges({one}, mandatoryOf);
  }
}

TEST(FragmentFields, what_is_in_use_may_have_them_whatever_its_type) {
  for (const ChangeCase& one : fieldsOfUse()) {
    SCOPED_TRACE(one.name);
    for (const char* fragment : {"NTFD_PZ", "ntfd_pz"}) {
      for (NtcRec ntc :
           {makeGt1UnderArt5(), makeGs1UnderArt5(), makeGt2(), makeGs2(), makeGa1(), makeTb5()}) {
        ntc.t_fragment = fragment;
        one.change(ntc);
        EXPECT_EQ(mandatoryOf(ntc), kPassed) << ntc.t_notice_type;
      }
    }
    NtcRec ntc = makeTb3();
    ntc.t_fragment = "NTFD_PZ";
    one.change(ntc);
    EXPECT_EQ(mandatoryOf(ntc), failed(fatal(" : t_fragment should not be notified for a TB3")));
  }
}

TEST(FragmentFields, they_come_last_and_in_order) {
  NtcRec ntc = makeGa1();
  ntc.t_adm.clear();
  ntc.t_action.clear();
  ntc.t_ctry.clear();
  ntc.t_fragment = "kv19d";
  ntc.t_plan = "KV19D";
  ntc.t_is_pub_req = "TRUE";
  ntc.t_plan_adm_ref_id = "F-9";
  ntc.t_trg_freq_assgn = "474";
  ntc.trg_long_deg = ntc.trg_long_min = ntc.trg_lat_deg = ntc.trg_lat_min = "2";
  EXPECT_EQ(mandatoryOf(ntc),
            failed(fatal(" :  t_adm is a mandatory value (B)") + fatal(" :  t_action is a mandatory value") +
                   fatal(" :  t_ctry is a mandatory value (4B)") +
                   fatal(" : t_is_pub_req should not be notified under Art 5") +
                   fatal(" : t_plan should not be notified for a GA1") +
                   fatal(" : t_plan_adm_ref_id should not be notified for a GA1 - Fragment: kv19d") +
                   fatal(" : t_trg_freq_assgn should not be notified for a GA1 - Fragment: kv19d") +
                   fatal(" : t_trg_long should not be notified for a GA1 - Fragment: kv19d") +
                   fatal(" : t_trg_lat should not be notified for a GA1 - Fragment: kv19d")));
}

TEST(CommonMandatory, reference_rules_stand_between_fragment_and_country) {
  NtcRec ntc = makeGt2();
  ntc.t_action = "MODIFY";
  ntc.t_fragment.clear();
  ntc.t_trg_adm_ref_id.clear();
  ntc.t_ctry.clear();
  ntc.digital.allot.t_allot_name.clear();
  EXPECT_EQ(mandatoryOf(ntc),
            failed(fatal(" :  t_fragment is a mandatory value") +
                   fatal(" :  t_trg_adm_ref_id must be same as t_adm_ref_id for fragment ") +
                   fatal(" :  t_ctry is a mandatory value (4B)") + fatal(" :  t_allot_name is mandatory")));
}

}  // namespace
}  // namespace zamo
