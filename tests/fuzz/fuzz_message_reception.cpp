// libFuzzer target: any header and data through LogAPRSMessages and AutoAckCall, in that order
// as the Monitor calls them, on one station whose message list and sent table live on across
// inputs (so the cap, the duplicate walk and the ack booking are reached). The first byte picks
// the settings; the rest is the header, a 0xFF, then the data. A second form wraps the fuzzed
// parts in a well-formed "Fm CALL To CALL" header and a message address block, to reach the
// answers more often. Nothing may fault or hang.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"

namespace {

struct Bench {
  tesk::SimPlatform platform;
  std::unique_ptr<tesk::Station> station;
  Bench() {
    tesk::StationOptions options;
    options.appPath = "/nonexistent/tesk-fuzz";
    station = std::make_unique<tesk::Station>(platform, options);
    tesk::StationConfig& c = station->config();
    c.YourCallSign = "XX9TK";
    c.AutoAnswerText = "QRV";
    station->mainWindow().cmbToCall.text = "APRS";
    // A few sent rows for the acks to find.
    for (int i = 0; i < 5; ++i) {
      tesk::PendingMessage& r = station->run().PendingMessages[static_cast<std::size_t>(i)];
      r.PendingFor = i % 2 == 0 ? "XX8AB" : "XX7CD-1";
      r.PendingText = ":" + r.PendingFor + "   :hi{0" + std::to_string(i);
    }
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static Bench* bench = new Bench;  // one station for the whole run: the list fills up
  if (size == 0) return 0;
  tesk::StationConfig& c = bench->station->config();
  const uint8_t flags = data[0];
  c.ShowPortInHeader = static_cast<int16_t>(flags % 3);
  c.AckUIViewType = static_cast<int16_t>((flags >> 2) % 3);
  c.LogDigipeatedMessages = static_cast<int16_t>((flags >> 4) & 1);
  c.AutoAnswer = static_cast<int16_t>((flags >> 5) & 1);
  c.ShowUTCInHeader = static_cast<int16_t>((flags >> 6) & 1);
  const std::string rest(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::size_t cut = rest.find('\xFF');
  std::string header = rest.substr(0, cut);
  std::string text = cut == std::string::npos ? std::string() : rest.substr(cut + 1);
  if ((flags & 0x80) != 0) {
    // The well-formed form: the header's first 9 bytes are the sender, the data's first 9 the
    // addressee (often the own call), then the text with a line end and the NUL.
    const std::string from = header.substr(0, 9);
    header = std::string(c.ShowPortInHeader == 2 ? "1:" : "") + "Fm " + from +
             " To APRS Via ARISS* <UI pid=F0 Len=9 >[12:00:00]";
    const std::string to = (flags & 1) != 0 ? std::string("XX9TK    ") : text.substr(0, 9);
    text = ":" + to + ":" + text + "\r\r\n" + std::string(1, '\0') + "    ";
  }
  tesk::MessageReception& reception = bench->station->parts().messageReception;
  reception.LogAPRSMessages(header, text);
  reception.AutoAckCall(header, text);
  return 0;
}
