// The UTC time the Monitor writes into headers and the clock label shows: from the system
// clock, or from the local time and the station's stored offset. The offset can be worked out
// once from the system clock (CalcUTC).
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

// "hh:mm:ss" in UTC.
std::string BerekenUTC(const Clock& clock, const StationConfig& config);
// Fills [UTC Time Offset] from the system clock.
void CalcUTC(const Clock& clock, StationConfig& config);
// "hh:mm:ss" of a time.
std::string ClockText(const DateTime& t);

}  // namespace tesk
