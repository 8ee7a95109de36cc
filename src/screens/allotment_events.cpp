#include <algorithm>
#include <string>

#include "platform/message.h"
#include "platform/numbers.h"
#include "screens/field_checks.h"
#include "screens/form_events.h"
#include "screens/visibility.h"

namespace zamo {
namespace {

// clang-format off
const Message kNoContourId("box: a contour is added to an allotment's list without a number", "First type in a Contour ID");
const Message kEnoughContours("box: the list of an allotment's contours is complete", "The number of sub-areas have been added");
// clang-format on

constexpr ControlName kWholeCountry[] = {"Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area"};
constexpr ControlName kSubAreas[] = {"Lbl_LMZ04_nb_sub_areas", "Txt_LMZ04_nb_sub_areas", "FrameSubArea"};

template <std::size_t Count>
void show(Screen& screen, const ControlName (&controls)[Count], bool visible) {
  for (const ControlName control : controls) screen.setVisible(control, visible);
}

// An area is either made of sub-areas or a whole country: the way that is told hides the other one, never
// itself. What is stored is seen, even if it is both.
template <std::size_t OwnCount, std::size_t OtherCount>
void showOtherWay(Screen& screen, bool isTold, const ControlName (&own)[OwnCount],
                  const ControlName (&other)[OtherCount], bool isOtherTold) {
  if (isTold) show(screen, own, true);
  show(screen, other, !isTold || (screen.filling && isOtherTold));
  screen.setVisible("Lbl_LMZ04_or", !isTold);
}

void changeSubAreaCount(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  if (!isAcceptable(screen, control)) return;
  const bool isEmpty = screen.isEmpty(control);
  showOtherWay(screen, !isEmpty, kSubAreas, kWholeCountry, !screen.isEmpty("Combo_LMZ04_geo_area"));
  lockSubAreas(screen, isEmpty);
  if (!isEmpty) noteBlank(form, false);
}

void leaveSubAreaCount(NoticeForm& form, ControlName control) {
  changeSubAreaCount(form, control);
  if (form.screen.isEmpty(control)) return;
  form.screen.setText("Txt_LMZ04_contour_id", "");
  form.screen.setFocus("Txt_LMZ04_contour_id");
}

void chooseGeoArea(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  const bool isEmpty = screen.isEmpty(control);
  showOtherWay(screen, !isEmpty, kWholeCountry, kSubAreas, !screen.isEmpty("Txt_LMZ04_nb_sub_areas"));
  if (!isEmpty) noteBlank(form, false);
}

void changeContourId(NoticeForm& form, ControlName control) {
  const Screen& screen = form.screen;
  if (screen.isEmpty(control) || !isAcceptable(screen, control)) return;
  form.screen.setEnabled("Button_Add_Contour", true);
  noteBlank(form, false);
}

bool listsContour(const Screen& screen, double contour) {
  const auto& items = screen.items("ListBoxContourID");
  return std::any_of(items.begin(), items.end(),
                     [contour](const std::string& item) { return leadingNumber(item) == contour; });
}

void addContour(NoticeForm& form, ControlName /*button*/) {
  Screen& screen = form.screen;
  const Host& host = form.work.host;
  if (screen.isEmpty("Txt_LMZ04_contour_id")) return host.showBox({kNoContourId.filled({}), ""});
  const auto count = static_cast<double>(screen.items("ListBoxContourID").size());
  if (count >= leadingNumber(screen.text("Txt_LMZ04_nb_sub_areas"))) {
    host.showBox({kEnoughContours.filled({}), ""});
    screen.setText("Txt_LMZ04_contour_id", "");
    screen.setEnabled("Button_Add_Contour", false);
    return noteBlank(form, false);
  }
  const double contour = leadingNumber(screen.text("Txt_LMZ04_contour_id"));
  if (listsContour(screen, contour)) return noteBlank(form, false);
  screen.addItem("ListBoxContourID", numberText(contour));
  screen.setText("Txt_LMZ04_contour_id", "");
}

void pickContour(NoticeForm& form, ControlName control) {
  if (form.screen.at(control).index < 0) return;
  form.selectedContourIdx = form.screen.at(control).index;
  form.screen.setEnabled("Button_Clear_Contour", true);
}

void clearContour(NoticeForm& form, ControlName button) {
  form.screen.removeItem("ListBoxContourID", form.selectedContourIdx);
  form.selectedContourIdx = -1;
  form.screen.setEnabled(button, false);
}

void chooseIntent(NoticeForm& form, ControlName /*control*/) {
  applyIntentRule(form.screen);
}

void choosePlanEntry(NoticeForm& form, ControlName /*control*/) {
  applyPlanEntryRule(form.screen);
}

void chooseSomething(NoticeForm& form, ControlName control) {
  if (!form.screen.isEmpty(control)) noteBlank(form, false);
}

constexpr FormSet kBoth = kAllotmentForms;

// clang-format off
constexpr EventRow kEvents[] = {
    {kBoth, Event::click,  "OptInt_Add",             chooseIntent},
    {kBoth, Event::click,  "OptInt_Mod",             chooseIntent},
    {kBoth, Event::click,  "Combo_KV19_Plan",        choosePlanEntry},
    {kBoth, Event::click,  "Combo_9D_Polariz",       chooseSomething},
    {kBoth, Event::click,  "Combo_LMZ04_RefPlan",    chooseSomething},
    {kBoth, Event::change, "Txt_LMZ04_nb_sub_areas", changeSubAreaCount},
    {kBoth, Event::click,  "Combo_LMZ04_geo_area",   chooseGeoArea},
    {kBoth, Event::change, "Txt_LMZ04_contour_id",   changeContourId},
    {kBoth, Event::click,  "Button_Add_Contour",     addContour},
    {kBoth, Event::click,  "ListBoxContourID",       pickContour},
    {kBoth, Event::click,  "Button_Clear_Contour",   clearContour},
};
static_assert(areOnTheirForms(kEvents, &EventRow::control));

constexpr LeaveRow kLeaves[] = {
    {kBoth, "Txt_LMZ04_nb_sub_areas", leaveSubAreaCount},
    {kBoth, "Combo_LMZ04_geo_area",   chooseGeoArea},
    {kBoth, "Txt_LMZ04_contour_id",   changeContourId},
};
static_assert(areOnTheirForms(kLeaves, &LeaveRow::control));
// clang-format on

}  // namespace

std::span<const EventRow> allotmentEvents() {
  return kEvents;
}

std::span<const LeaveRow> allotmentLeaves() {
  return kLeaves;
}

}  // namespace zamo
