// The virtual-time loop keeps the rules the station's flows depend on.
#include "platform/sim/sim_loop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tesk {
namespace {

TEST(SimLoop, WaitInsideHandlerLetsOtherTimersFireInTimeOrder) {
  SimLoop loop;
  std::vector<std::string> log;
  auto slow = loop.createTimer();
  auto fast = loop.createTimer();
  auto mid = loop.createTimer();
  slow->setInterval(1000);
  fast->setInterval(100);
  mid->setInterval(250);
  slow->setHandler([&] {
    log.push_back("slow-in@" + std::to_string(loop.nowUs() / 1000));
    loop.waitUntil(0.3, {});
    log.push_back("slow-out@" + std::to_string(loop.nowUs() / 1000));
    slow->setEnabled(false);
  });
  fast->setHandler([&] {
    log.push_back("fast@" + std::to_string(loop.nowUs() / 1000));
    if (loop.nowUs() >= 1200000) fast->setEnabled(false);
  });
  mid->setHandler([&] {
    log.push_back("mid@" + std::to_string(loop.nowUs() / 1000));
    mid->setEnabled(false);
  });
  slow->setEnabled(true);
  fast->setEnabled(true);
  mid->setEnabled(true);
  loop.run(1.25);
  const std::vector<std::string> expected{"fast@100",  "fast@200",  "mid@250",      "fast@300",
                                          "fast@400",  "fast@500",  "fast@600",     "fast@700",
                                          "fast@800",  "fast@900",  "slow-in@1000", "fast@1000",
                                          "fast@1100", "fast@1200", "slow-out@1300"};
  EXPECT_EQ(log, expected);
  EXPECT_EQ(loop.nowUs(), 1300000);  // the inner wait ran past the outer deadline
}

TEST(SimLoop, HandlerIsNotEnteredAgainWhileItRuns) {
  SimLoop loop;
  auto t = loop.createTimer();
  int depth = 0, maxDepth = 0, calls = 0;
  t->setInterval(100);
  t->setHandler([&] {
    ++calls;
    maxDepth = std::max(maxDepth, ++depth);
    loop.waitUntil(0.35, {});  // three of its own ticks pass meanwhile
    --depth;
  });
  t->setEnabled(true);
  loop.run(1.0);
  EXPECT_EQ(maxDepth, 1);
  // Fires at 0.1, 0.55, 1.0: missed ticks are dropped, not queued.
  EXPECT_EQ(calls, 3);
}

TEST(SimLoop, IntervalZeroDisablesAndTimeMovesOnlyByWaits) {
  SimLoop loop;
  auto t = loop.createTimer();
  int calls = 0;
  t->setHandler([&] { ++calls; });
  t->setEnabled(true);  // interval 0: disabled whatever enabled says
  loop.run(5);
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(loop.nowUs(), 5000000);
  t->setInterval(1000);
  loop.yield();  // a yield runs what is due now and does not move time
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(loop.nowUs(), 5000000);
  loop.run(2.5);
  EXPECT_EQ(calls, 2);
  loop.sleepMs(500);  // a sleep moves time but runs nothing
  EXPECT_EQ(calls, 2);
  loop.yield();
  EXPECT_EQ(calls, 3);  // the tick due at 8.0 s was passed by the sleep and runs now
}

TEST(SimLoop, EndNowStopsLaterHandlersAndWaits) {
  SimLoop loop;
  auto t = loop.createTimer();
  int calls = 0;
  bool after = false;
  t->setInterval(100);
  t->setHandler([&] { ++calls; });
  t->setEnabled(true);
  loop.schedule(0.25, [&] { loop.endNow(3); });
  loop.schedule(0.5, [&] { after = true; });
  loop.run(1.0);
  EXPECT_TRUE(loop.ended());
  EXPECT_EQ(loop.exitCode(), 3);
  EXPECT_EQ(calls, 2);
  EXPECT_FALSE(after);
  EXPECT_FALSE(loop.waitUntil(1.0, [] { return true; }));
}

TEST(SimLoop, WaitReturnsWhenConditionHolds) {
  SimLoop loop;
  bool flag = false;
  loop.schedule(0.2, [&] { flag = true; });
  EXPECT_TRUE(loop.waitUntil(10, [&] { return flag; }));
  EXPECT_EQ(loop.nowUs(), 200000);
  EXPECT_FALSE(loop.waitUntil(1, [] { return false; }));
  EXPECT_EQ(loop.nowUs(), 1200000);
}

}  // namespace
}  // namespace tesk
