// DateStamp: the date text in every dated file name (logs, reports, saves). It follows the
// system's short date with the separator of [DateSeparator], which it repairs when that could
// not stand in a file name.
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

// The stamp of `now`. A [DateSeparator] that is empty, longer than one character or one of
// " \ / : * ? | < > becomes "-" in the settings too, and stays so.
std::string DateStamp(StationConfig& config, const Clock& clock, const DateTime& now);
// The stamp of the clock's present local date.
std::string DateStamp(StationConfig& config, const Clock& clock);
// The stamp as a date for reading: the separator put back to "/".
std::string DateStampForReading(StationConfig& config, const Clock& clock, const DateTime& now);

}  // namespace tesk
