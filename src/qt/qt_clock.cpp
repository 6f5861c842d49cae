// QDateTime and QLocale behind the station's clock.
#include "qt/qt_clock.h"

#include <QDateTime>
#include <QLocale>

#include "qt/qt_text.h"

namespace tesk {

namespace {

DateTime FromQDateTime(const QDateTime& q) {
  const QDate d = q.date();
  const QTime t = q.time();
  return DateTime{d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second(), t.msec()};
}

}  // namespace

QtClock::QtClock() {
  m_elapsed.start();
}

DateTime QtClock::localNow() const {
  return FromQDateTime(QDateTime::currentDateTime());
}

DateTime QtClock::utcNow() const {
  return FromQDateTime(QDateTime::currentDateTimeUtc());
}

double QtClock::monotonicSeconds() const {
  return static_cast<double>(m_elapsed.nsecsElapsed()) / 1e9;
}

std::string QtClock::shortDate(const DateTime& t) const {
  const QDate d(t.year, t.month, t.day);
  return FromQString(QLocale::system().toString(d, QLocale::ShortFormat));
}

std::string QtClock::longTime(const DateTime& t) const {
  const QTime time(t.hour, t.minute, t.second);
  return time.toString(QStringLiteral("hh:mm:ss")).toStdString();
}

}  // namespace tesk
