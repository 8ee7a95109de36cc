// The save rules of the allotment, contour and TB forms.
#include "platform/numbers.h"
#include "screens/save_rule.h"
#include "validation/allotment_rules.h"

namespace zamo {
namespace {

bool noTargetOfMod(const Screen& screen, ControlName control) {
  return screen.isSet("OptInt_Mod") && screen.isEmpty(control);
}

bool noArea(const Screen& screen, ControlName /*control*/) {
  return screen.isEmpty("Txt_LMZ04_nb_sub_areas") && screen.isEmpty("Combo_LMZ04_geo_area");
}

bool isOtherCount(const Screen& screen, ControlName number, ControlName list) {
  return !screen.isEmpty(number) &&
         leadingNumber(screen.text(number)) != static_cast<double>(screen.items(list).size());
}

bool otherNumberOfContours(const Screen& screen, ControlName control) {
  return isOtherCount(screen, control, "ListBoxContourID");
}

bool otherNumberOfPoints(const Screen& screen, ControlName control) {
  return isOtherCount(screen, control, "ListBox_LMZ04_Coordinates");
}

// The check closes its line itself.
std::string planEntryFinding(const SaveGate& gate, ControlName control) {
  std::string msg;
  checkPlanEntryAllot(gate.screen.text(control), gate.screen.text("Txt_LMZ04_SfnID"), msg);
  return msg;
}

std::string areaFinding(const SaveGate& gate, ControlName control) {
  return gate.screen.isEmpty("Combo_4B_Ctry") ? std::string() : foreignFinding(gate, control);
}

bool noArticle(const Screen& screen, ControlName /*control*/) {
  return !screen.isSet("Opt_Art4") && !screen.isSet("Opt_Art5");
}

bool noInUseDate(const Screen& screen, ControlName /*control*/) {
  return whenAnyIsEmpty(screen, kInUseBoxes);
}

// On TB2 the boxes of the site carry the target's coordinates.
bool noTargetLongitude(const Screen& screen, ControlName frequency) {
  return !screen.isEmpty(frequency) && whenAnyIsEmpty(screen, kSiteBoxes.longitude);
}

bool noTargetLatitude(const Screen& screen, ControlName frequency) {
  return !screen.isEmpty(frequency) && whenAnyIsEmpty(screen, kSiteBoxes.latitude);
}

bool noTargetFrequency(const Screen& screen, ControlName frequency) {
  return screen.isEmpty(frequency) && !whenAnyIsEmpty(screen, kSiteBoxes.longitude) &&
         !whenAnyIsEmpty(screen, kSiteBoxes.latitude);
}

constexpr FormSet kBoth = kAllotmentForms;
constexpr FormSet kGS2 = formBit(kGS2Allot);
constexpr FormSet kGT2 = formBit(kGT2Allot);
constexpr FormSet kAtTarget = formBit(kTB5) | formBit(kTB3);

// clang-format off
constexpr SaveRule kIdentity[] = {
    {kBoth, whenEmpty,     "Combo_B_Adm",          "Notifying Administration : t_adm (B)"},
    {kGT2,  nullptr,       "Combo_4B_Ctry",        "", foreignFinding},
    {kBoth, whenEmpty,     "Txt_AdmRefID",         "Administration's unique ID of the notice : t_adm_ref_id "},
    {kBoth, noTargetOfMod, "Txt_TrgAdmRefID",      "Administration's unique ID of the notice to modify : t_trg_adm_ref_id "},
    {kBoth, whenEmpty,     "Combo_4B_Ctry",        "Country in which the transmitter is sited : t_ctry (4B)"},
    {kGS2,  nullptr,       "Combo_4B_Ctry",        "", foreignFinding},
    {kGS2,  whenEmpty,     "Combo_KV19_FreqAssgn", "Assign Frequency : t_freq_assgn"},
    {kBoth, whenEmpty,     "Txt_LMZ04_allot_name", "Digital broadcasting allotment name : t_allot_name"},
    {kGT2,  whenEmpty,     "Txt_KV19_freqAssgn",   "Assign Frequency : t_freq_assgn"},
};

constexpr SaveRule kRules[] = {
    {kGS2,  whenEmpty,             "Combo_LMZ04_RefPlan",     "Ref. planning configuration : t_ref_plan_cfg "},
    {kGT2,  whenEmpty,             "Combo_LMZ04_RefPlan",     "Ref. planning configuration : t_ref_plan_cfg"},
    {kGT2,  whenEmpty,             "Combo_LMZ04_TypRefNetwk", "Type of reference network : t_typ_ref_netwk"},
    {kBoth, whenEmpty,             "Combo_9D_Polariz",        "Polarization : t_polar (9D)"},
    {kBoth, whenEmpty,             "Combo_KV19_Plan",         "Plan entry : t_plan_entry "},
    {kBoth, whenEmpty,             "Combo_KV19_PubReq",       "Publication Request : t_is_pub_req "},
    {kGS2,  noArea,                {},                        "Enter either the Number of sub-areas within this allotment : t_nb_sub_areas\r\n      or the Country boundary if all the test points are on it's boundary : t_geo_area "},
    {kGT2,  noArea,                {},                        "Enter either the Number of sub-areas within this allotment : t_nb_sub_areas\r\n      or the Country boundary if all the test points are on it's boundary : t_geo_area"},
    {kGS2,  otherNumberOfContours, "Txt_LMZ04_nb_sub_areas",  "The nb of Sub_area and the nb of Contours entered is INCONSISTENT"},
    {kGT2,  otherNumberOfContours, "Txt_LMZ04_nb_sub_areas",  "The nb of sub_area and the nb of Contours entered is INCONSISTENT"},
    {kBoth, nullptr,               "Combo_KV19_Plan",         "", planEntryFinding},
    {kBoth, nullptr,               "Combo_LMZ04_geo_area",    "", areaFinding},
};

constexpr SaveRule kContourRules[] = {
    {kContourForm, whenEmpty,           "Combo_B_Adm",           "Notifying Administration : t_adm (B)"},
    {kContourForm, whenEmpty,           "Combo_4B_Ctry",         "Country in which the transmitter is sited : t_ctry (4B)"},
    {kContourForm, nullptr,             "Combo_4B_Ctry",         "", foreignFinding},
    {kContourForm, whenEmpty,           "Txt_LMZ04_contour_id",  "Unique contour ID : t_contour_id"},
    {kContourForm, whenEmpty,           "Txt_LMZ04_nb_test_pts", "Number of boundary test points : t_nb_test_pts"},
    {kContourForm, otherNumberOfPoints, "Txt_LMZ04_nb_test_pts", "The list of Test points is INCOMPLETE"},
};

constexpr SaveRule kTbRules[] = {
    {kTbForms,      whenEmpty,         "Combo_B_Adm",      "Notifying Administration : t_adm (B)"},
    {kAtTarget,     whenEmpty,         "Txt_TrgAdmRefID",  "Unique ID code of the assignment/allotment to which the intent is to apply : t_trg_adm_ref_id "},
    {formBit(kTB5), noArticle,         {},                 "Fragment : t_fragment"},
    {formBit(kTB2), whenEmpty,         "Txt_PlanAdmRefID", "Unique ID code of the assignment to be copied to Master Register : t_plan_adm_ref_id "},
    {formBit(kTB2), noInUseDate,       {},                 "Date of bringing into use : t_d_inuse "},
    {formBit(kTB2), whenEmpty,         "Txt_12B_AddrCde",  " Address code : t_addr_code "},
    {formBit(kTB2), noTargetLongitude, "Txt_TrgFreq",      "Target Longitude : t_trg_long "},
    {formBit(kTB2), noTargetLatitude,  "Txt_TrgFreq",      "Target Latitude : t_trg_lat  "},
    {formBit(kTB2), noTargetFrequency, "Txt_TrgFreq",      "Target Assign Frequency : t_trg_freq_assgn"},
};

static_assert(areOnTheirForms(kIdentity, &SaveRule::control));
static_assert(areOnTheirForms(kRules, &SaveRule::control));
static_assert(areOnTheirForms(kContourRules, &SaveRule::control));
static_assert(areOnTheirForms(kTbRules, &SaveRule::control));

const TableMessages kListedIdentity("GT2, GS2, before a save: the field is missing; without it nothing is saved", kIdentity);
const TableMessages kListedRules("GT2, GS2, before a save: the field is missing or doesn't fit the others", kRules);
const TableMessages kListedContourRules("GA1, before a save: the field is missing or doesn't fit the others", kContourRules);
const TableMessages kListedTbRules("TB2, TB3, TB5, before a save: the field is missing", kTbRules);
// clang-format on

}  // namespace

std::span<const SaveRule> allotmentIdentity() {
  return kIdentity;
}

std::span<const SaveRule> allotmentRules() {
  return kRules;
}

std::span<const SaveRule> contourRules() {
  return kContourRules;
}

std::span<const SaveRule> tbRules() {
  return kTbRules;
}

}  // namespace zamo
