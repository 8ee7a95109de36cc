// A save rule: what is looked at on a form, and the line that tells of it. The tables of the families are in
// the order of the lines.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "map/gzmp_map.h"
#include "platform/host.h"
#include "platform/message.h"
#include "screens/screen.h"

namespace zamo {

// What the rules look at. What identifies a notice is judged without host and map.
struct SaveGate {
  const Screen& screen;
  const Host* host = nullptr;
  const GzmpMap* map = nullptr;
};

// Whether the rule of a control is broken.
using SaveTest = bool (*)(const Screen& screen, ControlName control);
// The line of a rule whose words depend on what is found; empty when all is well.
using SaveFinding = std::string (*)(const SaveGate& gate, ControlName control);

// A rule has a test and a message, or a finding.
struct SaveRule {
  FormSet forms = 0;
  SaveTest isBroken = nullptr;
  ControlName control;
  std::string_view message;
  SaveFinding finding = nullptr;
};

std::span<const SaveRule> assignmentIdentity();
std::span<const SaveRule> assignmentRules();
std::span<const SaveRule> allotmentIdentity();
std::span<const SaveRule> allotmentRules();
std::span<const SaveRule> contourRules();
std::span<const SaveRule> tbRules();

// What the tables share.
bool whenEmpty(const Screen& screen, ControlName control);
bool underArt5WhenEmpty(const Screen& screen, ControlName control);
bool whenAnyIsEmpty(const Screen& screen, std::span<const ControlName> controls);

// The administration may not notify for the country or area in the control.
std::string foreignFinding(const SaveGate& gate, ControlName control);

// The four parts of each coordinate, degrees first.
struct CoordinateBoxes {
  ControlName longitude[4];
  ControlName latitude[4];
};
inline constexpr CoordinateBoxes kSiteBoxes = {
    {"Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_EW"},
    {"Txt_4C_Deg_Lat", "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_4C_NS"}};
inline constexpr CoordinateBoxes kTargetBoxes = {
    {"Txt_trg_long_DD", "Txt_trg_long_MM", "Txt_trg_long_SS", "Txt_trg_long_EW"},
    {"Txt_trg_lat_DD", "Txt_trg_lat_MM", "Txt_trg_lat_SS", "Txt_trg_lat_NS"}};
inline constexpr ControlName kInUseBoxes[] = {"Txt_InUse_DD", "Txt_InUse_MM", "Txt_InUse_YY"};

}  // namespace zamo
