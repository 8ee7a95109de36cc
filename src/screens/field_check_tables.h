// What the fields of the notice forms accept, and what the user is told otherwise, as tables. The words are
// the operator's, to the blank.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "screens/field_values.h"
#include "screens/screen.h"

namespace zamo {

enum class FieldTest : std::uint8_t {
  number,        // numeric, in the range
  integer,       // numeric without a "." or ",", in the range
  shortInteger,  // the same with no more than four characters
  notNumeric,
  northSouth,
  eastWest,
  fourOrMore,     // characters
  startTime,      // HHMM
  stopTime,       // HHMM
  dateWithParts,  // the three boxes of a date, once all of them are filled
};

// The checks of a field run in the order of the table, and the first that refuses ends them.
struct FieldCheck {
  FormSet forms = 0;
  ControlStem control;  // whole, or what the names of a group of boxes begin with
  bool isGroup = false;
  FieldTest test = FieldTest::number;
  Limits limits;
  std::string_view title;
  std::string_view message;
  bool beeps = false;
};

// Any value is as good as another.
struct UncheckedField {
  FormSet forms = 0;
  ControlName control;
};

inline constexpr bool kBox = false;
inline constexpr bool kGroup = true;
inline constexpr bool kBeeps = true;
inline constexpr Limits kNoLimits;

inline constexpr FormSet kAssgn = kAssignmentForms;
inline constexpr FormSet kAllot = kAllotmentForms;
inline constexpr FormSet kGS2 = formBit(kGS2Allot);
inline constexpr FormSet kGT2 = formBit(kGT2Allot);
inline constexpr FormSet kGT1 = formBit(kGT1Assign);
inline constexpr FormSet kGA1 = kContourForm;
inline constexpr FormSet kTB2Only = formBit(kTB2);

// Degrees stop below the value that the message names, and only the upper end of a coordinate is looked at.
// On the contour form the degrees of a latitude may have a fraction.
// clang-format off
inline constexpr FieldCheck kFieldChecks[] = {
    {kAssgn | kTB2Only, "Txt_4C_Deg_Lat",         kBox,   FieldTest::integer,       below(90),            "Prevalidation Error - Latitude",                                 "Value must be between [0,90]"},
    {kAssgn | kTB2Only, "Txt_4C_Min_Lat",         kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Latitude",                                 "Value must be between [0,59]"},
    {kAssgn | kTB2Only, "Txt_4C_Sec_Lat",         kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Latitude",                                 "Value must be between [0,59]"},
    {kAssgn | kTB2Only, "Txt_4C_NS",              kBox,   FieldTest::northSouth,    kNoLimits,            "Prevalidation Error - Latitude",                                 "Value can only be N or S"},
    {kAssgn | kTB2Only, "Txt_4C_Deg_Long",        kBox,   FieldTest::integer,       below(180),           "Prevalidation Error - Longitude",                                "Value must be between [0,180]"},
    {kAssgn | kTB2Only, "Txt_4C_Min_Long",        kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Longitude",                                "Value must be between [0,59]"},
    {kAssgn | kTB2Only, "Txt_4C_Sec_Long",        kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Longitude",                                "Value must be between [0,59]"},
    {kAssgn | kTB2Only, "Txt_4C_EW",              kBox,   FieldTest::eastWest,      kNoLimits,            "Prevalidation Error - Longitude",                                "Value can only be E or W"},
    {kAssgn,            "Txt_trg_lat_DD",         kBox,   FieldTest::integer,       below(90),            "Prevalidation Error - Target Latitude",                          "Value must be between [0,90]"},
    {kAssgn,            "Txt_trg_lat_MM",         kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Target Latitude",                          "Value must be between [0,59]"},
    {kAssgn,            "Txt_trg_lat_SS",         kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Target Latitude",                          "Value must be between [0,59]"},
    {kAssgn,            "Txt_trg_lat_NS",         kBox,   FieldTest::northSouth,    kNoLimits,            "Prevalidation Error - Target Latitude",                          "Value can only be N or S"},
    {kAssgn,            "Txt_trg_long_DD",        kBox,   FieldTest::integer,       below(180),           "Prevalidation Error - Target Longitude",                         "Value must be between [0,180]"},
    {kAssgn,            "Txt_trg_long_MM",        kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Target Longitude",                         "Value must be between [0,59]"},
    {kAssgn,            "Txt_trg_long_SS",        kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Target Longitude",                         "Value must be between [0,59]"},
    {kAssgn,            "Txt_trg_long_EW",        kBox,   FieldTest::eastWest,      kNoLimits,            "Prevalidation Error - Target Longitude",                         "Value can only be E or W"},
    {kAssgn,            "Txt_trg_freq_assgn",     kBox,   FieldTest::number,        kNoLimits,            "Prevalidation Error - Target Assign frequency",                  "Value must be numerical"},
    {kTB2Only,          "Txt_TrgFreq",            kBox,   FieldTest::number,        kNoLimits,            "Prevalidation Error - Target Assign frequency",                  "Value must be numerical"},
    {kGT1 | kGT2,       "Txt_KV19_freqAssgn",     kBox,   FieldTest::number,        kNoLimits,            "Prevalidation Error - Assign frequency",                         "Value must be numerical"},
    {kAssgn | kAllot,   "Txt_KV19_Offset",        kBox,   FieldTest::number,        within(-500, 500),    "Prevalidation Error - Offset",                                   " t_offset : Value should be between [-500.0, 500.0] (1E)"},
    {kAssgn,            "Txt_9EA_SiteAlt",        kBox,   FieldTest::integer,       within(-1000, 8850),  "Prevalidation Error - Site altitude",                            "Value must be an integer between [-1000, 8850]"},
    {kAssgn,            "Txt_8BH_Erp_H",          kBox,   FieldTest::number,        atMost(53),           "Prevalidation Error - Radiated power",                           "Value must be between <= 53"},
    {kAssgn,            "Txt_8BV_Erp_V",          kBox,   FieldTest::number,        atMost(53),           "Prevalidation Error - Radiated power",                           "Value must be between <= 53"},
    {kGT1,              "Txt_KV19_erpBeam_tilt",  kBox,   FieldTest::number,        atMost(53),           "Prevalidation Error - Radiated power defined by the beam tilt",  "Value must be between <= 53"},
    {kGT1,              "Txt_KV19_TiltAngle",     kBox,   FieldTest::number,        within(-30, 30),      "Prevalidation Error - Beam tilt angle",                          "Value must be between [-30, 30]"},
    {kAssgn,            "Txt_9E_AntHgt",          kBox,   FieldTest::number,        within(0, 800),       "Prevalidation Error - Height of antenna",                        "Value must be between [0, 800]"},
    {kAssgn,            "Txt_9EB_Eff_hgtmax",     kBox,   FieldTest::integer,       within(-3000, 3000),  "Prevalidation Error - Max effective Ant. height",                "Value must be an integer between [-3000, 3000]"},
    // A single height is not compared with 9EB, whatever the message says.
    {kAssgn,            "Txt_9EC_azm",            kGroup, FieldTest::integer,       within(-3000, 3000),  "Prevalidation Error - Eff. ant. height",                         "Value must be an integer between [-3000, 3000] and less than the t_eff_hgtmax (9EB)"},
    {kAssgn,            "Txt_9NHAzm",             kGroup, FieldTest::number,        kNoLimits,            "Prevalidation Error - Attenuation (H)",                          "Value must be numerical"},
    {kAssgn,            "Txt_9NVAzm",             kGroup, FieldTest::number,        kNoLimits,            "Prevalidation Error - Attenuation (V)",                          "Value must be numerical"},
    {kAssgn,            "Txt_10B_Ophhfr",         kBox,   FieldTest::fourOrMore,    kNoLimits,            "Prevalidation Error - Start time",                               "The time must be entered as HHMM"},
    {kAssgn,            "Txt_10B_Ophhfr",         kBox,   FieldTest::startTime,     kNoLimits,            "Prevalidation Error - Start time",                               "Value must be between [0000,2359]"},
    {kAssgn,            "Txt_10B_Ophhto",         kBox,   FieldTest::fourOrMore,    kNoLimits,            "Prevalidation Error - Start time",                               "The time must be entered as HHMM"},
    {kAssgn,            "Txt_10B_Ophhto",         kBox,   FieldTest::stopTime,      kNoLimits,            "Prevalidation Error - Stop time",                                "Value must be between [0001,2400]"},
    {kAssgn,            "Txt_12A_OpAgcy",         kBox,   FieldTest::number,        kNoLimits,            "Prevalidation Error - Operating Agency",                         " Invalid t_op_agcy (12A)"},
    {kAssgn,            "Txt_12B_AddrCde",        kBox,   FieldTest::notNumeric,    kNoLimits,            "Prevalidation Error - Address code (12B)",                       " t_addr_code : can have ONLY 1 Characters no digits (12B)"},
    {kAssgn | kTB2Only, "Txt_InUse_DD",           kBox,   FieldTest::number,        within(1, 31),        "Prevalidation Error - Date (day)",                               "Value should be between [1,31]", kBeeps},
    {kAssgn | kAllot,   "Txt_Exp_DD",             kBox,   FieldTest::number,        within(1, 31),        "Prevalidation Error - Date (day)",                               "Value should be between [1,31]", kBeeps},
    {kAssgn | kTB2Only, "Txt_InUse_MM",           kBox,   FieldTest::number,        within(1, 12),        "Prevalidation Error - Date (month)",                             "Value should be between [1,12]"},
    {kAssgn | kAllot,   "Txt_Exp_MM",             kBox,   FieldTest::number,        within(1, 12),        "Prevalidation Error - Date (month)",                             "Value should be between [1,12]"},
    {kAssgn | kTB2Only, "Txt_InUse_YY",           kBox,   FieldTest::number,        notBelow(2000),       "Prevalidation Error - Date (year)",                              "The year must be entered as YYYY and must be after 2000"},
    {kAssgn | kGS2,     "Txt_Exp_YY",             kBox,   FieldTest::number,        notBelow(2000),       "Prevalidation Error - Date (year)",                              "The year must be entered as YYYY and must be after 2000"},
    {kGT2,              "Txt_Exp_YY",             kBox,   FieldTest::number,        notBelow(2000),       "Prevalidation Error - Date (year)",                              "Invalid year in date of notice"},
    {kAssgn | kTB2Only, "Txt_InUse_",             kGroup, FieldTest::dateWithParts, kNoLimits,            "Prevalidation Error - InValid Date",                             "Invalid date"},
    {kAssgn | kAllot,   "Txt_Exp_",               kGroup, FieldTest::dateWithParts, kNoLimits,            "Prevalidation Error - InValid Date",                             "Invalid date"},
    {kAllot,            "Txt_LMZ04_nb_sub_areas", kBox,   FieldTest::integer,       above(0, 9),          "Prevalidation Error - Nb.Sub area(s)",                           "Value must be between [1-9]"},
    {kAllot,            "Txt_LMZ04_contour_id",   kBox,   FieldTest::integer,       kNoLimits,            "Prevalidation Error - Contour Id",                               "Value must be an integer"},
    {kGA1,              "Txt_LMZ04_contour_id",   kBox,   FieldTest::shortInteger,  kNoLimits,            "Prevalidation Error - Contour Id",                               "Value must be 4 digits maximum"},
    {kGA1,              "Txt_LMZ04_nb_test_pts",  kBox,   FieldTest::integer,       within(3, 99),        "Prevalidation Error - Nb Test pts",                              "Value must be between [3-99]"},
    {kGA1,              "Txt_LMZ04_Deg_Lat",      kBox,   FieldTest::number,        below(90),            "Prevalidation Error - Latitude",                                 "Value must be between [0,90]"},
    {kGA1,              "Txt_LMZ04_Min_Lat",      kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Latitude",                                 "Value must be between [0,59]"},
    {kGA1,              "Txt_LMZ04_Sec_Lat",      kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Latitude",                                 "Value must be between [0,59]"},
    {kGA1,              "Txt_LMZ04_NS",           kBox,   FieldTest::northSouth,    kNoLimits,            "Prevalidation Error - Latitude",                                 "Value can only be N or S"},
    {kGA1,              "Txt_LMZ04_Deg_Long",     kBox,   FieldTest::integer,       below(180),           "Prevalidation Error - Longitude",                                "Value must be between [0,180]"},
    {kGA1,              "Txt_LMZ04_Min_Long",     kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Longitude",                                "Value must be between [0,59]"},
    {kGA1,              "Txt_LMZ04_Sec_Long",     kBox,   FieldTest::integer,       below(60),            "Prevalidation Error - Longitude",                                "Value must be between [0,59]"},
    {kGA1,              "Txt_LMZ04_EW",           kBox,   FieldTest::eastWest,      kNoLimits,            "Prevalidation Error - Longitude",                                "Value can only be E or W"},
};

// Leaving them tells only that something stands on the screen.
inline constexpr UncheckedField kUncheckedFields[] = {
    {kAssgn | kAllot, "Txt_AdmRefID"},
    {kAssgn | kAllot, "Txt_TrgAdmRefID"},
    {kAssgn | kAllot, "Txt_LMZ04_SfnID"},
    {kAssgn,          "Txt_4A_SiteName"},
    {kAssgn,          "Txt_LMZ04_AdmAllotID"},
    {kAssgn,          "Combo_B_Adm"},
    {kAssgn,          "Combo_4B_Ctry"},
    {kAllot,          "Txt_LMZ04_allot_name"},
    {kTB2Only,        "Txt_12A_OpAgcy"},
};
static_assert(areOnTheirForms(kUncheckedFields, &UncheckedField::control));
// clang-format on

static_assert(std::all_of(std::begin(kFieldChecks), std::end(kFieldChecks), [](const FieldCheck& check) {
  return check.forms != 0 && check.title.starts_with("Prevalidation Error - ") && !check.message.empty() &&
         check.isGroup != control_names::isControl(check.control) &&
         (check.isGroup || (check.forms & ~control_names::formsWith(check.control)) == 0);
}));

}  // namespace zamo
