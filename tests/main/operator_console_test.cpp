// The operator console of a station without windows: lines become what the same keys do in
// the window, and a command it does not know is refused in one line without a transmission.
#include <gtest/gtest.h>

#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

using OperatorConsoleTest = SendTest;

TEST_F(OperatorConsoleTest, LinesSetThePathAndSendTextHeaderAndHeardReports) {
  startLan();
  station->consoleLine(":to cq");
  station->consoleLine(":VIA  ariss ");
  station->consoleLine("Hello from the console\r");
  station->consoleLine(":header");
  main().LstMHeardList.list = {"PA3ABC               22-11-2026 12:00:00"};
  station->consoleLine(":heard");
  station->consoleLine(":heard 0");
  const auto got = sent();
  ASSERT_EQ(got.size(), 4u);
  EXPECT_EQ(got[0].to, "CQ");
  EXPECT_EQ(got[0].via, std::vector<std::string>{"ARISS"});
  EXPECT_EQ(got[0].text, "Hello from the console");
  EXPECT_EQ(got[1].text, "");
  EXPECT_EQ(got[2].text, ":BLNQSL1/1:PA3ABC{TESK54}");
  EXPECT_EQ(got[3].text, ":Heard    :PA3ABC{TESK54}");
  EXPECT_EQ(main().cmbDataText.list.back(), "Hello from the console");
  const auto& via = main().cmbViaCall.list;
  EXPECT_NE(std::find(via.begin(), via.end(), "ARISS"), via.end());
  const auto& notices = platform.simViews.notices;
  EXPECT_NE(std::find(notices.begin(), notices.end(), "Path: To CQ Via ARISS"), notices.end());
}

TEST_F(OperatorConsoleTest, UnknownCommandsAndBadArgumentsNeverTransmit) {
  startLan();
  station->consoleLine(":to CQ");
  const std::size_t noticesBefore = platform.simViews.notices.size();
  for (const char* line : {":bogus", ":", ":heard 7", ":heard x"})
    station->consoleLine(line);
  EXPECT_TRUE(sent().empty());
  const auto& notices = platform.simViews.notices;
  ASSERT_EQ(notices.size(), noticesBefore + 4);
  EXPECT_EQ(notices[noticesBefore].rfind("Unknown console command: :bogus (commands: ", 0), 0u)
      << notices[noticesBefore];
  EXPECT_EQ(notices[noticesBefore + 2], "The heard report type is 0 to 3, not: 7");
  station->consoleLine(":quit");
  EXPECT_TRUE(platform.simLoop.ended());
}

}  // namespace
}  // namespace tesk::testing
