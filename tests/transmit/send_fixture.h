// A started station with a scripted engine, in LAN mode (frames checked byte for byte) or in
// direct mode (frames as the engine reads them), and the texts of the UI frames it sent.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "link/agw_frame.h"
#include "support/dialect_engine.h"
#include "support/scripted_engine.h"
#include "support/station_fixture.h"

namespace tesk::testing {

// One UI frame as the station sent it: kind, To, the digipeaters and the text.
struct SentUi {
  char kind = 0;
  std::string to;
  std::vector<std::string> via;
  std::string text;
};

class SendTest : public StationTest {
 protected:
  // LAN mode against the scripted engine; `emulate` is [Emulate_TXFrames_On_SlowNetPC].
  void startLan(int emulate = 0) {
    WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1, 0, "", emulate));
    lan = std::make_unique<ScriptedEngine>(platform.network, kHost, kPort);
    start();
    ASSERT_TRUE(station->loaded());
    framesBefore = lan->frames().size();
  }
  void startDirect() {
    WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 0));
    direct = std::make_unique<DialectEngine>(platform, Dialect::DireWolf16, kHost, kPort);
    start("");
    ASSERT_TRUE(station->loaded());
    framesBefore = direct->received.size();
  }
  // The path as typed into the fields.
  void path(const std::string& to, const std::string& via) {
    main().cmbToCall.text = to;
    main().cmbViaCall.text = via;
  }
  // The UI frames ("M" and "V") sent since the start, decoded from the wire.
  std::vector<SentUi> sent() {
    platform.simLoop.run(0.1);
    std::vector<SentUi> out;
    if (lan) {
      const auto frames = lan->frames();
      for (std::size_t i = framesBefore; i < frames.size(); ++i)
        if (auto ui = FromLan(frames[i])) out.push_back(*ui);
    } else if (direct) {
      for (std::size_t i = framesBefore; i < direct->received.size(); ++i)
        if (auto ui = FromFrame(direct->received[i])) out.push_back(*ui);
    }
    return out;
  }
  std::vector<std::string> sentTexts() {
    std::vector<std::string> out;
    for (const SentUi& s : sent())
      out.push_back(s.text);
    return out;
  }
  // The raw bytes of the LAN frames sent since the start.
  std::vector<std::vector<uint8_t>> lanFrames() {
    platform.simLoop.run(0.1);
    const auto frames = lan->frames();
    return {frames.begin() + static_cast<long>(framesBefore), frames.end()};
  }

  MainWindow& main() { return station->mainWindow(); }
  StationConfig& config() { return station->config(); }
  RunState& run() { return station->run(); }
  StationParts& parts() { return station->parts(); }
  std::string meldText() { return parts().meld.window().lblMelding.caption; }

  std::unique_ptr<ScriptedEngine> lan;
  std::unique_ptr<DialectEngine> direct;
  std::size_t framesBefore = 0;

 private:
  static std::optional<SentUi> FromFrame(const AgwFrame& f) {
    if (f.kind != 'M' && f.kind != 'V') return std::nullopt;
    SentUi ui{f.kind, f.callTo, {}, f.data};
    if (f.kind == 'V' && !f.data.empty()) {
      const std::size_t n = static_cast<uint8_t>(f.data[0]);
      for (std::size_t k = 0; k < n && 1 + 10 * (k + 1) <= f.data.size(); ++k)
        ui.via.push_back(CutAtNul(f.data.substr(1 + 10 * k, 10)));
      ui.text = f.data.substr(std::min(f.data.size(), 1 + 10 * n));
    }
    return ui;
  }
  static std::optional<SentUi> FromLan(const std::vector<uint8_t>& bytes) {
    auto header = AgwFrame::decodeHeader(bytes);
    if (!header) return std::nullopt;
    AgwFrame f = *header;
    const std::size_t end = std::min(bytes.size(), kAgwHeaderSize + f.dataLen);
    f.data.assign(bytes.begin() + kAgwHeaderSize, bytes.begin() + static_cast<long>(end));
    return FromFrame(f);
  }
};

}  // namespace tesk::testing
