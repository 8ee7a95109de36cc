#include "validation/reference_rules.h"

#include "platform/text.h"
#include "validation/ref_data.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

void checkCountry(RuleReport& report, const NtcRec& ntc) {
  if (isAnyType(ntc, {"TB2", "TB5", "TB3"})) return;
  if (ntc.t_ctry.empty()) {
    report.fatal(" : t_ctry is empty cannot validate");
  } else if (!isCtryOfAdm(ntc.t_ctry, ntc.t_adm)) {
    report.fatal(" : t_adm = " + ntc.t_adm + " cannot notify for t_ctry = " + ntc.t_ctry);
  }
}

void checkGeoArea(RuleReport& report, const NtcRec& ntc) {
  const std::string& area = ntc.digital.allot.t_geo_area;
  if (!isAnyType(ntc, {"GT2", "GS2"}) || area.empty()) return;
  if (!isCtryOfAdm(area, ntc.t_adm)) {
    report.fatal(" : t_geo_area = " + area + " does not belong to t_adm = " + ntc.t_adm);
  } else if (!equalsIgnoringCase(area, ntc.t_ctry)) {
    report.fatal(" : t_geo_area has to be identical to t_ctry ");
  }
}

void checkCoord(RuleReport& report, const NtcRec& ntc, std::initializer_list<std::string_view> types) {
  if (!isAnyType(ntc, types) || !ntc.coord.present) return;
  for (const CoordEntryRec& entry : ntc.coord.entries) {
    if (entry.adm.empty()) continue;
    if (!isKv19Administration(entry.adm)) {
      report.fatal(" : <COORD> " + entry.adm + " t_adm : Invalid administration code for the KV19");
    }
    if (equalsIgnoringCase(entry.adm, ntc.t_adm)) {
      report.fatal(" : <COORD> " + entry.adm +
                   " : Notifying administration cannot be within in the <COORD> section.");
    }
  }
}

}  // namespace

bool checkHeadAdm(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (ntc.t_adm.empty()) {
    report.fatal(" t_adm is a mandatory value (B)");
  } else if (!isKv19Administration(ntc.t_adm)) {
    report.fatal(" t_adm : Invalid administration code for the KV19");
  }
  return report.good;
}

bool checkNtcRefs(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  checkCountry(report, ntc);
  checkGeoArea(report, ntc);
  checkCoord(report, ntc, {"GT1", "GS1", "GS2", "GT2", "TB2", "TB3"});
  return report.good;
}

bool checkOpAgcyAddrCode(const NtcRec& ntc, const AgencyLookups& lookups, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (!ntc.t_op_agcy.empty() && !lookups.isOpAgcyOfAdm(ntc.t_adm, ntc.t_op_agcy)) {
    report.fatal(" Invalid t_op_agcy (12A)");
  }
  if (!ntc.t_addr_code.empty() && !lookups.isAddrCodeOfAdm(ntc.t_adm, ntc.t_addr_code)) {
    report.fatal(" Invalid t_addr_code (12B)");
  }
  return report.good;
}

}  // namespace zamo
