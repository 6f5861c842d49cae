// Sending UI text through a real link: the length rule by Via, the histories, the header-only
// frame, text dropped on the button, the 80-character sender with its pause over TCP, the
// SoundModem path rule and the echo of own frames.
#include <gtest/gtest.h>

#include "base/text.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

std::string Letters(long n) {
  std::string s;
  for (long i = 0; i < n; ++i)
    s += static_cast<char>('a' + i % 26);
  return s;
}

// The field text set as it stands, without the typing limit: only what is sent is cut.
void SetData(MainWindow& main, const std::string& text) {
  main.cmbDataText.text = text;
}

TEST_F(SendTest, TextDataIsCutByTheViaFieldOnTheLanWire) {
  startLan();
  const std::string text = Letters(250);
  struct Case {
    std::string via, sentText;
  };
  const Case cases[] = {
      {"", text},                        // no Via: all 250
      {"ARISS", Left(text, 80)},         // one digipeater
      {"RS0ISS,ARISS", Left(text, 79)},  // two
      {"A,B,C,D", Left(text, 59)},       // four
      {"   ", Left(text, 247)},          // blanks count as empty, their length comes off
  };
  for (const Case& c : cases) {
    path("cq", c.via);
    SetData(main(), text);
    const std::size_t before = lanFrames().size();
    parts().txPanel.Press(SendButton::DataText);
    const auto frames = lanFrames();
    ASSERT_EQ(frames.size(), before + 1) << "via '" << c.via << "'";
    EXPECT_EQ(frames.back(), BuildControlUI(0, "", "XX9TK", "CQ", c.sentText, UCase(c.via)))
        << "via '" << c.via << "'";
    EXPECT_EQ(main().cmbDataText.text, text);  // the field keeps what was typed
  }
  EXPECT_EQ(run().TxCounters[1], 5);
  EXPECT_EQ(main().cmbToCall.text, "CQ");
  const auto& to = main().cmbToCall.list;
  EXPECT_NE(std::find(to.begin(), to.end(), "CQ"), to.end());
  // The history keeps the text as the typing limit allows it with the last Via.
  EXPECT_EQ(main().cmbDataText.list.back(), Left(text, 80));
  EXPECT_TRUE(main().imgTXRXlight[1].visible);
}

TEST_F(SendTest, HeaderOnlyAndEmptyTextGoOutAsBareFramesAndNoToSendsNothing) {
  startLan();
  path("CQ", "ARISS");
  SetData(main(), "");
  parts().uiTextSender.menusends_Click(0);
  parts().uiTextSender.menusends_Click(1);
  const auto frames = lanFrames();
  ASSERT_EQ(frames.size(), 2u);
  EXPECT_EQ(frames[0], BuildControlUI(0, "", "XX9TK", "CQ", "", "ARISS"));
  EXPECT_EQ(frames[1], frames[0]);
  EXPECT_EQ(run().TxCounters[0], 1);
  EXPECT_EQ(run().TxCounters[1], 1);

  // No To call: the note, no frame, no history.
  const std::size_t historyBefore = main().cmbDataText.list.size();
  path("", "ARISS");
  SetData(main(), "never sent");
  parts().uiTextSender.menusends_Click(1);
  parts().uiTextSender.menusends_Click(0);
  EXPECT_EQ(lanFrames().size(), 2u);
  EXPECT_EQ(meldText(), "No Call Sign entered!\r\nPlease enter the station Call Sign (To:)");
  EXPECT_EQ(main().cmbDataText.list.size(), historyBefore);

  // Rows that belong to later work do nothing yet.
  path("CQ", "");
  for (int row : {2, 3, 9, 10, 11})
    parts().uiTextSender.menusends_Click(row);
  EXPECT_EQ(lanFrames().size(), 2u);
}

