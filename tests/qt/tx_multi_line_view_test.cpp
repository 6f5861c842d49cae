// The Multi-Line view renders its struct (the pages with LF line ends, the signs, the character
// buttons, the default mark) and hands typing, presses and closing to the window's handlers:
// typed text reaches the struct with CR LF and its signs at once, Send sends, Close writes the
// file. From the main window: the right press on the Multi-Line button and the Send menu's rows.
#include "qt/views/tx_multi_line_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
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

class TxMultiLineViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = home.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    station->mainWindow().cmbToCall.text = "CQ";
    station->mainWindow().CmdTXMultiLineDirect.visible = true;
    station->config().MonitorFontname = "Courier";
  }
  TxMultiLineForm& multi() { return station->parts().txMultiLine; }
  TXMultiLineWindow& w() { return multi().window(); }
  int sent() { return station->run().TxCounters[9]; }
  template <typename W>
  W* child(QWidget& view, const QString& name) {
    W* found = view.findChild<W*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
  }

  QTemporaryDir home;
  SimPlatform platform;
  std::unique_ptr<Station> station;
};

TEST_F(TxMultiLineViewTest, RendersThePagesAndHandsTypingAndPressesToTheWindow) {
  std::string tenLines;
  for (int i = 1; i <= 10; ++i)
    tenLines += "Line " + std::to_string(i) + (i < 10 ? "\r\n" : " and a tail beyond the frame");
  ASSERT_TRUE(SaveMultiLineFile(home.filePath("TXMultiLine.ini").toStdString(),
                                {"CQ de XX9TK\r\npse k", tenLines, ""}));
  multi().Show();
  TxMultiLineView view(multi());
  view.show();
  EXPECT_EQ(view.windowTitle(), "TX Multi-Line");
  auto* page0 = child<QPlainTextEdit>(view, "TxtMultiLine0");
  EXPECT_EQ(page0->toPlainText(), "CQ de XX9TK\npse k");
  EXPECT_EQ(child<QLabel>(view, "LblLength0")->text(), "Length=18");
  EXPECT_FALSE(child<QLabel>(view, "LblMaxLines1")->isHidden());
  EXPECT_FALSE(child<QLabel>(view, "LblMaxLength1")->isHidden());
  EXPECT_TRUE(child<QLabel>(view, "LblMaxLines0")->isHidden());
  EXPECT_TRUE(child<QRadioButton>(view, "OptDefaultTXMulti0")->isChecked());
  EXPECT_EQ(child<QPushButton>(view, "Command1_0")->text(), "_");
  EXPECT_FALSE(child<QPushButton>(view, "Command8_0")->isEnabled());  // APRS is off
  EXPECT_TRUE(child<QCheckBox>(view, "ChkSwitchFont")->isVisibleTo(&view));

  // Page 2 in front, over its limits, for a person to look at.
  auto* tabs = child<QTabWidget>(view, "pages");
  tabs->setCurrentIndex(1);
  view.resize(view.sizeHint().expandedTo(QSize(640, 420)));
  QTest::qWait(qEnvironmentVariableIntValue("TESK_SCREENSHOT_HOLD_MS") + 50);
  EXPECT_TRUE(view.grab().save(testing::PictureFile("tx_multi_line.png")));

  // The page with too many lines stops the others; typing its last line away frees them.
  tabs->setCurrentIndex(0);
  child<QPushButton>(view, "cmdTXMultiLines0")->click();
  EXPECT_EQ(sent(), 0);
  EXPECT_EQ(platform.simDialogs.shown.back().text, "To many lines in TX Multi-Line nr 2");
  auto* page1 = child<QPlainTextEdit>(view, "TxtMultiLine1");
  page1->setFocus();
  page1->moveCursor(QTextCursor::End);
  for (int i = 0; i < 36; ++i)
    QTest::keyClick(page1, Qt::Key_Backspace);
  EXPECT_EQ(w().TxtMultiLine[1].text.substr(w().TxtMultiLine[1].text.size() - 8), "\r\nLine 9");
  EXPECT_FALSE(w().LblMaxLines[1].visible);
  EXPECT_TRUE(child<QLabel>(view, "LblMaxLines1")->isHidden());

  // Typing a new line in page 0: CR LF in the struct; a character button adds at the end.
  page0->setFocus();
  page0->moveCursor(QTextCursor::End);
  QTest::keyClick(page0, Qt::Key_Return);
  QTest::keyClicks(page0, "73");
  child<QPushButton>(view, "Command6_0")->click();
  EXPECT_EQ(w().TxtMultiLine[0].text, "CQ de XX9TK\r\npse k\r\n73*");
  EXPECT_EQ(page0->toPlainText(), "CQ de XX9TK\npse k\n73*");
  EXPECT_EQ(child<QLabel>(view, "LblLength0")->text(), "Length=23");
  child<QPushButton>(view, "cmdTXMultiLines0")->click();
  EXPECT_EQ(sent(), 1);

  // The default mark moves, and Close writes the pages.
  child<QRadioButton>(view, "OptDefaultTXMulti2")->click();
  EXPECT_EQ(station->config().TXMultiLineDefault, 2);
  EXPECT_FALSE(child<QRadioButton>(view, "OptDefaultTXMulti0")->isChecked());
  child<QPushButton>(view, "cmdClose")->click();
  EXPECT_FALSE(w().form.loaded);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "frmTXMultiLine");
  EXPECT_EQ(LoadMultiLineFile(home.filePath("TXMultiLine.ini").toStdString())[0],
            "CQ de XX9TK\r\npse k\r\n73*");
}

