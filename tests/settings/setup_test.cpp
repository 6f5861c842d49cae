// The Setup window on a started station: Apply's checks in their order, what each leaves in
// memory and on disk, the round trip of an untouched window, the call change in both link
// modes, the modem types, the resets and the console's :setup.
#include "settings/setup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "base/text.h"
#include "link/lan_settings_file.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

class SetupTest : public SendTest {
 protected:
  tesk::Setup& setup() { return station->parts().setup; }
  SetupWindow& w() { return setup().window(); }
  StationConfig& config() { return station->config(); }
  std::string ini() { return ReadFile(home.file("tesk.ini")); }
  // Sets a control by its name, as the operator would.
  void set(const std::string& name, const std::string& value) {
    const SetupControl* row = FindSetupControl(name);
    ASSERT_NE(row, nullptr) << name;
    setup().Set(*row, value);
  }
  const ShownBox& lastBox() { return platform.simDialogs.shown.back(); }
  // The file without its two lines of the time of saving.
  static std::string WithoutSaveTime(const std::string& file) {
    std::istringstream in(file);
    std::string kept;
    for (std::string line; std::getline(in, line);)
      if (Left(line, 9) != ";timeset " && Left(line, 9) != ";dateset ") kept += line + "\n";
    return kept;
  }
};

// One failing check: what to type, the field it blames and its box.
struct FailingCheck {
  const char* name;
  std::vector<std::pair<const char*, const char*>> typed;
  const char* field;
  const char* caption;
  const char* text;
};

TEST_F(SetupTest, EachFailedCheckShowsItsBoxKeepsTheEarlierStepsAndWritesNothing) {
  startLan();
  const std::vector<FailingCheck> checks = {
      {"picture",
       {{"Usepic", "4"}, {"txtPictureURL", "http://example.org/pass.png"}},
       "txtPictureURL",
       "ViewPort",
       "The URL in the ViewPort has no picture.\r\nThe URL must contain an image compatible with "
       "jpg, gif or bmp."},
      {"hours",
       {{"txtUTChour", "13"}},
       "txtUTChour",
       "Wrong UTC time",
       "UTC time (hours) offset is invallid! It can range between -12...0...12"},
      {"minutes",
       {{"txtUTChour", "5"}, {"txtUTCminutes", "61"}},
       "txtUTCminutes",
       "Wrong UTC time",
       "UTC time (minutes) offset is invallid! It can range between -60...0...60"},
      {"password",
       {{"OptEnableBBS", "2"}, {"txtBBSPassword", " ab "}},
       "txtBBSPassword",
       "Invallid BBS Password",
       "BBS Password must have at least 3 characters (no spaces)."},
      {"header alarm",
       {{"OptAlarmInHeader", "1"}, {"txtAlarmHeader", " "}},
       "txtAlarmHeader",
       "Look in header",
       "The 'Look in header' box can not be empty."},
      {"data alarm",
       {{"OptAlarmInData", "1"}, {"txtAlarmData", ""}},
       "txtAlarmData",
       "Look in data",
       "The 'Look in data' box can not be empty."},
      {"call", {{"txtCallsign", "X"}}, "txtCallsign", "Your Call", "Invallid callsign!"},
  };
  for (const FailingCheck& check : checks) {
    SCOPED_TRACE(check.name);
    config().BBSCommands = 1;
    config().PictureLoad = -1;
    station->parts().settings.SaveSettings();
    const std::string before = ini();
    setup().Form_Load();
    set("TxtAckInterval", "45");  // a plain key of step 1
    for (const auto& [name, value] : check.typed)
      set(name, value);
    const std::size_t boxes = platform.simDialogs.shown.size();
    setup().Command1_Click();
    ASSERT_EQ(platform.simDialogs.shown.size(), boxes + 1);
    EXPECT_EQ(lastBox().title, check.caption);
    EXPECT_EQ(lastBox().text, check.text);
    EXPECT_TRUE(w().form.loaded);
    EXPECT_EQ(w().focus, check.field);
    EXPECT_EQ(config().AckInterval, 45);
    EXPECT_EQ(config().PictureLoad, -1);  // a picture that failed is not stored
    EXPECT_EQ(ini(), before);
    // Cancel takes nothing back and writes nothing.
    setup().Command2_Click();
    EXPECT_FALSE(w().form.loaded);
    EXPECT_EQ(config().AckInterval, 45);
    EXPECT_EQ(ini(), before);
    config().AckInterval = 20;
  }
}

