// Forms filled by hand, completely: no save rule has anything to say, so that a test makes one change and
// expects what comes of that change alone.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "screens/control_table.h"
#include "screens/control_text.h"
#include "screens/screen.h"

namespace zamo::test {

// What is put on a control: a text; "set" or "" for an option; items between "|" for a list. A name that ends
// in "*" stands for the 36 boxes of a grid.
struct Entry {
  std::string control;
  std::string text;
};
using Entries = std::vector<Entry>;

inline std::vector<std::string> itemsOf(const std::string& text) {
  std::vector<std::string> items;
  std::istringstream in(text);
  for (std::string item; std::getline(in, item, '|');) items.push_back(item);
  return items;
}

inline void putOne(Screen& screen, const Entry& entry) {
  if (entry.control.ends_with('*')) {
    const std::string grid = entry.control.substr(0, entry.control.size() - 1);
    for (int azimuth = 0; azimuth < 360; azimuth += 10) {
      screen.setText(madeName(grid + std::to_string(1000 + azimuth).substr(1)), entry.text);
    }
    return;
  }
  const ControlName control = madeName(entry.control);
  switch (screen.at(control).kind) {
    case ControlKind::option:
      return entry.text == "set" ? screen.setOption(control) : screen.unsetOption(control);
    case ControlKind::list:
      return screen.setItems(control, itemsOf(entry.text));
    default:
      return screen.setText(control, entry.text);
  }
}

inline void put(Screen& screen, const Entries& entries) {
  for (const Entry& entry : entries) putOne(screen, entry);
}

// clang-format off
inline const Entries kCompleteAssignment = {
    {"OptInt_Add", "set"}, {"Opt_Art4", "set"},
    {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "F"}, {"Txt_AdmRefID", "F-0001"}, {"Txt_4A_SiteName", "PARIS"},
    {"Txt_4C_Deg_Long", "2"}, {"Txt_4C_Min_Long", "20"}, {"Txt_4C_Sec_Long", "5"}, {"Txt_4C_EW", "E"},
    {"Txt_4C_Deg_Lat", "48"}, {"Txt_4C_Min_Lat", "51"}, {"Txt_4C_Sec_Lat", "30"}, {"Txt_4C_NS", "N"},
    {"Txt_9EA_SiteAlt", "35"}, {"Combo_9_AntDir", "D"}, {"Combo_9D_Polariz", "M"}, {"Txt_9E_AntHgt", "100"},
    {"Txt_9EB_Eff_hgtmax", "120"}, {"Txt_9EC_azm*", "110"}, {"Combo_KV19_Plan", "1"}, {"Combo_KV19_assgnCde", "S"},
    {"Txt_8BV_Erp_V", "10"}, {"Txt_9NVAzm*", "3.5"}, {"Txt_9NVAzm000", "0"},
    {"Txt_8BH_Erp_H", "11"}, {"Txt_9NHAzm*", "3.5"}, {"Txt_9NHAzm350", "0"},
    {"Combo_KV19_PubReq", "TRUE"},
};
inline const Entries kCompleteSound = {
    {"Combo_KV19_FreqAssgn", "174.928"}, {"Combo_LMZ04_RefPlan", "RPC4"}, {"Combo_LMZ04_SpectMask", "1"},
};
inline const Entries kCompleteTelevision = {
    {"Txt_KV19_freqAssgn", "474"}, {"Combo_LMZ04_Sys_Var", "C2"}, {"Combo_LMZ04_RxMode", "FX"}, {"Combo_LMZ04_SpectMask", "N"},
};
// An assignment under Art. 5 instead.
inline const Entries kUnderArt5 = {
    {"Opt_Art5", "set"}, {"Combo_KV19_PubReq", ""},
    {"Txt_InUse_DD", "3"}, {"Txt_InUse_MM", "5"}, {"Txt_InUse_YY", "2009"}, {"Txt_12B_AddrCde", "A"},
    {"Txt_10B_Ophhfr", "0000"}, {"Txt_10B_Ophhto", "2400"}, {"Combo_KV19_IsResub", "FALSE"},
    {"Combo_KV19_Rmk_Cond", "TRUE"}, {"Combo_KV19_SigComit", "TRUE"}, {"Txt_PlanAdm_RefID", "F-PLAN-0001"},
};
inline const Entries kCompleteAllotment = {
    {"OptInt_Add", "set"}, {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "F"}, {"Txt_AdmRefID", "F-A-0001"},
    {"Txt_LMZ04_allot_name", "PARIS"}, {"Combo_9D_Polariz", "H"}, {"Combo_KV19_Plan", "3"},
    {"Txt_LMZ04_SfnID", "F-SFN-01"}, {"Combo_KV19_PubReq", "FALSE"}, {"Txt_LMZ04_nb_sub_areas", "2"},
    {"ListBoxContourID", "11|12"},
};
inline const Entries kSoundAllotment = {{"Combo_KV19_FreqAssgn", "174.928"}, {"Combo_LMZ04_RefPlan", "RPC4"}};
inline const Entries kTelevisionAllotment = {
    {"Txt_KV19_freqAssgn", "474"}, {"Combo_LMZ04_RefPlan", "RPC1"}, {"Combo_LMZ04_TypRefNetwk", "RN1"},
};
inline const Entries kCompleteContour = {
    {"OptInt_Add", "set"}, {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "F"}, {"Txt_LMZ04_contour_id", "11"},
    {"Txt_LMZ04_nb_test_pts", "3"},
    {"ListBox_LMZ04_Coordinates", "0020000E 480000N|0030000E 480000N|0023000E 490000N"},
};
inline const Entries kCompleteTb5 = {
    {"Combo_B_Adm", "F"}, {"Txt_TrgAdmRefID", "F-0001"}, {"Opt_Art5", "set"}, {"OptInt_WDraw", "set"},
};
inline const Entries kCompleteTb3 = {{"Combo_B_Adm", "F"}, {"Txt_TrgAdmRefID", "F-0001"}};
inline const Entries kCompleteTb2 = {
    {"Combo_B_Adm", "F"}, {"Txt_PlanAdmRefID", "F-0001"}, {"Txt_InUse_DD", "3"}, {"Txt_InUse_MM", "5"},
    {"Txt_InUse_YY", "2009"}, {"Txt_12B_AddrCde", "A"},
};

struct CompleteForm {
  FormCode code;
  std::vector<Entries> entries;
};
inline const std::vector<CompleteForm> kCompleteForms = {
    {kGS1Assign,   {kCompleteAssignment, kCompleteSound}},
    {kGT1Assign,   {kCompleteAssignment, kCompleteTelevision}},
    {kGS2Allot,    {kCompleteAllotment, kSoundAllotment}},
    {kGT2Allot,    {kCompleteAllotment, kTelevisionAllotment}},
    {kGA1SubAllot, {kCompleteContour}},
    {kTB5,         {kCompleteTb5}},
    {kTB3,         {kCompleteTb3}},
    {kTB2,         {kCompleteTb2}},
};
// clang-format on

// Fills a form that has its controls.
inline void complete(Screen& screen) {
  for (const CompleteForm& form : kCompleteForms) {
    if (form.code != screen.code()) continue;
    for (const Entries& entries : form.entries) put(screen, entries);
  }
}

}  // namespace zamo::test
