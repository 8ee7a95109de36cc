// The host of a program without a window: what is shown goes to standard error.
#pragma once

#include "platform/host.h"

namespace zamo {

// Boxes and status texts are lines on standard error, in UTF-8. A question gets `answer`. There is no setting
// and no text viewer to start: the caller names the files that are left.
Host makePlainHost(bool answer);

// The present date and time of this machine.
DateTime systemNow();

// The name of the operating system's user, empty when it has none.
std::string systemUserName();

}  // namespace zamo
