// Windows as a whole: opening, closing, modal ones, and how they follow their forms.
#include "ui/desk.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "tests/ui/probe_form.h"

namespace store {
namespace {

/// Counts how many of it are alive.
class CountedForm : public ProbeForm {
 public:
  CountedForm() : ProbeForm("Probe") { ++Alive; }
  ~CountedForm() override { --Alive; }
  static inline int Alive = 0;
};

long Activations(const ProbeForm& form) {
  return std::count(form.Events.begin(), form.Events.end(), "Activate");
}

TEST_F(DeskTest, AModalFormOfItsCallersStack) {
  std::string chosen = "(nothing)";
  QPointer<QWidget> shown;
  WhenModal([&](QWidget& window) {
    shown = &window;
    auto& form = dynamic_cast<ProbeForm&>(dynamic_cast<FormWindow&>(window).ShownForm());
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.Happened("Activate"); }));
    QTest::keyClicks(&Find<QLineEdit>(window, "Text1"), "10006");
    QTest::keyClick(window.focusWidget(), Qt::Key_F9);
  });
  Dispatch([&] {
    ProbeForm lookup;
    lookup.OnCommand1 = [&] {
      chosen = lookup.Text1.Text();
      lookup.Close();
    };
    Host.ShowModal(lookup);
    EXPECT_TRUE(lookup.IsClosed());
    EXPECT_TRUE(shown.isNull()) << "the window must not outlive a form on the stack";
  });
  EXPECT_EQ(chosen, "10006");
}

TEST_F(DeskTest, AModalFormThatClosesItselfAtLoadIsNeverSeen) {
  class EarlyForm : public ProbeForm {
    void Load() override { Close(); }
  } early;
  Dispatch([&] { Host.ShowModal(early); });
  EXPECT_FALSE(early.Happened("Activate"));
  EXPECT_EQ(TheDesk().WindowNamed("Probe"), nullptr);
}

TEST_F(DeskTest, AModalFormThatHidesGivesControlBackAndComesAgainAsItWas) {
  ProbeForm panel;
  const auto typeAndHide = [&](const char* text) {
    WhenModal([&panel, text](QWidget& window) {
      QTest::qWait(50);
      QTest::keyClicks(&Find<QLineEdit>(window, "Text1"), text);
      Dispatch([&panel] { Host.Hide(panel); });
    });
    Dispatch([&] { Host.ShowModal(panel); });
  };
  typeAndHide("10");
  EXPECT_FALSE(panel.IsClosed());
  EXPECT_EQ(panel.Text1.Text(), "10");
  EXPECT_EQ(Activations(panel), 1);
  typeAndHide("006");
  EXPECT_EQ(panel.Text1.Text(), "10006");
  EXPECT_EQ(Activations(panel), 2) << "activated at each showing";
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

// What comes to the front while a long step lets the windows paint may read into the slot that the
// step is walking through.
TEST_F(DeskTest, AWindowThatComesForwardInALongStepWaitsForItsEnd) {
  ProbeForm first;
  ProbeForm second("Second");
  Open(second);
  FormWindow& window = Open(first);
  const long before = Activations(second);
  Dispatch([&] {
    TheDesk().WindowOf(second)->activateWindow();
    for (int i = 0; i < 20; ++i) Host.DoEvents();
    EXPECT_EQ(Activations(second), before);
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return Activations(second) == before + 1; }));
  EXPECT_FALSE(window.isActiveWindow());
}

// A form on its caller's stack is gone when the program ends under it; its window must go with it.
TEST_F(DeskTest, AModalFormUnderWhichTheProgramEndsLeavesNoWindow) {
  WhenModal([](QWidget&) { QApplication::exit(); });
  {
    ProbeForm lookup;
    Dispatch([&] { Host.ShowModal(lookup); });
  }
  EXPECT_EQ(TheDesk().WindowNamed("Probe"), nullptr);
  QTimer::singleShot(0, qApp, [] { QApplication::exit(); });
  QApplication::exec();  // event loops run again from here on
}

