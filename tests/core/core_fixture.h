// A station for the receive-path tests: in LAN mode against the scripted engine (frames through
// the in-memory socket, ticks in virtual time), or in direct mode with a scripted AGWGetData
// and ticks called one by one.
#pragma once

#include <deque>
#include <string>

#include "base/text.h"
#include "core/hand_off_log.h"
#include "support/scripted_engine.h"
#include "support/station_fixture.h"

namespace tesk::testing {

// The engine's monitor text of a UI frame: port from 1, header with local time, CR, the data.
inline std::string EngineText(const std::string& data, int port = 1,
                              const std::string& calls = "PA3ABC To CQ",
                              const std::string& time = "12:00:00") {
  return " " + std::to_string(port) + ":Fm " + calls +
         " <UI pid=F0 Len=" + std::to_string(data.size()) + " >[" + time + "]\r" + data;
}

// What the direct-mode library hands out, one frame per call, as C strings in fixed texts.
class ScriptedGetData {
 public:
  struct Item {
    std::string text;
    char kind = 'U';
    std::string call = "PA3ABC";
  };
  int16_t operator()(std::string& call, std::string& text, int32_t& kind, int32_t& length,
                     int32_t& port) {
    ++polls;
    if (onPoll) onPoll();
    if (items.empty()) {
      kind = 0;
      length = 0;
      return 0;
    }
    const Item item = items.front();
    items.pop_front();
    call = item.call + '\0';
    text = item.text + '\0';
    kind = static_cast<unsigned char>(item.kind);
    length = static_cast<int32_t>(item.text.size());
    port = 0;
    return 1;
  }
  std::deque<Item> items;
  int polls = 0;
  std::function<void()> onPoll;
};

class CoreTest : public StationTest {
 protected:
  // LAN mode, connected and listening. The replay of the last frame that the connect requests
  // leave behind is cleared here; one test looks at it on its own.
  void startLan(bool clearReplay = true) {
    WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
    engine = std::make_unique<ScriptedEngine>(platform.network, kHost, kPort);
    start("/LAN");
    if (clearReplay) station->parts().tcpLink.FrameSlot_.FrameReady = 0;
    mark();
  }
  // Direct mode without the load pass: ticks are called by hand.
  void startDirect() {
    make("/AGW");
    station->run().AppPath = home.path();
    station->run().LanMode = 0;
    station->config().YourCallSign = "XX9TK";
    station->parts().core.AGWGetData = [this](std::string& c, std::string& t, int32_t& k,
                                              int32_t& l,
                                              int32_t& p) { return script(c, t, k, l, p); };
    mark();
  }
  // One engine frame, then a little more than one core tick.
  void feed(const std::string& text, char kind = 'U', int port = 0) {
    engine->sendRaw(AgwBytes(port, kind, "PA3ABC", "CQ", text));
    platform.simLoop.run(0.3);
  }
  void tick() { station->parts().core.Tick(); }
  void record() {
    hands().recording = true;
    hands().calls.clear();
  }

  void mark() { m_mark = txt().length(); }
  std::string shown() { return txt().text().substr(std::min(m_mark, txt().length())); }
  RichText& txt() { return station->mainWindow().txtMonitor; }
  StationConfig& config() { return station->config(); }
  MainWindow& main() { return station->mainWindow(); }
  StationParts& parts() { return station->parts(); }
  HandOffLog& hands() { return station->parts().handOffs; }
  int count(const std::string& name) {
    int n = 0;
    for (const std::string& c : hands().calls)
      n += c == name ? 1 : 0;
    return n;
  }

  std::unique_ptr<ScriptedEngine> engine;
  ScriptedGetData script;

 private:
  std::size_t m_mark = 0;
};

}  // namespace tesk::testing
