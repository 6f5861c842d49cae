// APRS messages out, as frames on the wire: which addressees get an ack request, the lengths,
// the numbering per addressee, and the retries of the tick in virtual time.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "main/station_parts.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

class MessageTest : public SendTest {
 protected:
  void startMessages(int ackType = 2) {
    startLan();
    config().AckUIViewType = static_cast<int16_t>(ackType);
    path("CQ", "");
  }
  // Typing into For and Message, then the send button.
  void send(const std::string& forCall, const std::string& message = "hi") {
    main().cmbFor.text = forCall;
    main().cmbAPRSMessage.text = message;
    parts().txPanel.Press(SendButton::APRSMessage);
  }
  PendingMessage& row(int i) { return run().PendingMessages[static_cast<std::size_t>(i)]; }
  MessageSending& sending() { return parts().messageSending; }
  int count(int kind) { return run().TxCounters[static_cast<std::size_t>(kind)]; }
};

TEST_F(MessageTest, OnlyAddresseesWithADigitAndNoBulletinWordGetAnAckRequest) {
  startMessages();
  struct Case {
    const char* forCall;
    bool ack;
  };
  // ALLCALL and SATGATE start with a listed word; EMAIL2 holds a digit and is no listed word.
  const Case cases[] = {{"XX9AB", true},  {"ALLCALL", false}, {"SATGATE", false}, {"BLN1", false},
                        {"EMAIL", false}, {"CQ", false},      {"EMAIL2", true}};
  for (int noAckTag : {0, 1}) {
    config().NoAckTag = static_cast<int16_t>(noAckTag);
    sending().ClearSent();
    const std::size_t before = sent().size();
    for (const Case& c : cases)
      send(c.forCall);
    const auto got = sent();
    ASSERT_EQ(got.size(), before + 7);
    for (std::size_t i = 0; i < 7; ++i) {
      std::string block = cases[i].forCall;
      block = ":" + block + std::string(9 - block.size(), ' ') + ":hi";
      const std::string tag = noAckTag ? "{00" : " [TESK]{00";
      EXPECT_EQ(got[before + i].text, cases[i].ack ? block + tag : block)
          << cases[i].forCall << " tag " << noAckTag;
    }
  }
  EXPECT_EQ(count(TxAPRSMessageAck), 4);
  EXPECT_EQ(count(TxAPRSMessage), 10);
  // The words are looked for in the upper-cased addressee, while the frame keeps it as typed;
  // an addressee longer than any call is judged the same way.
  send("bln1x");
  EXPECT_EQ(sent().back().text, ":bln1x    :hi");
  send("xx9ab");
  EXPECT_EQ(sent().back().text, ":xx9ab    :hi{00");
  send(std::string(40, 'q') + "7");
  EXPECT_EQ(sent().back().text, ":qqqqqqqqq:hi{00");
  send(std::string(40, 'q'));
  EXPECT_EQ(sent().back().text, ":qqqqqqqqq:hi");
  // Auto-reply only: never a tag, and the plain message kind.
  config().AckUIViewType = 1;
  send("XX9AB");
  EXPECT_EQ(sent().back().text, ":XX9AB    :hi");
  EXPECT_EQ(count(TxAPRSMessage), 13);
  EXPECT_EQ(count(TxAPRSMessageAck), 6);
}

TEST_F(MessageTest, TheTextIsCutToLeaveRoomForTheTagAndTheAddressBlockTakesNine) {
  startMessages();
  const std::string text69(69, 'm');
  send("XX9AB", text69);
  EXPECT_EQ(sent().back().text, ":XX9AB    :" + text69.substr(0, 59) + " [TESK]{00");
  path("CQ", "ARISS,WIDE2-1");
  send("XX9AB", text69);
  EXPECT_EQ(sent().back().text, ":XX9AB    :" + text69.substr(0, 58) + " [TESK]{01");
  path("CQ", "");
  send("CQ", text69);
  EXPECT_EQ(sent().back().text, ":CQ       :" + text69);
  // Ten characters in For: nine in the block, the whole addressee in the pending row.
  send("XX9ABCDEFG");
  EXPECT_EQ(sent().back().text, ":XX9ABCDEF:hi [TESK]{00");
  EXPECT_EQ(row(2).PendingFor, "XX9ABCDEFG");
  // An empty For sends nothing and asks for one.
  const std::size_t before = sent().size();
  send("   ");
  EXPECT_EQ(sent().size(), before);
  ASSERT_FALSE(platform.simDialogs.shown.empty());
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "Empty 'For:' designation\r\nYou need to enter a callsign or topic in the 'For:' "
            "field.");
  EXPECT_EQ(main().txFocus, "cmbFor");
}

