#include "screens/bindings.h"

#include <algorithm>

#include "model/presence.h"
#include "noticefile/writer_text.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

using enum Conversion;

template <auto Member>
constexpr TextMember own = textAt<Member>;
template <auto Member>
constexpr TextMember hours = textAt<&NtcRec::op_hours, Member>;
template <auto Member>
constexpr TextMember digital = textAt<&NtcRec::digital, Member>;
template <auto Member>
constexpr TextMember allot = textAt<&NtcRec::digital, &DigitalRec::allot, Member>;
template <auto Member>
constexpr TextMember contour = textAt<&NtcRec::digital, &DigitalRec::contour, Member>;

constexpr FormSet kAssignments = kAssignmentForms;
constexpr FormSet kAllotments = kAllotmentForms;
constexpr FormSet kBoth = kAssignmentForms | kAllotmentForms;
constexpr FormSet kGS1 = formBit(kGS1Assign);
constexpr FormSet kGT1 = formBit(kGT1Assign);
constexpr FormSet kGS2 = formBit(kGS2Allot);
constexpr FormSet kGT2 = formBit(kGT2Allot);
constexpr FormSet kTB2Only = formBit(kTB2);
constexpr FormSet kTB3AndTB5 = formBit(kTB3) | formBit(kTB5);

constexpr Group kAlways = Group::main;
constexpr Group kNone = Group::main;
constexpr Group kDigital = Group::digital;
constexpr Group kHours = Group::opHours;
constexpr Group kContour = Group::contour;

