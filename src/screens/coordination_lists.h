// The two lists of administrations: those there are, and those with which a notice is coordinated.
#pragma once

#include "screens/screen.h"

namespace zamo {

// The buttons between the lists, as long as nothing is picked in either. Nothing on a form without the lists.
void resetCoordinationLists(Screen& screen);

}  // namespace zamo
