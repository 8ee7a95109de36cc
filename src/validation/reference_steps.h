// The steps that both groups of reference checks have, with the map and without it.
#pragma once

#include <initializer_list>

#include "model/notice_words.h"
#include "model/ntc_rec.h"
#include "validation/rule_report.h"

namespace zamo {

// The country: given, and one that the administration may notify for. Not for the TB types.
void checkCountry(RuleReport& report, const NtcRec& ntc);

// The area of an allotment, if given: one of the administration's, and the country itself.
void checkGeoArea(RuleReport& report, const NtcRec& ntc);

// The coordinated administrations of a notice of one of the types.
void checkCoord(RuleReport& report, const NtcRec& ntc, std::initializer_list<NoticeType> types);

}  // namespace zamo
