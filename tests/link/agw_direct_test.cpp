// Direct mode against every engine dialect: the log-on, one frame per poll with none lost,
// frames cut anywhere by the stream, the "*" of used digipeaters rebuilt from raw frames, an
// engine that goes away and comes back, and a stream that declares an impossible length.
#include <gtest/gtest.h>

#include "sim/sim_engine_bench.h"
#include "support/direct_fixture.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class DirectStream : public DirectBench {};

std::string WithoutTime(const std::string& text) {
  const long open = InStr(text, ">[");
  return open > 0 ? Left(text, open + 1) + Mid(text, open + 11) : text;
}

std::vector<uint8_t> Join(const std::vector<std::vector<uint8_t>>& parts) {
  std::vector<uint8_t> out;
  for (const auto& p : parts)
    out.insert(out.end(), p.begin(), p.end());
  return out;
}

TEST_P(DirectStream, LogsOnAndAnswersOnlyWhenTheEngineDoes) {
  EXPECT_TRUE(startUp());
  // Version, registration of the own call, monitoring and raw frames on, the port list; no
  // login without a password.
  EXPECT_EQ(engine.kinds(), "RXmkG");
  EXPECT_EQ(engine.registered, std::vector<std::string>{"XX9TK"});
  EXPECT_TRUE(engine.monitorOn);
  EXPECT_TRUE(engine.rawOn);
  // The usable ports reach the core, one text each; Dire Wolf 1.6's unset channels do not.
  ASSERT_EQ(ports.size(), 1u);
  EXPECT_EQ(ports[0].kind, 'G');
  EXPECT_EQ(ports[0].port, 0);
  EXPECT_EQ(Left(ports[0].value(), 6), "Port1 ");
  EXPECT_EQ(ports[0].value(), CutAtNul(ports[0].text));
  EXPECT_EQ(InStr(ports[0].value(), ";"), 0);
  EXPECT_TRUE(pollAll().empty());  // the replies never reach the core

  direct.AGWClose();
  engine.stop();
  const double before = platform.simLoop.now();
  EXPECT_FALSE(startUp());
  EXPECT_LT(platform.simLoop.now() - before, 1.0);  // refused at once

  // A host that never answers costs the bounded wait, no more.
  platform.network.setSilent(kHost, kPort, true);
  const double silentStart = platform.simLoop.now();
  EXPECT_FALSE(startUp());
  EXPECT_LE(platform.simLoop.now() - silentStart, 3.5);

  // An engine started later is found in the background and logged on.
  platform.network.setSilent(kHost, kPort, false);
  engine.start();
  run(10);
  EXPECT_EQ(engine.accepted, 2);
  EXPECT_TRUE(direct.client().up());
  EXPECT_TRUE(engine.monitorOn && engine.rawOn);

  // Found after the start gave up, the engine's ports still reach the core, once.
  const std::vector<Polled> found = pollAll();
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].kind, 'G');

  // The setup's new start on the same engine keeps the connection and registers a new call;
  // it asks the ports again, as a start does.
  EXPECT_NE(direct.AGWStartPoll("XX9TK-1", "", 7, 0), 0);
  EXPECT_EQ(engine.accepted, 2);
  EXPECT_EQ(engine.registered.back(), "XX9TK-1");
  run(0.1);
  const std::vector<Polled> again = pollAll();
  ASSERT_EQ(again.size(), 1u);
  EXPECT_EQ(again[0].kind, 'G');

  // With a password the login follows the version request; a radio port other than the first
  // is registered as well.
  direct.AGWClose();
  config.Lan_Password = "secret";
  config.AGWPERadioPort = 1;
  ASSERT_TRUE(startUp());
  const std::string kinds = engine.kinds();
  EXPECT_EQ(kinds.substr(kinds.size() - 7), "RPXXmkG");
  const AgwFrame login = sent('P').back();
  ASSERT_EQ(login.data.size(), 510u);
  EXPECT_EQ(CutAtNul(login.data.substr(0, 255)), "XX9TK");
  EXPECT_EQ(CutAtNul(login.data.substr(255)), "secret");
  EXPECT_EQ(sent('X').back().port, 1);
}

