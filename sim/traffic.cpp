// Texts of the simulated stations.
#include "sim/traffic.h"

#include <cmath>
#include <cstdio>

#include "base/text.h"

namespace tesk::sim {

namespace {

Ax25Frame Frame(const StationPlan& s, const std::string& to, const std::string& info) {
  Ax25Frame f;
  f.source.call = s.call;
  f.destination.call = to;
  f.pid = 0xF0;
  f.info = info;
  if (!s.path.empty()) f.digipeaters.push_back(Ax25Address{s.path, false});
  return f;
}

std::string Addressee(const std::string& to) {
  std::string a = Left(to, 9);
  a.resize(9, ' ');
  return ":" + a + ":";
}

std::string Base91(double value) {
  long v = static_cast<long>(value);
  std::string out(4, '!');
  for (int i = 3; i >= 0; --i) {
    out[static_cast<std::size_t>(i)] = static_cast<char>(33 + v % 91);
    v /= 91;
  }
  return out;
}

std::string DegMin(double value, int degreeDigits, char pos, char neg) {
  const char hemisphere = value < 0 ? neg : pos;
  const double a = std::fabs(value);
  const int deg = static_cast<int>(a);
  const double min = (a - deg) * 60.0;
  char buf[32];
  std::snprintf(buf, sizeof buf, "%0*d%05.2f%c", degreeDigits, deg, min, hemisphere);
  return buf;
}

const char* const kCqTexts[] = {"CQ CQ via ISS de %s %s, 73", "CQ de %s in %s, QSL via the ISS",
                                "%s (%s) QRV via RS0ISS, best 73"};
const char* const kMessages[] = {"Hello from %s, 73", "Thanks for the QSO, %s",
                                 "Good signal here in %s", "Nice pass today, %s"};

std::string Fill(const char* pattern, const std::string& a, const std::string& b) {
  char buf[128];
  std::snprintf(buf, sizeof buf, pattern, a.c_str(), b.c_str());
  return buf;
}

}  // namespace

LatLon LocatorToLatLon(const std::string& locator) {
  const std::string l = UCase(locator);
  if (l.size() < 4 || l[0] < 'A' || l[0] > 'R' || l[1] < 'A' || l[1] > 'R' || l[2] < '0' ||
      l[2] > '9' || l[3] < '0' || l[3] > '9')
    return {};
  double lon = (l[0] - 'A') * 20.0 - 180 + (l[2] - '0') * 2.0;
  double lat = (l[1] - 'A') * 10.0 - 90 + (l[3] - '0');
  if (l.size() >= 6 && l[4] >= 'A' && l[4] <= 'X' && l[5] >= 'A' && l[5] <= 'X') {
    lon += (l[4] - 'A') / 12.0 + 1.0 / 24;
    lat += (l[5] - 'A') / 24.0 + 1.0 / 48;
  } else {
    lon += 1;
    lat += 0.5;
  }
  return {lat, lon};
}

std::string PlainPosition(const LatLon& p) {
  return DegMin(p.lat, 2, 'N', 'S') + "/" + DegMin(p.lon, 3, 'E', 'W') + "-";
}

std::string CompressedPosition(const LatLon& p) {
  return "/" + Base91(380926.0 * (90 - p.lat)) + Base91(190463.0 * (180 + p.lon)) + "- sT";
}

Ax25Frame PositionFrame(const StationPlan& s, bool compressed) {
  const LatLon p = LocatorToLatLon(s.locator);
  const std::string comment = s.comment.empty() ? "via ISS" : s.comment;
  return Frame(s, "APRS", "=" + (compressed ? CompressedPosition(p) : PlainPosition(p)) + comment);
}

Ax25Frame CqFrame(const StationPlan& s) {
  const std::size_t pick = s.call.size() % std::size(kCqTexts);
  return Frame(s, "CQ", Fill(kCqTexts[pick], s.call, s.locator));
}

Ax25Frame MessageFrame(const StationPlan& s, const std::string& to, int seq) {
  const std::size_t pick = static_cast<std::size_t>(seq) % std::size(kMessages);
  return Frame(s, "APRS",
               Addressee(to) + Fill(kMessages[pick], s.locator, "") + "{" + std::to_string(seq));
}

Ax25Frame AckFrame(const StationPlan& s, const std::string& to, int seq) {
  return AckFrame(s, to, std::to_string(seq));
}

Ax25Frame AckFrame(const StationPlan& s, const std::string& to, const std::string& number) {
  return Frame(s, "APRS", Addressee(to) + "ack" + number);
}

Ax25Frame HeardFrame(const StationPlan& s, const std::vector<std::string>& heard) {
  std::string list;
  for (const std::string& c : heard)
    list += (list.empty() ? "" : " ") + c;
  return Frame(s, "APRS", Addressee("Heard") + list);
}

}  // namespace tesk::sim
