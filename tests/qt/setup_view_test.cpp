// The Setup view lays out every row of the control table on its page, renders the struct,
// hands the operator's edits and clicks to the window's handlers, and follows the page and the
// help line; "Setup..." of the Options menu opens it. A picture of each page is saved.
#include "qt/views/setup_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"

namespace tesk {
namespace {

class SetupViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = dir.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    station->config().YourCallSign = "XX9TK";
    station->config().BBSCommands = 2;
    station->config().BBSPassword = "secret";
    station->config().MHeard_AutoClear = -120;
  }
  tesk::Setup& setup() { return station->parts().setup; }
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

TEST_F(SetupViewTest, EveryRowOfTheTableHasItsWidgetShowingTheLoadedValue) {
  setup().Show();
  SetupView view(setup());
  for (const SetupControl& row : SetupControls()) {
    const QString name = QString::fromStdString(row.name);
    const bool found = row.kind == ScriptKind::Option ? view.findChild<QGroupBox*>(name) != nullptr
                                                      : view.findChild<QWidget*>(name) != nullptr;
    EXPECT_TRUE(found) << row.name;
  }
  EXPECT_EQ(view.windowTitle(), "TESK Setup");
  EXPECT_EQ(child<QLineEdit>(view, "txtCallsign")->text(), "XX9TK");
  EXPECT_TRUE(child<QRadioButton>(view, "OptEnableBBS2")->isChecked());
  EXPECT_TRUE(child<QLineEdit>(view, "txtBBSPassword")->isEnabled());
  EXPECT_EQ(child<QLineEdit>(view, "txtBBSPassword")->text(), "secret");
  EXPECT_TRUE(child<QCheckBox>(view, "chkAutoClearPacketActivity")->isChecked());
  EXPECT_EQ(child<QLineEdit>(view, "txtAutoClearTime")->text(), "120");
  EXPECT_TRUE(child<QRadioButton>(view, "Usepic1")->isChecked());
  EXPECT_EQ(child<QRadioButton>(view, "Usepic4")->text(), "Use Picture from Internet or LAN");
  EXPECT_FALSE(child<QPushButton>(view, "cmdloadprofile")->isEnabled());
  EXPECT_TRUE(child<QPushButton>(view, "cmdBeaconSetup")->isEnabled());
  EXPECT_EQ(child<QListWidget>(view, "lstPages")->count(), kSetupPages);
}

TEST_F(SetupViewTest, EditsAndClicksReachTheHandlersAndApplyCloses) {
  setup().Show();
  SetupView view(setup());
  view.show();
  auto* none = child<QRadioButton>(view, "OptEnableBBS0");
  none->click();
  EXPECT_EQ(setup().window().OptEnableBBS.chosen(), 0);
  EXPECT_FALSE(child<QLineEdit>(view, "txtBBSPassword")->isEnabled());
  auto* interval = child<QLineEdit>(view, "TxtAckInterval");
  interval->clear();
  QTest::keyClicks(interval, "3x5");  // the letter is refused
  EXPECT_EQ(setup().window().TxtAckInterval.text, "35");
  child<QCheckBox>(view, "ChkUseUTCinHeader")->click();
  EXPECT_TRUE(child<QCheckBox>(view, "ChkUseUTCinHeader2")->isChecked());
  auto* pages = child<QListWidget>(view, "lstPages");
  pages->setCurrentRow(static_cast<int>(SetupPage::ViewPort));
  EXPECT_EQ(setup().window().page, static_cast<int>(SetupPage::ViewPort));
  // The help line tells what the control under the mouse does.
  QEvent enter(QEvent::Enter);
  QApplication::sendEvent(child<QLineEdit>(view, "txtPictureURL"), &enter);
  EXPECT_NE(child<QLabel>(view, "lblHelp")->text().indexOf("[Picture_URL]"), -1);
  child<QPushButton>(view, "Command1")->click();
  EXPECT_FALSE(setup().window().form.loaded);
  EXPECT_EQ(station->config().AckInterval, 35);
  EXPECT_EQ(station->config().BBSCommands, 0);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "frmSetup");
}

TEST_F(SetupViewTest, APictureOfEachPage) {
  setup().Show();
  SetupView view(setup());
  view.show();
  for (int page = 0; page < kSetupPages; ++page) {
    setup().SelectSetupFrame(page);
    view.refresh();
    QTest::qWait(20);
    const QString name = QStringLiteral("setup_page%1.png").arg(page);
    EXPECT_TRUE(view.grab().save(testing::PictureFile(name))) << name.toStdString();
  }
}

}  // namespace
}  // namespace tesk
