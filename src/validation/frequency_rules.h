// Which frequencies and channel rasters a country has.
#pragma once

#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

// A DVB-T channel centre in MHz: of Bands IV and V anywhere, of Band III by the country's raster. The
// frequency is read as its leading number and compared exactly. A refusal is told in `msg`.
bool checkDvbtFrequency(std::string_view ctry, std::string_view frequency, std::string& msg);

// The centre of a T-DAB block in MHz, read and compared likewise.
bool checkDabFrequency(std::string_view frequency, std::string& msg);

// Whether the bandwidth that the letter of a system variant means fits the channels of the country at the
// assigned frequency. A misfit is a warning for fragment NTFD_PZ and fatal otherwise.
bool checkChannelRaster(const NtcRec& ntc, char letter, std::string& errs, std::string_view label);

}  // namespace zamo
