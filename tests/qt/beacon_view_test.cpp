// The beacon window on screen renders its struct and hands the operator's clicks and typing to
// the window's handlers: typed times get their colon, a refused key never shows, the file fields
// follow their box, Apply stores and closes. The Beacon menu opens it, and a double click on
// lblBeacon in the main window switches the beacon.
#include "qt/views/beacon_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

class BeaconViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = dir.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    StationConfig& c = station->config();
    c.SelectedBeacon = 110001;
    c.BeaconInterval = 90;
    c.AutoBeaconStart = "22:00";
    c.AutoBeaconStop = "02:00";
    c.StopBeaconMaxDigi = 2;
  }
  BeaconSetup& setup() { return station->parts().beaconSetup; }
  template <typename W>
  W* child(QWidget& view, const QString& name) {
    W* w = view.findChild<W*>(name);
    EXPECT_NE(w, nullptr) << name.toStdString();
    return w;
  }

  QTemporaryDir dir;
  SimPlatform platform;
  std::unique_ptr<Station> station;
};

TEST_F(BeaconViewTest, RendersTheStructAndHandsTypingAndClicksToTheWindow) {
  setup().menubeaconpopups_Click();
  BeaconView view(setup());
  view.show();
  EXPECT_EQ(view.windowTitle(), "TESK Beacon Settings");
  EXPECT_TRUE(child<QCheckBox>(view, "chkItemData")->isChecked());
  EXPECT_TRUE(child<QCheckBox>(view, "chkItemMHeard")->isChecked());
  EXPECT_FALSE(child<QCheckBox>(view, "chkItemAPRS")->isChecked());
  EXPECT_EQ(child<QLineEdit>(view, "txtBeaconInterval")->text(), "90");
  EXPECT_EQ(child<QLabel>(view, "lblBeaconIntervalTime")->text(), "(0h 1m 30s)");
  EXPECT_EQ(child<QLineEdit>(view, "TxtStart0")->text(), "22:00");
  EXPECT_EQ(child<QComboBox>(view, "cmbStopBeacon")->currentText(), "3");
  EXPECT_FALSE(child<QLineEdit>(view, "txtAddFilePath")->isEnabled());
  EXPECT_FALSE(child<QWidget>(view, "FrmShadowExp")->isVisibleTo(&view));
  EXPECT_EQ(child<QCheckBox>(view, "chkItemData")->toolTip(), "send TX-Data/text");

  // Typing: the colon comes by itself, letters never show; the interval label follows.
  auto* start = child<QLineEdit>(view, "TxtStart1");
  start->setFocus();
  QTest::keyClicks(start, "0x715");
  EXPECT_EQ(start->text(), "07:15");
  auto* interval = child<QLineEdit>(view, "txtBeaconInterval");
  interval->selectAll();
  QTest::keyClicks(interval, "12a0");
  EXPECT_EQ(interval->text(), "120");
  EXPECT_EQ(child<QLabel>(view, "lblBeaconIntervalTime")->text(), "(0h 2m 0s)");

  child<QCheckBox>(view, "chkItemFile")->click();
  EXPECT_TRUE(child<QLineEdit>(view, "txtAddFilePath")->isEnabled());
  EXPECT_TRUE(child<QCheckBox>(view, "chkItemFileAddLoc")->isEnabled());
  child<QRadioButton>(view, "OptWhichBeaconLines_3")->click();
  EXPECT_FALSE(child<QCheckBox>(view, "chkItemFileAddLoc")->isEnabled());
  child<QCheckBox>(view, "chkAutoTimedBeacon")->click();
  child<QCheckBox>(view, "chkBeaconIntelligentAktiv")->click();
  EXPECT_TRUE(child<QCheckBox>(view, "chkBeaconActiv")->isChecked());
  EXPECT_FALSE(child<QCheckBox>(view, "chkAutoTimedBeacon")->isChecked());

  // A picture for a person to look at.
  view.resize(view.sizeHint());
  QTest::qWait(qEnvironmentVariableIntValue("TESK_SCREENSHOT_HOLD_MS") + 50);
  view.grab().save(testing::PictureFile(QStringLiteral("beacon.png")));

  child<QPushButton>(view, "Command1")->click();
  EXPECT_FALSE(setup().window().form.loaded);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "Beacon");
  const StationConfig& c = station->config();
  EXPECT_EQ(c.BeaconInterval, 120);
  EXPECT_EQ(c.AutoBeaconStart, "22:0007:15");
  EXPECT_EQ(c.SelectedBeacon, 111001);
  EXPECT_EQ(c.BeaconFileType, 3);
  EXPECT_EQ(c.Beacon, -1);
  EXPECT_EQ(station->mainWindow().lblBeacon.caption, "Beacon ON");
}

