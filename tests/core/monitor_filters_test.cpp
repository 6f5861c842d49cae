// The Monitor filter: each way of the menu to set it, the refused and the empty input, the
// label, the match rule on the header only, the save and the restore at start-up, and a frame
// the filter drops that still raises its alarm.
#include <gtest/gtest.h>

#include "core/core_fixture.h"

namespace tesk::testing {
namespace {

const std::string kMarked = "Fm XX9TK To CQ Via RS0ISS* <UI pid=F0 Len=4 >[12:00:00]";
const std::string kUnmarked = "Fm XX9TK To CQ Via RS0ISS,ARISS <UI pid=F0 Len=4 >[12:00:00]";

class MonitorFiltersTest : public CoreTest {
 protected:
  void SetUp() override { make("/LAN"); }
  MonitorFilters& filters() { return parts().filters; }
  MenuArray& menu() { return main().menufilters; }
  SimDialogs& dialogs() { return platform.simDialogs; }
  // The items of 0 to 5 that are checked, as a text such as "3".
  std::string checked() {
    std::string out;
    for (int i = 0; i <= 5; ++i)
      if (menu()[i].checked) out += std::to_string(i);
    return out;
  }
  void typeFilter(const std::string& text) {
    dialogs().answers = {text};
    filters().menufilters_Click(5);
  }
};

TEST_F(MonitorFiltersTest, NoFilterAtStartPassesEverything) {
  EXPECT_EQ(checked(), "0");
  EXPECT_EQ(main().lblMonitorFilter.caption, "No Filter");
  EXPECT_EQ(main().lblMonitorFilter.toolTip,
            "Selected Filter (show only data from specified Filter)");
  EXPECT_TRUE(filters().FilterPasses(""));
  EXPECT_TRUE(filters().FilterPasses(kUnmarked));
}

TEST_F(MonitorFiltersTest, ToViaAndDigipeatedItems) {
  main().cmbToCall.text = " cq ";
  filters().menufilters_Click(1);
  EXPECT_EQ(checked(), "1");
  EXPECT_EQ(filters().filterText(), "CQ");
  EXPECT_EQ(main().lblMonitorFilter.caption, "CQ");
  EXPECT_EQ(main().lblMonitorFilter.backColor, QBColor(10));
  EXPECT_EQ(main().lblMonitorFilter.foreColor, QBColor(1));
  EXPECT_TRUE(filters().FilterPasses(kMarked));
  EXPECT_FALSE(filters().FilterPasses("Fm XX9TK To cq"));  // the header as received: case counts

  // An empty To field leaves nothing checked; the old text goes on applying.
  main().cmbToCall.text = "";
  filters().menufilters_Click(1);
  EXPECT_EQ(checked(), "");
  EXPECT_EQ(filters().filterText(), "CQ");
  EXPECT_EQ(main().lblMonitorFilter.caption, "CQ");
  EXPECT_TRUE(filters().FilterPasses(kMarked));
  EXPECT_FALSE(filters().FilterPasses("Fm XX9TK To APRS"));

  main().cmbViaCall.text = "ariss";
  filters().menufilters_Click(2);
  EXPECT_EQ(checked(), "2");
  EXPECT_TRUE(filters().FilterPasses(kUnmarked));
  EXPECT_FALSE(filters().FilterPasses(kMarked));

  filters().menufilters_Click(3);
  EXPECT_EQ(checked(), "3");
  EXPECT_EQ(filters().filterText(), "*");
  EXPECT_EQ(main().lblMonitorFilter.caption, "Digipeated");
  EXPECT_TRUE(filters().FilterPasses(kMarked));
  EXPECT_FALSE(filters().FilterPasses(kUnmarked));

  filters().menufilters_Click(0);
  EXPECT_EQ(checked(), "0");
  EXPECT_EQ(filters().filterText(), "");
  EXPECT_EQ(main().lblMonitorFilter.caption, "No Filter");
  EXPECT_EQ(main().lblMonitorFilter.backColor, static_cast<Color>(0x8000000F));
}

TEST_F(MonitorFiltersTest, TypedFilterOf40IsTakenAnd41Refused) {
  typeFilter("  rs0iss* ");
  const ShownBox& box = dialogs().shown.back();
  EXPECT_EQ(box.title, "Filter Callsign/String");
  EXPECT_EQ(box.text,
            "Type the call or any header string that you\rwant to monitor the traffic from.\r"
            "This can be one word or a piece of a word in the header! Note: multiple call signs "
            "can not be used.\rExamples:\rRS0ISS*, CQ, GATE, XX9TK, APRS, ID, BEACON...\r\r"
            "Enter the callsign or string:");
  EXPECT_EQ(checked(), "5");
  EXPECT_EQ(filters().filterText(), "RS0ISS*");
  EXPECT_EQ(main().lblMonitorFilter.caption, "RS0ISS*");
  // Only a header where the call carries the mark passes; the data is never looked at.
  EXPECT_TRUE(filters().FilterPasses(kMarked));
  EXPECT_FALSE(filters().FilterPasses(kUnmarked));
  EXPECT_FALSE(filters().FilterPasses("Fm RS0ISS-1* To CQ"));

  const std::string forty(40, 'A');
  typeFilter(forty);
  EXPECT_EQ(filters().filterText(), forty);
  EXPECT_EQ(filters().filterIndex(), 5);

  main().cmbToCall.text = "CQ";
  filters().menufilters_Click(1);
  typeFilter(forty + "B");
  EXPECT_EQ(dialogs().shown.back().title, "Filter");
  EXPECT_EQ(dialogs().shown.back().text, "Search string to long. Maximum 40 characters");
  EXPECT_EQ(checked(), "");  // the menu unchecked, the old text in force, the index kept
  EXPECT_EQ(filters().filterText(), "CQ");
  EXPECT_EQ(filters().filterIndex(), 1);
  EXPECT_TRUE(filters().FilterPasses("Fm X To CQ"));

  // The box offers the filter in force; an empty answer changes nothing more.
  dialogs().answers = {};
  filters().menufilters_Click(5);
  EXPECT_EQ(dialogs().shown.back().answer, "CQ");
  EXPECT_EQ(checked(), "5");
  typeFilter("");
  EXPECT_EQ(checked(), "");
  EXPECT_EQ(filters().filterText(), "CQ");
}

TEST_F(MonitorFiltersTest, SavedFilterIsRestoredAtStartUp) {
  station->run().AppPath = home.path();
  station->run().SettingsPath = home.file("tesk.ini");
  config().YourCallSign = "XX9TK";
  typeFilter("iss");
  filters().menufilters_Click(15);
  EXPECT_EQ(config().Filter, 5);
  EXPECT_EQ(config().FilterCall, "ISS");
  parts().settings.SaveSettings();
  filters().menufilters_Click(0);  // changed but not saved
  parts().settings.LoadSettings();
  EXPECT_EQ(checked(), "5");
  EXPECT_EQ(filters().filterText(), "ISS");
  EXPECT_EQ(main().lblMonitorFilter.caption, "ISS");

  // A saved index 5 with an empty text: restored as it stands, so nothing passes.
  config().Filter = 5;
  config().FilterCall = "";
  parts().settings.SaveSettings();
  parts().settings.LoadSettings();
  EXPECT_EQ(checked(), "5");
  EXPECT_FALSE(filters().FilterPasses(kMarked));

  // The other indices go through the menu, with the To field the settings just filled.
  config().Filter = 1;
  config().ToCall = "APRS";
  parts().settings.SaveSettings();
  parts().settings.LoadSettings();
  EXPECT_EQ(checked(), "1");
  EXPECT_EQ(filters().filterText(), "APRS");
}

TEST_F(MonitorFiltersTest, AFilteredFrameIsNotShownButStillAlarms) {
  startLan();
  config().AlarmSet = 1;
  config().AlarmSetHeaderText = "pa3abc";
  typeFilter("NOMATCH");
  record();
  feed(EngineText("hello\r"));
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(count("AddToMheardList"), 0);
  EXPECT_EQ(count("LogDigi"), 0);
  EXPECT_EQ(count("PlayAlarm(1)"), 1) << hands().joined();
  typeFilter("PA3ABC");
  feed(EngineText("hello again\r"));
  EXPECT_NE(shown().find("hello again"), std::string::npos);
}

}  // namespace
}  // namespace tesk::testing
