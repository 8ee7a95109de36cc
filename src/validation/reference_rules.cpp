#include "validation/reference_rules.h"

#include <algorithm>
#include <span>

#include "model/notice_words.h"
#include "platform/text.h"
#include "validation/ref_data.h"
#include "validation/reference_steps.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

// clang-format off
const Message kHeadWithoutAdm("<HEAD>: t_adm is empty", " t_adm is a mandatory value (B)");
const Message kHeadWithUnknownAdm("<HEAD>: t_adm is no administration of the plan", " t_adm : Invalid administration code for the KV19");
const Message kNoCountry("GT1, GS1, GT2, GS2, GA1: t_ctry is empty", " : t_ctry is empty cannot validate");
const Message kForeignCountry("GT1, GS1, GT2, GS2, GA1: the administration may not notify for t_ctry", " : t_adm = %1 cannot notify for t_ctry = %2");
const Message kForeignArea("GT2, GS2: t_geo_area is none of the administration", " : t_geo_area = %1 does not belong to t_adm = %2");
const Message kAreaDiffers("GT2, GS2: t_geo_area differs from t_ctry", " : t_geo_area has to be identical to t_ctry ");
const Message kCoordUnknown("all types but GA1 and TB5: a t_adm of <COORD> is no administration of the plan", " : <COORD> %1 t_adm : Invalid administration code for the KV19");
const Message kCoordOwn("all types but GA1 and TB5: a t_adm of <COORD> is the notifying administration", " : <COORD> %1 : Notifying administration cannot be within in the <COORD> section.");
const Message kOpAgency("t_op_agcy is none of the administration in the master template", " Invalid t_op_agcy (12A)");
const Message kAddressCode("t_addr_code is none of the administration in the master template", " Invalid t_addr_code (12B)");
// clang-format on

}  // namespace

void checkCountry(RuleReport& report, const NtcRec& ntc) {
  if (isInAnyCase(ntc.t_notice_type, {types::TB2, types::TB5, types::TB3})) return;
  if (ntc.t_ctry.empty()) {
    report.fatal(kNoCountry);
  } else if (!isCtryOfAdm(ntc.t_ctry, ntc.t_adm)) {
    report.fatal(kForeignCountry, {ntc.t_adm, ntc.t_ctry});
  }
}

void checkGeoArea(RuleReport& report, const NtcRec& ntc) {
  const std::string& area = ntc.digital.allot.t_geo_area;
  if (!isInAnyCase(ntc.t_notice_type, {types::GT2, types::GS2}) || area.empty()) return;
  if (!isCtryOfAdm(area, ntc.t_adm)) {
    report.fatal(kForeignArea, {area, ntc.t_adm});
  } else if (!equalsIgnoringCase(area, ntc.t_ctry)) {
    report.fatal(kAreaDiffers);
  }
}

void checkCoord(RuleReport& report, const NtcRec& ntc, std::initializer_list<NoticeType> types) {
  if (!isInAnyCase(ntc.t_notice_type, types) || !ntc.coord.present) return;
  const auto last = std::min(static_cast<std::size_t>(ntc.coord.count) + 1, ntc.coord.entries.size());
  for (const CoordEntryRec& entry : std::span(ntc.coord.entries).first(last)) {
    if (entry.adm.empty()) continue;
    if (!isKv19Administration(entry.adm)) report.fatal(kCoordUnknown, {entry.adm});
    if (equalsIgnoringCase(entry.adm, ntc.t_adm)) report.fatal(kCoordOwn, {entry.adm});
  }
}

bool checkHeadAdm(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (ntc.t_adm.empty()) {
    report.fatal(kHeadWithoutAdm);
  } else if (!isKv19Administration(ntc.t_adm)) {
    report.fatal(kHeadWithUnknownAdm);
  }
  return report.good;
}

bool checkNtcRefs(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  checkCountry(report, ntc);
  checkGeoArea(report, ntc);
  checkCoord(report, ntc, {types::GT1, types::GS1, types::GS2, types::GT2, types::TB2, types::TB3});
  return report.good;
}

bool checkOpAgcyAddrCode(const NtcRec& ntc, const AgencyLookups& lookups, std::string& errs,
                         std::string_view label) {
  RuleReport report{errs, label};
  if (!ntc.t_op_agcy.empty() && !lookups.isOpAgcyOfAdm(ntc.t_adm, ntc.t_op_agcy)) {
    report.fatal(kOpAgency);
  }
  if (!ntc.t_addr_code.empty() && !lookups.isAddrCodeOfAdm(ntc.t_adm, ntc.t_addr_code)) {
    report.fatal(kAddressCode);
  }
  return report.good;
}

}  // namespace zamo
