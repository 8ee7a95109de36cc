// Clearing a record or a group of it for the next notice.
#pragma once

#include <array>
#include <string>

#include "model/ntc_rec.h"

namespace zamo {

// A flag and eight texts: a group of fields while a contour is read.
struct EightTextsRec {
  bool present = false;
  std::array<std::string, 8> texts;
};

// The whole record, except `t_adm`, which belongs to the file, and `kept_spare`.
void resetNtc(NtcRec& ntc);

// The main level: the numbers and the texts, except `t_adm` and `kept_spare`.
void resetNtcMain(NtcRec& ntc);

// `t_adm` alone: called once a file, before the file is opened.
void resetAdm(NtcRec& ntc);

void resetPoint(OpHoursRec& hours);
void resetPoint(AzmValueRec& value);
void resetPoint(PointRec& point);
void resetCoordList(CoordListRec& coord);
void resetDigital(DigitalRec& digital);
void resetAllot(AllotRec& allot);
void resetContour(ContourRec& contour);
void resetEightTexts(EightTextsRec& group);

}  // namespace zamo
