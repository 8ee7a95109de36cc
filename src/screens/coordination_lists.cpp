#include "screens/coordination_lists.h"

#include <algorithm>

#include "screens/form_events.h"

namespace zamo {
namespace {

constexpr FormSet kForms = kAssignmentForms | kAllotmentForms | formBit(kTB3);

void pickAvailable(NoticeForm& form, ControlName list) {
  const Control& available = form.screen.at(list);
  if (available.index < 0) return;
  form.pickedAdm = available.items[static_cast<std::size_t>(available.index)];
  form.screen.setEnabled("Button_Coord_Add", true);
}

void addPicked(NoticeForm& form, ControlName /*control*/) {
  Screen& screen = form.screen;
  const std::vector<std::string>& selected = screen.items("ListAdmSel");
  if (std::find(selected.begin(), selected.end(), form.pickedAdm) == selected.end()) {
    const int chosen = screen.at("ListAdmSel").index;
    screen.addItem("ListAdmSel", form.pickedAdm);
    screen.choose("ListAdmSel", chosen);
    screen.setEnabled("Button_Coord_Clear", true);
  }
  screen.setEnabled("Button_Coord_Add", false);
}

// With the empty row: nothing behind the form takes it for an administration.
void addAll(NoticeForm& form, ControlName /*control*/) {
  form.screen.setItems("ListAdmSel", form.screen.items("ListAdmAvail"));
  form.screen.setEnabled("Button_Coord_Clear", true);
  // None of the rows is chosen.
  form.screen.setEnabled("Button_Coord_Del", false);
}

void pickSelected(NoticeForm& form, ControlName list) {
  const int index = form.screen.at(list).index;
  if (index < 0) return;
  form.selectedAdmIdx = index;
  form.screen.setEnabled("Button_Coord_Del", true);
}

void disableRemoval(Screen& screen) {
  screen.setEnabled("Button_Coord_Del", false);
  screen.setEnabled("Button_Coord_Clear", false);
}

void removeSelected(NoticeForm& form, ControlName /*control*/) {
  Screen& screen = form.screen;
  screen.removeItem("ListAdmSel", form.selectedAdmIdx);
  const int left = static_cast<int>(screen.items("ListAdmSel").size());
  if (left == 0) disableRemoval(screen);
  // The row that has taken its place is the next to go, or the last one.
  screen.choose("ListAdmSel", std::min(form.selectedAdmIdx, left - 1));
  screen.setFocus("ListAdmSel");
}

void removeAll(NoticeForm& form, ControlName /*control*/) {
  form.screen.clearItems("ListAdmSel");
  disableRemoval(form.screen);
}

// clang-format off
constexpr EventRow kEvents[] = {
    {kForms, Event::click,       "ListAdmAvail",        pickAvailable},
    {kForms, Event::doubleClick, "ListAdmAvail",        addPicked},
    {kForms, Event::click,       "Button_Coord_Add",    addPicked},
    {kForms, Event::click,       "Button_Coord_AddALL", addAll},
    {kForms, Event::click,       "ListAdmSel",          pickSelected},
    {kForms, Event::click,       "Button_Coord_Del",    removeSelected},
    {kForms, Event::click,       "Button_Coord_Clear",  removeAll},
};
static_assert(areOnTheirForms(kEvents, &EventRow::control));
// clang-format on

}  // namespace

std::span<const EventRow> coordinationEvents() {
  return kEvents;
}

void resetCoordinationLists(Screen& screen) {
  if (!screen.has("ListAdmSel")) return;
  screen.setEnabled("Button_Coord_Add", false);
  screen.setEnabled("Button_Coord_Del", false);
  screen.setEnabled("Button_Coord_Clear", !screen.items("ListAdmSel").empty());
}

}  // namespace zamo
