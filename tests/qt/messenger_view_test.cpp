// The messenger on screen: its lists render the window struct, the filter row, a click and a
// double click reach the handlers, and the main window's Messenger button turns red for a
// message to this station and opens the window. Saves a picture of it for a person to look at.
#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <memory>

#include "aprs/messenger.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/views/main_window_view.h"
#include "qt/views/messenger_view.h"

namespace tesk {
namespace {

class MessengerViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = home.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    StationConfig& c = station->config();
    c.YourCallSign = "XX9TK";
    c.LogDigipeatedMessages = 0;
    c.UseAlarmSound = -1;
  }
  // A message line as the Monitor hands it on.
  void heard(const std::string& from, const std::string& to, const std::string& text) {
    std::string header = "Fm " + from + " To APRS Via ARISS* <UI pid=F0 Len=40 >[12:00:00]";
    std::string data = ":" + to + std::string(9 - to.size(), ' ') + ":" + text + "\r\r\n";
    data.push_back('\0');
    station->parts().messageReception.LogAPRSMessages(header, data);
  }
  void sentRow(int i, const std::string& to, const std::string& text, int16_t done) {
    PendingMessage& r = station->run().PendingMessages[static_cast<std::size_t>(i)];
    r.PendingFor = to;
    r.PendingText = ":" + to + std::string(9 - to.size(), ' ') + ":" + text;
    r.PendingDone = done;
  }
  Messenger& messenger() { return station->parts().messenger; }

  QTemporaryDir home;
  SimPlatform platform;
  std::unique_ptr<Station> station;
};

TEST_F(MessengerViewTest, ListsFilterAndClicksReachTheHandlers) {
  heard("XX8AB", "XX9TK", "Hello from the pass, 73 [TESK]{00");
  heard("DL1XYZ-7", "BLN1", "ISS crew contact tomorrow 10:15 UTC");
  heard("PA3ABC", "XX9TK", "[AA] Gone fishing{03");
  heard("XX9TK", "XX8AB", "ack00");
  sentRow(0, "XX8AB", "Hello back [TESK]{00", 100);
  sentRow(1, "PA3ABC", "QSL? [TESK]{00", 0);
  messenger().cmdLoadMessenger_Click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmMessenger");
  MessengerView view(messenger());
  QListWidget* received = view.received();
  ASSERT_EQ(received->count(), 4);
  EXPECT_TRUE(received->item(0)->text().endsWith("| Message:Hello from the pass, 73 [TESK]{00"));
  ASSERT_EQ(view.sentList()->count(), 2);
  EXPECT_TRUE(view.sentList()->item(0)->text().endsWith(" | 00Y"));
  EXPECT_TRUE(view.sentList()->item(1)->text().endsWith(" | 00N"));
  EXPECT_EQ(view.findChild<QGroupBox*>("FrameSent")->title(),
            "Sent with acknowledgement requests: 0");
  EXPECT_EQ(view.findChild<QLabel*>("LlbTotMes")->text(), "Received Messages: 4/4");
  EXPECT_EQ(view.findChild<QPushButton*>("Command2")->toolTip(),
            "Refresh now manual (automatic refresh every 15 seconds)");

  // A click shows the entry in the viewer and puts the main window's button back.
  station->mainWindow().cmdLoadMessenger.backColor = RGB(255, 0, 0);
  received->setCurrentRow(1);
  emit received->itemClicked(received->item(1));
  const QString viewer = view.findChild<QLabel*>("lblAPRSMessangerViewer")->text();
  EXPECT_TRUE(viewer.endsWith("| To:BLN1      \n Message:ISS crew contact tomorrow 10:15 UTC"))
      << viewer.toStdString();
  EXPECT_EQ(station->mainWindow().cmdLoadMessenger.backColor, kButtonFace);
  // A double click: the sender into For, the focus to the message.
  emit received->itemDoubleClicked(received->item(2));
  EXPECT_EQ(station->mainWindow().cmbFor.text, "PA3ABC");
  EXPECT_EQ(station->mainWindow().txFocus, "cmbAPRSMessage");

  // The filter row: Mine, then BLN.
  view.findChild<QRadioButton*>("OptViewMessages1")->click();
  EXPECT_EQ(received->count(), 2);
  EXPECT_EQ(view.findChild<QLabel*>("LlbTotMes")->text(), "Received Messages: 2/4");
  view.findChild<QRadioButton*>("OptViewMessages2")->click();
  ASSERT_EQ(received->count(), 1);
  EXPECT_EQ(messenger().window().List1.list.size(), 1u);
  // The log choice is the setting.
  view.findChild<QRadioButton*>("OptLogTypeMessages1")->click();
  EXPECT_EQ(station->config().LogDigipeatedMessages, 1);

  view.findChild<QRadioButton*>("OptViewMessages0")->click();
  // The two rows of options are apart: a pick in one leaves the other's.
  EXPECT_TRUE(view.findChild<QRadioButton*>("OptViewMessages0")->isChecked());
  EXPECT_TRUE(view.findChild<QRadioButton*>("OptLogTypeMessages1")->isChecked());
  received->setCurrentRow(0);
  emit received->itemClicked(received->item(0));
  view.show();
  QCoreApplication::processEvents();
  view.grab().save(testing::PictureFile("messenger.png"));

  // Closing by the frame is the Close button: the refresh stops.
  EXPECT_TRUE(messenger().timer().enabled());
  view.close();
  EXPECT_FALSE(messenger().timer().enabled());
}

TEST_F(MessengerViewTest, TheMessengerButtonTurnsRedForAMessageToThisStation) {
  MainWindowView main(station->mainWindow(), &station->commands(), testing::HandlersOf(*station));
  main.refresh();
  auto* button = main.findChild<QPushButton*>("cmdLoadMessenger");
  ASSERT_NE(button, nullptr);
  const QColor face = button->palette().color(QPalette::Button);
  heard("XX8AB", "XX7ZZ", "not for me");
  main.refresh();
  EXPECT_EQ(button->palette().color(QPalette::Button), face);
  heard("XX8AB", "XX9TK", "for me");
  main.refresh();
  EXPECT_EQ(button->palette().color(QPalette::Button), QColor(255, 0, 0));
  main.resize(1100, 720);
  main.show();
  QCoreApplication::processEvents();
  main.findChild<QWidget*>("FrameTransmit")->grab().save(testing::PictureFile("messenger_red.png"));
  button->click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmMessenger");
}

}  // namespace
}  // namespace tesk
