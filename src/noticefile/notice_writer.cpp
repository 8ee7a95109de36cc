#include "noticefile/notice_writer.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "model/fields.h"
#include "model/notice_words.h"
#include "noticefile/key_table.h"
#include "noticefile/writer_text.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

enum class WrittenAs {
  asItStands,
  asDate,
  asTime,
  asCoordinate,  // joined from the four texts of the key's CoordinateField
  asConstant,
};
using enum WrittenAs;

// One key of a list. The line is there when `when` holds, or is not given, and the value isn't empty.
struct KeyRow {
  std::string_view key;
  TextMember text = {};
  WrittenAs writtenAs = asItStands;
  bool (*when)(const NtcRec&) = nullptr;
  std::string_view constant = {};
};

constexpr KeyRow fixed(std::string_view key, std::string_view value) {
  return {key, {}, asConstant, nullptr, value};
}

bool isModify(const NtcRec& ntc) {
  return isInAnyCase(ntc.t_action, actions::MODIFY);
}
bool isModifyByElements(const NtcRec& ntc) {
  return isModify(ntc) && ntc.t_trg_adm_ref_id.empty();
}
bool hasSite(const NtcRec& ntc) {
  const std::string& type = ntc.t_notice_type;
  return isExactly(type, {types::GT1, types::GS1, types::DS1, types::DT1});
}
bool hasAntenna(const NtcRec& ntc) {
  const std::string& type = ntc.t_notice_type;
  return !isExactly(type, {types::GT2, types::GS2, types::GA1});
}
bool isOfThePlan(const NtcRec& ntc) {
  return isExactly(ntc.t_fragment, fragments::KV19D);
}
bool hasHours(const NtcRec& ntc) {
  return ntc.op_hours.present;
}

constexpr TextMember kHourFrom = textAt<&NtcRec::op_hours, &OpHoursRec::t_op_hh_fr>;
constexpr TextMember kHourTo = textAt<&NtcRec::op_hours, &OpHoursRec::t_op_hh_to>;
template <auto Member>
constexpr TextMember digitalText = textAt<&NtcRec::digital, Member>;
template <auto Member>
constexpr TextMember allotText = textAt<&NtcRec::digital, &DigitalRec::allot, Member>;
template <auto Member>
constexpr TextMember contourText = textAt<&NtcRec::digital, &DigitalRec::contour, Member>;

// clang-format off

// An assignment or allotment as far as the keys that hang on its fragment.
constexpr KeyRow kStationKeys[] = {
    {"t_notice_type",             textAt<&NtcRec::t_notice_type>},
    {"t_fragment",                textAt<&NtcRec::t_fragment>},
    {"t_action",                  textAt<&NtcRec::t_action>},
    {"t_adm_ref_id",              textAt<&NtcRec::t_adm_ref_id>},
    {"t_d_inuse",                 textAt<&NtcRec::t_d_inuse>,                            asDate},
    {"t_d_expiry",                textAt<&NtcRec::t_d_expiry>,                           asDate},
    {"t_call_sign",               textAt<&NtcRec::t_call_sign>},
    {"t_trg_adm_ref_id",          textAt<&NtcRec::t_trg_adm_ref_id>,                     asItStands,   isModify},
    {"t_trg_freq_assgn",          textAt<&NtcRec::t_trg_freq_assgn>,                     asItStands,   isModifyByElements},
    {"t_trg_long",                {},                                                    asCoordinate, isModifyByElements},
    {"t_trg_lat",                 {},                                                    asCoordinate, isModifyByElements},
    {"t_site_name",               textAt<&NtcRec::t_site_name>},
    {"t_ctry",                    textAt<&NtcRec::t_ctry>},
    {"t_long",                    {},                                                    asCoordinate, hasSite},
    {"t_lat",                     {},                                                    asCoordinate, hasSite},
    {"t_freq_assgn",              textAt<&NtcRec::t_freq_assgn>},
    {"t_offset",                  textAt<&NtcRec::t_offset>},
    {"t_site_alt",                textAt<&NtcRec::t_site_alt>},
    {"t_plan_entry",              textAt<&NtcRec::t_plan_entry>},
    {"t_assgn_code",              textAt<&NtcRec::t_assgn_code>},
    {"t_polar",                   textAt<&NtcRec::t_polar>},
    {"t_erp_h_dbw",               textAt<&NtcRec::t_erp_h_dbw>},
    {"t_erp_v_dbw",               textAt<&NtcRec::t_erp_v_dbw>},
    {"t_erp_beam_tilt_dbw",       textAt<&NtcRec::t_erp_beam_tilt_dbw>},
    {"t_beam_tilt_angle",         textAt<&NtcRec::t_beam_tilt_angle>},
    {"t_hgt_agl",                 textAt<&NtcRec::t_hgt_agl>},
    {"t_eff_hgtmax",              textAt<&NtcRec::t_eff_hgtmax>},
    {"t_ant_dir",                 textAt<&NtcRec::t_ant_dir>},
};

