// APRS messages in, through the core in virtual time with frames as each engine sends them:
// the ack and the auto-reply, the booking of received acks against the messages sent, and the
// message list with its cap, its duplicate test and its filters.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "alarms/date_stamp.h"
#include "main/station_parts.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

class ReceptionTest : public SendTest {
 protected:
  // Direct mode against an engine of the given kind, with acks and auto-replies on.
  void startWith(Dialect dialect) {
    WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 0));
    direct = std::make_unique<DialectEngine>(platform, dialect, kHost, kPort);
    start("");
    ASSERT_TRUE(station->loaded());
    config().AckUIViewType = 2;
    config().AutoAnswer = 1;
    config().AutoAnswerText = "QRV";
    config().LogDigipeatedMessages = 0;
    config().UseAlarmSound = 0;
    path("APRS", "");
    framesBefore = direct->received.size();
  }
  // A packet on the air, then the core's ticks and the waits of the answers.
  void hear(const std::string& tnc2, double seconds = 3) {
    direct->hear(tnc2);
    platform.simLoop.run(seconds);
  }
  void send(const std::string& forCall, const std::string& message = "hi") {
    main().cmbFor.text = forCall;
    main().cmbAPRSMessage.text = message;
    parts().txPanel.Press(SendButton::APRSMessage);
  }
  MessageReception& reception() { return parts().messageReception; }
  std::vector<std::string> stored() {
    return {run().MessageLog.begin(), run().MessageLog.begin() + run().MessageLogCount};
  }
  // The stored messages of one sender: the engine's reports of the own answers are stored too.
  std::vector<std::string> heardFrom(const std::string& call) {
    std::vector<std::string> out;
    const std::string from = "| From:" + call + std::string(9 - call.size(), ' ') + " |";
    for (const std::string& entry : stored())
      if (entry.find(from) != std::string::npos) out.push_back(entry);
    return out;
  }
  PendingMessage& row(int i) { return run().PendingMessages[static_cast<std::size_t>(i)]; }
  std::vector<std::string> consoleLines(const std::string& line) {
    const std::size_t before = platform.simViews.notices.size();
    station->consoleLine(line);
    const auto& all = platform.simViews.notices;
    return {all.begin() + static_cast<long>(before), all.end()};
  }
};

class EngineReceptionTest : public ReceptionTest, public ::testing::WithParamInterface<Dialect> {};

TEST_P(EngineReceptionTest, AMessageForTheStationIsAckedAfterASecondThenAnswered) {
  startWith(GetParam());
  // When each answer reaches the engine: a watcher that runs inside the core's waits too.
  std::vector<double> at;
  std::unique_ptr<Timer> watch = platform.loop().createTimer();
  watch->setInterval(50);
  watch->setHandler([&] {
    if (direct->received.size() - framesBefore > at.size()) at.push_back(platform.simLoop.now());
  });
  watch->setEnabled(true);
  const double t0 = platform.simLoop.now();
  hear("XX8AB>APRS,ARISS*::XX9TK    :hello there{12");
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{":XX8AB    :ack12", ":XX8AB    :[AA] QRV{12"}));
  ASSERT_EQ(at.size(), 2u);
  // The core takes the frame within a tick or two, then waits a second before each answer.
  EXPECT_GE(at[0] - t0, 1.0);
  EXPECT_LE(at[0] - t0, 1.7);
  EXPECT_NEAR(at[1] - at[0], 1.0, 0.1);
  EXPECT_EQ(run().TxCounters[TxAck], 2);
  // Stored whole, whatever the engine's line end: the last digit stays.
  // The engine's report of the own ack comes back as a message heard too.
  const std::vector<std::string> list = stored();
  ASSERT_GE(list.size(), 2u) << DialectName(GetParam());
  const std::string tail = " | From:XX8AB     | To:XX9TK     | Message:hello there{12";
  EXPECT_EQ(list[0].substr(list[0].size() - tail.size()), tail) << DialectName(GetParam());
  EXPECT_EQ(heardFrom("XX8AB").size(), 1u);
  EXPECT_NE(list[1].find("| From:XX9TK     | To:XX8AB     | Message:ack12"), std::string::npos);
  // The signs of a message for this station: the button, the For field, the data line's colour.
  EXPECT_EQ(main().cmdLoadMessenger.backColor, RGB(255, 0, 0));
  EXPECT_EQ(main().cmbFor.text, "XX8AB");
  ASSERT_FALSE(platform.simSound.played.empty());
  EXPECT_EQ(platform.simSound.played.back(), home.path() + "/Sounds/_Alarm2.wav");
  const std::string monitor = monitorText();
  const std::size_t line = monitor.rfind(":XX9TK    :hello there{12");
  ASSERT_NE(line, std::string::npos);
  EXPECT_EQ(main().txtMonitor.styleAt(line).color, config().MessageColor);
}

