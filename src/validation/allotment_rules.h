// The rules of the allotment notices GT2 and GS2 and of the contour notice GA1.
#pragma once

#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

bool checkAllotValues(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkAllotMandatory(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkContourMandatory(const NtcRec& ntc, std::string& errs, std::string_view label);

// Whether something is wrong between the plan entry of an allotment and its SFN identifier. The finding goes
// into `msg`, with a line end.
bool checkPlanEntryAllot(std::string_view planEntry, std::string_view sfnId, std::string& msg);

}  // namespace zamo
