// The Monitor's menus, buttons, boxes and filter label on screen, driven as the operator drives
// them: each operation through its menu entry or button, and the checks, visible and enabled
// entries afterwards; typing in the unlocked Monitor; the right-click menu; the find window;
// printing to a PDF file. Ends with a picture of the main window for a person to look at.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_services.h"
#include "qt/qt_test_app.h"
#include "qt/views/find_view.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

constexpr Color kYellow = RGB(255, 255, 0);

class MonitorMenusTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    StationOptions options;
    options.appPath = home.path().toStdString();
    station = std::make_unique<Station>(platform, options);
    station->run().AppPath = options.appPath;
    view = std::make_unique<MainWindowView>(station->mainWindow(), &station->commands(),
                                            testing::HandlersOf(*station));
  }
  // The entry `text` (accelerators left out) of the menu `title` of the menu bar.
  QAction* entry(const QString& title, const QString& text) {
    for (QAction* m : view->menuBar()->actions()) {
      if (m->text().remove(QLatin1Char('&')) != title || m->menu() == nullptr) continue;
      for (QAction* a : m->menu()->actions()) {
        if (a->text().remove(QLatin1Char('&')) == text) return a;
      }
    }
    ADD_FAILURE() << "no entry " << text.toStdString() << " in " << title.toStdString();
    static QAction none;
    return &none;
  }
  QPushButton* button(const char* name) { return view->findChild<QPushButton*>(name); }
  MainWindow& main() { return station->mainWindow(); }
  RichText& txt() { return main().txtMonitor; }

  QTemporaryDir home;
  SimPlatform platform;
  std::unique_ptr<Station> station;
  std::unique_ptr<MainWindowView> view;
};

TEST_F(MonitorMenusTest, EditAndOptionsEntriesFollowEachOperation) {
  QAction* freeze = entry("Edit", "Freeze Monitor");
  QAction* edit = entry("Edit", "Enable Monitor for Edit");
  QAction* optionsFreeze = entry("Options", "Freeze Monitor");
  QAction* optionsEdit = entry("Options", "Enable Monitor for Edit");
  // Items 100 to 140 belong to the right-click menu.
  EXPECT_FALSE(freeze->isVisible());
  EXPECT_FALSE(entry("Edit", "Statistics...")->isVisible());
  EXPECT_TRUE(edit->isVisible());
  EXPECT_FALSE(edit->isChecked());
  EXPECT_FALSE(entry("Edit", "Find Next")->isEnabled());
  EXPECT_TRUE(entry("Edit", "Find...")->isEnabled());
  EXPECT_TRUE(entry("File", "Save As ASCII or Log...")->isEnabled());
  for (const char* name :
       {"cmdMonitorClear", "cmdMonitorCut", "cmdMonitorCopy", "cmdMonitorPaste", "cmdMonitorSave",
        "cmdMonitorOpen", "cmdMonitorPrint", "cmdFind", "cmdStatistics"}) {
    ASSERT_NE(button(name), nullptr) << name;
    EXPECT_TRUE(button(name)->isEnabled()) << name;
  }
  EXPECT_EQ(button("cmdMonitorSave")->toolTip(), "Save as Rich Text");
  MonitorView& monitor = view->monitor();
  EXPECT_TRUE(monitor.isReadOnly());

  edit->trigger();
  EXPECT_TRUE(edit->isChecked());
  EXPECT_TRUE(optionsEdit->isChecked());
  EXPECT_FALSE(monitor.isReadOnly());
  optionsFreeze->trigger();
  EXPECT_TRUE(optionsFreeze->isChecked());
  EXPECT_TRUE(freeze->isChecked());
  EXPECT_TRUE(main().menuedits[100].checked);  // what the packet core's gate reads
  optionsEdit->trigger();
  EXPECT_FALSE(edit->isChecked());
  EXPECT_TRUE(monitor.isReadOnly());

  // Select All shows the selection; Clear asks (the sim answers Yes) and empties.
  txt().append("Fm PA3ABC To CQ\r\nhello\r\n", kYellow);
  entry("Edit", "Select All")->trigger();
  EXPECT_EQ(monitor.textCursor().selectedText().size(), 22);  // two line ends of one character
  platform.simDialogs.answers = {"Y"};
  button("cmdMonitorClear")->click();
  EXPECT_EQ(platform.simDialogs.shown.back().title, "Erase Monitor Window");
  EXPECT_EQ(txt().length(), 0u);
}

