// The LAN settings window driven as an operator would: its load from the file, the password
// box, the status label, and Apply's outcomes (reconnect at once, restart asked, invalid entry
// after the save, remembered hosts capped), and Cancel.
#include "link/lan_setup.h"

#include <gtest/gtest.h>

#include "link/lan_settings_file.h"
#include "support/scripted_engine.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class LanSetupTest : public StationTest {
 protected:
  // A station that has not been started: only the program folder is known.
  LanSetup& idle() {
    make();
    station->run().AppPath = home.path();
    return lan();
  }
  LanSetup& lan() { return station->parts().lanSetup; }
  LanSetupWindow& w() { return lan().window(); }
  // Writes the LAN file from a config, as the window itself would.
  void writeLan(const std::array<std::string, 5>& hosts, int16_t lanMode,
                const std::string& password = "", int16_t flags = 0) {
    StationConfig c;
    RunState r;
    c.HostName_IP_Default = kHost;
    c.HostName_IP = hosts;
    c.LanPort = kPort;
    c.Lan_Password = password;
    c.RegisterCall = flags;
    c.Emulate_TXFrames_On_SlowNetPC = flags;
    r.LanMode = lanMode;
    SaveLANINI(c, r, home.path());
  }
  std::vector<ShownBox>& boxes() { return platform.simDialogs.shown; }
};

TEST_F(LanSetupTest, OpeningReadsTheFileAgainAndFillsEveryControl) {
  writeLan({"engine.local", "", "192.0.2.9", "", ""}, 1, "pw", -1);
  idle();
  station->config().AGWPERXPort = 6;
  station->config().AGWPERadioPort = 1;
  station->config().LanPort = 1;  // changed in memory: the window shows the file
  lan().Show();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "LAN_Setup");
  EXPECT_TRUE(w().form.loaded && w().form.visible);
  EXPECT_EQ(w().TxtPassword.text, "pw");
  EXPECT_TRUE(w().ChkPassword.checked());
  EXPECT_TRUE(w().TxtPassword.enabled);
  EXPECT_TRUE(w().chkEnableLAN.checked());
  EXPECT_TRUE(w().chkRegisterCall.checked());
  EXPECT_TRUE(w().chkForceDisplayTXFrames.checked());
  EXPECT_TRUE(boxes().empty());  // the TX-frames note is not shown by the load
  EXPECT_EQ(w().cmbLANIPAddress.list, (std::vector<std::string>{"engine.local", "192.0.2.9"}));
  EXPECT_EQ(w().cmbLANIPAddress.text, "127.0.0.1");
  EXPECT_EQ(w().txtAGWLANPort.text, "8123");
  EXPECT_EQ(w().cmbRX.list, (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "All"}));
  EXPECT_EQ(w().cmbTX.list, (std::vector<std::string>{"1", "2", "3", "4", "5", "6"}));
  EXPECT_EQ(w().cmbRX.text, "All");
  EXPECT_EQ(w().cmbTX.text, "2");
  EXPECT_EQ(w().Label4.caption, "LAN Mode not active. TESK running in Normal Mode");
  EXPECT_EQ(w().chkEnableLAN.toolTip, "Enable LAN for AGW or use AGW DLL");
  EXPECT_EQ(w().ChkPassword.toolTip, "Password (this option has not been tested)");

  w().ChkPassword.value = 0;
  lan().ChkPassword_Click();
  EXPECT_FALSE(w().TxtPassword.enabled);

  // An empty password leaves the box unchecked and the text box off.
  lan().Command2_Click();
  writeLan({"", "", "", "", ""}, 0);
  lan().Show();
  EXPECT_FALSE(w().ChkPassword.checked());
  EXPECT_FALSE(w().TxtPassword.enabled);
  EXPECT_FALSE(w().chkEnableLAN.checked());
  EXPECT_TRUE(w().cmbLANIPAddress.list.empty());
}