TEST_F(BeaconViewTest, TheBeaconMenuOpensTheWindowAndADoubleClickSwitchesTheBeacon) {
  MainWindowView main(station->mainWindow(), &station->commands());
  QAction* entry = nullptr;
  for (QAction* menu : main.menuBar()->actions()) {
    if (menu->text() != "&Beacon") continue;
    for (QAction* a : menu->menu()->actions())
      if (a->text() == "&Beacon setup...") entry = a;
  }
  ASSERT_NE(entry, nullptr);
  ASSERT_TRUE(entry->isEnabled());
  entry->trigger();
  EXPECT_TRUE(setup().window().form.visible);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "Beacon");
  setup().Command2_Click();

  main.refresh();
  auto* label = main.findChild<QLabel*>(QStringLiteral("lblBeacon"));
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), "Beacon OFF");
  EXPECT_EQ(label->toolTip(), "Double click to enable/disable Beacon");
  QTest::mouseDClick(label, Qt::LeftButton);
  EXPECT_EQ(station->config().Beacon, -1);
  EXPECT_EQ(label->text(), "Beacon ON");
}

TEST_F(BeaconViewTest, AShortIntervalShowsTheShadowFrameAndItsBoxRulesTheItems) {
  StationConfig& c = station->config();
  c.BeaconInterval = 3;
  c.ShadowExperiment_ISO = "BE";
  setup().menubeaconpopups_Click();
  BeaconView view(setup());
  view.show();
  ASSERT_TRUE(child<QWidget>(view, "FrmShadowExp")->isVisibleTo(&view));
  EXPECT_EQ(child<QLineEdit>(view, "txtISOcode")->text(), "BE");
  child<QCheckBox>(view, "ChkShadow")->click();
  EXPECT_FALSE(child<QCheckBox>(view, "chkItemData")->isChecked());
  EXPECT_TRUE(child<QCheckBox>(view, "chkBeaconActiv")->isChecked());
  view.resize(view.sizeHint());
  QTest::qWait(qEnvironmentVariableIntValue("TESK_SCREENSHOT_HOLD_MS") + 50);
  view.grab().save(testing::PictureFile(QStringLiteral("beacon_shadow.png")));
  // Leaving the interval at 6 or more hides the frame again.
  auto* interval = child<QLineEdit>(view, "txtBeaconInterval");
  interval->setFocus();
  interval->selectAll();
  QTest::keyClicks(interval, "30");
  child<QLineEdit>(view, "txtISOcode")->setFocus();
  emit interval->editingFinished();
  EXPECT_FALSE(child<QWidget>(view, "FrmShadowExp")->isVisibleTo(&view));
  child<QPushButton>(view, "Command2")->click();
}

TEST_F(BeaconViewTest, TheBeaconMenuHoldsTheWizard) {
  MainWindowView main(station->mainWindow(), &station->commands());
  QStringList rows;
  for (QAction* menu : main.menuBar()->actions()) {
    if (menu->text() != "&Beacon") continue;
    for (QAction* a : menu->menu()->actions())
      rows << a->text();
  }
  EXPECT_EQ(rows, (QStringList{"&Beacon setup...", "ISS Shadow Experiment Wizard..."}));
}

}  // namespace
}  // namespace tesk
