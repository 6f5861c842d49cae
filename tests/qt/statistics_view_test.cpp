// The statistics window on screen: the Statistics button under the Monitor opens it through the
// registry, the view shows the counts and the labels of the struct, the setup button stays grey
// until there is a setup to open, Close and the window frame close it, and the busy pointer
// never outlives the count. The picture statistics.png (see PictureFile) is for a person.
#include "qt/views/statistics_view.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/qt_views.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

class StatisticsViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = home.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    station->config().YourCallSign = "XX9TK";
    MainWindow& m = station->mainWindow();
    const TextStyle style{0x00FFFF, false, 9};
    m.txtMonitor.append("*** Connected to Server 127.0.0.1\r\n", style);
    m.txtMonitor.append("Fm PA3ABC To CQ Via ARISS <UI pid=F0 Len=5 >[12:00:00]\r\nhello\r\n",
                        style);
    m.txtMonitor.append("Fm XX9TK To APRS Via ARISS* <UI pid=F0 Len=4 >[12:00:05]\r\nmine\r\n",
                        style);
    m.txtMonitor.append("Fm XX9TK To APRS Via ARISS <UI pid=F0 Len=4 >[12:00:04]\r\nmine\r\n",
                        style);
    m.LstMHeardList.list = {"PA3ABC               22-11-2026 12:00:00"};
    station->run().TxCounters[1] = 4;
    station->run().TxCounters[2] = 2;
    station->config().TypeOfModem = 3;
    station->run().LanMode = 1;
    station->run().LinkStatus = "Connected to 127.0.0.1:8000";
    views.attachStatistics(station->parts().statistics);
    views.attachMainWindow(station->mainWindow(), station->commands(),
                           testing::HandlersOf(*station), {}, {});
  }
  template <typename W>
  W* child(const char* name) {
    W* w = views.statisticsView()->findChild<W*>(QString::fromLatin1(name));
    EXPECT_NE(w, nullptr) << name;
    return w;
  }

  QTemporaryDir home;
  SimPlatform platform;
  std::unique_ptr<Station> station;
  QtViews views;
};

TEST_F(StatisticsViewTest, TheButtonUnderTheMonitorOpensTheCountsAndCloseClosesThem) {
  views.show(WindowKind::Main);
  QPushButton* open = views.mainView()->findChild<QPushButton*>("cmdStatistics");
  ASSERT_NE(open, nullptr);
  EXPECT_TRUE(open->isEnabled());
  // The station shows the window through the sim's views; the registry makes the view.
  open->click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "FrmStatistics");
  views.show(WindowKind::Statistics);
  StatisticsView* view = views.statisticsView();
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(view->windowTitle(), "Statistics and Properties");
  const QString counts = child<QLabel>("Label1")->text();
  EXPECT_TRUE(counts.contains("Total Packet frames = 3\nUI frames = 3\nRX frames = 3"));
  EXPECT_TRUE(counts.contains("Digi efficiency (XX9TK) = 100.0%"));
  EXPECT_TRUE(child<QLabel>("lblTXbutRes")->text().startsWith("0\n4\n2\n"));
  EXPECT_EQ(child<QLabel>("lblHeardres")->text(), "1\n0");
  EXPECT_TRUE(child<QLabel>("lblStatus")
                  ->text()
                  .startsWith("AGW Engine TCPIP=Connected to 127.0.0.1:8000\nAGW Mode =LAN"));
  EXPECT_FALSE(child<QLabel>("lblProfile")->isVisible());
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);  // no busy pointer once counted

  QPushButton* setup = child<QPushButton>("Command2");
  EXPECT_TRUE(setup->isEnabled());  // opens the Setup window's Monitor page
  EXPECT_EQ(setup->toolTip(), "Setup Monitor");
  EXPECT_TRUE(view->grab().save(testing::PictureFile("statistics.png")));

  child<QPushButton>("Command1")->click();
  EXPECT_FALSE(station->parts().statistics.window().form.loaded);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "FrmStatistics");
  // The window frame's close is the Close button too.
  station->parts().statistics.Show();
  QCloseEvent close;
  QCoreApplication::sendEvent(view, &close);
  EXPECT_FALSE(station->parts().statistics.window().form.loaded);
}

TEST_F(StatisticsViewTest, TheSetupButtonOpensTheMonitorPageOnceThereIsOne) {
  int opened = 0;
  station->parts().monitor.OpenMonitorSetup = [&opened] { ++opened; };
  station->parts().statistics.Show();
  views.show(WindowKind::Statistics);
  QPushButton* setup = child<QPushButton>("Command2");
  EXPECT_TRUE(setup->isEnabled());
  setup->click();
  EXPECT_EQ(opened, 1);
}

}  // namespace
}  // namespace tesk
