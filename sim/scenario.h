// A pass scenario: a plain text file of one statement a line (a line starting with "#" is a
// comment) that sets the pass (AOS, LOS, highest elevation), the satellite's digipeater and how
// willingly it repeats, the stations on the air and what each sends, and fixed frames on the
// timeline. The timeline starts again after `cycle` seconds, so a demo runs pass after pass.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tesk::sim {

// How the engine's radio hears a station: only through the satellite (too far away), only
// directly (a neighbour who does not use the satellite), or both.
enum class Reach { Satellite, Direct, Both };

struct StationPlan {
  std::string call, locator, comment;
  Reach reach = Reach::Satellite;
  std::string path = "ARISS";  // the digipeater path it sends through, "" for none
};

// Something a station sends again and again: kind is position, compressed, cq, message or
// heard; `to` is the addressee of messages.
struct TrafficRule {
  std::string call, kind, to;
  double interval = 60, first = 0;
};

struct TimedFrame {
  double at = 0;
  std::string tnc2;
  Reach reach = Reach::Satellite;
};

struct Scenario {
  std::string name = "pass";
  double cycle = 720;
  double aos = 20, los = 620, maxElevation = 60;
  std::vector<std::string> digipeater{"RS0ISS", "ARISS", "APRSAT"};  // call, then aliases
  double repeatAtHorizon = 0.2, repeatAtTop = 0.95;
  double delayMin = 0.3, delayMax = 1.2;
  std::vector<StationPlan> stations;
  std::vector<TrafficRule> rules;
  std::vector<TimedFrame> frames;

  const StationPlan* station(const std::string& call) const;
};

// Parses a scenario; on a bad line, nothing, with `error` saying which line and why.
std::optional<Scenario> ParseScenario(const std::string& text, std::string& error);
std::optional<Scenario> LoadScenario(const std::string& path, std::string& error);

}  // namespace tesk::sim
