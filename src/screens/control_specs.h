// All tables of controls, in the order in which the forms are read.
#pragma once

#include <span>

#include "screens/control_table_allotments.h"
#include "screens/control_table_assignments.h"
#include "screens/control_table_common.h"
#include "screens/control_table_contour.h"
#include "screens/control_table_tb.h"

namespace zamo {

inline constexpr std::span<const ControlSpec> kControlTables[] = {
    kFirstControls, kAssignmentControls, kAllotmentControls, kContourControls,
    kPlanControls,  kLastControls,       kTbControls,
};

}  // namespace zamo
