// The rules of the notices that act on existing entries: TB2, TB3 and TB5.
#pragma once

#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

bool checkTb5Values(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkTb3Values(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkTb2Values(const NtcRec& ntc, std::string& errs, std::string_view label);

bool checkTb5Mandatory(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkTb3Mandatory(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkTb2Mandatory(const NtcRec& ntc, std::string& errs, std::string_view label);

// What no TB notice may carry, or only one type of them.
bool checkTbAbsentFields(const NtcRec& ntc, std::string& errs, std::string_view label);

}  // namespace zamo
