// The checks of single fields, on leaving them.
#pragma once

#include <string_view>

#include "screens/notice_form.h"

namespace zamo {

// Checks the field that is about to be left and does what a field does then. False: the value is refused,
// the user has been told, and the focus stays.
bool mayLeaveField(NoticeForm& form, ControlName control);

// Whether the field's value would be accepted, without a word. A field without a check is always fine.
bool isAcceptable(const Screen& screen, ControlName control);

}  // namespace zamo
