// Reading pass scenarios.
#include "sim/scenario.h"

#include <fstream>
#include <sstream>

#include "base/text.h"

namespace tesk::sim {

namespace {

std::optional<Reach> ParseReach(const std::string& word) {
  if (word == "satellite") return Reach::Satellite;
  if (word == "direct") return Reach::Direct;
  if (word == "both") return Reach::Both;
  return std::nullopt;
}

bool IsKind(const std::string& k) {
  return k == "position" || k == "compressed" || k == "cq" || k == "message" || k == "heard";
}

std::string RestOf(std::istringstream& in) {
  std::string rest;
  std::getline(in, rest);
  return Trim(rest);
}

std::string ParseStation(std::istringstream& in, Scenario& s) {
  StationPlan p;
  std::string reach;
  if (!(in >> p.call >> p.locator >> reach)) return "station needs call, locator and reach";
  const std::optional<Reach> r = ParseReach(reach);
  if (!r) return "reach is satellite, direct or both";
  p.call = UCase(p.call);
  p.reach = *r;
  std::string path;
  if (in >> path) p.path = path == "-" ? "" : UCase(path);
  p.comment = RestOf(in);
  s.stations.push_back(p);
  return "";
}

std::string ParseRule(std::istringstream& in, Scenario& s) {
  TrafficRule r;
  if (!(in >> r.call >> r.kind >> r.interval >> r.first) || r.interval <= 0)
    return "every needs call, kind, interval and first time";
  if (!IsKind(r.kind)) return "unknown traffic kind " + r.kind;
  r.call = UCase(r.call);
  if (!s.station(r.call)) return "unknown station " + r.call;
  if (r.kind == "message" && !(in >> r.to)) return "a message rule needs an addressee";
  r.to = UCase(r.to);
  s.rules.push_back(r);
  return "";
}

// One statement; returns a reason when it is wrong.
std::string ParseLine(const std::string& word, std::istringstream& in, Scenario& s) {
  if (word == "name") {
    s.name = RestOf(in);
  } else if (word == "cycle") {
    if (!(in >> s.cycle) || s.cycle <= 0) return "cycle needs seconds";
  } else if (word == "pass") {
    if (!(in >> s.aos >> s.los >> s.maxElevation) || s.los <= s.aos) return "pass needs AOS < LOS";
  } else if (word == "digipeater") {
    s.digipeater.clear();
    for (std::string c; in >> c;)
      s.digipeater.push_back(UCase(c));
    if (s.digipeater.empty()) return "digipeater needs a call";
  } else if (word == "repeat") {
    if (!(in >> s.repeatAtHorizon >> s.repeatAtTop)) return "repeat needs two chances";
  } else if (word == "delay") {
    if (!(in >> s.delayMin >> s.delayMax) || s.delayMax < s.delayMin) return "delay needs min max";
  } else if (word == "station") {
    return ParseStation(in, s);
  } else if (word == "every") {
    return ParseRule(in, s);
  } else if (word == "at") {
    TimedFrame f;
    std::string reach;
    if (!(in >> f.at >> reach)) return "at needs a time, a reach and a frame";
    const std::optional<Reach> r = ParseReach(reach);
    if (!r) return "reach is satellite, direct or both";
    f.reach = *r;
    f.tnc2 = RestOf(in);
    if (InStr(f.tnc2, ">") == 0 || InStr(f.tnc2, ":") == 0) return "frame is SRC>DST,PATH:info";
    s.frames.push_back(f);
  } else {
    return "unknown statement " + word;
  }
  return "";
}

}  // namespace

const StationPlan* Scenario::station(const std::string& call) const {
  for (const StationPlan& p : stations)
    if (p.call == call) return &p;
  return nullptr;
}

std::optional<Scenario> ParseScenario(const std::string& text, std::string& error) {
  Scenario s;
  std::istringstream lines(text);
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    // Only whole lines are comments: frame texts may hold a "#".
    if (Left(Trim(line), 1) == "#") continue;
    std::istringstream in(line);
    std::string word;
    if (!(in >> word)) continue;
    const std::string why = ParseLine(word, in, s);
    if (!why.empty()) {
      error = "line " + std::to_string(number) + ": " + why;
      return std::nullopt;
    }
  }
  return s;
}

std::optional<Scenario> LoadScenario(const std::string& path, std::string& error) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    error = "cannot read " + path;
    return std::nullopt;
  }
  std::ostringstream all;
  all << in.rdbuf();
  std::optional<Scenario> s = ParseScenario(all.str(), error);
  if (!s) error = path + ": " + error;
  return s;
}

}  // namespace tesk::sim
