// The transmit panel on screen: the six fields, their lists and the counters in their colours
// come from the struct; keys, list picks, drops and the send buttons reach the panel's rules;
// the list editor shows its entries beside their lengths. One test leaves a picture of the main
// window in tx_panel.png (see PictureFile) for a person to look at.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "alarms/meld.h"
#include "core/ports.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/views/edit_tx_data_view.h"
#include "qt/views/main_window_view.h"
#include "transmit/tx_panel.h"

namespace tesk {
namespace {

class TxPanelViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    panel.RegisterCommands(commands);
    view = std::make_unique<MainWindowView>(main, &commands, MainWindowHandlers{&panel});
    view->resize(1100, 720);
  }
  void TearDown() override { view.reset(); }

  template <typename W>
  W* child(const char* name) {
    auto* w = view->findChild<W*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  QColor counterColour(int index) {
    auto* label = child<QLabel>(("LblMaxLengte" + std::to_string(index)).c_str());
    return label->palette().color(QPalette::WindowText);
  }
  // Registers what a send button's command runs.
  void sender(Command command, std::function<void()> run) {
    commands.addClick({command}, std::move(run));
  }
  // Lets the panel's queued change handlers run.
  static void settle() { QCoreApplication::processEvents(); }

  SimPlatform platform;
  StationConfig config;
  RunState run;
  MainWindow main;
  Meld meld{platform, main};
  Ports ports{platform, config, run, main, meld};
  CommandTable commands;
  TxPanel panel{platform, config, run, main, ports, meld, commands, [] {}};
  std::unique_ptr<MainWindowView> view;
};

TEST_F(TxPanelViewTest, ShowsTheFieldsListsAndCounterColoursOfTheStruct) {
  main.cmbViaCall.list = {"ARISS", "RS0ISS", ""};
  main.cmbViaCall.text = "ARISS";
  main.cmbFor.list = {"BLN", "EMAIL", "SAT"};
  main.cmbFor.text = "SAT";
  main.cmbDataText.text = std::string(81, 'x');
  panel.UpdateCounter(0);
  main.cmbAPRSMessage.text = "QSL";
  panel.UpdateCounter(2);
  config.TXBoxCoherentColors = 1;
  panel.SetCoherentTXBoxColors();
  view->refresh();

  auto* via = child<QComboBox>("cmbViaCall");
  EXPECT_EQ(via->count(), 3);
  EXPECT_EQ(via->itemText(2), "");
  EXPECT_EQ(via->currentText(), "ARISS");
  EXPECT_EQ(child<QComboBox>("cmbFor")->currentText(), "SAT");
  EXPECT_EQ(child<QLabel>("LblMaxLengte0")->text(), "81");
  EXPECT_EQ(counterColour(0), QColor(255, 0, 0));
  EXPECT_EQ(child<QLabel>("LblMaxLengte2")->text(), "3");
  EXPECT_EQ(counterColour(2), QColor(128, 0, 128));
  EXPECT_EQ(counterColour(1), QColor(0, 0, 255));
  EXPECT_EQ(child<QComboBox>("cmbDataText")->lineEdit()->palette().color(QPalette::Base),
            QColor(130, 255, 180));
  // A field without a tool tip of its own keeps the view's description.
  EXPECT_EQ(child<QComboBox>("cmbToCall")->toolTip(), "Destination call (To)");
  main.cmbViaCall.toolTip = "Path = ARISS";
  view->refresh();
  EXPECT_EQ(via->toolTip(), "Path = ARISS");
}

TEST_F(TxPanelViewTest, TypedKeysGoThroughTheFieldsRules) {
  auto* to = child<QComboBox>("cmbToCall");
  QTest::keyClicks(to, "pa3abcdefgh");
  settle();
  EXPECT_EQ(main.cmbToCall.text, "PA3ABCDEFG");
  EXPECT_EQ(to->currentText(), "PA3ABCDEFG");
  EXPECT_EQ(to->lineEdit()->cursorPosition(), 10);

  // Typing over the room turns the counter red; the field is cut at 80 with a Via.
  main.cmbViaCall.text = "ARISS";
  view->refresh();
  auto* text = child<QComboBox>("cmbDataText");
  QTest::keyClicks(text, "abc");
  settle();
  EXPECT_EQ(child<QLabel>("LblMaxLengte0")->text(), "3");
  EXPECT_EQ(counterColour(0), QColor(0, 128, 0));
  text->lineEdit()->selectAll();
  text->lineEdit()->insert(QString(85, QLatin1Char('z')));  // a paste
  QTest::keyClick(text, Qt::Key_End);
  settle();
  EXPECT_EQ(main.cmbDataText.text, std::string(80, 'z'));
  EXPECT_EQ(text->currentText().size(), 80);

  // Enter in the Text/data field adds it to the history and presses Send once.
  int presses = 0;
  sender(Command::cmdTXDataText, [&] { ++presses; });
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(text->count(), 1);
  EXPECT_EQ(text->itemText(0), QString(80, QLatin1Char('z')));
  EXPECT_EQ(text->lineEdit()->cursorPosition(), 80);
}

TEST_F(TxPanelViewTest, EnterInMessageForMovesTheKeyboardToTheMessage) {
  view->show();
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  auto* forCall = child<QComboBox>("cmbFor");
  auto* msg = child<QComboBox>("cmbAPRSMessage");
  forCall->setFocus();
  QTest::keyClicks(forCall, "pa3xyz");
  QTest::keyClick(forCall, Qt::Key_Return);
  EXPECT_EQ(forCall->currentText(), "PA3XYZ");
  EXPECT_EQ(forCall->count(), 1);
  EXPECT_TRUE(msg->hasFocus());
  EXPECT_EQ(msg->toolTip(), "Message contents to transmit For:PA3XYZ");
}

TEST_F(TxPanelViewTest, ASelectionMadeByKeysIsKeptAndTypedOver) {
  view->show();
  view->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
  auto* forCall = child<QComboBox>("cmbFor");
  forCall->setFocus();
  QTest::keyClicks(forCall, "nws");
  settle();
  QTest::keyClick(forCall, Qt::Key_A, Qt::ControlModifier);
  settle();
  EXPECT_EQ(forCall->lineEdit()->selectedText(), "nws");
  QTest::keyClicks(forCall, "xx9ab");
  settle();
  EXPECT_EQ(forCall->currentText(), "xx9ab");
  QTest::keyClick(forCall, Qt::Key_Home, Qt::ShiftModifier);
  settle();
  EXPECT_EQ(forCall->lineEdit()->selectedText(), "xx9ab");
  // A refresh, as the clock's each second, leaves the caret where the operator put it.
  forCall->lineEdit()->setCursorPosition(2);
  view->refresh();
  EXPECT_EQ(forCall->lineEdit()->cursorPosition(), 2);
}

TEST_F(TxPanelViewTest, AListPickUpdatesTheCounterAndDropsFollowTheFieldsLimits) {
  main.cmbAPRSPos.list = {"short", std::string(55, 'p')};
  view->refresh();
  auto* aprs = child<QComboBox>("cmbAPRSPos");
  QSignalSpy picked(aprs, &QComboBox::activated);
  aprs->setFocus();
  QTest::keyClick(aprs, Qt::Key_Down);
  QTest::keyClick(aprs, Qt::Key_Down);
  ASSERT_GE(picked.count(), 1);
  EXPECT_EQ(main.cmbAPRSPos.text, std::string(55, 'p'));
  EXPECT_EQ(child<QLabel>("LblMaxLengte1")->text(), "55");
  EXPECT_EQ(counterColour(1), QColor(255, 0, 0));  // over 80 - 9 - 20 with the tag on

  QLineEdit* to = child<QComboBox>("cmbToCall")->lineEdit();
  QMimeData tooLong;
  tooLong.setText("PA3ABCDEFGH");
  QDragEnterEvent refused(QPoint(5, 5), Qt::CopyAction, &tooLong, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(to, &refused);
  EXPECT_FALSE(refused.isAccepted());
  QMimeData call;
  call.setText("RS0ISS");
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &call, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(to, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &call, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(to, &drop);  // goes to the target that took the drag
  EXPECT_EQ(main.cmbToCall.text, "RS0ISS");
  EXPECT_EQ(to->text(), "RS0ISS");
}

TEST_F(TxPanelViewTest, ASendButtonIgnoresASecondClickWithinTheGuard) {
  int presses = 0;
  sender(Command::cmdTXDataText, [&] { ++presses; });
  view->refresh();
  auto* send = child<QPushButton>("cmdTXDataText");
  ASSERT_TRUE(send->isEnabled());
  QTest::mouseClick(send, Qt::LeftButton);
  EXPECT_EQ(presses, 1);
  // The guard's wait runs in virtual time; a click 0.3 s later is lost, one after 0.7 s counts.
  platform.simLoop.schedule(0.3, [&] { QTest::mouseClick(send, Qt::LeftButton); });
  platform.simLoop.run(0.5);
  EXPECT_EQ(presses, 1);
  platform.simLoop.run(2.0);
  QTest::mouseClick(send, Qt::LeftButton);
  EXPECT_EQ(presses, 2);
  // The keyboard's press sets no guard.
  send->click();
  EXPECT_EQ(presses, 3);
}

TEST_F(TxPanelViewTest, TheListEditorShowsEntriesBesideTheirLengths) {
  main.cmbDataText.list = {"Hello", "KN55AB Ivo", "10 watt, 5/8 antenna"};
  view->refresh();
  child<QToolButton>("cmdEditTXData0")->click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmEditTXData");
  EditTXDataView editor(panel.editor());
  EXPECT_EQ(editor.windowTitle(), "Edit 'TX-Text/Data' List");
  auto* entries = editor.findChild<QListWidget*>("lstTXData");
  auto* lengths = editor.findChild<QListWidget*>("lstLength");
  ASSERT_NE(entries, nullptr);
  ASSERT_NE(lengths, nullptr);
  ASSERT_EQ(lengths->count(), 3);
  EXPECT_EQ(lengths->item(2)->text(), "20");
  entries->setCurrentRow(1);
  EXPECT_EQ(panel.editor().window().lstTXData.listIndex, 1);
  editor.refresh();
  EXPECT_EQ(lengths->currentRow(), 1);
  editor.findChild<QPushButton*>("cmdRemove")->click();
  editor.refresh();
  EXPECT_EQ(entries->count(), 2);
  EXPECT_EQ(lengths->item(1)->text(), "20");
  editor.findChild<QPushButton*>("cmdOK")->click();
  EXPECT_EQ(main.cmbDataText.list, (std::vector<std::string>{"Hello", "10 watt, 5/8 antenna"}));
}

TEST_F(TxPanelViewTest, PictureOfTheMainWindowForAPerson) {
  main.form.caption = "TESK";
  main.frmLogoTitle.caption = "+LAN";
  main.frmLogoTitle.backColor = RGB(0, 170, 0);
  main.FrameComm.caption = "Communication Ports: TX-1 / RX All";
  main.UTC_Klok.caption = "11:02:41";
  main.Klok.caption = "12:02:41";
  main.lblCallSign.caption = "XX9TK";
  main.txtMonitor.append("1:Fm RS0ISS To CQ Via ARISS <UI pid=F0 Len=23 >[12:02:11]\r\n",
                         RGB(255, 255, 0));
  main.txtMonitor.append("Hello from the ISS crew\r\n", RGB(0, 255, 255));
  main.cmbToCall.list = {"CQ", "APRS", "BEACON", "QST", "APRSAT"};
  main.cmbToCall.text = "CQ";
  main.cmbViaCall.list = {"ARISS", "RS0ISS", "4XTECH", "WIDE2-2", ""};
  main.cmbViaCall.text = "ARISS";
  main.cmbDataText.list = {"Software: TESK 5.4.4", "KN55AB Ivo"};
  main.cmbDataText.text = "Hi All! 73 from KN55AB";
  main.cmbAPRSPos.text = "73' Via Satellite";
  main.cmbFor.list = {"BLN", "EMAIL", "NWS", "SAT", "BLN#ECHO"};
  main.cmbFor.text = "SAT";
  main.cmbAPRSMessage.text = "QSL and 73 via ISS";
  config.TXBoxCoherentColors = 1;
  panel.SetCoherentTXBoxColors();
  for (int i = 0; i < 3; ++i)
    panel.UpdateCounter(i);
  sender(Command::cmdTXDataText, [] {});
  sender(Command::cmdTXAPRS, [] {});
  sender(Command::cmdTXAPRSMessage, [] {});
  view->refresh();
  view->show();
  view->monitor().flush();
  QCoreApplication::processEvents();
  EXPECT_TRUE(view->grab().save(testing::PictureFile("tx_panel.png")));
  panel.cmdEditTXData_Click(0);
  EditTXDataView editor(panel.editor());
  editor.show();
  QCoreApplication::processEvents();
  EXPECT_TRUE(editor.grab().save(testing::PictureFile("edit_tx_data.png")));
}

}  // namespace
}  // namespace tesk
