// The writer: turns a record into the text of a notice file's sections. It touches no file and tells nothing:
// what is empty vanishes.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

// What a notice tells of the entry that it is aimed at; texts as they stand in a file.
struct TargetElements {
  std::string freq_assgn;
  std::string longitude;
  std::string latitude;
};

// The elements of the stored notice of that key, three empty texts when there is none. May itself be empty.
using TargetLookup = std::function<TargetElements(std::int32_t vornakey)>;

// Sections. Each is empty when it would hold no line, and has no line end behind it.

std::string makeHeadSection(std::string_view t_adm, std::string_view t_email_addr);
// A notice of any type but a contour. One with "TB3" in its internal remarks is written as a TB3.
std::string makeNoticeSection(const NtcRec& ntc, std::int32_t number, const TargetLookup& findTarget);
std::string makeContourNotice(const NtcRec& ntc, std::int32_t number);
std::string makePointSection(const PointRec& point);
// Only the administrations with which the notifier himself has coordinated.
std::string makeCoordSection(const CoordListRec& coord);
std::string makeAntHgtSection(const NtcRec& ntc);
// The horizontal diagram and then the vertical one, a line end before each.
std::string makeAntDiagrSections(const NtcRec& ntc);

// Bodies: the lines between the tags, a line end before each.

std::string makeTB2Body(const NtcRec& ntc, const TargetLookup& findTarget);
// A record that is no PARTB action yet is made one that is aimed at the record's own entry.
std::string makeTB3Body(const NtcRec& ntc);
std::string makeTB5Body(const NtcRec& ntc);
std::string makeArt5Body(const NtcRec& ntc);
std::string makeDigitalBody(const NtcRec& ntc);
std::string makeAllotBody(const NtcRec& ntc);

}  // namespace zamo