TEST_F(MonitorMenusTest, TypingInTheUnlockedMonitorGoesIntoTheTextInTheDataColour) {
  station->config().DataColor = RGB(0, 255, 255);
  txt().append("Fm PA3ABC To CQ\r\n", kYellow);
  MonitorView& monitor = view->monitor();
  monitor.flush();
  QTest::keyClicks(&monitor, "ab");  // locked: nothing happens
  EXPECT_EQ(txt().text(), "Fm PA3ABC To CQ\r\n");
  entry("Edit", "Enable Monitor for Edit")->trigger();
  QTextCursor at = monitor.textCursor();
  at.setPosition(3);
  monitor.setTextCursor(at);
  QTest::keyClicks(&monitor, "XY ");
  EXPECT_EQ(txt().text(), "Fm XY PA3ABC To CQ\r\n");
  EXPECT_EQ(txt().styleAt(3).color, RGB(0, 255, 255));
  QTest::keyClick(&monitor, Qt::Key_End);
  QTest::keyClick(&monitor, Qt::Key_Return);
  QTest::keyClick(&monitor, Qt::Key_Backspace);
  QTest::keyClick(&monitor, Qt::Key_Backspace);
  EXPECT_EQ(txt().text(), "Fm XY PA3ABC To C\r\n");
  // Undo by its key takes back the last edit, in the text and on the screen.
  QTest::keyClick(&monitor, Qt::Key_Z, Qt::ControlModifier);
  monitor.flush();
  EXPECT_EQ(txt().text(), "Fm XY PA3ABC To CQ\r\n");
  EXPECT_EQ(monitor.toPlainText(), "Fm XY PA3ABC To CQ\n");
  // A frame arriving now still lands at the end.
  txt().append("next\r\n", kYellow);
  monitor.flush();
  EXPECT_EQ(monitor.toPlainText(), "Fm XY PA3ABC To CQ\nnext\n");
}

