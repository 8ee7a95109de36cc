#include "validation/reference_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/run_time_error.h"
#include "support/valid_notices.h"

namespace zamo {
namespace {

// The valid notice of a type under another administration and country, without an area.
NtcRec noticeOf(const std::string& type, const std::string& adm = "AUT", const std::string& ctry = "AUT") {
  NtcRec ntc = makeNotice(type);
  ntc.t_adm = adm;
  ntc.t_ctry = ctry;
  ntc.digital.allot.t_geo_area.clear();
  return ntc;
}

NtcRec allotmentOf(const std::string& adm, const std::string& ctry, const std::string& area,
                   const std::string& type = "GT2") {
  NtcRec ntc = noticeOf(type, adm, ctry);
  ntc.digital.allot.t_geo_area = area;
  return ntc;
}

// As the section reader leaves it: one free entry behind the administrations.
void giveCoord(NtcRec& ntc, std::initializer_list<const char*> adms) {
  ntc.coord.present = true;
  ntc.coord.count = static_cast<std::int32_t>(adms.size());
  ntc.coord.entries.assign(adms.size() + 1, {});
  std::transform(adms.begin(), adms.end(), ntc.coord.entries.begin(),
                 [](const char* adm) { return CoordEntryRec{adm, "", "", "", "", ""}; });
}

Verdict judge(const NtcRec& ntc) {
  return judge(checkNtcRefs, ntc);
}

const char* const kTypesWithCountry[] = {"GT1", "GS1", "GT2", "GS2", "GA1"};
const char* const kTypesWithoutCountry[] = {"TB2", "TB3", "TB5"};

TEST(ReferenceRules, an_administration_notifies_for_itself) {
  for (const char* type : kTypesWithCountry) {
    EXPECT_EQ(judge(noticeOf(type, "AUT", "AUT")), kPassed) << type;
    EXPECT_EQ(judge(noticeOf(type, "AUT", "aut")), kPassed) << type;
    EXPECT_EQ(judge(noticeOf(type, "zwe", "ZWE")), kPassed) << type;
  }
}

TEST(ReferenceRules, an_administration_does_not_notify_for_another) {
  for (const char* type : kTypesWithCountry) {
    EXPECT_EQ(judge(noticeOf(type, "AUT", "D")), failed(fatal(" : t_adm = AUT cannot notify for t_ctry = D")))
        << type;
  }
}

struct Group {
  const char* adm;
  std::vector<const char*> countries;
};

const Group kGroups[] = {
    {"E", {"CNR", "E"}},
    {"F", {"F", "MYT", "REU"}},
    {"G", {"ASC", "G", "GIB", "SHN", "TRC"}},
    {"POR", {"AZR", "MDR", "POR"}},
    {"PSE", {"XGZ", "XWB"}},
    {"JOR", {"JOR", "XWB"}},
    {"MRC", {"AOE", "MRC"}},
    {"DNK", {"DNK", "FRO"}},
    {"ISR", {"ISR", "XWB"}},
};

TEST(ReferenceRules, nine_administrations_notify_for_areas_of_their_own) {
  for (const Group& group : kGroups) {
    for (const char* country : group.countries) {
      EXPECT_EQ(judge(noticeOf("GT1", group.adm, country)), kPassed) << group.adm << " " << country;
    }
  }
}

TEST(ReferenceRules, an_area_is_notified_by_no_administration_but_its_own) {
  for (const Group& group : kGroups) {
    for (const char* area :
         {"CNR", "MYT", "REU", "ASC", "GIB", "SHN", "TRC", "AZR", "MDR", "XGZ", "XWB", "AOE", "FRO", "AUT"}) {
      const auto& own = group.countries;
      if (std::find(own.begin(), own.end(), std::string_view(area)) != own.end()) continue;
      EXPECT_EQ(judge(noticeOf("GS1", group.adm, area)),
                failed(fatal(std::string(" : t_adm = ") + group.adm + " cannot notify for t_ctry = " + area)))
          << group.adm << " " << area;
    }
  }
  EXPECT_EQ(judge(noticeOf("GT1", "JOR", "XGZ")),
            failed(fatal(" : t_adm = JOR cannot notify for t_ctry = XGZ")));
  EXPECT_EQ(judge(noticeOf("GT1", "F", "G")), failed(fatal(" : t_adm = F cannot notify for t_ctry = G")));
  EXPECT_EQ(judge(noticeOf("GT1", "AUT", "CNR")),
            failed(fatal(" : t_adm = AUT cannot notify for t_ctry = CNR")));
}

TEST(ReferenceRules, areas_are_found_in_any_case_and_told_as_notified) {
  EXPECT_EQ(judge(noticeOf("GT1", "dnk", "fro")), kPassed);
  EXPECT_EQ(judge(noticeOf("GT1", "dnk", "myt")),
            failed(fatal(" : t_adm = dnk cannot notify for t_ctry = myt")));
}

TEST(ReferenceRules, a_missing_administration_notifies_for_no_country_and_no_area) {
  for (const char* type : kTypesWithCountry) {
    EXPECT_EQ(judge(noticeOf(type, "", "AUT")), failed(fatal(" : t_adm =  cannot notify for t_ctry = AUT")))
        << type;
    EXPECT_EQ(judge(noticeOf(type, "", "")), failed(fatal(" : t_ctry is empty cannot validate"))) << type;
  }
  for (const char* type : kTypesWithoutCountry) EXPECT_EQ(judge(noticeOf(type, "", "AUT")), kPassed) << type;
  for (const char* type : {"GT2", "GS2"}) {
    EXPECT_EQ(judge(allotmentOf("", "AUT", "AUT", type)),
              failed(fatal(" : t_adm =  cannot notify for t_ctry = AUT") +
                     fatal(" : t_geo_area = AUT does not belong to t_adm = ")))
        << type;
  }
}

TEST(ReferenceRules, an_empty_country_is_told_and_not_looked_up) {
  for (const char* type : kTypesWithCountry) {
    EXPECT_EQ(judge(noticeOf(type, "AUT", "")), failed(fatal(" : t_ctry is empty cannot validate"))) << type;
    EXPECT_EQ(judge(noticeOf(type, "PSE", "")), failed(fatal(" : t_ctry is empty cannot validate"))) << type;
  }
}

TEST(ReferenceRules, notices_on_existing_entries_have_no_country_to_test) {
  for (const char* type : kTypesWithoutCountry) {
    EXPECT_EQ(judge(noticeOf(type, "AUT", "")), kPassed) << type;
    EXPECT_EQ(judge(noticeOf(type, "AUT", "D")), kPassed) << type;
  }
}

TEST(ReferenceRules, an_area_belongs_to_the_administration) {
  for (const char* type : {"GT2", "GS2"}) {
    SCOPED_TRACE(type);
    EXPECT_EQ(judge(allotmentOf("AUT", "AUT", "AUT", type)), kPassed);
    EXPECT_EQ(judge(allotmentOf("F", "REU", "REU", type)), kPassed);
    EXPECT_EQ(judge(allotmentOf("AUT", "AUT", "", type)), kPassed);
    EXPECT_EQ(judge(allotmentOf("AUT", "AUT", "D", type)),
              failed(fatal(" : t_geo_area = D does not belong to t_adm = AUT")));
    EXPECT_EQ(judge(allotmentOf("JOR", "JOR", "XGZ", type)),
              failed(fatal(" : t_geo_area = XGZ does not belong to t_adm = JOR")));
  }
}

TEST(ReferenceRules, an_area_of_the_administration_is_the_country_of_the_notice) {
  for (const char* type : {"GT2", "GS2"}) {
    SCOPED_TRACE(type);
    EXPECT_EQ(judge(allotmentOf("F", "REU", "F", type)),
              failed(fatal(" : t_geo_area has to be identical to t_ctry ")));
    EXPECT_EQ(judge(allotmentOf("POR", "POR", "MDR", type)),
              failed(fatal(" : t_geo_area has to be identical to t_ctry ")));
    EXPECT_EQ(judge(allotmentOf("DNK", "FRO", "fro", type)), kPassed);
  }
}

TEST(ReferenceRules, a_wrong_country_does_not_hide_the_area) {
  EXPECT_EQ(judge(allotmentOf("AUT", "D", "D")),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_adm = AUT cannot notify for t_ctry = D\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_geo_area = D does not belong to t_adm = AUT\r\n"));
  EXPECT_EQ(judge(allotmentOf("AUT", "", "AUT")),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_ctry is empty cannot validate\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_geo_area has to be identical to t_ctry \r\n"));
}

TEST(ReferenceRules, the_area_is_tested_in_allotments_alone) {
  for (const char* type : {"GT1", "GS1", "GA1", "TB2", "TB3", "TB5"}) {
    EXPECT_EQ(judge(allotmentOf("AUT", "AUT", "D", type)), kPassed) << type;
  }
}

const char* const kTypesWithCoord[] = {"GT1", "GS1", "GT2", "GS2", "TB2", "TB3"};

TEST(ReferenceRules, coordination_is_sought_with_other_administrations_of_the_plan) {
  for (const char* type : kTypesWithCoord) {
    NtcRec ntc = noticeOf(type);
    giveCoord(ntc, {"D", "sui", "HNG"});
    EXPECT_EQ(judge(ntc), kPassed) << type;
  }
}

TEST(ReferenceRules, a_coordinated_administration_outside_the_plan_is_told) {
  for (const char* type : kTypesWithCoord) {
    for (const char* outside : {"XXX", "USA", "SCG", "GIB", "XWB"}) {
      NtcRec ntc = noticeOf(type);
      giveCoord(ntc, {"D", outside, "SUI"});
      EXPECT_EQ(judge(ntc), failed(fatal(std::string(" : <COORD> ") + outside +
                                         " t_adm : Invalid administration code for the KV19")))
          << type << " " << outside;
    }
  }
}

TEST(ReferenceRules, the_notifying_administration_is_not_coordinated_with_itself) {
  for (const char* type : kTypesWithCoord) {
    NtcRec ntc = noticeOf(type);
    giveCoord(ntc, {"D", "AUT"});
    EXPECT_EQ(
        judge(ntc),
        failed(fatal(" : <COORD> AUT : Notifying administration cannot be within in the <COORD> section.")))
        << type;
    giveCoord(ntc, {"aut"});
    EXPECT_EQ(
        judge(ntc),
        failed(fatal(" : <COORD> aut : Notifying administration cannot be within in the <COORD> section.")))
        << type;
  }
}

TEST(ReferenceRules, an_entry_may_be_unknown_and_the_notifying_one_at_once) {
  NtcRec ntc = noticeOf("TB3", "XXX", "");
  giveCoord(ntc, {"XXX"});
  EXPECT_EQ(
      judge(ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> XXX t_adm : Invalid administration code for the KV19\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> XXX : Notifying administration cannot be within in the "
          "<COORD> section.\r\n"));
}

TEST(ReferenceRules, each_entry_of_the_coordination_is_told_in_its_place) {
  NtcRec ntc = noticeOf("TB2");
  giveCoord(ntc, {"USA", "AUT", "", "D", "XXX"});
  EXPECT_EQ(
      judge(ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> USA t_adm : Invalid administration code for the KV19\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> AUT : Notifying administration cannot be within in the "
          "<COORD> section.\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> XXX t_adm : Invalid administration code for the "
          "KV19\r\n"));
}

TEST(ReferenceRules, the_coordination_of_a_tb5_and_of_a_contour_is_not_tested) {
  for (const char* type : {"TB5", "GA1"}) {
    NtcRec ntc = noticeOf(type);
    giveCoord(ntc, {"XXX", "AUT"});
    EXPECT_EQ(judge(ntc), kPassed) << type;
  }
}

TEST(ReferenceRules, a_coordination_that_is_not_present_is_not_tested) {
  NtcRec ntc = noticeOf("GT1");
  giveCoord(ntc, {"XXX", "AUT"});
  ntc.coord.present = false;
  EXPECT_EQ(judge(ntc), kPassed);
}

TEST(ReferenceRules, entries_are_looked_at_up_to_and_with_the_one_at_the_count) {
  NtcRec ntc = noticeOf("GT1");
  giveCoord(ntc, {"D", "USA", "XXX"});
  ntc.coord.count = 1;
  EXPECT_EQ(judge(ntc), failed(fatal(" : <COORD> USA t_adm : Invalid administration code for the KV19")));
}

TEST(ReferenceRules, country_area_and_coordination_are_told_in_this_order) {
  NtcRec ntc = allotmentOf("F", "D", "MYT", "GS2");
  giveCoord(ntc, {"F", "USA"});
  EXPECT_EQ(
      judge(ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 : t_adm = F cannot notify for t_ctry = D\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_geo_area has to be identical to t_ctry \r\n"
             "FATAL ERROR : \r\nNotice No : 7 : <COORD> F : Notifying administration cannot be within in the "
             "<COORD> section.\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : <COORD> USA t_adm : Invalid administration code for the "
             "KV19\r\n"));
}

TEST(ReferenceRules, findings_are_added_behind_what_was_found_before) {
  std::string errs = "WARNING : \r\nearlier\r\n";
  EXPECT_FALSE(checkNtcRefs(noticeOf("GT1", "AUT", ""), errs, "L"));
  EXPECT_EQ(errs, "WARNING : \r\nearlier\r\nFATAL ERROR : \r\nL : t_ctry is empty cannot validate\r\n");
}

Verdict judgeHead(const std::string& adm) {
  NtcRec ntc;
  ntc.t_adm = adm;
  Verdict verdict;
  verdict.good = checkHeadAdm(ntc, verdict.errs, "Head : at line number : 2\r\n");
  return verdict;
}

TEST(HeadAdministration, one_of_the_plan_passes_in_any_case) {
  for (const char* adm : {"AFS", "AUT", "d", "zwe", "PSE", "MNE", "SRB"}) {
    EXPECT_EQ(judgeHead(adm), kPassed) << adm;
  }
}

TEST(HeadAdministration, an_empty_one_is_missing_and_not_invalid_as_well) {
  EXPECT_EQ(judgeHead(""),
            failed("FATAL ERROR : \r\nHead : at line number : 2\r\n :  t_adm is a mandatory value (B)\r\n"));
}

TEST(HeadAdministration, one_outside_the_plan_is_invalid) {
  for (const char* adm : {"XXX", "USA", "SCG", "XWB", "GIB"}) {
    EXPECT_EQ(judgeHead(adm), failed("FATAL ERROR : \r\nHead : at line number : 2\r\n :  t_adm : Invalid "
                                     "administration code for the KV19\r\n"))
        << adm;
  }
}

// Knows the agency 001 and the address A of AUT, and notes what it is asked.
struct Template {
  std::vector<std::string> asked;

  AgencyLookups lookups() {
    return {
        [this](std::string_view adm, std::string_view opAgcy) { return look("op_agcy", adm, opAgcy, "001"); },
        [this](std::string_view adm, std::string_view code) { return look("addr_code", adm, code, "A"); }};
  }

  bool look(std::string_view table, std::string_view adm, std::string_view value, std::string_view known) {
    asked.push_back(std::string(table).append(" ").append(adm).append(" ").append(value));
    return adm == "AUT" && value == known;
  }
};

Verdict judgeAgency(Template& known, const std::string& opAgcy, const std::string& addrCode,
                    const std::string& adm = "AUT") {
  NtcRec ntc = noticeOf("GT1", adm, adm);
  ntc.t_op_agcy = opAgcy;
  ntc.t_addr_code = addrCode;
  Verdict verdict;
  verdict.good = checkOpAgcyAddrCode(ntc, known.lookups(), verdict.errs, "Notice No : 7");
  return verdict;
}

TEST(AgencyAndAddress, known_ones_of_the_administration_pass) {
  Template known;
  EXPECT_EQ(judgeAgency(known, "001", "A"), kPassed);
  EXPECT_EQ(known.asked, (std::vector<std::string>{"op_agcy AUT 001", "addr_code AUT A"}));
}

TEST(AgencyAndAddress, an_unknown_agency_is_told) {
  Template known;
  EXPECT_EQ(judgeAgency(known, "002", "A"), failed(fatal(" :  Invalid t_op_agcy (12A)")));
}

TEST(AgencyAndAddress, an_unknown_address_is_told) {
  Template known;
  EXPECT_EQ(judgeAgency(known, "001", "B"), failed(fatal(" :  Invalid t_addr_code (12B)")));
}

TEST(AgencyAndAddress, those_of_another_administration_are_both_told_in_order) {
  Template known;
  EXPECT_EQ(judgeAgency(known, "001", "A", "D"),
            failed("FATAL ERROR : \r\nNotice No : 7 :  Invalid t_op_agcy (12A)\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  Invalid t_addr_code (12B)\r\n"));
  EXPECT_EQ(known.asked, (std::vector<std::string>{"op_agcy D 001", "addr_code D A"}));
}

TEST(AgencyAndAddress, empty_ones_are_not_looked_up) {
  Template known;
  EXPECT_EQ(judgeAgency(known, "", ""), kPassed);
  EXPECT_TRUE(known.asked.empty());
  EXPECT_EQ(judgeAgency(known, "", "A"), kPassed);
  EXPECT_EQ(known.asked, (std::vector<std::string>{"addr_code AUT A"}));
  known.asked.clear();
  EXPECT_EQ(judgeAgency(known, "001", ""), kPassed);
  EXPECT_EQ(known.asked, (std::vector<std::string>{"op_agcy AUT 001"}));
}

TEST(AgencyAndAddress, a_template_that_is_missing_ends_the_group_with_its_error) {
  AgencyLookups missing;
  missing.isOpAgcyOfAdm = [](std::string_view, std::string_view) -> bool {
    throw RunTimeError{kFileNotFound, "File not found"};
  };
  missing.isAddrCodeOfAdm = [](std::string_view, std::string_view) { return true; };
  NtcRec ntc = noticeOf("GT1");
  ntc.t_op_agcy = "001";
  std::string errs;
  try {
    checkOpAgcyAddrCode(ntc, missing, errs, "L");
    ADD_FAILURE() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number, 53);
    EXPECT_EQ(error.text, "File not found");
  }
  EXPECT_EQ(errs, "");
}

}  // namespace
}  // namespace zamo
