#include <algorithm>
#include <array>
#include <string>

#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "screens/field_checks.h"
#include "screens/form_events.h"
#include "screens/screen_mapping.h"
#include "screens/visibility.h"
#include "validation/geo_rules.h"

namespace zamo {
namespace {

// clang-format off
const Message kNoCoordinates("box: a test point without all its coordinates", "Coordinates are empty, cannot proceed");
const Message kNoCountry("box: a test point without a country", "Please select country (4B)");
const Message kOutside("box: a test point outside the country, with what the map says", "Coordinates out of boundary\r\nt_long : %1 t_lat : %2%3");
const Message kEnoughPoints("box: the list of test points is complete", "The number of test points have already been entered. \r\nPlease increase the number of test points to proceed");
const Message kPointRepeated("box: a test point stands in the list already", "This test points is already in the list");

// The boxes of a test point, each with its width and its first place in an item of the list.
struct PointBox {
  ControlName name;
  std::size_t first;
  std::size_t width;
};

constexpr std::array<PointBox, 8> kPointBoxes = {{
    {"Txt_LMZ04_Deg_Long",  1, 3},
    {"Txt_LMZ04_Min_Long",  4, 2},
    {"Txt_LMZ04_Sec_Long",  6, 2},
    {"Txt_LMZ04_EW",        8, 1},
    {"Txt_LMZ04_Deg_Lat",  10, 2},
    {"Txt_LMZ04_Min_Lat",  12, 2},
    {"Txt_LMZ04_Sec_Lat",  14, 2},
    {"Txt_LMZ04_NS",       16, 1},
}};
// clang-format on

constexpr ControlName kList = "ListBox_LMZ04_Coordinates";
constexpr ControlName kCount = "Txt_LMZ04_nb_test_pts";
constexpr ControlName kCountDown = "Txt_CountDownTP";

int pointsListed(const Screen& screen) {
  return static_cast<int>(screen.items(kList).size());
}

// How many points the list lacks.
void countDown(Screen& screen) {
  screen.setText(kCountDown, numberText(leadingNumber(screen.text(kCount)) - pointsListed(screen)));
}

bool allBoxesFilled(const Screen& screen) {
  return std::none_of(kPointBoxes.begin(), kPointBoxes.end(),
                      [&screen](const PointBox& box) { return screen.isEmpty(box.name); });
}

void changeCount(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  countDown(screen);
  // An empty box is on its way to another number, and the points stay.
  if (!screen.isEmpty(control) && isAcceptable(screen, control)) lockTestPoints(screen, false);
}

void leaveCount(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  const bool isEmpty = screen.isEmpty(control);
  lockTestPoints(screen, isEmpty);
  countDown(screen);
  if (isEmpty) return;
  // A country that is still to be chosen can be.
  if (!screen.isEmpty("Combo_4B_Ctry")) screen.setEnabled("Combo_4B_Ctry", false);
  screen.setFocus("Txt_LMZ04_Deg_Long");
}

void changeCoordinate(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  const bool complete = allBoxesFilled(screen) && isAcceptable(screen, control);
  screen.setEnabled("Button_Add_Coordinates", complete);
  if (!complete) return;
  screen.setEnabled("Button_Ins_Coordinates", true);
  screen.setEnabled("Button_Upd_Coordinates", true);
}

void clearCoordinates(NoticeForm& form, ControlName /*button*/) {
  Screen& screen = form.screen;
  for (const PointBox& box : kPointBoxes) screen.setText(box.name, "");
  for (const ControlName button : ControlNames{"Button_Add_Coordinates", "Button_Del_Coordinates",
                                               "Button_Upd_Coordinates", "Button_Ins_Coordinates"}) {
    screen.setEnabled(button, false);
  }
}

using PointTexts = std::array<std::string, 8>;

PointTexts readPoint(const Screen& screen) {
  PointTexts texts;
  std::transform(kPointBoxes.begin(), kPointBoxes.end(), texts.begin(),
                 [&screen](const PointBox& box) { return padToWidth(screen.text(box.name), box.width); });
  return texts;
}

std::string longitudeOf(const PointTexts& texts) {
  return texts[0] + texts[1] + texts[2] + texts[3];
}

std::string latitudeOf(const PointTexts& texts) {
  return texts[4] + texts[5] + texts[6] + texts[7];
}

// Whether each part has the width that it has in an item of the list. A field takes what is a number, also
// with a sign, a point or zeros before it, of which no list could be read back.
bool hasItemWidths(const PointTexts& texts) {
  for (std::size_t i = 0; i < kPointBoxes.size(); ++i) {
    const bool isLetter = kPointBoxes[i].width == 1;
    if (texts[i].size() != kPointBoxes[i].width || (!isLetter && !isAllDigits(texts[i]))) return false;
  }
  return true;
}

// Whether the point is one and lies in the country; the user is told when it doesn't. Without a map it does.
bool liesInCountry(const NoticeForm& form, PointTexts texts) {
  const Workplace& work = form.work;
  const std::string longitude = longitudeOf(texts);
  const std::string latitude = latitudeOf(texts);
  if (!hasItemWidths(texts)) {
    work.host.showBox({kOutside.filled({longitude, latitude, ""}), ""});
    return false;
  }
  if (!hasMap(work.map)) return true;
  const SiteTexts site{texts[0], texts[1], texts[2], texts[3], texts[4], texts[5], texts[6], texts[7]};
  std::string remark;
  if (checkSiteInCountry(work.host, work.map, site, form.screen.text("Combo_4B_Ctry"), remark)) return true;
  work.host.showBox({kOutside.filled({longitude, latitude, remark}), ""});
  return false;
}

bool isListComplete(const NoticeForm& form) {
  return pointsListed(form.screen) >= leadingNumber(form.screen.text(kCount));
}

// Whether the point in the boxes may enter the list; the user is told when it may not.
bool mayEnter(NoticeForm& form, const PointTexts& texts, const std::string& item) {
  const Host& host = form.work.host;
  const auto refuse = [&host](const Message& message) {
    host.showBox({message.filled({}), ""});
    return false;
  };
  if (!allBoxesFilled(form.screen)) return refuse(kNoCoordinates);
  if (form.screen.isEmpty("Combo_4B_Ctry")) return refuse(kNoCountry);
  if (!liesInCountry(form, texts)) return false;
  if (isListComplete(form)) {
    refuse(kEnoughPoints);
    for (const PointBox& box : kPointBoxes) form.screen.setText(box.name, "");
    return false;
  }
  const auto& items = form.screen.items(kList);
  return std::find(items.begin(), items.end(), item) == items.end() || refuse(kPointRepeated);
}

// A point that is modified leaves the list first, and is gone when the new one may not enter.
void takeOutModified(NoticeForm& form) {
  Screen& screen = form.screen;
  screen.removeItem(kList, form.selectedPointIdx);
  screen.setVisible({kCountDown, "Lbl_CountDownTP"}, true);
  countDown(screen);
}

// Gives whether the point has entered the list.
bool enterPoint(NoticeForm& form) {
  Screen& screen = form.screen;
  if (form.pointEditMode == kModifyPoint) takeOutModified(form);
  const PointTexts texts = readPoint(screen);
  const std::string item = longitudeOf(texts) + " " + latitudeOf(texts);
  if (!mayEnter(form, texts, item)) return false;
  const int place = form.pointEditMode == kAddPoint ? pointsListed(screen) : form.selectedPointIdx;
  screen.insertItem(kList, place, item);
  countDown(screen);
  clearCoordinates(form, {});
  screen.setEnabled("Button_View", true);
  screen.setEnabled("Button_ClearAll_Coordinates", true);
  return true;
}

template <PointEditMode mode>
void enterPointAs(NoticeForm& form, ControlName /*button*/) {
  form.pointEditMode = mode;
  const bool isEntered = enterPoint(form);
  form.pointEditMode = kAddPoint;
  // The next point is typed at once.
  if (isEntered && mode == kAddPoint) form.screen.setFocus(kPointBoxes[0].name);
}

void pickPoint(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  const int index = screen.at(control).index;
  if (index < 0) return;
  form.selectedPointIdx = index;
  const std::string item = screen.items(control)[static_cast<std::size_t>(index)];
  for (const PointBox& box : kPointBoxes)
    screen.setText(box.name, characters(item, box.first, box.first + box.width - 1));
  for (const ControlName button :
       ControlNames{"Button_Del_Coordinates", "Button_Ins_Coordinates", "Button_Upd_Coordinates"}) {
    screen.setEnabled(button, true);
  }
}

void deletePoint(NoticeForm& form, ControlName button) {
  Screen& screen = form.screen;
  screen.removeItem(kList, form.selectedPointIdx);
  countDown(screen);
  clearCoordinates(form, button);
  screen.setEnabled("Button_View", pointsListed(screen) > 0);
}

void clearAllPoints(NoticeForm& form, ControlName button) {
  Screen& screen = form.screen;
  screen.clearItems(kList);
  screen.setText(kCountDown, screen.text(kCount));
  screen.setEnabled(button, false);
  screen.setEnabled("Button_View", false);
}

void viewContour(NoticeForm& form, ControlName /*button*/) {
  NtcRec ntc;
  readContourFromScreen(ntc, form.screen, form.work.host);
  form.work.dialogs.ContourDetailFrm(ntc);
}

// clang-format off
constexpr EventRow kEvents[] = {
    {kContourForm, Event::change, kCount,                        changeCount},
    {kContourForm, Event::change, kPointBoxes[0].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[1].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[2].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[3].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[4].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[5].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[6].name,           changeCoordinate},
    {kContourForm, Event::change, kPointBoxes[7].name,           changeCoordinate},
    {kContourForm, Event::click,  "Button_Add_Coordinates",      enterPointAs<kAddPoint>},
    {kContourForm, Event::click,  "Button_Ins_Coordinates",      enterPointAs<kInsertPoint>},
    {kContourForm, Event::click,  "Button_Upd_Coordinates",      enterPointAs<kModifyPoint>},
    {kContourForm, Event::click,  kList,                         pickPoint},
    {kContourForm, Event::click,  "Button_Del_Coordinates",      deletePoint},
    {kContourForm, Event::click,  "Button_Clear_Coordinates",    clearCoordinates},
    {kContourForm, Event::click,  "Button_ClearAll_Coordinates", clearAllPoints},
    {kContourForm, Event::click,  "Button_View",                 viewContour},
};
static_assert(areOnTheirForms(kEvents, &EventRow::control));

constexpr LeaveRow kLeaves[] = {
    {kContourForm, kCount,              leaveCount},
    {kContourForm, kPointBoxes[0].name, changeCoordinate},
    {kContourForm, kPointBoxes[1].name, changeCoordinate},
    {kContourForm, kPointBoxes[2].name, changeCoordinate},
    {kContourForm, kPointBoxes[3].name, changeCoordinate},
    {kContourForm, kPointBoxes[4].name, changeCoordinate},
    {kContourForm, kPointBoxes[5].name, changeCoordinate},
    {kContourForm, kPointBoxes[6].name, changeCoordinate},
    {kContourForm, kPointBoxes[7].name, changeCoordinate},
};
static_assert(areOnTheirForms(kLeaves, &LeaveRow::control));
// clang-format on

}  // namespace

std::span<const EventRow> contourEvents() {
  return kEvents;
}

std::span<const LeaveRow> contourLeaves() {
  return kLeaves;
}

}  // namespace zamo
