#include "ui/message_box.h"

#include <QMessageBox>
#include <QtTest>

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
