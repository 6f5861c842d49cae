// Direct mode's transmissions and connected mode against every engine dialect: UI frames with
// and without digipeaters, a connection made, used and closed, one called in by another
// station, and one that nobody answers.
#include <gtest/gtest.h>

#include <span>

#include "support/direct_fixture.h"

namespace tesk::testing {
namespace {

class DirectConnected : public DirectBench {
 protected:
  void SetUp() override { ASSERT_TRUE(startUp()); }
};

TEST_P(DirectConnected, UiFramesTakeTheirPathFromTheCallText) {
  EXPECT_EQ(put('U', "CQ", "Hello"), 1);
  EXPECT_EQ(direct.AGWPutData("CQ RS0ISS,ARISS", "Hello world", 'V', 5, 0), 1);
  run(0.01);
  const std::vector<AgwFrame> plain = sent('M');
  ASSERT_EQ(plain.size(), 1u);
  EXPECT_EQ(plain[0].callFrom, "XX9TK");
  EXPECT_EQ(plain[0].callTo, "CQ");
  EXPECT_EQ(plain[0].pid, 0xF0);
  EXPECT_EQ(plain[0].data, "Hello");

  if (dialect() == Dialect::QtSoundModem) {
    // This engine ignores "V": the frame goes as a raw frame with the same path.
    EXPECT_TRUE(sent('V').empty());
    const std::vector<AgwFrame> raw = sent('K');
    ASSERT_EQ(raw.size(), 1u);
    const auto* b = reinterpret_cast<const uint8_t*>(raw[0].data.data());
    const std::optional<Ax25Frame> f =
        DecodeAx25(std::span<const uint8_t>(b + 1, raw[0].data.size() - 1));
    ASSERT_TRUE(f);
    EXPECT_EQ(f->destination.call, "CQ");
    EXPECT_EQ(f->source.call, "XX9TK");
    ASSERT_EQ(f->digipeaters.size(), 2u);
    EXPECT_EQ(f->digipeaters[1].call, "ARISS");
    EXPECT_FALSE(f->digipeaters[0].repeated);
    EXPECT_EQ(f->info, "Hello");
  } else {
    const std::vector<AgwFrame> via = sent('V');
    ASSERT_EQ(via.size(), 1u);
    EXPECT_EQ(via[0].callTo, "CQ");
    EXPECT_EQ(via[0].pid, 0xF0);
    EXPECT_EQ(via[0].data, std::string("\x02RS0ISS\0\0\0\0ARISS\0\0\0\0\0Hello", 26));
  }

  // The engine's reports of what it sent come back as "T" in the common form.
  run(0.9);  // the reports come about 0.8 s after the request
  const std::vector<Polled> echoes = pollAll();
  ASSERT_EQ(echoes.size(), 2u);
  EXPECT_EQ(echoes[0].kind, 'T');
  EXPECT_EQ(echoes[0].value(), " 1:Fm XX9TK To CQ <UI pid=F0 Len=5 >[" + clock() + "]\rHello\r");
  EXPECT_EQ(echoes[1].value(),
            " 1:Fm XX9TK To CQ Via RS0ISS,ARISS <UI pid=F0 Len=5 >[" + clock() + "]\rHello\r");
}

TEST_P(DirectConnected, ConnectSendDisconnect) {
  EXPECT_EQ(put('c', "xx9abc"), 1);
  EXPECT_EQ(put('D', "XX9ABC", "early\r"), 1);  // kept until the engine confirms
  run(0.5);
  ASSERT_EQ(sent('C').size(), 1u);
  EXPECT_EQ(sent('C')[0].callFrom, "XX9TK");
  EXPECT_EQ(sent('C')[0].callTo, "XX9ABC");
  EXPECT_TRUE(sent('D').empty());

  run(2);
  const Polled up = poll();
  EXPECT_EQ(up.kind, 'c');
  EXPECT_EQ(up.callValue(), "XX9ABC");
  // The engine's own notice, unchanged (its closing NUL too).
  EXPECT_EQ(up.value(), std::string("*** CONNECTED With Station XX9ABC\r\0", 35));
  run(0.01);
  ASSERT_EQ(sent('D').size(), 1u);
  EXPECT_EQ(sent('D')[0].data, "early\r");
  EXPECT_EQ(put('D', "XX9ABC", "later\r"), 1);
  run(0.01);
  EXPECT_EQ(sent('D').size(), 2u);
  EXPECT_FALSE(engine.dataWithoutLink);

  engine.remoteSends("XX9ABC", "Hi there\rsecond line\r");
  run(0.01);
  const Polled data = poll();
  EXPECT_EQ(data.kind, 'D');
  EXPECT_EQ(data.callValue(), "XX9ABC");
  EXPECT_EQ(data.value(), "Hi there\rsecond line\r");

  EXPECT_EQ(put('d', "XX9ABC"), 1);
  run(1);
  ASSERT_EQ(sent('d').size(), 1u);
  const Polled down = poll();
  EXPECT_EQ(down.kind, 'd');
  EXPECT_EQ(down.callValue(), "XX9ABC");
  EXPECT_EQ(down.value().substr(0, 30), "*** DISCONNECTED From Station ");
  EXPECT_EQ(put('D', "XX9ABC", "after"), 0);  // no link: nothing goes to the engine
  run(0.01);
  EXPECT_EQ(sent('D').size(), 2u);

  // Through digipeaters: "v" with the path of the call text.
  EXPECT_EQ(put('v', "XX9ABC RS0ISS"), 1);
  run(0.01);
  ASSERT_EQ(sent('v').size(), 1u);
  EXPECT_EQ(sent('v')[0].data, std::string("\x01RS0ISS\0\0\0\0", 11));
}

TEST_P(DirectConnected, AStationThatCallsInGetsDataAtOnce) {
  engine.remoteConnects("XX9DEF");
  run(0.01);
  const Polled up = poll();
  EXPECT_EQ(up.kind, 'c');
  EXPECT_EQ(up.callValue(), "XX9DEF");
  const std::string blanks = dialect() == Dialect::QtSoundModem ? "  " : " ";
  EXPECT_EQ(up.value(), "*** CONNECTED To Station" + blanks + "XX9DEF\r" + '\0');
  EXPECT_EQ(put('D', "XX9DEF", "Welcome\r"), 1);
  run(0.01);
  ASSERT_EQ(sent('D').size(), 1u);
  EXPECT_EQ(sent('D')[0].callFrom, "XX9TK");
  EXPECT_EQ(sent('D')[0].callTo, "XX9DEF");
  EXPECT_FALSE(engine.dataWithoutLink);

  engine.remoteDisconnects("XX9DEF");
  run(0.01);
  const Polled down = poll();
  EXPECT_EQ(down.kind, 'd');
  EXPECT_EQ(Left(down.value(), 1), "*");  // the core reads this as port 0
}

TEST_P(DirectConnected, ACallNobodyAnswersEndsInRetryOutWithoutData) {
  engine.answerConnects = false;
  put('c', "XX9ABC");
  put('D', "XX9ABC", "never sent\r");
  run(50);
  const std::vector<Polled> got = pollAll();
  ASSERT_EQ(got.size(), 1u);
  EXPECT_EQ(got[0].kind, 'd');
  EXPECT_EQ(got[0].callValue(), "XX9ABC");
  EXPECT_EQ(got[0].value().substr(0, 30), "*** DISCONNECTED RETRYOUT With");
  EXPECT_TRUE(sent('D').empty());
  EXPECT_FALSE(engine.dataWithoutLink);
  EXPECT_EQ(put('D', "XX9ABC", "late"), 0);
}

INSTANTIATE_TEST_SUITE_P(Dialects, DirectConnected, TESK_ALL_DIALECTS);

}  // namespace
}  // namespace tesk::testing
