#include "platform/coordinates.h"

#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

// Not the closest value of pi: the columns in radians have always been made with this one.
constexpr double kPi = 3.141592653589;

std::string_view secondsOrZeros(std::string_view seconds) {
  return seconds.empty() ? "00" : seconds;
}

}  // namespace

std::string_view longDeg(std::string_view value) {
  return characters(value, 2, 4);
}

std::string_view longMin(std::string_view value) {
  return characters(value, 5, 6);
}

std::string_view longSec(std::string_view value) {
  return value.size() < 8 ? std::string_view() : characters(value, 7, 8);
}

std::string_view longHemisphere(std::string_view value) {
  return value.starts_with('+') ? "E" : "W";
}

std::string_view latDeg(std::string_view value) {
  return characters(value, 2, 3);
}

std::string_view latMin(std::string_view value) {
  return characters(value, 4, 5);
}

std::string_view latSec(std::string_view value) {
  return characters(value, 6, 7);
}

std::string_view latHemisphere(std::string_view value) {
  return value.starts_with('-') ? "S" : "N";
}

std::string coordKeyText(std::string_view longitude, std::string_view latitude) {
  std::string text;
  text.append(latDeg(latitude)).append(latMin(latitude)).append(secondsOrZeros(latSec(latitude)));
  text.append(latHemisphere(latitude));
  text.append(longDeg(longitude)).append(longMin(longitude)).append(secondsOrZeros(longSec(longitude)));
  text.append(longHemisphere(longitude));
  return text;
}

std::string stripTimeColon(std::string_view time) {
  if (time.find(':') == std::string_view::npos) return std::string(characters(time, 1, 4));
  return std::string(characters(time, 1, 2)).append(characters(time, 4, 5));
}

float dmsToDegrees(int degrees, int minutes, int seconds) {
  return static_cast<float>((seconds / 60.0 + minutes) / 60.0 + degrees);
}

double dmsToRadians(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                    std::string_view hemisphere) {
  const double value = (leadingNumber(minutes) * 60 + leadingNumber(seconds)) / 3600 + leadingNumber(degrees);
  const bool negative = equalsIgnoringCase(hemisphere, "W") || equalsIgnoringCase(hemisphere, "S");
  return (negative ? -value : value) * kPi / 180;
}

bool isEastWest(std::string_view text) {
  return equalsIgnoringCase(text, "E") || equalsIgnoringCase(text, "W");
}

bool isNorthSouth(std::string_view text) {
  return equalsIgnoringCase(text, "N") || equalsIgnoringCase(text, "S");
}

}  // namespace zamo
