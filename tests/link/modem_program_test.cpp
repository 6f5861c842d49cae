// The modem program around the station: which engine lies in the program folder, its start at
// load (not twice), the first-run rule for a SoundModem in the folder, its close at exit, and
// the outside terminal pointed at the same engine.
#include "link/modem_program.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class ModemProgramTest : public StationTest {
 protected:
  ModemProgram& idle() {
    make();
    station->run().AppPath = home.path();
    return station->parts().modem;
  }
  void touch(const std::string& name) { WriteFile(home.file(name), "x"); }
  int16_t check() {
    int16_t result = -1;
    CheckForSoundModem(home.path(), result);
    return result;
  }
  SimShell& shell() { return platform.simShell; }
};

TEST_F(ModemProgramTest, CheckForSoundModemLetsTheLastProgramFoundDecide) {
  EXPECT_EQ(check(), 0);
  touch("QtSoundModem");
  EXPECT_EQ(check(), 1);
  touch("direwolf");
  EXPECT_EQ(check(), 3);
  touch("AGW Packet Engine.exe");  // tested after Dire Wolf
  EXPECT_EQ(check(), 2);
  touch("Packet Engine Pro.exe");  // tested last: 3 whatever else is there
  EXPECT_EQ(check(), 3);

  TempDir other;
  WriteFile(other.file("soundmodem.exe"), "x");
  int16_t result = 0;
  CheckForSoundModem(other.path(), result);
  EXPECT_EQ(result, 1);
  WriteFile(other.file("direwolf.exe"), "x");
  CheckForSoundModem(other.path(), result);
  EXPECT_EQ(result, 3);
  // A name that only looks alike is not an engine.
  TempDir third;
  WriteFile(third.file("Soundmodem.EXE"), "x");
  WriteFile(third.file("direwolf.conf"), "x");
  CheckForSoundModem(third.path(), result);
  EXPECT_EQ(result, 0);
}

TEST_F(ModemProgramTest, StartIsSkippedWhileTheProgramRunsAndOtherwiseWaitsTwoSeconds) {
  ModemProgram& modem = idle();
  StationConfig& c = station->config();
  c.AutoRunModemProgram = 1;
  c.TypeOfModem = 1;
  touch("soundmodem");
  shell().windows["QtSoundModem"] = 4711;
  modem.StartModemProgram();
  EXPECT_TRUE(shell().runs.empty());
  EXPECT_EQ(c.ModemProgramPath, home.file("soundmodem"));  // this platform's program

  shell().windows.clear();
  shell().windows["direwolf"] = 815;  // another engine under the "Packet Engine" title
  modem.StartModemProgram();
  EXPECT_TRUE(shell().runs.empty());

  shell().windows.clear();
  const double before = platform.simLoop.now();
  modem.StartModemProgram();
  ASSERT_EQ(shell().runs.size(), 1u);
  EXPECT_EQ(shell().runs[0].first, home.file("soundmodem"));
  EXPECT_GE(platform.simLoop.now() - before, 2.0);
  EXPECT_GT(station->run().ModemStartNote, 0);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "main");

  // The next start finds it running and leaves it alone.
  shell().windows["soundmodem"] = 4712;
  modem.StartModemProgram();
  EXPECT_EQ(shell().runs.size(), 1u);

  // Not asked to run: nothing at all.
  shell().windows.clear();
  c.AutoRunModemProgram = 0;
  modem.StartModemProgram();
  EXPECT_EQ(shell().runs.size(), 1u);
}

TEST_F(ModemProgramTest, DetectProgWindowClosesTheProgramOfTheTypesTitle) {
  ModemProgram& modem = idle();
  StationConfig& c = station->config();
  c.TypeOfModem = 1;
  modem.DetectProgWindow();
  EXPECT_TRUE(shell().closed.empty());
  shell().windows["QtSoundModem"] = 21;
  shell().windows["direwolf"] = 22;
  modem.DetectProgWindow();
  EXPECT_EQ(shell().closed, (std::vector<long>{21}));
  c.TypeOfModem = 3;
  modem.DetectProgWindow();
  EXPECT_EQ(shell().closed, (std::vector<long>{21, 22}));
  c.TypeOfModem = 0;
  c.OtherTypeModemCaption = "ax";  // too short to look for
  shell().windows["ax"] = 23;
  modem.DetectProgWindow();
  EXPECT_EQ(shell().closed.size(), 2u);
  c.OtherTypeModemCaption = "kissutil";
  shell().windows["kissutil"] = 24;
  modem.DetectProgWindow();
  EXPECT_EQ(shell().closed, (std::vector<long>{21, 22, 24}));
}

