#include "screens/form_events.h"

namespace zamo {

void connectEvents(NoticeForm& form) {
  form.screen.raised = [&form](Event event, ControlName control) {
    for (const auto& rows : {commonEvents(), assignmentEvents(), coordinationEvents(), allotmentEvents(),
                             contourEvents(), createEvents()}) {
      for (const EventRow& row : rows) {
        if (row.event == event && row.control == control && isOneOf(form.screen.code(), row.forms)) {
          row.handle(form, control);
        }
      }
    }
  };
}

void leaveField(NoticeForm& form, ControlName control) {
  for (const auto& rows : {allotmentLeaves(), contourLeaves(), tbLeaves()}) {
    for (const LeaveRow& row : rows) {
      if (row.control == control && isOneOf(form.screen.code(), row.forms)) row.handle(form, control);
    }
  }
}

}  // namespace zamo
