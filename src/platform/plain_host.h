// The host of a program without a window: what is shown goes to standard error.
#pragma once

#include "platform/host.h"

namespace zamo {

// Boxes and status texts are lines on standard error, in UTF-8. A question gets `answer`. There is no setting
// and no text viewer to start: the caller names the files that are left.
Host makePlainHost(bool answer);

}  // namespace zamo