TEST_F(ModemProgramTest, FirstRunWithThisPlatformsSoundModemTurnsLanOnStartsAndClosesIt) {
  touch("QtSoundModem");
  start("");
  const StationConfig& c = station->config();
  EXPECT_EQ(c.TypeOfModem, 1);
  EXPECT_EQ(c.AutoRunModemProgram, 1);
  EXPECT_EQ(c.AutoCloseModemProgram, 1);
  EXPECT_EQ(c.ModemProgramPath, home.file("QtSoundModem"));
  EXPECT_EQ(station->run().LanMode, 1);
  ASSERT_FALSE(shell().runs.empty());
  EXPECT_EQ(shell().runs.back().first, home.file("QtSoundModem"));
  EXPECT_NE(monitorText().find("Detecting...Please wait"), std::string::npos);
  shell().windows["QtSoundModem"] = 99;
  station->Einde();
  EXPECT_EQ(shell().closed, (std::vector<long>{99}));
}

TEST_F(ModemProgramTest, LoadPassStartsTheModemUnlessRunningThenTheExternalPrograms) {
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
  start();
  StationConfig& c = station->config();
  c.AutoRunModemProgram = 1;
  c.TypeOfModem = 3;
  c.ModemProgramPath = "/opt/dw/direwolf";
  c.intRunExtApp = 1;
  c.strRunExtApp1 = "/x";  // too short to be a program
  c.strRunExtApp2 = "/usr/bin/xastir";
  station->parts().settings.SaveSettings();
  const auto restart = [this] {
    station.reset();
    shell().runs.clear();
    make();
    station->Start();
  };
  restart();
  ASSERT_EQ(shell().runs.size(), 2u);
  EXPECT_EQ(shell().runs[0].first, "/opt/dw/direwolf");
  EXPECT_EQ(shell().runs[1].first, "/usr/bin/xastir");
  shell().windows["direwolf"] = 5;
  restart();
  ASSERT_EQ(shell().runs.size(), 1u);
  EXPECT_EQ(shell().runs[0].first, "/usr/bin/xastir");
}

std::string TermIni(int lines) {
  std::string s =
      "[Terminal]\r\nIncomingCall=NOCALL\r\nHost=localhost\r\nPort=8000\r\n"
      "MyHost=keep\r\n port=keep\r\n";
  for (int i = 7; i <= lines; ++i)
    s += "Line" + std::to_string(i) + "\r\n";
  return s;
}

TEST_F(ModemProgramTest, TerminalInLanModeGetsTheButtonAndTheSameEngine) {
  idle();
  MainWindow& main = station->mainWindow();
  StationConfig& c = station->config();
  c.YourCallSign = "XX9TK-1";
  c.HostName_IP_Default = "192.0.2.5";
  c.LanPort = 8010;
  main.cmdTXConnect.enabled = false;
  main.menusends[9].enabled = false;
  WriteFile(home.file("term.ini"), TermIni(70));
  ModemProgram& modem = station->parts().modem;

  station->run().LanMode = 0;  // only in LAN mode
  touch("term.exe");
  modem.CheckForTerminal();
  EXPECT_FALSE(main.cmdTXConnect.enabled);

  station->run().LanMode = 1;
  modem.CheckForTerminal();
  EXPECT_TRUE(main.cmdTXConnect.enabled && main.cmdTXConnect.visible);
  EXPECT_TRUE(main.menusends[9].enabled);
  EXPECT_EQ(main.cmdTXConnect.toolTip, "Connect Station (UZ7HO EasyTerm)");
  std::string want =
      "[Terminal]\r\nIncomingCall=XX9TK-1\r\nHost=192.0.2.5\r\nPort=8010\r\n"
      "MyHost=keep\r\n port=keep\r\n";
  for (int i = 7; i <= 61; ++i)
    want += "Line" + std::to_string(i) + "\r\n";
  EXPECT_EQ(ReadFile(home.file("term.ini")), want);  // cut to 61 lines

  // A short file keeps its lines; a line ending without CR LF gets one.
  WriteFile(home.file("term.ini"), "a\r\nx IncomingCall=NOCALL y\nHost=h");
  modem.CheckForTerminal();
  EXPECT_EQ(ReadFile(home.file("term.ini")), "a\r\nIncomingCall=XX9TK-1\r\nHost=192.0.2.5\r\n");
}

TEST_F(ModemProgramTest, NoTerminalProgramLeavesButtonAndFileAlone) {
  idle();
  station->run().LanMode = -1;
  MainWindow& main = station->mainWindow();
  main.cmdTXConnect.enabled = false;
  WriteFile(home.file("term.ini"), TermIni(10));
  station->parts().modem.CheckForTerminal();
  EXPECT_FALSE(main.cmdTXConnect.enabled);
  EXPECT_EQ(ReadFile(home.file("term.ini")), TermIni(10));
}

}  // namespace
}  // namespace tesk::testing
