// The beacon's label in the main window and the Shadow Experiment's mark beside it. The beacon,
// the load pass and the settings reader all set them, so the captions and their colours live in
// one place; a station without windows hears of each change as one console line.
#pragma once

#include <string>

#include "platform/platform.h"
#include "state/status_strip.h"

namespace tesk {

inline constexpr const char* kBeaconOff = "Beacon OFF";
inline constexpr const char* kBeaconOn = "Beacon ON";
inline constexpr const char* kAutoBeacon = "AutoBeacon";

// Sets lblBeacon to `caption` with its colours: "Beacon OFF" in the system's colours, the other
// two on QBColor(12 + smartDigit) (light red, light magenta with Smart Beacon) in light yellow.
void ShowBeaconCaption(StatusStrip& strip, Views& views, const std::string& caption,
                       int smartDigit);
// The digit in front of [IntelligentBeacon]: 1 with Smart Beacon on, else 0.
int SmartBeaconDigit(const std::string& intelligentBeacon);
// Shows or hides LblSpEx ("Shadow Exp. Mode!").
void ShowShadowMark(StatusStrip& strip, Views& views, bool shown);

}  // namespace tesk