INSTANTIATE_TEST_SUITE_P(Engines, EngineReceptionTest,
                         ::testing::Values(Dialect::DireWolf16, Dialect::DireWolf18,
                                           Dialect::QtSoundModem, Dialect::AgwPacketEngine),
                         [](const auto& info) { return std::string(DialectName(info.param)); });

TEST_F(ReceptionTest, WhoGetsAnAckAndAnAutoReply) {
  startWith(Dialect::DireWolf16);
  // An auto-reply is acked, never answered: the mark stops two stations answering for ever.
  hear("XX8AB>APRS::XX9TK    :[AA] Away{03");
  EXPECT_EQ(sentTexts(), std::vector<std::string>{":XX8AB    :ack03"});
  // The own call with an SSID added: acked, as the call is in the data, but not flagged.
  main().cmbFor.text = "";
  const std::size_t sounds = platform.simSound.played.size();
  hear("XX7CD-9>APRS::XX9TK-7  :hi{5");
  EXPECT_EQ(platform.simSound.played.size(), sounds);
  EXPECT_EQ(sentTexts().back(), ":XX7CD-9  :[AA] QRV{05");
  EXPECT_EQ(sentTexts()[1], ":XX7CD-9  :ack05");
  EXPECT_EQ(main().cmbFor.text, "");
  // Without auto-answer only the ack goes out.
  config().AutoAnswer = 0;
  hear("XX6EF>APRS::XX9TK    :once more{44");
  EXPECT_EQ(sentTexts().back(), ":XX6EF    :ack44");
  EXPECT_EQ(sentTexts().size(), 4u);
  // A message for another station, or no ack handling at all: nothing on the air.
  hear("XX8AB>APRS::XX7ZZ    :not you{08");
  config().AckUIViewType = 0;
  hear("XX8AB>APRS::XX9TK    :ignored{09");
  EXPECT_EQ(sentTexts().size(), 4u);
  // All of them are in the list.
  EXPECT_EQ(stored().size() - heardFrom("XX9TK").size(), 5u);
}

TEST_F(ReceptionTest, AMessageHeardDirectAndThroughTheSatelliteIsStoredOnceAndAckedTwice) {
  startWith(Dialect::DireWolf16);
  config().AutoAnswer = 0;
  hear("XX8AB>APRS::XX9TK    :hi{07");
  hear("XX8AB>APRS,ARISS*::XX9TK    :hi{07");
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{":XX8AB    :ack07", ":XX8AB    :ack07"}));
  EXPECT_EQ(heardFrom("XX8AB").size(), 1u);
}

TEST_F(ReceptionTest, OnlyDigipeatedFramesAreStoredWithTheFactorySetting) {
  startWith(Dialect::DireWolf16);
  config().LogDigipeatedMessages = 1;
  hear("XX8AB>APRS::XX7ZZ    :direct");
  EXPECT_TRUE(stored().empty());
  hear("XX8AB>APRS,ARISS*::XX7ZZ    :through the satellite");
  ASSERT_EQ(stored().size(), 1u);
  EXPECT_NE(stored()[0].find("Message:through the satellite"), std::string::npos);
  // The ack does not depend on it; neither it nor its report is stored.
  hear("XX8AB>APRS::XX9TK    :direct{01");
  EXPECT_EQ(sentTexts().front(), ":XX8AB    :ack01");
  EXPECT_EQ(stored().size(), 1u);
  config().LogDigipeatedMessages = 0;
  hear("XX8AB>APRS::XX7ZZ    :direct");
  EXPECT_EQ(heardFrom("XX8AB").size(), 2u);
}

