// Sending from the main window as the operator does it: the rows of the Send menu, Enter in the
// Text/data field, text dropped on Send, F8 and the right-press menu of the heard report button.
// A station on the sim platform stands behind the view; what went out shows in its per-kind
// transmission counters and what was refused in the note window's text.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

QString Plain(QString caption) {
  return caption.remove(QLatin1Char('&'));
}

// The entry `text` of `menu` (accelerators left out), or null.
QAction* EntryOf(QMenu* menu, const QString& text) {
  for (QAction* a : menu->actions()) {
    if (!a->isSeparator() && Plain(a->text()) == text) return a;
  }
  return nullptr;
}

class MainWindowSendTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = home.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    station->config().ShowPortInHeader = 0;
    main().cmbToCall.text = "CQ";
    view = std::make_unique<MainWindowView>(main(), &station->commands(),
                                            testing::HandlersOf(*station));
  }
  void TearDown() override { view.reset(); }

  MainWindow& main() { return station->mainWindow(); }
  int sent(int kind) { return station->run().TxCounters[static_cast<std::size_t>(kind)]; }
  std::string note() { return station->parts().meld.window().lblMelding.caption; }
  QMenu* sendMenu() {
    for (QAction* m : view->menuBar()->actions()) {
      if (Plain(m->text()) == "Send" && m->menu() != nullptr) return m->menu();
    }
    ADD_FAILURE() << "no Send menu";
    return nullptr;
  }
  QAction* sendEntry(const QString& text) {
    QAction* a = EntryOf(sendMenu(), text);
    EXPECT_NE(a, nullptr) << text.toStdString();
    static QAction none;
    return a != nullptr ? a : &none;
  }
  QPushButton* button(const char* name) {
    auto* b = view->findChild<QPushButton*>(name);
    EXPECT_NE(b, nullptr) << name;
    return b;
  }
  // A drag of `text` over Send, and its drop when the drag was taken; true when accepted.
  bool dropOnSend(const QString& text, Qt::DropAction* action = nullptr) {
    QMimeData mime;
    mime.setText(text);
    QPushButton* send = button("cmdTXDataText");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(send, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                    Qt::NoModifier);
    QCoreApplication::sendEvent(send, &drop);
    if (action != nullptr) *action = drop.dropAction();
    return drop.isAccepted();
  }

  QTemporaryDir home;
  SimPlatform platform;
  std::unique_ptr<Station> station;
  std::unique_ptr<MainWindowView> view;
};

TEST_F(MainWindowSendTest, SendMenuRowsSendTheirFramesAndTheLaterRowsStayDisabled) {
  // The rows of the connection senders have nothing behind them yet; Stop Pending waits for a
  // message with retries.
  for (const char* row : {"Connect", "Disconnect", "Disconnect twice", "Stop Pending"})
    EXPECT_FALSE(sendEntry(row)->isEnabled()) << row;
  EXPECT_TRUE(sendEntry("APRS message")->isEnabled());
  // The position's row follows its send button, which is grey until a position is set up.
  main().cmdTXAPRS.enabled = false;
  view->refresh();
  EXPECT_FALSE(sendEntry("APRS position")->isEnabled());
  main().cmdTXAPRS.enabled = true;
  view->refresh();
  EXPECT_TRUE(sendEntry("APRS position")->isEnabled());

  QAction* header = sendEntry("Header only");
  ASSERT_TRUE(header->isEnabled());
  header->trigger();
  EXPECT_EQ(sent(0), 1);
  EXPECT_EQ(main().cmbToCall.list, std::vector<std::string>{"CQ"});

  auto* text = view->findChild<QComboBox*>("cmbDataText");
  ASSERT_NE(text, nullptr);
  text->lineEdit()->setText("73 via the ISS");
  QAction* data = sendEntry("Text/data");
  ASSERT_TRUE(data->isEnabled());
  data->trigger();
  EXPECT_EQ(sent(1), 1);
  EXPECT_EQ(sent(0), 1);
  EXPECT_EQ(text->count(), 1);  // the history took the text and the view shows it
  EXPECT_EQ(text->itemText(0), "73 via the ISS");

  // Without a To call nothing goes out and the note says why.
  view->findChild<QComboBox*>("cmbToCall")->lineEdit()->clear();
  data->trigger();
  EXPECT_EQ(sent(1), 1);
  EXPECT_NE(note().find("No Call Sign entered!"), std::string::npos);
}

