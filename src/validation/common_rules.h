// The two entry points of the rules on a completely read record, and the rules that belong to no one family
// of types. They need nothing but the record: no file and no window.
#pragma once

#include <string>
#include <string_view>

#include "model/ntc_rec.h"
#include "platform/dates.h"

namespace zamo {

// Ranges and enumerations of what is present. `today` stands for the date of receipt of a notice that has
// none. Findings are added to `errs` behind `label`; gives whether none of them is fatal. A date that is none
// throws a RunTimeError with the number 13.
bool checkNtcValues(const NtcRec& ntc, std::string& errs, std::string_view label, const Date& today);

// What must be given and what may not be, by type.
bool checkNtcMandatory(const NtcRec& ntc, std::string& errs, std::string_view label);

}  // namespace zamo
