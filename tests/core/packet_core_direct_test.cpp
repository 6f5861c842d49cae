// The receive path in direct mode, with a scripted AGWGetData and ticks called one by one:
// connection events forced through the gate, the three connection blocks, the "[AC]" test
// with its bitwise AND, UTC in the header, a beacon item that costs the tick's frame, and a
// tick that waits inside a callee while the timer keeps firing.
#include <gtest/gtest.h>

#include "core/core_fixture.h"

namespace tesk::testing {
namespace {

using PacketCoreDirect = CoreTest;

TEST_F(PacketCoreDirect, ConnectionEventsPassTheGateAndRunTheirBlocks) {
  startDirect();
  main().menuedits[100].checked = true;
  record();
  script.items.push_back({EngineText("frozen out\r"), 'U'});
  tick();
  EXPECT_EQ(shown(), "");
  // A connection event goes through a frozen Monitor and is painted like any other frame:
  // its one line is not a header, so only the data line (CR LF) shows.
  script.items.push_back({"*** CONNECTED With Station PA3ABC\r", 'c'});
  tick();
  EXPECT_EQ(shown(), "\r\n");
  EXPECT_EQ(hands().joined(),
            "LogEerstPoorten, LogEerstPoorten, data line, LogPacketToDisk(1), "
            "LogPacketToDisk(2), buffer limit, ConnectionUp");

  // Connected text: the first line, then the rest (which starts with CR LF), to PackCommand.
  record();
  script.items.push_back({"//HELP\rsecond line\r", 'D'});
  tick();
  EXPECT_EQ(count("PackCommand(first line)"), 1);
  EXPECT_EQ(count("PackCommand(rest)"), 1);
  EXPECT_EQ(station->run().Connected, -1);
  EXPECT_EQ(count("ConnectionUp") + count("Disconnected"), 0);

  // A disconnect notice counts when the first character of its text (behind the first line)
  // reads as the TX port; the NUL behind a one-line text reads as 0.
  record();
  script.items.push_back({"*** DISCONNECTED From Station PA3ABC\r", 'd'});
  tick();
  EXPECT_EQ(count("Disconnected"), 1);
  config().AGWPERadioPort = 1;
  script.items.push_back({"*** DISCONNECTED From Station PA3ABC\r", 'd'});
  script.items.push_back({"*** DISCONNECTED\r1", 'd'});
  tick();
  EXPECT_EQ(count("Disconnected"), 1);
  tick();
  EXPECT_EQ(count("Disconnected"), 2);
}

TEST_F(PacketCoreDirect, ConnectionKindsAreNotForcedInLanMode) {
  startLan();
  main().menuedits[100].checked = true;
  record();
  feed("*** CONNECTED With Station PA3ABC\r", 'c');
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(count("ConnectionUp"), 0);
}

TEST_F(PacketCoreDirect, UtcReplacesTheBracketedTime) {
  startDirect();
  config().ShowUTCInHeader = -1;
  config().AutoDetectUTC = -1;  // the sim's UTC is local 12:00:00 minus one hour
  config().AGWPERXPort = 6;
  struct Case {
    std::string text, header;
  };
  const Case cases[] = {
      {EngineText("x\r"), "Fm PA3ABC To CQ <UI pid=F0 Len=2 >[11:00:00]"},
      // An earlier "[" wins: the header is cut there.
      {EngineText("x\r", 1, "PA3[B] To CQ"), "Fm PA3[11:00:00]"},
      // A header ending in "." keeps its last two characters.
      {" 1:Fm PA3ABC To CQ [12:00:00].\rx\r", "Fm PA3ABC To CQ [11:00:00]."},
      // No header line: the header becomes the bare time, and is painted and listed as such.
      {"no header here\rx\r", "11:00:00"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    mark();
    record();
    script.items.push_back({c.text, 'U'});
    tick();
    EXPECT_EQ(shown().substr(0, c.header.size() + 2), c.header + "\r\n");
    EXPECT_EQ(count("AddToMheardList"), 1);
  }
  // From the stored offset: local 12 with an hour offset of -1.
  config().AutoDetectUTC = 0;
  config().UTCTimeOffsetHours = -1;
  mark();
  script.items.push_back({EngineText("y\r"), 'U'});
  tick();
  EXPECT_NE(shown().find(">[11:00:00]\r\n"), std::string::npos);
}

TEST_F(PacketCoreDirect, AssumedConnectionTestCombinesPositionsWithBitwiseAnd) {
  startDirect();
  station->run().ConnectedCall = "PA3ABC";
  parts().connection.frmConnected.caption = "Connected to PA3ABC on Channel 1 [AC]";
  const std::string text = EngineText("hello\r", 1, "PA3ABC To XX9TK");
  // "Fm PA3ABC To XX9TK" at 1, "[AC]" at 34: no bit in common, the frame stays a UI frame.
  record();
  script.items.push_back({text, 'U'});
  tick();
  EXPECT_EQ(count("ConnectedData"), 0);
  // With the port prefix kept the header match is at 3: 3 AND 34 is 2, so it is connected data.
  config().ShowPortInHeader = 2;
  record();
  script.items.push_back({text, 'U'});
  tick();
  EXPECT_EQ(hands().joined(),
            "LogEerstPoorten, AddToMheardList, LogDigi, header line, data line, "
            "LogPacketToDisk(1), LogPacketToDisk(2), buffer limit, ConnectedData, "
            "PackCommand(rest)");
  // The test stands before the filter and does not depend on it.
  parts().filters.SetFilterText("");  // a filter that passes nothing
  record();
  script.items.push_back({text, 'U'});
  tick();
  EXPECT_EQ(hands().joined(), "LogEerstPoorten, buffer limit, ConnectedData, PackCommand(rest)");
}

TEST_F(PacketCoreDirect, BeaconItemDueCostsTheFrameOfThatTick) {
  startDirect();
  std::vector<std::string> sent;
  BeaconItemSenders& items = parts().beacon.items;
  items.cmdTXDataText_Click = [&] { sent.push_back("text"); };
  items.SendMheardList = [&](int type) { sent.push_back("mheard " + std::to_string(type)); };
  config().Beacon = -1;
  config().SelectedBeacon = 110001;
  config().SelectedBeaconItems = 2;
  parts().beacon.BeaconSeconds = config().BeaconInterval;
  script.items.push_back({EngineText("lost\r"), 'U'});
  tick();
  EXPECT_EQ(script.polls, 1);
  EXPECT_EQ(sent, std::vector<std::string>{"text"});
  tick();
  EXPECT_EQ(shown(), "");  // the library gave it once; it is gone
  EXPECT_EQ(parts().beacon.BeaconSeconds, 0);
  // Each interval sends the next selected item, then the cycle starts again.
  parts().beacon.BeaconSeconds = config().BeaconInterval;
  tick();
  parts().beacon.BeaconSeconds = config().BeaconInterval;
  tick();
  EXPECT_EQ(sent, (std::vector<std::string>{"text", "mheard 1", "text"}));
}

TEST_F(PacketCoreDirect, TickNeverStartsWhileOneRuns) {
  startDirect();
  int depth = 0;
  int deepest = 0;
  // A callee that waits a second, as a message box or WachtEfkes would.
  script.onPoll = [&] {
    deepest = std::max(deepest, ++depth);
    platform.simLoop.waitUntil(1.0, {});
    --depth;
  };
  Timer& core = *parts().tmrMainPacketCore;
  core.setInterval(250);
  core.setEnabled(true);
  platform.simLoop.run(5.0);
  EXPECT_EQ(deepest, 1);
  EXPECT_GE(script.polls, 4);
  EXPECT_LE(script.polls, 5);
}

}  // namespace
}  // namespace tesk::testing
