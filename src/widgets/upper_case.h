// Fields that turn what is typed to upper case. What the program sets stays as it is.
#pragma once

class QLineEdit;

namespace zamo {

void typeUpperCase(QLineEdit& field);

}  // namespace zamo
