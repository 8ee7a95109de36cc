// The colour of hints: in empty fields, and where nothing is shown yet.
#pragma once

class QPalette;
class QColor;

namespace zamo {

// A colour between text and ground, near enough to the text to be read on the ground.
QColor hintColour(const QPalette& palette);

// From now on the hints of the whole program have it, whatever the palette is and becomes: many desktops give
// their palettes no colour of hints, and black is left. A second call changes nothing.
void keepHintsReadable();

}  // namespace zamo
