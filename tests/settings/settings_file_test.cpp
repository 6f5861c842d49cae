// tesk.ini written and read back: the byte forms of the writer, the side effects of saving, the
// round trip with its one deliberate loss, the value rules of the reader, damaged files, a disk
// that refuses the file, and what reading puts into the main window.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "base/text.h"
#include "settings_test_util.h"

namespace tesk {
namespace {

using settings_test::CrLfLines;
using settings_test::JoinCrLf;
using settings_test::Rig;

// The value line behind a label line (the first line behind it for lists).
std::string ValueAfter(const std::vector<std::string>& lines, const std::string& label, int n = 1) {
  const auto it = std::find(lines.begin(), lines.end(), label);
  if (it == lines.end() || lines.end() - it <= n) return "<missing " + label + ">";
  return *(it + n);
}

void SetValue(std::vector<std::string>& lines, const std::string& label, const std::string& v) {
  const auto it = std::find(lines.begin(), lines.end(), label);
  ASSERT_NE(it, lines.end()) << label;
  *(it + 1) = v;
}

// A rig holding a factory-default file of call PA3XYZ, saved with a normal window.
struct SavedRig : Rig {
  SavedRig() {
    config.YourCallSign = "PA3XYZ";
    settings->SetFactoryDefaults();
    main.form = Window{"TESK", true, true, 0, 1200, 900, 12000, 9000};
    settings->SaveSettings();
  }
  std::vector<std::string> lines() const { return CrLfLines(iniText()); }
  void rewrite(const std::vector<std::string>& l) {
    settings_test::Spit(run.SettingsPath, JoinCrLf(l));
  }
};

TEST(SettingsWriter, WritesPrintFormsInTableOrderWithCrLf) {
  SavedRig rig;
  const auto lines = rig.lines();
  // 2 header lines, 110 labels with one value each, 22 more history lines, 2 more lines of
  // [AutoBeacon] and 1 of [ConnectionCalls], the reserved pair, [Debugset] and 13 lines.
  ASSERT_EQ(lines.size(), 2u + 220u + 22u + 3u + 3u + 13u);
  for (const std::string& l : lines)
    EXPECT_EQ(l.find("<"), std::string::npos) << l;
  EXPECT_EQ(lines[0].rfind(";TESK v.5.4.4", 0), 0u);
  EXPECT_EQ(lines[2], "[Your Call Sign]");
  EXPECT_EQ(lines[3], "PA3XYZ");
  EXPECT_EQ(ValueAfter(lines, "[AGWPE Radio Port]"), " 0 ");
  EXPECT_EQ(ValueAfter(lines, "[Beacon Interval]"), " 60 ");
  EXPECT_EQ(ValueAfter(lines, "[SavePosition]"), "-1 ");
  EXPECT_EQ(ValueAfter(lines, "[Selected Beacon]"), " 100001 ");
  EXPECT_EQ(ValueAfter(lines, "[DataBox Backcolor]"), "-2147483626 ");
  EXPECT_EQ(ValueAfter(lines, "[h-size]"), " 12000 ");
  EXPECT_EQ(ValueAfter(lines, "[BBS Commands]"), " 0 /");
  EXPECT_EQ(ValueAfter(lines, "[Beacon File Type]"), " 0  0 ");
  EXPECT_EQ(ValueAfter(lines, "[UTC Time Offset]"), "0_0");
  EXPECT_EQ(ValueAfter(lines, "[AutoDisconnect, Filters, RemoveSame]"), " 0  0  0 ");
  EXPECT_EQ(ValueAfter(lines, "[IntelligentBeacon]"), "0*");
  EXPECT_EQ(ValueAfter(lines, "[RefreshPicLoadPath]"), rig.run.AppPath + "/tesk_bckgrnd.jpg");
  EXPECT_EQ(ValueAfter(lines, "[ShadowExperiment_ISO_DIGI]"), "US_BEACON ARISS");
  EXPECT_EQ(ValueAfter(lines, "[FixedMonWidth]"), " 0 ");
  EXPECT_EQ(ValueAfter(lines, "[EditMonitor]"), " 0 ");
  // The Via list's empty entry is not written; the field texts come from the live fields.
  EXPECT_EQ(ValueAfter(lines, "[Via text]", 4), "WIDE2-2");
  EXPECT_EQ(ValueAfter(lines, "[Via text]", 5), "[**end**]");
  EXPECT_EQ(ValueAfter(lines, "[Default For:]"), "NWS");
  EXPECT_EQ(ValueAfter(lines, "[Default Message:]"), "Hello All. TESK v.5.4.4");
  EXPECT_EQ(ValueAfter(lines, "[AutoBeacon]", 2), "");
  EXPECT_EQ(ValueAfter(lines, "[ConnectionCalls]", 2), "[**end**]");
  EXPECT_EQ(ValueAfter(lines, "[Reserved]"), "");
  EXPECT_EQ(ValueAfter(lines, "[Debugset]"), ";winddir /etc/");
  EXPECT_EQ(ValueAfter(lines, "[Debugset]", 2), ";apppath " + rig.run.AppPath);
  EXPECT_EQ(ValueAfter(lines, "[Debugset]", 5), ";windver SimOS 1.0");
  EXPECT_EQ(ValueAfter(lines, "[Debugset]", 7), ";server  0 init 0");
  EXPECT_EQ(ValueAfter(lines, "[Debugset]", 11), ";LANIP   127.0.0.1");
  EXPECT_EQ(lines.back(), ";LANSlow 0");
  EXPECT_FALSE(std::filesystem::exists(rig.run.SettingsPath + ".tmp"));
}

TEST(SettingsWriter, SavingChangesMemoryAsTheFileSays) {
  SavedRig rig;
  rig.config.BeaconInterval = 5;
  rig.config.IntelligentBeacon = "1";
  rig.config.hsize = 11000;
  rig.main.form.windowState = 1;  // minimised: the remembered size goes out as a long
  rig.main.form.width = 0;
  rig.settings->SaveSettings();
  auto lines = rig.lines();
  EXPECT_EQ(rig.config.BeaconInterval, 10);
  EXPECT_EQ(ValueAfter(lines, "[Beacon Interval]"), " 10 ");
  EXPECT_EQ(rig.config.IntelligentBeacon, "1%none%");
  EXPECT_EQ(ValueAfter(lines, "[IntelligentBeacon]"), "1%none%");
  EXPECT_EQ(ValueAfter(lines, "[h-size]"), " 11000 ");
  rig.main.form.windowState = 0;  // a normal window: its live size is remembered and written
  rig.main.form.width = 13500;
  rig.settings->SaveSettings();
  EXPECT_EQ(rig.config.hsize, 13500);
  EXPECT_EQ(ValueAfter(rig.lines(), "[h-size]"), " 13500 ");
  rig.settings->LoadSettings();
  EXPECT_EQ(rig.config.IntelligentBeacon, "1");  // the marker reads back as the empty string
}

TEST(SettingsRoundTrip, FactoryDefaultsComeBackButEntries110To112) {
  SavedRig a;
  Rig b;
  b.run.AppPath = a.run.AppPath;
  b.run.SettingsPath = a.run.SettingsPath;
  b.settings->LoadSettings();
  ASSERT_EQ(b.settings->lastReadError(), 0);
  StationConfig want = a.config;
  // Deliberately lost: a file of this version does not read 110-112 back.
  want.AutoStopBeacon = 0;
  want.StopBeaconMaxDigi = 0;
  want.SelectedBeaconItems = 1;
  EXPECT_TRUE(b.config == want);
  EXPECT_EQ(b.main.cmbViaCall.list, a.main.cmbViaCall.list);
  EXPECT_EQ(b.main.cmbAPRSMessage.text, a.main.cmbAPRSMessage.text);
  EXPECT_EQ(b.main.form.width, 12000);
  // Saving again gives the same bytes but for those two entries.
  const auto first = a.lines();
  b.settings->SaveSettings();
  auto second = CrLfLines(b.iniText());
  SetValue(second, "[AutoStopBeacon]", " 1 ");
  SetValue(second, "[StopBeaconMaxDigi]", " 2 ");
  EXPECT_EQ(second, first);
}

TEST(SettingsReader, ListsBeyondTheirCapsAndOddValues) {
  SavedRig rig;
  for (int i = 0; i < 40; ++i)
    rig.main.cmbDataText.list.push_back("line " + std::to_string(i));
  rig.main.cmbDataText.list[1] = "   ";
  rig.config.BBSCommands = 2;
  rig.config.BBSPassword = "pass/word/2";
  rig.settings->SaveSettings();
  auto lines = rig.lines();
  const auto data = std::find(lines.begin(), lines.end(), "[TX data text]");
  EXPECT_EQ(*(data + 25), "[**end**]");  // 25 looked at, the blank one left out
  EXPECT_EQ(ValueAfter(lines, "[BBS Commands]"), " 2 /pass/word/2");
  // 40 entries in the file: 31 are taken, the rest pass by without disturbing the order.
  std::vector<std::string> extra;
  for (int i = 0; i < 40; ++i)
    extra.push_back("x" + std::to_string(i));
  lines.insert(data + 1, extra.begin(), extra.end());
  SetValue(lines, "[Beacon Interval]", " 30,45 ");
  SetValue(lines, "[ConnectionFont]", "Arial, Bold");
  SetValue(lines, "[FilterCall]", "\"pa3, x\" rest");
  SetValue(lines, "[Ignore Mheard Calls]", ";none");
  SetValue(lines, "[UTC Time Offset]", "-3");
  lines.insert(std::find(lines.begin(), lines.end(), "[AutoBeacon]") + 2, "10:00,11:00");
  lines.erase(std::find(lines.begin(), lines.end(), "[AutoBeacon]") + 3);
  rig.rewrite(lines);
  rig.settings->LoadSettings();
  ASSERT_EQ(rig.settings->lastReadError(), 0);
  EXPECT_EQ(rig.config.TXdatatext.size(), 31u);
  EXPECT_EQ(rig.config.TXdatatext.back(), "x30");
  EXPECT_EQ(rig.config.BeaconInterval, 30);
  EXPECT_EQ(rig.config.BBSCommands, 2);
  EXPECT_EQ(rig.config.BBSPassword, "pass/word/2");
  EXPECT_EQ(rig.config.ConnectionFont, "Arial");
  EXPECT_EQ(rig.config.FilterCall, "pa3, x");
  EXPECT_EQ(rig.config.AutoBeaconStart, "10:00");
  EXPECT_EQ(rig.config.IgnoreMheardCalls, "");
  EXPECT_EQ(rig.config.UTCTimeOffsetHours, -3);
  EXPECT_EQ(rig.config.UTCTimeOffsetMinutes, 0);
  EXPECT_EQ(rig.config.CallDefinedLog, "ISS");  // still in step after all of that
}

TEST(SettingsReader, ADamagedFileEndsInFactoryDefaults) {
  struct Case {
    const char* what;
    int error;
    std::function<void(std::vector<std::string>&)> damage;
  };
  const std::vector<Case> cases = {
      {"cut short", 62, [](auto& l) { l.resize(120); }},
      {"not a number", 13, [](auto& l) { SetValue(l, "[AlarmSet]", "two"); }},
      {"too big", 6, [](auto& l) { SetValue(l, "[AlarmSet]", " 40000 "); }},
  };
  for (const Case& c : cases) {
    SavedRig rig;
    auto lines = rig.lines();
    SetValue(lines, "[To call]", "QST");
    SetValue(lines, "[AckInterval]", " 30 ");
    c.damage(lines);
    rig.rewrite(lines);
    rig.config.ToCall = "OLD";
    rig.main.cmbToCall.list = {"OLD"};
    rig.settings->LoadSettings();
    EXPECT_EQ(rig.settings->lastReadError(), c.error) << c.what;
    EXPECT_EQ(rig.config.YourCallSign, "PA3XYZ") << c.what;
    EXPECT_EQ(rig.config.ToCall, "CQ") << c.what;
    EXPECT_EQ(rig.config.AckInterval, 20) << c.what;
    EXPECT_EQ(rig.main.cmbToCall.list.size(), 5u) << c.what;
  }
}

TEST(SettingsReader, NoFileMyCallAndNoCall) {
  Rig rig;
  rig.config.AckInterval = 99;
  rig.settings->LoadSettings();  // no file at all
  EXPECT_EQ(rig.config.YourCallSign, "MYCALL");
  EXPECT_EQ(rig.config.AckInterval, 20);
  EXPECT_EQ(rig.erases, 1);

  settings_test::Spit(rig.run.SettingsPath,
                      ";TESK v.5.4.4\r\n;\r\n[Your Call Sign]\r\n mycall \r\n");
  rig.config.AckInterval = 99;
  rig.settings->LoadSettings();
  EXPECT_EQ(rig.config.YourCallSign, "");
  EXPECT_EQ(rig.config.AckInterval, 20);

  settings_test::Spit(rig.run.SettingsPath, "");
  rig.settings->LoadSettings();
  ASSERT_EQ(rig.platform.simDialogs.shown.size(), 1u);
  EXPECT_EQ(rig.platform.simDialogs.shown[0].text, "No valid call entered.");
  EXPECT_EQ(rig.platform.simDialogs.shown[0].title, "No valid Callsign");
}

TEST(SettingsWriter, ARefusedFileIsToldAndTheValuesStay) {
  Rig rig;
  std::filesystem::create_directories(rig.run.SettingsPath + "/inside");  // a folder in the way
  rig.config.BeaconInterval = 3;
  rig.config.ToCall = "KEEP";
  rig.settings->SaveSettings();
  ASSERT_EQ(rig.platform.simDialogs.shown.size(), 1u);
  EXPECT_EQ(rig.platform.simDialogs.shown[0].text, SettingsFile::kWriteFailureText);
  EXPECT_EQ(rig.config.ToCall, "KEEP");
  EXPECT_EQ(rig.config.BeaconInterval, 10);
  EXPECT_FALSE(std::filesystem::exists(rig.run.SettingsPath + ".tmp"));
}

TEST(SettingsReader, LfLineEndsAndAnsiBytesReadLikeCrLf) {
  SavedRig rig;
  auto lines = rig.lines();
  SetValue(lines, "[AlarmSet Data Text]", "caf\xE9 \x80 73");
  std::string lf;
  for (const std::string& l : lines)
    lf += l + "\n";
  settings_test::Spit(rig.run.SettingsPath, lf);
  rig.settings->LoadSettings();
  ASSERT_EQ(rig.settings->lastReadError(), 0);
  EXPECT_EQ(rig.config.AlarmSetDataText, "caf\xE9 \x80 73");
  EXPECT_EQ(rig.config.CallDefinedLog, "ISS");
}

TEST(SettingsReader, FillsTheMainWindow) {
  SavedRig rig;
  auto lines = rig.lines();
  SetValue(lines, "[left-pos]", " 500 ");
  SetValue(lines, "[top-pos]", " 500 ");
  SetValue(lines, "[h-size]", " 30000 ");
  SetValue(lines, "[Filter]", " 5 ");
  SetValue(lines, "[FilterCall]", "pa3abc");
  SetValue(lines, "[AutoDisconnect, Filters, RemoveSame]", " 0  9  0 ");
  SetValue(lines, "[Beacon]", "-1 ");
  SetValue(lines, "[IntelligentBeacon]", "1ISS");
  SetValue(lines, "[ShadowExperiment]", "-1 ");
  SetValue(lines, "[TESK Server]", " 1 ");
  SetValue(lines, "[MHeard_AutoClear]", "-60 ");
  SetValue(lines, "[FontSize]", " 6 ");
  SetValue(lines, "[DataBox Backcolor]", " 255 ");
  SetValue(lines, "[Selected Beacon]", " 101011 ");
  SetValue(lines, "[AckInterval]", " 45 ");
  rig.rewrite(lines);
  MainWindow& w = rig.main;
  w.screenWidth = 20000;
  rig.settings->LoadSettings();
  const StationConfig& c = rig.config;
  EXPECT_EQ(w.form.left, 10);  // equal and small: both put to 10
  EXPECT_EQ(w.form.top, 10);
  EXPECT_EQ(w.form.width, 20000);
  EXPECT_EQ(w.form.windowState, 2);  // larger than the desktop: maximised
  EXPECT_TRUE(w.menufilters[5].checked);
  EXPECT_FALSE(w.menufilters[0].checked);
  EXPECT_EQ(rig.filterText, "PA3ABC");
  EXPECT_TRUE(rig.filterClicks.empty());
  EXPECT_EQ(c.Filters, 0);
  EXPECT_EQ(w.lblMonitorFilter.caption, "PA3ABC");
  // Restored, the label has the colours of a filter chosen from the menu.
  EXPECT_EQ(w.lblMonitorFilter.backColor, QBColor(10));
  EXPECT_EQ(w.lblMonitorFilter.foreColor, QBColor(1));
  EXPECT_EQ(w.lblBeacon.caption, "Beacon ON");
  // Light magenta (Smart Beacon on) behind light yellow text, as the beacon itself paints it.
  EXPECT_EQ(w.lblBeacon.backColor, QBColor(13));
  EXPECT_EQ(w.lblBeacon.foreColor, QBColor(14));
  EXPECT_TRUE(w.LblSpEx.visible);
  EXPECT_EQ(w.frmLogoTitle.caption, "+");
  EXPECT_EQ(c.TESKServerInit, 1);
  EXPECT_TRUE(w.Lblmheardautoerase.visible);
  EXPECT_EQ(c.FontSize, 9);
  EXPECT_EQ(w.txtMonitor.defaultStyle().size, 9);
  EXPECT_EQ(w.cmbAPRSPos.backColor, 255);
  EXPECT_EQ(w.LstMHeardList.backColor, 255);
  EXPECT_EQ(c.SelectedBeaconItems, 3);  // places 2 to 6 of "101011"
  EXPECT_EQ(c.AckRetryIntervalMs, 45000);
  EXPECT_EQ(w.lblCallSign.caption, "PA3XYZ");
  EXPECT_EQ(w.cmbViaCall.list.back(), "");
}

TEST(SettingsFactory, DefaultsHistoriesAndKeptValues) {
  Rig rig;
  rig.config.APRS = "=5152.00N/00500.00E-x";
  rig.config.hsize = 12345;
  rig.config.HostName_IP_Default = "10.1.1.1";
  rig.run.LanMode = -1;
  rig.main.cmbAPRSPos.list = {"mine"};
  rig.settings->SetFactoryDefaults();
  const StationConfig& c = rig.config;
  EXPECT_EQ(c.APRSEnabled, -1);
  EXPECT_EQ(c.APRS, "=5152.00N/00500.00E-x");
  EXPECT_EQ(c.hsize, 12345);
  EXPECT_EQ(c.HostName_IP_Default, "127.0.0.1");
  EXPECT_EQ(rig.run.LanMode, 0);
  EXPECT_EQ(c.AutoStopBeacon, 1);
  EXPECT_EQ(c.StopBeaconMaxDigi, 2);
  EXPECT_EQ(rig.main.cmbAPRSPos.list, (std::vector<std::string>{"mine", "73' Via Satellite"}));
  EXPECT_EQ(rig.main.cmbAPRSPos.text, "mine");
  EXPECT_EQ(rig.main.cmbFor.text, "NWS");
  EXPECT_EQ(rig.main.cmbDataText.list.back(), "Hi All! TESK v5.4.4");
  EXPECT_EQ(rig.main.cmbViaCall.list.back(), "");
  EXPECT_EQ(rig.main.lblBeacon.caption, "Beacon OFF");
  EXPECT_EQ(rig.autoLogs, std::vector<int>{2});
  EXPECT_EQ(rig.erases, 1);
  rig.config.APRS = "=short";
  rig.settings->SetFactoryDefaults();
  EXPECT_EQ(rig.config.APRS, "");
  EXPECT_EQ(rig.config.APRSEnabled, 0);
}

}  // namespace
}  // namespace tesk