// clang-format off
constexpr Binding kBindings[] = {
    // stage                 forms         control                        field                                            conversion    needs     marks
    {Stage::common,           kBoth,        "Combo_B_Adm",                 own<&NtcRec::t_adm>,                            comboTrimmed},
    {Stage::common,           kBoth,        "Combo_4B_Ctry",               own<&NtcRec::t_ctry>,                           comboTrimmed},
    {Stage::common,           kBoth,        "Txt_Exp_DD",                    own<&NtcRec::t_d_expiry>,                       date},
    {Stage::common,           kBoth,        "Txt_AdmRefID",                own<&NtcRec::t_adm_ref_id>},
    {Stage::common,           kBoth,        "Combo_9D_Polariz",            own<&NtcRec::t_polar>,                          combo},
    {Stage::common,           kBoth,        "Txt_KV19_Offset",             own<&NtcRec::t_offset>},
    {Stage::common,           kBoth,        "Txt_notified_Rmks",           own<&NtcRec::t_remarks>},
    {Stage::common,           kBoth,        "Txt_EmailAddr",               digital<&DigitalRec::t_email_addr>,              plain,        kDigital, kDigital},
    {Stage::common,           kBoth,        "Combo_LMZ04_RefPlan",         digital<&DigitalRec::t_ref_plan_cfg>,            comboOrFirst, kDigital, kDigital},
    {Stage::common,           kBoth,        "Txt_LMZ04_SfnID",             digital<&DigitalRec::t_sfn_id>,                  plain,        kDigital, kDigital},
    {Stage::common,           kBoth,        "Combo_LMZ04_SpectMask",       digital<&DigitalRec::t_spect_mask>,              combo,        kDigital, kDigital},
    {Stage::common,           kBoth,        "Combo_KV19_PubReq",           own<&NtcRec::t_is_pub_req>,                     combo,        kDigital, kDigital},
    {Stage::common,           kBoth,        "Combo_KV19_Plan",             own<&NtcRec::t_plan_entry>,                     combo,        kDigital, kDigital},

    {Stage::site,             kAssignments, "Txt_4A_SiteName",             own<&NtcRec::t_site_name>},
    {Stage::site,             kAssignments, "Txt_4C_Deg_Long",             own<&NtcRec::long_deg>,                         pad3},
    {Stage::site,             kAssignments, "Txt_4C_EW",                   own<&NtcRec::long_ew>},
    {Stage::site,             kAssignments, "Txt_4C_Min_Long",             own<&NtcRec::long_min>,                         pad2},
    {Stage::site,             kAssignments, "Txt_4C_Sec_Long",             own<&NtcRec::long_sec>,                         pad2},
    {Stage::site,             kAssignments, "Txt_4C_Deg_Lat",              own<&NtcRec::lat_deg>,                          pad2},
    {Stage::site,             kAssignments, "Txt_4C_NS",                   own<&NtcRec::lat_ns>},
    {Stage::site,             kAssignments, "Txt_4C_Min_Lat",              own<&NtcRec::lat_min>,                          pad2},
    {Stage::site,             kAssignments, "Txt_4C_Sec_Lat",              own<&NtcRec::lat_sec>,                          pad2},

    {Stage::target,           kAssignments, "Txt_TrgAdmRefID",             own<&NtcRec::t_trg_adm_ref_id>},
    {Stage::target,           kAssignments, "Txt_trg_freq_assgn",          own<&NtcRec::t_trg_freq_assgn>},
    {Stage::target,           kAssignments, "Txt_trg_long_DD",             own<&NtcRec::trg_long_deg>,                     pad3Back},
    {Stage::target,           kAssignments, "Txt_trg_long_MM",             own<&NtcRec::trg_long_min>,                     pad2Back},
    {Stage::target,           kAssignments, "Txt_trg_long_SS",             own<&NtcRec::trg_long_sec>,                     pad2Back},
    {Stage::target,           kAssignments, "Txt_trg_long_EW",             own<&NtcRec::trg_long_ew>},
    {Stage::target,           kAssignments, "Txt_trg_lat_DD",              own<&NtcRec::trg_lat_deg>,                      pad2Back},
    {Stage::target,           kAssignments, "Txt_trg_lat_MM",              own<&NtcRec::trg_lat_min>,                      pad2Back},
    {Stage::target,           kAssignments, "Txt_trg_lat_SS",              own<&NtcRec::trg_lat_sec>,                      pad2Back},
    {Stage::target,           kAssignments, "Txt_trg_lat_NS",              own<&NtcRec::trg_lat_ns>},

    {Stage::station,          kAssignments, "Txt_9E_AntHgt",               own<&NtcRec::t_hgt_agl>},
    {Stage::station,          kAssignments, "Txt_9EB_Eff_hgtmax",          own<&NtcRec::t_eff_hgtmax>},
    {Stage::station,          kAssignments, "Txt_8BH_Erp_H",               own<&NtcRec::t_erp_h_dbw>},
    {Stage::station,          kAssignments, "Txt_8BV_Erp_V",               own<&NtcRec::t_erp_v_dbw>},
    {Stage::station,          kAssignments, "Combo_9_AntDir",              own<&NtcRec::t_ant_dir>,                        combo},
    {Stage::station,          kAssignments, "Txt_9EA_SiteAlt",             own<&NtcRec::t_site_alt>},
    {Stage::station,          kAssignments, "Combo_KV19_assgnCde",         own<&NtcRec::t_assgn_code>,                     combo},
    {Stage::station,          kAssignments, "Txt_LMZ04_AdmAllotID",        digital<&DigitalRec::t_associated_adm_allot_id>, plain,        kDigital, kDigital},
    {Stage::station,          kAssignments, "Txt_KV19_assoc_allot_sfnID",  digital<&DigitalRec::t_associated_allot_sfn_id>, plain,        kDigital, kDigital},
    {Stage::station,          kAssignments, "Txt_InUse_DD",                  own<&NtcRec::t_d_inuse>,                        date},
    {Stage::station,          kAssignments, "Txt_3A1_CallSign",            own<&NtcRec::t_call_sign>},
    {Stage::station,          kAssignments, "Txt_12A_OpAgcy",              own<&NtcRec::t_op_agcy>},
    {Stage::station,          kAssignments, "Txt_12B_AddrCde",             own<&NtcRec::t_addr_code>},
    {Stage::station,          kAssignments, "Txt_10B_Ophhfr",              hours<&OpHoursRec::t_op_hh_fr>,                  plain,        kHours,   kHours},
    {Stage::station,          kAssignments, "Txt_10B_Ophhto",              hours<&OpHoursRec::t_op_hh_to>,                  plain,        kHours,   kHours},
    {Stage::station,          kAssignments, "Txt_PlanAdm_RefID",           own<&NtcRec::t_plan_adm_ref_id>},
    {Stage::station,          kAssignments, "Combo_KV19_IsResub",          own<&NtcRec::t_is_resub>,                       combo},
    {Stage::station,          kAssignments, "Combo_KV19_Rmk_Cond",         own<&NtcRec::t_remark_conds_met>,               combo},
    {Stage::station,          kAssignments, "Combo_KV19_SigComit",         own<&NtcRec::t_signed_commitment>,              combo,        kAlways,  kNone, own<&NtcRec::t_remark_conds_met>},

    {Stage::system,           kGS1,         "Combo_KV19_FreqAssgn",        own<&NtcRec::t_freq_assgn>,                     combo},
    {Stage::system,           kGT1,         "Txt_KV19_freqAssgn",          own<&NtcRec::t_freq_assgn>},
    {Stage::system,           kGT1,         "Combo_LMZ04_Sys_Var",         own<&NtcRec::t_sys_var>,                        combo},
    {Stage::system,           kGT1,         "Combo_LMZ04_RxMode",          digital<&DigitalRec::t_rx_mode>,                 combo,        kDigital, kDigital},
    {Stage::system,           kGT1,         "Txt_KV19_erpBeam_tilt",       own<&NtcRec::t_erp_beam_tilt_dbw>},
    {Stage::system,           kGT1,         "Txt_KV19_TiltAngle",          own<&NtcRec::t_beam_tilt_angle>},

    {Stage::allotmentTarget,  kAllotments,  "Txt_TrgAdmRefID",             own<&NtcRec::t_trg_adm_ref_id>},

    {Stage::allotment,        kGS2,         "Combo_KV19_FreqAssgn",        own<&NtcRec::t_freq_assgn>,                     combo},
    {Stage::allotment,        kGT2,         "Txt_KV19_freqAssgn",          own<&NtcRec::t_freq_assgn>},
    {Stage::allotment,        kGT2,         "Combo_LMZ04_TypRefNetwk",     allot<&AllotRec::t_typ_ref_netwk>,               combo,        kDigital, kDigital},
    {Stage::allotment,        kAllotments,  "Txt_LMZ04_allot_name",        allot<&AllotRec::t_allot_name>},
    {Stage::allotment,        kAllotments,  "Combo_LMZ04_geo_area",        allot<&AllotRec::t_geo_area>,                    combo},
    {Stage::allotment,        kAllotments,  "Txt_LMZ04_nb_sub_areas",      allot<&AllotRec::t_nb_sub_areas>},

    {Stage::contourOwner,     kContourForm, "Txt_notified_Rmks",           own<&NtcRec::t_remarks>},
    {Stage::contourOwner,     kContourForm, "Combo_B_Adm",                 own<&NtcRec::t_adm>,                            comboTrimmed},
    {Stage::contourOwner,     kContourForm, "Combo_4B_Ctry",               own<&NtcRec::t_ctry>,                           comboTrimmed},

    {Stage::contour,          kContourForm, "Txt_EmailAddr",               digital<&DigitalRec::t_email_addr>,              plain,        kDigital, kDigital},
    {Stage::contour,          kContourForm, "Txt_LMZ04_contour_id",        contour<&ContourRec::t_contour_id>,              plain,        kContour, kContour},
    {Stage::contour,          kContourForm, "Txt_LMZ04_nb_test_pts",       contour<&ContourRec::t_nb_test_pts>,             plain,        kContour, kContour},

    {Stage::tb,               kTbForms,     "Combo_B_Adm",                 own<&NtcRec::t_adm>,                            comboTrimmed},
    {Stage::tb,               kTbForms,     "Txt_EmailAddr",               digital<&DigitalRec::t_email_addr>,              plain,        kAlways,  kDigital},
    {Stage::tb,               kTbForms,     "Txt_notified_Rmks",           own<&NtcRec::t_remarks>},
    {Stage::tb,               kTB2Only,     "Txt_PlanAdmRefID",            own<&NtcRec::t_plan_adm_ref_id>},
    {Stage::tb,               kTB2Only,     "Txt_InUse_DD",                  own<&NtcRec::t_d_inuse>,                        date},
    {Stage::tb,               kTB2Only,     "Txt_12A_OpAgcy",              own<&NtcRec::t_op_agcy>},
    {Stage::tb,               kTB2Only,     "Txt_12B_AddrCde",             own<&NtcRec::t_addr_code>},
    {Stage::tb,               kTB2Only,     "Txt_10B_Ophhfr",              hours<&OpHoursRec::t_op_hh_fr>,                  plain,        kHours,   kHours},
    {Stage::tb,               kTB2Only,     "Txt_10B_Ophhto",              hours<&OpHoursRec::t_op_hh_to>,                  plain,        kHours,   kHours},
    {Stage::tb,               kTB3AndTB5,   "Txt_TrgAdmRefID",             own<&NtcRec::t_trg_adm_ref_id>},

    // The site boxes of this form tell the target.
    {Stage::tbTarget,         kTB2Only,     "Txt_TrgAdmRefID",             own<&NtcRec::t_trg_adm_ref_id>},
    {Stage::tbTarget,         kTB2Only,     "Txt_TrgFreq",                 own<&NtcRec::t_trg_freq_assgn>},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_Deg_Long",             own<&NtcRec::trg_long_deg>,                     pad3},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_Min_Long",             own<&NtcRec::trg_long_min>,                     pad2},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_Sec_Long",             own<&NtcRec::trg_long_sec>,                     pad2},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_EW",                   own<&NtcRec::trg_long_ew>},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_Deg_Lat",              own<&NtcRec::trg_lat_deg>,                      pad2},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_Min_Lat",              own<&NtcRec::trg_lat_min>,                      pad2},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_Sec_Lat",              own<&NtcRec::trg_lat_sec>,                      pad2},
    {Stage::tbTarget,         kTB2Only,     "Txt_4C_NS",                   own<&NtcRec::trg_lat_ns>},
};
// clang-format on