TEST_F(SetupTest, TheBbsStateOpensAtOnceOnAShortPasswordAndTheHoursStayWhenTheMinutesFail) {
  startLan();
  config().BBSCommands = 1;
  setup().Form_Load();
  set("OptEnableBBS", "2");
  set("txtBBSPassword", "ab");
  setup().Command1_Click();
  EXPECT_EQ(config().BBSCommands, 0);
  setup().Form_Load();
  set("txtUTChour", "-3");
  set("txtUTCminutes", "-61");
  setup().Command1_Click();
  EXPECT_EQ(config().UTCTimeOffsetHours, -3);
  EXPECT_EQ(config().UTCTimeOffsetMinutes, 0);
}

TEST_F(SetupTest, AckIntervalsAndTheEdgesOfTheUtcOffsetAreTakenAsTheRulesSay) {
  startLan();
  setup().Form_Load();
  set("TxtAckInterval", "9");
  setup().Command1_Click();
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(config().AckInterval, 20);
  EXPECT_EQ(config().AckRetryIntervalMs, 20000);
  setup().Form_Load();
  set("TxtAckInterval", "10");
  set("txtUTChour", "-12");
  set("txtUTCminutes", "60");
  setup().Command1_Click();
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(config().AckInterval, 10);
  EXPECT_EQ(config().AckRetryIntervalMs, 10000);
  EXPECT_NE(ini().find("[UTC Time Offset]\r\n-12_60\r\n"), std::string::npos);
  EXPECT_NE(ini().find("[AckInterval]\r\n 10 \r\n"), std::string::npos);
}

TEST_F(SetupTest, NumberBoxesDropTheKeysTheyRefuse) {
  startLan();
  setup().Form_Load();
  set("TxtAckInterval", "1a23456");
  EXPECT_EQ(w().TxtAckInterval.text, "1234");
  set("txtUTChour", "-1-2");
  EXPECT_EQ(w().txtUTChour.text, "-12");
  set("txtAutoClearTime", "-30");
  EXPECT_EQ(w().txtAutoClearTime.text, "30");
}

TEST_F(SetupTest, AnUntouchedWindowAppliedWritesTheSameFileButForTheTimeOfSaving) {
  startLan();
  station->parts().settings.SetFactoryDefaults();
  station->parts().settings.SaveSettings();
  station->parts().settings.LoadSettings();
  station->parts().settings.SaveSettings();
  const std::string before = ini();
  setup().Form_Load();
  EXPECT_EQ(w().Usepic.chosen(), 1);  // [PictureLoad] -1 shows as row 1
  EXPECT_TRUE(w().chkScreenPosSize.checked());
  platform.simLoop.run(61);  // a minute later: the time of saving differs
  setup().Command1_Click();
  EXPECT_FALSE(w().form.loaded);
  EXPECT_NE(ini(), before);
  EXPECT_EQ(WithoutSaveTime(ini()), WithoutSaveTime(before));
}

