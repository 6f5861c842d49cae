// Direct mode: the four calls of the packet engine's library, which the core polls once per
// tick. The stand-in that speaks AGWPE over TCP arrives with direct mode; until then the start
// finds no engine, so a start in direct mode reaches the engine questions of the load pass.
#pragma once

#include <cstdint>
#include <string>

#include "main/run_state.h"
#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

class AgwDirect {
 public:
  AgwDirect(Platform& platform, StationConfig& config, RunState& run)
      : m_platform(platform), m_config(config), m_run(run) {}
  // Opens the link; non-zero when the engine answered.
  int16_t AGWStartPoll(const std::string& ownCall, const std::string& appKey, int32_t callLength,
                       int32_t keyLength);
  void AGWClose();
  int16_t AGWPutData(const std::string& callText, const std::string& data, int32_t kind,
                     int32_t length, int32_t port);
  // Gives the next frame without waiting; non-zero when one was delivered.
  int16_t AGWGetData(std::string& frameCall, std::string& frameText, int32_t& kind,
                     int32_t& length, int32_t& port);

  int startPolls() const { return m_startPolls; }
  int closes() const { return m_closes; }
  int puts() const { return m_puts; }

 private:
  [[maybe_unused]] Platform& m_platform;
  [[maybe_unused]] StationConfig& m_config;
  [[maybe_unused]] RunState& m_run;
  int m_startPolls = 0;
  int m_closes = 0;
  int m_puts = 0;
};

}  // namespace tesk
