#include "sim/virtual_clock.h"

#include <gtest/gtest.h>

namespace pawnfield {
namespace {

class VirtualClockTest : public testing::Test {
 protected:
  VirtualClockTest() {
    clock.Attach(form);
    for (Timer* timer : {&a, &b, &c}) timer->OnTimer = [this, timer] { Fired(*timer); };
  }
  void Fired(Timer& timer) {
    log += timer.Name() + "@" + std::to_string(clock.NowMs()) + " ";
    if (extra) extra(timer);
  }

  Form form{"frmClock"};
  Timer a{form, "A", 10}, b{form, "B", 5}, c{form, "C", 10};
  VirtualClock clock;
  std::string log;
  std::function<void(Timer&)> extra;
};

TEST_F(VirtualClockTest, FiresInDueOrderAndEqualTimesInStartOrder) {
  for (Timer* timer : {&c, &a, &b}) timer->Enabled = true;
  clock.Advance(10);
  clock.Advance(9);
  EXPECT_EQ(log, "B@5 C@10 A@10 B@10 B@15 ");
  EXPECT_EQ(clock.NowMs(), 19);
}

TEST_F(VirtualClockTest, RestartsATimerOnlyWhenItIsEnabledAnewOrItsIntervalChanges) {
  a.Enabled = true;
  clock.Advance(6);
  a.Enabled = true;
  a.Interval = 10;
  clock.Advance(10);
  a.Enabled = false;
  a.Enabled = true;
  clock.Advance(9);
  EXPECT_EQ(log, "A@10 ");
  a.Interval = 3;
  clock.Advance(3);
  a.Interval = 0;
  clock.Advance(1000);
  EXPECT_EQ(log, "A@10 A@28 ");
}

TEST_F(VirtualClockTest, FiresWhatIsArmedOnTheWayAndNotWhatIsStopped) {
  a.Enabled = true;
  c.Enabled = true;
  extra = [this](Timer& timer) {
    if (&timer != &a) return;
    a.Enabled = false;
    c.Enabled = false;
    b.Enabled = true;
  };
  clock.Advance(20);
  clock.Detach(form);
  a.Enabled = true;
  clock.Advance(100);
  EXPECT_EQ(log, "A@10 B@15 B@20 ");
}

TEST_F(VirtualClockTest, TimePassesInsideAHandlerThatShowsAModalForm) {
  a.Enabled = true;
  extra = [this](Timer&) {
    a.Enabled = false;
    clock.Advance(50);
  };
  clock.Advance(20);
  EXPECT_EQ(clock.NowMs(), 60);
}

}  // namespace
}  // namespace pawnfield
