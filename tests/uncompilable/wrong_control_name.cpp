// Must not compile: no form has a control of this name.
#include "screens/control_name.h"

[[maybe_unused]] static constexpr zamo::ControlName kMisspelt = "Txt_4C_Deg_Lon";
