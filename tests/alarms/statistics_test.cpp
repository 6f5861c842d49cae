// The statistics window on a Monitor filled by frames through the core: the counts with their
// guards, the own frames split by the digipeat mark, the cut of the heard-station texts and
// their cap, the caret put back, the event loop running between the counts, and the labels of
// the console's state as the window and the headless console show them.
#include <gtest/gtest.h>

#include "alarms/statistics.h"
#include "core/core_fixture.h"

namespace tesk::testing {
namespace {

class StatisticsTest : public CoreTest {
 protected:
  void SetUp() override { startDirect(); }
  // One monitored frame of `calls` through the core.
  void frame(const std::string& calls, const std::string& data = "hello\r") {
    script.items.push_back({EngineText(data, 1, calls), 'U'});
    tick();
  }
  Statistics& statistics() { return parts().statistics; }
  StatisticsWindow& window() { return statistics().window(); }
  const MonitorCounts& counts() { return statistics().counts(); }
  std::vector<std::string> label1() {
    std::vector<std::string> lines;
    std::string text = window().Label1.caption;
    for (std::size_t at = text.find(CRLF); at != std::string::npos; at = text.find(CRLF)) {
      lines.push_back(text.substr(0, at));
      text.erase(0, at + 2);
    }
    lines.push_back(text);
    return lines;
  }
};

TEST_F(StatisticsTest, AnEmptyMonitorCountsAllZeroWithoutAFault) {
  statistics().Show();
  const std::vector<std::string> lines = label1();
  ASSERT_EQ(lines.size(), 13u);
  EXPECT_EQ(lines[0].rfind("Bytes = ", 0), 0u);  // the rich text's own head is not nothing
  EXPECT_EQ(std::vector<std::string>(lines.begin() + 1, lines.end()),
            (std::vector<std::string>{
                "Total Packet frames = 0", "UI frames = 0", "RX frames = 0", "DAMA frames = 0",
                "TX frames(XX9TK) = 0", "Digi frames(XX9TK) = 0", "Digi efficiency (XX9TK) = 0.0%",
                "Heard stations = 0", "", "Beacon stations = 0", "Characters = 0", "Lines = 0"}));
  EXPECT_EQ(platform.simViews.shownWindows.back(), "FrmStatistics");
  EXPECT_FALSE(window().busy);
}

TEST_F(StatisticsTest, OwnFramesSplitByTheDigipeatMarkAndHeardTextsAreCutAfterSevenCharacters) {
  frame("PA3ABC To CQ");  // at the very start of the text: its heard text is passed over
  frame("DL1XYZ-7 To APRS Via ARISS");
  frame("DL1XYZ-9 To APRS");  // the same first 7 characters: one heard text with the one above
  frame("XX9TK To APRS Via ARISS");
  frame("XX9TK To APRS Via ARISS*");
  // Digipeated by the first, but the mark is not right before the kind: counted as sent.
  frame("XX9TK To APRS Via RS0ISS*,ARISS");
  frame("PA3ABC To Beacon");
  // A long path pushes the mark out of the 80 characters looked at.
  frame(
      "XX9TK To APRS Via WIDE1-1,WIDE2-2,RELAY,TRACE7-7,WIDE3-3,ECHO,GATE,NOWHERE,RS0ISS-4,"
      "ARISS*");
  main().txtMonitor.setSelection(3, 5);
  statistics().Show();
  const MonitorCounts& c = counts();
  EXPECT_EQ(c.total, 8);
  EXPECT_EQ(c.ui, 8);
  EXPECT_EQ(c.dama, 0);
  EXPECT_EQ(c.tx, 3);
  EXPECT_EQ(c.digi, 1);
  EXPECT_EQ(c.rx, 6);  // 8 - 3 + 1, as it always has been
  EXPECT_EQ(c.beacons, 1);
  EXPECT_EQ(c.heard, 3);  // DL1XYZ-, XX9TK T, PA3ABC
  EXPECT_EQ(c.lines, 16);
  EXPECT_EQ(c.characters, static_cast<long>(txt().length()));
  const std::vector<std::string> lines = label1();
  EXPECT_EQ(lines[5], "TX frames(XX9TK) = 3");
  EXPECT_EQ(lines[7], "Digi efficiency (XX9TK) = 33.3%");
  // The walk leaves the caret at the end, where the next frame goes in.
  EXPECT_EQ(txt().selStart(), txt().length());
  EXPECT_EQ(txt().selLength(), 0u);
}

TEST_F(StatisticsTest, MoreThan256HeardTextsStopAt256) {
  txt().append("start\r\n", TextStyle{});
  for (int i = 0; i < 300; ++i)
    frame("ST" + FormatZeros(i, 4) + " To CQ", "x");
  statistics().Show();
  EXPECT_EQ(counts().total, 300);
  EXPECT_EQ(counts().heard, 256);
}

TEST_F(StatisticsTest, NegativeCountsAndADivisionByNoFramesSentShowAsZero) {
  // Notes about frames, no frames: more " <UI " than "Fm ".
  parts().monitor.NotaInMonitor("seen: XX9TK <UI and PA3ABC <UI today", 0);
  frame("XX9TK To APRS Via ARISS*");  // digipeated, none sent
  statistics().Show();
  EXPECT_EQ(counts().total, 1);
  EXPECT_EQ(counts().ui, 3);
  EXPECT_EQ(counts().dama, 0);
  EXPECT_EQ(counts().tx, 0);
  EXPECT_EQ(counts().digi, 1);
  EXPECT_EQ(counts().rx, 2);
  EXPECT_EQ(counts().efficiency, 0);
  EXPECT_EQ(label1()[4], "DAMA frames = 0");
  EXPECT_EQ(label1()[7], "Digi efficiency (XX9TK) = 0.0%");
}

TEST_F(StatisticsTest, TheSizeShowsInKiloBytesOnlyAbove1024) {
  MonitorCounts c;
  c.size = 1024;
  EXPECT_EQ(CountsText(c, "X").substr(0, 13), "Bytes = 1024\r");
  c.size = 4100;
  EXPECT_EQ(CountsText(c, "X").substr(0, 15), "Kilo Bytes = 4\r");
}

TEST_F(StatisticsTest, TheCoreKeepsReceivingWhileTheWindowCounts) {
  frame("PA3ABC To CQ");
  frame("DL1XYZ To CQ");
  bool busyMeanwhile = false;
  platform.simLoop.post([&] {
    busyMeanwhile = window().busy && window().Label1.caption == Statistics::kPleaseWait;
    frame("G4LATE To CQ", "late");  // a tick in the middle of the count
  });
  statistics().Show();
  EXPECT_TRUE(busyMeanwhile);
  EXPECT_NE(monitorText().find("Fm G4LATE"), std::string::npos);
  // Counted on the text as it stood when the count began.
  EXPECT_EQ(counts().total, 2);
  EXPECT_FALSE(window().busy);
  EXPECT_EQ(txt().selStart(), txt().length());
  statistics().Show();
  EXPECT_EQ(counts().total, 3);
}

TEST_F(StatisticsTest, TheLabelsShowCountersHistoriesHeardEngineModeAndProfile) {
  station->run().TxCounters[1] = 12;
  station->run().TxCounters[2] = 3;
  main().cmbToCall.list = {"CQ", "APRS"};
  main().cmbAPRSMessage.list = {"hi"};
  main().LstMHeardList.list = {"PA3ABC", "DL1XYZ", "G4ABC"};
  parts().digipeat.DigipeatedTotal = 5;
  config().TypeOfModem = 2;
  config().AGWPERXPort = 6;
  config().AGWPERadioPort = 1;
  station->run().EngineStatus = "Connected";
  station->run().LinkStatus = "LAN link up";
  statistics().Show();
  const StatisticsWindow& w = window();
  EXPECT_EQ(w.lblTXbutRes.caption, "0\r\n12\r\n3\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0");
  EXPECT_EQ(w.lblFieldsRes.caption, "2\r\n0\r\n0\r\n0\r\n0\r\n1");
  EXPECT_EQ(w.lblHeardres.caption, "3\r\n5");
  EXPECT_EQ(w.lblStatus.caption,
            "AGW Engine DLL  =Connected\r\nAGW Mode =Direct\r\nRX RadioPort =All\r\n"
            "TX RadioPort =2");
  EXPECT_EQ(w.lblMode.caption, "TESK Mode Normal");
  EXPECT_FALSE(w.lblProfile.visible);

  // LAN mode with the sound modem, a module mode and a profile; read again on the next show.
  config().TypeOfModem = 1;
  config().AGWPERXPort = 0;
  station->run().LanMode = 1;
  station->run().ServerSwitch = 2;
  station->run().ProfileName = "Portable";
  statistics().Command1_Click();
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "FrmStatistics");
  statistics().Show();
  EXPECT_EQ(w.lblStatus.caption,
            "UZ7HO Soundmodem=LAN link up\r\nAGW Mode =LAN\r\nRX RadioPort =1\r\nTX RadioPort =2");
  EXPECT_EQ(w.lblMode.caption, "TESK Module Mode 2");
  EXPECT_EQ(w.lblProfile.caption, "Active Profile: Portable");
  station->run().ServerSwitch = 3;
  config().TypeOfModem = 0;
  statistics().Show();
  EXPECT_EQ(w.lblMode.caption, "TESK Mode:3 Server ");
  EXPECT_EQ(w.lblStatus.caption.substr(0, 17), "Other Engine    =");
}

TEST_F(StatisticsTest, TheButtonsOpenTheSetupWhenThereIsOneAndTheWordCount) {
  CommandTable& table = station->commands();
  parts().monitor.OpenMonitorSetup = {};  // a station without the Setup window
  EXPECT_TRUE(table.run({Command::cmdStatistics}));
  EXPECT_FALSE(window().Command2.enabled);
  statistics().Command2_Click();  // nothing to open yet, and no fault
  int setups = 0;
  parts().monitor.OpenMonitorSetup = [&setups] { ++setups; };
  parts().monitor.menuedits_Click(130);  // the Edit menu's entry opens it too
  EXPECT_TRUE(window().Command2.enabled);
  statistics().Command2_Click();
  EXPECT_EQ(setups, 1);
  platform.simDialogs.answers = {"Fm ", "O", ""};
  statistics().Command3_Click();
  EXPECT_EQ(platform.simDialogs.shown[0].title, "Count found words");
  EXPECT_EQ(platform.simDialogs.shown[1].title, "Results");
}

TEST_F(StatisticsTest, TheConsolePrintsTheCountsThenEachLabelAsNameAndValue) {
  frame("XX9TK To APRS Via ARISS");
  station->run().TxCounters[1] = 1;
  main().LstMHeardList.list = {"XX9TK"};
  platform.simViews.notices.clear();
  station->consoleLine(":stats");
  const std::vector<std::string>& out = platform.simViews.notices;
  ASSERT_EQ(out.size(), 13u + 12u + 6u + 2u + 4u + 1u);
  EXPECT_EQ(out[5], "TX frames(XX9TK) = 1");
  EXPECT_EQ(out[14], "Text/Data: 1");
  EXPECT_EQ(out[25], "To: 0");
  EXPECT_EQ(out[31], "MHeard: 1");
  EXPECT_EQ(out[34], "AGW Mode =Direct");
  EXPECT_EQ(out.back(), "TESK Mode Normal");
  // It closes again: nobody could close it without windows.
  EXPECT_FALSE(window().form.loaded);
}

}  // namespace
}  // namespace tesk::testing