TEST_F(SendTest, DroppedTextGoesOutUncutWithoutHistoryAndLongOrKnownTextsAreRefused) {
  startLan();
  path("CQ", "ARISS");
  UiTextSender& sender = parts().uiTextSender;
  const std::string ninety = Letters(90);
  EXPECT_FALSE(sender.DropAllowed(Letters(91), true));
  EXPECT_FALSE(sender.DropAllowed("short", false));
  EXPECT_FALSE(sender.DropAllowed("CQ", true));
  EXPECT_FALSE(sender.DropAllowed("ARISS", true));
  ASSERT_TRUE(sender.DropAllowed(ninety, true));
  const std::size_t historyBefore = main().cmbDataText.list.size();
  EXPECT_EQ(sender.Drop(ninety, true), 1);
  const auto frames = lanFrames();
  ASSERT_EQ(frames.size(), 1u);
  EXPECT_EQ(frames[0], BuildControlUI(0, "", "XX9TK", "CQ", ninety, "ARISS"));
  EXPECT_EQ(main().cmbDataText.list.size(), historyBefore);
  EXPECT_EQ(run().TxCounters[1], 1);
  path("", "");
  EXPECT_EQ(sender.Drop(ninety, true), 0);
  EXPECT_EQ(lanFrames().size(), 1u);
}

TEST_F(SendTest, ACallDraggedFromTheHeardListGoesOutButItsWholeRowDoesNot) {
  startLan();
  path("CQ", "ARISS");
  ListBox& heard = main().LstMHeardList;
  const std::string row = "PA3ABC               22-11-2026 12:00:00";
  heard.list = {"DL1XYZ-7             22-11-2026 11:59:00", row};
  heard.listIndex = 1;
  UiTextSender& sender = parts().uiTextSender;
  // What the list's drag offers is the call of the selected row.
  ASSERT_EQ(parts().heardList.DragText(), "PA3ABC");
  EXPECT_TRUE(sender.DropAllowed("PA3ABC", true));
  EXPECT_FALSE(sender.DropAllowed(row, true));
  EXPECT_TRUE(sender.DropAllowed(heard.list[0], true));  // a row not selected is just text
  EXPECT_FALSE(sender.DropAllowed("CQ", true));
  EXPECT_FALSE(sender.DropAllowed("ARISS", true));
  EXPECT_FALSE(sender.DropAllowed(Letters(91), true));
  EXPECT_TRUE(sender.DropAllowed(Letters(90), true));
  EXPECT_EQ(sender.Drop("PA3ABC", true), 1);
  EXPECT_EQ(sentTexts(), std::vector<std::string>{"PA3ABC"});
}

TEST_F(SendTest, MonitorTextGoesInPiecesOf80WithAPauseBeforeEachOverTcp) {
  startLan();
  path("CQ", "ARISS");
  const std::string text = Letters(161);
  for (long n : {80L, 81L, 161L}) {
    const std::string whole = Left(text, n);
    run().MonitorSendText = whole;
    const std::size_t before = lanFrames().size();
    const double start = platform.simLoop.now();
    parts().uiTextSender.StuurMonitorTekst();
    const double took = platform.simLoop.now() - start;
    const auto frames = lanFrames();
    const std::size_t pieces = static_cast<std::size_t>((n + 79) / 80);
    ASSERT_EQ(frames.size(), before + pieces) << n;
    for (std::size_t i = 0; i < pieces; ++i) {
      const std::string piece = Mid(whole, static_cast<long>(1 + 80 * i), 80);
      EXPECT_EQ(frames[before + i], BuildControlUI(0, "", "XX9TK", "CQ", piece, "ARISS"))
          << n << " piece " << i;
    }
    EXPECT_GE(took, 0.5 * static_cast<double>(pieces)) << n;
  }
  EXPECT_EQ(run().TxCounters[4], 6);
}

