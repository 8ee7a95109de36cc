#include "noticefile/writer_text.h"

#include "platform/coordinates.h"
#include "platform/text.h"

namespace zamo {

std::string makeKeyLine(std::string_view key, std::string_view value) {
  if (key.empty() || value.empty()) return {};
  return std::string(kLineEnd).append(key).append(" = ").append(value);
}

std::string makeSection(std::string_view tag, std::string_view body) {
  if (tag.empty() || body.empty()) return {};
  return "<" + upperText(tag).append(">").append(body).append(kLineEnd).append("</").append(tag).append(">");
}

std::string makeTailSection(std::int32_t notices) {
  if (notices < 1) return {};
  return makeSection("TAIL", makeKeyLine("t_num_notices", std::to_string(notices))).append(kLineEnd);
}

std::string makeDateText(std::string_view year, std::string_view month, std::string_view day) {
  if (year.empty() || month.empty() || day.empty()) return {};
  return std::string(year).append("-").append(month).append("-").append(day);
}

std::string makeCoordText(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                          std::string_view hemisphere) {
  const bool isLongitude = isEastWest(hemisphere);
  if (degrees.empty() || minutes.empty() || (!isLongitude && !isNorthSouth(hemisphere))) return {};
  const bool isPositive = equalsIgnoringCase(hemisphere, "E") || equalsIgnoringCase(hemisphere, "N");
  return (isPositive ? "+" : "-") + padToWidth(degrees, isLongitude ? 3 : 2) + padToWidth(minutes, 2) +
         padToWidth(seconds, 2);
}

std::string makeTimeText(std::string_view hhmm) {
  if (hhmm.empty()) return {};
  const std::string_view minutes = characters(hhmm, 3, 4);
  return padTo2(characters(hhmm, 1, 2)).append(":").append(minutes.empty() ? "00" : minutes);
}

}  // namespace zamo
