// A message of the console through the default pass at a high time scale: the station it is
// for acks it over the satellite, the ack shows in the Monitor and answers the message.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/text.h"
#include "sim/sim_engine_bench.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

TEST(MessageDemoPass, AStationOfThePassAcksTheConsolesMessage) {
  SimPlatform platform;
  TempDir home;
  sim::SimEngine engine(platform.simLoop, platform.simClock,
                        sim::EngineOptions{sim::Dialect::DireWolf16, 20, 11, DefaultPass()});
  ServeOnNetwork(platform, engine, "127.0.0.1", 8127);
  StationOptions options;
  options.appPath = home.path();
  options.overrideHost = "127.0.0.1";
  options.overridePort = 8127;
  options.demo = true;
  Station station(platform, options);
  platform.simDialogs.answers.push_back("XX9TK");
  station.Start();
  station.config().AckUIViewType = 2;
  station.config().AckRetryIntervalMs = 1000;  // 20 s of the pass
  platform.simLoop.run(12);                    // into the pass, the satellite high
  station.consoleLine(":to APRS");
  station.consoleLine(":via ARISS");
  station.consoleLine(":for XX1ABC");
  station.consoleLine(":msg Hello from the console");
  platform.simLoop.run(8);
  const std::string monitor = station.mainWindow().txtMonitor.text();
  EXPECT_NE(InStr(monitor, ":XX1ABC   :Hello from the console [TESK]{00"), 0);
  const long ack = InStr(monitor, ":XX9TK    :ack00");
  ASSERT_NE(ack, 0) << monitor;
  // Its header is the station's, repeated by the satellite.
  const long header = InStrRev(Left(monitor, ack), "Fm ");
  EXPECT_EQ(Mid(monitor, header, 28), "Fm XX1ABC To APRS Via ARISS*");
  // The ack answers the message: no more retries, Y in the sent list; and, repeated by the
  // satellite, it is stored with the factory [Log Digipeated Messages].
  EXPECT_EQ(station.run().PendingMessages[0].PendingDone, 100);
  const RunState& run = station.run();
  EXPECT_NE(std::find_if(run.MessageLog.begin(), run.MessageLog.begin() + run.MessageLogCount,
                         [](const std::string& entry) {
                           return InStr(entry, "From:XX1ABC    | To:XX9TK     | Message:ack00") > 0;
                         }),
            run.MessageLog.begin() + run.MessageLogCount)
      << run.MessageLog[0];
}

}  // namespace
}  // namespace tesk::testing
