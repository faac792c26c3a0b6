// What a person types and chooses, and what the form asks of it.
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

#include "tests/ui/probe_form.h"
#include "ui/desk.h"

namespace store {
namespace {

class InputBindingTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    form_.Text1.MaxLength = 8;
    window_ = &Open(form_);
    text1_ = &Find<QLineEdit>(*window_, "Text1");
    text2_ = &Find<QLineEdit>(*window_, "Text2");
    text1_->setFocus();
  }
  ProbeForm form_;
  FormWindow* window_ = nullptr;
  QLineEdit* text1_ = nullptr;
  QLineEdit* text2_ = nullptr;
};

TEST_F(InputBindingTest, TypingChangesTheForm) {
  QTest::keyClicks(text1_, "u0");
  EXPECT_TRUE(form_.Happened("Text1=u"));
  EXPECT_EQ(form_.Text1.Text(), "u0");
  QTest::keyClicks(text1_, "123456789");
  EXPECT_EQ(form_.Text1.Text().size(), 8U);
}

TEST_F(InputBindingTest, OnlyCommittedHangulReachesTheForm) {
  QInputMethodEvent composing(QStringLiteral("한"), {});
  QCoreApplication::sendEvent(text1_, &composing);
  Dispatch([this] { form_.Label1.Caption = "다른 일"; });
  EXPECT_EQ(form_.Text1.Text(), "");
  QInputMethodEvent committed;
  committed.setCommitString(QStringLiteral("한"));
  QCoreApplication::sendEvent(text1_, &committed);
  EXPECT_EQ(form_.Text1.Text(), "한");
  EXPECT_EQ(text1_->text(), "한");
}

TEST_F(InputBindingTest, TheFormSetsTextAndSelection) {
  Dispatch([this] {
    form_.Text1.SetText("참나무");
    form_.Text1.SelectAll();
  });
  EXPECT_EQ(text1_->selectedText(), "참나무");
  Dispatch([this] { form_.Text1.CaretToEnd(); });
  EXPECT_FALSE(text1_->hasSelectedText());
  EXPECT_EQ(text1_->cursorPosition(), 3);
  text1_->setCursorPosition(1);
  Dispatch([] {});
  EXPECT_EQ(text1_->cursorPosition(), 1) << "a request is followed once";
}

TEST_F(InputBindingTest, FocusBothWays) {
  EXPECT_EQ(form_.ActiveControl, &form_.Text1);
  QTest::keyClick(text1_, Qt::Key_Enter);
  EXPECT_TRUE(text2_->hasFocus()) << "the form asked for the next control";
  EXPECT_TRUE(form_.Happened("Text2 got focus"));
  text1_->setFocus();
  EXPECT_EQ(form_.ActiveControl, &form_.Text1);
  Dispatch([this] {
    form_.Text1.Enabled = false;
    form_.SetFocus(form_.Text1);
  });
  EXPECT_TRUE(text2_->hasFocus()) << "a disabled control gives the keyboard to the next one";
}

TEST_F(InputBindingTest, TheFormSeesKeysBeforeItsControls) {
  std::vector<Key> seen;
  form_.OnKeyDown = [&](Key key) {
    seen.push_back(key);
    return key == Key::Enter;
  };
  QTest::keyClick(text1_, Qt::Key_Enter);
  EXPECT_TRUE(text1_->hasFocus()) << "the control's own Enter would have moved on";
  QTest::keyClick(text1_, Qt::Key_F4);
  QTest::keyClick(text1_, Qt::Key_F4, Qt::AltModifier);
  QTest::keyClick(text1_, Qt::Key_A);
  EXPECT_EQ(seen, (std::vector<Key>{Key::Enter, Key::F4})) << "Alt+F4 belongs to the system";
}

TEST_F(InputBindingTest, AKeyDoesNoMoreThanItsButton) {
  QTest::keyClick(text1_, Qt::Key_F9);
  EXPECT_TRUE(form_.Happened("Command1"));
  form_.Events.clear();
  Dispatch([this] { form_.Command1.Enabled = false; });
  QTest::keyClick(text1_, Qt::Key_F9);
  EXPECT_FALSE(form_.Happened("Command1"));
}

TEST_F(InputBindingTest, ListsShowNamesAndKeepCodes) {
  const std::string blanks(30, ' ');
  Dispatch([&] {
    form_.Combo1.AddItem("매장창고" + blanks + "100101");
    form_.Combo1.AddItem("냉장창고" + blanks + "100102");
    form_.Combo1.SetListIndex(0);
  });
  auto& list = Find<QComboBox>(*window_, "Combo1");
  EXPECT_EQ(list.currentText(), "매장창고");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(form_.Combo1.Text(), "냉장창고" + blanks + "100102");
  EXPECT_TRUE(form_.Happened("Combo1=1"));
}

TEST_F(InputBindingTest, TheWheelChangesNoChoiceInPassing) {
  Dispatch([&] {
    form_.Combo1.AddItem("매장창고");
    form_.Combo1.AddItem("냉장창고");
    form_.Combo1.SetListIndex(0);
  });
  auto& list = Find<QComboBox>(*window_, "Combo1");
  const QPointF middle = list.rect().center();
  QWheelEvent wheel(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wheel);  // or the toolkit would not give it the keyboard
  qApp->notify(&list, &wheel);
  EXPECT_EQ(form_.Combo1.ListIndex(), 0);
  EXPECT_FALSE(list.hasFocus());
}

TEST_F(InputBindingTest, Dates) {
  auto& edit = Find<QDateEdit>(*window_, "DTPicker1");
  EXPECT_EQ(edit.text(), " ") << "no date yet";
  Dispatch([this] { form_.DTPicker1.SetValue("2024-02-29"); });
  EXPECT_EQ(edit.text(), "2024-02-29");
  edit.setFocus();
  edit.setSelectedSection(QDateTimeEdit::DaySection);
  QTest::keyClick(&edit, Qt::Key_Down);
  EXPECT_EQ(form_.DTPicker1.Value(), "2024-02-28");
  EXPECT_TRUE(form_.Happened("DTPicker1=2024-02-28"));
}

TEST_F(InputBindingTest, ChecksOptionsAndTabs) {
  QTest::keyClick(&Find<QCheckBox>(*window_, "Check1"), Qt::Key_Space);
  EXPECT_EQ(form_.Check1.Value, 1);

  auto& second = Find<QRadioButton>(*window_, "Option1_1");
  EXPECT_FALSE(second.isChecked()) << "the form may have chosen none";
  QTest::keyClick(&second, Qt::Key_Space);
  EXPECT_TRUE(form_.Option1[1].Value);
  Dispatch([this] { form_.Option1[1].Value = false; });
  EXPECT_FALSE(second.isChecked());

  const auto tabs = Find<QWidget>(*window_, "TabOne1").findChildren<QToolButton*>();
  ASSERT_EQ(tabs.size(), 2);
  EXPECT_FALSE(tabs[0]->isChecked()) << "no tab was pressed yet";
  QTest::mouseClick(tabs[0], Qt::LeftButton);
  QTest::mouseClick(tabs[0], Qt::LeftButton);
  EXPECT_EQ(std::count(form_.Events.begin(), form_.Events.end(), "tab 0"), 2);
  EXPECT_TRUE(tabs[0]->isChecked());
}

}  // namespace
}  // namespace store