constexpr KeyRow kArt5Keys[] = {
    {"t_op_agcy",                 textAt<&NtcRec::t_op_agcy>},
    {"t_addr_code",               textAt<&NtcRec::t_addr_code>},
    {"t_is_resub",                textAt<&NtcRec::t_is_resub>},
    {"t_remark_conds_met",        textAt<&NtcRec::t_remark_conds_met>},
    {"t_signed_commitment",       textAt<&NtcRec::t_signed_commitment>},
    {"t_op_hh_fr",                kHourFrom,                                             asTime,       hasHours},
    {"t_op_hh_to",                kHourTo,                                               asTime,       hasHours},
    {"t_plan_adm_ref_id",         textAt<&NtcRec::t_plan_adm_ref_id>},
    fixed("t_prov",               "PZ11.2"),
};

constexpr KeyRow kStationKeysBehindArt5[] = {
    {"t_is_pub_req",              textAt<&NtcRec::t_is_pub_req>,                         asItStands,   isOfThePlan},
    {"t_sys_var",                 textAt<&NtcRec::t_sys_var>},
};

constexpr KeyRow kDigitalKeys[] = {
    {"t_rx_mode",                 digitalText<&DigitalRec::t_rx_mode>},
    {"t_ref_plan_cfg",            digitalText<&DigitalRec::t_ref_plan_cfg>},
    {"t_typ_ref_netwk",           allotText<&AllotRec::t_typ_ref_netwk>},
    {"t_sfn_id",                  digitalText<&DigitalRec::t_sfn_id>},
    {"t_associated_adm_allot_id", digitalText<&DigitalRec::t_associated_adm_allot_id>},
    {"t_associated_allot_sfn_id", digitalText<&DigitalRec::t_associated_allot_sfn_id>},
    {"t_spect_mask",              digitalText<&DigitalRec::t_spect_mask>},
};

constexpr KeyRow kAllotKeys[] = {
    {"t_allot_name",              allotText<&AllotRec::t_allot_name>},
    {"t_geo_area",                allotText<&AllotRec::t_geo_area>},
    {"t_nb_sub_areas",            allotText<&AllotRec::t_nb_sub_areas>},
};

constexpr KeyRow kTB3Keys[] = {
    fixed("t_notice_type",        types::TB3.text),
    {"t_action",                  textAt<&NtcRec::t_action>},
    {"t_plan",                    textAt<&NtcRec::t_plan>},
    {"t_trg_adm_ref_id",          textAt<&NtcRec::t_trg_adm_ref_id>},
};

// The same from a notice of another type, which becomes the target.
constexpr KeyRow kNewTB3Keys[] = {
    fixed("t_notice_type",        types::TB3.text),
    fixed("t_action",             actions::PARTB.text),
    {"t_plan",                    textAt<&NtcRec::t_fragment>},
    {"t_trg_adm_ref_id",          textAt<&NtcRec::t_adm_ref_id>},
};

