#include "screens/save_rules.h"

#include <algorithm>

#include "platform/text.h"
#include "screens/save_rule.h"
#include "validation/ref_data.h"

namespace zamo {
namespace {

// clang-format off
const Message kIdentifyingHeader("GS1, before a save: heads the list of what identifies the notice and is missing", "To save a notice at least the following Mandatory Identifying fields are necessary : ");
const Message kMandatoryHeader("any form but GS1, before a save: heads the list of what identifies the notice and is missing; all rules of GA1, TB2, TB3, TB5", "To save a notice the following Mandatory fields are necessary : ");
const Message kFullHeader("GT1, GS1, GT2, GS2, before a save: heads the list of everything else", "The following fields are either missing or invalid");
const Message kForeign("any form with a country, before a save: the administration doesn't notify for the country or area", "%1 cannot notify for %2");

// The rules of each form. Where there is no second list the first one is all there is.
struct FormRules {
  FormSet forms;
  const Message& header;
  std::span<const SaveRule> (*identity)();
  std::span<const SaveRule> (*further)();
};
const FormRules kFormRules[] = {
    {formBit(kGS1Assign), kIdentifyingHeader, assignmentIdentity, assignmentRules},
    {formBit(kGT1Assign), kMandatoryHeader,   assignmentIdentity, assignmentRules},
    {kAllotmentForms,     kMandatoryHeader,   allotmentIdentity,  allotmentRules},
    {kContourForm,        kMandatoryHeader,   contourRules,       nullptr},
    {kTbForms,            kMandatoryHeader,   tbRules,            nullptr},
};

// One of a form's fields has to be filled before the form is worth working on.
struct EnoughRow {
  FormSet forms;
  ControlName field;
};
constexpr EnoughRow kEnough[] = {
    {kAssignmentForms,                                     "Txt_4C_Deg_Long"},
    {kAssignmentForms,                                     "Txt_4C_Min_Long"},
    {kAssignmentForms,                                     "Txt_4C_Sec_Long"},
    {kAssignmentForms,                                     "Txt_4C_Deg_Lat"},
    {kAssignmentForms,                                     "Txt_4C_Min_Lat"},
    {kAssignmentForms,                                     "Txt_4C_Sec_Lat"},
    {kAssignmentForms | kAllotmentForms,                   "Txt_AdmRefID"},
    {formBit(kGT1Assign) | kAllotmentForms,                "Txt_TrgAdmRefID"},
    {kContourForm,                                         "Txt_LMZ04_contour_id"},
    {formBit(kTB2),                                        "Txt_PlanAdmRefID"},
    {formBit(kTB3) | formBit(kTB5),                        "Txt_TrgAdmRefID"},
};
static_assert(areOnTheirForms(kEnough, &EnoughRow::field));
// clang-format on

const FormRules& rulesOf(const Screen& screen) {
  return *std::find_if(std::begin(kFormRules), std::end(kFormRules),
                       [&screen](const FormRules& rules) { return isOneOf(screen.code(), rules.forms); });
}

std::string lineOf(const SaveRule& rule, const SaveGate& gate) {
  if (rule.finding != nullptr) return rule.finding(gate, rule.control);
  return std::string(rule.isBroken(gate.screen, rule.control) ? rule.message : "");
}

std::string makeList(const Message& header, std::span<const SaveRule> rules, const SaveGate& gate,
                     bool& flag) {
  std::string lines;
  for (const SaveRule& rule : rules) {
    if (!isOneOf(gate.screen.code(), rule.forms)) continue;
    const std::string line = lineOf(rule, gate);
    if (!line.empty()) lines.append(line).append(kLineEnd);
  }
  flag = !lines.empty();
  if (!flag) return {};
  return std::string(header.words()).append(kLineEnd).append(lines);
}

}  // namespace

bool whenEmpty(const Screen& screen, ControlName control) {
  return screen.isEmpty(control);
}

bool underArt5WhenEmpty(const Screen& screen, ControlName control) {
  return screen.isSet("Opt_Art5") && screen.isEmpty(control);
}

bool whenAnyIsEmpty(const Screen& screen, std::span<const ControlName> controls) {
  return std::any_of(controls.begin(), controls.end(),
                     [&screen](ControlName control) { return screen.isEmpty(control); });
}

std::string foreignFinding(const SaveGate& gate, ControlName control) {
  const std::string& adm = gate.screen.text("Combo_B_Adm");
  const std::string& area = gate.screen.text(control);
  if (adm.empty() || area.empty() || isCtryOfAdm(area, adm)) return {};
  return kForeign.filled({adm, area});
}

std::string getFullSaveRules(const Host& host, const GzmpMap& map, const Screen& screen, bool& flag) {
  std::string text = getIdentifyingSaveRules(screen, flag);
  const FormRules& rules = rulesOf(screen);
  if (flag || rules.further == nullptr) return text;
  return makeList(kFullHeader, rules.further(), {screen, &host, &map}, flag);
}

std::string getIdentifyingSaveRules(const Screen& screen, bool& flag) {
  const FormRules& rules = rulesOf(screen);
  return makeList(rules.header, rules.identity(), {screen}, flag);
}

bool hasEnoughFields(const Screen& screen) {
  return std::any_of(std::begin(kEnough), std::end(kEnough), [&screen](const EnoughRow& row) {
    return isOneOf(screen.code(), row.forms) && !screen.isEmpty(row.field);
  });
}

}  // namespace zamo
