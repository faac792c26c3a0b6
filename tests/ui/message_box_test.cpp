#include "ui/message_box.h"

#include <QMessageBox>
#include <QPointer>
#include <QtTest>
#include <utility>

#include "forms/host.h"
#include "tests/ui/probe_form.h"

namespace store {
namespace {

class MessageBoxTest : public DeskTest {};

TEST_F(MessageBoxTest, KeysAnswer) {
  struct Case {
    int style;
    Qt::Key key;
    int answer;
  };
  const std::vector<Case> cases = {
      {box::Question + box::YesNo, Qt::Key_Y, box::Yes},
      {box::Question + box::YesNo, Qt::Key_N, box::No},
      {box::Question + box::YesNo, Qt::Key_Enter, box::Yes},
      {box::Question + box::YesNo, Qt::Key_Escape, box::No},
      {box::Warning + box::OkCancel, Qt::Key_Enter, box::Ok},
      {box::Warning + box::OkCancel, Qt::Key_Escape, box::Cancel},
      {box::Critical, Qt::Key_Enter, box::Ok},
      {box::Information, Qt::Key_Escape, box::Ok},
      {box::Plain, Qt::Key_Space, box::Ok},
  };
  for (const Case& c : cases) {
    WhenModal([&c](QWidget& message) {
      QWidget* at = message.focusWidget() != nullptr ? message.focusWidget() : &message;
      QTest::keyClick(at, c.key);
    });
    EXPECT_EQ(ShowMessage("질문", c.style, "제목"), c.answer) << c.style << " key " << c.key;
  }
}

/// A field into which a scanner writes; "?" in a code brings up a question and "!" a box, while
/// which `next` is scanned.
class ScannedFieldTest : public MessageBoxTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    form_.Text1.Scanned = true;
    form_.Text1.OwnKeys = {Key::Enter};
    form_.Text1.KeyDown = [this](Key key) {
      if (key == Key::Enter) Enter();
    };
    window_ = &Open(form_);
    field_ = &Find<QLineEdit>(*window_, "Text1");
    field_->setFocus();
  }
  void Enter() {
    const std::string code = form_.Text1.Text();
    form_.Text1.SetText("");
    entered.push_back(code);
    const bool question = code.find('?') != std::string::npos;
    if (!question && code.find('!') == std::string::npos) return;
    WhenModal([this](QWidget& message) {
      const QPointer<QWidget> box = &message;
      const auto scans = std::exchange(next, {});
      for (const std::string& scan : scans) Scan(*message.focusWidget(), scan.c_str());
      if (box != nullptr && box->isVisible()) QTest::keyClick(box->focusWidget(), Qt::Key_Escape);
    });
    answer = ShowMessage("?", question ? box::Question + box::YesNo : box::Critical, "");
  }
  static void Scan(QWidget& at, const char* code) {
    QTest::keyClicks(&at, code);
    QTest::keyClick(&at, Qt::Key_Return);
  }
  void ScanAll(const std::vector<std::string>& codes, size_t count) {
    for (const std::string& code : codes) Scan(*field_, code.c_str());
    EXPECT_TRUE(QTest::qWaitFor([&] { return entered.size() >= count; }));
    QTest::qWait(0);
  }

  ProbeForm form_;
  FormWindow* window_ = nullptr;
  QLineEdit* field_ = nullptr;
  std::vector<std::string> next;
  std::vector<std::string> entered;
  int answer = 0;
};

TEST_F(ScannedFieldTest, WhatIsScannedWhileABoxStandsIsEnteredAfterIt) {
  using Codes = std::vector<std::string>;
  next = {"8800000000001", "!8800000000002", "8800000000003"};
  ScanAll({"!8800000000000"}, 4);
  EXPECT_EQ(entered, (Codes{"!8800000000000", "8800000000001", "!8800000000002", "8800000000003"}));
  EXPECT_EQ(form_.Text1.Text(), "");

  entered.clear();
  next = {"12"};  // a quantity is no code: its Enter closes the box, as a person's does
  ScanAll({"!8800000000004", "8800000000005"}, 2);
  EXPECT_EQ(entered, (Codes{"!8800000000004", "8800000000005"}));

  entered.clear();
  next = {"8800000000007"};  // answers no question, and is not carried anywhere
  ScanAll({"?8800000000006"}, 1);
  EXPECT_EQ(entered, (Codes{"?8800000000006"}));
  EXPECT_EQ(answer, box::No);
}

TEST_F(ScannedFieldTest, WhatComesWhileTheKeptIsTypedStaysBehindIt) {
  next = {"8800000000001", "8800000000002"};
  Scan(*field_, "!8800000000000");
  Scan(*field_, "8800000000003");  // before the window has had time for anything
  EXPECT_TRUE(QTest::qWaitFor([&] { return entered.size() == 4; }));
  EXPECT_EQ(entered, (std::vector<std::string>{"!8800000000000", "8800000000001", "8800000000002",
                                               "8800000000003"}));
}

TEST_F(MessageBoxTest, ShowsWhatTheFormSaid) {
  QString text;
  QStringList titles;
  QList<bool> signs;
  const auto look = [&](QWidget& shown) {
    const auto& message = dynamic_cast<QMessageBox&>(shown);
    text = message.text();
    titles += message.windowTitle();
    signs += !message.iconPixmap().isNull();
    shown.close();
  };
  WhenModal(look);
  ShowMessage("저장이 실패하였습니다.\r\r MSG: <b>", box::Question, "오류");
  EXPECT_EQ(text, "저장이 실패하였습니다.\n\n MSG: <b>");
  WhenModal(look);
  ShowMessage("없는 제목", box::Plain, "");
  EXPECT_EQ(titles, QStringList({"오류", "TARNWICK"}));
  EXPECT_EQ(signs, QList<bool>({true, false}));
}

}  // namespace
}  // namespace store
