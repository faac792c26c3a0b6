// Keys and clicks that come while the program waits for the data server.
#include "ui/server_wait.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

#include "forms/host.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/server_lamp.h"

namespace store {
namespace {

using namespace std::chrono_literals;

class ServerWaitTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    window_ = &Open(form_);
    Host.Beep = [this] { ++beeps_; };
    form_.OnKeyDown = [this](Key key) {
      if (key == Key::Enter) done_ += "[" + form_.Text1.Text() + "]";
      return key == Key::Enter;
    };
    form_.OnCommand1 = [this] { done_ += "save "; };
    form_.Option1[0].Click = [this] { done_ += "option "; };
    Focus("Text1");
  }
  void Focus(const char* name) { Find<QWidget>(*window_, name).setFocus(); }

  /// As the window system brings it: to the window, not to a widget.
  void Tap(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      qt_handleKeyEvent(window_->windowHandle(), type, key, modifiers, text);
    }
  }
  void Scan(const QString& code) {
    for (const QChar letter : code) Tap(letter.toUpper().unicode(), letter);
    Tap(Qt::Key_Return, "\r");
  }
  void Click(const char* name) {
    const auto& widget = Find<QWidget>(*window_, name);
    const QPointF place = widget.mapTo(window_, QPoint(8, widget.height() / 2));
    const QPointF onScreen = window_->mapToGlobal(place);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const bool down = type == QEvent::MouseButtonPress;
      qt_handleMouseEvent(window_->windowHandle(), place, onScreen,
                          down ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type, {}, 0);
    }
  }
  /// An event of the form with one call in it, during which `hands` do something. It reaches the
  /// program when that next looks for events.
  void Call(ServerLink end, std::chrono::milliseconds lasted, const std::function<void()>& hands) {
    done_.clear();
    beeps_ = 0;
    Dispatch([&] {
      Host.ShowServer(ServerLink::Waiting, lasted);
      QTimer::singleShot(0, window_, hands);
      Host.ShowServer(end, lasted);
      EXPECT_EQ(done_, "") << "nothing is carried out within the event";
    });
    QTest::qWait(5);
  }

  ProbeForm form_;
  FormWindow* window_ = nullptr;
  std::string done_;
  int beeps_ = 0;
};

TEST_F(ServerWaitTest, WhatDoesSomethingIsThrownAwayAfterALongWaitAlone) {
  const auto hands = [this] {
    Click("Command1");
    Tap(Qt::Key_F9);
    Tap(Qt::Key_Return, "\r");
    Tap(Qt::Key_1, "1", Qt::AltModifier);
    Click("Option1_0");
  };
  Call(ServerLink::Connected, 200ms, hands);
  EXPECT_NE(done_.find("save save "), std::string::npos) << done_;
  EXPECT_NE(done_.find("option "), std::string::npos) << done_;
  EXPECT_EQ(beeps_, 0);
  for (const ServerLink end : {ServerLink::Connected, ServerLink::Lost}) {
    Call(end, 1500ms, hands);
    EXPECT_EQ(done_, "");
    EXPECT_EQ(beeps_, 1) << "and it is heard";
    EXPECT_FALSE(Find<QPushButton>(*window_, "Command1").isDown());
  }
  // Afterwards everything works as before.
  Click("Command1");
  QTest::qWait(1);
  EXPECT_EQ(done_, "save ");
}

TEST_F(ServerWaitTest, ManyShortCallsOfOneEventAreOneWait) {
  done_.clear();
  Dispatch([this] {
    for (int call = 0; call < 10; ++call) Host.ShowServer(ServerLink::Connected, 150ms);
    QTimer::singleShot(0, window_, [this] { Click("Command1"); });
    Host.ShowServer(ServerLink::Connected, 150ms);
  });
  Dispatch([this] {
    QTimer::singleShot(0, window_, [this] { Click("Option1_0"); });
    Host.ShowServer(ServerLink::Connected, 150ms);
  });
  QTest::qWait(5);
  EXPECT_EQ(done_, "option ");
}

TEST_F(ServerWaitTest, AScannersCodesAreNotLostUnlessTheCallWas) {
  const struct {
    ServerLink end;
    std::chrono::milliseconds lasted;
    const char* done;
  } cases[] = {{ServerLink::Connected, 50ms, "[8801][88018802]"},
               {ServerLink::Connected, 1500ms, "[8801][88018802]"},
               {ServerLink::Lost, 5000ms, ""}};
  for (const auto& c : cases) {
    Dispatch([this] { form_.Text1.SetText(""); });
    Call(c.end, c.lasted, [this] {
      Scan("8801");
      Scan("8802");
    });
    EXPECT_EQ(done_, c.done);
  }
}