constexpr bool isSound() {
  const std::span<const Binding> rows(kBindings);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].field.in == nullptr || rows[i].forms == 0) return false;
    if (i > 0 && rows[i].stage < rows[i - 1].stage) return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (rows[i].control == rows[j].control && (rows[i].forms & rows[j].forms) != 0) return false;
    }
  }
  return true;
}
static_assert(areOnTheirForms(kBindings, &Binding::control));
static_assert(isSound(), "a control carries one field of a form, and the stages follow each other");

bool isPresent(const NtcRec& ntc, Group group) {
  switch (group) {
    case Group::opHours:
      return ntc.op_hours.present;
    case Group::digital:
      return ntc.digital.present;
    case Group::allot:
      return ntc.digital.allot.present;
    case Group::contour:
      return ntc.digital.contour.present;
    default:
      return true;
  }
}

void showDate(Screen& screen, ControlName control, std::string_view value) {
  DateBoxes parts;
  splitDate(normalizeDate(value), parts.day, parts.month, parts.year);
  if (parts.year.empty()) return;  // no date
  const DateBoxes boxes = dateBoxes(control);
  screen.setText(madeName(boxes.year), numberText(leadingNumber(parts.year)));
  screen.setText(madeName(boxes.month), numberText(leadingNumber(parts.month)));
  screen.setText(madeName(boxes.day), numberText(leadingNumber(parts.day)));
}

