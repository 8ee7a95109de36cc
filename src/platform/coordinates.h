// Coordinates and times in the form of a notice file, cut at fixed places.
// A longitude is a sign, DDD, MM and perhaps SS; a latitude is a sign, DD, MM and perhaps SS.
#pragma once

#include <string>
#include <string_view>

namespace zamo {

std::string_view longDeg(std::string_view value);
std::string_view longMin(std::string_view value);
std::string_view longSec(std::string_view value);
// "E" when the first character is "+", otherwise "W".
std::string_view longHemisphere(std::string_view value);

std::string_view latDeg(std::string_view value);
std::string_view latMin(std::string_view value);
std::string_view latSec(std::string_view value);
// "S" when the first character is "-", otherwise "N".
std::string_view latHemisphere(std::string_view value);

// The pair as the map takes it: DDMMSS, N or S, DDDMMSS, E or W. Missing seconds are "00".
std::string coordKeyText(std::string_view longitude, std::string_view latitude);

// HHMM from HH:MM or HHMM.
std::string stripTimeColon(std::string_view time);

// Degrees, in single precision as the map library takes them.
float dmsToDegrees(int degrees, int minutes, int seconds);

// Radians, negative for the hemispheres W and S in any case.
double dmsToRadians(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                    std::string_view hemisphere);

// In any case.
bool isEastWest(std::string_view text);
bool isNorthSouth(std::string_view text);

}  // namespace zamo
