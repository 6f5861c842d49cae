// The pieces under direct mode: engine monitor texts taken apart and rebuilt, AX.25 addresses,
// and the pairing of raw frames with monitor texts in the frame queue.
#include <gtest/gtest.h>

#include "link/direct_queue.h"
#include "link/monitor_text.h"
#include "support/dialect_engine.h"

namespace tesk::testing {
namespace {

const DateTime kAt{2026, 11, 22, 9, 5, 7, 0};

TEST(DirectText, EngineTextsComeOutInOneForm) {
  struct Case {
    std::string engine, rebuilt;
  };
  const std::string nul(1, '\0');
  const Case cases[] = {
      // Dire Wolf 1.6: no marks, "PF=0", a data cut at a NUL with the full length reported.
      {" 1:Fm XX9TK To CQ Via RS0ISS,ARISS <UI pid=F0 Len=3 PF=0 >[21:00:00]\rA\r" + nul,
       " 1:Fm XX9TK To CQ Via RS0ISS,ARISS <UI pid=F0 Len=3 >[09:05:07]\rA\r"},
      // The AGW Packet Engine: two CRs and a NUL behind data that itself ends in CR.
      {" 2:Fm XX9TK-1 To APRS Via WIDE1-1* <UI pid=F0 Len=4 >[09:05:00]\rabc\r\r\r" + nul,
       " 2:Fm XX9TK-1 To APRS Via WIDE1-1* <UI pid=F0 Len=4 >[09:05:07]\rabc\r\r"},
      // QtSoundModem: UTC, one CR, no NUL, control bytes already filtered out.
      {" 1:Fm XX9TK To CQ <UI pid=F0 Len=5 >[08:05:07]\rabc\r",
       " 1:Fm XX9TK To CQ <UI pid=F0 Len=5 >[09:05:07]\rabc\r"},
      // A PID written as 0x.., and frames other than UI keep their own notes.
      {" 1:Fm A To B <UI pid=0xCF Len=1 >[1]\rx\r" + nul,
       " 1:Fm A To B <UI pid=CF Len=1 >[09:05:07]\rx\r"},
      {" 1:Fm A To B <I S0 R0 pid=0xF0 Len=2 P=0 >[1]\rhi\r" + nul,
       " 1:Fm A To B <I S0 R0 pid=0xF0 Len=2 P=0 >[09:05:07]\rhi\r"},
      {" 1:Fm A To B <RR R3 >[1]\r", " 1:Fm A To B <RR R3 >[09:05:07]\r\r"},
      {" 1:Fm A To B <FRMR>01 02 03[1]\r", " 1:Fm A To B <FRMR>01 02 03[09:05:07]\r\r"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.engine);
    const std::optional<MonitorText> m = ParseMonitorText(c.engine);
    ASSERT_TRUE(m);
    EXPECT_EQ(BuildMonitorText(*m, nullptr, kAt), c.rebuilt);
  }
  for (const char* notAHeader : {"Port1 stereo left", " 1:Fm XX9TK <UI>", " x:Fm A To B <UI>",
                                 " 1:Fm A To B <UI pid=F0", ""}) {
    EXPECT_FALSE(ParseMonitorText(notAHeader)) << notAHeader;
  }
}

TEST(DirectText, ThePortListBecomesOneTextPerUsablePort) {
  AgwFrame list;
  list.kind = 'G';
  list.data = std::string("3;Port1 stereo left;Port2 Disabled;Port3 INVALID CHANNEL;") +
              "Port4 stereo right;Port99999999999 odd;" + '\0' + "Port5 behind the NUL;";
  DirectFrameQueue queue;
  queue.push(list, kAt);
  const std::pair<int, std::string> expected[] = {
      {0, "Port1 stereo left"}, {3, "Port4 stereo right"}, {0, "Port99999999999 odd"}};
  for (const auto& [port, text] : expected) {
    const std::optional<DirectFrame> f = queue.pop();
    ASSERT_TRUE(f);
    EXPECT_EQ(f->kind, 'G');
    EXPECT_EQ(f->port, port);
    EXPECT_EQ(f->text, text);
  }
  EXPECT_TRUE(queue.empty());
}

TEST(DirectText, RawFramesDecodeWithTheirRepeatedBits) {
  const Ax25Frame f = Tnc2("PA3ABC-7>APRS-0,RS0ISS-4*,ARISS:hello");
  const std::optional<Ax25Frame> d = DecodeAx25(Ax25Bytes(f));
  ASSERT_TRUE(d);
  EXPECT_EQ(d->source.call, "PA3ABC-7");
  EXPECT_EQ(d->destination.call, "APRS");  // SSID 0 is the bare call
  EXPECT_EQ(ViaFromRaw(*d), "RS0ISS-4*,ARISS");
  EXPECT_TRUE(d->isUi());
  EXPECT_EQ(d->pid, 0xF0);
  EXPECT_EQ(d->info, "hello");

  const std::vector<uint8_t> ui = EncodeAx25Ui("cq", "xx9tk-15", {"RS0ISS", "ARISS"}, 0xF0, "x");
  const std::optional<Ax25Frame> back = DecodeAx25(ui);
  ASSERT_TRUE(back);
  EXPECT_EQ(back->source.call, "XX9TK-15");
  EXPECT_EQ(ViaFromRaw(*back), "RS0ISS,ARISS");

  std::vector<uint8_t> cut = Ax25Bytes(f);
  cut.resize(20);  // inside the second address
  EXPECT_FALSE(DecodeAx25(cut));
  std::vector<uint8_t> endless(7 * 11 + 2, 0x82);  // no address ever ends
  EXPECT_FALSE(DecodeAx25(endless));
}

AgwFrame Engine(char kind, const std::string& from, const std::string& data) {
  AgwFrame f;
  f.kind = kind;
  f.callFrom = from;
  f.callTo = "CQ";
  f.data = data;
  return f;
}

AgwFrame Raw(const std::string& tnc2) {
  const std::vector<uint8_t> b = Ax25Bytes(Tnc2(tnc2));
  AgwFrame f = Engine('K', "", std::string(1, '\0') + std::string(b.begin(), b.end()));
  return f;
}

std::string Text(const std::string& via, const std::string& info) {
  return " 1:Fm XX9TK To CQ Via " + via + " <UI pid=F0 Len=" + std::to_string(info.size()) +
         " >[09:05:07]\r" + info + "\r";
}

TEST(DirectText, RawFramesPairWithTheTextOfTheirOwnPacketOnly) {
  DirectFrameQueue q;
  // Raw first (Dire Wolf) and raw second (an engine that writes its text first).
  q.push(Raw("XX9TK>CQ,RS0ISS*:one"), kAt);
  q.push(Engine('U', "XX9TK", Text("RS0ISS", "one")), kAt);
  q.push(Engine('U', "XX9TK", Text("RS0ISS", "two")), kAt);
  q.push(Raw("XX9TK>CQ,RS0ISS*:two"), kAt);
  // A raw frame of another packet marks nothing; an own transmission never takes one.
  q.push(Raw("DL1XYZ>CQ,RS0ISS*:other"), kAt);
  q.push(Engine('T', "XX9TK", Text("RS0ISS", "three")), kAt);
  q.push(Engine('U', "XX9TK", Text("RS0ISS", "four")), kAt);
  EXPECT_EQ(q.pop()->text, Text("RS0ISS*", "one"));
  EXPECT_EQ(q.pop()->text, Text("RS0ISS*", "two"));
  EXPECT_EQ(q.pop()->text, Text("RS0ISS", "three"));
  EXPECT_EQ(q.pop()->text, Text("RS0ISS", "four"));
  EXPECT_FALSE(q.pop());

  // Once an engine showed that it sends the raw frame second, a raw frame whose text was
  // already taken is not kept for the next copy of the packet.
  q.push(Raw("XX9TK>CQ,RS0ISS*:one"), kAt);
  q.push(Engine('U', "XX9TK", Text("RS0ISS", "one")), kAt);
  EXPECT_EQ(q.pop()->text, Text("RS0ISS", "one"));

  for (std::size_t i = 0; i < DirectFrameQueue::kMaxFrames + 3; ++i)
    q.push(Engine('D', "XX9ABC", std::to_string(i)), kAt);
  EXPECT_EQ(q.size(), DirectFrameQueue::kMaxFrames);
  EXPECT_EQ(q.dropped(), 3u);
  EXPECT_EQ(q.pop()->text, "3");  // the oldest gave way
}

}  // namespace
}  // namespace tesk::testing
