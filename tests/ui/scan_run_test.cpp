// A code is told from a person's typing by how quickly its characters come.
#include <QKeyEvent>
#include <QLineEdit>
#include <QtTest>

#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/grid_view.h"

namespace store {
namespace {

class ScanRunTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    form_.Text1.OwnKeys = {Key::Enter};
    form_.Text1.Scan = [this](const std::string& code) {
      events_.push_back("scan " + code);
      form_.Text1.SetText("");
    };
    form_.Text1.KeyDown = [this](Key key) {
      if (key != Key::Enter) return;
      events_.push_back("enter " + form_.Text1.Text());
      form_.Text1.SetText("");
    };
    window_ = &Open(form_);
    field_ = &Find<QLineEdit>(*window_, "Text1");
    field_->setFocus();
  }
  /// Keys that follow one another by so many milliseconds.
  void Keys(const QString& text, quint64 apart, bool held = false) {
    for (const QChar letter : text) {
      const bool enter = letter == '\r';
      QKeyEvent key(QEvent::KeyPress, enter ? Qt::Key_Return : Qt::Key_unknown, Qt::NoModifier,
                    QString(letter), held && !enter);
      key.setTimestamp(now_ += apart);
      QCoreApplication::sendEvent(field_, &key);
    }
  }
  std::vector<std::string> Events() { return std::exchange(events_, {}); }
  using Texts = std::vector<std::string>;

  ProbeForm form_;
  FormWindow* window_ = nullptr;
  QLineEdit* field_ = nullptr;
  quint64 now_ = 5000;
  std::vector<std::string> events_;
};

TEST_F(ScanRunTest, ACodeIsScannedAndANumberTyped) {
  Keys("8801234567890\r", 5);
  EXPECT_EQ(Events(), Texts{"scan 8801234567890"});
  Keys("12000\r", 150);
  EXPECT_EQ(Events(), Texts{"enter 12000"});
  Keys("120\r", 5);
  EXPECT_EQ(Events(), Texts{"enter 120"}) << "too short to be a code";
  Keys("12000", 5);
  Keys("\r", 300);
  EXPECT_EQ(Events(), Texts{"enter 12000"}) << "the scanner sends its Enter by itself";
  Keys("1", 300);  // begun by hand, and then scanned
  Keys("8", 300);
  Keys("801234567890\r", 5);
  EXPECT_EQ(Events(), Texts{"scan 8801234567890"});
  Keys("888888", 30, true);
  Keys("\r", 30);
  EXPECT_EQ(Events(), Texts{"enter 888888"}) << "a key that was held down";
  Keys("8801234567890\r8809999999999\r", 5);
  EXPECT_EQ(Events(), (Texts{"scan 8801234567890", "scan 8809999999999"}));
}

TEST_F(ScanRunTest, WhatWasScannedWhileABoxStoodIsScannedAfterIt) {
  Dispatch([this] { TheDesk().TypeLater(*field_, "8801234567890\r12\r8809999999999\r"); });
  EXPECT_TRUE(QTest::qWaitFor([this] { return events_.size() == 3; }));
  EXPECT_EQ(Events(), (Texts{"scan 8801234567890", "enter 12", "scan 8809999999999"}));
}

}  // namespace
}  // namespace store
