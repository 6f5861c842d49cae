// The packet logs on disk: dated files with a head block once per day and per run (a midnight
// in the middle of a run included), the date stamp's repairs and padding, the three modes'
// choice of frames, the first-line rule for data, and a log folder that cannot be written.
#include <gtest/gtest.h>

#include <filesystem>

#include "alarms/date_stamp.h"
#include "base/text.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

std::string Header(const std::string& calls, const std::string& time = "12:00:00") {
  return "Fm " + calls + " <UI pid=F0 Len=5 >[" + time + "]";
}

std::string HeadBlock(const std::string& line) {
  const std::string rule(line.size(), '-');
  return rule + "\r\n" + line + "\r\n" + rule + "\r\n";
}

class PacketLogTest : public StationTest {
 protected:
  void SetUp() override { build(); }
  // A station of a new run on the same program folder.
  void build() {
    make();
    station->run().AppPath = home.path();
    config().YourCallSign = "XX9TK";
  }
  StationConfig& config() { return station->config(); }
  PacketLog& log() { return station->parts().packetLog; }
  std::string file(const std::string& name) { return ReadFile(home.file("Logs/" + name)); }
  bool exists(const std::string& name) {
    return std::filesystem::exists(home.file("Logs/" + name));
  }
};

TEST_F(PacketLogTest, AMidnightDuringARunOpensANewDatedFileWithItsOwnHeadBlock) {
  platform.simClock.start = {2026, 11, 22, 23, 59, 50, 0};
  const std::string head = "[TESK Auto-Log data - Mode: All Packets - Date:";
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "before midnight\r\r\n");
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "still the 22nd\r\r\n");
  platform.simLoop.run(20);
  log().LogPacketToDisk(1, Header("DL1XYZ To CQ"), "after midnight\r\r\n");
  EXPECT_EQ(file("AutoLog22-11-2026.log"),
            HeadBlock(head + "22/11/2026]") + Header("PA3ABC To CQ") + "\r\nbefore midnight\r\r\n" +
                Header("PA3ABC To CQ") + "\r\nstill the 22nd\r\r\n");
  EXPECT_EQ(file("AutoLog23-11-2026.log"),
            HeadBlock(head + "23/11/2026]") + Header("DL1XYZ To CQ") + "\r\nafter midnight\r\r\n");
  // A new run on the same day writes its own head block into the same file; each log has its
  // own date to remember, so the Digi LogBook gets its first head block now.
  build();
  log().LogPacketToDisk(1, Header("G4ABC To CQ"), "new run\r\r\n");
  log().LogPacketToDisk(2, Header("XX9TK To CQ Via RS0ISS*"), "own\r\r\n");
  const std::string day23 = file("AutoLog23-11-2026.log");
  EXPECT_EQ(day23.find(head), day23.find("[TESK"));
  EXPECT_NE(day23.rfind(head), day23.find(head));
  EXPECT_EQ(day23.substr(day23.rfind(HeadBlock(head + "23/11/2026]"))),
            HeadBlock(head + "23/11/2026]") + Header("G4ABC To CQ") + "\r\nnew run\r\r\n");
  EXPECT_NE(file("DigiLogBook_XX9TK.log").find("Date:23/11/2026]"), std::string::npos);
}

TEST_F(PacketLogTest, TheDateStampPadsAOneDigitDayAndRepairsAnUnfitSeparator) {
  platform.simClock.start = {2026, 3, 5, 9, 0, 0, 0};
  platform.simClock.dateFormat = "d.M.yyyy";
  const Clock& clock = platform.simClock;
  EXPECT_EQ(DateStamp(config(), clock), "05-3-2026");
  // A "-" of the system's own date stays whatever the separator; "/", "." and "," follow it.
  platform.simClock.dateFormat = "dd-MM-yyyy";
  config().DateSeparator = "_";
  EXPECT_EQ(DateStamp(config(), clock), "05-03-2026");
  platform.simClock.dateFormat = "M/d/yyyy";
  EXPECT_EQ(DateStamp(config(), clock), "03_5_2026");  // the first field, whatever it is
  for (const char* unfit : {"/", "", "--", ":", "*", "?", "|", "<", ">", "\\", "\""}) {
    config().DateSeparator = unfit;
    EXPECT_EQ(DateStamp(config(), clock), "03-5-2026") << unfit;
    EXPECT_EQ(config().DateSeparator, "-");
  }
  // Nothing from the system: the fixed form.
  platform.simClock.dateFormat = "";
  EXPECT_EQ(DateStamp(config(), clock), "05_03_2026");
}

TEST_F(PacketLogTest, ASlashSeparatorIsReplacedInTheFileNameAndSavedSo) {
  platform.simClock.dateFormat = "dd.MM.yyyy";
  config().DateSeparator = "/";
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "hello\r\r\n");
  EXPECT_TRUE(exists("AutoLog22-11-2026.log"));
  EXPECT_NE(file("AutoLog22-11-2026.log").find("Date:22/11/2026]"), std::string::npos);
  EXPECT_EQ(config().DateSeparator, "-");
  station->parts().settings.SaveSettings();
  EXPECT_NE(ReadFile(home.file("tesk.ini")).find("[DateSeparator]\r\n-\r\n"), std::string::npos);
}

