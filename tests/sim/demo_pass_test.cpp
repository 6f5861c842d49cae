// A whole default pass at a high time scale through a station in demo form: frames of every
// kind of traffic reach the Monitor, repeated ones with the satellite's mark, neighbours heard
// directly without it, and the same seed gives the same run to the byte.
#include <gtest/gtest.h>

#include "base/text.h"
#include "sim/sim_engine_bench.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

struct PassRun {
  float ownDigipeated = 0;
  std::size_t heard = 0;
  std::string monitor, caption;
  sim::PassCounts counts;
  int monitored = 0;
};

PassRun RunDefaultPass(uint32_t seed, bool sendOwn = false) {
  SimPlatform platform;
  TempDir home;
  sim::SimEngine engine(platform.simLoop, platform.simClock,
                        sim::EngineOptions{sim::Dialect::DireWolf16, 20, seed, DefaultPass()});
  ServeOnNetwork(platform, engine, "127.0.0.1", 8126);
  StationOptions options;
  options.appPath = home.path();
  options.overrideHost = "127.0.0.1";
  options.overridePort = 8126;
  options.demo = true;
  Station station(platform, options);
  platform.simDialogs.answers.push_back("XX9TK");
  station.Start();
  // The station puts an own frame via the satellite on the air every 30 s of the pass.
  for (int i = 1; sendOwn && i <= 26; ++i)
    platform.simLoop.schedule(i * 1.5, [&station, i] {
      const std::string text = "Own frame " + std::to_string(i);
      station.parts().direct.AGWPutData("CQ ARISS", text, 'V', static_cast<int32_t>(text.size()),
                                        0);
    });
  platform.simLoop.run(40);  // 800 s of the pass: AOS to LOS and a little more
  PassRun r;
  r.ownDigipeated = station.parts().digipeat.DigipeatedTotal;
  r.heard = station.mainWindow().LstMHeardList.list.size();
  r.monitor = station.mainWindow().txtMonitor.text();
  r.caption = station.mainWindow().form.caption;
  r.counts = engine.counts();
  r.monitored = engine.server().counts().monitored;
  return r;
}

int Count(const std::string& text, const std::string& what) {
  int n = 0;
  for (long at = InStr(text, what); at > 0; at = InStr(at + 1, text, what))
    ++n;
  return n;
}

TEST(DemoPass, AWholePassReachesTheMonitorTheSameWayTwice) {
  const PassRun a = RunDefaultPass(11);
  EXPECT_EQ(a.caption, "TESK - simulated satellite pass");
  EXPECT_GT(a.counts.repeated, 20);
  EXPECT_GT(a.counts.direct, 5);
  EXPECT_LT(a.counts.repeated, a.counts.sent);  // the satellite misses some
  // Every frame the engine wrote to its client is on the Monitor, each with its header; the
  // repeated ones (but those before the station connected) with the satellite's mark.
  EXPECT_EQ(Count(a.monitor, "Fm XX"), a.monitored);
  const int marked =
      Count(a.monitor, "ARISS*") + Count(a.monitor, "RS0ISS*") + Count(a.monitor, "APRSAT*");
  EXPECT_GT(marked, 20);
  EXPECT_LE(marked, a.counts.repeated);
  for (const char* seen :
       {"Fm XX1ABC To APRS Via ARISS*", "Fm XX7STU To CQ <", "Fm XX6PQR To APRS Via WIDE2-1 <",
        ":Heard    :", ":ack", "{", "=/", "CQ CQ via ISS de XX1ABC JO22NB"})
    EXPECT_NE(InStr(a.monitor, seen), 0) << seen;

  EXPECT_GE(a.heard, 5u);  // the other stations fill the heard list

  const PassRun b = RunDefaultPass(11);
  EXPECT_EQ(a.monitor, b.monitor);
  EXPECT_EQ(a.counts.repeated, b.counts.repeated);
  const PassRun c = RunDefaultPass(12);
  EXPECT_NE(a.monitor, c.monitor);
}

TEST(DemoPass, OwnFramesRepeatedDuringThePassAreCountedAsDigipeated) {
  const PassRun a = RunDefaultPass(11, true);
  EXPECT_GE(a.ownDigipeated, 5);  // the satellite misses some near the horizon
  EXPECT_LE(a.ownDigipeated, 26);
  EXPECT_NE(InStr(a.monitor, "Fm XX9TK To CQ Via ARISS*"), 0);
  const PassRun b = RunDefaultPass(11, true);
  EXPECT_EQ(a.ownDigipeated, b.ownDigipeated);
  EXPECT_EQ(a.monitor, b.monitor);
}

}  // namespace
}  // namespace tesk::testing
