// The notice screens over the main window.
#pragma once

#include "shell/shell.h"

class QWidget;

namespace zamo {

// Lets a row of the grid open its notice in its form, over `window`. Both must outlive the forms of `shell`.
void useNoticeScreens(Shell& shell, QWidget& window);

}  // namespace zamo
