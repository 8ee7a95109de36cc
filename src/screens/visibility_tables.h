// What shows when, as tables: each row is one state of the controls that a rule looks at.
#pragma once

#include <string_view>

#include "screens/screen.h"

namespace zamo {

// A box or a combo with the label beside it.
struct LabelledField {
  ControlName field;
  ControlName label;
};

// clang-format off
inline constexpr ControlName kTargetCoordinates[] = {
    "Txt_trg_long_DD", "Txt_trg_long_MM", "Txt_trg_long_SS", "Txt_trg_long_EW",
    "Txt_trg_lat_DD",  "Txt_trg_lat_MM",  "Txt_trg_lat_SS",  "Txt_trg_lat_NS",
};

inline constexpr ControlName kTestPointBoxes[] = {
    "Txt_LMZ04_Deg_Long", "Txt_LMZ04_Min_Long", "Txt_LMZ04_Sec_Long", "Txt_LMZ04_EW",
    "Txt_LMZ04_Deg_Lat",  "Txt_LMZ04_Min_Lat",  "Txt_LMZ04_Sec_Lat",  "Txt_LMZ04_NS",
};

inline constexpr LabelledField kTargetId  = {"Txt_TrgAdmRefID",            "Lbl_TrgAdmRefID"};
inline constexpr LabelledField kErpH      = {"Txt_8BH_Erp_H",              "Lbl_8BH_Erp_H"};
inline constexpr LabelledField kErpV      = {"Txt_8BV_Erp_V",              "Lbl_8BV_Erp_V"};
inline constexpr LabelledField kSfnId     = {"Txt_LMZ04_SfnID",            "Lbl_LMZ04_SfnID"};
inline constexpr LabelledField kAllotSfn  = {"Txt_KV19_assoc_allot_sfnID", "Lbl_KV19_assoc_allot_sfnID"};
inline constexpr LabelledField kAllotId   = {"Txt_LMZ04_AdmAllotID",       "Lbl_LMZ04_AdmAllotID"};
inline constexpr LabelledField kRefPlan   = {"Combo_LMZ04_RefPlan",        "Lbl_LMZ04_RefPlan"};
inline constexpr LabelledField kSystem[]  = {{"Combo_LMZ04_Sys_Var",       "Lbl_LMZ04_DigSys"},
                                             {"Combo_LMZ04_RxMode",        "Lbl_LMZ04_RxMode"}};

// The article, and what of a modification's target shows under it. The last row: neither, where article 4 has
// the last word on the target.
struct ArticleRow {
  ControlName option;
  bool art5Frame, art4Frame;
  bool ownIdOnly;  // the target is the notice of the same identifier, and else may be told by its place
};
inline constexpr ArticleRow kArticles[] = {
    {"Opt_Art4", false, true,  true},
    {"Opt_Art5", true,  false, false},
    {{},         true,  true,  true},
};

inline constexpr std::string_view kAny = "*";

// Directivity and polarization: which grid of attenuations shows.
struct AttenuationRow {
  std::string_view antDir, polariz;
  bool h, v;
};
inline constexpr AttenuationRow kAttenuations[] = {
    {"ND", kAny, false, false},
    {"D",  "H",  true,  false},
    {"D",  "V",  false, true},
    {"D",  "M",  true,  true},
    {"D",  "",   true,  true},
    {"",   kAny, true,  true},
};

// The polarization alone: which power shows.
struct PowerRow {
  std::string_view polariz;
  bool h, v;
};
inline constexpr PowerRow kPowers[] = {
    {"H",  true,  false},
    {"V",  false, true},
    {kAny, true,  true},
};

// The plan entry of an assignment; any other changes nothing.
struct PlanEntryRow {
  std::string_view planEntry;
  bool sfnId, allotSfnId, allotId;
};
inline constexpr PlanEntryRow kPlanEntries[] = {
    {"",  true,  true,  true},
    {"1", false, false, false},
    {"2", true,  false, false},
    {"3", true,  true,  true},
    {"4", true,  true,  true},
    {"5", false, false, true},
};

// A state that a control has on opening and again for the next notice, whatever became of it meanwhile.
struct OpeningState {
  FormSet forms;
  ControlName control;
  bool visible;
  bool enabled;
};
inline constexpr FormSet kTb2Form = formBit(kTB2);
inline constexpr OpeningState kOpeningStates[] = {
    {kAssignmentForms, "Txt_TrgAdmRefID",             true,  true},
    {kAssignmentForms, "Lbl_TrgAdmRefID",             true,  true},
    {kAssignmentForms, "Lbl_trg_or",                  true,  true},
    {kAssignmentForms, "Txt_trg_freq_assgn",          true,  true},
    {kAssignmentForms, "Txt_trg_long_DD",             true,  true},
    {kAssignmentForms, "Txt_trg_long_MM",             true,  true},
    {kAssignmentForms, "Txt_trg_long_SS",             true,  true},
    {kAssignmentForms, "Txt_trg_long_EW",             true,  true},
    {kAssignmentForms, "Txt_trg_lat_DD",              true,  true},
    {kAssignmentForms, "Txt_trg_lat_MM",              true,  true},
    {kAssignmentForms, "Txt_trg_lat_SS",              true,  true},
    {kAssignmentForms, "Txt_trg_lat_NS",              true,  true},
    {kAssignmentForms, "Opt_TB2",                     true,  true},
    {kAssignmentForms, "Opt_TB3",                     true,  true},

    {kContourForm,     "Combo_4B_Ctry",               true,  true},
    {kContourForm,     "Button_View",                 true,  false},
    {kContourForm,     "Button_Upd_Coordinates",      true,  false},
    {kContourForm,     "Button_Ins_Coordinates",      true,  false},
    {kContourForm,     "Button_ClearAll_Coordinates", true,  false},

    {kTbForms,         "Lbl_int_rmk",                 false, true},
    {kTbForms,         "txt_int_rmk",                 false, true},
    {kTb2Form,         "Txt_TrgAdmRefID",             true,  true},
    {kTb2Form,         "Lbl_trg_YBKO",                true,  true},
    {kTb2Form,         "LblOr",                       true,  true},
    {kTb2Form,         "Txt_TrgFreq",                 true,  true},
    {kTb2Form,         "Lbl_FreqUnit",                true,  true},
    {kTb2Form,         "lbl_freqAssgn",               true,  true},
    {kTb2Form,         "Lbl_4C_Long",                 true,  true},
    {kTb2Form,         "Lbl_4C_Lat",                  true,  true},
    {kTb2Form,         "Txt_4C_Deg_Long",             true,  true},
    {kTb2Form,         "Txt_4C_Min_Long",             true,  true},
    {kTb2Form,         "Txt_4C_Sec_Long",             true,  true},
    {kTb2Form,         "Txt_4C_EW",                   true,  true},
    {kTb2Form,         "Txt_4C_Deg_Lat",              true,  true},
    {kTb2Form,         "Txt_4C_Min_Lat",              true,  true},
    {kTb2Form,         "Txt_4C_Sec_Lat",              true,  true},
    {kTb2Form,         "Txt_4C_NS",                   true,  true},
};
static_assert(areOnTheirForms(kOpeningStates, &OpeningState::control));

// Options that are set on opening. A form that has none of them opens without.
struct OpeningOption {
  FormSet forms;
  ControlName option;
  bool forNextNotice;  // set again when the form is emptied
};
inline constexpr OpeningOption kOpeningOptions[] = {
    {kAssignmentForms | kAllotmentForms, "OptInt_Add",   false},
    {kContourForm,                       "OptInt_Add",   true},
    {formBit(kTB5),                      "OptInt_WDraw", false},
    {formBit(kTB5),                      "Opt_Art4",     false},
};
static_assert(areOnTheirForms(kOpeningOptions, &OpeningOption::option));

// What an empty form shows, whatever emptying the other boxes has made of it.
struct BlankText {
  FormSet forms;
  ControlName box;
  std::string_view text;
};
inline constexpr std::string_view kStartOfDay = "0000";
inline constexpr std::string_view kEndOfDay = "2400";
inline constexpr BlankText kBlankTexts[] = {
    {kAssignmentForms | formBit(kTB2), "Txt_10B_Ophhfr", kStartOfDay},
    {kAssignmentForms | formBit(kTB2), "Txt_10B_Ophhto", kEndOfDay},
    {kContourForm, "Txt_CountDownTP", ""},
};
static_assert(areOnTheirForms(kBlankTexts, &BlankText::box));

// The lists that are filled from a notice.
inline constexpr ControlName kNoticeLists[] = {"ListAdmSel", "ListBoxContourID", "ListBox_LMZ04_Coordinates"};
// clang-format on

}  // namespace zamo
