// The texts other stations send through the satellite, made from a station's call and locator:
// APRS positions in plain and compressed form, CQ calls with the locator, APRS messages and their
// acks, and heard reports listing the stations a station got through the satellite.
#pragma once

#include <string>
#include <vector>

#include "link/ax25_frame.h"
#include "sim/scenario.h"

namespace tesk::sim {

struct LatLon {
  double lat = 0, lon = 0;
};

// The centre of a 4- or 6-character Maidenhead locator; (0,0) for one that is not.
LatLon LocatorToLatLon(const std::string& locator);
// "5209.50N/00428.25E-": degrees and minutes with the house symbol.
std::string PlainPosition(const LatLon& p);
// "/5L!!<*e7- sT": base-91 latitude and longitude, no course or speed.
std::string CompressedPosition(const LatLon& p);

// A frame `station` sends; digipeaters from its path. `seq` numbers messages.
Ax25Frame PositionFrame(const StationPlan& station, bool compressed);
Ax25Frame CqFrame(const StationPlan& station);
Ax25Frame MessageFrame(const StationPlan& station, const std::string& to, int seq);
Ax25Frame AckFrame(const StationPlan& station, const std::string& to, int seq);
// The ack of a message whose number came as text ("00", "100").
Ax25Frame AckFrame(const StationPlan& station, const std::string& to, const std::string& number);
Ax25Frame HeardFrame(const StationPlan& station, const std::vector<std::string>& heard);

}  // namespace tesk::sim