TEST_F(SetupTest, ANewCallInLanModeAsksForARestart) {
  startLan();
  setup().Form_Load();
  set("txtCallsign", "xx8ab");
  setup().Command1_Click();
  EXPECT_EQ(lastBox().title, "New Callsign Entered");
  EXPECT_EQ(lastBox().text, "New call activated.\r\nPlease restart TESK.");
  EXPECT_EQ(config().YourCallSign, "XX8AB");
  EXPECT_NE(ini().find("[Your Call Sign]\r\nXX8AB\r\n"), std::string::npos);
  // The same call in another case is no change: no box.
  const std::size_t boxes = platform.simDialogs.shown.size();
  setup().Form_Load();
  set("txtCallsign", "Xx8aB");
  setup().Command1_Click();
  EXPECT_EQ(platform.simDialogs.shown.size(), boxes);
}

TEST_F(SetupTest, ANewCallInDirectModeGoesToTheEngineAtOnceOrTellsThatItIsGone) {
  startDirect();
  setup().Form_Load();
  set("txtCallsign", "XX8AB");
  setup().Command1_Click();
  EXPECT_EQ(lastBox().title, "New Callsign Entered");
  EXPECT_EQ(lastBox().text, "New call activated.\r\nPlease restart TESK and Software Modem.");
  const std::size_t before = direct->received.size();
  station->consoleLine("Hello via the new call");
  platform.simLoop.run(0.5);
  bool fromNewCall = false;
  for (std::size_t i = before; i < direct->received.size(); ++i)
    if (direct->received[i].callFrom == "XX8AB") fromNewCall = true;
  EXPECT_TRUE(fromNewCall);

  direct->stop();
  platform.simLoop.run(1);
  setup().Form_Load();
  set("txtCallsign", "XX7CD");
  setup().Command1_Click();
  EXPECT_EQ(lastBox().text,
            "Cannot connect to the Software Modem, is it running ? Please restart TESK when the "
            "Software Modem is running.");
  EXPECT_EQ(config().YourCallSign, "XX7CD");  // stored all the same
  EXPECT_FALSE(w().form.loaded);
}

TEST_F(SetupTest, EachModemTypeAsksForARestartAndSetsItsLinkMode) {
  startLan();
  struct Case {
    int from, to;
    const char* caption;
    const char* firstLine;
    int16_t lanMode;  // -5: left as it was
  };
  const Case cases[] = {
      {0, 1, "UZ7HO SoundModem in TESK LAN mode",
       "You have enabled UZ7HO SoundModem (or compatible).", 1},
      {1, 2, "AGWPE in Direct mode", "You have enabled AGW Packet Engine using DLL.", 0},
      {0, 3, "AGWPE in TCPIP mode",
       "You have enabled AGW Packet Engine (or compatible) using TCPIP.", 1},
      {2, 0, "Changed type of software modem", "You have chosen another software modem.", -5},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.caption);
    config().TypeOfModem = static_cast<int16_t>(c.from);
    station->run().LanMode = -5;
    setup().Form_Load();
    set("optTypeModem", std::to_string(c.to));
    setup().Command1_Click();
    EXPECT_EQ(lastBox().title, c.caption);
    EXPECT_EQ(Left(lastBox().text, Len(c.firstLine)), c.firstLine);
    EXPECT_EQ(Right(lastBox().text, 20), "Please restart TESK.");
    EXPECT_EQ(station->run().LanMode, c.lanMode);
    EXPECT_EQ(config().TypeOfModem, c.to);
  }
  // The type left as it was asks nothing.
  const std::size_t boxes = platform.simDialogs.shown.size();
  setup().Form_Load();
  setup().Command1_Click();
  EXPECT_EQ(platform.simDialogs.shown.size(), boxes);
}

TEST_F(SetupTest, AChangedPortIsReselectedWithoutAQuestion) {
  startLan();
  setup().Form_Load();
  set("OptAGWTXport", "2");
  set("OptAGWRXport", "6");
  const std::size_t boxes = platform.simDialogs.shown.size();
  setup().Command1_Click();
  EXPECT_EQ(platform.simDialogs.shown.size(), boxes);
  EXPECT_EQ(config().AGWPERadioPort, 2);
  EXPECT_EQ(station->run().CurrentPort, 2);
  EXPECT_TRUE(station->mainWindow().menuAgwport[2].checked);
  EXPECT_FALSE(station->mainWindow().menuAgwport[0].checked);
  EXPECT_TRUE(station->mainWindow().menuAgwportRX[6].checked);
  EXPECT_EQ(station->mainWindow().FrameComm.caption, "Communication Ports: TX-3 / RX All");
}

