// The real loop keeps the timer rules the station's flows depend on, and waits without spinning.
#include "qt/qt_event_loop.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QElapsedTimer>

#include "qt/qt_test_app.h"

namespace tesk {
namespace {

double CpuSeconds() {
  rusage u{};
  getrusage(RUSAGE_SELF, &u);
  return u.ru_utime.tv_sec + u.ru_stime.tv_sec + (u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

class QtEventLoopTest : public ::testing::Test {
 protected:
  void SetUp() override { testing::QtApp(); }
  QtEventLoop loop;
};

TEST_F(QtEventLoopTest, IntervalZeroOrDisabledNeverFiresAndEnablingStartsIt) {
  int zero = 0, off = 0, on = 0;
  auto tZero = loop.createTimer();
  tZero->setHandler([&] { ++zero; });
  tZero->setInterval(0);
  tZero->setEnabled(true);
  auto tOff = loop.createTimer();
  tOff->setHandler([&] { ++off; });
  tOff->setInterval(5);
  tOff->setEnabled(false);
  auto tOn = loop.createTimer();
  tOn->setHandler([&] { ++on; });
  tOn->setInterval(5);
  tOn->setEnabled(true);
  EXPECT_TRUE(loop.waitUntil(5.0, [&] { return on >= 3; }));
  EXPECT_EQ(zero, 0);
  EXPECT_EQ(off, 0);
  tZero->setInterval(5);  // enabled all along: a non-zero interval starts it
  EXPECT_TRUE(loop.waitUntil(5.0, [&] { return zero >= 1; }));
}

TEST_F(QtEventLoopTest, AWaitInsideAHandlerLetsOtherTimersFireButNeverReentersIt) {
  int aCalls = 0, aDepth = 0, aMaxDepth = 0, bCalls = 0, bDuringA = 0;
  auto a = loop.createTimer();
  auto b = loop.createTimer();
  a->setHandler([&] {
    ++aCalls;
    aMaxDepth = std::max(aMaxDepth, ++aDepth);
    if (aCalls == 1) {
      const int before = bCalls;
      loop.waitUntil(5.0, [&] { return bCalls >= before + 4; });
      bDuringA = bCalls - before;
    }
    --aDepth;
  });
  b->setHandler([&] { ++bCalls; });
  a->setInterval(5);
  b->setInterval(5);
  a->setEnabled(true);
  b->setEnabled(true);
  EXPECT_TRUE(loop.waitUntil(10.0, [&] { return aCalls >= 3; }));
  EXPECT_GE(bDuringA, 4);
  EXPECT_EQ(aMaxDepth, 1);
}

TEST_F(QtEventLoopTest, WaitUntilReturnsOnTheConditionAndOnTheDeadlineWithoutSpinning) {
  bool flag = false;
  auto t = loop.createTimer();
  t->setInterval(20);
  t->setHandler([&] { flag = true; });
  t->setEnabled(true);
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(loop.waitUntil(10.0, [&] { return flag; }));
  EXPECT_LT(clock.elapsed(), 2000);
  t->setEnabled(false);

  int polls = 0;
  const double cpu0 = CpuSeconds();
  clock.restart();
  EXPECT_FALSE(loop.waitUntil(0.3, [&] {
    ++polls;
    return false;
  }));
  const qint64 wall = clock.elapsed();
  EXPECT_GE(wall, 295);
  EXPECT_LT(wall, 1500);
  EXPECT_LT(CpuSeconds() - cpu0, 0.1);  // it slept in the event wait, it did not poll
  EXPECT_LT(polls, 20);

  clock.restart();
  EXPECT_FALSE(loop.waitUntil(0.05, {}));  // a plain wait
  EXPECT_GE(clock.elapsed(), 45);
}

TEST_F(QtEventLoopTest, PostRunsLaterFromTheLoopAndATimerMayDeleteItselfInItsHandler) {
  std::vector<int> order;
  loop.post([&] { order.push_back(2); });
  order.push_back(1);
  loop.yield();
  EXPECT_EQ(order, (std::vector<int>{1, 2}));

  std::unique_ptr<Timer> t = loop.createTimer();
  int calls = 0;
  t->setHandler([&] {
    ++calls;
    t.reset();
  });
  t->setInterval(1);
  t->setEnabled(true);
  EXPECT_TRUE(loop.waitUntil(5.0, [&] { return t == nullptr; }));
  loop.waitUntil(0.02, {});
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace tesk
