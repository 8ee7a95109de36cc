// The forms that the commands show, by the toolkit.
#pragma once

#include "shell/shell.h"

class QWidget;

namespace zamo {

// Lets the commands of `shell` show the query form and the date dialog over `window`; both must outlive the
// forms of `shell`.
void useQtForms(Shell& shell, QWidget& window);

}  // namespace zamo