TEST_F(MainWindowSendTest, StopPendingIsOfferedWhileAMessageIsRetried) {
  station->config().AckUIViewType = 2;
  main().cmbFor.text = "XX9AB";
  main().cmbAPRSMessage.text = "hello";
  sendEntry("APRS message")->trigger();
  EXPECT_EQ(sent(8), 1);
  // The row follows the retry tick as the menu opens.
  emit sendMenu()->aboutToShow();
  EXPECT_TRUE(main().mnuStopPending.enabled);
  ASSERT_TRUE(sendEntry("Stop Pending")->isEnabled());
  // Pictures of the message row and of the open Send menu during the retries, to look at.
  view->refresh();
  view->show();
  QCoreApplication::processEvents();
  EXPECT_TRUE(view->grab().save(testing::PictureFile("message_retrying.png")));
  sendMenu()->popup(view->mapToGlobal(QPoint(40, 40)));
  QCoreApplication::processEvents();
  EXPECT_TRUE(sendMenu()->grab().save(testing::PictureFile("send_menu_retrying.png")));
  sendMenu()->hide();
  sendEntry("Stop Pending")->trigger();
  EXPECT_EQ(station->run().PendingMessages[0].PendingDone, -1);
  emit sendMenu()->aboutToShow();
  EXPECT_FALSE(main().mnuStopPending.enabled);
  EXPECT_FALSE(sendEntry("Stop Pending")->isEnabled());
}

TEST_F(MainWindowSendTest, EnterInTheTextFieldAndAltDSendItThroughTheTextSender) {
  auto* text = view->findChild<QComboBox*>("cmbDataText");
  ASSERT_NE(text, nullptr);
  QTest::keyClicks(text, "hello");
  QCoreApplication::processEvents();
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(sent(1), 1);
  EXPECT_EQ(text->count(), 1);
  EXPECT_EQ(text->currentText(), "hello");  // the field keeps its text, the caret at the end
  EXPECT_EQ(text->lineEdit()->cursorPosition(), 5);
  // The button's accelerator is no other control's, so it presses Send.
  view->show();
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  text->setFocus();
  QTest::keyClick(text->lineEdit(), Qt::Key_D, Qt::AltModifier);
  // The accelerator animates the click, which lands a moment later.
  EXPECT_TRUE(QTest::qWaitFor([&] { return sent(1) == 2; }, 5000));
}

TEST_F(MainWindowSendTest, TextDroppedOnSendGoesOutUncutUnlessTheRulesRefuseIt) {
  main().cmbViaCall.text = "ARISS";
  view->refresh();
  // 91 characters are too many for a drop; 90 go out whole though the Via would cut to 80.
  EXPECT_FALSE(dropOnSend(QString(91, QLatin1Char('x'))));
  EXPECT_EQ(sent(1), 0);
  Qt::DropAction action = Qt::MoveAction;
  EXPECT_TRUE(dropOnSend(QString(90, QLatin1Char('x')), &action));
  EXPECT_EQ(sent(1), 1);
  EXPECT_EQ(action, Qt::CopyAction);             // the text stays where it was dragged from
  EXPECT_TRUE(main().cmbDataText.list.empty());  // a drop leaves no history
  // The To or Via text dragged over Send is meant for a field, not for the air.
  EXPECT_FALSE(dropOnSend("CQ"));
  EXPECT_FALSE(dropOnSend("ARISS"));
  // Something other than text is refused.
  QMimeData picture;
  picture.setImageData(QImage(4, 4, QImage::Format_RGB32));
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &picture, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(button("cmdTXDataText"), &enter);
  EXPECT_FALSE(enter.isAccepted());
  // Without a To call a text that may be dropped still goes nowhere.
  main().cmbToCall.text.clear();
  Qt::DropAction none = Qt::CopyAction;
  EXPECT_FALSE(dropOnSend("hello", &none));
  EXPECT_EQ(none, Qt::IgnoreAction);
  EXPECT_EQ(sent(1), 1);
}

