#include "ui/instance_call.h"

#include <QtTest>

#include "forms/host.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"

namespace store {
namespace {

class InstanceCallTest : public DeskTest {
 protected:
  const QString program_ = QString("/opt/store_%1").arg(QCoreApplication::applicationPid());
};

TEST_F(InstanceCallTest, ASecondStartBringsTheOpenWindowForward) {
  ProbeForm form;
  FormWindow& window = Open(form);
  Host.Minimize(form);
  AnswerCalls(program_, [] { TheDesk().ComeForward(); });
  CallForward(program_ + "_elsewhere");
  QTest::qWait(50);
  EXPECT_TRUE(window.isMinimized()) << "another program's call";
  CallForward(program_);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isMinimized() && window.isActiveWindow(); }));
}

TEST_F(InstanceCallTest, ARunThatCrashedIsNotInTheWay) {
  int calls = 0;
  AnswerCalls(program_, [&] { calls += 100; });
  AnswerCalls(program_, [&] { ++calls; });  // as the next run does, whose predecessor left a socket
  CallForward(program_);
  CallForward(program_);
  EXPECT_TRUE(QTest::qWaitFor([&] { return calls == 2; })) << calls;
  AnswerCalls(program_, [] {});
}

}  // namespace
}  // namespace store