TEST_F(MessageTest, EachAddresseeCountsInItsFirstRowAndTheTableWrapsAtForty) {
  startMessages();
  config().NoAckTag = 1;
  send("XX9AB");
  send("XX9AB");
  send("XX9AB");
  send("YY1CD");
  std::vector<std::string> tails;
  for (const SentUi& s : sent())
    tails.push_back(s.text.substr(s.text.size() - 3));
  EXPECT_EQ(tails, (std::vector<std::string>{"{00", "{01", "{02", "{00"}));
  EXPECT_EQ(row(0).PendingSeq, 2);  // raised in place
  EXPECT_EQ(row(1).PendingSeq, 1);
  EXPECT_EQ(row(2).PendingSeq, 2);
  EXPECT_EQ(row(3).PendingSeq, 0);
  // The clearing frees the rows; the next message starts at row 0 and at 00 again.
  sending().ClearSent();
  EXPECT_FALSE(sending().retryTickRunning());
  send("XX9AB");
  EXPECT_EQ(sent().back().text, ":XX9AB    :hi{00");
  EXPECT_EQ(row(0).PendingText, ":XX9AB    :hi{00");
  for (int i = 1; i < 40; ++i)
    send("XX9AB");
  EXPECT_EQ(row(39).PendingSeq, 39);
  send("ZZ1ZZ");  // the 41st pending row overwrites row 0
  EXPECT_EQ(row(0).PendingFor, "ZZ1ZZ");
  EXPECT_EQ(row(40).PendingFor, "");
  // Row 0 held the count of XX9AB; the count goes on in its next row, 1.
  send("XX9AB");
  EXPECT_EQ(sent().back().text, ":XX9AB    :hi{02");
}

TEST_F(MessageTest, TheHundredthNumberHasThreeDigitsAndTheTextKeepsItsLength) {
  startMessages();
  const std::string text69(69, 'm');
  for (int i = 0; i < 100; ++i)
    send("XX9AB");
  EXPECT_EQ(sent().back().text, ":XX9AB    :hi [TESK]{99");
  send("XX9AB", text69);
  const std::string last = sent().back().text;
  EXPECT_EQ(last, ":XX9AB    :" + text69.substr(0, 59) + " [TESK]{100");
  EXPECT_EQ(last.size(), 81u);
}

TEST_F(MessageTest, AMessageIsSentFourTimesAndGivenUpAtTheFifthTick) {
  startMessages();
  send("XX9AB");
  ASSERT_EQ(sent().size(), 1u);
  const double t0 = platform.simLoop.now();
  const auto at = [&](double s) { platform.simLoop.run(t0 + s - platform.simLoop.now()); };
  std::vector<std::size_t> counts;
  for (double s : {19.5, 20.5, 39.5, 40.5, 60.5, 79.5, 80.5})
    counts.push_back((at(s), sent().size()));
  EXPECT_EQ(counts, (std::vector<std::size_t>{1, 2, 2, 3, 4, 4, 4}));
  EXPECT_EQ(row(0).PendingDone, -1);
  EXPECT_EQ(main().PendingTries[0], 0);
  EXPECT_TRUE(sending().retryTickRunning());  // stops at the next tick, with nothing left
  at(100.5);
  EXPECT_FALSE(sending().retryTickRunning());
  for (const SentUi& s : sent())
    EXPECT_EQ(s.text, ":XX9AB    :hi [TESK]{00");
}

TEST_F(MessageTest, PendingRowsAreServedOneAfterTheOtherAndAnsweredOnesSkipped) {
  startMessages();
  config().NoAckTag = 1;
  send("XX9AB", "a");
  send("YY1CD", "b");
  send("ZZ1ZZ", "c");
  row(1).PendingDone = 100;  // acked
  platform.simLoop.run(20 * 9 + 1);
  std::vector<std::string> texts = sentTexts();
  EXPECT_EQ(texts,
            (std::vector<std::string>{":XX9AB    :a{00", ":YY1CD    :b{00", ":ZZ1ZZ    :c{00",
                                      ":XX9AB    :a{00", ":XX9AB    :a{00", ":XX9AB    :a{00",
                                      ":ZZ1ZZ    :c{00", ":ZZ1ZZ    :c{00", ":ZZ1ZZ    :c{00"}));
  EXPECT_EQ(row(0).PendingDone, -1);
  EXPECT_EQ(row(1).PendingDone, 100);
  EXPECT_EQ(row(2).PendingDone, -1);
  EXPECT_FALSE(sending().retryTickRunning());
}

