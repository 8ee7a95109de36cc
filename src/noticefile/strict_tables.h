// What the strict reader accepts in a notice section, as tables. The words are the operator's, to the blank.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "model/notice_words.h"

namespace zamo {

// Wide: one blank more between the line number and the message, which has a blank of its own.
enum class Gap { narrow, wide };

struct EnumerationRule {
  std::string_view key;
  std::span<const std::string_view> accepted;
  std::string_view message;
  Gap gap = Gap::narrow;
};

// Both tests run. No double blank message: blanks aren't tested.
struct FreeTextRule {
  std::string_view key;
  std::string_view doubleBlankMessage;
  std::size_t limit = 0;
  std::string_view limitMessage;
  Gap gap = Gap::narrow;
  std::array<std::string_view, 2> allWords() const { return {doubleBlankMessage, limitMessage}; }
};

struct LengthRule {
  std::string_view key;
  std::size_t limit = 0;
  std::string_view message;
};

enum class NumberForm {
  numeric,
  integer,  // numeric without a "."
  digits,
  notNumeric,
  notDigits,
};

struct NumberRule {
  std::string_view key;
  NumberForm form = NumberForm::numeric;
  std::size_t limit = 0;  // characters; 0: any number of them
  std::string_view message;
  Gap gap = Gap::narrow;
};

struct CoordinateRule {
  std::string_view key;
  bool isLongitude = false;
  int degreeBound = 0;  // degrees are below it
  std::string_view formatMessage;
  std::string_view degreeMessage;
  std::string_view minuteMessage;
  std::string_view secondMessage;
  Gap gap = Gap::narrow;
  std::array<std::string_view, 4> allWords() const {
    return {formatMessage, degreeMessage, minuteMessage, secondMessage};
  }
};

struct DateRule {
  std::string_view key;
  std::string_view message;
};

// One digit from 1 to 5.
struct PlanEntryRule {
  std::string_view key;
  std::string_view message;
};

// A letter from A to F in upper case, then 1, 2, 3, 5 or 7.
struct SystemVariantRule {
  std::string_view key;
  std::string_view lengthMessage;
  std::string_view message;
  std::array<std::string_view, 2> allWords() const { return {lengthMessage, message}; }
};

inline constexpr std::string_view kNoticeTypes[] = {types::GT1.text, types::GS1.text, types::GS2.text,
                                                    types::GT2.text, types::GA1.text, types::TB5.text,
                                                    types::TB3.text, types::TB2.text};
inline constexpr std::string_view kPlans[] = {fragments::KV19D.text};
inline constexpr std::string_view kFragments[] = {fragments::NTFD_PZ.text, fragments::KV19D.text};
inline constexpr std::string_view kActions[] = {actions::MODIFY.text,   actions::ADD.text,
                                                actions::SUPPRESS.text, actions::WITHDRAW.text,
                                                actions::CONFORM.text,  actions::PARTB.text};
inline constexpr std::string_view kProvisions[] = {"PZ11.2"};
inline constexpr std::string_view kAssignmentCodes[] = {"C", "L", "S"};
inline constexpr std::string_view kPolarizations[] = {"H", "V", "M", "U"};
inline constexpr std::string_view kTrueOrFalse[] = {"FALSE", "TRUE"};
inline constexpr std::string_view kDirectivities[] = {"ND", "D"};
inline constexpr std::string_view kReceptionModes[] = {"PO", "FX", "PI", "MO"};

// clang-format off
inline constexpr EnumerationRule kEnumerations[] = {
    {"t_notice_type",       kNoticeTypes,     " t_notice_type : Acceptables values are {GS1, GT1, GS2, GT2, GA1, TB2, TB3, TB5}", Gap::wide},
    {"t_plan",              kPlans,           " t_plan : Acceptable value for assignments are {KV19D}", Gap::wide},
    {"t_fragment",          kFragments,       " t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}", Gap::wide},
    {"t_action",            kActions,         " t_action : Acceptable values are {ADD, MODIFY, SUPPRESS, WITHDRAW, CONFORM, PARTB}", Gap::wide},
    {"t_prov",              kProvisions,      " t_prov : Acceptable value {PZ11.2}", Gap::wide},
    {"t_assgn_code",        kAssignmentCodes, " t_assgn_code : Acceptable values are {L, C, S}", Gap::wide},
    {"t_polar",             kPolarizations,   " t_polar : Acceptable values are {V, H, M, U} (9D)"},
    {"t_remark_conds_met",  kTrueOrFalse,     " t_remark_conds_met : Acceptable values are {TRUE, FALSE}"},
    {"t_is_resub",          kTrueOrFalse,     " t_is_resub : Acceptable values are {TRUE, FALSE}"},
    {"t_signed_commitment", kTrueOrFalse,     " t_signed_commitment : Acceptable values are {TRUE, FALSE}"},
    {"t_is_pub_req",        kTrueOrFalse,     " t_is_pub_req : Acceptable values are {TRUE, FALSE}"},
    {"t_ant_dir",           kDirectivities,   " t_ant_dir : Acceptable values are {D, ND} (9)"},
    {"t_rx_mode",           kReceptionModes,  " t_rx_mode : Acceptable values are {FX, PO, PI, MO}"},
};

inline constexpr FreeTextRule kFreeTexts[] = {
    {"t_adm_ref_id",              " t_adm_ref_id : Double space is not allowed",              20, " t_adm_ref_id : Maximum number of alphanumerical characters is 20", Gap::wide},
    {"t_trg_adm_ref_id",          " t_trg_adm_ref_id : Double space is not allowed",          20, " t_trg_adm_ref_id : Maximum number of alphanumerical characters is 20", Gap::wide},
    {"t_plan_adm_ref_id",         " t_plan_adm_ref_id : Double space is not allowed",         20, " t_plan_adm_ref_id : Maximum number of alphanumerical characters is 20", Gap::wide},
    {"t_site_name",               " t_sitename : Double space is not allowed (4A)",           30, " t_sitename : Maximum number of alphanumerical characters is 30 (4A)", Gap::wide},
    {"t_associated_adm_allot_id", " t_associated_adm_allot_id : Double space is not allowed", 20, " t_associated_adm_allot_id : Maximum number of alphanumerical characters is 20"},
    {"t_allot_name",              " t_allot_name : Double space is not allowed",              30, " t_allot_name : Maximum number of alphanumerical characters is 30"},
    {"t_call_sign",               "",                                                         10, " t_call_sign : Maximum number of alphanumerical characters is 10"},
    {"t_sfn_id",                  "",                                                         30, " t_sfn_id : Maximum number of alphanumerical characters is 30"},
    {"t_associated_allot_sfn_id", "",                                                         30, " t_associated_allot_sfn_id : Maximum number of alphanumerical characters is 30"},
};

inline constexpr LengthRule kLengths[] = {
    {"t_ref_plan_cfg",  4, " t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for T_DAB : {RPC4, RPC5}"},
    {"t_typ_ref_netwk", 3, " t_typ_ref_netwk : Acceptable values are : for DVB-T allotment : {RN1, RN2, RN3, RN4}"},
    {"t_spect_mask",    1, " t_spect_mask : Acceptable values are : for DVB-T : {N, S} and for T-DAB : {1, 2, 3} "},
};

inline constexpr std::string_view kDecimalSeparator = " The decimal separate must be a FULL STOP";

inline constexpr NumberRule kNumbers[] = {
    {"t_freq_assgn",        NumberForm::numeric,    0, kDecimalSeparator},
    {"t_trg_freq_assgn",    NumberForm::numeric,    0, kDecimalSeparator},
    {"t_erp_h_dbw",         NumberForm::numeric,    0, kDecimalSeparator},
    {"t_erp_v_dbw",         NumberForm::numeric,    0, kDecimalSeparator},
    {"t_erp_beam_tilt_dbw", NumberForm::numeric,    0, kDecimalSeparator},
    {"t_beam_tilt_angle",   NumberForm::numeric,    0, kDecimalSeparator},
    {"t_hgt_agl",           NumberForm::numeric,    0, kDecimalSeparator},
    {"t_offset",            NumberForm::numeric,    0, kDecimalSeparator},
    {"t_site_alt",          NumberForm::integer,    0, " t_site_alt : Value should be an integer between [-1000, 8850] (9EA)"},
    {"t_eff_hgtmax",        NumberForm::integer,    0, " : Value should be an integer between [-3000, 3000] (9EB)"},
    {"t_op_agcy",           NumberForm::numeric,    4, " t_op_agcy : can have ONLY 3 digits no Characters (12A)", Gap::wide},
    {"t_addr_code",         NumberForm::notNumeric, 1, " t_addr_code : can have ONLY 1 Characters no digits (12B)", Gap::wide},
    {"t_ctry",              NumberForm::notNumeric, 3, " t_ctry : cannot have more than 3 Characters (4B)", Gap::wide},
    {"t_geo_area",          NumberForm::notDigits,  3, " t_geo_area : Cannot have more than 3 Characters"},
    {"t_nb_sub_areas",      NumberForm::digits,     0, " t_nb_sub_area : Value should be between [1, 9]"},
    {"t_contour_id",        NumberForm::digits,     4, " t_contour_id : Maximum number of digits is 4 "},
    {"t_nb_test_pts",       NumberForm::digits,     2, "Value must be between [3-99]"},
};

inline constexpr PlanEntryRule kPlanEntry[] = {
    {"t_plan_entry", " t_plan_entry : Acceptables values for Assignments (GS1, GT1) are {1, 2, 3, 4, 5} and for Allotments (GS2, GT2) are {3, 4, 5}"},
};

inline constexpr std::string_view kSystemVariantLength = " t_sys_var : Maximum number of alphanumerical characters is 2 ";
inline constexpr std::string_view kSystemVariantValues =
    " t_sys_var : Acceptable values are {A1, A2, A3, A5, A7, B1, B2, B3, B5, B7, C1, C2, C3, C5, C7, D1, D2, D3, D5, D7, E1, E2, E3, E5, E7, F1, F2, F3, F5, F7}";

inline constexpr SystemVariantRule kSystemVariant[] = {
    {"t_sys_var", kSystemVariantLength, kSystemVariantValues},
};

// The sets of a notice and of a test point differ in bounds and words on purpose.
inline constexpr CoordinateRule kNoticeCoordinates[] = {
    {"t_long", true, 180,
     " t_long : Acceptable Longitude formats are \261DDDMMSS or \261DDDMM (4C)",
     " t_long : DDD should be between [0,170] (4C)",
     " t_long : MM should be between [0,59] (4C)",
     " t_long : SS should be between [0,59] (4C)", Gap::wide},
    {"t_lat", false, 90,
     " t_lat : Acceptable Latitude formats are \261DDMMSS or \261DDMM (4C)",
     " t_lat : DD should be between [0,90] (4C)",
     " t_lat : MM should be between [0,59] (4C)",
     " t_lat : SS should be between [0,59] (4C)", Gap::narrow},
    {"t_trg_long", true, 180,
     " t_trg_long : Acceptable Longitude formats are \261DDDMMSS or \261DDDMM ",
     " t_trg_long : DDD should be between [0,180]",
     " t_trg_long : MM should be between [0,59]",
     " t_trg_long : SS should be between [0,59]", Gap::wide},
    {"t_trg_lat", false, 90,
     " t_trg_lat : Acceptable Latitude formats are \261DDMMSS or \261DDMM",
     " t_trg_lat : DD should be between [0,90]",
     " t_trg_lat : MM should be between [0,59]",
     " t_trg_lat : SS should be between [0,59]", Gap::narrow},
};

inline constexpr CoordinateRule kPointCoordinates[] = {
    {"t_long", true, 170,
     " t_long : Acceptable Longitude formats are \261DDDMMSS or \261DDDMM (4C)",
     " t_long : DDD should be between [0,180](4C)",
     " t_long : MM should be between [0,59] (4C)",
     " t_long : SS should be between [0,59] (4C)"},
    {"t_lat", false, 89,
     " t_lat : Acceptable Latitude formats are \261DDMMSS or \261DDMM (4C)",
     " t_lat : DD should be between [0,89] (4C)",
     " t_lat : MM should be between [0,59] (4C)",
     " t_lat : SS should be between [0,59] (4C)"},
};

inline constexpr DateRule kDates[] = {
    {"t_d_inuse",  " t_d_inuse : Invalid date format YYYY-MM-DD (2C)"},
    {"t_d_expiry", " t_d_expiry : Invalid date format YYYY-MM-DD"},
};
// clang-format on

}  // namespace zamo