TEST_F(LanSetupTest, StatusLabelFollowsTheLinkOnItsTimerAndTxFramesNoteExplainsItself) {
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
  ScriptedEngine engine(platform.network, kHost, kPort);
  start();
  lan().Show();
  EXPECT_EQ(w().Label4.caption, "LAN Mode not active. TESK running in Normal Mode");
  platform.simLoop.run(1.1);
  EXPECT_EQ(w().Label4.caption, "LAN Mode Active. Status: Connected and listening.");
  station->run().LanMode = 0;
  platform.simLoop.run(1.0);
  EXPECT_EQ(w().Label4.caption, "LAN Mode not active. TESK running in Normal Mode");
  // Started in normal mode: the label keeps what it shows.
  station->run().LanModeAtStart = 0;
  station->run().LanMode = -1;
  platform.simLoop.run(1.0);
  EXPECT_EQ(w().Label4.caption, "LAN Mode not active. TESK running in Normal Mode");
  // A closed window's timer stops.
  lan().Command2_Click();
  EXPECT_FALSE(lan().Timer1().enabled());

  lan().Show();
  w().chkForceDisplayTXFrames.value = 1;
  lan().chkForceDisplayTXFrames_Click();
  ASSERT_EQ(boxes().size(), 2u);  // after the call sign's
  EXPECT_EQ(boxes()[1].title, "Always display TX Frames");
  EXPECT_EQ(boxes()[1].text.rfind("Enable only when you don't see your own (or some) TX-frames "
                                  "being displayed.\r\nCause: probably do to your LAN being a bit "
                                  "to slow to receive the sent TX-frames",
                                  0),
            0u);
  w().chkForceDisplayTXFrames.value = 0;
  lan().chkForceDisplayTXFrames_Click();
  EXPECT_EQ(boxes().size(), 2u);
}

TEST_F(LanSetupTest, NewPortInLanModeReconnectsAtOnceWithTheNewLogin) {
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
  ScriptedEngine first(platform.network, kHost, kPort);
  ScriptedEngine second(platform.network, kHost, kPort + 1);
  start();
  ASSERT_EQ(first.kinds(), "Gm");
  lan().Show();
  w().txtAGWLANPort.text = " 8124 ";
  w().ChkPassword.value = 1;
  lan().ChkPassword_Click();
  w().TxtPassword.text = "  secret ";
  w().chkRegisterCall.value = 1;
  w().cmbTX.listIndex = 2;
  lan().Command1_Click();
  platform.simLoop.run(0.01);
  EXPECT_EQ(second.kinds(), "PXGm");
  EXPECT_EQ(station->run().LinkStatus, "Connected and listening.");
  EXPECT_EQ(station->config().AGWPERadioPort, 2);
  EXPECT_EQ(station->config().Lan_Password, "secret");
  EXPECT_TRUE(boxes().size() == 1 && boxes()[0].kind == "input");  // only the call sign
  EXPECT_EQ(platform.simViews.notices.front(), "Activating LAN Settings");
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "LAN_Setup");
  StationConfig c;
  RunState r;
  LoadLANINI(c, r, home.path());
  EXPECT_EQ(c.LanPort, 8124);
  EXPECT_EQ(c.Lan_Password, "secret");
  EXPECT_EQ(c.RegisterCall, -1);
  EXPECT_EQ(r.LanMode, -1);
}

TEST_F(LanSetupTest, AChangeOfModeIsSavedAndAsksForARestart) {
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
  ScriptedEngine engine(platform.network, kHost, kPort);
  start();
  const int attempts = platform.network.connectAttempts;
  lan().Show();
  w().chkEnableLAN.value = 0;
  lan().Command1_Click();
  ASSERT_EQ(boxes().size(), 2u);
  EXPECT_EQ(boxes()[1].title, "Lan Mode Deactivated");
  EXPECT_EQ(boxes()[1].text, "Please restart TESK to initiate Normal Mode.");
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(platform.network.connectAttempts, attempts);
  StationConfig c;
  RunState r;
  LoadLANINI(c, r, home.path());
  EXPECT_EQ(r.LanMode, 0);

  // Started in normal mode, LAN mode asked for.
  station->run().LanModeAtStart = 0;
  lan().Show();
  w().chkEnableLAN.value = 1;
  lan().Command1_Click();
  ASSERT_EQ(boxes().size(), 3u);
  EXPECT_EQ(boxes()[2].title, "Lan Mode Activated");
  EXPECT_EQ(boxes()[2].text, "Please restart TESK to activate the LAN Mode.");
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(platform.network.connectAttempts, attempts);

  // Normal mode kept: saved, nothing asked, and the window stays.
  lan().Show();
  w().chkEnableLAN.value = 0;
  lan().Command1_Click();
  EXPECT_EQ(boxes().size(), 3u);
  EXPECT_TRUE(w().form.loaded);
}