TEST_F(SetupTest, ResetToDefaultsKeepsCallPositionAndGeometryWritesReloadsAndRefillsTheWindow) {
  startLan();
  StationConfig& c = config();
  c.APRS = "=5053.42N/00440.83E-Hello";
  Window& form = station->mainWindow().form;
  form.width = 12000;
  form.left = 300;
  form.top = 500;
  c.BeaconInterval = 30;
  c.AckInterval = 45;
  setup().Form_Load();
  platform.simDialogs.answers = {"N"};
  setup().CmdReset_Click(0);
  EXPECT_EQ(c.AckInterval, 45);
  EXPECT_EQ(w().TxtAckInterval.text, "45");
  platform.simDialogs.answers = {"Y"};
  setup().CmdReset_Click(0);
  EXPECT_EQ(platform.simDialogs.shown.back().title, "Reset TESK To Default");
  EXPECT_EQ(c.YourCallSign, "XX9TK");
  EXPECT_EQ(c.APRS, "=5053.42N/00440.83E-Hello");
  EXPECT_EQ(c.APRSEnabled, -1);
  EXPECT_EQ(c.hsize, 12000);
  EXPECT_EQ(c.leftpos, 300);
  EXPECT_EQ(form.left, 300);
  EXPECT_EQ(c.BeaconInterval, 60);
  EXPECT_EQ(c.AckInterval, 20);
  EXPECT_EQ(station->run().LanMode, 0);
  EXPECT_NE(ini().find("[Beacon Interval]\r\n 60 \r\n"), std::string::npos);
  EXPECT_EQ(station->parts().meld.window().lblMelding.caption,
            "Please restart TESK to make all remaining default settings active.");
  // The window shows the defaults, so Apply does not bring the old values back.
  EXPECT_TRUE(w().form.loaded);
  EXPECT_EQ(w().TxtAckInterval.text, "20");
  setup().Command1_Click();
  EXPECT_EQ(c.AckInterval, 20);
}

TEST_F(SetupTest, TotalResetDeletesBothFilesAndEndsWithoutSaving) {
  startLan();
  station->parts().settings.SaveSettings();
  SaveLANINI(config(), station->run());
  ASSERT_FALSE(ini().empty());
  ASSERT_TRUE(std::filesystem::exists(home.file("TESKLanMode.ini")));
  setup().Form_Load();
  platform.simDialogs.answers = {"N"};
  setup().CmdReset_Click(1);
  EXPECT_FALSE(platform.simLoop.ended());
  EXPECT_FALSE(ini().empty());
  platform.simDialogs.answers = {"Y"};
  setup().CmdReset_Click(1);
  EXPECT_EQ(lastBox().title, "Succesfully reset TESK");
  EXPECT_EQ(lastBox().text, "TESK has been totally reset. TESK will now close.");
  EXPECT_TRUE(platform.simLoop.ended());
  EXPECT_FALSE(std::filesystem::exists(home.file("tesk.ini")));
  EXPECT_FALSE(std::filesystem::exists(home.file("TESKLanMode.ini")));
}

