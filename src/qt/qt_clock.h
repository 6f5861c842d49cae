// The system's clocks: local and UTC time from QDateTime, the short date and long time texts in
// the system's locale, and a monotonic clock started when the program starts.
#pragma once

#include <QElapsedTimer>

#include "platform/platform.h"

namespace tesk {

class QtClock : public Clock {
 public:
  QtClock();
  DateTime localNow() const override;
  DateTime utcNow() const override;
  double monotonicSeconds() const override;
  std::string shortDate(const DateTime& t) const override;
  std::string longTime(const DateTime& t) const override;

 private:
  QElapsedTimer m_elapsed;
};

}  // namespace tesk
