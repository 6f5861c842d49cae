// The store on INI files shared with add-on programs, the program finder on /proc, and the
// file filter conversion of the dialogs.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <fstream>

#include "base/text.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_shell.h"
#include "platform/qt/qt_store.h"
#include "qt/qt_test_app.h"

namespace tesk {
namespace {

TEST(QtStore, RegistryAndSettingsSurviveAndAreSharedWithAnotherProgram) {
  testing::QtApp();
  QTemporaryDir dir;
  QtStore store(dir.path().toStdString());
  EXPECT_EQ(store.regRead(Hive::CurrentUser, "Software\\TESK\\Set", "SplashScreen"), std::nullopt);
  EXPECT_TRUE(store.regWrite(Hive::CurrentUser, "Software\\TESK\\Set", "SplashScreen", "1"));
  EXPECT_EQ(store.regRead(Hive::CurrentUser, "Software\\TESK\\Set", "SplashScreen"), "1");
  EXPECT_EQ(store.regRead(Hive::LocalMachine, "Software\\TESK\\Set", "SplashScreen"), std::nullopt);
  // The emptied command mailbox holds one NUL: whatever the file keeps of it, a reader that
  // cuts at the NUL finds the value there and empty.
  store.regWrite(Hive::CurrentUser, "Software\\TESK\\Command", "Command", std::string(1, '\0'));
  const auto emptied = store.regRead(Hive::CurrentUser, "Software\\TESK\\Command", "Command");
  ASSERT_TRUE(emptied.has_value());
  EXPECT_EQ(CutAtNul(*emptied), "");

  // Another program adds a value to the file; the next read sees it.
  std::ofstream(dir.path().toStdString() + "/registry.ini", std::ios::app)
      << "\n[Mailbox]\nCommand=BEACON ON\n";
  EXPECT_EQ(store.regRead(Hive::CurrentUser, "Mailbox", "Command"), "BEACON ON");

  QtStore addOn(dir.path().toStdString());
  EXPECT_EQ(store.getSetting("XX9TK\\TESK", "Module2", "Running", "?"), "?");
  store.saveSetting("XX9TK\\TESK", "Module2", "Running", "No");
  EXPECT_EQ(addOn.getSetting("XX9TK\\TESK", "Module2", "Running", "?"), "No");
}

TEST(QtShell, FindsAProgramOfThisUserByItsNameWithOrWithoutItsExtension) {
  QTemporaryDir proc;
  const auto fake = [&](const char* pid, const char* comm) {
    const std::string d = proc.path().toStdString() + "/" + pid;
    std::filesystem::create_directory(d);
    std::ofstream(d + "/comm") << comm << "\n";
  };
  fake("self", "soundmodem");
  fake("4242", "soundmodem.exe");
  fake("77", "direwolf");
  EXPECT_EQ(QtShell::FindProcess("soundmodem", proc.path().toStdString()), 4242);
  EXPECT_EQ(QtShell::FindProcess("DireWolf", proc.path().toStdString()), 77);
  EXPECT_EQ(QtShell::FindProcess("Packet Engine", proc.path().toStdString()), 0);
  EXPECT_EQ(QtShell::FindProcess("", proc.path().toStdString()), 0);
  const std::string own = std::to_string(getpid());
  fake(own.c_str(), "myself");
  EXPECT_EQ(QtShell::FindProcess("myself", proc.path().toStdString()), 0);  // never itself
}

TEST(QtDialogs, FileFiltersInTheClassicFormBecomeQtFilters) {
  EXPECT_EQ(ToQtFileFilter("Text (*.txt)|*.txt|All files|*.*"), "Text (*.txt);;All files (*)");
  EXPECT_EQ(ToQtFileFilter("Pictures|*.jpg;*.gif"), "Pictures (*.jpg *.gif)");
}

}  // namespace
}  // namespace tesk
