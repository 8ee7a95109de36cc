// Complete validation: every notice of a file read into a record and judged by all rule groups.
#pragma once

#include <string>

#include "map/gzmp_map.h"
#include "model/ntc_rec.h"
#include "noticefile/line_source.h"
#include "noticefile/structure_check.h"
#include "platform/host.h"
#include "validation/reference_rules.h"

namespace zamo {

// Walks the file from its first to its last line, reads each section into `ntc`, adds the findings to
// `report` and stops at no bad notice. Passed when nothing fatal was found. An error of the machine is shown
// in the common error box and fails the stage.
// With a map the places of the notices are judged by it.
StageResult runCompleteValidation(const Host& host, NtcRec& ntc, std::string& report, const GzmpMap* map,
                                  const std::string& filePath, const AgencyLookups& lookups);

// The same on lines. Throws RunTimeError.
bool validateNotices(const Host& host, LineSource& lines, NtcRec& ntc, std::string& report,
                     const GzmpMap* map, const AgencyLookups& lookups);

}  // namespace zamo
