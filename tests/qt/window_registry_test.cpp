// The windows by kind: every kind the station can show has a view in the registry, and the two
// port popups open from the status strip with their seven rows, the present one checked, a pick
// changing the port as the station's rules say (the transmit row asks first).
#include <gtest/gtest.h>

#include <QMenu>
#include <QTemporaryDir>
#include <QToolButton>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_views.h"
#include "qt/views/main_window_view.h"
#include "qt_test_app.h"

namespace tesk {
namespace {

class WindowRegistryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = home.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    StationParts& p = station->parts();
    views.attachMeld(p.meld);
    views.attachFind(p.find);
    views.attachViewHeard(p.viewHeard);
    views.attachLanSetup(p.lanSetup);
    views.attachEditTXData(p.txPanel.editor());
    views.attachAprsSetup(p.aprsSetup);
    views.attachTxMultiLine(p.txMultiLine);
    views.attachSetup(p.setup);
    views.attachMessenger(p.messenger);
    views.attachStatistics(p.statistics);
    views.attachBeacon(p.beaconSetup);
    views.attachMainWindow(station->mainWindow(), station->commands(),
                           testing::HandlersOf(*station), {}, {});
  }
  QMenu* popup(const char* name) { return views.mainView()->findChild<QMenu*>(name); }

  QTemporaryDir home;
  SimPlatform platform;
  std::unique_ptr<Station> station;
  QtViews views;
};

TEST_F(WindowRegistryTest, EveryWindowKindHasAView) {
  for (WindowKind kind : kWindowKinds)
    EXPECT_TRUE(views.hasView(kind)) << WindowName(kind);
  QtViews bare;  // nothing attached: only the splash can be shown
  EXPECT_TRUE(bare.hasView(WindowKind::Splash));
  EXPECT_FALSE(bare.hasView(WindowKind::Main));
}

TEST_F(WindowRegistryTest, ThePortPopupsShowTheirRowsAndAPickChangesThePort) {
  StationConfig& config = station->config();
  Ports& ports = station->parts().ports;
  config.AGWPERadioPort = 0;
  config.AGWPERXPort = 6;
  ports.ToonAktievePoort();
  views.show(WindowKind::Main);
  MainWindowView& main = *views.mainView();
  EXPECT_EQ(main.findChild<QLabel*>("FrameComm")->text(), "Communication Ports: TX-1 / RX All");
  // The receive selector: the station checks the row in force and asks for the popup.
  main.findChild<QToolButton*>("imgRXPortSelector")->click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "menuAgwportRX");
  views.show(WindowKind::RxPortPopup);
  QMenu* rx = popup("menuAgwportRX");
  ASSERT_NE(rx, nullptr);
  ASSERT_EQ(rx->actions().size(), 7);
  EXPECT_TRUE(rx->actions()[6]->isChecked());
  EXPECT_EQ(rx->actions()[6]->text(), "All ports");
  rx->actions()[2]->trigger();
  EXPECT_EQ(config.AGWPERXPort, 2);
  rx->hide();
  // The transmit row asks first; No leaves the port, Yes takes it.
  main.findChild<QToolButton*>("imgTXPortSelector")->click();
  views.show(WindowKind::TxPortPopup);
  QMenu* tx = popup("menuAgwport");
  ASSERT_NE(tx, nullptr);
  ASSERT_EQ(tx->actions().size(), 7);
  EXPECT_TRUE(tx->actions()[0]->isChecked());
  EXPECT_EQ(tx->actions()[1]->text(), "Port 2");
  platform.simDialogs.answers = {"N"};
  tx->actions()[1]->trigger();
  EXPECT_EQ(config.AGWPERadioPort, 0);
  platform.simDialogs.answers = {"Y"};
  tx->actions()[1]->trigger();
  EXPECT_EQ(config.AGWPERadioPort, 1);
  EXPECT_EQ(platform.simDialogs.shown.back().title, "Change TX port");
  EXPECT_EQ(main.findChild<QLabel*>("FrameComm")->text(), "Communication Ports: TX-2 / RX-3");
  tx->hide();
}

}  // namespace
}  // namespace tesk