TEST_P(DirectStream, OneFramePerPollNoneLostFromABurstOfFifty) {
  ASSERT_TRUE(startUp());
  std::vector<std::vector<uint8_t>> burst;
  for (int i = 0; i < 50; ++i)
    burst.push_back(engine.heardBytes("XX9TK>CQ,RS0ISS*,ARISS:frame " + Format00(i)));
  engine.write(Join(burst));  // one write: 100 engine frames for 50 packets
  run(0.1);
  for (int i = 0; i < 50; ++i) {
    SCOPED_TRACE(i);
    const Polled p = poll();
    ASSERT_EQ(p.result, 1);
    EXPECT_EQ(p.kind, 'U');
    EXPECT_EQ(p.callValue(), "XX9TK");
    EXPECT_EQ(p.value(), " 1:Fm XX9TK To CQ Via RS0ISS*,ARISS <UI pid=F0 Len=8 >[" + clock() +
                             "]\rframe " + Format00(i) + "\r");
  }
  const Polled none = poll();
  EXPECT_EQ(none.result, 0);
  EXPECT_EQ(none.kind, 0);  // a stale connection kind must not act again
}

TEST_P(DirectStream, FramesCutAtEveryByteGiveTheSameFrames) {
  ASSERT_TRUE(startUp());
  const std::vector<uint8_t> bytes =
      Join({engine.heardBytes("XX9TK>CQ,RS0ISS*,ARISS:first"),
            engine.heardBytes("PA3ABC-7>APRS,WIDE1*,WIDE2:=5213.12N/00521.34E-")});
  engine.write(bytes);
  run(0.1);
  std::vector<std::string> reference;
  for (const Polled& p : pollAll())
    reference.push_back(WithoutTime(p.value()));
  ASSERT_EQ(reference.size(), 2u);

  for (std::size_t cut = 1; cut < bytes.size(); ++cut) {
    SCOPED_TRACE("cut at " + std::to_string(cut));
    const std::size_t second = std::min(bytes.size() - 1, cut + 17);
    engine.write({bytes.begin(), bytes.begin() + static_cast<long>(cut)});
    if (second > cut) {
      engine.writeLater(0.01, {bytes.begin() + static_cast<long>(cut),
                               bytes.begin() + static_cast<long>(second)});
    }
    engine.writeLater(0.02,
                      {bytes.begin() + static_cast<long>(std::max(cut, second)), bytes.end()});
    run(0.05);
    const std::vector<Polled> got = pollAll();
    ASSERT_EQ(got.size(), 2u);
    EXPECT_EQ(WithoutTime(got[0].value()), reference[0]);
    EXPECT_EQ(WithoutTime(got[1].value()), reference[1]);
  }
  EXPECT_EQ(engine.accepted, 1);
}

