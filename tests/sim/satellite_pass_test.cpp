// The satellite's digipeater: it repeats only while it is up, only a UI frame whose next unused
// path entry is its call or alias, with that entry marked; its willingness follows the elevation.
// Through the engine, an own frame is reported as "T" and, when repeated, comes back as "U".
#include <gtest/gtest.h>

#include "base/text.h"
#include "sim/air_frame.h"
#include "sim/sim_engine_bench.h"

namespace tesk::testing {
namespace {

TEST(SatellitePass, RepeatsOnlyItsOwnPathEntryWhileUp) {
  const sim::Scenario s = QuietPass(100, 200);
  const sim::SatellitePass pass(s);
  std::mt19937 rng(3);
  const auto repeat = [&](const std::string& tnc2, double t) -> std::string {
    const std::optional<Ax25Frame> out = pass.repeat(*sim::ParseTnc2(tnc2), t, rng);
    return out ? sim::FormatTnc2(*out) : "-";
  };
  EXPECT_EQ(repeat("XX1ABC>CQ,ARISS:x", 50), "-");  // below the horizon
  EXPECT_EQ(repeat("XX1ABC>CQ,ARISS:x", 150), "XX1ABC>CQ,ARISS*:x");
  EXPECT_EQ(repeat("XX1ABC>CQ,RS0ISS:x", 150), "XX1ABC>CQ,RS0ISS*:x");
  EXPECT_EQ(repeat("XX1ABC>CQ,APRSAT,WIDE2-1:x", 150), "XX1ABC>CQ,APRSAT*,WIDE2-1:x");
  EXPECT_EQ(repeat("XX1ABC>CQ,WIDE1-1*,ARISS:x", 150), "XX1ABC>CQ,WIDE1-1,ARISS*:x");
  EXPECT_EQ(repeat("XX1ABC>CQ,WIDE2-1,ARISS:x", 150), "-");  // someone else's turn first
  EXPECT_EQ(repeat("XX1ABC>CQ,ARISS*:x", 150), "-");         // already repeated
  EXPECT_EQ(repeat("XX1ABC>CQ:x", 150), "-");
  EXPECT_EQ(repeat("XX1ABC>CQ,ARISS:x", 250), "-");                            // after LOS
  EXPECT_EQ(repeat("XX1ABC>CQ,ARISS:x", 100000 + 150), "XX1ABC>CQ,ARISS*:x");  // next cycle
  Ax25Frame iFrame = *sim::ParseTnc2("XX1ABC>CQ,ARISS:x");
  iFrame.control = 0x00;
  EXPECT_FALSE(pass.repeat(iFrame, 150, rng));

  // Willingness rises to the top of the pass and falls again, the same on both sides.
  sim::Scenario curve = QuietPass(100, 200);
  curve.repeatAtHorizon = 0.2;
  curve.repeatAtTop = 0.9;
  const sim::SatellitePass p(curve);
  EXPECT_DOUBLE_EQ(p.repeatChance(100), 0.2);
  EXPECT_NEAR(p.repeatChance(150), 0.9, 1e-9);
  EXPECT_LT(p.repeatChance(120), p.repeatChance(140));
  EXPECT_NEAR(p.repeatChance(120), p.repeatChance(180), 1e-9);
  EXPECT_EQ(p.repeatChance(99), 0.0);
  int repeated = 0;
  for (int i = 0; i < 1000; ++i)
    if (p.repeat(*sim::ParseTnc2("XX1ABC>CQ,ARISS:x"), 105, rng)) ++repeated;
  EXPECT_GT(repeated, 200);
  EXPECT_LT(repeated, 400);
}

TEST(SatellitePass, OwnFramesComeBackOnlyThroughTheSatellite) {
  SimPlatform platform;
  sim::SimEngine engine(platform.simLoop, platform.simClock,
                        sim::EngineOptions{sim::Dialect::AgwPacketEngine, 1, 9, QuietPass(10, 20)});
  ServeOnNetwork(platform, engine, "127.0.0.1", 8125);
  engine.server().splitChance = 0;
  BareClient client(platform, "127.0.0.1", 8125);
  client.request('m');
  const auto send = [&](const std::string& via) {
    std::string data(1, '\1');
    std::string call = via;
    call.resize(10, '\0');
    client.request('V', "XX9TK", data + call + "test", "CQ");
  };
  send("ARISS");  // satellite still down
  platform.simLoop.run(5);
  std::vector<AgwFrame> got = client.frames();
  ASSERT_EQ(got.size(), 1u);
  EXPECT_EQ(got[0].kind, 'T');

  platform.simLoop.run(10);  // up now
  send("WIDE2-1");
  send("ARISS");
  platform.simLoop.run(4);
  got = client.frames();
  std::string kinds;
  for (const AgwFrame& f : got)
    kinds.push_back(f.kind);
  ASSERT_EQ(kinds, "TTU");
  EXPECT_NE(InStr(got[2].data, " 1:Fm XX9TK To CQ Via ARISS* <UI pid=F0 Len=4 >"), 0)
      << got[2].data;
  EXPECT_EQ(engine.counts().ownSent, 3);
  EXPECT_EQ(engine.counts().ownRepeated, 1);
}

}  // namespace
}  // namespace tesk::testing
