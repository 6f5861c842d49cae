// The direct-mode test bench: a client of the simulated platform against one engine of each
// kind, with helpers that poll it the way the core does.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/dialect_engine.h"

namespace tesk::testing {

// One AGWGetData call, as the core sees it.
struct Polled {
  int16_t result = 0;
  std::string call, text;  // the fixed texts, 25 and 512 characters
  int32_t kind = 0, length = 0, port = -1;
  std::string callValue() const { return CutAtNul(call); }
  std::string value() const { return Left(text, length); }  // the part the core looks at
};

class DirectBench : public ::testing::TestWithParam<Dialect> {
 protected:
  static constexpr const char* kHost = "127.0.0.1";
  static constexpr int kPort = 8123;
  static constexpr const char* kOwnCall = "XX9TK";

  DirectBench() {
    config.HostName_IP_Default = kHost;
    config.LanPort = kPort;
  }
  Dialect dialect() const { return GetParam(); }
  // Starts the link; the engine's port lines, the first frames the core would get after a
  // start, are taken into `ports` so that each test polls its own frames.
  bool startUp() {
    const bool up = direct.AGWStartPoll(kOwnCall, "key", 5, 3) != 0;
    if (!up) return false;
    platform.simLoop.runUntil(1, [this] { return direct.waiting() > 0; });
    ports = pollAll();
    return true;
  }
  Polled poll() {
    Polled p;
    p.call = std::string(25, 'z');  // what the core's texts held before; must be overwritten
    p.text = std::string(512, 'z');
    p.kind = 'd';
    p.result = direct.AGWGetData(p.call, p.text, p.kind, p.length, p.port);
    return p;
  }
  std::vector<Polled> pollAll() {
    std::vector<Polled> out;
    for (Polled p = poll(); p.result != 0; p = poll())
      out.push_back(p);
    return out;
  }
  int16_t put(char kind, const std::string& callText, const std::string& data = "",
              int32_t port = 0) {
    return direct.AGWPutData(callText, data, static_cast<unsigned char>(kind),
                             static_cast<int32_t>(data.size()), port);
  }
  void run(double seconds) { platform.simLoop.run(seconds); }
  std::string clock() const {
    const DateTime t = platform.simClock.localNow();
    return Format00(t.hour) + ":" + Format00(t.minute) + ":" + Format00(t.second);
  }
  // Frames of one kind the engine got from the client.
  std::vector<AgwFrame> sent(char kind) const {
    std::vector<AgwFrame> out;
    for (const AgwFrame& f : engine.received)
      if (f.kind == kind) out.push_back(f);
    return out;
  }

  std::vector<Polled> ports;
  SimPlatform platform;
  StationConfig config;
  RunState run_;
  DialectEngine engine{platform, GetParam(), kHost, kPort};
  AgwDirect direct{platform, config, run_};
};

inline std::string PrintDialect(const ::testing::TestParamInfo<Dialect>& info) {
  return DialectName(info.param);
}

#define TESK_ALL_DIALECTS                                                            \
  ::testing::Values(Dialect::DireWolf16, Dialect::DireWolf18, Dialect::QtSoundModem, \
                    Dialect::AgwPacketEngine),                                       \
      PrintDialect

}  // namespace tesk::testing