TEST_F(SetupTest, EachHistoryResetClearsItsListAndRefillsOnYes) {
  startLan();
  MainWindow& m = station->mainWindow();
  StationConfig& c = config();
  for (const char* answer : {"N", "Y"}) {
    SCOPED_TRACE(answer);
    c.ConnectionCalls = {"XX1ABC", "XX2DEF"};
    c.ConnectionCall = "XX1ABC";
    m.cmbToCall.text = "QST";
    setup().Form_Load();
    platform.simDialogs.answers = {answer};
    setup().cmdResetHistory_Click(0);
    EXPECT_EQ(lastBox().title, "Clear/Set to default entries");
    EXPECT_EQ(lastBox().text,
              "The data in the 'To:'-boxes are cleared.\r\nDo you want to reset "
              "it to the default values?");
    EXPECT_TRUE(c.ConnectionCalls.empty());
    EXPECT_EQ(c.ConnectionCall, "XX1ABC");
    platform.simDialogs.answers = {answer};
    setup().cmdResetHistory_Click(1);
    EXPECT_EQ(c.ConnectionCall, "");
    platform.simDialogs.answers = {answer};
    setup().cmdResetHistory_Click(2);
    EXPECT_EQ(Left(lastBox().text, 38), "The data in the 'For:'-box is cleared.");
    if (std::string(answer) == "N") {
      EXPECT_TRUE(m.cmbToCall.list.empty());
      EXPECT_TRUE(m.cmbViaCall.list.empty());
      EXPECT_TRUE(m.cmbFor.list.empty());
      EXPECT_EQ(m.cmbToCall.text, "QST");
    } else {
      EXPECT_EQ(m.cmbToCall.list, (std::vector<std::string>{"CQ", "APRS", "PCSAT"}));
      EXPECT_EQ(m.cmbToCall.text, "CQ");
      EXPECT_EQ(c.ToCall, "CQ");
      EXPECT_EQ(m.cmbViaCall.list.back(), "");
      EXPECT_EQ(m.cmbViaCall.list.size(), 6u);
      EXPECT_EQ(c.Digistation, "ARISS");
      EXPECT_EQ(m.cmbFor.list, (std::vector<std::string>{"BLN", "EMAIL", "NWS", "SAT"}));
      EXPECT_EQ(m.cmbFor.text, "BLN");
    }
    setup().Command2_Click();
  }
  // The history resets acted at once: the exit writes the lists as they now are.
  station->Einde();
  EXPECT_NE(ini().find("[To text]\r\nCQ\r\nAPRS\r\nPCSAT\r\n[**end**]"), std::string::npos);
}

TEST_F(SetupTest, TheConsoleListsSetsAppliesAndPressesTheResets) {
  startLan();
  std::vector<std::string>& notices = platform.simViews.notices;
  notices.clear();
  station->consoleLine(":setup");
  EXPECT_EQ(notices.front(), "txtCallsign=XX9TK");
  EXPECT_NE(std::find(notices.begin(), notices.end(), "Usepic=1"), notices.end());
  EXPECT_NE(std::find(notices.begin(), notices.end(), "TxtAckInterval=20"), notices.end());
  EXPECT_FALSE(setup().window().form.loaded);

  station->consoleLine(
      ":setup OptAckType=2 TxtAckInterval=30 ChkAutoAnswer=1 \"TxtAutoAnswer=QRV on 2m\"");
  EXPECT_EQ(config().AckUIViewType, 2);
  EXPECT_EQ(config().AckInterval, 30);
  EXPECT_EQ(config().AutoAnswerText, "QRV on 2m");
  EXPECT_TRUE(station->mainWindow().LblAckON.visible);
  EXPECT_FALSE(w().form.loaded);

  // A failed check closes with Cancel; step 1 stays in memory.
  station->consoleLine(":setup TxtAckInterval=40 txtUTChour=13");
  EXPECT_EQ(lastBox().title, "Wrong UTC time");
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(config().AckInterval, 40);

  // A greyed control and a refused value are told in one line.
  notices.clear();
  station->consoleLine(":setup txtBBSPassword=abc");
  station->consoleLine(":setup TxtAckInterval=2x");
  station->consoleLine(":setup cmdloadprofile");
  ASSERT_EQ(notices.size(), 3u);
  EXPECT_NE(notices[0].find("not enabled"), std::string::npos);
  EXPECT_NE(notices[1].find("cannot take"), std::string::npos);
  EXPECT_NE(notices[2].find("not enabled"), std::string::npos);

  platform.simDialogs.answers = {"Y"};
  station->consoleLine(":setup history via");
  EXPECT_EQ(config().Digistation, "ARISS");
  EXPECT_FALSE(w().form.loaded);
  platform.simDialogs.answers = {"N"};
  station->consoleLine(":setup reset");
  EXPECT_EQ(lastBox().title, "Reset TESK To Default");
  EXPECT_EQ(config().AckInterval, 40);
}