TEST_F(MainWindowSendTest, F8AndTheHeardReportMenusSendTheList) {
  QPushButton* heard = button("cmdTXMHeard");
  EXPECT_EQ(heard->toolTip(), "Send MHeard List (F8)");
  ASSERT_TRUE(heard->isEnabled());
  view->show();
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  // F8 wherever the keyboard is: an empty list gives the note and no frame.
  view->findChild<QComboBox*>("cmbDataText")->setFocus();
  QTest::keyClick(view->findChild<QComboBox*>("cmbDataText"), Qt::Key_F8);
  EXPECT_EQ(note(), "No stations heard, so nothing to send.");
  EXPECT_EQ(sent(4), 0);

  // A right press pops up the four forms, with the check on the one in use, and the setup's
  // entry, disabled while there is no setup page.
  main().menumheardsend[station->config().TXMHeardType].checked = true;  // as the load pass does
  QMenu* popup = view->findChild<QMenu*>("menumheardsend");
  ASSERT_NE(popup, nullptr);
  QTest::mousePress(heard, Qt::RightButton);
  EXPECT_TRUE(main().menumheardsendPopup);
  ASSERT_TRUE(popup->isVisible());
  QStringList captions;
  QList<QAction*> entries;
  for (QAction* a : popup->actions()) {
    if (a->isSeparator()) continue;
    captions << a->text();
    entries << a;
  }
  EXPECT_EQ(captions, (QStringList{"Stations as 'Heard'", "Stations as TESK 'BLNQSLx/x'",
                                   "Stations as APRS Bulletin 'BLN0QSLs'",
                                   "Last Heard Stations (max 7)", "MHeard Setup..."}));
  ASSERT_EQ(entries.size(), 5);
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(entries[i]->isEnabled()) << i;
    EXPECT_EQ(entries[i]->isChecked(), i == 1) << i;
  }
  EXPECT_TRUE(entries[4]->isEnabled());  // the setup window's MHeard page
  // Closed without a choice, the request is over.
  popup->hide();
  EXPECT_FALSE(main().menumheardsendPopup);

  // With a station heard, the form chosen from the popup goes out and takes the check.
  station->parts().heardList.AddToMheardList("Fm PA3ABC To CQ <UI pid=F0 Len=5 >[12:00:00]\r\n");
  QTest::mousePress(heard, Qt::RightButton);
  ASSERT_TRUE(popup->isVisible());
  entries[0]->trigger();
  popup->hide();
  EXPECT_EQ(sent(4), 1);
  EXPECT_FALSE(main().menumheardsendPopup);
  EXPECT_TRUE(entries[0]->isChecked());
  EXPECT_FALSE(entries[1]->isChecked());

  // The Send menu holds the same forms; F8 sends once more.
  QAction* heardRow = sendEntry("MHeard");
  ASSERT_NE(heardRow->menu(), nullptr);
  EXPECT_TRUE(heardRow->isEnabled());
  QAction* lastHeard = EntryOf(heardRow->menu(), "Last Heard Stations (max 7)");
  ASSERT_NE(lastHeard, nullptr);
  lastHeard->trigger();
  EXPECT_EQ(sent(4), 2);
  EXPECT_TRUE(lastHeard->isChecked());
  EXPECT_TRUE(entries[3]->isChecked());
  QTest::keyClick(view.get(), Qt::Key_F8);
  EXPECT_EQ(sent(4), 3);
}

}  // namespace
}  // namespace tesk
