#include "platform/sim/virtual_clock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace pawnfield {
namespace {

using testing::ElementsAre;

struct ClockForm : Form {
  ClockForm() : Form("frmClock") {
    for (Timer* timer : {&tmrA, &tmrB, &tmrC}) timer->OnTimer = [this, timer] { Fired(*timer); };
  }
  void Fired(Timer& timer) {
    log.push_back(timer.Name() + "@" + std::to_string(clock.NowMs()));
    if (extra) extra(timer);
  }

  Timer tmrA{*this, "A", 10};
  Timer tmrB{*this, "B", 5};
  Timer tmrC{*this, "C", 10};
  VirtualClock clock;
  std::vector<std::string> log;
  std::function<void(Timer&)> extra;
};

TEST(VirtualClock, FiresInDueOrderAndEqualTimesInStartOrder) {
  ClockForm form;
  form.clock.Attach(form);
  form.tmrC.Enabled = true;
  form.tmrA.Enabled = true;
  form.tmrB.Enabled = true;
  form.clock.Advance(10);
  EXPECT_THAT(form.log, ElementsAre("B@5", "C@10", "A@10", "B@10"));
  form.clock.Advance(9);
  EXPECT_EQ(form.log.size(), 5u);
  EXPECT_EQ(form.clock.NowMs(), 19);
}

TEST(VirtualClock, RestartsATimerOnlyWhenItIsEnabledAnewOrItsIntervalChanges) {
  ClockForm form;
  form.clock.Attach(form);
  form.tmrA.Enabled = true;
  form.clock.Advance(6);
  form.tmrA.Enabled = true;
  form.tmrA.Interval = 10;
  form.clock.Advance(4);
  EXPECT_THAT(form.log, ElementsAre("A@10"));
  form.clock.Advance(6);
  form.tmrA.Enabled = false;
  form.tmrA.Enabled = true;
  form.clock.Advance(9);
  EXPECT_EQ(form.log.size(), 1u);
  form.tmrA.Interval = 3;
  form.clock.Advance(3);
  EXPECT_THAT(form.log, ElementsAre("A@10", "A@28"));
  form.tmrA.Interval = 0;
  form.clock.Advance(1000);
  EXPECT_EQ(form.log.size(), 2u);
}

TEST(VirtualClock, FiresWhatIsArmedOnTheWayAndNotWhatIsStopped) {
  ClockForm form;
  form.clock.Attach(form);
  form.tmrA.Enabled = true;
  form.tmrC.Enabled = true;
  form.extra = [&form](Timer& timer) {
    if (&timer != &form.tmrA) return;
    form.tmrA.Enabled = false;
    form.tmrC.Enabled = false;
    form.tmrB.Enabled = true;
  };
  form.clock.Advance(20);
  EXPECT_THAT(form.log, ElementsAre("A@10", "B@15", "B@20"));
  form.clock.Detach(form);
  form.tmrA.Enabled = true;
  form.clock.Advance(100);
  EXPECT_EQ(form.log.size(), 3u);
}

TEST(VirtualClock, TimePassesInsideAHandlerThatShowsAModalForm) {
  ClockForm form;
  form.clock.Attach(form);
  form.tmrA.Enabled = true;
  form.extra = [&form](Timer&) {
    form.tmrA.Enabled = false;
    form.clock.Advance(50);
  };
  form.clock.Advance(20);
  EXPECT_EQ(form.clock.NowMs(), 60);
}

}  // namespace
}  // namespace pawnfield
