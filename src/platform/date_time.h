// Calendar arithmetic for DateTime: seconds since 1970 and back, without the C library's
// time-zone state, so that the sim clock and the log rules compute dates the same everywhere.
#pragma once

#include <cstdint>

#include "platform/platform.h"

namespace tesk {

int64_t ToEpochSeconds(const DateTime& t);
DateTime FromEpochSeconds(int64_t seconds, int millisecond = 0);
// Adds (possibly negative) milliseconds.
DateTime AddMilliseconds(const DateTime& t, int64_t ms);

}  // namespace tesk
