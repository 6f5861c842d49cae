// Tests of the AGWPE frame codec: the LAN decoder's slot rules (one read is one frame, short
// reads, the port list reply) and the exact bytes of every frame the LAN link sends.
#include "link/agw_frame.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tesk {
namespace {

using Bytes = std::vector<uint8_t>;

Bytes Frame(char kind, const std::string& from, const std::string& to, const std::string& data,
            uint8_t port = 0, uint8_t pid = 0xF0) {
  AgwFrame f;
  f.port = port;
  f.kind = kind;
  f.pid = pid;
  f.callFrom = from;
  f.callTo = to;
  f.data = data;
  return f.encode();
}

Bytes B(const std::string& s) {
  return Bytes(s.begin(), s.end());
}
std::string S(const Bytes& b) {
  return std::string(b.begin(), b.end());
}
std::string Nul(std::size_t n) {
  return std::string(n, '\0');
}

struct Decoded {
  FrameSlot slot;
  std::string ports = "untouched";
  std::string status = "untouched";
  bool portList = false;
  void feed(const Bytes& read) { portList = AGWWinsockGetDataLAN(read, slot, ports, status); }
};

TEST(AgwFrameDecode, OrdinaryFrameFillsSlot) {
  Decoded d;
  d.feed(Frame('U', "XX9TK-1", "CQ", "Hello\r", 1));
  EXPECT_FALSE(d.portList);
  EXPECT_EQ(d.slot.FrameReady, -1);
  EXPECT_EQ(d.slot.FramePort, 1);
  EXPECT_EQ(d.slot.FrameKind, "U");
  EXPECT_EQ(d.slot.FramePid, 0xF0);
  EXPECT_EQ(d.slot.FrameFrom, "XX9TK-1");
  EXPECT_EQ(d.slot.FrameTo, "CQ");
  EXPECT_EQ(d.slot.FrameLen, 6);
  EXPECT_EQ(d.slot.FrameData, std::string("Hello\r") + '\0');
  EXPECT_EQ(d.status, "(UI)Frame received for a registered application.");
  EXPECT_EQ(d.ports, "untouched");
}

TEST(AgwFrameDecode, LengthIsTakenModulo256) {
  Decoded d;
  const std::string data(300, 'x');
  d.feed(Frame('U', "A", "B", data));
  EXPECT_EQ(d.slot.FrameLen, 44);
  EXPECT_EQ(d.slot.FrameData, data + '\0');
}

TEST(AgwFrameDecode, TwoFramesInOneReadKeepTheFirstHeader) {
  Decoded d;
  Bytes read = Frame('T', "FIRST", "CQ", "one");
  const Bytes second = Frame('U', "SECOND", "APRS", "two", 2);
  read.insert(read.end(), second.begin(), second.end());
  d.feed(read);
  EXPECT_EQ(d.slot.FrameKind, "T");
  EXPECT_EQ(d.slot.FrameFrom, "FIRST");
  EXPECT_EQ(d.slot.FramePort, 0);
  EXPECT_EQ(d.slot.FrameLen, 3);
  EXPECT_EQ(d.slot.FrameData, "one" + S(second) + '\0');
  // A later read before the core took the slot simply overwrites it.
  d.feed(second);
  EXPECT_EQ(d.slot.FrameFrom, "SECOND");
  EXPECT_EQ(d.slot.FrameData, std::string("two") + '\0');
}

TEST(AgwFrameDecode, ShortReadKeepsWhatItCannotReach) {
  Decoded d;
  d.feed(Frame('U', "OLD", "CQ", "0123456789", 3));
  d.slot.FrameReady = 0;
  // 20 bytes: port, kind, PID and CallFrom are there; CallTo is cut; offset 28 is not.
  Bytes read = Frame('S', "NEWCALL", "AB", "", 1, 7);
  read.resize(20);
  d.feed(read);
  EXPECT_EQ(d.slot.FramePort, 1);
  EXPECT_EQ(d.slot.FrameKind, "S");
  EXPECT_EQ(d.slot.FramePid, 7);
  EXPECT_EQ(d.slot.FrameFrom, "NEWCALL");
  EXPECT_EQ(d.slot.FrameTo, "AB");
  EXPECT_EQ(d.slot.FrameLen, 10);
  EXPECT_EQ(d.slot.FrameData, Nul(1));
  EXPECT_EQ(d.slot.FrameReady, -1);
  EXPECT_EQ(d.status, GetKind("S"));

  // 5 bytes: the kind is reached, PID and length keep their values; the calls are emptied
  // before their bytes are looked for.
  d.feed(B(std::string("\x02\0\0\0D", 5)));
  EXPECT_EQ(d.slot.FramePort, 2);
  EXPECT_EQ(d.slot.FrameKind, "D");
  EXPECT_EQ(d.slot.FramePid, 7);
  EXPECT_EQ(d.slot.FrameLen, 10);
  EXPECT_EQ(d.slot.FrameFrom, "");
  EXPECT_EQ(d.slot.FrameTo, "");
  EXPECT_EQ(d.slot.FrameData, Nul(1));

  // 29 bytes reach the length byte, not the data.
  read = Frame('U', "X", "Y", "abc");
  read.resize(29);
  d.feed(read);
  EXPECT_EQ(d.slot.FrameLen, 3);
  EXPECT_EQ(d.slot.FrameData, Nul(1));

  d.feed({});
  EXPECT_EQ(d.slot.FrameKind, "U");
  EXPECT_EQ(d.slot.FramePort, 0);
  EXPECT_EQ(d.slot.FrameLen, 3);
  EXPECT_EQ(d.slot.FrameData, Nul(1));
}

TEST(AgwFrameDecode, FullCallFieldsRunOnIntoWhatFollows) {
  Decoded d;
  d.feed(Frame('U', "ABCDEFGHIJ", "CQ", "hi"));
  EXPECT_EQ(d.slot.FrameFrom, "ABCDEFGHIJCQ");
  EXPECT_EQ(d.slot.FrameTo, "CQ");
  // A full CallTo runs on into DataLen, whose low byte is 2 here.
  d.feed(Frame('U', "A", "0123456789", "hi"));
  EXPECT_EQ(d.slot.FrameTo, "0123456789\x02");
  // With no NUL at all the end of the read ends the call.
  d.feed(Bytes(12, 'Z'));
  EXPECT_EQ(d.slot.FrameFrom, "ZZZZ");
  EXPECT_EQ(d.slot.FrameTo, "");
}

TEST(AgwFrameDecode, PortListReplyOfDireWolf16) {
  Decoded d;
  d.slot.FrameReady = 0;
  const std::string text =
      "1;Port1 first soundcard mono;Port2 INVALID CHANNEL;Port3 INVALID CHANNEL;"
      "Port4 INVALID CHANNEL;Port5 INVALID CHANNEL;Port6 INVALID CHANNEL;";
  d.feed(Frame('G', "", "", text + '\0'));
  EXPECT_TRUE(d.portList);
  // Four NULs of User, then the first 140 - 21 data bytes without their blanks.
  EXPECT_EQ(d.ports, Nul(4) +
                         "1;Port1firstsoundcardmono;Port2INVALIDCHANNEL;Port3INVALIDCHANNEL;"
                         "Port4INVALIDCHANNEL;Port5INVALIDCHANNEL;Po");
  EXPECT_EQ(d.slot.FrameReady, 0);
  EXPECT_EQ(d.status, "untouched");
  EXPECT_EQ(d.slot.FrameKind, "G");
  EXPECT_EQ(d.slot.FrameLen, 140);
  // A read too short to reach kind and length is taken for one more port list, now empty.
  EXPECT_EQ((d.feed({1, 0, 0}), d.ports), "");
  EXPECT_TRUE(d.portList);
  EXPECT_EQ(d.slot.FramePort, 1);
}

TEST(AgwFrameDecode, PortListLengthThreshold) {
  Decoded d;
  d.feed(Frame('G', "", "", std::string(20, 'p')));  // FrameLen 20: offsets 32 to 34
  EXPECT_TRUE(d.portList);
  EXPECT_EQ(d.ports, Nul(3));

  d.ports = "kept";
  d.feed(Frame('G', "", "", "2;Port1 x;"));  // FrameLen below 20: an ordinary frame
  EXPECT_FALSE(d.portList);
  EXPECT_EQ(d.ports, "kept");
  EXPECT_EQ(d.slot.FrameReady, -1);
  EXPECT_EQ(d.status, "Port Information");
  EXPECT_EQ(d.slot.FrameData, std::string("2;Port1 x;") + '\0');
}

struct UiCase {
  const char* name;
  std::string kind, via, data;
  std::string expected;
};

class AgwBuildControlUI : public testing::TestWithParam<UiCase> {};

TEST_P(AgwBuildControlUI, ExactBytes) {
  const UiCase& c = GetParam();
  EXPECT_EQ(S(BuildControlUI(1, c.kind, "XX9TK", "CQ", c.data, c.via)), c.expected);
}

std::string UiHeader(char kind, char len) {
  return std::string("\x01\0\0\0", 4) + kind + Nul(3) + "XX9TK" + Nul(5) + "CQ" + Nul(8) + len +
         Nul(7);
}

INSTANTIATE_TEST_SUITE_P(
    Frames, AgwBuildControlUI,
    testing::Values(
        // 42 bytes: DataLen says 5, one NUL more is sent.
        UiCase{"NoVia", "", "", "Hello", UiHeader('M', 5) + "Hello" + Nul(1)},
        UiCase{"OneDigi", "", "ARISS", "Hello",
               UiHeader('V', 16) + '\x01' + "ARISS" + Nul(5) + "Hello"},
        UiCase{"TwoDigisTrimmed", "", " RS0ISS , ARISS", "Hi",
               UiHeader('V', 23) + '\x02' + "RS0ISS" + Nul(4) + "ARISS" + Nul(5) + "Hi"},
        UiCase{"BlankVia", "", "   ", "Hello", UiHeader('V', 6) + '\0' + "Hello"},
        UiCase{"StopsAtEmptyCall", "", "ARISS,,WIDE2", "x",
               UiHeader('V', 12) + '\x01' + "ARISS" + Nul(5) + "x"},
        UiCase{"GivenKindWins", "U", "", "ab", UiHeader('U', 2) + "ab" + Nul(1)},
        UiCase{"NoData", "", "", "", UiHeader('M', 0) + Nul(1)}),
    [](const testing::TestParamInfo<UiCase>& info) { return info.param.name; });

TEST(AgwBuildControlUIEdges, WireSizes) {
  EXPECT_EQ(BuildControlUI(0, "", "XX9TK", "CQ", "Hello", "").size(), 42u);
  EXPECT_EQ(BuildControlUI(0, "", "XX9TK", "CQ", "Hello", "ARISS").size(), 52u);
}

TEST(AgwBuildControlUIEdges, ViaKeepsSevenCalls) {
  const Bytes f = BuildControlUI(0, "", "A", "B", "d", "D1,D2,D3,D4,D5,D6,D7,D8");
  ASSERT_EQ(f.size(), 37u + 1 + 70);
  EXPECT_EQ(f[36], 7);
  EXPECT_EQ(f[28], 1 + 70 + 1);
  EXPECT_EQ(S(Bytes(f.begin() + 97, f.begin() + 99)), "D7");
  EXPECT_EQ(f[107], 'd');
}

TEST(AgwBuildControlUIEdges, OverflowsAreSkipped) {
  // Data above 255 bytes: the length byte stays 0 and the frame ends with the work area.
  const std::string data(300, 'x');
  const Bytes f = BuildControlUI(0, "", "A", "B", data, "");
  ASSERT_EQ(f.size(), 256u);
  EXPECT_EQ(f[28], 0);
  EXPECT_EQ(f[255], 'x');
  // A DataLen with digipeaters above 255 is skipped the same way.
  EXPECT_EQ(BuildControlUI(0, "", "A", "B", std::string(250, 'x'), "D1")[28], 0);
  // A port that does not fit a byte leaves port 0.
  EXPECT_EQ(BuildControlUI(300, "", "A", "B", "x", "")[0], 0);
  // A long CallFrom runs into CallTo, which is written over it for its own length.
  const Bytes g = BuildControlUI(0, "", "ABCDEFGHIJKLM", "CQ", "", "");
  EXPECT_EQ(S(Bytes(g.begin() + 8, g.begin() + 22)), "ABCDEFGHIJCQM" + Nul(1));
}

TEST(AgwBuildRequests, RegisterAndPortRequest) {
  const Bytes reg = BuildReqRegInfo(0, "X", " XX9TK-7 ");
  EXPECT_EQ(S(reg), std::string("\0\0\0\0X\0\0\0XX9TK-7", 15) + Nul(21));

  const Bytes g = BuildReqRegInfo(2, "G", "");
  EXPECT_EQ(S(g), std::string("\x02\0\0\0G", 5) + Nul(31));

  // 30 characters: 28 fit between offset 8 and the end of the header.
  const std::string longCall = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123";
  const Bytes lost = BuildReqRegInfo(0, "X", longCall);
  ASSERT_EQ(lost.size(), 36u);
  EXPECT_EQ(S(Bytes(lost.begin() + 8, lost.end())), longCall.substr(0, 28));
}

TEST(AgwBuildRequests, LoginIs546Bytes) {
  const std::string password(255, 'p');
  const Bytes f = BuildPassword(3, "P", "XX9TK", password);
  ASSERT_EQ(f.size(), 546u);
  EXPECT_EQ(S(Bytes(f.begin(), f.begin() + 36)),
            std::string("\0\0\0\0P", 5) + Nul(23) + "\xFE\x01" + Nul(6));
  EXPECT_EQ(S(Bytes(f.begin() + 36, f.begin() + 291)), "XX9TK" + Nul(250));
  EXPECT_EQ(S(Bytes(f.begin() + 291, f.end())), password);
  // A longer password is cut at its field; an empty one leaves the field clear.
  EXPECT_EQ(BuildPassword(0, "P", "A", password + "qq").size(), 546u);
  const Bytes empty = BuildPassword(0, "P", "A", "");
  EXPECT_EQ(S(Bytes(empty.begin() + 291, empty.end())), Nul(255));
}

TEST(AgwBuildRequests, Monitor) {
  EXPECT_EQ(S(BuildMonitor()), std::string("\0\0\0\0m", 5) + Nul(31));
}

TEST(AgwKinds, Descriptions) {
  EXPECT_EQ(GetKind("c"),
            "Start a non-standard AX.25 connection (data frames would have PID not 0xF0)");
  EXPECT_EQ(GetKind("T"), "Monitored frame sent by this application");
  EXPECT_EQ(GetKind("Z"), "");
  EXPECT_EQ(GetKind(""), "");
  EXPECT_EQ(GetKind("UU"), "");
}

TEST(AgwSplitIt, Fields) {
  EXPECT_EQ(SplitIt(",", "A,B,C", 0), "A");
  EXPECT_EQ(SplitIt(",", "A,B,C", 2), "C");
  EXPECT_EQ(SplitIt(",", "A,B,C", 3), "");
  EXPECT_EQ(SplitIt(",", "A,,C", 1), "");
  EXPECT_EQ(SplitIt(",", "A,B,", 2), "");
  EXPECT_EQ(SplitIt(",", "ABC", 0), "ABC");
  EXPECT_EQ(SplitIt("<>", "a<>b<>c", 1), "b");
  EXPECT_EQ(SplitIt(",", "A,B", -1), "");
  EXPECT_EQ(SplitIt(",", "0,1,2,3,4,5,6,7,8,9,10,11,12", 11), "");
  // The eleventh field takes the rest of the source.
  EXPECT_EQ(SplitIt(",", "0,1,2,3,4,5,6,7,8,9,10,11,12", 10), "10,11,12");
  EXPECT_EQ(SplitIt(",", "0,1,2,3,4,5,6,7,8,9,10,11,12", 9), "9");
  EXPECT_EQ(SplitIt("", "A,B", 0), "A,B");
}

TEST(AgwFrameStream, TakesWholeFramesOnly) {
  AgwFrame f;
  f.port = 1;
  f.kind = 'K';
  f.callFrom = "XX9TK-15";
  f.callTo = "APRS";
  f.user = 77;
  f.data = std::string("\0raw", 4);
  Bytes stream = f.encode();
  stream.push_back(0x42);  // the start of the next frame

  AgwTakeResult r = takeAgwFrame(Bytes(stream.begin(), stream.begin() + 20));
  EXPECT_EQ(r.status, AgwTake::NeedMore);
  r = takeAgwFrame(Bytes(stream.begin(), stream.begin() + 38));
  EXPECT_EQ(r.status, AgwTake::NeedMore);
  r = takeAgwFrame(stream);
  ASSERT_EQ(r.status, AgwTake::Frame);
  EXPECT_EQ(r.consumed, 40u);
  EXPECT_EQ(r.frame.port, 1);
  EXPECT_EQ(r.frame.kind, 'K');
  EXPECT_EQ(r.frame.callFrom, "XX9TK-15");
  EXPECT_EQ(r.frame.callTo, "APRS");
  EXPECT_EQ(r.frame.dataLen, 4u);
  EXPECT_EQ(r.frame.user, 77u);
  EXPECT_EQ(r.frame.data, f.data);

  // Garbage behind a call's NUL is not part of the call.
  stream[8 + 8] = 0;
  stream[8 + 9] = 'Q';
  EXPECT_EQ(takeAgwFrame(stream).frame.callFrom, "XX9TK-15");

  stream[31] = 0x01;  // DataLen far above any frame an engine sends
  EXPECT_EQ(takeAgwFrame(stream).status, AgwTake::BadLength);
  EXPECT_EQ(takeAgwFrame(stream, 0x02000000).status, AgwTake::NeedMore);
}

}  // namespace
}  // namespace tesk
