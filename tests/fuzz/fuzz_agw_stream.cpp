// Fuzz target for direct mode's receive path: arbitrary engine bytes, cut into reads of
// arbitrary sizes, through the client's stream reassembly, the pairing of raw frames with
// monitor texts and the rebuilt texts, down to the fixed texts the core gets. A second mode
// writes well-formed frames of chosen kinds with fuzzed data, to reach the pairing and the
// monitor text parser more often than random headers would.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "link/agw_direct.h"
#include "platform/sim/sim_platform.h"
#include "support/dialect_engine.h"

namespace {

constexpr char kKinds[] = {'K', 'U', 'I', 'S', 'T', 'C', 'D', 'd', 'R', 'X', 'G', 'y'};

std::vector<uint8_t> Frame(char kind, const std::string& data) {
  tesk::AgwFrame f;
  f.kind = kind;
  f.callFrom = "XX9TK";
  f.callTo = "CQ";
  f.data = kind == 'K' ? std::string(1, '\0') + data : data;
  return f.encode();
}

// Mode 1: pieces separated by 0xFF; a piece's first byte picks the kind, the rest is data.
std::vector<std::vector<uint8_t>> Structured(const uint8_t* data, size_t size) {
  std::vector<std::vector<uint8_t>> writes;
  std::string piece;
  auto flush = [&] {
    if (!piece.empty()) {
      const char kind = kKinds[static_cast<unsigned char>(piece[0]) % sizeof kKinds];
      writes.push_back(Frame(kind, piece.substr(1)));
    }
    piece.clear();
  };
  for (size_t i = 0; i < size; ++i) {
    if (data[i] == 0xFF) {
      flush();
    } else {
      piece += static_cast<char>(data[i]);
    }
  }
  flush();
  return writes;
}

// Mode 0: the raw bytes, cut into reads whose sizes the bytes themselves give.
std::vector<std::vector<uint8_t>> Cut(const uint8_t* data, size_t size) {
  std::vector<std::vector<uint8_t>> writes;
  size_t at = 0;
  while (at < size) {
    const size_t n = std::min<size_t>(size - at, 1 + data[at] % 64);
    writes.emplace_back(data + at, data + at + n);
    at += n;
  }
  return writes;
}

void Check(bool ok) {
  if (!ok) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  tesk::SimPlatform platform;
  tesk::StationConfig config;
  tesk::RunState run;
  config.LanPort = 8000;
  // The Dire Wolf test engine answers the log-on; the fuzzed bytes are written as its own.
  tesk::testing::DialectEngine engine(platform, tesk::testing::Dialect::DireWolf16, "127.0.0.1",
                                      8000);
  engine.start();
  tesk::AgwDirect direct(platform, config, run);
  Check(direct.AGWStartPoll("XX9TK", "", 5, 0) != 0);
  const auto writes = (data[0] & 1) ? Structured(data + 1, size - 1) : Cut(data + 1, size - 1);
  for (const auto& w : writes) {
    if (engine.clientConnected()) engine.write(w);
    platform.simLoop.run(0.002);
  }
  platform.simLoop.run(0.5);
  std::string call, text;
  int32_t kind = 0, length = 0, port = 0;
  while (direct.AGWGetData(call, text, kind, length, port) != 0) {
    Check(call.size() == 25 && text.size() == 512);
    Check(length >= 0 && length <= 512 && port >= 0 && port <= 255);
    // G: one of the engine's ports, handed on after the log-on.
    Check(std::string("UISTcDdG").find(static_cast<char>(kind)) != std::string::npos);
  }
  return 0;
}