TEST_F(ServerWaitTest, TextGoesOnWithTheKeyboardInATextAlone) {
  const auto hands = [this] { Scan("8801"); };
  Focus("Check1");
  Call(ServerLink::Connected, 1500ms, hands);
  EXPECT_EQ(form_.Text1.Text(), "");
  Focus("Text1");
  Call(ServerLink::Connected, 1500ms, [this] {
    Scan("88");
    Focus("Check1");  // the event has led somewhere else
  });
  EXPECT_EQ(form_.Text1.Text() + done_, "");
}

TEST_F(ServerWaitTest, WithinACallNoTimerOfAFormFiresAndTheWindowsPaint) {
  int ticks = 0;
  form_.Timer1.Tick = [&] { ++ticks; };
  Dispatch([this] {
    form_.Timer1.Interval = 1;
    form_.Timer1.Enabled = true;
  });
  Dispatch([&] {
    for (int round = 0; round < 5; ++round) {
      QThread::msleep(2);
      Host.ShowServer(ServerLink::Waiting, 300ms);
    }
    EXPECT_EQ(ticks, 0);
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }));
}

TEST_F(ServerWaitTest, EscStopsAReadThatMayBeStoppedAndDoesNothingElse) {
  form_.OnKeyDown = [this](Key key) {
    if (key == Key::Escape) done_ += "closed ";
    return key == Key::Escape;
  };
  const auto remark = [this] { return Find<QLabel>(*window_, "WaitingRemark").text(); };
  Dispatch([&] {
    EXPECT_FALSE(Host.OfferStop(300ms));
    EXPECT_EQ(window_->findChild<QFrame*>("WaitPanel"), nullptr) << "a short wait goes unnoticed";
    EXPECT_FALSE(Host.OfferStop(1200ms));
    EXPECT_TRUE(remark().contains("Esc 중지"));
    QTimer::singleShot(0, window_, [this] {
      Scan("8801");
      Tap(Qt::Key_Escape, "\x1b");
    });
    EXPECT_TRUE(Host.OfferStop(1250ms));
    Host.ShowServer(ServerLink::Stopped, 1300ms);
  });
  EXPECT_EQ(TheDesk().Server().Link(), ServerLink::Connected) << "as it was known before";
  EXPECT_EQ(window_->findChild<QFrame*>("WaitPanel"), nullptr);
  Tap(Qt::Key_Escape, "\x1b");  // an impatient one more
  QTest::qWait(5);
  EXPECT_EQ(done_, "");
  EXPECT_EQ(form_.Text1.Text(), "") << "it was for a list that has not come";
}

TEST_F(ServerWaitTest, AWaitThatMustNotBeStoppedOffersNothing) {
  Dispatch([&] {
    Host.ShowServer(ServerLink::Waiting, 1200ms);
    EXPECT_EQ(Find<QLabel>(*window_, "WaitingRemark").text(), "1초");
    Host.ShowServer(ServerLink::Connected, 1250ms);
  });
  EXPECT_EQ(window_->findChild<QFrame*>("WaitPanel"), nullptr);
}

TEST_F(ServerWaitTest, ATextIsKeptWhileAStopIsOfferedAndNobodyTakesIt) {
  Dispatch([&] {
    EXPECT_FALSE(Host.OfferStop(1200ms));
    QTimer::singleShot(0, window_, [this] { Scan("8801"); });
    EXPECT_FALSE(Host.OfferStop(1250ms));
    EXPECT_EQ(done_, "");
    Host.ShowServer(ServerLink::Connected, 1300ms);
  });
  QTest::qWait(5);
  EXPECT_EQ(done_, "[8801]");
}

TEST_F(ServerWaitTest, CountedWorkShowsHowFarItHasCome) {
  Dispatch([&] {
    Host.ShowProgress("전표를 만드는 중입니다.", 3, 12);
    EXPECT_EQ(Find<QLabel>(*window_, "WaitingRemark").text(), "3 / 12");
    EXPECT_EQ(Find<QProgressBar>(*window_, "WaitingBar").value(), 3);
    Host.ShowProgress("", 12, 0);
  });
  EXPECT_EQ(window_->findChild<QFrame*>("WaitPanel"), nullptr);
}

TEST_F(ServerWaitTest, TheLampSaysHowTheServerStandsWhileTheCallRuns) {
  ServerLamp lamp;
  lamp.resize(lamp.sizeHint());
  lamp.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&lamp));
  const auto shown = [&] { return lamp.accessibleName().toStdString(); };
  EXPECT_EQ(shown(), "데이터서버 연결됨");
  const QImage connected = lamp.grab().toImage();
  Dispatch([&] {
    Host.ShowServer(ServerLink::Waiting, 300ms);
    EXPECT_EQ(shown(), "데이터서버 응답 대기");
    Host.ShowServer(ServerLink::Lost, 5000ms);
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == "데이터서버 연결 끊김"; }));
  EXPECT_NE(lamp.grab().toImage(), connected);
}

}  // namespace
}  // namespace store
