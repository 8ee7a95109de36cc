// The save rules of the assignment forms.
#include "platform/text.h"
#include "screens/control_table.h"
#include "screens/notice_form.h"
#include "screens/save_rule.h"
#include "validation/assignment_rules.h"
#include "validation/frequency_rules.h"
#include "validation/geo_rules.h"

namespace zamo {
namespace {

// clang-format off
const Message kSite("GT1, GS1, before a save: the site is not in the country; a remark of the map check follows", "t_long : %1 t_lat : %2%3");
const Message kTargetSite("GT1, GS1, before a save: the target site is not in the country; a remark of the map check follows", "t_trg_long : %1 t_trg_lat : %2%3");
// clang-format on

bool noTargetIdUnderArt4(const Screen& screen, ControlName control) {
  return screen.isSet("OptInt_Mod") && screen.isSet("Opt_Art4") && screen.isEmpty(control);
}

bool noTarget(const Screen& screen, ControlName control) {
  if (!screen.isSet("OptInt_Mod") || screen.isSet("Opt_Art4") || !screen.isEmpty(control)) return false;
  return screen.isEmpty("Txt_trg_freq_assgn") || whenAnyIsEmpty(screen, kTargetBoxes.longitude) ||
         whenAnyIsEmpty(screen, kTargetBoxes.latitude);
}

bool noLongitude(const Screen& screen, ControlName /*control*/) {
  return whenAnyIsEmpty(screen, kSiteBoxes.longitude);
}

bool noLatitude(const Screen& screen, ControlName /*control*/) {
  return whenAnyIsEmpty(screen, kSiteBoxes.latitude);
}

std::string frequencyFinding(const SaveGate& gate, ControlName control) {
  const std::string& frequency = gate.screen.text(control);
  const std::string& ctry = gate.screen.text("Combo_4B_Ctry");
  std::string msg;
  if (!frequency.empty() && !ctry.empty()) checkDvbtFrequency(ctry, frequency, msg);
  return msg;
}

// The system of a GT1: a variant and a reception mode, or a planning configuration.
struct System {
  bool variant, mode, planning;
};

System systemOf(const Screen& screen) {
  return {!screen.isEmpty("Combo_LMZ04_Sys_Var"), !screen.isEmpty("Combo_LMZ04_RxMode"),
          !screen.isEmpty("Combo_LMZ04_RefPlan")};
}

bool noSystem(const Screen& screen, ControlName article) {
  const System system = systemOf(screen);
  return !system.variant && !system.mode && !system.planning && screen.isSet(article);
}

bool noVariant(const Screen& screen, ControlName /*control*/) {
  const System system = systemOf(screen);
  return system.mode && !system.variant;
}

bool noMode(const Screen& screen, ControlName /*control*/) {
  const System system = systemOf(screen);
  return system.variant && !system.mode;
}

constexpr ControlStem kHeights = "Txt_9EC_azm";
constexpr ControlStem kDiagramH = "Txt_9NHAzm";
constexpr ControlStem kDiagramV = "Txt_9NVAzm";

template <typename Test>
bool anyAzimuth(ControlStem grid, Test test) {
  for (int azimuth = 0; azimuth < 360; azimuth += 10) {
    if (test(azimuthBox(grid, azimuth))) return true;
  }
  return false;
}

bool isIncomplete(const Screen& screen, ControlStem grid) {
  return anyAzimuth(grid, [&screen](const std::string& box) { return screen.isEmpty(madeName(box)); });
}

// Compared as text: 0.0 doesn't do.
bool isNotNormalized(const Screen& screen, ControlStem grid) {
  return !anyAzimuth(grid, [&screen](const std::string& box) { return screen.text(madeName(box)) == "0"; });
}

bool isPolarized(const Screen& screen, std::string_view letter) {
  const std::string& polariz = screen.text("Combo_9D_Polariz");
  return polariz == letter || polariz == "M";
}

bool isDirected(const Screen& screen, std::string_view letter) {
  return isPolarized(screen, letter) && screen.text("Combo_9_AntDir") == "D";
}

bool noHeights(const Screen& screen, ControlName /*control*/) {
  return isIncomplete(screen, kHeights);
}

bool noPowerV(const Screen& screen, ControlName control) {
  return isPolarized(screen, "V") && screen.isEmpty(control);
}

bool noPowerH(const Screen& screen, ControlName control) {
  return isPolarized(screen, "H") && screen.isEmpty(control);
}

bool incompleteV(const Screen& screen, ControlName /*control*/) {
  return isDirected(screen, "V") && isIncomplete(screen, kDiagramV);
}

bool incompleteH(const Screen& screen, ControlName /*control*/) {
  return isDirected(screen, "H") && isIncomplete(screen, kDiagramH);
}

bool notNormalizedV(const Screen& screen, ControlName /*control*/) {
  return isDirected(screen, "V") && isNotNormalized(screen, kDiagramV);
}

bool notNormalizedH(const Screen& screen, ControlName /*control*/) {
  return isDirected(screen, "H") && isNotNormalized(screen, kDiagramH);
}

// The check closes each of its lines itself.
std::string planEntryFinding(const SaveGate& gate, ControlName control) {
  const Screen& screen = gate.screen;
  std::string msg;
  checkPlanEntryAssgn(screen.text(control), screen.text("Combo_KV19_assgnCde"),
                      screen.text("Txt_LMZ04_SfnID"), screen.text("Txt_LMZ04_AdmAllotID"),
                      screen.text("Txt_KV19_assoc_allot_sfnID"), msg);
  return msg;
}

bool standaloneWithAllotment(const Screen& screen, ControlName control) {
  return screen.text("Combo_KV19_assgnCde") == "S" && !screen.isEmpty(control);
}

bool noRequestUnderArt4(const Screen& screen, ControlName control) {
  return screen.isSet("Opt_Art4") && screen.isEmpty(control);
}

bool noInUseDateUnderArt5(const Screen& screen, ControlName /*control*/) {
  return screen.isSet("Opt_Art5") && whenAnyIsEmpty(screen, kInUseBoxes);
}

bool powerWithoutTilt(const Screen& screen, ControlName tilt) {
  return !screen.isEmpty("Txt_KV19_erpBeam_tilt") && screen.isEmpty(tilt);
}

bool tiltWithoutPower(const Screen& screen, ControlName power) {
  return !screen.isEmpty("Txt_KV19_TiltAngle") && screen.isEmpty(power);
}

// What the boxes of a coordinate hold, padded as it is stored.
struct CoordinateTexts {
  std::string degrees, minutes, seconds, hemisphere;
  std::string joined() const { return degrees + minutes + seconds + hemisphere; }
};

CoordinateTexts textsOf(const Screen& screen, const ControlName (&boxes)[4], std::size_t degreeWidth) {
  return {padToWidth(screen.text(boxes[0]), degreeWidth), padToWidth(screen.text(boxes[1]), 2),
          padToWidth(screen.text(boxes[2]), 2), screen.text(boxes[3])};
}

std::string placeFinding(const SaveGate& gate, const CoordinateBoxes& boxes, const Message& where) {
  const Screen& screen = gate.screen;
  const std::string& ctry = screen.text("Combo_4B_Ctry");
  if (!hasMap(*gate.map) || ctry.empty() || whenAnyIsEmpty(screen, boxes.longitude) ||
      whenAnyIsEmpty(screen, boxes.latitude)) {
    return {};
  }
  CoordinateTexts lon = textsOf(screen, boxes.longitude, 3);
  CoordinateTexts lat = textsOf(screen, boxes.latitude, 2);
  const SiteTexts site{lon.degrees, lon.minutes, lon.seconds, lon.hemisphere,
                       lat.degrees, lat.minutes, lat.seconds, lat.hemisphere};
  std::string msg;
  if (checkSiteInCountry(*gate.host, *gate.map, site, ctry, msg)) return {};
  return where.filled({lon.joined(), lat.joined(), msg});
}

std::string siteFinding(const SaveGate& gate, ControlName /*control*/) {
  return placeFinding(gate, kSiteBoxes, kSite);
}

std::string targetSiteFinding(const SaveGate& gate, ControlName /*control*/) {
  return placeFinding(gate, kTargetBoxes, kTargetSite);
}

constexpr FormSet kBoth = kAssignmentForms;
constexpr FormSet kGS1 = formBit(kGS1Assign);
constexpr FormSet kGT1 = formBit(kGT1Assign);

// clang-format off
constexpr SaveRule kIdentity[] = {
    {kBoth, whenEmpty,           "Combo_B_Adm",          "Notifying Administration : t_adm (B)"},
    {kBoth, whenEmpty,           "Combo_4B_Ctry",        "Country in which the transmitter is sited : t_ctry (4B)"},
    {kBoth, nullptr,             "Combo_4B_Ctry",        "", foreignFinding},
    {kBoth, whenEmpty,           "Txt_AdmRefID",         "Administration's unique ID of the notice : t_adm_ref_id "},
    {kBoth, noTargetIdUnderArt4, "Txt_TrgAdmRefID",      "Administration's unique ID of the notice to modify : t_trg_adm_ref_id "},
    {kBoth, noTarget,            "Txt_TrgAdmRefID",      "Administration's unique ID of the notice to modify : t_trg_adm_ref_id Or \r\nTarget assign frequency t_trg_freq_assgn AND target coordinates t_trg_long, t_trg_lat"},
    {kBoth, noLongitude,         {},                     "Longitude : t_long (4C) "},
    {kBoth, noLatitude,          {},                     "Latitude : t_lat (4C) "},
    {kBoth, whenEmpty,           "Txt_4A_SiteName",      "Name of the location of the transmitting station : t_sitename (4A)"},
    {kGS1,  whenEmpty,           "Combo_KV19_FreqAssgn", "Assign Frequency : t_freq_assgn"},
    {kGT1,  whenEmpty,           "Txt_KV19_freqAssgn",   "Assign Frequency : t_freq_assgn"},
    {kGT1,  nullptr,             "Txt_KV19_freqAssgn",   "", frequencyFinding},
};

constexpr SaveRule kRules[] = {
    {kBoth, whenEmpty,               "Txt_9EA_SiteAlt",            "Altitude of the site : t_site_alt (9EA)"},
    {kGS1,  whenEmpty,               "Combo_LMZ04_RefPlan",        "Ref. Planning configuration : t_ref_plan_cfg"},
    {kGT1,  noSystem,                "Opt_Art4",                   "Enter either Digital television system including DVB-T variant and Reception mode:\r\n             t_sys_var, t_rx_mode\r\n      or Ref. planning configuration : t_ref_plan_cfg"},
    {kGT1,  noSystem,                "Opt_Art5",                   "Digital television system and Reception mode : t_sys_var, t_rx_mode"},
    {kGT1,  noVariant,               {},                           "Digital System : t_sys_var "},
    {kGT1,  noMode,                  {},                           "Reception mode : t_rx_mode"},
    {kBoth, whenEmpty,               "Combo_9_AntDir",             "Antenna directivity : t_ant_dir (9)"},
    {kBoth, whenEmpty,               "Combo_9D_Polariz",           "Polarization : t_polar (9D)"},
    {kBoth, whenEmpty,               "Txt_9E_AntHgt",              "Height antenna : t_hgt_agl (9E)"},
    {kBoth, whenEmpty,               "Txt_9EB_Eff_hgtmax",         "Maximum effective antenna height : t_eff_hgtmax (9EB)"},
    {kBoth, whenEmpty,               "Combo_LMZ04_SpectMask",      "Spectrum mask : t_spect_mask "},
    {kBoth, noHeights,               {},                           "Effective antenna height sub-section : <ANT_HGT> (9EC)"},
    {kBoth, whenEmpty,               "Combo_KV19_Plan",            "Plan entry : t_plan_entry "},
    {kBoth, whenEmpty,               "Combo_KV19_assgnCde",        "Assignment code : t_assgn_code "},
    {kBoth, noPowerV,                "Txt_8BV_Erp_V",              "Max. e.r.p. of vertically polarized component : t_erp_v_dbw (8BV)"},
    {kBoth, incompleteV,             {},                           "Vertical Antenna attenuation sub-section with all the 36 values : <ANT_DIAGR_V> (9NV)"},
    {kGS1,  notNormalizedV,          {},                           "<ANT_DIAGR_V> : has to be normalized\r\n(9NV)"},
    {kGT1,  notNormalizedV,          {},                           "<ANT_DIAGR_V> : has to be normalized\r\n (9NV)"},
    {kBoth, noPowerH,                "Txt_8BH_Erp_H",              "Max. e.r.p. of horizontally polarized component : t_erp_h_dbw (8BH)"},
    {kBoth, incompleteH,             {},                           "Horizontal Antenna attenuation sub-section all the 36 values : <ANT_DIAGR_H> (9NH)"},
    {kBoth, notNormalizedH,          {},                           "<ANT_DIAGR_H> : has to be normalized\r\n(9NH)"},
    {kBoth, nullptr,                 "Combo_KV19_Plan",            "", planEntryFinding},
    {kBoth, standaloneWithAllotment, "Txt_KV19_assoc_allot_sfnID", "t_associated_allot_sfn_id can only be provided if t_assgn_code = {L,C}"},
    {kBoth, noRequestUnderArt4,      "Combo_KV19_PubReq",          "Publication Request : t_is_pub_req "},
    {kBoth, noInUseDateUnderArt5,    {},                           "Date of bringing into use : t_d_inuse "},
    {kBoth, underArt5WhenEmpty,      "Txt_12B_AddrCde",            " Address code : t_addr_code "},
    {kBoth, underArt5WhenEmpty,      "Txt_10B_Ophhfr",             " Start time : t_op_hh_fr "},
    {kBoth, underArt5WhenEmpty,      "Txt_10B_Ophhto",             " Stop time : t_op_hh_to "},
    {kBoth, underArt5WhenEmpty,      "Combo_KV19_IsResub",         " Resubmission : t_is_resub "},
    {kBoth, underArt5WhenEmpty,      "Combo_KV19_Rmk_Cond",        " Remark conditions met : t_remark_conds_met "},
    {kBoth, underArt5WhenEmpty,      "Combo_KV19_SigComit",        " Signed commitment : t_signed_commitment "},
    {kBoth, underArt5WhenEmpty,      "Txt_PlanAdm_RefID",          " Unique identifier of the associated Plan entry : t_plan_adm_ref_id "},
    {kGT1,  powerWithoutTilt,        "Txt_KV19_TiltAngle",         "If t_erp_beam_tilt_dbw is provided then t_beam_tilt_angle must be provided"},
    {kGT1,  tiltWithoutPower,        "Txt_KV19_erpBeam_tilt",      "If t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided"},
    {kBoth, nullptr,                 {},                           "", siteFinding},
    {kBoth, nullptr,                 {},                           "", targetSiteFinding},
};

static_assert(areOnTheirForms(kIdentity, &SaveRule::control));
static_assert(areOnTheirForms(kRules, &SaveRule::control));

const TableMessages kListedIdentity("GT1, GS1, before a save: the field is missing; without it nothing is saved", kIdentity);
const TableMessages kListedRules("GT1, GS1, before a save: the field is missing or doesn't fit the others", kRules);
// clang-format on

}  // namespace

std::span<const SaveRule> assignmentIdentity() {
  return kIdentity;
}

std::span<const SaveRule> assignmentRules() {
  return kRules;
}

}  // namespace zamo
