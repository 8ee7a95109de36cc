#include "validation/complete_validation.h"

#include "model/notice_words.h"
#include "model/ntc_reset.h"
#include "noticefile/section_reader.h"
#include "platform/message.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "validation/common_rules.h"
#include "validation/geo_rules.h"

namespace zamo {
namespace {

const Message kStatusWithGeo("status: a notice is judged on level 3",
                             "Complete validation with Geographic validation : Notice no : %1");
const Message kStatusWithoutGeo("status: a notice is judged on level 2",
                                "Complete validation without Geographic validation : Notice no : %1");

struct Validation {
  const Host& host;
  SectionReading reading;
  std::string& report;
  const GzmpMap* map;
  const AgencyLookups& lookups;
  Date today;
  std::int64_t noticesRead = 0;
  bool result = true;
};

void addGroup(Validation& validation, bool good, const std::string& errs) {
  if (!errs.empty()) validation.report.append(errs).append(kLineEnd);
  validation.result = good && validation.result;
}

void validateHead(Validation& validation) {
  SectionReading& reading = validation.reading;
  readLine(reading);
  const std::string label = "Head : at line number : " + std::to_string(reading.lines.lineNo()) + "\r\n";
  reading.prefix = label;
  std::string errs = readHeadSection(reading);
  const bool labelIsPrinted = !errs.empty();
  if (labelIsPrinted) {
    validation.result = false;
    validation.report.append(label).append(kLineEnd).append(errs).append(kLineEnd);
  }
  errs.clear();
  const bool good = checkHeadAdm(reading.ntc, errs, label);
  if (!errs.empty() && !labelIsPrinted) validation.report.append(label).append(kLineEnd);
  addGroup(validation, good, errs);
}

// What tells a notice from the others of its file, for the labels of its findings.
std::string identityOf(const NtcRec& ntc) {
  const std::string& type = ntc.t_notice_type;
  if (isExactly(type, types::GA1)) return " : Contour_id = " + ntc.digital.contour.t_contour_id;
  if (isExactly(type, {types::TB5, types::TB3})) return " : Trg_Admin_ref_id = " + ntc.t_trg_adm_ref_id;
  if (isExactly(type, types::TB2)) return " : Plan_Admin_ref_id = " + ntc.t_plan_adm_ref_id;
  return " : Admin_ref_id = " + ntc.t_adm_ref_id;
}

void validateNotice(Validation& validation) {
  SectionReading& reading = validation.reading;
  NtcRec& ntc = reading.ntc;
  const std::string number = std::to_string(++validation.noticesRead);
  std::string label = "Notice No : " + number + " at line number : " + std::to_string(reading.lines.lineNo());
  readLine(reading);
  resetNtc(ntc);
  validation.host.setStatus(
      (validation.map != nullptr ? kStatusWithGeo : kStatusWithoutGeo).filled({number}));
  reading.prefix = label;
  const std::string messages = readNoticeSection(reading);
  label += identityOf(ntc);
  if (messages != " ") addGroup(validation, false, messages);

  std::string errs;
  const bool valuesGood = checkNtcValues(ntc, errs, label, validation.today);
  addGroup(validation, valuesGood, errs);
  errs.clear();
  const bool mandatoryGood = checkNtcMandatory(ntc, errs, label);
  addGroup(validation, mandatoryGood, errs);
  errs.clear();
  const bool refsGood = validation.map == nullptr
                            ? checkNtcRefs(ntc, errs, label)
                            : checkNtcRefsGeo(validation.host, *validation.map, ntc, errs, label);
  addGroup(validation, refsGood, errs);
  errs.clear();
  const bool agencyGood = checkOpAgcyAddrCode(ntc, validation.lookups, errs, label);
  addGroup(validation, agencyGood, errs);
  validation.host.repaint();
}

}  // namespace

StageResult runCompleteValidation(const Host& host, NtcRec& ntc, std::string& report, const GzmpMap* map,
                                  const std::string& filePath, const AgencyLookups& lookups) {
  try {
    LineSource lines(filePath);
    return {validateNotices(host, lines, ntc, report, map, lookups)};
  } catch (...) {
    return tellStageError(host, "Backend Validation", presentError());
  }
}

bool validateNotices(const Host& host, LineSource& lines, NtcRec& ntc, std::string& report,
                     const GzmpMap* map, const AgencyLookups& lookups) {
  Validation validation{host, SectionReading{lines, ntc, {}, {}, {}}, report, map, lookups, host.now().date};
  SectionReading& reading = validation.reading;
  while (!lines.atEnd()) {
    readLine(reading);
    if (!isTagLine(reading.currentLine)) continue;
    if (equalsIgnoringCase(reading.currentLine, kHeadTag)) {
      validateHead(validation);
    } else if (equalsIgnoringCase(reading.currentLine, kNoticeTag)) {
      validateNotice(validation);
    }
  }
  return validation.result;
}

}  // namespace zamo