TEST_F(PacketLogTest, TheDigiLogBookBearsTheBaseCallAndTakesOnlyMarkedFramesWithIt) {
  config().YourCallSign = "XX9TK-7";
  log().LogPacketToDisk(2, Header("XX9TK-7 To CQ Via RS0ISS"), "not repeated\r\r\n");
  log().LogPacketToDisk(2, Header("PA3ABC To CQ Via RS0ISS*"), "not mine\r\r\n");
  log().LogPacketToDisk(2, Header("XX9TK-7 To CQ Via RS0ISS*"), "mine\r\r\n");
  // The coarse test: the base call anywhere and any mark.
  log().LogPacketToDisk(2, Header("PA3ABC To XX9TK Via RS0ISS*"), "to me\r\r\n");
  EXPECT_EQ(
      file("DigiLogBook_XX9TK.log"),
      HeadBlock("[TESK DigiLogBook data - Log of XX9TK Digipeated Packets - Date:22/11/2026]") +
          Header("XX9TK-7 To CQ Via RS0ISS*") + "\r\nmine\r\r\n" +
          Header("PA3ABC To XX9TK Via RS0ISS*") + "\r\nto me\r\r\n");
  EXPECT_FALSE(exists("DigiLogBook_XX9TK-7.log"));
  EXPECT_EQ(log().DigiLogBookPath(), home.file("Logs/DigiLogBook_XX9TK.log"));
}

TEST_F(PacketLogTest, TheAutoLogModesChooseTheirFramesAndOnlyOfCallFallsBackToTheOwnCall) {
  config().AutomaticLogging = 1;
  log().LogPacketToDisk(1, Header("PA3ABC To CQ Via ARISS"), "direct\r\r\n");
  log().LogPacketToDisk(1, Header("PA3ABC To CQ Via RS0ISS*"), "any digipeat\r\r\n");
  std::string text = file("AutoLog22-11-2026.log");
  EXPECT_NE(text.find("Mode: Only Digipeated Packets - Date:"), std::string::npos);
  EXPECT_EQ(text.find("direct"), std::string::npos);
  EXPECT_NE(text.find("any digipeat"), std::string::npos);
  // Only of a call, with no call set: the own call, at logging time only, case-sensitive.
  std::filesystem::remove_all(home.file("Logs"));
  build();
  config().AutomaticLogging = 3;
  config().CallDefinedLog = "";
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "other\r\r\n");
  log().LogPacketToDisk(1, Header("xx9tk To CQ"), "lower case\r\r\n");
  log().LogPacketToDisk(1, Header("XX9TK To CQ"), "own\r\r\n");
  text = file("AutoLog22-11-2026.log");
  EXPECT_EQ(text, HeadBlock("[TESK Auto-Log data - Mode: Only XX9TK Packets - Date:22/11/2026]") +
                      Header("XX9TK To CQ") + "\r\nown\r\r\n");
  EXPECT_EQ(config().CallDefinedLog, "");
  // The menu would have given "ISS", without asking at start.
  log().AutoLog(3);
  EXPECT_EQ(config().CallDefinedLog, "ISS");
  EXPECT_TRUE(platform.simDialogs.shown.empty());
}

TEST_F(PacketLogTest, DataIsLoggedByItsFirstLineAndShortDataAddsNothing) {
  log().LogPacketToDisk(1, Header("A1AA To CQ"), std::string("line one\r\r\nline two\r\r\n"));
  log().LogPacketToDisk(1, Header("B2BB To CQ"), std::string("padded\r\r\n\0   ", 13));
  log().LogPacketToDisk(1, Header("C3CC To CQ"), "x");
  log().LogPacketToDisk(1, Header("D4DD To CQ"), "no line end  ");
  log().LogPacketToDisk(1, Header("E5EE To CQ"), "");
  const std::string text = file("AutoLog22-11-2026.log");
  const std::string body = text.substr(text.find("Fm A1AA"));
  // The first line's own CR CR, then LF and a line end; the second line is lost by design.
  EXPECT_EQ(body, Header("A1AA To CQ") + "\r\nline one\r\r\n\r\n" + Header("B2BB To CQ") +
                      "\r\npadded\r\r\n" + Header("C3CC To CQ") + "\r\n" + Header("D4DD To CQ") +
                      "\r\nno line end" + Header("E5EE To CQ") + "\r\n");
}

TEST_F(PacketLogTest, ALogThatCannotBeOpenedLeavesTheFrameUnloggedAndTheProgramRunning) {
  MainWindow& main = station->mainWindow();
  main.mnuautolog[10].enabled = false;
  main.mnuOpenLog[10].enabled = false;
  // A file where the folder should be.
  WriteFile(home.file("Logs"), "not a folder");
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "lost\r\r\n");
  log().LogPacketToDisk(0, Header("PA3ABC To CQ"), "lost\r\r\n");
  EXPECT_EQ(ReadFile(home.file("Logs")), "not a folder");
  // A folder where the day's file should be.
  std::filesystem::remove(home.file("Logs"));
  std::filesystem::create_directories(home.file("Logs/AutoLog22-11-2026.log"));
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "lost again\r\r\n");
  EXPECT_TRUE(std::filesystem::is_directory(home.file("Logs/AutoLog22-11-2026.log")));
  EXPECT_FALSE(main.mnuautolog[10].enabled);
  // Once the way is free, the next frame opens the file with its head block.
  std::filesystem::remove(home.file("Logs/AutoLog22-11-2026.log"));
  log().LogPacketToDisk(1, Header("PA3ABC To CQ"), "kept\r\r\n");
  EXPECT_EQ(file("AutoLog22-11-2026.log"),
            HeadBlock("[TESK Auto-Log data - Mode: All Packets - Date:22/11/2026]") +
                Header("PA3ABC To CQ") + "\r\nkept\r\r\n");
  EXPECT_TRUE(main.mnuautolog[10].enabled);
  EXPECT_TRUE(main.mnuOpenLog[10].enabled);
}

}  // namespace
}  // namespace tesk::testing
