// From the board's menu to the staging table: real windows, the real port, the real database.
#include <QMessageBox>
#include <QtTest>

#include "slips/handheld_runs.h"
#include "tests/handheld/pseudo_terminal.h"
#include "tests/handheld/receive_desk.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/real_host.h"
#include "ui/store_windows.h"

namespace store {
namespace {

class ReceiveJourney : public ReceiveDesk {
 protected:
  ReceiveJourney() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString(host.Folder.string()));
    OpenRealHost();
    Host.ProgramTitle = "STORE";
    RegisterStoreWindows();
    setenv("STORE_COM1", terminal.Device().c_str(), 1);
  }
  ~ReceiveJourney() override { TheDesk().Clear(); }

  /// Steps that wait for their moment each. A step may open a modal window, under which the next
  /// ones run.
  void When(std::function<bool()> ready, std::function<void()> act) {
    steps_.emplace_back(std::move(ready), std::move(act));
  }
  void WhenShown(const std::string& form, std::function<void(QWidget&)> act) {
    When(
        [form] {
          const FormWindow* window = TheDesk().WindowNamed(form);
          return window != nullptr && window->isActiveWindow() && window->HasBegun();
        },
        [form, act = std::move(act)] { act(*TheDesk().WindowNamed(form)->focusWidget()); });
  }
  void WhenAnswered(const std::string& reply, std::function<void()> act) {
    When(
        [this, reply] {
          answered_ += terminal.Take();
          return answered_.ends_with(reply);
        },
        std::move(act));
  }
  void Poll() {
    if (steps_.empty()) return;
    QTimer::singleShot(10, &clock_, [this] { Poll(); });
    if (!steps_.front().first()) return;
    const auto act = std::move(steps_.front().second);
    steps_.pop_front();
    act();
  }
  bool Done() const { return steps_.empty(); }

  PseudoTerminal terminal;

 private:
  std::deque<std::pair<std::function<bool()>, std::function<void()>>> steps_;
  std::string answered_;
  QObject clock_;  // what is still to come ends with the test
};

TEST_F(ReceiveJourney, GoodsGoFromTheTerminalIntoTheStagingTable) {
  WhenShown("DT9RECEV", [](QWidget& at) { QTest::keyClick(&at, Qt::Key_F5); });
  WhenShown("FRM_NAMECHK", [](QWidget& at) {
    QTest::keyClicks(&at, "u02");
    QTest::keyClick(&at, Qt::Key_Return);
  });
  WhenShown("DT9RECEV", [this](QWidget&) { terminal.Send(kOpening); });
  WhenAnswered(AckText("0001"), [this] {
    terminal.Send(
        FrameOf(TradeRecord('0', "0001", "C0001", "8801000", "맑은생수", "00012", "0000480")));
  });
  WhenAnswered(AckText("0002"), [this] { terminal.Send(kClosing); });
  When(
      [] {
        const auto* form = dynamic_cast<const DT9RECEV*>(OpenForm("DT9RECEV"));
        return form != nullptr && form->Command1[3].Enabled;
      },
      [] { QTest::keyClick(TheDesk().WindowNamed("DT9RECEV")->focusWidget(), Qt::Key_F9); });
  When([] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; },
       [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  Poll();
  Dispatch([] { OpenHandheldRun(HandheldRuns().front()); });
  EXPECT_TRUE(Done());
  EXPECT_EQ(OpenForm("DT9RECEV"), nullptr);
  EXPECT_EQ(
      Staged("PR_CODE, PS_SQTY, PS_UP, PS_rctNAME, DT_CHECK"),
      (std::vector<std::vector<std::string>>{{"P0001", "12.0000", "480.0000", "한빛상사", "u02"}}));
}

TEST_F(ReceiveJourney, SettingsWithABlankInFrontAreOthers) {
  const auto read = [](const char* key) { return Host.GetSetting("STORE", "options", key); };
  Host.SaveSetting("STORE", "options", "포트", "0");
  Host.SaveSetting("STORE", "options", " 포트", "2");
  Host.SaveSetting("STORE", "options", "설정", "9600,n,8,1");
  EXPECT_EQ(read("포트"), "0");
  EXPECT_EQ(read(" 포트"), "2");
  EXPECT_EQ(read("설정"), "9600,n,8,1") << "the commas are part of it";
  EXPECT_EQ(read("흐름제어"), "");
}

}  // namespace
}  // namespace store
