// The main window's own events: minimising to the tray, the tray icon's mouse and menu, and the
// place and size that go out at exit and come back at the next start.
#include <gtest/gtest.h>

#include <algorithm>

#include "main/window_events.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class WindowEventsTest : public StationTest {
 protected:
  int count(const std::vector<std::string>& names, const std::string& name) {
    return static_cast<int>(std::count(names.begin(), names.end(), name));
  }
  int shown(const std::string& name) { return count(platform.simViews.shownWindows, name); }
  int hidden(const std::string& name) { return count(platform.simViews.hiddenWindows, name); }
  bool run(CommandKey key) { return station->commands().run(key); }
  void minimise() {
    station->mainWindow().form.windowState = 1;
    run({Command::Form_Resize});
  }
};

TEST_F(WindowEventsTest, AMinimisedWindowHidesOnlyWithTheTrayOnAndADesktopTrayArea) {
  start();
  MainWindow& w = station->mainWindow();
  ASSERT_TRUE(w.form.visible);
  struct Case {
    int systemTray;
    bool desktopTray;
    int windowState;
    bool hides;
  };
  const Case cases[] = {
      {-1, true, 1, true},    // minimised with the tray on
      {1, true, 1, true},     // any non-zero value is on
      {0, true, 1, false},    // tray off: an ordinary minimised window
      {-1, false, 1, false},  // no tray area: it stays on the task bar
      {-1, true, 0, false},   // a plain resize
      {-1, true, 2, false},   // maximised
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.systemTray) + " " + std::to_string(c.desktopTray) + " " +
                 std::to_string(c.windowState));
    station->config().SystemTray = static_cast<int16_t>(c.systemTray);
    w.desktopHasTray = c.desktopTray;
    w.form.visible = true;
    w.form.windowState = c.windowState;
    const int before = hidden("main");
    ASSERT_TRUE(run({Command::Form_Resize}));
    EXPECT_EQ(w.form.visible, !c.hides);
    EXPECT_EQ(hidden("main") - before, c.hides ? 1 : 0);
  }
}

TEST_F(WindowEventsTest, TheTrayIconRestoresOnALeftReleaseOrDoubleClickAndOpensItsMenuOnTheRight) {
  start();
  MainWindow& w = station->mainWindow();
  station->config().SystemTray = -1;
  w.desktopHasTray = true;

  for (CommandKey restore : {CommandKey{Command::Tray_MouseUp, WindowEvents::kLeftButton},
                             CommandKey{Command::Tray_DblClick},
                             CommandKey{Command::mPopupSys, WindowEvents::kPopupRestore}}) {
    SCOPED_TRACE(static_cast<int>(restore.command));
    minimise();
    ASSERT_FALSE(w.form.visible);
    const int before = shown("main");
    ASSERT_TRUE(run(restore));
    EXPECT_TRUE(w.form.visible);
    EXPECT_EQ(w.form.windowState, 0);  // normal again, not minimised
    EXPECT_EQ(shown("main") - before, 1);
  }

  // The right button opens the menu and leaves the window where it is.
  minimise();
  const int mainShown = shown("main");
  ASSERT_TRUE(run({Command::Tray_MouseUp, WindowEvents::kRightButton}));
  EXPECT_EQ(shown("mPopupSys"), 1);
  EXPECT_EQ(shown("main"), mainShown);
  EXPECT_FALSE(w.form.visible);
  CommandTable& commands = station->commands();
  EXPECT_EQ(commands.find({Command::mPopupSys, WindowEvents::kPopupRestore})->caption, "&Restore");
  EXPECT_EQ(commands.find({Command::mPopupSys, WindowEvents::kPopupExit})->caption, "E&xit");

  // Exit is the ordinary shut-down: the settings are saved and the process ends.
  ASSERT_TRUE(run({Command::mPopupSys, WindowEvents::kPopupExit}));
  EXPECT_TRUE(platform.simLoop.ended());
  EXPECT_FALSE(ReadFile(home.file("tesk.ini")).empty());
}

TEST_F(WindowEventsTest, TheTrayIconComesWithTheSettingAtTheNextStart) {
  start();
  EXPECT_FALSE(station->mainWindow().trayIconShown);
  EXPECT_EQ(shown("tray"), 0);
  station->config().SystemTray = -1;
  station->Einde();

  SimPlatform again;
  again.systemInfo.commandLine = "/LAN";
  Station second(again, StationOptions{home.path(), "", 0, false});
  second.Start();
  EXPECT_TRUE(second.mainWindow().trayIconShown);
  EXPECT_EQ(second.mainWindow().trayToolTip, "TESK");
  EXPECT_EQ(count(again.simViews.shownWindows, "tray"), 1);
}

TEST_F(WindowEventsTest, ThePlaceAndSizeLeftAtExitComeBackAtTheNextStart) {
  struct Case {
    int windowState;  // as the operator left the window
    long left, top, width, height;
    long wantLeft, wantTop, wantWidth, wantHeight;
    int wantState;
  };
  const Case cases[] = {
      // Moved and resized: back where it was left.
      {0, 1500, 3000, 12000, 9000, 1500, 3000, 12000, 9000, 0},
      // Left minimised: the place and size it had before, remembered at the first start.
      {1, 99999, 99999, 99, 99, 300, 450, 12000, 9000, 0},
      // Larger than the desktop: cut to it and maximised.
      {0, 150, 300, 30000, 20000, 150, 300, 19200, 15600, 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.windowState);
    TempDir dir;
    SimPlatform first;
    first.systemInfo.commandLine = "/LAN";
    const StationOptions options{dir.path(), "", 0, false};
    {
      Station s(first, options);
      first.simDialogs.answers = {"XX9TK"};
      s.Start();
      Window& form = s.mainWindow().form;
      // The window as it came up the first time.
      form.left = 300;
      form.top = 450;
      form.width = 12000;
      form.height = 9000;
      s.Einde();  // remembers it
    }
    SimPlatform second;
    second.systemInfo.commandLine = "/LAN";
    {
      Station s(second, options);
      s.Start();
      Window& form = s.mainWindow().form;
      form.left = c.left;
      form.top = c.top;
      form.width = c.width;
      form.height = c.height;
      form.windowState = c.windowState;
      s.Einde();
    }
    SimPlatform third;
    third.systemInfo.commandLine = "/LAN";
    Station s(third, options);
    s.mainWindow().screenWidth = 19200;  // 1280 x 1040 pixels
    s.mainWindow().screenHeight = 15600;
    s.Start();
    const Window& form = s.mainWindow().form;
    EXPECT_EQ(form.left, c.wantLeft);
    EXPECT_EQ(form.top, c.wantTop);
    EXPECT_EQ(form.width, c.wantWidth);
    EXPECT_EQ(form.height, c.wantHeight);
    EXPECT_EQ(form.windowState, c.wantState);
  }
}

}  // namespace
}  // namespace tesk::testing