TEST_F(MonitorMenusTest, RightClickShowsTheMonitorItemsWhileTheMenuIsUp) {
  MonitorView& monitor = view->monitor();
  bool seen = false;
  QTimer::singleShot(0, [&] {
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    seen = true;
    EXPECT_TRUE(entry("Edit", "Freeze Monitor")->isVisible());
    EXPECT_TRUE(entry("Edit", "View Only Data in  Monitor")->isVisible());
    EXPECT_TRUE(entry("Edit", "Statistics...")->isVisible());
    EXPECT_TRUE(entry("Edit", "Statistics...")->isEnabled());
    EXPECT_TRUE(entry("Edit", "Setup Monitor...")->isEnabled());  // the Setup window's Monitor page
    entry("Edit", "View Only Data in  Monitor")->trigger();
    popup->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(10, 10),
                          monitor.mapToGlobal(QPoint(10, 10)));
  QApplication::sendEvent(monitor.viewport(), &event);  // where the mouse's events arrive
  EXPECT_TRUE(seen);
  EXPECT_FALSE(entry("Edit", "Freeze Monitor")->isVisible());
  EXPECT_TRUE(entry("Edit", "Enable Monitor for Edit")->isVisible());
  EXPECT_TRUE(entry("Edit", "View Only Data in  Monitor")->isChecked());
  EXPECT_TRUE(view->findChild<QCheckBox*>("chkViewDataOnly")->isChecked());
  auto* scroll = view->findChild<QCheckBox*>("chkScroll");
  EXPECT_TRUE(scroll->isChecked());
  EXPECT_EQ(scroll->toolTip(), "Automatic scrolling ON or OFF");
  scroll->click();
  EXPECT_FALSE(main().chkScroll.checked());
}

TEST_F(MonitorMenusTest, FilterEntriesAndTheLabel) {
  QAction* none = entry("Filters", "No Filters");
  QAction* via = entry("Filters", "Digipeater Call (Via)");
  auto* label = view->findChild<QLabel*>("lblMonitorFilter");
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(none->isChecked());
  EXPECT_EQ(label->text(), "No Filter");
  EXPECT_EQ(label->toolTip(), "Selected Filter (show only data from specified Filter)");
  main().cmbViaCall.text = "ariss";
  view->refresh();
  via->trigger();
  EXPECT_TRUE(via->isChecked());
  EXPECT_FALSE(none->isChecked());
  EXPECT_EQ(label->text(), "ARISS");
  EXPECT_EQ(label->palette().color(QPalette::Window), QColor(0, 255, 0));  // QBColor(10)
  platform.simDialogs.answers = {"rs0iss*"};
  entry("Filters", "Enter Call/text...")->trigger();
  EXPECT_TRUE(entry("Filters", "Enter Call/text...")->isChecked());
  EXPECT_FALSE(via->isChecked());
  EXPECT_EQ(label->text(), "RS0ISS*");
  entry("Filters", "Save Filter Settings")->trigger();
  EXPECT_EQ(station->config().Filter, 5);
  EXPECT_EQ(station->config().FilterCall, "RS0ISS*");
  main().cmbToCall.text = "";
  entry("Filters", "Call (To)")->trigger();  // empty To: nothing checked
  for (int i : {0, 1, 2, 3, 5})
    EXPECT_FALSE(main().menufilters[i].checked) << i;
  EXPECT_FALSE(entry("Filters", "Enter Call/text...")->isChecked());
}

TEST_F(MonitorMenusTest, FindWindowSelectsInTheMonitorAndEnablesFindNext) {
  txt().append("CQ de PA3ABC CQ\r\n", kYellow);
  button("cmdFind")->click();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmFind");
  MonitorFind& find = station->parts().find;
  FindView findView(find, [&] {
    view->refresh();
    view->monitor().showModelSelection();
  });
  auto* text = findView.findChild<QLineEdit*>("txtToFind");
  auto* next = findView.findChild<QPushButton*>("CmdFindNext");
  auto* word = findView.findChild<QCheckBox*>("ChkWordOnly");
  ASSERT_TRUE(text && next && word);
  EXPECT_EQ(word->text(), "Match &Whole Word Only");
  QTest::keyClicks(text, "CQ");
  EXPECT_EQ(find.window().txtToFind.text, "CQ");
  next->click();
  EXPECT_EQ(view->monitor().textCursor().selectedText(), "CQ");
  EXPECT_EQ(view->monitor().textCursor().selectionStart(), 0);
  EXPECT_TRUE(entry("Edit", "Find Next")->isEnabled());
  entry("Edit", "Find Next")->trigger();
  EXPECT_EQ(view->monitor().textCursor().selectionStart(), 13);
  QTest::keyClick(text, Qt::Key_Return);  // Enter searches too: past the last hit
  EXPECT_EQ(platform.simDialogs.shown.back().text, "Reached the end...");
  QTest::keyClick(&findView, Qt::Key_Escape);
  EXPECT_FALSE(entry("Edit", "Find Next")->isEnabled());
  EXPECT_FALSE(find.window().form.loaded);
}

TEST_F(MonitorMenusTest, PrintingToAFileMakesAPdf) {
  QtPrinter printer;
  const QString pdf = home.filePath("print.pdf");
  printer.setOutputFile(pdf.toStdString());
  ASSERT_TRUE(printer.printText("Fm PA3ABC To CQ\r\nhello \xE9\r\n"));
  QFile file(pdf);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.read(5).startsWith("%PDF"));
}

TEST_F(MonitorMenusTest, PictureOfTheMonitorWithAFilterForAPerson) {
  StationConfig& c = station->config();
  txt().append("Fm PA3ABC To CQ Via RS0ISS* <UI pid=F0 Len=12 >[12:00:01]\r\n", kYellow);
  txt().append("Hello from JO22\r\n", c.DataColor);
  txt().append("Fm XX9TK To CQ Via RS0ISS* <UI pid=F0 Len=5 >[12:00:05]\r\n", c.DigiColor);
  txt().append("Hi all\r\n", c.DataColor);
  main().cmbViaCall.text = "RS0ISS";
  entry("Filters", "Digipeater Call (Via)")->trigger();
  view->setMonitorLook(MonitorLook{c.ScreenColor, "Fixedsys", 10, false});
  view->resize(1100, 720);
  view->show();
  view->monitor().flush();
  QApplication::processEvents();
  EXPECT_TRUE(view->grab().save(testing::PictureFile("monitor_menus.png")));
}

}  // namespace
}  // namespace tesk