constexpr KeyRow kTB5Keys[] = {
    {"t_notice_type",             textAt<&NtcRec::t_notice_type>},
    {"t_action",                  textAt<&NtcRec::t_action>},
    {"t_fragment",                textAt<&NtcRec::t_fragment>},
    {"t_trg_adm_ref_id",          textAt<&NtcRec::t_trg_adm_ref_id>},
};

constexpr KeyRow kTB2ConformKeys[] = {
    {"t_action",                  textAt<&NtcRec::t_action>},
    {"t_plan",                    textAt<&NtcRec::t_plan>},
    {"t_plan_adm_ref_id",         textAt<&NtcRec::t_plan_adm_ref_id>},
    {"t_trg_long",                {},                                                    asCoordinate},
    {"t_trg_lat",                 {},                                                    asCoordinate},
    {"t_trg_freq_assgn",          textAt<&NtcRec::t_trg_freq_assgn>},
};

// The same from a notice that was added or modified.
constexpr KeyRow kNewTB2Keys[] = {
    fixed("t_action",             actions::CONFORM.text),
    fixed("t_plan",               fragments::KV19D.text),
    {"t_plan_adm_ref_id",         textAt<&NtcRec::t_plan_adm_ref_id>},
};

constexpr KeyRow kTB2UseKeys[] = {
    {"t_op_agcy",                 textAt<&NtcRec::t_op_agcy>},
    {"t_addr_code",               textAt<&NtcRec::t_addr_code>},
    {"t_call_sign",               textAt<&NtcRec::t_call_sign>},
    {"t_op_hh_fr",                kHourFrom,                                             asTime,       hasHours},
    {"t_op_hh_to",                kHourTo,                                               asTime,       hasHours},
    {"t_d_inuse",                 textAt<&NtcRec::t_d_inuse>,                            asDate},
};

constexpr KeyRow kContourKeys[] = {
    {"t_notice_type",             textAt<&NtcRec::t_notice_type>},
    {"t_action",                  textAt<&NtcRec::t_action>},
    {"t_ctry",                    textAt<&NtcRec::t_ctry>},
    {"t_contour_id",              contourText<&ContourRec::t_contour_id>},
    {"t_nb_test_pts",             contourText<&ContourRec::t_nb_test_pts>},
};
// clang-format on

constexpr const CoordinateField* findCoordinate(std::string_view key) {
  return std::find_if(kCoordinateFields.begin(), kCoordinateFields.end(),
                      [key](const CoordinateField& field) { return field.key == key; });
}

constexpr bool hasItsValue(const KeyRow& row) {
  if (row.writtenAs == asCoordinate) return findCoordinate(row.key) != kCoordinateFields.end();
  if (row.writtenAs == asConstant) return !row.constant.empty();
  return row.text.in != nullptr;
}

// Every key is one that the readers know and stands once in its list.
constexpr bool isSound(std::span<const KeyRow> rows) {
  return std::all_of(rows.begin(), rows.end(), [rows](const KeyRow& row) {
    const auto isSame = [&row](const KeyRow& other) { return other.key == row.key; };
    return hasItsValue(row) && std::count(kNoticeKeys.begin(), kNoticeKeys.end(), row.key) == 1 &&
           std::count_if(rows.begin(), rows.end(), isSame) == 1;
  });
}
static_assert(isSound(kStationKeys) && isSound(kArt5Keys) && isSound(kStationKeysBehindArt5));
static_assert(isSound(kDigitalKeys) && isSound(kAllotKeys) && isSound(kContourKeys));
static_assert(isSound(kTB3Keys) && isSound(kNewTB3Keys) && isSound(kTB5Keys));
static_assert(isSound(kTB2ConformKeys) && isSound(kNewTB2Keys) && isSound(kTB2UseKeys));