TEST_F(SetupTest, TheMenuAndThePagesShortcutsOpenTheWindowOnTheirPage) {
  startLan();
  CommandTable& table = station->commands();
  EXPECT_TRUE(table.run({Command::menuoptions, 0}));
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmSetup");
  EXPECT_EQ(w().page, static_cast<int>(SetupPage::Station));
  EXPECT_EQ(w().txtCallsign.text, "XX9TK");
  setup().Command2_Click();
  // The Monitor's row shows in its right-click menu.
  EXPECT_TRUE(table.run({Command::txtMonitor_RightPress}));
  EXPECT_TRUE(table.run({Command::menuedits, 140}));
  EXPECT_EQ(w().page, static_cast<int>(SetupPage::Monitor));
  setup().Command2_Click();
  EXPECT_TRUE(table.run({Command::menumheardoptions, 100}));
  EXPECT_EQ(w().page, static_cast<int>(SetupPage::MHeard));
  EXPECT_FALSE(w().lblMHeardExample.caption.empty());
  setup().Command2_Click();
  AprsSetup& aprs = station->parts().aprsSetup;
  aprs.Form_Load();
  EXPECT_TRUE(aprs.window().Cmdaprsetup.enabled);
  aprs.Cmdaprsetup_Click();
  EXPECT_EQ(w().page, static_cast<int>(SetupPage::Aprs));
  // The beacon's button runs the Beacon menu's command, and follows its rule.
  EXPECT_TRUE(w().cmdBeaconSetup.enabled);
  setup().cmdBeaconSetup_Click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "Beacon");
  EXPECT_TRUE(w().cmdLanSetup.enabled);
  setup().cmdLanSetup_Click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "LAN_Setup");
}

TEST_F(SetupTest, ControlsThatDependOnAnotherFollowIt) {
  startLan();
  setup().Form_Load();
  EXPECT_FALSE(w().txtBBSPassword.enabled);
  set("OptEnableBBS", "2");
  EXPECT_TRUE(w().txtBBSPassword.enabled);
  set("OptEnableBBS", "1");
  EXPECT_FALSE(w().txtBBSPassword.enabled);
  set("ChkUseUTCinHeader", "1");
  EXPECT_TRUE(w().ChkUseUTCinHeader2.checked());
  set("OptAlarmInData", "1");
  EXPECT_FALSE(w().OptAlarmNone.value);
  set("Usepic", "1");
  EXPECT_EQ(w().txtAutoLoadPicPath.text, home.path() + "/tesk_bckgrnd.jpg");
  // The auto-clear: on, with the activity option, is stored negative.
  set("OptAutoClear", "1");
  set("txtAutoClearTime", "300");
  set("chkAutoClearPacketActivity", "1");
  set("ChkLimitTXTSize", "1");
  set("CmbBufferSize", "900000");
  setup().Command1_Click();
  EXPECT_EQ(config().MHeard_AutoClear, -300);
  EXPECT_EQ(config().MonBufferLimit, 512000);
  EXPECT_EQ(config().AlarmSet, 2);
  EXPECT_EQ(config().ShowUTCInHeader, 1);
  EXPECT_EQ(config().BBSCommands, 1);
}

}  // namespace
}  // namespace tesk::testing
