#include "model/ntc_reset.h"

#include <utility>

namespace zamo {

void resetNtc(NtcRec& ntc) {
  NtcRec fresh;
  fresh.t_adm = std::move(ntc.t_adm);
  fresh.kept_spare = std::move(ntc.kept_spare);
  ntc = std::move(fresh);
}

void resetNtcMain(NtcRec& ntc) {
  NtcRec fresh;
  fresh.t_adm = std::move(ntc.t_adm);
  fresh.kept_spare = std::move(ntc.kept_spare);
  fresh.op_hours = std::move(ntc.op_hours);
  fresh.ant_diagr_v = std::move(ntc.ant_diagr_v);
  fresh.ant_diagr_h = std::move(ntc.ant_diagr_h);
  fresh.ant_hgt = std::move(ntc.ant_hgt);
  fresh.digital = std::move(ntc.digital);
  fresh.coord = std::move(ntc.coord);
  ntc = std::move(fresh);
}

void resetAdm(NtcRec& ntc) {
  ntc.t_adm.clear();
}

void resetPoint(OpHoursRec& hours) {
  hours = {};
}

void resetPoint(AzmValueRec& value) {
  value = {};
}

void resetPoint(PointRec& point) {
  point = {};
}

void resetCoordList(CoordListRec& coord) {
  coord = {};
}

void resetDigital(DigitalRec& digital) {
  digital = {};
}

void resetAllot(AllotRec& allot) {
  allot = {};
}

void resetContour(ContourRec& contour) {
  contour = {};
}

void resetEightTexts(EightTextsRec& group) {
  group = {};
}

}  // namespace zamo
