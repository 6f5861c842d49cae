// The simulated engine's host interface in each dialect: the replies a bare client gets (and
// the requests that get none), the monitoring and raw switches as toggles, writes split anywhere
// on the stream, and the direct-mode client logging on and seeing its own frame reported as "T"
// and coming back through the satellite as "U" with the used digipeater marked.
#include <gtest/gtest.h>

#include "base/text.h"
#include "link/agw_direct.h"
#include "sim/air_frame.h"
#include "sim/sim_engine_bench.h"

namespace tesk::testing {
namespace {

using sim::Dialect;

constexpr const char* kHost = "127.0.0.1";
constexpr int kPort = 8124;

class EngineProtocol : public ::testing::TestWithParam<Dialect> {
 protected:
  EngineProtocol() { ServeOnNetwork(platform, engine, kHost, kPort); }
  Dialect dialect() const { return GetParam(); }
  void run(double seconds) { platform.simLoop.run(seconds); }

  SimPlatform platform;
  sim::SimEngine engine{platform.simLoop, platform.simClock,
                        sim::EngineOptions{GetParam(), 1, 5, QuietPass(0, 10000)}};
};

std::string Kinds(const std::vector<AgwFrame>& frames) {
  std::string out;
  for (const AgwFrame& f : frames)
    out.push_back(f.kind);
  return out;
}

TEST_P(EngineProtocol, AnswersRequestsAsTheRealEngine) {
  engine.server().splitChance = 1.0;  // every write in two parts: the client must reassemble
  BareClient client(platform, kHost, kPort);
  client.request('R');
  client.request('G');
  client.request('g');
  client.request('X', "XX9TK");
  client.request('x', "XX9TK");
  client.request('H');
  client.request('y');
  client.request('Y', "XX9TK", "", "XX1ABC");
  run(0.1);
  std::vector<AgwFrame> got = client.frames();
  const bool qt = dialect() == Dialect::QtSoundModem;
  EXPECT_EQ(Kinds(got), qt ? "RGgxy" : "RGgXyY");
  ASSERT_GE(got.size(), 5u);
  EXPECT_EQ(got[0].data.size(), 8u);
  EXPECT_EQ(got[1].data.back(), '\0');
  EXPECT_EQ(Left(got[1].data, 8), "1;Port1 ");
  EXPECT_EQ(InStr(got[1].data, "Port6 INVALID CHANNEL;") > 0, dialect() == Dialect::DireWolf16);
  EXPECT_EQ(got[2].data.size(), 12u);
  EXPECT_EQ(got[3].data, std::string(1, '\1'));
  EXPECT_EQ(got[3].callFrom, "XX9TK");
  EXPECT_GT(engine.server().counts().splitWrites, 0);

  // Nothing is heard before monitoring is switched on, and a second "m" switches it off again.
  engine.server().splitChance = 0;
  engine.server().hear(*sim::ParseTnc2("XX1ABC>CQ,ARISS*:one"));
  client.request('m');
  run(0.1);
  engine.server().hear(*sim::ParseTnc2("XX1ABC>CQ,ARISS*:two"));
  run(0.1);
  client.request('m');
  client.request('k');
  run(0.1);
  engine.server().hear(*sim::ParseTnc2("XX1ABC>CQ,ARISS*:three"));
  run(0.1);
  got = client.frames();
  ASSERT_EQ(Kinds(got), "UK");
  EXPECT_NE(InStr(got[0].data, "two"), 0);
  EXPECT_NE(InStr(got[1].data, "three"), 0);
  // The raw frame keeps the H bit whatever the monitor text shows.
  const auto* b = reinterpret_cast<const uint8_t*>(got[1].data.data());
  const std::optional<Ax25Frame> raw =
      DecodeAx25(std::span<const uint8_t>(b + 1, got[1].data.size() - 1));
  ASSERT_TRUE(raw);
  EXPECT_TRUE(raw->digipeaters.at(0).repeated);
}

TEST_P(EngineProtocol, MonitorTextsCarryEachEnginesMarksAndTerminators) {
  BareClient client(platform, kHost, kPort);
  engine.server().splitChance = 0;
  client.request('m');
  run(0.1);
  engine.server().hear(*sim::ParseTnc2("XX1ABC>CQ,RS0ISS*,ARISS*,WIDE2-1:hi"));
  run(0.1);
  const std::vector<AgwFrame> got = client.frames();
  ASSERT_EQ(got.size(), 1u);
  const std::string& t = got[0].data;
  const std::string head = Left(t, InStr(t, "<") - 1);
  switch (dialect()) {
    case Dialect::DireWolf16:
      EXPECT_EQ(head, " 1:Fm XX1ABC To CQ Via RS0ISS,ARISS,WIDE2-1 ");
      EXPECT_EQ(Right(t, 4), "hi\r" + std::string(1, '\0'));
      break;
    case Dialect::DireWolfNew:
      EXPECT_EQ(head, " 1:Fm XX1ABC To CQ Via RS0ISS,ARISS*,WIDE2-1 ");
      break;
    case Dialect::QtSoundModem:
      EXPECT_EQ(head, " 1:Fm XX1ABC To CQ Via RS0ISS*,ARISS*,WIDE2-1 ");
      EXPECT_EQ(Right(t, 3), "hi\r");
      break;
    case Dialect::AgwPacketEngine:
      EXPECT_EQ(head, " 1:Fm XX1ABC To CQ Via RS0ISS*,ARISS*,WIDE2-1 ");
      EXPECT_EQ(Right(t, 5), "hi\r\r" + std::string(1, '\0'));
      break;
  }
  EXPECT_NE(InStr(t, "Len=2"), 0);
}

TEST_P(EngineProtocol, DirectModeSeesItsFrameReportedAndRepeated) {
  StationConfig config;
  config.HostName_IP_Default = kHost;
  config.LanPort = kPort;
  RunState runState;
  AgwDirect direct(platform, config, runState);
  ASSERT_NE(direct.AGWStartPoll("XX9TK", "", 5, 0), 0);
  run(0.5);
  EXPECT_EQ(engine.server().connected(), 1u);
  ASSERT_NE(direct.AGWPutData("CQ ARISS", "hello via the sat", 'V', 17, 0), 0);
  run(5);
  std::vector<std::pair<int, std::string>> polled, ports;
  std::string call(25, ' '), text(512, ' ');
  int32_t kind = 0, length = 0, port = 0;
  while (direct.AGWGetData(call, text, kind, length, port) != 0)
    (kind == 'G' ? ports : polled).emplace_back(kind, Left(text, length));
  // The engine's port list, asked at the start, comes as one text per port.
  ASSERT_EQ(ports.size(), 1u);
  EXPECT_EQ(Left(ports[0].second, 6), "Port1 ");
  ASSERT_EQ(polled.size(), 2u);
  EXPECT_EQ(polled[0].first, 'T');
  EXPECT_NE(InStr(polled[0].second, "Fm XX9TK To CQ Via ARISS <"), 0) << polled[0].second;
  EXPECT_EQ(polled[1].first, 'U');
  EXPECT_NE(InStr(polled[1].second, "Fm XX9TK To CQ Via ARISS* <"), 0) << polled[1].second;
  EXPECT_NE(InStr(polled[1].second, "hello via the sat"), 0);
  EXPECT_EQ(engine.counts().ownRepeated, 1);
  direct.AGWClose();
}

INSTANTIATE_TEST_SUITE_P(Dialects, EngineProtocol,
                         ::testing::Values(Dialect::DireWolf16, Dialect::DireWolfNew,
                                           Dialect::QtSoundModem, Dialect::AgwPacketEngine),
                         [](const ::testing::TestParamInfo<Dialect>& i) {
                           return std::string(sim::DialectName(i.param));
                         });

}  // namespace
}  // namespace tesk::testing
