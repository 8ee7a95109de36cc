// The groups of a record that are there.
#pragma once

#include "model/fields.h"

namespace zamo {

// Marks the group of a value that was given; an allotment's is a digital one as well.
void markPresent(NtcRec& ntc, Group group);

}  // namespace zamo
