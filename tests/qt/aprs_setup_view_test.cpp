// The position setup view renders its struct (the stored position, the compressed box, the icon
// picked, the disabled Options button) and hands clicks and keys to the window's handlers: an
// icon click moves the mark, the locator field upper-cases and converts on Enter, a memory slot
// reads on the left button and stores on the right, Cancel closes. The Options menu opens it.
#include "qt/views/aprs_setup_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

class AprsSetupViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = dir.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    StationConfig& c = station->config();
    c.APRS = "=5053.25N/00440.50E-73";
    c.APRSEnabled = -1;
    c.APRSCompressed = "=/4g%<O^\\E-  B";
  }
  AprsSetup& setup() { return station->parts().aprsSetup; }
  template <typename W>
  W* child(QWidget& view, const QString& name) {
    W* w = view.findChild<W*>(name);
    EXPECT_NE(w, nullptr) << name.toStdString();
    return w;
  }
  QImage iconImage(QWidget& view, int row) {
    auto* b = child<QToolButton>(view, QStringLiteral("img_APRSImage_%1").arg(row));
    return b->icon().pixmap(b->iconSize()).toImage();
  }

  QTemporaryDir dir;
  SimPlatform platform;
  std::unique_ptr<Station> station;
};

TEST_F(AprsSetupViewTest, RendersTheStructAndHandsClicksAndKeysToTheWindow) {
  setup().Show();
  AprsSetupView view(setup());
  view.show();
  EXPECT_EQ(view.windowTitle(), "APRS Position Setup");
  EXPECT_EQ(child<QLineEdit>(view, "txtLatH")->text(), "50");
  EXPECT_EQ(child<QLineEdit>(view, "txtLonH")->text(), "004");
  EXPECT_EQ(child<QLineEdit>(view, "txtLonS")->text(), "50");
  EXPECT_EQ(child<QComboBox>(view, "cmbLonDirection")->currentText(), "E");
  EXPECT_TRUE(child<QCheckBox>(view, "chkAPRSCompressed")->isChecked());
  EXPECT_EQ(child<QLabel>(view, "Label2")->text(), "Home");
  // "Options..." opens the APRS page of the setup window.
  EXPECT_TRUE(child<QPushButton>(view, "Cmdaprsetup")->isEnabled());
  EXPECT_EQ(child<QToolButton>(view, "img_APRSImage_1")->toolTip(), "Shutlle");
  // Every icon has its own picture, and the marked one looks different from itself unmarked.
  for (int i = 0; i < kAprsIconRows; ++i)
    for (int j = i + 1; j < kAprsIconRows; ++j)
      EXPECT_NE(iconImage(view, i), iconImage(view, j)) << i << " " << j;
  const QImage homeMarked = iconImage(view, 2);

  child<QToolButton>(view, "img_APRSImage_0")->click();
  EXPECT_EQ(setup().window().img_APRSImage[0].BorderStyle, 1);
  EXPECT_EQ(child<QLabel>(view, "Label2")->text(), "Satellite");
  EXPECT_NE(iconImage(view, 2), homeMarked);

  auto* maiden = child<QLineEdit>(view, "txtMaiden");
  maiden->setFocus();
  QTest::keyClicks(maiden, "jo 20");
  EXPECT_EQ(maiden->text(), "JO20");
  QTest::keyClick(maiden, Qt::Key_Return);
  EXPECT_EQ(child<QLineEdit>(view, "txtLatM")->text(), "28");
  EXPECT_EQ(child<QLineEdit>(view, "txtLonM")->text(), "57");
  EXPECT_TRUE(setup().window().form.loaded);  // Enter converts; it is no OK

  // The right button stores the fields in slot 1, the left one reads them back.
  auto* slot = child<QPushButton>(view, "CmdMem_0");
  emit slot->customContextMenuRequested({});
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "Coordinates are successfully stored in Memory Slot nr.1");
  child<QLineEdit>(view, "txtLatM")->setText("10");
  slot->click();
  EXPECT_EQ(child<QLineEdit>(view, "txtLatM")->text(), "28");

  // A picture for a person to look at, when asked for.
  const QByteArray shots = qgetenv("TESK_SCREENSHOTS");
  if (!shots.isEmpty()) {
    view.resize(view.sizeHint());
    QTest::qWait(qEnvironmentVariableIntValue("TESK_SCREENSHOT_HOLD_MS") + 50);
    view.grab().save(QString::fromUtf8(shots) + QStringLiteral("/aprs_setup.png"));
  }
  child<QPushButton>(view, "Command2")->click();
  EXPECT_FALSE(setup().window().form.loaded);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "frmAPRSSetup");
  EXPECT_EQ(station->config().APRS, "=5053.25N/00440.50E-73");
}

TEST_F(AprsSetupViewTest, TheOptionsMenuEntryOpensTheWindow) {
  MainWindowView main(station->mainWindow(), &station->commands());
  QAction* entry = nullptr;
  for (QAction* menu : main.menuBar()->actions()) {
    if (menu->text() != "&Options") continue;
    for (QAction* a : menu->menu()->actions()) {
      if (a->text() == "APRS &Position...") entry = a;
    }
  }
  ASSERT_NE(entry, nullptr);
  ASSERT_TRUE(entry->isEnabled());
  entry->trigger();
  EXPECT_TRUE(setup().window().form.visible);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmAPRSSetup");
}

}  // namespace
}  // namespace tesk
