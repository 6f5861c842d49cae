// TESKLanMode.ini: the 30-line file written byte-exact, read back, and the defaults that a
// missing file, a short one, a port below 1 or an empty host give.
#include "link/lan_settings_file.h"

#include <gtest/gtest.h>

#include "settings/settings_test_util.h"

namespace tesk {
namespace {

using settings_test::Folder;
using settings_test::Slurp;
using settings_test::Spit;

TEST(LanSettingsFile, WritesThirtyLinesAndReadsThemBack) {
  Folder dir;
  StationConfig c;
  RunState run;
  run.AppPath = dir.path();
  c.HostName_IP_Default = "192.0.2.7";
  c.HostName_IP = {"192.0.2.7", "", "engine.local", "", ""};
  c.LanPort = 8001;
  c.RegisterCall = -1;
  c.Lan_Password = "se cret";
  run.LanMode = 1;
  SaveLANINI(c, run);
  EXPECT_EQ(Slurp(dir.file("TESKLanMode.ini")),
            ";TESK Lan Mode Settings\r\n;FreeWare\r\n[HostName_IP_Default]\r\n192.0.2.7\r\n"
            "[HostName_IP]\r\n192.0.2.7\r\n\r\nengine.local\r\n\r\n\r\n[LanPort]\r\n 8001 \r\n"
            "[TESKLanMode]\r\n 1 \r\n[RegisterCall]\r\n-1 \r\n[Emulate_TXFrames_On_SlowNetPC]\r\n"
            " 0 \r\n[Lan_Password]\r\nse cret\r\n[reserved]\r\n\r\n[reserved]\r\n\r\n[reserved]\r\n"
            "\r\n[reserved]\r\n\r\n[reserved]\r\n\r\n");
  StationConfig back;
  RunState backRun;
  LoadLANINI(back, backRun, dir.path());
  EXPECT_TRUE(back == c);
  EXPECT_EQ(backRun.LanMode, 1);
}

TEST(LanSettingsFile, DefaultsForWhatIsMissingOrEmpty) {
  Folder dir;
  StationConfig c;
  RunState run;
  run.AppPath = dir.path();
  c.LanPort = 1234;
  c.Lan_Password = "old";
  run.LanMode = -1;
  LoadLANINI(c, run);  // no file
  EXPECT_EQ(c.HostName_IP_Default, "127.0.0.1");
  EXPECT_EQ(c.LanPort, 8000);
  EXPECT_EQ(c.Lan_Password, "");
  EXPECT_EQ(run.LanMode, 0);

  // Twenty lines (no reserved pairs), an empty host and a port of 0.
  const std::string twenty =
      ";TESK Lan Mode Settings\r\n;FreeWare\r\n[HostName_IP_Default]\r\n  \r\n[HostName_IP]\r\n"
      "a\r\nb\r\nc\r\nd\r\ne\r\n[LanPort]\r\n 0 \r\n[TESKLanMode]\r\n-1 \r\n[RegisterCall]\r\n"
      " 0 \r\n[Emulate_TXFrames_On_SlowNetPC]\r\n-1 \r\n[Lan_Password]\r\npw\r\n";
  Spit(dir.file("TESKLanMode.ini"), twenty);
  LoadLANINI(c, run);
  EXPECT_EQ(c.HostName_IP_Default, "127.0.0.1");
  EXPECT_EQ(c.HostName_IP[4], "e");
  EXPECT_EQ(c.LanPort, 8000);
  EXPECT_EQ(run.LanMode, -1);
  EXPECT_EQ(c.Emulate_TXFrames_On_SlowNetPC, -1);
  EXPECT_EQ(c.Lan_Password, "pw");

  std::string emptyPort = twenty;
  emptyPort.replace(emptyPort.find(" 0 \r\n[TESKLanMode]"), 3, "");
  Spit(dir.file("TESKLanMode.ini"), emptyPort);
  LoadLANINI(c, run);
  EXPECT_EQ(c.LanPort, 8000);
  EXPECT_EQ(c.Lan_Password, "pw");  // the lines behind it stay in place
}

}  // namespace
}  // namespace tesk
