// The receive path in LAN mode, in virtual time: frames from the scripted engine through the
// in-memory socket, one per core tick, painted as header and data lines; the port gate, the
// frozen Monitor, the split with its kept oddities, "Remove double", the server copy, the
// alarms, the timed beacon's place in the tick and the order of every hand-off.
#include <gtest/gtest.h>

#include "core/core_fixture.h"
#include "core/utc_clock.h"

namespace tesk::testing {
namespace {

using PacketCoreLan = CoreTest;

const std::string kNul(1, '\0');

// The header line the Monitor paints for an engine text: from "Fm " to before the CR.
std::string HeaderOf(const std::string& text) {
  return Mid(text, 4, InStr(text, "\r") - 4);
}

// True when every entry of the log is `name`.
bool Only(const std::vector<std::string>& calls, const std::string& name) {
  for (const std::string& c : calls)
    if (c != name) return false;
  return !calls.empty();
}

TEST_F(PacketCoreLan, FramePaintsHeaderAndDataLinesInTheirColours) {
  startLan();
  config().HeaderColor = RGB(255, 255, 0);
  config().DataColor = RGB(0, 255, 255);
  config().FontSize = 11;
  config().FontBold = -1;
  feed(EngineText("Hello\rSecond line\r"));
  const std::string header = "Fm PA3ABC To CQ <UI pid=F0 Len=18 >[12:00:00]";
  // Each CR of the data doubled to CR CR LF; what follows the frame's NUL never shows.
  ASSERT_EQ(shown(), header + "\r\nHello\r\r\nSecond line\r\r\n");
  const std::size_t at = txt().length() - shown().size();
  EXPECT_EQ(txt().styleAt(at), (TextStyle{RGB(255, 255, 0), true, 11}));
  EXPECT_EQ(txt().styleAt(at + header.size() + 2), (TextStyle{RGB(0, 255, 255), true, 11}));
  // The receive lamp lights for the frame and goes out on its own.
  EXPECT_TRUE(main().imgTXRXlight[0].visible);
  platform.simLoop.run(1.0);
  EXPECT_FALSE(main().imgTXRXlight[0].visible);
  EXPECT_FALSE(parts().digiFlash.timer().enabled());
  // One frame per arrival: the slot is taken, later ticks find nothing.
  platform.simLoop.run(2.0);
  EXPECT_EQ(shown(), header + "\r\nHello\r\r\nSecond line\r\r\n");
}

TEST_F(PacketCoreLan, DireWolfMonitorTextShowsAsHeaderAndDataLine) {
  startLan();
  // As Dire Wolf 1.6 sends it: the text ends in CR and a NUL that its length counts.
  feed(" 1:Fm DL1XYZ-7 To CQ Via RS0ISS <UI pid=F0 Len=11 PF=0 >[13:38:39]\rSecond line\r" + kNul);
  EXPECT_EQ(shown(),
            "Fm DL1XYZ-7 To CQ Via RS0ISS <UI pid=F0 Len=11 PF=0 >[13:38:39]\r\nSecond line\r\r\n");
}

TEST_F(PacketCoreLan, PortGateWithOnePortAndWithAll) {
  startLan();
  record();
  feed(EngineText("on two\r", 2));
  EXPECT_EQ(shown(), "");
  EXPECT_TRUE(Only(hands().calls, "LogEerstPoorten")) << hands().joined();  // dropped at the gate
  feed(EngineText("on one\r", 1));
  EXPECT_NE(shown().find("on one"), std::string::npos);
  EXPECT_EQ(shown().find("on two"), std::string::npos);

  // "All" switches the port test off.
  parts().ports.AGWPortRX(6);
  EXPECT_EQ(main().FrameComm.caption, "Communication Ports: TX-1 / RX All");
  mark();
  feed(EngineText("on two\r", 2));
  feed(EngineText("on three\r", 3));
  EXPECT_NE(shown().find("on two"), std::string::npos);
  EXPECT_NE(shown().find("on three"), std::string::npos);
  // A single port again: the port is read from the text, not from the frame's port field.
  parts().ports.AGWPortRX(2);
  mark();
  feed(EngineText("text says three\r", 3), 'U', 0);
  feed(EngineText("text says one\r", 1), 'U', 2);
  EXPECT_NE(shown().find("text says three"), std::string::npos);
  EXPECT_EQ(shown().find("text says one"), std::string::npos);
}

TEST_F(PacketCoreLan, FrozenMonitorDropsFramesForEveryPurpose) {
  startLan();
  config().AlarmSet = 1;
  config().AlarmSetHeaderText = "PA3ABC";
  main().menuedits[100].checked = true;
  record();
  feed(EngineText("first\r"));
  feed(EngineText("second\r"));
  EXPECT_EQ(shown(), "");
  EXPECT_FALSE(main().imgTXRXlight[0].visible);
  EXPECT_EQ(count("AddToMheardList") + count("PlayAlarm(1)") + count("LogPacketToDisk(1)"), 0);
  // The slot is emptied only past the gate: the last frame of the freeze is still there and
  // comes through at the first tick after the thaw.
  main().menuedits[100].checked = false;
  platform.simLoop.run(0.3);
  EXPECT_EQ(shown().find("first"), std::string::npos);
  EXPECT_NE(shown().find("second"), std::string::npos);
  EXPECT_EQ(count("PlayAlarm(1)"), 1);
}

TEST_F(PacketCoreLan, TextWithoutHeaderLineStartsItsDataWithCrLf) {
  startLan();
  config().AGWPERXPort = 6;
  record();
  feed("*** a line from the engine\rmore text\r");
  // No header: the first line goes nowhere in the Monitor, the data begins with CR LF.
  EXPECT_EQ(shown(), "\r\nmore text\r\r\n");
  EXPECT_EQ(count("AddToMheardList"), 0);
  EXPECT_EQ(count("LogDigi"), 0);
  EXPECT_EQ(count("data line"), 1);
}

TEST_F(PacketCoreLan, ConnectRequestsReplayTheSlotOnce) {
  // The connect requests leave the slot marked ready with nothing new in it: with all ports
  // taken, the first tick shows that as an empty line, once.
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
  engine = std::make_unique<ScriptedEngine>(platform.network, kHost, kPort);
  make("/LAN");
  platform.simDialogs.answers.push_back("XX9TK");
  station->Start();
  station->config().AGWPERXPort = 6;
  mark();
  record();
  platform.simLoop.run(1.0);
  EXPECT_EQ(count("data line"), 1);
  EXPECT_EQ(count("AddToMheardList"), 0);
  EXPECT_EQ(Trim(Replace(Replace(shown(), "\r", ""), "\n", "")), "");
}

TEST_F(PacketCoreLan, TcpFrameIsReadThroughItsOneByteLength) {
  startLan();
  const std::string head = EngineText("");
  // 255 characters arrive whole.
  const std::string fits = head + std::string(255 - head.size(), 'a');
  feed(fits);
  // The reader's NUL behind the data ends the painted text, line end and all.
  EXPECT_EQ(shown(), HeaderOf(head) + "\r\n" + std::string(255 - head.size(), 'a'));
  // 256 reads as a length of 0: no header, an empty data line.
  mark();
  feed(head + std::string(256 - head.size(), 'b'));
  EXPECT_EQ(shown(), "\r\n\r\n");
  // 300 reads as 44, inside the header line: no CR is seen, so the cut header is shown and
  // the data is the same 44 characters again.
  mark();
  const std::string long300 = head + std::string(300 - head.size(), 'c');
  feed(long300);
  EXPECT_EQ(shown(), Mid(long300, 4, 41) + "\r\n" + Left(long300, 44) + "\r\n");
}

TEST_F(PacketCoreLan, RemoveDoubleShowsDropsAndShowsAgain) {
  startLan();
  config().RemoveSame = 1;
  config().AlarmSet = 1;
  config().AlarmSetHeaderText = "pa3abc";  // upper-cased for the test: matches
  record();
  const std::string frame = EngineText("same\r");
  const std::string painted = HeaderOf(frame) + "\r\nsame\r\r\n";
  feed(frame);
  feed(frame);
  feed(frame);
  // The dropped copy leaves only its (empty) data line.
  EXPECT_EQ(shown(), painted + "\r\n" + painted);
  EXPECT_EQ(count("AddToMheardList"), 2);
  // Emptied header and data raise no alarm.
  EXPECT_EQ(count("PlayAlarm(1)"), 2);
  // Another second, another header: not a double.
  mark();
  feed(EngineText("same\r", 1, "PA3ABC To CQ", "12:00:01"));
  EXPECT_NE(shown().find("12:00:01"), std::string::npos);
}

TEST_F(PacketCoreLan, FilteredFrameIsNotShownButStillAlarmsAndMeetsTheLimit) {
  startLan();
  parts().filters.SetFilterText("XYZ");
  config().AlarmSet = 2;
  config().AlarmSetDataText = "hello";
  config().SlowPC = -1;
  config().MonBufferLimit = 16000;
  txt().setText(std::string(16000, 'x'), TextStyle{});
  record();
  feed(EngineText("HELLO world\r"));
  EXPECT_EQ(hands().joined(), "LogEerstPoorten, buffer limit, PlayAlarm(2)");
  EXPECT_EQ(txt().text(), std::string(16000, 'x'));  // nothing shown, so nothing to cut
  // A passing frame is shown, and the limit cuts the buffer after it.
  parts().filters.SetFilterText("PA3ABC");
  feed(EngineText("HELLO again\r"));
  EXPECT_EQ(txt().length(), 8000u);
}

TEST_F(PacketCoreLan, ServerCopyWritesTheWholeBufferToUIdata) {
  startLan();
  const std::string path = home.file("UIdata.dat");
  feed(EngineText("no server\r"));
  EXPECT_FALSE(std::filesystem::exists(path));
  config().TESKServer = 1;
  parts().core.WriteDataToDisk = -1;
  record();
  const std::string text = EngineText("for add-ons\r");
  feed(text);
  // The 512-character buffer as it came: text, the reader's NUL, blanks; no line end.
  std::string expected = text + kNul;
  expected.resize(512, ' ');
  EXPECT_EQ(ReadFile(path), expected);
  EXPECT_EQ(count("TESKRegistryMod"), 1);
  feed(EngineText("next\r"));
  EXPECT_EQ(ReadFile(path).substr(0, 45), EngineText("next\r").substr(0, 45));
}

TEST_F(PacketCoreLan, BeaconItemDueInTheTickOfAFrameDelaysItByOneTick) {
  startLan();
  int sent = 0;
  parts().beacon.items.cmdTXDataText_Click = [&] { ++sent; };
  config().Beacon = -1;
  config().SelectedBeacon = 100001;
  config().SelectedBeaconItems = 1;
  // Line the frame up with the next tick: it arrives just after one.
  record();
  platform.simLoop.runUntil(1.0, [&] { return !hands().calls.empty(); });
  parts().beacon.BeaconSeconds = config().BeaconInterval;
  engine->sendRaw(AgwBytes(0, 'U', "PA3ABC", "CQ", EngineText("waits\r")));
  platform.simLoop.run(0.26);
  EXPECT_EQ(sent, 1);
  EXPECT_EQ(shown(), "");
  // In LAN mode the frame stays in the slot and is shown by the next tick.
  platform.simLoop.run(0.25);
  EXPECT_NE(shown().find("waits"), std::string::npos);
  EXPECT_EQ(sent, 1);
}

TEST_F(PacketCoreLan, HandOffsComeInTheirOrder) {
  startLan();
  config().TESKServer = 1;
  parts().core.WriteDataToDisk = -1;
  config().AlarmSet = 1;
  config().AlarmSetHeaderText = "To CQ";
  record();
  feed(EngineText(":XX9TK    :hello{01\r"));
  EXPECT_EQ(hands().joined(),
            "LogEerstPoorten, TESKRegistryMod, WriteTextFile(UIdata.dat), AddToMheardList, "
            "LogDigi, header line, LogAPRSMessages, AutoAckCall, data line, "
            "LogPacketToDisk(1), LogPacketToDisk(2), buffer limit, PlayAlarm(1)");
  // The logs follow their settings; a LAN tick ends after the alarms.
  config().AutomaticLogging = 0;
  config().AutoDigiLogBook = 0;
  config().AlarmSet = 0;
  config().TESKServer = 0;
  record();
  feed(EngineText("plain\r", 1, "PA3ABC To XX9TK"), 'D');
  EXPECT_EQ(hands().joined(),
            "LogEerstPoorten, AddToMheardList, LogDigi, header line, data line, buffer limit");
}

TEST_F(PacketCoreLan, MonitorBoxesAndMessageColour) {
  startLan();
  config().MessageColor = RGB(0, 200, 0);
  // A message for this station: its data line once in [MessageColor].
  parts().monitor.MessageFlagForMe = -1;
  feed(EngineText("for me\r"));
  const std::size_t data = txt().text().rfind("for me");
  EXPECT_EQ(txt().styleAt(data).color, RGB(0, 200, 0));
  EXPECT_EQ(parts().monitor.MessageFlagForMe, 0);
  feed(EngineText("not for me\r"));
  EXPECT_EQ(txt().styleAt(txt().text().rfind("not for me")).color, config().DataColor);

  // "No header": the data line alone; the list still gets the station, LogDigi does not run.
  main().chkViewDataOnly.value = 1;
  record();
  mark();
  feed(EngineText("data only\r"));
  EXPECT_EQ(shown(), "data only\r\r\n");
  EXPECT_EQ(hands().joined(),
            "LogEerstPoorten, AddToMheardList, data line, LogPacketToDisk(1), LogPacketToDisk(2), "
            "buffer limit");
  main().chkViewDataOnly.value = 0;

  // "Scroll" off: the caret stays where the operator left it.
  main().chkScroll.value = 0;
  txt().setSelection(5, 0);
  feed(EngineText("quiet\r"));
  EXPECT_EQ(txt().selStart(), 5u);
  main().chkScroll.value = 1;
  feed(EngineText("follow\r"));
  EXPECT_EQ(txt().selStart(), txt().length());
}

}  // namespace
}  // namespace tesk::testing
