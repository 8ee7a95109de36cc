// The host of the program with a window: boxes, dialogs, settings and pointer by the toolkit.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "platform/host.h"

namespace zamo {

class MainWindow;

// A host whose boxes and dialogs stand over `window`, which must outlive it. Repainting and yielding cost
// next to nothing when they come more often than an eye can follow.
Host makeQtHost(MainWindow& window);

// "Text Files (*.txt)|*.txt|Updated Files (*.upd)|*.upd" as the file dialog wants it.
QString dialogFilter(std::string_view filter);

// The folder itself when there is one of that name, and otherwise the user's home.
QString dialogFolder(const std::string& folder);

}  // namespace zamo
