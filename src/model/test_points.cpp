#include "model/test_points.h"

#include <cmath>

#include "platform/numbers.h"
#include "platform/run_time_error.h"

namespace zamo {

void sizePoints(ContourRec& contour) {
  const double count = std::trunc(leadingNumber(contour.t_nb_test_pts));
  if (count < 0) throw RunTimeError{kIndexOutOfRange, "Subscript out of range"};
  if (count > kMostTestPoints) throw RunTimeError{kOverflow, "Overflow"};
  contour.points.assign(static_cast<std::size_t>(count) + 1, {});
}

}  // namespace zamo