TEST_P(DirectStream, UsedDigipeatersAreMarkedAlikeWhateverTheEngineWrites) {
  ASSERT_TRUE(startUp());
  struct Case {
    std::string air;
    int port;
    std::string text;
  };
  const std::string t = clock();
  const Case cases[] = {
      {"XX9TK>CQ,RS0ISS*,ARISS:Hello", 0,
       " 1:Fm XX9TK To CQ Via RS0ISS*,ARISS <UI pid=F0 Len=5 >[" + t + "]\rHello\r"},
      {"XX9TK>CQ,RS0ISS,ARISS:Hi", 0,
       " 1:Fm XX9TK To CQ Via RS0ISS,ARISS <UI pid=F0 Len=2 >[" + t + "]\rHi\r"},
      {"PA3ABC-7>APRS,WIDE1-1*,WIDE2-2*,WIDE3:x", 1,
       " 2:Fm PA3ABC-7 To APRS Via WIDE1-1*,WIDE2-2*,WIDE3 <UI pid=F0 Len=1 >[" + t + "]\rx\r"},
      {"DL1XYZ>CQ:direct", 0, " 1:Fm DL1XYZ To CQ <UI pid=F0 Len=6 >[" + t + "]\rdirect\r"},
      // Data with a NUL and control bytes: the raw frame gives all of it, whatever the engine
      // cut or filtered in its own text.
      {std::string("XX9TK>CQ,RS0ISS*:A\0B\x01", 21), 0,
       " 1:Fm XX9TK To CQ Via RS0ISS* <UI pid=F0 Len=4 >[" + t + "]\rA" + std::string(1, '\0') +
           "B\x01\r"},
      {"XX9TK>CQ,RS0ISS*:", 0, " 1:Fm XX9TK To CQ Via RS0ISS* <UI pid=F0 Len=0 >[" + t + "]\r\r"},
  };
  for (const Case& c : cases)
    engine.hear(c.air, c.port);
  run(0.1);
  const std::vector<Polled> got = pollAll();
  ASSERT_EQ(got.size(), std::size(cases));
  for (std::size_t i = 0; i < got.size(); ++i) {
    SCOPED_TRACE(cases[i].air);
    EXPECT_EQ(got[i].value(), cases[i].text);
    EXPECT_EQ(got[i].port, cases[i].port);
    // The fixed texts: the value, a NUL, blanks up to the fixed length.
    EXPECT_EQ(got[i].text, cases[i].text + '\0' + Space(511 - Len(cases[i].text)));
    EXPECT_EQ(got[i].call.size(), 25u);
    EXPECT_EQ(got[i].call.substr(Len(got[i].callValue()) + 1), Space(24 - Len(got[i].callValue())));
  }
}

TEST_P(DirectStream, AnEngineThatGoesAwayIsFoundAgainAndItsLinkReportedOnce) {
  ASSERT_TRUE(startUp());
  put('c', "XX9ABC");
  run(3);
  ASSERT_EQ(poll().kind, 'c');
  engine.hear("XX9TK>CQ,RS0ISS*:before");
  run(0.1);

  engine.stop();
  run(0.1);
  const std::vector<Polled> got = pollAll();
  ASSERT_EQ(got.size(), 2u);
  EXPECT_EQ(got[0].kind, 'U');  // what came before the drop is still there
  EXPECT_EQ(got[1].kind, 'd');
  EXPECT_EQ(got[1].callValue(), "XX9ABC");
  EXPECT_EQ(got[1].value(), "*** DISCONNECTED From Station XX9ABC\r");
  EXPECT_EQ(put('D', "XX9ABC", "lost"), 0);

  run(20);  // the engine stays away: nothing comes, nobody is told
  EXPECT_TRUE(pollAll().empty());
  EXPECT_TRUE(platform.simDialogs.shown.empty());
  EXPECT_TRUE(platform.simViews.notices.empty());

  engine.start();
  run(4);
  EXPECT_EQ(engine.accepted, 2);
  EXPECT_TRUE(engine.monitorOn && engine.rawOn);
  const std::string kinds = engine.kinds();
  EXPECT_EQ(std::count(kinds.begin(), kinds.end(), 'R'), 2);
  engine.hear("XX9TK>CQ,RS0ISS*:after");
  run(0.1);
  const Polled again = poll();
  EXPECT_EQ(again.kind, 'U');
  EXPECT_NE(again.value().find("RS0ISS*"), std::string::npos);
}

