// Message boxes whose text is longer than the display.
#pragma once

class QMessageBox;

namespace zamo {

// A text that would not leave the buttons in sight scrolls; its words, and those of the box, stay. For a box
// that is not shown yet.
void fitToDisplay(QMessageBox& box);

}  // namespace zamo
