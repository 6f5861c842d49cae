// The start-up and shut-down order: the first-run call sign, the command line, the engine
// questions of direct mode, the write check and Einde.
#include <gtest/gtest.h>

#include "base/text.h"
#include "support/scripted_engine.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class StartupTest : public StationTest {};

TEST_F(StartupTest, FirstRunCallSignLengthRules) {
  struct Case {
    std::string answer;
    bool runs;
    std::string stored;
  };
  const Case cases[] = {
      {"AB", false, ""},
      {"ABC", true, "ABC"},
      {"XX9TK-1234", true, "XX9TK-1234"},
      {"XX9TK-12345", false, ""},
      {"xx9tk", true, "XX9TK"},
      {"", false, ""},
      // The length is taken before the trim, as the original does.
      {"  AB", true, "AB"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE("answer '" + c.answer + "'");
    SimPlatform p;
    TempDir dir;
    WriteFile(dir.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
    p.systemInfo.commandLine = "/LAN";
    Station s(p, StationOptions{dir.path(), "", 0, false});
    p.simDialogs.answers.push_back(c.answer);
    s.Start();
    ASSERT_FALSE(p.simDialogs.shown.empty());
    EXPECT_EQ(p.simDialogs.shown[0].title, "TESK Monitor: Your Call Sign please");
    EXPECT_EQ(p.simDialogs.shown[0].text,
              "Before you can use this program you\rneed to enter your Call Sign:");
    EXPECT_EQ(s.loaded(), c.runs);
    EXPECT_EQ(p.simLoop.ended(), !c.runs);
    if (c.runs) {
      EXPECT_EQ(s.config().YourCallSign, c.stored);
      EXPECT_TRUE(s.run().FirstRun);
    } else {
      // Ended at once: nothing saved.
      EXPECT_FALSE(std::filesystem::exists(dir.file("tesk.ini")));
    }
  }
}

TEST_F(StartupTest, CommandLineSwitches) {
  struct Case {
    std::string line;
    int16_t lanModeInFile;
    bool lanOn;
  };
  const Case cases[] = {{"/LAN", 0, true}, {"/lanxyz", 0, true}, {"/AGW", -1, false},
                        {"/", -1, true},   {"", 0, false},       {"/agw /lan", -1, false}};
  for (const Case& c : cases) {
    SCOPED_TRACE("line '" + c.line + "'");
    SimPlatform p;
    TempDir dir;
    WriteFile(dir.file("TESKLanMode.ini"), LanIni(kHost, kPort, c.lanModeInFile));
    p.systemInfo.commandLine = c.line;
    Station s(p, StationOptions{dir.path(), "", 0, false});
    p.simDialogs.answers = {"XX9TK", "Y"};  // call sign; run on without an engine
    s.Start();
    EXPECT_EQ(s.run().LanMode != 0, c.lanOn);
    // The switch lasts for this run; the LAN window compares against the start value.
    EXPECT_EQ(s.run().LanModeAtStart, c.lanModeInFile);
  }
}

TEST_F(StartupTest, RunSwitchStartsTheProgramBeforeTheSettingsAreRead) {
  const std::pair<std::string, std::string> cases[] = {
      {"/RUN /usr/bin/xclock", "/usr/bin/xclock"},
      {"\"/RUN /opt/modem\"", "\"/opt/modem\""},
      {"/run /usr/bin/xclock", ""},  // only the upper-case spelling works
      {"/RUNab", ""},                // not longer than 6 characters
  };
  for (const auto& [line, program] : cases) {
    SCOPED_TRACE(line);
    SimPlatform p;
    TempDir dir;
    p.systemInfo.commandLine = line;
    Station s(p, StationOptions{dir.path(), "", 0, false});
    p.simDialogs.answers = {"XX9TK", "Y"};
    s.Start();
    if (program.empty()) {
      EXPECT_TRUE(p.simShell.runs.empty());
    } else {
      ASSERT_EQ(p.simShell.runs.size(), 1u);
      EXPECT_EQ(p.simShell.runs[0].first, program);
    }
  }
}

TEST_F(StartupTest, DirectModeWithoutEngineAsksAndRunsOn) {
  make("");
  platform.simDialogs.answers = {"XX9TK", "N", "N", "O"};  // first run: No, No, OK
  station->Start();
  ASSERT_TRUE(station->loaded());
  const auto& boxes = platform.simDialogs.shown;
  ASSERT_EQ(boxes.size(), 4u);
  EXPECT_EQ(boxes[1].title, "TESK: Software Modem Download");
  EXPECT_EQ(boxes[2].title, "TESK: UZ7HO SoundModem Download");
  EXPECT_EQ(boxes[3].title, "TESK Software Modem");
  EXPECT_EQ(monitorText(), "RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!");
  EXPECT_EQ(station->run().EngineStatus, "Software Modem Not Detected");
  auto& direct = station->parts().direct;
  EXPECT_EQ(direct.startPolls(), 2);  // one retry after a close
  EXPECT_EQ(direct.closes(), 1);
  EXPECT_EQ(direct.puts(), 1);  // the "P" frame, with an engine or without
  EXPECT_TRUE(station->parts().tmrMainPacketCore->enabled());
}

TEST_F(StartupTest, DirectModeQuestionsEndTheProcessOnCancelOrNo) {
  {
    make("");
    platform.simDialogs.answers = {"XX9TK", "C"};
    station->Start();
    EXPECT_TRUE(platform.simLoop.ended());
    EXPECT_FALSE(station->loaded());
  }
  {
    // Not a first run: the "run anyway?" question, and its No ends the process.
    SimPlatform p;
    StationOptions o{home.path(), "", 0, false};
    Station first(p, o);
    p.simDialogs.answers = {"XX9TK", "Y"};
    first.Start();
    first.Einde();  // saves the call sign
    SimPlatform p2;
    Station second(p2, o);
    p2.simDialogs.answers = {"N"};
    second.Start();
    ASSERT_EQ(p2.simDialogs.shown.size(), 1u);
    EXPECT_EQ(p2.simDialogs.shown[0].title, "TESK: Software Modem Not Running");
    EXPECT_TRUE(p2.simLoop.ended());
  }
}

TEST_F(StartupTest, YesOpensTheDownloadPage) {
  make("");
  platform.simDialogs.answers = {"XX9TK", "Y"};
  station->Start();
  ASSERT_EQ(platform.simShell.urls.size(), 1u);
  EXPECT_NE(platform.simShell.urls[0].find("/xx9tk/download/agwpe.zip"), std::string::npos);
}

TEST_F(StartupTest, WriteCheckRunsOnceAndReportsAFolderItCannotWrite) {
  start("/LAN");
  EXPECT_EQ(ReadFile(home.file("uactest.txt")), "TESK UAC WINDOWS TEST\r\n");
  TempDir other;
  std::filesystem::create_directory(other.file("uactest.txt"));  // cannot be opened as a file
  SimPlatform p;
  p.systemInfo.commandLine = "/LAN";
  Station s(p, StationOptions{other.path(), "", 0, false});
  p.simDialogs.answers = {"XX9TK"};
  s.Start();
  ASSERT_TRUE(s.loaded());
  const ShownBox& box = p.simDialogs.shown.back();
  EXPECT_EQ(box.title.rfind("User Account Control Issue: ", 0), 0u);
  EXPECT_EQ(box.text,
            "Error accessing File. Folder write protected.\r\nProbably do to 'User Account "
            "Control' (UAC) of Windows.\r\nPlease grant TESK administror rights or install it in "
            "a root folder, example; C:\\TESK");
}

TEST_F(StartupTest, EindeSavesUnregistersClosesAndEnds) {
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1, -1));
  ScriptedEngine engine(platform.network, kHost, kPort);
  start();
  station->mainWindow().cmbToCall.text = "apr";
  station->mainWindow().cmbViaCall.text = "ariss";
  station->Einde();
  EXPECT_TRUE(platform.simLoop.ended());
  EXPECT_EQ(station->config().ToCall, "APR");
  EXPECT_EQ(station->config().Digistation, "ARISS");
  EXPECT_EQ(station->mainWindow().cmbToCall.text, "APR");
  EXPECT_NE(ReadFile(home.file("tesk.ini")).find("XX9TK"), std::string::npos);
  EXPECT_NE(ReadFile(home.file("TESKLanMode.ini")).find("8123"), std::string::npos);
  EXPECT_EQ(platform.simStore.settings["XX9TK\\TESK\\Module2\\Running"], "No");
  EXPECT_EQ(platform.simStore.settings["XX9TK\\TESK\\Module\\Message"], "");
  EXPECT_EQ(platform.simStore.registry["HKCU\\Software\\TESK\\Command\\Command"], "");
  EXPECT_EQ(engine.kinds(), "XGmx");
  EXPECT_EQ(station->parts().tcpLink.socket().state(), TcpSocket::Closed);
}

TEST_F(StartupTest, SplashSwitchAndCoreInterval) {
  platform.simStore.registry["HKCU\\Software\\TESK\\Set\\SplashScreen"] = " 1 ";
  start();
  EXPECT_TRUE(platform.simViews.shownWindows.empty() ||
              platform.simViews.shownWindows.front() != "frmSplash");
  EXPECT_EQ(station->parts().tmrMainPacketCore->interval(), 250);
  EXPECT_EQ(station->mainWindow().FrameComm.caption, "Communication Ports: TX-1 / RX-1");
}

}  // namespace
}  // namespace tesk::testing