TEST_F(ReceptionTest, AcksBookTheirRowsAndEndTheRetries) {
  startWith(Dialect::DireWolf16);
  config().NoAckTag = 1;
  send("XX8AB", "one");
  send("XX8AB", "two");
  send("XX7CD", "three");
  ASSERT_EQ(sentTexts().size(), 3u);
  // Another number from the right call, or the right number from another SSID: nothing.
  hear("XX8AB>APRS::XX9TK    :ack05");
  hear("XX8AB-1>APRS::XX9TK    :ack00");
  EXPECT_EQ(row(0).PendingDone, 0);
  hear("XX8AB>APRS::XX9TK    :ack00");
  hear("XX8AB>APRS::XX9TK    :ack01");
  EXPECT_EQ(row(0).PendingDone, 100);
  EXPECT_EQ(row(1).PendingDone, 101);
  EXPECT_EQ(row(2).PendingDone, 0);
  hear("XX7CD>APRS::XX9TK    :ack00", 0.5);
  EXPECT_EQ(row(2).PendingDone, 100);
  const std::size_t before = sentTexts().size();
  platform.simLoop.run(100);
  EXPECT_EQ(sentTexts().size(), before);  // no retry: every row was answered
  EXPECT_FALSE(parts().messageSending.retryTickRunning());
  // Only two digits are compared: "07" answers the row numbered 107.
  row(3).PendingFor = "XX8AB";
  row(3).PendingText = ":XX8AB    :hi{107";
  hear("XX8AB>APRS::XX9TK    :ack07", 0.5);
  EXPECT_EQ(row(3).PendingDone, 107);
  EXPECT_EQ(consoleLines(":sent").back().substr(80), " | 07Y");
}

// LogAPRSMessages as the core calls it: the header as cut, the data with its line end.
class MessageListTest : public ReceptionTest {
 protected:
  void log(const std::string& from, const std::string& to, const std::string& text) {
    std::string header = "Fm " + from + " To APRS Via ARISS* <UI pid=F0 Len=20 >[12:00:00]";
    std::string data = ":" + to + std::string(9 - to.size(), ' ') + ":" + text + "\r\r\n";
    data.push_back('\0');
    data += "    ";
    reception().LogAPRSMessages(header, data);
  }
};

TEST_F(MessageListTest, TheListHoldsAtTwoHundredAndTheNewestTakesTheLastPlace) {
  startWith(Dialect::DireWolf16);
  for (int i = 1; i <= 201; ++i)
    log("XX8AB", "XX7ZZ", "message " + std::to_string(i));
  EXPECT_EQ(run().MessageLogCount, 200);
  EXPECT_NE(run().MessageLog[198].find("Message:message 199"), std::string::npos);
  EXPECT_NE(run().MessageLog[199].find("Message:message 201"), std::string::npos);
  EXPECT_TRUE(run().MessageLog[200].empty());
  // The double test sees every entry shown: the first and the newest are not stored again;
  // the 200th, replaced, comes back in the last place.
  log("XX8AB", "XX7ZZ", "message 1");
  log("xx8ab", "xx7zz", "MESSAGE 201");
  EXPECT_NE(run().MessageLog[199].find("Message:message 201"), std::string::npos);
  log("XX8AB", "XX7ZZ", "message 200");
  EXPECT_NE(run().MessageLog[199].find("Message:message 200"), std::string::npos);
  const auto lines = consoleLines(":messages 0");
  ASSERT_EQ(lines.size(), 201u);
  EXPECT_EQ(lines.back(), "Received Messages: 200/200");
}

TEST_F(MessageListTest, TheSixFiltersAndTheTotal) {
  startWith(Dialect::DireWolf16);
  config().YourCallSign = "XX9TK-2";  // Mine looks for the call without its SSID
  log("XX8AB", "XX9TK", "for me");
  log("XX8AB", "XX9TK-7", "for me too");
  log("XX8AB", "BLN1", "bulletin");
  log("XX8AB", "NWS-WARN", "weather");
  log("XX8AB", "SATGATE", "gateway");
  log("XX8AB", "EMAIL", "mail");
  log("XX8AB", "CQ", "anyone");
  const std::vector<std::size_t> counts = {7, 2, 1, 1, 1, 1};
  for (int filter = 0; filter < 6; ++filter) {
    const auto lines = consoleLines(":messages " + std::to_string(filter));
    ASSERT_EQ(lines.size(), counts[static_cast<std::size_t>(filter)] + 1) << filter;
    EXPECT_EQ(lines.back(), "Received Messages: " +
                                std::to_string(counts[static_cast<std::size_t>(filter)]) + "/7");
  }
  EXPECT_EQ(main().LastMessageKey, "XX8AB     | To:CQ        | Message:anyone");
  EXPECT_NE(consoleLines(":messages 2")[0].find("To:BLN1      | Message:bulletin"),
            std::string::npos);
  EXPECT_EQ(consoleLines(":messages 6"),
            std::vector<std::string>{"The filter is 0 to 5: All, Mine, BLN, NWS, SAT, EMAIL"});
  EXPECT_EQ(consoleLines(":messages all").size(), 1u);
  // Without a row the selected one is used: the last chosen, EMAIL.
  EXPECT_EQ(consoleLines(":messages").back(), "Received Messages: 1/7");
}

