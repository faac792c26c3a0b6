// The timers of a form.
#include <QtTest>

#include "tests/ui/probe_form.h"
#include "ui/desk.h"

namespace store {
namespace {

class TimerBindingTest : public DeskTest {};

TEST_F(TimerBindingTest, ATimerRunsWhileItIsEnabledAndHasAnInterval) {
  ProbeForm form;
  Open(form);
  const auto fired = [&] { return std::count(form.Events.begin(), form.Events.end(), "Timer1"); };
  Dispatch([&] { form.Timer1.Enabled = true; });
  QTest::qWait(30);
  EXPECT_EQ(fired(), 0) << "no interval";
  Dispatch([&] { form.Timer1.Interval = 5; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return fired() > 0; }));
  QTest::qWait(30);
  EXPECT_EQ(fired(), 1) << "the form switched it off at its first tick";
}

TEST_F(TimerBindingTest, ARestartCountsAnew) {
  ProbeForm form;
  Open(form);
  Dispatch([&] {
    form.Timer1.Interval = 400;
    form.Timer1.Restart();
  });
  auto* clock = TheDesk().WindowOf(form)->findChild<QTimer*>();
  QTest::qWait(50);
  const int before = clock->remainingTime();
  Dispatch([&] { form.Timer1.Restart(); });
  EXPECT_GT(clock->remainingTime(), before);
}

TEST_F(TimerBindingTest, ATimerOfAClosedFormFiresNoMore) {
  ProbeForm form;
  Open(form);
  Dispatch([&] {
    form.Timer1.Interval = 5;
    form.Timer1.Enabled = true;
    form.Close();
  });
  QTest::qWait(30);
  EXPECT_FALSE(form.Happened("Timer1"));
}

}  // namespace
}  // namespace store