TEST_F(TxMultiLineViewTest, TheMainWindowsButtonAndSendMenuReachThePages) {
  ASSERT_TRUE(SaveMultiLineFile(home.filePath("TXMultiLine.ini").toStdString(), {"a", "b", "c"}));
  station->config().TXMultiLineDefault = 1;
  MainWindowView main(station->mainWindow(), &station->commands(), testing::HandlersOf(*station));
  main.refresh();
  auto* button = main.findChild<QPushButton*>("CmdTXMultiLineDirect");
  ASSERT_NE(button, nullptr);
  ASSERT_TRUE(button->isEnabled());
  button->click();
  EXPECT_EQ(sent(), 1);
  EXPECT_FALSE(w().form.visible);

  auto* popup = main.findChild<QMenu*>("mnu_multilinePopup");
  ASSERT_NE(popup, nullptr);
  QTest::mousePress(button, Qt::RightButton);
  ASSERT_TRUE(popup->isVisible());
  QStringList captions;
  QList<QAction*> rows;
  for (QAction* a : popup->actions()) {
    if (a->isSeparator()) continue;
    captions << Plain(a->text());
    rows << a;
  }
  EXPECT_EQ(captions, (QStringList{"Multi-Line page 1", "Multi-Line page 2", "Multi-Line page 3",
                                   "Multi-Line window..."}));
  ASSERT_EQ(rows.size(), 4);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(rows[i]->isChecked(), i == 1) << i;
  rows[2]->trigger();
  popup->hide();
  EXPECT_FALSE(station->mainWindow().mnu_multilinePopup);
  EXPECT_EQ(sent(), 2);

  // The Send menu's Multi-Line rows: the last one shows the window.
  QMenu* send = nullptr;
  for (QAction* m : main.menuBar()->actions())
    if (Plain(m->text()) == "Send") send = m->menu();
  ASSERT_NE(send, nullptr);
  QMenu* rowsMenu = send->findChild<QMenu*>("mnu_multiline");
  ASSERT_NE(rowsMenu, nullptr);
  QAction* window = nullptr;
  for (QAction* a : rowsMenu->actions())
    if (Plain(a->text()) == "Multi-Line window...") window = a;
  ASSERT_NE(window, nullptr);
  window->trigger();
  EXPECT_TRUE(w().form.visible);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmTXMultiLine");
}

}  // namespace
}  // namespace tesk
