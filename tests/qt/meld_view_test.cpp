// The note window on screen (its text, OK button, growing height, place beside the Monitor and
// its modeless, focus-free manner), and the automatic log's label and menus in the main window.
#include "qt/views/meld_view.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "alarms/packet_log.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/qt_views.h"
#include "qt/views/main_window_view.h"

namespace tesk {
namespace {

class MeldViewTest : public ::testing::Test {
 protected:
  void SetUp() override { testing::QtApp(); }
  SimPlatform sim;
  MainWindow data;
};

TEST_F(MeldViewTest, ShowsTheNoteModelessAndClosesThroughItsRoutine) {
  Meld meld(sim, data);
  QtViews views;
  views.attachMeld(meld);
  meld.ShowMeld(std::string("TESK Alarm is ON\rText >RS0ISS*< found in header!"), 0);
  views.show(WindowKind::Meld);
  MeldView* view = views.meldView();
  ASSERT_NE(view, nullptr);
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(view->label()->text(), "TESK Alarm is ON\nText >RS0ISS*< found in header!");
  EXPECT_TRUE(view->okButton()->isVisibleTo(view));
  EXPECT_FALSE(view->isModal());
  EXPECT_TRUE(view->testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_TRUE(view->windowFlags().testFlag(Qt::Tool));
  EXPECT_EQ(view->width(), Meld::kWidth / 15);
  const int shortHeight = view->height();
  // A replacement without OK and with a long text: the window grows.
  meld.ShowMeld(std::string(300, 'x'), 1);
  views.refresh(WindowKind::Meld);
  EXPECT_FALSE(view->okButton()->isVisibleTo(view));
  EXPECT_GT(view->height(), shortHeight);
  // OK, and the window's own close box, both go through the note's routine.
  meld.ShowMeld("again", 0);
  views.refresh(WindowKind::Meld);
  QTest::mouseClick(view->okButton(), Qt::LeftButton);
  EXPECT_FALSE(meld.window().form.visible);
  views.hide(WindowKind::Meld);
  EXPECT_FALSE(view->isVisible());
  meld.ShowMeld("and again", 0);
  views.show(WindowKind::Meld);
  view->close();
  EXPECT_FALSE(meld.window().form.visible);
}

TEST_F(MeldViewTest, StandsBesideTheMonitorInsideTheScreen) {
  MeldWindow note;
  note.form.width = Meld::kWidth;
  note.form.height = Meld::kHeight;
  MeldView view(note, {});
  view.refresh();
  const QRect monitor(100, 100, 600, 400);
  view.placeBeside(monitor, QRect(0, 0, 1920, 1080));
  EXPECT_EQ(view.pos(), QPoint(monitor.right() + 8, 100));
  // No room on the right: inside the Monitor's top right corner.
  view.placeBeside(monitor, QRect(0, 0, 1000, 800));
  EXPECT_EQ(view.pos(), QPoint(monitor.right() - view.width() - 8, 100));
}

TEST_F(MeldViewTest, TheLogLabelAndMenusReachTheirHandlers) {
  StationConfig config;
  RunState run;
  int saves = 0;
  PacketLog log(sim, config, run, data, [&saves] { ++saves; });
  config.AutomaticLogging = 0;
  CommandTable commands;
  log.RegisterCommands(commands);
  MainWindowView view(data, &commands);
  auto* label = view.findChild<QLabel*>(QStringLiteral("AutoLogLabel"));
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), "Log OFF");
  EXPECT_EQ(label->toolTip(), "Double click to change Autolog status (right-click for options)");
  // Double click: "All", in the label's colours.
  QTest::mouseDClick(label, Qt::LeftButton);
  view.refresh();
  EXPECT_EQ(config.AutomaticLogging, 2);
  EXPECT_EQ(label->text(), "Log ON");
  EXPECT_EQ(label->palette().color(QPalette::Window), QColor(0, 255, 0));
  EXPECT_EQ(saves, 1);
  // A right press pops up the log menu; its "Only Digipeated" entry sets that mode.
  QMenu* menu = view.logMenu();
  ASSERT_NE(menu, nullptr);
  QTest::mousePress(label, Qt::RightButton);
  EXPECT_TRUE(menu->isVisible());
  QAction* digipeated = nullptr;
  for (QAction* a : menu->actions()) {
    if (a->text() == "Only Digipeated") digipeated = a;
  }
  ASSERT_NE(digipeated, nullptr);
  digipeated->trigger();
  menu->hide();
  view.refresh();
  EXPECT_EQ(config.AutomaticLogging, 1);
  EXPECT_EQ(label->text(), "Log ON*");
  EXPECT_TRUE(digipeated->isChecked());
  // The Open entries of the two logs are enabled by their files (none here); any log can be
  // looked for.
  auto* open = view.findChild<QMenu*>(QStringLiteral("mnuOpenLog"));
  ASSERT_NE(open, nullptr);
  ASSERT_EQ(open->actions().size(), 3);
  EXPECT_FALSE(open->actions()[0]->isEnabled());
  EXPECT_TRUE(open->actions()[1]->isEnabled());
  EXPECT_FALSE(open->actions()[2]->isEnabled());
  data.mnuOpenLog[10].enabled = true;
  view.refresh();
  EXPECT_TRUE(open->actions()[0]->isEnabled());
}

}  // namespace
}  // namespace tesk
