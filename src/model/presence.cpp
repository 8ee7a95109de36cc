#include "model/presence.h"

namespace zamo {

void markPresent(NtcRec& ntc, Group group) {
  switch (group) {
    case Group::main:
      break;
    case Group::opHours:
      ntc.op_hours.present = true;
      break;
    case Group::allot:
      ntc.digital.allot.present = true;
      ntc.digital.present = true;
      break;
    case Group::digital:
      ntc.digital.present = true;
      break;
    case Group::contour:
      ntc.digital.contour.present = true;
      break;
  }
}

}  // namespace zamo
