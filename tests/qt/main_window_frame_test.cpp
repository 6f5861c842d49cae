// The main window's frame: the stored place and size put on screen, the live ones kept in the
// struct in twips as the settings file stores them, the minimised state, and the tray's menu and
// minimise-to-tray through the station's rules.
#include <gtest/gtest.h>

#include <QMenu>
#include <QTemporaryDir>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_event_loop.h"
#include "qt/qt_views.h"
#include "qt/views/main_window_view.h"
#include "qt_test_app.h"

namespace tesk {
namespace {

class MainWindowFrameTest : public ::testing::Test {
 protected:
  void SetUp() override { testing::QtApp(); }
  // Lets the queued events of the window (moves, resizes, the station's command) arrive.
  void settle() {
    loop.waitUntil(0.2, [] { return false; });
  }
  QtEventLoop loop;
};

TEST_F(MainWindowFrameTest, TheStoredPlaceIsAppliedAndTheLiveOneWrittenBackInTwips) {
  MainWindow data;
  data.form.left = 1500;  // 100 x 200 pixels
  data.form.top = 3000;
  data.form.width = 15000;  // 1000 x 640 pixels
  data.form.height = 9600;
  MainWindowView view(data);
  view.show();
  settle();
  EXPECT_EQ(view.pos(), QPoint(100, 200));
  EXPECT_EQ(view.size(), QSize(1000, 640));
  EXPECT_GT(data.screenWidth, 0);  // the desktop's size, for the next settings read

  // The operator moves and resizes it: the struct follows, as the settings file will store it.
  view.move(40, 60);
  view.resize(1050, 700);
  settle();
  EXPECT_EQ(data.form.left, 600);
  EXPECT_EQ(data.form.top, 900);
  EXPECT_EQ(data.form.width, 15750);
  EXPECT_EQ(data.form.height, 10500);

  // Minimised: the flag says so and the place and size stay the last real ones.
  view.showMinimized();
  settle();
  EXPECT_EQ(data.form.windowState, 1);
  EXPECT_EQ(data.form.left, 600);
  EXPECT_EQ(data.form.width, 15750);
  view.showNormal();
  settle();
  EXPECT_EQ(data.form.windowState, 0);
  view.showMaximized();
  settle();
  EXPECT_EQ(data.form.windowState, 2);
  view.showNormal();
  settle();

  // A place the station sets (the settings read again) is put on screen at the next repaint;
  // a repaint with nothing changed leaves the window where the operator has it.
  view.move(30, 30);
  settle();
  view.refresh();
  EXPECT_EQ(view.pos(), QPoint(30, 30));
  data.form.left = 3000;
  data.form.top = 1500;
  view.refresh();
  settle();
  EXPECT_EQ(view.pos(), QPoint(200, 100));
}

TEST_F(MainWindowFrameTest, MinimisedToTheTrayTheWindowHidesAndTheTrayMenuBringsItBack) {
  QTemporaryDir home;
  SimPlatform platform;
  StationOptions options;
  options.appPath = home.path().toStdString();
  Station station(platform, options);
  QtViews views;
  views.attachMainWindow(station.mainWindow(), station.commands(), testing::HandlersOf(station), {},
                         {});
  MainWindow& data = station.mainWindow();
  data.form.visible = true;
  views.show(WindowKind::Main);
  MainWindowView& view = *views.mainView();
  station.config().SystemTray = -1;
  data.desktopHasTray = true;  // the offscreen desktop has none

  // The station hears of the minimised window and hides it; its hide reaches the sim platform's
  // views, the program's is this one.
  view.showMinimized();
  settle();
  EXPECT_EQ(data.form.windowState, 1);
  EXPECT_FALSE(data.form.visible);
  ASSERT_FALSE(platform.simViews.hiddenWindows.empty());
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "main");
  views.hide(WindowKind::Main);
  EXPECT_FALSE(view.isVisible());

  // The right release asks for the menu; its first row restores.
  station.commands().run({Command::Tray_MouseUp, 2});
  EXPECT_EQ(platform.simViews.shownWindows.back(), "mPopupSys");
  views.show(WindowKind::TrayPopup);
  auto* menu = view.findChild<QMenu*>("mPopupSys");
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions()[0]->text(), "&Restore");
  EXPECT_EQ(menu->actions()[1]->text(), "E&xit");
  menu->hide();
  menu->actions()[0]->trigger();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "main");
  EXPECT_EQ(data.form.windowState, 0);
  views.show(WindowKind::Main);
  settle();
  EXPECT_TRUE(view.isVisible());
  EXPECT_FALSE(view.isMinimized());

  // With the tray off the window only minimises.
  station.config().SystemTray = 0;
  const std::size_t hides = platform.simViews.hiddenWindows.size();
  view.showMinimized();
  settle();
  EXPECT_EQ(data.form.windowState, 1);
  EXPECT_TRUE(data.form.visible);
  EXPECT_EQ(platform.simViews.hiddenWindows.size(), hides);
}

}  // namespace
}  // namespace tesk
