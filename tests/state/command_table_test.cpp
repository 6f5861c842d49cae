// The command table: each command once, the enabled rule read before every run, and the
// station's console, menu rows and buttons all reaching the same handlers through it.
#include <gtest/gtest.h>

#include <set>

#include "main/station_parts.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

TEST(CommandTable, ACommandIsRegisteredOnceAndAnUnbuiltOneIsFilledOnce) {
  CommandTable table;
  int runs = 0;
  CommandSpec desc;
  desc.key = {Command::cmdFind};
  desc.handler = [&runs](const std::string&) { ++runs; };
  EXPECT_TRUE(table.add(desc));
  EXPECT_FALSE(table.add(desc));  // a second registration is refused
  MenuItem row;
  EXPECT_TRUE(table.addUnbuilt({Command::menufiles, 40}, "Save As &Report...", &row));
  EXPECT_FALSE(table.enabled({Command::menufiles, 40}));
  EXPECT_FALSE(table.run({Command::menufiles, 40}));
  CommandSpec report;
  report.key = {Command::menufiles, 40};
  report.handler = [&runs](const std::string&) { runs += 10; };
  EXPECT_TRUE(table.add(report));  // the subsystem that builds it fills it
  EXPECT_FALSE(table.add(report));
  EXPECT_EQ(table.find({Command::menufiles, 40})->caption, "Save As &Report...");
  EXPECT_EQ(table.find({Command::menufiles, 40})->item, &row);
  EXPECT_TRUE(table.run({Command::menufiles, 40}));
  EXPECT_TRUE(table.run({Command::cmdFind}));
  EXPECT_EQ(runs, 11);
  // A row's rule is its flags: disabled or hidden, it does not run.
  MenuArray rows;
  table.addRow(Command::menufilters, rows, 3, "x", [&runs](int i) { runs += i; });
  rows[3].enabled = false;
  EXPECT_FALSE(table.run({Command::menufilters, 3}));
  rows[3].enabled = true;
  rows[3].visible = false;
  EXPECT_FALSE(table.run({Command::menufilters, 3}));
  rows[3].visible = true;
  EXPECT_TRUE(table.run({Command::menufilters, 3}));
  EXPECT_EQ(runs, 14);
}

TEST_F(SendTest, TheStationRegistersEachCommandOnceWithItsConsoleForms) {
  startLan();
  CommandTable& table = station->commands();
  // Registering every part again into the same table adds nothing: each key is taken.
  const std::size_t before = table.keys().size();
  StationParts& p = station->parts();
  p.monitor.RegisterCommands(table);
  p.heardReports.RegisterCommands(table);
  p.txPanel.RegisterCommands(table);
  p.ports.RegisterCommands(table);
  EXPECT_EQ(table.keys().size(), before);
  EXPECT_EQ(table.consoleUsages(),
            (std::vector<std::string>{
                ":aprs [COMMENT]",
                ":beacon [toggle | NAME=VALUE ... BUTTON ...]",
                ":clearmessages",
                ":clearsent",
                ":for CALL",
                ":header",
                ":heard [0-3]",
                ":locator LOC [ICON] [compressed|plain]",
                ":messages [0-5]",
                ":msg [TEXT]",
                ":multiline [1-3 | default 1-3]",
                ":position LATD LATM LATS N|S LOND LONM LONS E|W [ICON] [compressed|plain]",
                ":quit",
                ":report save|mail",
                ":savemessages",
                ":sent",
                ":setup [NAME=VALUE ...] [BUTTON ...] | reset | totalreset | history to|via|for",
                ":stats",
                ":stoppending",
                ":to CALL",
                ":via PATH",
                ":wizard"}));
  // The senders still to be built show grey and never run; so does the position's while no
  // position is set up.
  for (Command c : {Command::cmdTXAPRS, Command::cmdTXConnect})
    EXPECT_FALSE(table.enabled({c}));
  EXPECT_FALSE(table.enabled({Command::menusends, 2}));
  EXPECT_TRUE(table.enabled({Command::menusends, 1}));
}

TEST_F(SendTest, ConsoleMenuRowAndButtonReachTheSameHandlerAndADisabledOneNone) {
  startLan();
  station->consoleLine(":to CQ");
  station->config().TXMHeardType = 0;  // the button sends the setup's type
  main().LstMHeardList.list = {"PA3ABC               22-11-2026 12:00:00"};
  CommandTable& table = station->commands();
  station->consoleLine(":heard 0");                      // the console
  EXPECT_TRUE(table.run({Command::menumheardsend, 0}));  // the button's popup menu
  EXPECT_TRUE(table.run({Command::menuheardsend, 0}));   // the send menu's copy
  station->parts().txPanel.Press(SendButton::MHeard);    // the button, type 0 checked now
  auto got = sent();
  ASSERT_EQ(got.size(), 4u);
  for (const auto& frame : got)
    EXPECT_EQ(frame.text, ":Heard    :PA3ABC{TESK54}");
  // Disabled, the report goes from none of them.
  main().cmdTXMHeard.enabled = false;
  main().menumheardsend[0].enabled = false;
  const std::size_t notices = platform.simViews.notices.size();
  station->consoleLine(":heard");
  EXPECT_FALSE(table.run({Command::menumheardsend, 0}));
  station->parts().txPanel.Press(SendButton::MHeard);
  EXPECT_EQ(sent().size(), 4u);
  ASSERT_EQ(platform.simViews.notices.size(), notices + 1);
  EXPECT_EQ(platform.simViews.notices.back(), "Not available now: :heard");
}

}  // namespace
}  // namespace tesk::testing