TEST_F(SendTest, SoundModemGetsAOneBlankViaForTheRestOfTheRun) {
  startLan();
  config().TypeOfModem = 1;
  path("CQ", "");
  SetData(main(), "one");
  parts().txPanel.Press(SendButton::DataText);
  SetData(main(), "two");
  parts().txPanel.Press(SendButton::DataText);
  parts().uiTextSender.menusends_Click(0);
  const auto frames = lanFrames();
  ASSERT_EQ(frames.size(), 3u);
  // Kind "V" with no digipeater: what that engine needs for a frame without a path.
  EXPECT_EQ(frames[0], BuildControlUI(0, "", "XX9TK", "CQ", "one", " "));
  EXPECT_EQ(frames[0][4], 'V');
  EXPECT_EQ(frames[1], BuildControlUI(0, "", "XX9TK", "CQ", "two", " "));
  EXPECT_EQ(frames[2], BuildControlUI(0, "", "XX9TK", "CQ", "", " "));
  EXPECT_EQ(main().cmbViaCall.text, "");  // the box on the screen is left alone
}

TEST_F(SendTest, DirectModeTakesTheKindFromTheViaBoxAndSendsWithoutPause) {
  startDirect();
  config().TypeOfModem = 1;  // the Via value does not matter on this path
  path("cq", "");
  SetData(main(), Letters(250));
  parts().txPanel.Press(SendButton::DataText);
  path("CQ", "RS0ISS,ARISS");
  parts().txPanel.Press(SendButton::DataText);
  run().MonitorSendText = Letters(81);
  const double start = platform.simLoop.now();
  parts().uiTextSender.StuurMonitorTekst();
  EXPECT_LT(platform.simLoop.now() - start, 0.5);
  const auto got = sent();
  ASSERT_EQ(got.size(), 4u);
  EXPECT_EQ(got[0].kind, 'M');
  EXPECT_EQ(got[0].to, "CQ");
  EXPECT_EQ(got[0].text, Letters(250));
  EXPECT_EQ(got[1].kind, 'V');
  EXPECT_EQ(got[1].via, (std::vector<std::string>{"RS0ISS", "ARISS"}));
  EXPECT_EQ(got[1].text, Letters(79));
  EXPECT_EQ(got[2].text, Letters(80));
  EXPECT_EQ(got[3].text, Letters(81).substr(80));
  EXPECT_EQ(got[3].via, (std::vector<std::string>{"RS0ISS", "ARISS"}));
}

TEST_F(SendTest, OwnFramesAreEchoedOnSlowNetworksAndEnterTheHeardList) {
  startLan(-1);
  config().ShowPortInHeader = 2;
  path("CQ", "ARISS");
  SetData(main(), "Hello");
  parts().txPanel.Press(SendButton::DataText);
  const std::string m = monitorText();
  EXPECT_NE(m.find("1:Fm XX9TK To CQ Via ARISS <UI pid=F0 Len=5 >[12:00:"), std::string::npos) << m;
  EXPECT_NE(m.find("].\r\nHello\r\n\r\n"), std::string::npos) << m;
  EXPECT_EQ(parts().transmit.echoes(), 1);
  ASSERT_EQ(main().LstMHeardList.list.size(), 1u);
  EXPECT_EQ(Left(main().LstMHeardList.list[0], 5), "XX9TK");
  EXPECT_TRUE(main().imgTXRXlight[1].visible);
}

TEST_F(SendTest, ConnectedDataFallsBackOnTheToBoxAndCountsApart) {
  startDirect();
  path(" PA3ABC ", "");
  std::string text = "hello";
  parts().transmit.AGWPE_Con_Send(text);
  EXPECT_EQ(run().ToVia, "PA3ABC ");
  EXPECT_EQ(run().TxCounters[11], 1);
  // A type outside the table is not counted, yet the frame goes.
  path("CQ", "");
  parts().txPanel.ValidateToViaBoxes();
  const auto countersBefore = run().TxCounters;
  std::string other = "x";
  parts().transmit.AGWPE_UI_Send(other, 13);
  ASSERT_EQ(sent().size(), 1u);
  EXPECT_EQ(sent()[0].text, "x");
  EXPECT_EQ(run().TxCounters, countersBefore);
}

}  // namespace
}  // namespace tesk::testing