TEST_F(MessageListTest, TheConsoleSavesAndClearsWithTheWindowsQuestions) {
  startWith(Dialect::DireWolf16);
  SimDialogs& boxes = platform.simDialogs;
  station->consoleLine(":savemessages");
  EXPECT_EQ(boxes.shown.back().text, "Nothing to save");
  log("XX8AB", "XX9TK", "first");
  log("XX7CD", "BLN", "second");
  const std::string file = home.file("saved.log");
  boxes.answers = {file};
  station->consoleLine(":savemessages");
  const std::string proposed =
      home.path() + "/Messages/APRSMessages" + DateStamp(config(), platform.clock()) + ".log";
  EXPECT_EQ(boxes.shown.back().text, proposed);
  const std::string saved = ReadFile(file);
  EXPECT_EQ(saved, stored()[0] + "\r\n" + stored()[1] + "\r\n");
  // A file that cannot be written: said so, and the list stays.
  boxes.answers = {"/nonexistent/folder/saved.log"};
  station->consoleLine(":savemessages");
  EXPECT_EQ(boxes.shown.back().text, "Could not save /nonexistent/folder/saved.log");
  EXPECT_EQ(stored().size(), 2u);

  boxes.answers = {"N"};
  station->consoleLine(":clearmessages");
  EXPECT_EQ(boxes.shown.back().text, "Do you want remove all the received APRS messages?");
  EXPECT_EQ(stored().size(), 2u);
  boxes.answers = {"Y"};
  station->consoleLine(":clearmessages");
  EXPECT_TRUE(stored().empty());
  station->consoleLine(":clearmessages");
  EXPECT_EQ(boxes.shown.back().text, "Nothing to clear");

  // The sent list: its question, then the rows go and the numbers stay.
  send("XX8AB");
  boxes.answers = {"Y"};
  station->consoleLine(":clearsent");
  EXPECT_EQ(boxes.shown.back().text, "Do you want remove all your sent APRS messages?");
  EXPECT_EQ(consoleLines(":sent"),
            std::vector<std::string>{"No messages sent with an ack request"});
  station->consoleLine(":clearsent");
  EXPECT_EQ(boxes.shown.back().text, "Nothing to clear");
}

TEST_F(MessageListTest, AHeaderWithoutToOrTooShortADataIsPassedOver) {
  startWith(Dialect::DireWolf16);
  std::string header = "Fm XX8AB <UI pid=F0 Len=20 >*";
  std::string data = ":XX9TK    :hi{01\r\r\n";
  data.push_back('\0');
  reception().LogAPRSMessages(header, data);
  reception().AutoAckCall(header, data);
  EXPECT_TRUE(stored().empty());
  std::string shortData = std::string("ab") + '\0';
  std::string good = "Fm XX8AB To APRS Via ARISS* <UI>";
  reception().LogAPRSMessages(good, shortData);
  EXPECT_TRUE(stored().empty());
  platform.simLoop.run(3);
  EXPECT_TRUE(sentTexts().empty());
  // A parsed header becomes the sender's call, which the packet log then writes in its place.
  std::string ackData = ":XX9TK    :ack00";
  reception().AutoAckCall(good, ackData);
  EXPECT_EQ(good, "XX8AB");
}

TEST_F(ReceptionTest, TheOwnEchoIsStoredWithItsWholeText) {
  startLan(1);  // [Emulate_TXFrames_On_SlowNetPC] on
  config().AckUIViewType = 2;
  config().LogDigipeatedMessages = 0;
  path("APRS", "ARISS");
  main().cmbFor.text = "XX8AB";
  main().cmbAPRSMessage.text = "hello";
  parts().txPanel.Press(SendButton::APRSMessage);
  ASSERT_EQ(stored().size(), 1u);
  const std::string tail = " | From:XX9TK     | To:XX8AB     | Message:hello [TESK]{00";
  EXPECT_EQ(stored()[0].substr(stored()[0].size() - tail.size()), tail);
  // A message from this station to someone else raises no sign.
  EXPECT_EQ(main().cmdLoadMessenger.backColor, kButtonFace);
  // Every own frame is handed on, message or not, and so a text frame is stored as well.
  main().cmbDataText.text = "plain text out";
  parts().txPanel.Press(SendButton::DataText);
  ASSERT_EQ(stored().size(), 2u);
  EXPECT_NE(stored()[1].find("To:lain text | Message:out"), std::string::npos);
}

}  // namespace
}  // namespace tesk::testing
