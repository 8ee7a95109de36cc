// The places of a contour's test points.
#pragma once

#include "model/ntc_rec.h"

namespace zamo {

inline constexpr double kMostTestPoints = 32767;

// Makes one place more than the contour tells, all of them empty. A number below 0 or above kMostTestPoints
// is thrown as a RunTimeError.
void sizePoints(ContourRec& contour);

}  // namespace zamo
