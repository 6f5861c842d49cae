// The alarm rule through the receive path: matching without regard to case, the digipeat mark
// in a header text, the four ways sound and alarm log combine (what is heard, shown, logged),
// a frame stopped by the filter still alarming, an empty text matching every frame except one
// that "Remove double" emptied.
#include <gtest/gtest.h>

#include "alarms/sound_table.h"
#include "core/core_fixture.h"

namespace tesk::testing {
namespace {

class AlarmTest : public CoreTest {
 protected:
  void SetUp() override {
    startDirect();
    config().AlarmSet = 1;
    config().AlarmSetHeaderText = "RS0ISS*";
    config().AutomaticLogging = 0;
    config().AutoDigiLogBook = 0;
  }
  void frame(const std::string& data, const std::string& calls = "PA3ABC To CQ Via RS0ISS*",
             const std::string& time = "12:00:00") {
    script.items.push_back({EngineText(data, 1, calls, time), 'U'});
    tick();
  }
  std::vector<std::string>& played() { return platform.simSound.played; }
  const MeldWindow& note() { return parts().meld.window(); }
  std::string sound(const char* file) { return home.path() + "/Sounds/" + file; }
  std::string alarmLog() { return ReadFile(home.file("Logs/AlarmLog22-11-2026.log")); }
};

TEST_F(AlarmTest, CaseDoesNotMatterAndTheMarkFindsOnlyADigipeatedCall) {
  config().AlarmSetHeaderText = "rs0iss*";
  frame("not repeated\r", "PA3ABC To CQ Via RS0ISS");
  EXPECT_TRUE(played().empty());
  frame("repeated\r", "PA3ABC To CQ Via RS0ISS*");
  EXPECT_EQ(played(), std::vector<std::string>{sound("_Alarm.wav")});
  // In the data, with the data sound.
  played().clear();
  config().AlarmSet = 2;
  config().AlarmSetDataText = "hello from ivo";
  frame("KN55AB HELLO FROM IVO\r");
  frame("something else\r");
  EXPECT_EQ(played(), std::vector<std::string>{sound("_Alarm1.wav")});
}

TEST_F(AlarmTest, SoundAndAlarmLogDecideWhatIsHeardShownAndLogged) {
  struct Case {
    int16_t useSound;
    int16_t log;
    std::vector<std::string> heard;  // "" is the stop of the player
    bool shown;
  };
  const std::vector<Case> cases = {
      {0, 0, {"_Alarm.wav"}, false},  // sound, no note, no log
      {0, -1, {"_Alarm.wav"}, false},
      {1, -1, {""}, false},  // nothing heard or shown: the empty path stops a playing sound
      {1, 0, {}, true},      // only here the note appears
      {-1, -1, {}, false},   // all sounds off: not even the stop
      {-1, 0, {}, true},
  };
  int n = 0;
  for (const Case& c : cases) {
    SCOPED_TRACE("UseAlarmSound " + std::to_string(c.useSound) + ", log " + std::to_string(c.log));
    config().UseAlarmSound = c.useSound;
    config().LogAlarmToDisk = c.log;
    played().clear();
    parts().meld.cmd_OK_Meld_Click();
    const std::string before = alarmLog();
    ++n;
    frame("case " + std::to_string(n) + "\r", "PA3ABC To CQ Via RS0ISS*",
          "12:00:0" + std::to_string(n));
    std::vector<std::string> heard;
    for (const std::string& f : c.heard)
      heard.push_back(f.empty() ? "" : sound(f.c_str()));
    EXPECT_EQ(played(), heard);
    EXPECT_EQ(note().form.visible, c.shown);
    if (c.shown) {
      EXPECT_EQ(note().lblMelding.caption, "TESK Alarm is ON\rText >RS0ISS*< found in header!");
    }
    const std::string added = alarmLog().substr(before.size());
    EXPECT_EQ(added.find("case " + std::to_string(n)) != std::string::npos, c.log != 0);
  }
  // The first logged alarm opened the day's file with its head block, the later ones did not.
  EXPECT_EQ(alarmLog().rfind("[TESK Alarm-Log Date:22/11/2026]"), alarmLog().find("[TESK"));
  // The note of a data alarm, and a note suppressed by [Messagebox Alarm].
  config().UseAlarmSound = 1;
  config().LogAlarmToDisk = 0;
  config().AlarmSet = 2;
  config().AlarmSetDataText = "qsl";
  parts().meld.cmd_OK_Meld_Click();
  frame("QSL via ISS\r");
  EXPECT_EQ(note().lblMelding.caption, "TESK Alarm is ON\rText >qsl< found in data!");
  parts().meld.cmd_OK_Meld_Click();
  config().MessageboxAlarm = 1;
  frame("QSL again\r");
  EXPECT_FALSE(note().form.visible);
}

TEST_F(AlarmTest, AFilteredOutFrameStillAlarms) {
  parts().filters.SetFilterText("XYZ");
  mark();
  frame("through the ISS\r");
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(played().size(), 1u);
}

TEST_F(AlarmTest, AnEmptyTextMatchesEveryFrameButNotOneEmptiedByRemoveDouble) {
  config().AlarmSetHeaderText = "";
  config().RemoveSame = 1;
  frame("same\r", "PA3ABC To CQ");
  frame("same\r", "PA3ABC To CQ");  // the double: header and data emptied
  frame("other\r", "DL1XYZ To APRS");
  EXPECT_EQ(played().size(), 2u);
  // In the data too: an empty data text matches any frame that has data left.
  config().AlarmSet = 2;
  config().AlarmSetDataText = "";
  played().clear();
  frame("third\r", "G4ABC To CQ");
  frame("third\r", "G4ABC To CQ");
  EXPECT_EQ(played().size(), 1u);
}

TEST_F(AlarmTest, TheSoundTableHoldsItsSevenDefaultFilesAndPlaysWithoutWaiting) {
  SoundTable& table = parts().sounds;
  const char* files[] = {"_Alarm.wav",      "_Alarm1.wav",       "_Alarm2.wav", "_Bell.wav",
                         "_Connection.wav", "_Disconnected.wav", "_Digi.wav"};
  for (int i = 0; i < SoundTable::kSlots; ++i)
    EXPECT_EQ(table.path(i), sound(files[i]));
  EXPECT_EQ(table.path(7), "");
  const double before = platform.simLoop.now();
  table.PlaySlot(SoundTable::Bell);
  table.PlaySoundSlot("");
  EXPECT_EQ(played(), (std::vector<std::string>{sound("_Bell.wav"), ""}));
  EXPECT_EQ(platform.simLoop.now(), before);
  config().UseAlarmSound = -1;
  table.PlaySlot(SoundTable::Digi);
  EXPECT_EQ(played().size(), 2u);
}

}  // namespace
}  // namespace tesk::testing
