// The MHeard side of the main window: the list renders the struct's rows and forwards a double
// click, the counter, the lamps and the digipeat flash follow the struct, and the details
// window renders its visible box. Saves a picture of the side for a person to look at.
#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>

#include "heard/mheard_list.h"
#include "heard/view_heard.h"
#include "platform/sim/sim_platform.h"
#include "qt/qt_test_app.h"
#include "qt/views/main_window_view.h"
#include "qt/views/view_heard_view.h"

namespace tesk {
namespace {

class MHeardViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    run.AppPath = "/nonexistent";
  }
  SimPlatform platform;
  StationConfig config;
  RunState run;
  MainWindow data;
  CommandTable commands;
  MHeardList heard{platform, config, run, data};
  ViewHeard details{platform, config, data, heard};
};

TEST_F(MHeardViewTest, ListCounterLampsAndFlashFollowTheStruct) {
  heard.RegisterCommands(commands);
  MainWindowHandlers handlers;
  handlers.heardList = &heard;
  MainWindowView view(data, &commands, handlers);
  for (const char* call : {"PA3ABC", "DL1XYZ-7", "RS0ISS"})
    heard.AddToMheardList(std::string("Fm ") + call + " To CQ <UI >");
  data.imgTXRXlight[0].visible = true;
  data.imgLogoDigi.visible = true;
  data.LblDigipeatedTot.caption = "3";
  data.LblDigipeatedTot.backColor = RGB(255, 0, 0);
  data.LblDigipeatedTot.foreColor = RGB(255, 255, 255);
  view.refresh();
  auto* list = view.findChild<QListWidget*>("LstMHeardList");
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->count(), 3);
  EXPECT_TRUE(list->item(1)->text().startsWith("DL1XYZ-7 "));
  EXPECT_EQ(view.findChild<QLabel*>("StationTeller")->text(), "3");
  EXPECT_EQ(view.findChild<QLabel*>("LblDigipeatedTot")->text(), "3");
  EXPECT_FALSE(view.findChild<QLabel*>("imgLogoDigi")->isHidden());
  view.resize(1100, 720);
  view.show();
  QCoreApplication::processEvents();
  view.findChild<QWidget*>("FrameMHeard")->grab().save(testing::PictureFile("mheard_side.png"));
  view.grab().save(testing::PictureFile("main_mheard.png"));
  // A whole row fits beside the vertical scroll bar: no horizontal one at the window's size.
  EXPECT_FALSE(list->horizontalScrollBar()->isVisible())
      << "list " << list->width() << " px, row " << list->sizeHintForColumn(0) << " px";

  // A double click on a row: its call goes to For.
  list->setCurrentRow(1);
  EXPECT_EQ(data.LstMHeardList.listIndex, 1);
  emit list->itemDoubleClicked(list->item(1));
  EXPECT_EQ(data.cmbFor.text, "DL1XYZ-7");

  // Sorting from the option; the flash over.
  view.findChild<QRadioButton*>("OptSort")->click();
  EXPECT_TRUE(list->item(0)->text().startsWith("DL1XYZ-7"));
  data.imgLogoDigi.visible = false;
  view.refresh();
  EXPECT_TRUE(view.findChild<QLabel*>("imgLogoDigi")->isHidden());
}

TEST_F(MHeardViewTest, DetailsWindowShowsTheVisibleBox) {
  heard.AddToMheardList("Fm PA3ABC To CQ <UI >");
  heard.AddToMheardList("Fm AA1A To CQ <UI >");
  details.Show();
  ViewHeardView view(details);
  EXPECT_FALSE(view.box(0)->isHidden());
  EXPECT_TRUE(view.box(1)->isHidden());
  ASSERT_EQ(view.box(0)->count(), 2);
  EXPECT_TRUE(view.box(0)->item(0)->text().startsWith("PA3ABC"));
  view.findChild<QRadioButton*>("OptMHSort1")->click();
  EXPECT_TRUE(view.box(0)->isHidden());
  EXPECT_TRUE(view.box(1)->item(0)->text().startsWith("AA1A"));
  EXPECT_EQ(view.findChild<QLabel*>("LblTotalheard")->text(), "2");
}

}  // namespace
}  // namespace tesk
