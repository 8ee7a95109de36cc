// The rules of the assignment notices GT1 and GS1. Fragment KV19D is a notice under Art 4 of the plan,
// NTFD_PZ one under Art 5.
#pragma once

#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

bool checkAssgnValues(const NtcRec& ntc, std::string& errs, std::string_view label);
bool checkAssgnMandatory(const NtcRec& ntc, std::string& errs, std::string_view label);

// Whether something is wrong between the plan entry of an assignment and the fields that it governs. All
// findings go into `msg`, each with a line end.
bool checkPlanEntryAssgn(std::string_view planEntry, std::string_view assgnCode, std::string_view sfnId,
                         std::string_view associatedAdmAllotId, std::string_view associatedAllotSfnId,
                         std::string& msg);

}  // namespace zamo
