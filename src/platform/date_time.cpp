// Calendar arithmetic for DateTime, after the days-from-civil algorithm of the proleptic
// Gregorian calendar.
#include "platform/date_time.h"

namespace tesk {
namespace {

int64_t DaysFromCivil(int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<int64_t>(doe) - 719468;
}

void CivilFromDays(int64_t z, int& y, int& m, int& d) {
  z += 719468;
  const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = static_cast<int>(static_cast<int64_t>(yoe) + era * 400 + (m <= 2));
}

}  // namespace

int DateTime::dayOfWeek() const {
  const int64_t days =
      DaysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day));
  // 1970-01-01 was a Thursday (5 when Sunday is 1).
  return static_cast<int>(((days % 7) + 7 + 4) % 7) + 1;
}

int64_t ToEpochSeconds(const DateTime& t) {
  return DaysFromCivil(t.year, static_cast<unsigned>(t.month), static_cast<unsigned>(t.day)) *
             86400 +
         t.hour * 3600 + t.minute * 60 + t.second;
}

DateTime FromEpochSeconds(int64_t seconds, int millisecond) {
  int64_t days = seconds / 86400;
  int64_t rest = seconds % 86400;
  if (rest < 0) {
    rest += 86400;
    --days;
  }
  DateTime t;
  CivilFromDays(days, t.year, t.month, t.day);
  t.hour = static_cast<int>(rest / 3600);
  t.minute = static_cast<int>((rest % 3600) / 60);
  t.second = static_cast<int>(rest % 60);
  t.millisecond = millisecond;
  return t;
}

DateTime AddMilliseconds(const DateTime& t, int64_t ms) {
  int64_t total = ToEpochSeconds(t) * 1000 + t.millisecond + ms;
  int64_t secs = total / 1000;
  int64_t msPart = total % 1000;
  if (msPart < 0) {
    msPart += 1000;
    --secs;
  }
  return FromEpochSeconds(secs, static_cast<int>(msPart));
}

}  // namespace tesk