std::string dateValue(std::string_view text) {
  std::string day;
  std::string month;
  std::string year;
  splitDate(normalizeDate(text), day, month, year);
  return makeDateText(year, month, day);
}

std::string coordinateValue(const NtcRec& ntc, const CoordinateField& field) {
  return makeCoordText(ntc.*field.degrees, ntc.*field.minutes, ntc.*field.seconds, ntc.*field.hemisphere);
}

std::string valueOf(const KeyRow& row, const NtcRec& ntc) {
  switch (row.writtenAs) {
    case asItStands:
      return row.text.in(ntc);
    case asDate:
      return dateValue(row.text.in(ntc));
    case asTime:
      return makeTimeText(row.text.in(ntc));
    case asCoordinate:
      return coordinateValue(ntc, *findCoordinate(row.key));
    case asConstant:
      return std::string(row.constant);
  }
  return {};
}

std::string makeKeyLines(std::span<const KeyRow> rows, const NtcRec& ntc) {
  std::string lines;
  for (const KeyRow& row : rows) {
    if (row.when == nullptr || row.when(ntc)) lines += makeKeyLine(row.key, valueOf(row, ntc));
  }
  return lines;
}

// The line end stands even when no administration of the list is written.
std::string makeCoordPart(const NtcRec& ntc) {
  return ntc.coord.present ? std::string(kLineEnd) + makeCoordSection(ntc.coord) : std::string();
}

std::string makeStationBody(const NtcRec& ntc) {
  std::string body = makeKeyLines(kStationKeys, ntc);
  if (isExactly(ntc.t_fragment, fragments::NTFD_PZ)) body += makeArt5Body(ntc);
  body += makeKeyLines(kStationKeysBehindArt5, ntc);
  if (ntc.digital.present) body += makeDigitalBody(ntc);
  body += makeCoordPart(ntc);
  if (hasAntenna(ntc)) body.append(kLineEnd).append(makeAntHgtSection(ntc)).append(makeAntDiagrSections(ntc));
  return body;
}

bool isWrittenAsTB3(const NtcRec& ntc) {
  return upperText(ntc.t_int_remarks).find("TB3") != std::string::npos ||
         isExactly(ntc.t_notice_type, types::TB3);
}

std::string makeNoticeBody(const NtcRec& ntc, const TargetLookup& findTarget) {
  if (isWrittenAsTB3(ntc)) return makeTB3Body(ntc);
  if (isExactly(ntc.t_notice_type, types::TB5)) return makeTB5Body(ntc);
  if (isExactly(ntc.t_notice_type, types::TB2)) return makeTB2Body(ntc, findTarget);
  return makeStationBody(ntc);
}

std::string makeNumberLine(std::int32_t number) {
  return makeKeyLine("Notice No", std::to_string(number));
}

std::string makeTargetLines(const NtcRec& ntc, const TargetLookup& findTarget) {
  const TargetElements target = findTarget ? findTarget(ntc.trg_key) : TargetElements{};
  return makeKeyLine("t_trg_long", target.longitude) + makeKeyLine("t_trg_lat", target.latitude) +
         makeKeyLine("t_trg_freq_assgn", target.freq_assgn);
}

std::string makeAzimuthLines(std::span<const AzmValueRec> values, std::string_view stem) {
  std::string lines;
  for (const AzmValueRec& one : values) lines += makeKeyLine(std::string(stem) + one.azm, one.value);
  return lines;
}

std::string makeDiagram(std::string_view tag, std::span<const AzmValueRec> values) {
  const std::string section = makeSection(tag, makeAzimuthLines(values, "t_attn@azm"));
  return section.empty() ? section : std::string(kLineEnd) + section;
}

