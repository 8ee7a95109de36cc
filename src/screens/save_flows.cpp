#include "screens/save_flows.h"

#include <algorithm>
#include <limits>

#include "database/delete_notice.h"
#include "database/lookups.h"
#include "database/update_notice.h"
#include "database/write_notice.h"
#include "model/notice_words.h"
#include "platform/message.h"
#include "platform/text.h"
#include "screens/form_events.h"
#include "screens/notice_walk.h"
#include "screens/save_rules.h"
#include "screens/screen_mapping.h"
#include "validation/common_rules.h"
#include "validation/geo_rules.h"
#include "validation/reference_rules.h"

namespace zamo {
namespace {

// clang-format off
const Message kNoArticle("box \"Select Article\": neither article is chosen", "Please select under which article this assignment is been submitted");
const Message kTooFewFields("box \"Missing values\": the form identifies no notice", "Not enough fields to validate");
const Message kReceivable("title of the result of Validation: nothing fatal", "Notice Receivable");
const Message kReceivableText("result of Validation, with its warnings", "The notice is receivable\r\n%1");
const Message kErrors("title of the result of Validation: with its findings", "Notice Error(s)");
const Message kSaveInvalid("question \"Save Invalid Notice\", with what is missing", "%1\r\nSave invalid Notice");
const Message kAskUpdate("question \"Save Notice\": Update", "Saving changes will update the Database. Do you want to proceed?");
const Message kUpdateWithErrors("question \"Update Notice with errors\": either answer updates", "The notice contains error\r\n%1\r\nContinue to update the notice?");
const Message kUpdated("box \"Save Notice\": Update", "The notice was sucessfully updated in the Database");
const Message kUpdateFailed("box \"Save Notice\": Update", "Failed to update the notice in the Database");
const Message kNoIdentifier("box: Add New got no identifier", "Cannot save the notice as it will create a duplicate notice");
const Message kLongIdentifier("box: Add New got an identifier that is too long; the flow goes on with the old one", " t_adm_ref_id : Maximum number of alphanumerical characters is 20");
const Message kAskAdd("question \"Save Notice\": Add New", "ADD this NEW notice to the END of Database?");
const Message kAskAddContour("question \"Save Notice\": Add New of a contour", "ADD this NEW sub area to the END of Database?");
const Message kInvalid("box \"Error\": Add New, with the findings", "Notice in valid. Cannot be saved\r\n%1");
const Message kDuplicate("box \"Error\": Add New, with the key of the notice that has the reference", "Duplicate notice as %1\r\nPlease change the admRefID to save the notice");
const Message kDuplicateContour("box \"Error\": Add New, with the number of the contour", "Duplicate Contour ID %1\r\nPlease change the Contour ID to save the notice");
const Message kAdded("box \"Save Notice\": Add New", "The NEW notice was sucessfully saved to the Database");
const Message kAddFailed("box \"Save Notice\": Add New", "Failed to save the NEW notice to the Database");
const Message kAskDelete("question \"Delete Notice\"", "Do you want to delete the notice from the Database?");
const Message kNewReference("prompt \"New AdminRefID\": Add New", "Please enter a new AdminRef_ID, maximum 20 characters long");
const Message kNewContour("prompt \"New ContourID\": Add New", "Please enter a new ContourID,");
const Message kNewPlanReference("prompt \"New Plan AdminRefID\": Add New", "Please enter a new Plan AdminRef_ID, maximum 20 characters long");
const Message kNewTargetReference("prompt \"New Target AdminRefID\": Add New", "Please enter a new Target AdminRef_ID, maximum 20 characters long");

// What identifies a new notice, by form.
struct IdentifierRow {
  FormSet forms;
  const char* title;
  const Message& prompt;
  std::string& (*field)(NtcRec&);
};

const IdentifierRow kIdentifiers[] = {
    {kAssignmentForms | kAllotmentForms, "New AdminRefID", kNewReference,
     [](NtcRec& ntc) -> std::string& { return ntc.t_adm_ref_id; }},
    {kContourForm, "New ContourID", kNewContour,
     [](NtcRec& ntc) -> std::string& { return ntc.digital.contour.t_contour_id; }},
    {formBit(kTB2), "New Plan AdminRefID", kNewPlanReference,
     [](NtcRec& ntc) -> std::string& { return ntc.t_plan_adm_ref_id; }},
    {formBit(kTB3) | formBit(kTB5), "New Target AdminRefID", kNewTargetReference,
     [](NtcRec& ntc) -> std::string& { return ntc.t_trg_adm_ref_id; }},
};
// clang-format on

constexpr std::size_t kLongestIdentifier = 20;

// The forms whose agency and address code are checked.
constexpr FormSet kNotifyingForms = kAssignmentForms | formBit(kTB2);

bool isForm(const NoticeForm& form, FormSet forms) {
  return isOneOf(form.screen.code(), forms);
}

void showBox(const NoticeForm& form, std::string text, const char* title, BoxIcon icon = BoxIcon::none) {
  form.work.host.showBox({std::move(text), title, icon});
}

// Whether the form is far enough for a flow to begin.
bool isReady(const NoticeForm& form) {
  if (isForm(form, kAssignmentForms) && !form.screen.isSet("Opt_Art4") && !form.screen.isSet("Opt_Art5")) {
    showBox(form, kNoArticle.filled({}), "Select Article");
    return false;
  }
  if (hasEnoughFields(form.screen) && !form.work.state.screenIsBlank) return true;
  showBox(form, kTooFewFields.filled({}), "Missing values");
  return false;
}

// Whether the save rules, and the user where they leave it to the user, let the notice be saved. `rules`
// takes what they say.
bool passesSaveRules(const NoticeForm& form, std::string& rules) {
  const Host& host = form.work.host;
  bool flag = false;
  rules = getFullSaveRules(host, form.work.map, form.screen, flag);
  if (flag) {
    bool identifyingFlag = false;
    const std::string identifying = getIdentifyingSaveRules(form.screen, identifyingFlag);
    if (identifyingFlag) {
      host.showBox({identifying, "Cannot save the notice", BoxIcon::none, BoxButtons::cancelTryContinue});
      return false;
    }
  }
  // A contour or a TB notice has one list, and doesn't come this far with a line of it.
  return rules.empty() || host.askYesNo({kSaveInvalid.filled({rules}), "Save Invalid Notice"});
}

// A TB2 without hours is one for the whole day.
void setDefaultHours(Screen& screen) {
  if (screen.isEmpty("Txt_10B_Ophhfr")) screen.setText("Txt_10B_Ophhfr", "0000");
  if (screen.isEmpty("Txt_10B_Ophhto")) screen.setText("Txt_10B_Ophhto", "2400");
}

NtcRec readScreen(NoticeForm& form) {
  if (isForm(form, formBit(kTB2))) setDefaultHours(form.screen);
  NtcRec ntc;
  readForm(ntc, form.screen, form.work.host);
  return ntc;
}

enum class Places { byMap, byCodes };
enum class Agencies { asked, left };

// Without a map places are judged by their codes alone, so that a database can be corrected all the same.
bool checkRecord(const NoticeForm& form, NtcRec& ntc, std::string& errs, Places places, Agencies agencies) {
  const Workplace& work = form.work;
  const bool valuesGood = checkNtcValues(ntc, errs, "", work.host.now().date);
  const bool mandatoryGood = checkNtcMandatory(ntc, errs, "");
  const bool useMap = places == Places::byMap && hasMap(work.map);
  const bool refsGood =
      useMap ? checkNtcRefsGeo(work.host, work.map, ntc, errs, "") : checkNtcRefs(ntc, errs, "");
  const bool agenciesGood = agencies == Agencies::left || !isForm(form, kNotifyingForms) ||
                            checkOpAgcyAddrCode(ntc, work.agencies, errs, "");
  return valuesGood && mandatoryGood && refsGood && agenciesGood;
}

Places placesOfLevel(const NoticeForm& form) {
  return form.work.run.ValLevel == kCompleteWithGeo ? Places::byMap : Places::byCodes;
}

// The database can't be written to just now, which the user has been told: what stands on the screen stays.
bool isHindered(const Workplace& work) {
  return work.run.DbConn->obstacle() != Obstacle::none;
}

// A TB notice is replaced by a new one, which stands at the end of the selection. The new one is stored
// before the old one goes, so that a failure loses neither.
bool replaceNotice(NoticeForm& form, NtcRec& ntc) {
  Workplace& work = form.work;
  RunState& run = work.run;
  ContourOutcome outcome;
  if (!writeNtcToDB(work.host, ntc, *run.DbConn, outcome, false)) return false;
  appendKeyToList(run.IndexList, run.NtcCount, ntc.vornakey);
  if (!deleteNtcFromDB(work.host, run.SelKey, *run.DbConn) && isHindered(work)) return false;
  markDeleted(run);
  showNeighbourAfterDelete(form);
  return true;
}

void storeUpdate(NoticeForm& form, NtcRec& ntc) {
  const Workplace& work = form.work;
  const bool isReplaced = isForm(form, kTbForms);
  const bool updated = isReplaced ? replaceNotice(form, ntc)
                                  : updateNtcInDB(work.host, ntc, work.run.SelKey, *work.run.DbConn);
  showBox(form, (updated ? kUpdated : kUpdateFailed).filled({}), "Save Notice");
  // Of a notice that was replaced the screen shows the neighbour by now.
  if (!isReplaced) fillForm(ntc, form.screen);
}

const IdentifierRow& identifierOf(const NoticeForm& form) {
  const IdentifierRow* row = kIdentifiers;
  while (!isForm(form, row->forms)) ++row;
  return *row;
}

// Asks for the identifier of a new notice; false when the user gave none.
bool askIdentifier(const NoticeForm& form, NtcRec& ntc) {
  const IdentifierRow& row = identifierOf(form);
  const std::string answer = form.work.host.askText({row.prompt.filled({}), row.title});
  if (answer.empty()) {
    showBox(form, kNoIdentifier.filled({}), row.title);
    return false;
  }
  if (answer.size() > kLongestIdentifier && !isForm(form, kContourForm)) {
    showBox(form, kLongIdentifier.filled({}), row.title);
  } else {
    row.field(ntc) = answer;
  }
  return true;
}

// What is beyond the numbers of contours is no contour's number either when it is cut to them.
std::int32_t contourNumber(std::string_view id) {
  using Numbers = std::numeric_limits<std::int16_t>;
  return static_cast<std::int32_t>(std::clamp<double>(leadingNumber(id), Numbers::min(), Numbers::max()));
}

// A contour of this identity that was notified. One that is only named by an allotment is there to be filled.
bool isNotified(const NoticeForm& form, const NtcRec& ntc, FoundContour& found) {
  const Workplace& work = form.work;
  const ContourRec& contour = ntc.digital.contour;
  if (contourPointCountMatches(work.host, contour.t_contour_id, ntc.t_ctry, ntc.t_adm, *work.run.DbConn))
    return true;
  found = findContour(work.host, contourNumber(contour.t_contour_id), ntc.t_ctry, ntc.t_adm,
                      contour.t_nb_test_pts, *work.run.DbConn);
  return found.hasPoints || found.problem;
}

bool isDuplicate(const NoticeForm& form, const NtcRec& ntc, FoundContour& found) {
  const Workplace& work = form.work;
  if (isForm(form, kContourForm)) {
    if (!isNotified(form, ntc, found)) return false;
    showBox(form, kDuplicateContour.filled({ntc.digital.contour.t_contour_id}), "Error");
    return true;
  }
  std::int32_t key = 0;
  if (!findByAdmRefId(work.host, ntc.t_adm_ref_id, ntc.t_adm, key, *work.run.DbConn)) return false;
  showBox(form, kDuplicate.filled({std::to_string(key)}), "Error");
  return true;
}

void appendKey(const NoticeForm& form, const NtcRec& ntc, const FoundContour& found) {
  RunState& run = form.work.run;
  if (!isForm(form, kContourForm)) return appendKeyToList(run.IndexList, run.NtcCount, ntc.vornakey);
  std::int32_t contourkey = found.contourkey;
  if (!found.found && !getLastContourKey(form.work.host, *run.DbConn, contourkey)) return;
  appendNewContourKey(run.IndexList, run.NtcCount, contourkey);
}

void storeNew(NoticeForm& form, NtcRec& ntc, const FoundContour& found) {
  const Workplace& work = form.work;
  ContourOutcome outcome;
  // What the user entered stays on the screen when it could not be stored.
  if (!writeNtcToDB(work.host, ntc, *work.run.DbConn, outcome, false))
    return showBox(form, kAddFailed.filled({}), "Save Notice");
  appendKey(form, ntc, found);
  setWalkButtons(form);
  showBox(form, kAdded.filled({}), "Save Notice");
  if (work.state.ntcFromOtherNotice) return closeNtcScreen(form);
  showAgain(form);
}

}  // namespace

void validateNotice(NoticeForm& form) {
  if (!isReady(form)) return;
  std::string errs;
  bool good = false;
  {
    const Hourglass hourglass(form.work.host);
    NtcRec ntc = readScreen(form);
    good = checkRecord(form, ntc, errs, Places::byMap, Agencies::asked);
  }
  if (good) {
    form.work.dialogs.ErrMsgFrm(kReceivable.filled({}), kReceivableText.filled({errs}));
  } else {
    form.work.dialogs.ErrMsgFrm(kErrors.filled({}), errs);
  }
}

void updateNotice(NoticeForm& form) {
  const Host& host = form.work.host;
  if (!isReady(form)) return;
  if (isForm(form, kAssignmentForms | kAllotmentForms) &&
      equalsIgnoringCase(form.screen.at("OptInt_Add").caption, "RECORDED")) {
    form.screen.setOption("OptInt_Mod");
  }
  std::string rules;
  if (!passesSaveRules(form, rules)) return;
  NtcRec ntc = readScreen(form);
  form.work.state.ntcListChanged = true;
  if (!host.askYesNo({kAskUpdate.filled({}), "Save Notice"})) return;
  std::string errs;
  // Whatever the user answers, the update goes on.
  if (!checkRecord(form, ntc, errs, placesOfLevel(form), Agencies::asked))
    host.askYesNo({kUpdateWithErrors.filled({errs}), "Update Notice with errors"});
  storeUpdate(form, ntc);
}

void addNotice(NoticeForm& form) {
  const Host& host = form.work.host;
  if (!isReady(form)) return;
  std::string rules;
  if (!passesSaveRules(form, rules)) return;
  NtcRec ntc = readScreen(form);
  // A TB notice is an action of its own, and refused with any other.
  if (!isForm(form, kTbForms)) ntc.t_action = actions::ADD.text;
  if (!form.work.state.ntcFromOtherNotice && !askIdentifier(form, ntc)) return;
  form.work.state.ntcListChanged = true;
  const Message& question = isForm(form, kContourForm) ? kAskAddContour : kAskAdd;
  if (!host.askYesNo({question.filled({}), "Save Notice"})) return;
  std::string errs;
  const bool good = checkRecord(form, ntc, errs, placesOfLevel(form), Agencies::left);
  // What the save rules had to say the user has agreed to.
  if (!good && rules.empty()) return showBox(form, kInvalid.filled({errs}), "Error", BoxIcon::exclamation);
  FoundContour found;
  if (isDuplicate(form, ntc, found)) return;
  storeNew(form, ntc, found);
}

void deleteNotice(NoticeForm& form) {
  const Workplace& work = form.work;
  RunState& run = form.work.run;
  if (!work.host.askYesNo({kAskDelete.filled({}), "Delete Notice"})) return;
  const auto remove = isForm(form, kContourForm) ? deleteContourFromDB : deleteNtcFromDB;
  if (!remove(work.host, run.SelKey, *run.DbConn) && isHindered(work)) return;
  markDeleted(run);
  form.work.state.ntcListChanged = true;
  showNeighbourAfterDelete(form);
}

namespace {

constexpr EventRow kCommonEvents[] = {
    {kAllForms, Event::click, "Button_Validate", [](NoticeForm& form, ControlName) { validateNotice(form); }},
    {kAllForms, Event::click, "Button_Next", [](NoticeForm& form, ControlName) { updateNotice(form); }},
    {kAllForms, Event::click, "Button_AddNew", [](NoticeForm& form, ControlName) { addNotice(form); }},
    {kAllForms, Event::click, "Button_Finish", [](NoticeForm& form, ControlName) { deleteNotice(form); }},
    {kAllForms, Event::click, "Button_Reset", [](NoticeForm& form, ControlName) { closeNtcScreen(form); }},
    {kAllForms, Event::click, "Button_Next_Ntc",
     [](NoticeForm& form, ControlName) { showNtcAt(form, form.work.run.IndexPos + 1, kForward); }},
    {kAllForms, Event::click, "Button_Prev_Ntc",
     [](NoticeForm& form, ControlName) { showNtcAt(form, form.work.run.IndexPos - 1, kBackward); }},
};
static_assert(areOnTheirForms(kCommonEvents, &EventRow::control));

}  // namespace

std::span<const EventRow> commonEvents() {
  return kCommonEvents;
}

}  // namespace zamo
