// The date stamp: short date, separators replaced, a one-digit day padded, and a fixed fallback
// when the system gives nothing usable.
#include "alarms/date_stamp.h"

#include "base/text.h"

namespace tesk {

namespace {

// Characters a file name cannot hold on the systems the logs are read on.
bool UnfitSeparator(const std::string& s) {
  static const std::string kUnfit = "\"\\/:*?|<>";
  return Len(s) != 1 || kUnfit.find(s[0]) != std::string::npos;
}

std::string FallbackStamp(const DateTime& now) {
  return Format00(now.day) + "_" + Format00(now.month) + "_" + FormatZeros(now.year, 4);
}

}  // namespace

std::string DateStamp(StationConfig& config, const Clock& clock, const DateTime& now) {
  // The repair is written into the settings on purpose: the next save keeps it.
  if (UnfitSeparator(config.DateSeparator)) config.DateSeparator = "-";
  const std::string& sep = config.DateSeparator;
  std::string stamp = clock.shortDate(now);
  if (stamp.empty()) return FallbackStamp(now);
  for (char& c : stamp) {
    if (c == '/' || c == '.' || c == ',') c = sep[0];
  }
  if (InStr(stamp, sep) == 2) stamp = "0" + stamp;
  return stamp;
}

std::string DateStamp(StationConfig& config, const Clock& clock) {
  return DateStamp(config, clock, clock.localNow());
}

std::string DateStampForReading(StationConfig& config, const Clock& clock, const DateTime& now) {
  const std::string stamp = DateStamp(config, clock, now);
  const std::string read = Replace(stamp, config.DateSeparator, "/");
  if (read.empty()) return clock.shortDate(now);
  return read;
}

}  // namespace tesk