// As many points as the text tells, and no more than there are.
std::span<const PointRec> notifiedPoints(const ContourRec& contour) {
  const double told = std::trunc(leadingNumber(contour.t_nb_test_pts));
  const auto held = static_cast<double>(contour.points.size());
  return std::span(contour.points).first(static_cast<std::size_t>(std::clamp(told, 0.0, held)));
}

}  // namespace

std::string makeHeadSection(std::string_view t_adm, std::string_view t_email_addr) {
  return makeSection("HEAD", makeKeyLine("t_adm", t_adm) + makeKeyLine("t_email_addr", t_email_addr));
}

std::string makeNoticeSection(const NtcRec& ntc, std::int32_t number, const TargetLookup& findTarget) {
  return makeSection("NOTICE", makeNumberLine(number) + makeNoticeBody(ntc, findTarget) +
                                   makeKeyLine("t_remarks", ntc.t_remarks) +
                                   makeKeyLine("t_int_remarks", ntc.t_int_remarks));
}

std::string makeContourNotice(const NtcRec& ntc, std::int32_t number) {
  std::string body =
      makeKeyLine("t_remarks", ntc.t_remarks) + makeNumberLine(number) + makeKeyLines(kContourKeys, ntc);
  for (const PointRec& point : notifiedPoints(ntc.digital.contour)) {
    if (point.present) body.append(kLineEnd).append(makePointSection(point));
  }
  return makeSection("NOTICE", body);
}

std::string makePointSection(const PointRec& point) {
  return makeSection("POINT", makeKeyLine("t_long", point.t_long) + makeKeyLine("t_lat", point.t_lat));
}

std::string makeCoordSection(const CoordListRec& coord) {
  std::string lines;
  for (const CoordEntryRec& entry : coord.entries) {
    if (equalsIgnoringCase(entry.src_status, "NOTIFIER")) lines += makeKeyLine("t_adm", entry.adm);
  }
  return makeSection("COORD", lines);
}

std::string makeAntHgtSection(const NtcRec& ntc) {
  return makeSection("ANT_HGT", makeAzimuthLines(ntc.ant_hgt, "t_eff_hgt@azm"));
}

std::string makeAntDiagrSections(const NtcRec& ntc) {
  return makeDiagram("ANT_DIAGR_H", ntc.ant_diagr_h) + makeDiagram("ANT_DIAGR_V", ntc.ant_diagr_v);
}

std::string makeTB2Body(const NtcRec& ntc, const TargetLookup& findTarget) {
  std::string body = makeKeyLine("t_notice_type", ntc.t_notice_type);
  if (isInAnyCase(ntc.t_action, actions::CONFORM)) body += makeKeyLines(kTB2ConformKeys, ntc);
  if (isInAnyCase(ntc.t_action, actions::ADD) || isModify(ntc)) body += makeKeyLines(kNewTB2Keys, ntc);
  if (isModify(ntc)) body += makeTargetLines(ntc, findTarget);
  return body + makeKeyLines(kTB2UseKeys, ntc);
}

std::string makeTB3Body(const NtcRec& ntc) {
  const bool isAlready = isExactly(ntc.t_action, actions::PARTB);
  return makeKeyLines(isAlready ? std::span<const KeyRow>(kTB3Keys) : kNewTB3Keys, ntc) + makeCoordPart(ntc);
}

std::string makeTB5Body(const NtcRec& ntc) {
  return makeKeyLines(kTB5Keys, ntc);
}

std::string makeArt5Body(const NtcRec& ntc) {
  return makeKeyLines(kArt5Keys, ntc);
}

std::string makeDigitalBody(const NtcRec& ntc) {
  return makeKeyLines(kDigitalKeys, ntc) + makeAllotBody(ntc);
}

std::string makeAllotBody(const NtcRec& ntc) {
  std::string body = makeKeyLines(kAllotKeys, ntc);
  for (const std::string& id : ntc.digital.allot.t_contour_id) body += makeKeyLine("t_contour_id", id);
  return body;
}

}  // namespace zamo
