// What the form shows, and its timers.
#include <QLabel>
#include <QProgressBar>
#include <QtTest>

#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/key_button.h"
#include "ui/qt_text.h"

namespace store {
namespace {

class ShowBindingTest : public DeskTest {};

TEST_F(ShowBindingTest, LabelsButtonsAndPanes) {
  ProbeForm form;
  FormWindow& window = Open(form);
  auto& label = Find<QLabel>(window, "Label1");
  Dispatch([&] {
    form.Label1.Caption = "첫 줄\r<b>둘째 줄";
    form.Label1.ToolTipText = "도움말";
    form.Command1.Enabled = false;
    form.ProgressBar1.Max = 40;
    form.ProgressBar1.Value = 10;
    form.Caption = "새 제목";
  });
  EXPECT_EQ(label.text(), "첫 줄\n<b>둘째 줄");
  EXPECT_EQ(label.toolTip(), "도움말");
  EXPECT_EQ(window.windowTitle(), "새 제목");
  EXPECT_EQ(Find<KeyButton>(window, "Command1").text(), "저장");
  EXPECT_FALSE(Find<KeyButton>(window, "Command1").isEnabled());
  EXPECT_EQ(Find<QProgressBar>(window, "ProgressBar1").value(), 10);
  EXPECT_EQ(Find<QProgressBar>(window, "ProgressBar1").maximum(), 40);
  Dispatch([&] { form.Label1.Visible = false; });
  EXPECT_FALSE(label.isVisible());
}

TEST_F(ShowBindingTest, ATimerRunsWhileItIsEnabledAndHasAnInterval) {
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

TEST_F(ShowBindingTest, ATimerOfAClosedFormFiresNoMore) {
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
