// The store on INI files shared with add-on programs, the program finder on /proc, the file
// filter conversion of the dialogs, and the sound player that never holds the program up.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QTemporaryDir>
#include <fstream>
#include <functional>

#include "base/text.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_services.h"
#include "qt/qt_shell.h"
#include "qt/qt_store.h"
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

// Runs the event loop until `done` or two seconds have passed.
bool WaitFor(const std::function<bool()>& done) {
  QDeadlineTimer deadline(2000);
  while (!done() && !deadline.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  return done();
}

TEST(QtSound, PlaysThroughThePlayerWithoutWaitingAndANewSoundStopsTheOld) {
  testing::QtApp();
  QTemporaryDir dir;
  const QString log = dir.filePath("played");
  const std::string wav = dir.filePath("digi.wav").toStdString();
  std::ofstream(wav) << "RIFF";
  // The stand-in player notes the file it was given, then plays for a long time.
  QtSound sound("/bin/sh", {"-c", "echo \"$0\" >> '" + log + "'; exec sleep 30"});
  sound.play(dir.filePath("missing.wav").toStdString());
  EXPECT_FALSE(sound.playing());
  sound.play(wav);
  EXPECT_TRUE(sound.playing());  // play returned at once, the player runs on
  const auto played = [&] {
    QFile f(log);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()).count('\n') : 0;
  };
  ASSERT_TRUE(WaitFor([&] { return played() == 1; }));
  sound.play(wav);  // the first is stopped, the second plays
  ASSERT_TRUE(WaitFor([&] { return played() == 2; }));
  EXPECT_TRUE(sound.playing());
  sound.play("");
  EXPECT_FALSE(sound.playing());
  // A program with no player plays nothing and says nothing.
  QtSound none("", {});
  none.play(wav);
  EXPECT_FALSE(none.playing());
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