TEST_F(LanSetupTest, InvalidEntryComesAfterTheFileWasWritten) {
  writeLan({"", "", "", "", ""}, 1);
  idle();
  station->run().LanModeAtStart = 1;
  lan().Show();
  w().cmbLANIPAddress.text = "   ";
  std::string fileWhenAsked;
  platform.simDialogs.onShow = [&](const ShownBox&) {
    fileWhenAsked = ReadFile(home.file("TESKLanMode.ini"));
  };
  lan().Command1_Click();
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "Invalid entry");
  EXPECT_EQ(boxes()[0].text, "Invalid Hostname/IP or Portnumber!");
  EXPECT_EQ(boxes()[0].icon, MsgIcon::Exclamation);
  EXPECT_NE(fileWhenAsked.find("[HostName_IP_Default]\r\n\r\n"), std::string::npos);
  EXPECT_TRUE(w().form.loaded);  // the window stays open
  EXPECT_EQ(platform.network.connectAttempts, 0);
  lan().Command2_Click();
  lan().Show();
  EXPECT_EQ(w().cmbLANIPAddress.text, "127.0.0.1");

  // An empty port text: the same box, and a port of 0 saved that reads back as 8000.
  w().txtAGWLANPort.text = " ";
  lan().Command1_Click();
  EXPECT_EQ(boxes().size(), 2u);
  EXPECT_EQ(boxes()[1].text, "Invalid Hostname/IP or Portnumber!");
  EXPECT_NE(ReadFile(home.file("TESKLanMode.ini")).find("[LanPort]\r\n 0 \r\n"), std::string::npos);
  lan().Command2_Click();
  lan().Show();
  EXPECT_EQ(w().txtAGWLANPort.text, "8000");
}

TEST_F(LanSetupTest, RememberedHostsAreCappedAndComparedWithoutCaseOrTrailingBlanks) {
  writeLan({"a", "b", "c", "d", "e"}, 0);
  idle();
  lan().Show();
  w().cmbLANIPAddress.text = "C  ";  // already a row
  lan().Command1_Click();
  EXPECT_EQ(station->config().HostName_IP, (std::array<std::string, 5>{"a", "b", "c", "d", "e"}));
  EXPECT_EQ(station->config().HostName_IP_Default, "C");
  w().cmbLANIPAddress.text = "f";
  lan().Command1_Click();
  EXPECT_EQ(station->config().HostName_IP, (std::array<std::string, 5>{"b", "c", "d", "e", "f"}));

  // Three rows grow to four; four lose their oldest before the add.
  lan().Command2_Click();
  writeLan({"a", "", "b", "c", ""}, 0);
  lan().Show();
  w().cmbLANIPAddress.text = "d";
  lan().Command1_Click();
  EXPECT_EQ(station->config().HostName_IP, (std::array<std::string, 5>{"a", "b", "c", "d", ""}));
  w().cmbLANIPAddress.text = " e";
  lan().Command1_Click();
  EXPECT_EQ(station->config().HostName_IP, (std::array<std::string, 5>{"b", "c", "d", " e", ""}));
  StationConfig c;
  RunState r;
  LoadLANINI(c, r, home.path());
  EXPECT_EQ(c.HostName_IP, station->config().HostName_IP);
  EXPECT_EQ(c.HostName_IP_Default, "e");
}

TEST_F(LanSetupTest, CancelChangesNothing) {
  writeLan({"a", "", "", "", ""}, 1, "pw");
  idle();
  lan().Show();
  const std::string before = ReadFile(home.file("TESKLanMode.ini"));
  const StationConfig config = station->config();
  w().cmbLANIPAddress.text = "elsewhere";
  w().txtAGWLANPort.text = "9";
  w().chkEnableLAN.value = 0;
  w().ChkPassword.value = 0;
  lan().Command2_Click();
  EXPECT_TRUE(station->config() == config);
  EXPECT_EQ(station->run().LanMode, 1);
  EXPECT_EQ(ReadFile(home.file("TESKLanMode.ini")), before);
  EXPECT_FALSE(w().form.visible);
  EXPECT_TRUE(boxes().empty());
}

}  // namespace
}  // namespace tesk::testing
