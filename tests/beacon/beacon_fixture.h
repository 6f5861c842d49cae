// A started LAN station with the beacon's parts at hand: the plan set as the window would leave
// it, virtual time run by whole seconds, and console lines with the notices they printed.
#pragma once

#include <string>
#include <vector>

#include "main/station_parts.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {

class BeaconTest : public SendTest {
 protected:
  BeaconScheduler& beacon() { return parts().beacon; }
  BeaconSetup& setup() { return parts().beaconSetup; }
  BeaconWindow& window() { return setup().window(); }
  // The plan as Apply leaves it: the mask, its item count, the interval; the beacon running
  // from a counter at 0.
  void plan(int interval, float selected, int items) {
    config().BeaconInterval = static_cast<int16_t>(interval);
    config().SelectedBeacon = selected;
    config().SelectedBeaconItems = static_cast<int16_t>(items);
    config().Beacon = -1;
    beacon().BeaconSeconds = 0;
    beacon().ShowCaption("Beacon ON");
  }
  void advance(double seconds) { platform.simLoop.run(seconds); }
  // One console line; the notices it printed.
  std::vector<std::string> console(const std::string& line) {
    const std::size_t before = platform.simViews.notices.size();
    station->consoleLine(line);
    return {platform.simViews.notices.begin() + static_cast<long>(before),
            platform.simViews.notices.end()};
  }
  std::vector<std::string> boxTitles() {
    std::vector<std::string> titles;
    for (const ShownBox& box : platform.simDialogs.shown)
      titles.push_back(box.title);
    return titles;
  }
};

}  // namespace tesk::testing