TEST_F(MessageTest, StopPendingGivesUpEveryPendingRowAndIsOfferedOnlyWhileRetrying) {
  startMessages();
  CommandTable& table = station->commands();
  station->consoleLine(":stoppending");
  EXPECT_EQ(platform.simViews.notices.back(), "No messages pending");
  table.run({Command::menusend});
  EXPECT_FALSE(main().mnuStopPending.enabled);
  EXPECT_FALSE(table.enabled({Command::mnuStopPending}));
  send("XX9AB");
  send("YY1CD");
  platform.simLoop.run(21);
  table.run({Command::menusend});
  EXPECT_TRUE(main().mnuStopPending.enabled);
  EXPECT_TRUE(table.run({Command::mnuStopPending}));
  EXPECT_EQ(row(0).PendingDone, -1);
  EXPECT_EQ(row(1).PendingDone, -1);
  EXPECT_EQ(main().PendingTries[0], 0);
  EXPECT_FALSE(sending().retryTickRunning());
  platform.simLoop.run(100);
  EXPECT_EQ(sent().size(), 3u);
  // The rows stay for the sent list, unanswered.
  station->consoleLine(":sent");
  const auto& notices = platform.simViews.notices;
  ASSERT_GE(notices.size(), 2u);
  const std::string first = ":XX9AB    :hi [TESK]";
  EXPECT_EQ(notices[notices.size() - 2], first + std::string(80 - first.size(), ' ') + " | 00N");
  row(1).PendingDone = 101;
  station->consoleLine(":sent");
  EXPECT_EQ(notices.back().substr(notices.back().size() - 6), " | 00Y");
  sending().ClearSent();
  station->consoleLine(":sent");
  EXPECT_EQ(notices.back(), "No messages sent with an ack request");
}

TEST_F(MessageTest, RowsWithoutARetryCountAreGivenUpWithoutFault) {
  startMessages();
  config().NoAckTag = 1;
  for (int i = 0; i < 23; ++i)
    send("XX9AB");
  for (int i = 0; i <= 20; ++i)
    row(i).PendingDone = 100;
  main().PendingTries = {};
  const std::size_t before = sent().size();
  platform.simLoop.run(20.5);
  EXPECT_EQ(sent().size(), before);  // no retry for row 21
  EXPECT_EQ(row(21).PendingDone, -1);
  EXPECT_EQ(row(22).PendingDone, 0);
  ASSERT_TRUE(station->commands().run({Command::mnuStopPending}));
  EXPECT_EQ(row(22).PendingDone, -1);
  for (int16_t tries : main().PendingTries)
    EXPECT_EQ(tries, 0);
}

TEST_F(MessageTest, TheConsoleTypesForAndMessageAndSendsAgainWithoutText) {
  startMessages();
  station->consoleLine(":for xx9ab");
  EXPECT_EQ(main().cmbFor.text, "XX9AB");
  station->consoleLine(":msg hello {there}");
  station->consoleLine(":msg");
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{":XX9AB    :hello {there} [TESK]{00",
                                                   ":XX9AB    :hello {there} [TESK]{01"}));
  // The history keeps one copy, without braces; For's history the addressee once.
  const auto& messages = main().cmbAPRSMessage.list;
  EXPECT_EQ(std::count(messages.begin(), messages.end(), "hello (there)"), 1);
  const auto& addressees = main().cmbFor.list;
  EXPECT_EQ(std::count(addressees.begin(), addressees.end(), "XX9AB"), 1);
}

class DirectMessageTest : public MessageTest {};

TEST_F(DirectMessageTest, ARetryTakesTheViaFieldAsItStandsNow) {
  startDirect();
  config().AckUIViewType = 2;
  path("CQ", "ARISS");
  send("XX9AB");
  main().cmbViaCall.text = "WIDE1-1";  // typed, not entered
  platform.simLoop.run(20.5);
  const auto got = sent();
  ASSERT_EQ(got.size(), 2u);
  EXPECT_EQ(got[0].via, std::vector<std::string>{"ARISS"});
  EXPECT_EQ(got[1].via, std::vector<std::string>{"WIDE1-1"});
  EXPECT_EQ(got[1].text, got[0].text);
}

}  // namespace
}  // namespace tesk::testing
