// The pass geometry and the digipeater's choices.
#include "sim/satellite_pass.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesk::sim {

double SatellitePass::cycleTime(double t) const {
  return std::fmod(std::max(t, 0.0), m_s.cycle);
}

double SatellitePass::elevation(double t) const {
  const double c = cycleTime(t);
  if (c < m_s.aos || c > m_s.los) return -10;
  // A half sine from horizon to horizon is close enough to an overhead pass for the operator.
  const double x = (c - m_s.aos) / (m_s.los - m_s.aos);
  return m_s.maxElevation * std::sin(std::numbers::pi * x);
}

double SatellitePass::repeatChance(double t) const {
  const double e = elevation(t);
  if (e < 0 || m_s.maxElevation <= 0) return 0;
  return m_s.repeatAtHorizon + (m_s.repeatAtTop - m_s.repeatAtHorizon) * (e / m_s.maxElevation);
}

std::optional<std::size_t> SatellitePass::entryFor(const Ax25Frame& f) const {
  if (!f.isUi()) return std::nullopt;
  for (std::size_t i = 0; i < f.digipeaters.size(); ++i) {
    if (f.digipeaters[i].repeated) continue;
    for (const std::string& call : m_s.digipeater)
      if (f.digipeaters[i].call == call) return i;
    return std::nullopt;  // the next unused entry is someone else's
  }
  return std::nullopt;
}

std::optional<Ax25Frame> SatellitePass::repeat(const Ax25Frame& f, double t,
                                               std::mt19937& rng) const {
  const std::optional<std::size_t> entry = entryFor(f);
  if (!entry || !up(t)) return std::nullopt;
  std::uniform_real_distribution<double> dice(0.0, 1.0);
  if (dice(rng) >= repeatChance(t)) return std::nullopt;
  Ax25Frame out = f;
  out.digipeaters[*entry].repeated = true;
  return out;
}

double SatellitePass::delay(std::mt19937& rng) const {
  std::uniform_real_distribution<double> d(m_s.delayMin, m_s.delayMax);
  return d(rng);
}

}  // namespace tesk::sim