TEST_P(DirectStream, ADeclaredLengthOverTheMaximumReopensTheConnection) {
  ASSERT_TRUE(startUp());
  AgwFrame bad;
  bad.kind = 'U';
  std::vector<uint8_t> badBytes = bad.encode();
  const uint32_t huge = AgwClient::kMaxDataLen + 1;
  for (int i = 0; i < 4; ++i)
    badBytes[28 + i] = static_cast<uint8_t>(huge >> (8 * i));
  AgwFrame largest;  // exactly the maximum is still a frame (of a kind the core never sees)
  largest.kind = 'y';
  largest.data = std::string(AgwClient::kMaxDataLen, 'x');
  engine.write(Join({engine.heardBytes("XX9TK>CQ:good"), largest.encode(), badBytes,
                     std::vector<uint8_t>(40, 0x55), engine.heardBytes("XX9TK>CQ:lost")}));
  run(1);
  EXPECT_EQ(engine.accepted, 2);
  EXPECT_TRUE(direct.client().up());
  engine.hear("XX9TK>CQ:fresh");
  run(0.1);
  const std::vector<Polled> got = pollAll();
  ASSERT_EQ(got.size(), 2u);
  EXPECT_EQ(Right(got[0].value(), 5), "good\r");
  EXPECT_EQ(Right(got[1].value(), 6), "fresh\r");
}

INSTANTIATE_TEST_SUITE_P(Dialects, DirectStream, TESK_ALL_DIALECTS);

// The load pass with an engine there: no questions, the "P" frame, and the core's texts.
class DirectStartup : public StationTest {};

TEST_F(DirectStartup, LoadPassFindsTheEngineAndAsksNothing) {
  DialectEngine engine(platform, Dialect::DireWolf16, kHost, kPort);
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 0));
  start("");
  ASSERT_TRUE(station->loaded());
  auto& direct = station->parts().direct;
  EXPECT_EQ(direct.startPolls(), 1);
  EXPECT_EQ(direct.closes(), 0);
  EXPECT_EQ(direct.puts(), 1);
  ASSERT_EQ(platform.simDialogs.shown.size(), 1u);  // the call sign only
  EXPECT_NE(monitorText(), "RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!");
  EXPECT_EQ(engine.registered, std::vector<std::string>{"XX9TK"});
  station->Einde();
  platform.simLoop.run(0.1);
  EXPECT_FALSE(engine.clientConnected());
}

// The engine's port lines in the Monitor and in the engine status, once, after the start.
void ExpectPortsShown(Station& station, SimPlatform& platform, const std::string& line) {
  platform.simLoop.run(2);
  const std::string monitor = station.mainWindow().txtMonitor.text();
  const std::string status = station.run().EngineStatus;
  EXPECT_NE(InStr(monitor, line + "\r\n"), 0) << monitor;
  EXPECT_EQ(InStr(InStr(monitor, line) + 1, monitor, line), 0) << "once: " << monitor;
  EXPECT_NE(InStr(status, line + " - "), 0) << status;
  EXPECT_EQ(InStr(monitor, "INVALID"), 0) << monitor;
  EXPECT_EQ(InStr(status, "INVALID"), 0) << status;
}

TEST_F(DirectStartup, DireWolfPortsShowInTheMonitorAndReachTheEngineStatus) {
  DialectEngine engine(platform, Dialect::DireWolf16, kHost, kPort);
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 0));
  start("");
  ASSERT_TRUE(station->loaded());
  ExpectPortsShown(*station, platform, "Port1 first soundcard mono");
}

TEST_F(DirectStartup, TheSimulatedEnginesPortsShowInTheMonitorAndReachTheEngineStatus) {
  sim::SimEngine engine(platform.simLoop, platform.simClock,
                        sim::EngineOptions{sim::Dialect::AgwPacketEngine, 1, 1, QuietPass(0, 0)});
  ServeOnNetwork(platform, engine, kHost, kPort);
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 0));
  start("");
  ASSERT_TRUE(station->loaded());
  ExpectPortsShown(*station, platform, "Port1 Simulated sound card 1200 baud");
}

}  // namespace
}  // namespace tesk::testing
