// LAN mode in virtual time: the connect sequence on the wire, refusals, time-outs, the retry
// from the one-second clock, and a link that the engine closes.
#include <gtest/gtest.h>

#include "link/agw_frame.h"
#include "support/scripted_engine.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class TcpLinkTest : public StationTest {
 protected:
  void writeLan(int registerCall = 0, const std::string& password = "") {
    WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1, registerCall, password));
  }
  const RunState& run() { return station->run(); }
};

TEST_F(TcpLinkTest, ConnectSequenceSendsLoginRegisterPortsAndMonitorInOrder) {
  writeLan(-1, "secret");
  ScriptedEngine engine(platform.network, kHost, kPort);
  start();
  ASSERT_TRUE(station->loaded());
  ASSERT_EQ(engine.kinds(), "PXGm");
  const auto f = engine.frames();
  EXPECT_EQ(f[0].size(), 546u);
  EXPECT_EQ(f[0], BuildPassword(0, "P", "XX9TK", "secret"));
  EXPECT_EQ(f[1], BuildReqRegInfo(0, "X", "XX9TK"));
  EXPECT_EQ(f[2], BuildReqRegInfo(0, "G", ""));
  EXPECT_EQ(f[3], BuildMonitor());
  const std::string m = monitorText();
  EXPECT_NE(m.find("Detecting...Please wait\r\nConnected to Server 127.0.0.1\r\n"
                   "Authorizing Password of UserID XX9TK...\r\nXX9TK Registered.\r\n"),
            std::string::npos)
      << m;
  EXPECT_EQ(run().LinkStatus, "Connected and listening.");
  EXPECT_EQ(station->mainWindow().frmLogoTitle.caption, "+LAN");
  EXPECT_EQ(station->mainWindow().frmLogoTitle.backColor, RGB(0, 170, 0));
  // In TCP mode the port list starts with the decoder's NULs, so it is kept but not shown.
  EXPECT_EQ(run().EnginePortList.substr(4, 7), "2;Port1");
  EXPECT_EQ(m.find("Port1"), std::string::npos);
}

TEST_F(TcpLinkTest, NoPasswordAndNoRegisterSendOnlyPortsAndMonitor) {
  writeLan();
  ScriptedEngine engine(platform.network, kHost, kPort);
  start();
  EXPECT_EQ(engine.kinds(), "Gm");
  // A received frame after monitoring is on reaches the Monitor.
  engine.sendMonitor("PA3ABC", "CQ", "Hello via ARISS");
  platform.simLoop.run(1.0);
  EXPECT_NE(monitorText().find("Hello via ARISS"), std::string::npos) << monitorText();
}

TEST_F(TcpLinkTest, RefusedConnectionGoesRedAndRetriesAfter61Seconds) {
  writeLan();
  start();
  ASSERT_TRUE(station->loaded());
  EXPECT_NE(monitorText().find("Could not connect to Server 127.0.0.1\r\n"), std::string::npos);
  EXPECT_EQ(run().LinkStatus, "Error Winsock State0");
  EXPECT_EQ(station->mainWindow().frmLogoTitle.backColor, 255);
  EXPECT_EQ(platform.network.connectAttempts, 1);
  // The engine comes up half a minute later; the clock picks it up at its next attempt.
  platform.simLoop.run(30);
  ScriptedEngine engine(platform.network, kHost, kPort);
  platform.simLoop.run(25);
  EXPECT_EQ(platform.network.connectAttempts, 1);
  platform.simLoop.run(10);
  EXPECT_EQ(platform.network.connectAttempts, 2);
  EXPECT_EQ(engine.kinds(), "Gm");
  EXPECT_EQ(run().LinkStatus, "Connected and listening.");
  platform.simLoop.run(1.5);
  EXPECT_EQ(station->mainWindow().frmLogoTitle.backColor, RGB(0, 170, 0));
}

TEST_F(TcpLinkTest, SilentHostTimesOutAfterTenSeconds) {
  writeLan();
  platform.network.setSilent(kHost, kPort, true);
  make();
  platform.simDialogs.answers.push_back("XX9TK");
  const double before = platform.simLoop.now();
  station->Start();
  EXPECT_EQ(run().LinkStatus.rfind("Error", 0), 0u);
  EXPECT_NE(monitorText().find("Connection retry time-out to 127.0.0.1\r\nCheck your 'Software "
                               "Modem' and LAN settings on client or server PC.\r\n"),
            std::string::npos);
  // The splash second, the ten-second limit, and the short yields around them.
  EXPECT_GE(platform.simLoop.now() - before, 11.0);
  EXPECT_LT(platform.simLoop.now() - before, 11.5);
}

TEST_F(TcpLinkTest, EngineClosingGivesClosedAndWaitingThenSendersFindItClosed) {
  writeLan();
  ScriptedEngine engine(platform.network, kHost, kPort);
  start();
  engine.closeConnection();
  platform.simLoop.run(0.1);
  EXPECT_EQ(run().LinkStatus, "Closed and waiting");
  // "Closed and waiting" is not an error: the clock does not retry on it.
  platform.simLoop.run(70);
  EXPECT_EQ(platform.network.connectAttempts, 1);
  TcpLink& link = station->parts().tcpLink;
  link.AGWWinSockControlUI(0, "", "XX9TK", "CQ", "hello", "");
  ASSERT_FALSE(platform.simViews.notices.empty());
  EXPECT_EQ(platform.simViews.notices.back(),
            "Could not establish connection with Server!\r\nCurrent LAN Settings: "
            "Host=127.0.0.1 -- Port=8123\r\nBe sure the settings are correct and a 'Software "
            "Modem' is running on the Server. Err nr:40006");
  EXPECT_EQ(run().LinkStatus, "Error connecting Server");
  link.AGWWinsockReqRegInfo(0, "G", "");
  EXPECT_EQ(run().LinkStatus, "Error Winsock State 0");
  // Now the status is an error: the clock tries again 61 seconds later.
  platform.simLoop.run(62);
  EXPECT_EQ(platform.network.connectAttempts, 2);
  EXPECT_EQ(run().LinkStatus, "Connected and listening.");
}

}  // namespace
}  // namespace tesk::testing