std::string dateOn(const Screen& screen, ControlName control) {
  const DateBoxes boxes = dateBoxes(control);
  return makeDateText(screen.text(madeName(boxes.year)), screen.text(madeName(boxes.month)),
                      screen.text(madeName(boxes.day)));
}

void show(Screen& screen, const Binding& one, const std::string& value) {
  switch (one.conversion) {
    case combo:
    case comboOrFirst:
      screen.chooseText(one.control, value);
      break;
    case comboTrimmed:
      screen.chooseText(one.control, trimText(value));
      break;
    case pad2:
      screen.setText(one.control, padToWidth(value, 2));
      break;
    case pad3:
      screen.setText(one.control, padToWidth(value, 3));
      break;
    case date:
      showDate(screen, one.control, value);
      break;
    default:
      screen.setText(one.control, value);
  }
}

// The field's value as the control shows it; empty when it shows none.
std::string valueOn(const Screen& screen, const Binding& one) {
  if (one.conversion == date) return dateOn(screen, one.control);
  const std::string& text = screen.text(one.control);
  if (text.empty()) return {};
  if (one.conversion == pad2 || one.conversion == pad2Back) return padToWidth(text, 2);
  if (one.conversion == pad3 || one.conversion == pad3Back) return padToWidth(text, 3);
  return text;
}

void fillControl(const NtcRec& ntc, Screen& screen, const Binding& one) {
  if (!isPresent(ntc, one.needs)) return;
  const std::string& value = one.field.in(ntc);
  if (!value.empty()) {
    show(screen, one, one.shown.in != nullptr ? one.shown.in(ntc) : value);
  } else if (one.conversion == comboOrFirst) {
    screen.choose(one.control, 0);
  }
}

void readControl(NtcRec& ntc, const Screen& screen, const Binding& one) {
  std::string value = valueOn(screen, one);
  if (value.empty()) return;
  one.field.of(ntc) = std::move(value);
  markPresent(ntc, one.marks);
}

}  // namespace

std::span<const Binding> bindings() {
  return kBindings;
}

std::span<const Binding> bindingsOf(Stage stage) {
  const auto isBefore = [](const Binding& one, Stage other) { return one.stage < other; };
  const auto isBehind = [](Stage other, const Binding& one) { return other < one.stage; };
  const Binding* first = std::lower_bound(std::begin(kBindings), std::end(kBindings), stage, isBefore);
  return {first, std::upper_bound(first, std::end(kBindings), stage, isBehind)};
}

DateBoxes dateBoxes(ControlName box) {
  std::string stem(box);
  stem.resize(stem.size() - 2);
  return {stem + "DD", stem + "MM", stem + "YY"};
}

void fillStage(const NtcRec& ntc, Screen& screen, FormCode code, Stage stage) {
  for (const Binding& one : bindingsOf(stage)) {
    if (isOneOf(code, one.forms)) fillControl(ntc, screen, one);
  }
}

void readStage(NtcRec& ntc, const Screen& screen, FormCode code, Stage stage) {
  for (const Binding& one : bindingsOf(stage)) {
    if (isOneOf(code, one.forms)) readControl(ntc, screen, one);
  }
}

}  // namespace zamo