TEST_F(DeskTest, QueryUnloadMayRefuseTheSystemsClose) {
  ProbeForm form;
  FormWindow& window = Open(form);
  form.MayClose = false;
  window.close();
  EXPECT_TRUE(form.Happened("QueryUnload"));
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(form.IsClosed());
  form.MayClose = true;
  window.close();
  EXPECT_TRUE(form.Happened("Unload"));
  EXPECT_EQ(TheDesk().WindowOf(form), nullptr);
}

TEST_F(DeskTest, EveryWindowFollowsItsFormAfterAnEventOfAnother) {
  ProbeForm first;
  ProbeForm second("Second");
  FormWindow& behind = Open(first);
  FormWindow& front = Open(second);
  second.OnCommand1 = [&] {
    first.Label1.Caption = "바뀜";
    first.FLEX1.AddItem("새 줄\t5");
  };
  QTest::keyClick(front.focusWidget(), Qt::Key_F9);
  EXPECT_EQ(Find<QLabel>(behind, "Label1").text(), "바뀜");
  EXPECT_EQ(Find<QTableView>(behind, "FLEX1").model()->rowCount(), 1);
}

TEST_F(DeskTest, ARunningEventShowsWhatItDidWhenItLetsEventsRun) {
  ProbeForm form;
  FormWindow& window = Open(form);
  QString shown;
  Dispatch([&] {
    form.Label1.Caption = "읽는 중";
    Host.DoEvents();
    shown = Find<QLabel>(window, "Label1").text();
  });
  EXPECT_EQ(shown, "읽는 중");
}

TEST_F(DeskTest, ActivatedWhenSeenAndWhenComeBackTo) {
  ProbeForm first;
  ProbeForm second("Second");
  FormWindow& window = Open(first);
  EXPECT_EQ(Activations(first), 1);

  WhenModal([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  Dispatch([] { Host.MsgBox("잠깐", box::Information, ""); });
  QTest::qWait(50);
  EXPECT_EQ(Activations(first), 1) << "a box does not leave the window";

  Open(second);
  EXPECT_EQ(Activations(first), 1);
  Host.Show(first);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Activations(first) == 2; }));
  EXPECT_TRUE(window.isActiveWindow());
}

TEST_F(DeskTest, AClosedFormIsFreedWhenItsOwnEventIsOver) {
  RegisterForm("Probe", [] { return std::make_unique<CountedForm>(); });
  auto& form = dynamic_cast<CountedForm&>(*TheForm("Probe"));
  FormWindow& window = Open(form);
  int aliveAfterClose = 0;
  form.OnCommand1 = [&form, &aliveAfterClose] {
    form.Close();
    aliveAfterClose = CountedForm::Alive;
  };
  const QPointer<QWidget> watched = &window;
  Find<QPushButton>(window, "Command1").click();
  EXPECT_EQ(aliveAfterClose, 1) << "its event was still running";
  EXPECT_TRUE(QTest::qWaitFor([] { return CountedForm::Alive == 0; }));
  EXPECT_TRUE(watched.isNull());
}

TEST_F(DeskTest, TheProgramEndsWhenTheRunningEventIsOver) {
  bool wentOn = false;
  QTimer::singleShot(0, qApp, [&] {
    Dispatch([&] {
      Host.EndProgram();
      Host.DoEvents();
      wentOn = true;
    });
  });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(wentOn);
}

TEST_F(DeskTest, HiddenAndSmallWindowsComeBack) {
  ProbeForm form;
  FormWindow& window = Open(form);
  Host.Hide(form);
  EXPECT_FALSE(window.isVisible());
  Host.Show(form);
  EXPECT_TRUE(window.isVisible());
  Host.Minimize(form);
  EXPECT_TRUE(window.isMinimized());
  Host.Show(form);
  EXPECT_FALSE(window.isMinimized());
}

TEST_F(DeskTest, PlacedWhereTheFormSays) {
  class PlacedForm : public ProbeForm {
    void Load() override {
      EXPECT_EQ(Place.Width, 400);
      EXPECT_EQ(Place.Height, 500);
      Place.Left = 37;
      Place.Top = 21;
      Place.Positioned = true;
      Place.OnTop = true;
    }
  } form;
  const FormWindow& window = Open(form);
  EXPECT_EQ(window.pos(), QPoint(37, 21));
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

}  // namespace
}  // namespace store
