// The satellite's digipeater during a pass: its elevation from AOS to LOS, the chance that it
// hears and repeats a frame (rising and falling with the elevation), and the repeat itself:
// only a UI frame whose next unused path entry is its call or one of its aliases, with that
// entry's has-been-repeated bit set.
#pragma once

#include <optional>
#include <random>

#include "link/ax25_frame.h"
#include "sim/scenario.h"

namespace tesk::sim {

class SatellitePass {
 public:
  explicit SatellitePass(const Scenario& scenario) : m_s(scenario) {}

  // Seconds into the current cycle of the timeline.
  double cycleTime(double t) const;
  // Degrees above the horizon; negative while the satellite is down.
  double elevation(double t) const;
  bool up(double t) const { return elevation(t) >= 0; }
  double repeatChance(double t) const;

  // The index of the digipeater entry the satellite would act on, if any.
  std::optional<std::size_t> entryFor(const Ax25Frame& f) const;
  // The repeated frame, when the satellite is up, the path asks for it and the dice agree.
  std::optional<Ax25Frame> repeat(const Ax25Frame& f, double t, std::mt19937& rng) const;
  // The delay between hearing and repeating.
  double delay(std::mt19937& rng) const;

 private:
  const Scenario& m_s;
};

}  // namespace tesk::sim
