// The Monitor's own rules: the buffer limit of the slow-computer mode (the selection it keeps),
// the notes of NotaInMonitor, the UTC clock with and without the system's UTC, the offset
// worked out from the system clock, and the two clock labels.
#include <gtest/gtest.h>

#include "core/core_fixture.h"
#include "core/utc_clock.h"

namespace tesk::testing {
namespace {

class MonitorConsoleTest : public CoreTest {
 protected:
  void SetUp() override { make("/LAN"); }
  // A buffer of `n` characters whose every position can be told apart, in two colours.
  void fill(std::size_t n) {
    std::string s;
    for (std::size_t i = 0; i < n; ++i)
      s.push_back(static_cast<char>('a' + i % 26));
    txt().setRuns(
        {TextRun{s.substr(0, n / 3), TextStyle{1}}, TextRun{s.substr(n / 3), TextStyle{2}}});
    original = s;
  }
  MonitorConsole& monitor() { return parts().monitor; }
  std::string original;
};

TEST_F(MonitorConsoleTest, BufferLimitKeepsTheSecondHalfOfTheFirstLimitCharacters) {
  config().SlowPC = -1;
  config().MonBufferLimit = 16000;
  fill(16000);
  monitor().BufferLimit();
  EXPECT_EQ(txt().length(), 16000u);  // exactly at the limit: untouched

  fill(16001);
  monitor().BufferLimit();
  ASSERT_EQ(txt().text(), original.substr(8000, 8000));
  // The overhang (the newest character) goes, the styles of the kept range stay.
  EXPECT_EQ(txt().styleAt(0).color, 2);
  EXPECT_EQ(txt().selStart(), txt().length());

  fill(40000);
  config().MonBufferLimit = 32000;
  monitor().BufferLimit();
  EXPECT_EQ(txt().text(), original.substr(16000, 16000));
  EXPECT_EQ(txt().styleAt(0).color, 2);
  fill(10000);
  config().MonBufferLimit = 16000;
  monitor().BufferLimit();
  EXPECT_EQ(txt().styleAt(0).color, 1);
  EXPECT_EQ(txt().length(), 10000u);
}

TEST_F(MonitorConsoleTest, BufferLimitActsOnlyInSlowPcModeFrom16000) {
  struct Case {
    int16_t slowPc;
    float limit;
  };
  for (const Case c : {Case{0, 16000}, Case{-1, 15999}, Case{-1, 0}}) {
    config().SlowPC = c.slowPc;
    config().MonBufferLimit = c.limit;
    fill(20000);
    monitor().BufferLimit();
    EXPECT_EQ(txt().length(), 20000u) << c.slowPc << " " << c.limit;
  }
}

TEST_F(MonitorConsoleTest, NotesTakeTheConfiguredColourSizeAndWeight) {
  config().FontSize = 12;
  config().FontBold = -1;
  txt().clear();
  monitor().NotaInMonitor("header coloured", 0);
  monitor().NotaInMonitor("data coloured", 1);
  EXPECT_EQ(txt().text(), "header coloured\r\ndata coloured\r\n");
  EXPECT_EQ(txt().styleAt(0), (TextStyle{config().HeaderColor, true, 12}));
  EXPECT_EQ(txt().styleAt(17), (TextStyle{config().DataColor, true, 12}));
  // The Monitor starts read-only; the load pass unlocks it only with [EditMonitor].
  EXPECT_TRUE(txt().locked());
}

TEST_F(MonitorConsoleTest, ScrollOffNearTheEndMovesTheCaretToTheStart) {
  fill(100);
  main().chkScroll.value = 0;
  txt().setSelection(95, 0);
  monitor().chkScroll_Click();
  EXPECT_EQ(txt().selStart(), 95u);
  txt().setSelection(96, 0);
  monitor().chkScroll_Click();
  EXPECT_EQ(txt().selStart(), 0u);
  main().chkScroll.value = 1;
  txt().setSelection(100, 0);
  monitor().chkScroll_Click();
  EXPECT_EQ(txt().selStart(), 100u);
}

TEST_F(MonitorConsoleTest, UtcFromSystemOrFromStoredOffset) {
  SimClock& clock = platform.simClock;
  clock.start = DateTime{2026, 11, 22, 12, 34, 56, 0};
  clock.utcOffsetMinutes = 60;
  config().AutoDetectUTC = -1;
  EXPECT_EQ(BerekenUTC(clock, config()), "11:34:56");
  // The stored hour offset (UTC minus local) works on the local hour, whatever the system says.
  config().AutoDetectUTC = 0;
  config().UTCTimeOffsetHours = 5;
  EXPECT_EQ(BerekenUTC(clock, config()), "17:34:56");
  config().UTCTimeOffsetHours = -13;
  EXPECT_EQ(BerekenUTC(clock, config()), "23:34:56");
  // A minute offset takes hour and minute from the system's UTC; the seconds stay local.
  clock.utcOffsetMinutes = 90;
  config().UTCTimeOffsetMinutes = 30;
  EXPECT_EQ(BerekenUTC(clock, config()), "11:04:56");
}

TEST_F(MonitorConsoleTest, CalcUtcOffsetFallsToZeroAcrossMidnight) {
  SimClock& clock = platform.simClock;
  clock.start = DateTime{2026, 11, 22, 12, 0, 0, 0};
  clock.utcOffsetMinutes = 120;
  CalcUTC(clock, config());
  EXPECT_EQ(config().UTCTimeOffsetHours, -2);
  EXPECT_EQ(config().UTCTimeOffsetMinutes, 0);
  clock.utcOffsetMinutes = -330;  // UTC 17:30
  CalcUTC(clock, config());
  EXPECT_EQ(config().UTCTimeOffsetHours, 5);
  EXPECT_EQ(config().UTCTimeOffsetMinutes, 30);
  // Local 00:30 is UTC 23:30 of the day before: 23 hours apart, out of range, so 0.
  clock.start = DateTime{2026, 11, 22, 0, 30, 0, 0};
  clock.utcOffsetMinutes = 60;
  CalcUTC(clock, config());
  EXPECT_EQ(config().UTCTimeOffsetHours, 0);
}

TEST_F(MonitorConsoleTest, ClocksShowLocalAndUtcEverySecond) {
  station.reset();
  platform.simClock.start = DateTime{2026, 11, 22, 9, 5, 7, 0};
  WriteFile(home.file("TESKLanMode.ini"), LanIni(kHost, kPort, 1));
  ScriptedEngine engine(platform.network, kHost, kPort);
  start("/LAN");
  for (int second = 0; second < 3; ++second) {
    main().Klok.caption.clear();
    ASSERT_TRUE(platform.simLoop.runUntil(1.01, [&] { return !main().Klok.caption.empty(); }));
    EXPECT_EQ(main().Klok.caption, ClockText(platform.simClock.localNow()));
    EXPECT_EQ(main().UTC_Klok.caption, ClockText(platform.simClock.utcNow()));
    EXPECT_EQ(main().Klok.caption.substr(0, 6), "09:05:");
  }
  // Without the system's UTC the label follows the stored offset.
  config().AutoDetectUTC = 0;
  config().UTCTimeOffsetHours = 3;
  platform.simLoop.run(1.0);
  EXPECT_EQ(main().UTC_Klok.caption.substr(0, 6), "12:05:");
}

}  // namespace
}  // namespace tesk::testing
