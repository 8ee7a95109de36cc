// Tool tips show text and never markup: a cell, a file name or a message may hold anything.
#pragma once

namespace zamo {

// From now on, for every widget of the program. A second call changes nothing.
void showTipsAsPlainText();

}  // namespace zamo
