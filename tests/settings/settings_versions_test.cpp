// Files of every version the reader knows, and one it does not: what each version's file gets
// read (the gates), and what the upgrade steps put in place of what an older file lacks.
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "settings/settings_file.h"
#include "settings_test_util.h"

namespace tesk {
namespace {

using settings_test::Rig;

struct VersionCase {
  const char* file;
  int code;
  int lastEntry;  // the last entry the reader takes from this version's file
};

void PrintTo(const VersionCase& v, std::ostream* os) {
  *os << v.file;
}

std::string Text(const std::string& s) {
  return s;
}
std::string Text(long long n) {
  return std::to_string(n);
}

// One value looked at after the load: the file's value when the entry was read, the value held
// before otherwise; an upgrade step for files below `upgradeBelow` wins over both.
struct Probe {
  int entry;
  std::function<std::string(const StationConfig&)> get;
  std::string file, before;
  int upgradeBelow = 0;
  std::string upgraded{};
};

#define FIELD(f) [](const StationConfig& c) { return Text(c.f); }

const std::vector<Probe>& Probes() {
  static const std::vector<Probe> probes = {
      {4, FIELD(ToCall), "QST-1", "BEFORE"},
      {12, FIELD(HeaderColor), "255", "777", 500, "65535"},
      {32, FIELD(TESKTag), "1", "5"},
      {35, FIELD(BBSPassword), "se/cret", "BEFORE"},
      {38, FIELD(DefaultFor), "ABCDEFGHI", "BEFORE"},
      {40, FIELD(DefaultAPRSText), "DEF APRS", "BEFORE"},
      {42, FIELD(BeaconFileType), "2", "3"},
      {44, FIELD(UTCTimeOffsetMinutes), "30", "7"},
      {45, FIELD(LogAlarmToDisk), "-1", "5"},
      {49, FIELD(MessageboxAlarm), "1", "5"},
      {50, FIELD(IntelligentBeacon), "1ISS", "0BEFORE"},
      {52, FIELD(RefreshPicLoadPath), "C:\\pics\\bg.jpg", "BEFORE"},
      {56, FIELD(AutoBeaconStop), "10:3012:30", "BEFORE"},
      {59, FIELD(ConnectionCall), "PA0CON", "BEFORE"},
      {60, FIELD(TXBoxCoherentColors), "0", "5"},
      {62, FIELD(MHeard_AutoClear), "-120", "5"},
      {64, FIELD(AckInterval), "30", "55", 500, "20"},
      {79, FIELD(ConnectLog), "0", "5", 500, "1"},
      {82, FIELD(ConnectionFont), "Courier New", "BEFORE", 500, "Fixedsys"},
      {84, FIELD(ShadowExperiment), "-1", "5", 510, "0"},
      {89, FIELD(ShExpPauseTX), "45", "50", 520, "60"},
      {90, FIELD(ShowUTCInHeader), "-1", "5", 520, "0"},
      {92, FIELD(strRunExtApp1), "ext1.exe", "BEFORE", 523, ""},
      {93, FIELD(MessageColor), "255", "777", 525, "51200"},
      {94, FIELD(MaxPacketLength), "3", "5", 526, "0"},
      {95, FIELD(strRunExtApp2), "ext2.exe", "BEFORE", 528, ""},
      {96, FIELD(Picture_URL), "http://sat.example/pic.jpg", "BEFORE", 530, "http://"},
      {99, FIELD(CallDefinedLog), "RS0ISS", "BEFORE", 530, "ISS"},
      {100, FIELD(SystemTray), "-1", "5"},
      {104, FIELD(AutoRunModemProgram), "-1", "5", 533, "0"},
      {108, FIELD(APRSCompressed), "/5L!!<*e7>7P[", "BEFORE..", 533, ""},
      {109, FIELD(AutoPasteCallInFor), "0", "5", 533, "1"},
      {110, FIELD(AutoStopBeacon), "0", "5", 540, "1"},
      {111, FIELD(StopBeaconMaxDigi), "4", "5", 540, "2"},
      {112, FIELD(EditMonitor), "1", "5", 540, "0"},
  };
  return probes;
}

// The values held before the load, different from the file's and from the upgrades'.
void SetBefore(StationConfig& c) {
  c.ToCall = c.BBSPassword = c.DefaultFor = c.DefaultAPRSText = c.RefreshPicLoadPath =
      c.AutoBeaconStop = c.ConnectionCall = c.ConnectionFont = c.strRunExtApp1 = c.strRunExtApp2 =
          c.Picture_URL = c.CallDefinedLog = "BEFORE";
  c.APRSCompressed = "BEFORE..";
  c.IntelligentBeacon = "0BEFORE";
  c.HeaderColor = c.MessageColor = 777;
  c.TESKTag = c.LogAlarmToDisk = c.MessageboxAlarm = c.TXBoxCoherentColors = 5;
  c.AckInterval = 55;
  c.MHeard_AutoClear = 5;
  c.ConnectLog = c.ShadowExperiment = c.ShowUTCInHeader = c.MaxPacketLength = c.SystemTray =
      c.AutoRunModemProgram = c.AutoPasteCallInFor = c.AutoStopBeacon = c.StopBeaconMaxDigi =
          c.EditMonitor = 5;
  c.BeaconFileType = 3;
  c.UTCTimeOffsetMinutes = 7;
  c.ShExpPauseTX = 50;
  c.FixedMonitorWidth = 9;  // outside 0 to 6: the upgrade below 5.0 puts it to 0
  c.APRSMessageFor = {"OLD"};
}

class SettingsVersions : public ::testing::TestWithParam<VersionCase> {};

TEST_P(SettingsVersions, ReadsUpToItsGateAndUpgradesTheRest) {
  const VersionCase& v = GetParam();
  Rig rig;
  SetBefore(rig.config);
  settings_test::Spit(
      rig.run.SettingsPath,
      settings_test::Slurp(std::string(TESK_SOURCE_DIR) + "/tests/settings/fixtures/" + v.file));
  rig.settings->LoadSettings();

  ASSERT_EQ(rig.settings->lastVersionCode(), v.code);
  ASSERT_EQ(rig.settings->lastReadError(), 0);
  EXPECT_EQ(rig.config.YourCallSign, "PA3XYZ");
  for (const Probe& p : Probes()) {
    const std::string want = v.code < p.upgradeBelow  ? p.upgraded
                             : p.entry <= v.lastEntry ? p.file
                                                      : p.before;
    EXPECT_EQ(p.get(rig.config), want) << "entry " << p.entry;
  }
  // Entry 63 is bounded by the upgrade below 5.0 only when it is outside 0 to 6.
  EXPECT_EQ(rig.config.FixedMonitorWidth, v.lastEntry >= 63 ? 3 : 0);
  // Files before 3.0 get the four standard Message for entries added to what they hold.
  std::vector<std::string> forList = v.lastEntry >= 33 ? std::vector<std::string>{"CQSAT", "XYZ"}
                                                       : std::vector<std::string>{"OLD"};
  if (v.code < 300) forList.insert(forList.end(), {"BLN", "EMAIL", "NWS", "SAT"});
  EXPECT_EQ(rig.config.APRSMessageFor, forList);
  EXPECT_EQ(rig.main.cmbFor.list, forList);
  EXPECT_EQ(rig.calcUtcCalls, v.code < 500 ? 1 : 0);
  // The filter of entry 101 is restored through the filter menu only where it was read.
  EXPECT_EQ(rig.filterClicks, v.lastEntry >= 101 ? std::vector<int>{3} : std::vector<int>{});
}

INSTANTIATE_TEST_SUITE_P(
    AllHeaders, SettingsVersions,
    ::testing::Values(
        VersionCase{"tesk_v2.ini", 200, 32}, VersionCase{"tesk_v3.0.ini", 300, 40},
        VersionCase{"tesk_v3.1.ini", 310, 42}, VersionCase{"tesk_v3.2.ini", 320, 45},
        VersionCase{"tesk_v3.3.ini", 330, 49}, VersionCase{"tesk_v4.0.ini", 400, 60},
        VersionCase{"tesk_v4.1.ini", 410, 62}, VersionCase{"tesk_v4.1.1.ini", 411, 63},
        VersionCase{"tesk_v5.0.ini", 500, 82}, VersionCase{"tesk_v5.0.1.ini", 501, 82},
        VersionCase{"tesk_v5.1.0.ini", 510, 84}, VersionCase{"tesk_v5.2.ini", 520, 90},
        VersionCase{"tesk_v5.2.3.ini", 523, 92}, VersionCase{"tesk_v5.2.5.ini", 525, 93},
        VersionCase{"tesk_v5.2.6.ini", 526, 94}, VersionCase{"tesk_v5.2.7.ini", 527, 94},
        VersionCase{"tesk_v5.2.8.ini", 528, 95}, VersionCase{"tesk_v5.3.ini", 530, 99},
        VersionCase{"tesk_v5.3.2.ini", 532, 100}, VersionCase{"tesk_v5.4.ini", 540, 109},
        VersionCase{"tesk_v5.4.1.ini", 541, 112}, VersionCase{"tesk_v5.4.4.ini", 540, 109},
        VersionCase{"tesk_vunknown.ini", 0, 82}),
    [](const ::testing::TestParamInfo<VersionCase>& info) {
      std::string name = info.param.file;
      name = name.substr(0, name.size() - 4);
      for (char& ch : name) {
        if (ch == '.') ch = '_';
      }
      return name;
    });

TEST(SettingsVersionCode, LastExactPrefixWins) {
  EXPECT_EQ(SettingsVersionCode(";TESK v.5.4.4 anything"), 540);
  EXPECT_EQ(SettingsVersionCode(";TESK v.5.2.6"), 526);
  EXPECT_EQ(SettingsVersionCode(";TESK v.5.2.4"), 520);
  EXPECT_EQ(SettingsVersionCode(";TESK v.5.1.3"), 0);  // no 5.1 prefix is listed
  EXPECT_EQ(SettingsVersionCode(";TESK v.20"), 200);
  EXPECT_EQ(SettingsVersionCode(" ;TESK v.5.4.1"), 0);
  EXPECT_EQ(SettingsVersionCode(""), 0);
}

}  // namespace
}  // namespace tesk
