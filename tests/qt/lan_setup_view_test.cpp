// The LAN settings view renders its struct (every control, captions and tool tips) and hands the
// operator's edits and clicks to the window's handlers; the Options menu entry opens it.
#include "qt/views/lan_setup_view.h"

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

#include "link/lan_settings_file.h"
#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/qt_text.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

class LanSetupViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = dir.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    StationConfig c;
    RunState r;
    c.HostName_IP_Default = "192.0.2.1";
    c.HostName_IP = {"192.0.2.1", "engine.local", "", "", ""};
    c.LanPort = 8001;
    c.Lan_Password = "pw";
    c.RegisterCall = -1;
    SaveLANINI(c, r, options.appPath);
    station->config().AGWPERXPort = 6;
    station->config().AGWPERadioPort = 0;
  }
  LanSetup& lan() { return station->parts().lanSetup; }
  template <typename W>
  W* child(LanSetupView& view, const char* name) {
    W* w = view.findChild<W*>(QString::fromLatin1(name));
    EXPECT_NE(w, nullptr) << name;
    return w;
  }

  QTemporaryDir dir;
  SimPlatform platform;
  std::unique_ptr<Station> station;
};

TEST_F(LanSetupViewTest, RendersEveryControlOfTheStruct) {
  lan().Show();
  LanSetupView view(lan());
  view.resize(view.sizeHint());
  EXPECT_EQ(view.windowTitle(), "LAN Settings");
  auto* host = child<QComboBox>(view, "cmbLANIPAddress");
  ASSERT_EQ(host->count(), 2);
  EXPECT_EQ(host->itemText(1), "engine.local");
  EXPECT_EQ(host->currentText(), "192.0.2.1");
  EXPECT_EQ(child<QLineEdit>(view, "txtAGWLANPort")->text(), "8001");
  auto* enable = child<QCheckBox>(view, "chkEnableLAN");
  EXPECT_EQ(enable->text(), "Enable LAN Mode");
  EXPECT_EQ(enable->toolTip(), "Enable LAN for AGW or use AGW DLL");
  EXPECT_FALSE(enable->isChecked());
  EXPECT_TRUE(child<QCheckBox>(view, "chkRegisterCall")->isChecked());
  EXPECT_EQ(child<QCheckBox>(view, "chkRegisterCall")->text(), "Register Call at LogIn");
  EXPECT_EQ(child<QCheckBox>(view, "chkForceDisplayTXFrames")->text(), "Always Display TX-Frames");
  auto* usePassword = child<QCheckBox>(view, "ChkPassword");
  EXPECT_TRUE(usePassword->isChecked());
  EXPECT_EQ(usePassword->toolTip(), "Password (this option has not been tested)");
  auto* password = child<QLineEdit>(view, "TxtPassword");
  EXPECT_EQ(password->text(), "pw");
  EXPECT_TRUE(password->isEnabled());
  auto* rx = child<QComboBox>(view, "cmbRX");
  EXPECT_EQ(rx->count(), 7);
  EXPECT_EQ(rx->currentText(), "All");
  EXPECT_EQ(child<QComboBox>(view, "cmbTX")->currentText(), "1");
  EXPECT_EQ(child<QLabel>(view, "lblNote")->text(),
            "Note: This mode is limited to UnProto RX/TX communication only");
  EXPECT_EQ(child<QLabel>(view, "Label4")->text(),
            "LAN Mode not active. TESK running in Normal Mode");
  EXPECT_EQ(child<QPushButton>(view, "Command1")->text(), "Apply");
  EXPECT_EQ(child<QPushButton>(view, "Command2")->text(), "Cancel");

  // A picture for a person to look at, when asked for.
  const QByteArray shots = qgetenv("TESK_SCREENSHOTS");
  if (!shots.isEmpty()) {
    view.show();
    QTest::qWait(50);
    view.grab().save(QString::fromUtf8(shots) + QStringLiteral("/lan_setup.png"));
  }
}

TEST_F(LanSetupViewTest, EditsAndClicksReachTheHandlers) {
  lan().Show();
  LanSetupView view(lan());
  view.show();
  LanSetupWindow& w = lan().window();
  auto* usePassword = child<QCheckBox>(view, "ChkPassword");
  usePassword->click();
  EXPECT_EQ(w.ChkPassword.value, 0);
  EXPECT_FALSE(w.TxtPassword.enabled);
  EXPECT_FALSE(child<QLineEdit>(view, "TxtPassword")->isEnabled());

  auto* port = child<QLineEdit>(view, "txtAGWLANPort");
  port->clear();
  QTest::keyClicks(port, "8123");
  EXPECT_EQ(w.txtAGWLANPort.text, "8123");
  auto* host = child<QComboBox>(view, "cmbLANIPAddress");
  host->setEditText(QStringLiteral("engine2.local"));
  EXPECT_EQ(w.cmbLANIPAddress.text, "engine2.local");
  child<QComboBox>(view, "cmbTX")->setCurrentIndex(3);
  EXPECT_EQ(w.cmbTX.listIndex, 3);
  child<QCheckBox>(view, "chkForceDisplayTXFrames")->click();
  ASSERT_EQ(platform.simDialogs.shown.size(), 1u);
  EXPECT_EQ(platform.simDialogs.shown[0].title, "Always display TX Frames");

  // Normal mode kept: Apply saves and the window stays.
  child<QPushButton>(view, "Command1")->click();
  EXPECT_EQ(station->config().LanPort, 8123);
  EXPECT_EQ(station->config().HostName_IP_Default, "engine2.local");
  EXPECT_EQ(station->config().Lan_Password, "");
  EXPECT_EQ(station->config().AGWPERadioPort, 3);
  EXPECT_EQ(child<QComboBox>(view, "cmbLANIPAddress")->count(), 3);
  EXPECT_TRUE(w.form.loaded);
  child<QPushButton>(view, "Command2")->click();
  EXPECT_FALSE(w.form.loaded);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "LAN_Setup");
}

TEST_F(LanSetupViewTest, TheOptionsMenuEntryRunsItsCommand) {
  // The entry as the station registers it before the LAN window is there.
  CommandTable commands;
  commands.addUnbuilt({Command::mnuLanSetup}, "&LAN Settings...");
  MainWindowView main(station->mainWindow(), &commands);
  QAction* entry = nullptr;
  for (QAction* menu : main.menuBar()->actions()) {
    if (menu->text() != "&Options") continue;
    for (QAction* a : menu->menu()->actions()) {
      if (a->text() == "&LAN Settings...") entry = a;
    }
  }
  ASSERT_NE(entry, nullptr);
  EXPECT_FALSE(entry->isEnabled());  // nothing wired yet
  main.setCommand({Command::mnuLanSetup}, [this] { lan().Show(); });
  EXPECT_TRUE(entry->isEnabled());
  entry->trigger();
  EXPECT_TRUE(lan().window().form.visible);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "LAN_Setup");
}

}  // namespace
}  // namespace tesk
