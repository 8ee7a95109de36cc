// What the forms do when something happens to a control.
#pragma once

#include <span>
#include <string_view>

#include "screens/notice_form.h"

namespace zamo {

using EventHandler = void (*)(NoticeForm& form, ControlName control);

struct EventRow {
  FormSet forms = 0;
  Event event = Event::click;
  ControlName control;
  EventHandler handle = nullptr;
};

// The rows of each family of forms, and those of the buttons that all forms have.
std::span<const EventRow> commonEvents();  // the walk, the flows, Close
std::span<const EventRow> assignmentEvents();
std::span<const EventRow> coordinationEvents();  // the lists of administrations
std::span<const EventRow> allotmentEvents();
std::span<const EventRow> contourEvents();
std::span<const EventRow> createEvents();  // btn_Create

// Lets the form's screen raise its events to the rows of all families that are meant for it.
void connectEvents(NoticeForm& form);

// What leaving a field does besides its check, when the value was accepted or the field is empty.
struct LeaveRow {
  FormSet forms = 0;
  ControlName control;
  EventHandler handle = nullptr;
};
std::span<const LeaveRow> allotmentLeaves();
std::span<const LeaveRow> contourLeaves();
std::span<const LeaveRow> tbLeaves();

// Does what the rows say for a field that is left.
void leaveField(NoticeForm& form, ControlName control);

}  // namespace zamo
