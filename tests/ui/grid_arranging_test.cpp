// Sorting, filtering and copying what a grid shows, which must never change what the form holds or
// what a key hits.
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QtTest>

#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"

namespace store {
namespace {

class GridArrangingTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    Fill({"우유\t1200", "콜라\t300", "라면\t50", "콜라비\t7"});
    window_ = &Open(form_);
    view_ = &FindGrid(*window_, "FLEX1");
    view_->setFocus();
    Mark(2);  // 콜라
  }

  void Fill(const std::vector<const char*>& rows) {
    form_.FLEX1.SetRows(1);
    for (const char* row : rows) form_.FLEX1.AddItem(row);
  }
  void Mark(int row) {
    Dispatch([this, row] { form_.FLEX1.Select(row, 0); });
  }
  void ClickTitle(int column) {
    const QHeaderView& header = *view_->horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(column) + 8, 8});
  }
  void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window_->focusWidget(), static_cast<Qt::Key>(key), modifiers);
  }
  void Filter(const char* text) {
    Press(Qt::Key_F, Qt::ControlModifier);
    Line().setText(text);
  }
  QLineEdit& Line() { return *view_->findChild<QLineEdit*>("filter"); }
  QString Told() { return view_->findChild<QLabel*>("filterCount")->text(); }
  std::string Shown() const {
    std::string shown;
    const QAbstractItemModel& model = *view_->model();
    for (int row = 0; row < model.rowCount(); ++row) {
      if (view_->isRowHidden(row)) continue;
      shown += model.index(row, 0).data().toString().toStdString() + ";";
    }
    return shown;
  }
  std::string Stored() const {
    std::string stored;
    for (int row = 1; row < form_.FLEX1.Rows(); ++row) {
      stored += form_.FLEX1.TextMatrix(row, 0) + ";";
    }
    return stored;
  }
  /// What is in colour.
  std::string Marked() const {
    return view_->currentIndex().siblingAtColumn(0).data().toString().toStdString();
  }
  std::string Current() const { return form_.FLEX1.TextMatrix(form_.FLEX1.Row(), 0); }
  QString Title(int column) const {
    return view_->model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  }
  static QString Copied() { return QApplication::clipboard()->text(); }

  /// Opens the context menu over a row and lets `act` look at its lines.
  void WithMenu(int shownRow, const std::function<void(QMenu& menu)>& act) {
    QTimer::singleShot(0, [&act] {
      auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      act(*menu);
      menu->close();
    });
    const QPoint at = shownRow < 0 ? view_->viewport()->rect().bottomRight()
                                   : view_->visualRect(view_->model()->index(shownRow, 0)).center();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, at, view_->viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(view_->viewport(), &asked);
  }
  static QAction* LineOf(const QMenu& menu, const QString& text) {
    for (QAction* action : menu.findChildren<QAction*>()) {
      if (action->text().startsWith(text)) return action;
    }
    return nullptr;
  }

  ProbeForm form_;
  FormWindow* window_ = nullptr;
  GridView* view_ = nullptr;
};

TEST_F(GridArrangingTest, ATitleSortsUpDownAndBack) {
  ClickTitle(1);
  EXPECT_EQ(Shown(), "콜라비;라면;콜라;우유;");
  EXPECT_EQ(Title(1), "수량 ▲");
  EXPECT_EQ(Marked(), "콜라") << "the mark goes with its row";
  ClickTitle(1);
  EXPECT_EQ(Shown(), "우유;콜라;라면;콜라비;");
  EXPECT_EQ(Title(1), "수량 ▼");
  ClickTitle(0);
  EXPECT_EQ(Shown(), "라면;우유;콜라;콜라비;");
  ClickTitle(0);
  ClickTitle(0);
  EXPECT_EQ(Shown(), Stored());
  EXPECT_EQ(Title(0), "품명");
  EXPECT_EQ(form_.FLEX1.Row(), 2) << "a press on a title chooses no row";
}

TEST_F(GridArrangingTest, KeysWalkWhatIsShownAndHitWhatIsMarked) {
  const std::string stored = Stored();
  ClickTitle(0);  // 라면 우유 콜라 콜라비
  Press(Qt::Key_Up);
  EXPECT_EQ(Current(), "우유");
  EXPECT_EQ(Marked(), "우유");
  EXPECT_EQ(form_.FLEX1.Row(), 1) << "the form's own number of the row";
  EXPECT_EQ(form_.FLEX1.RowBeside(1, -1), 3) << "what a box that walks the lines goes by";
  EXPECT_EQ(form_.FLEX1.RowBeside(4, 1), -1);
  EXPECT_EQ(form_.FLEX1.RowBeside(0, 1), 3);
  EXPECT_EQ(Stored(), stored);
  // A held delete key goes down what is seen.
  Dispatch([this] { form_.FLEX1.RemoveItem(form_.FLEX1.Row()); });
  EXPECT_EQ(Marked(), "콜라");
  Dispatch([this] { form_.FLEX1.RemoveItem(form_.FLEX1.Row()); });
  EXPECT_EQ(Marked(), "콜라비");
  EXPECT_EQ(Current(), "콜라비");
  Dispatch([this] { form_.FLEX1.RemoveItem(form_.FLEX1.Row()); });
  EXPECT_EQ(Marked(), "라면");
  EXPECT_EQ(Stored(), "라면;");
}

TEST_F(GridArrangingTest, ATypedQuantityGoesToItsRowAndOnToTheNextShown) {
  Dispatch([this] { form_.FLEX1.Column(1).Editable = true; });
  std::vector<int> edited;
  form_.FLEX1.AfterEdit = [&](int row, int) { edited.push_back(row); };
  ClickTitle(1);  // 콜라비 라면 콜라 우유
  Mark(4);
  QTest::keyClick(window_->focusWidget(), '9');
  EXPECT_EQ(view_->visualRect(view_->model()->index(0, 1)).center().y(),
            view_->viewport()->findChild<QLineEdit*>()->geometry().center().y());
  Press(Qt::Key_Enter);
  QTest::keyClick(window_->focusWidget(), '8');
  Press(Qt::Key_Enter);
  EXPECT_EQ(edited, (std::vector<int>{4, 3}));
  EXPECT_EQ(form_.FLEX1.TextMatrix(3, 1) + form_.FLEX1.TextMatrix(4, 1), "89");
  EXPECT_EQ(Shown(), "콜라비;라면;콜라;우유;") << "no row jumps away under the fingers";
}

TEST_F(GridArrangingTest, AnotherListIsSortedAndANewLineEndsTheSorting) {
  ClickTitle(0);
  Dispatch([this] { Fill({"하나\t1", "가지\t2", "나물\t3", "다시마\t4", "마늘\t5"}); });
  EXPECT_EQ(Shown(), "가지;나물;다시마;마늘;하나;");
  Dispatch([this] {
    form_.FLEX1.AddItem("바나나\t6", 1);
    form_.FLEX1.SetRow(1);
  });
  EXPECT_EQ(Shown(), "바나나;하나;가지;나물;다시마;마늘;") << "what is scanned stands on top";
  EXPECT_EQ(Title(0), "품명");
  EXPECT_EQ(Marked(), "바나나");
}

TEST_F(GridArrangingTest, AFilterShowsWhatHasTheWordsAndMarksTheFirst) {
  int moves = 0;
  Mark(1);
  form_.FLEX1.RowColChange = [&] { ++moves; };
  Filter("콜");
  EXPECT_EQ(Shown(), "콜라;콜라비;");
  EXPECT_EQ(Current(), "콜라") << "what is out of sight must not be hit";
  EXPECT_EQ(moves, 1);
  EXPECT_EQ(Told(), "2 / 4   2줄 가려짐");
  Line().setText("콜 7");
  EXPECT_EQ(Shown(), "콜라비;");
  EXPECT_EQ(Current(), "콜라비");
  Line().setText("ㅋㄹ");
  EXPECT_EQ(Shown(), "콜라;콜라비;");
  Line().setText("없는것");
  EXPECT_EQ(Shown(), "콜라비;") << "what an action would hit stays in sight";
  EXPECT_EQ(Marked(), "콜라비");
  EXPECT_TRUE(Told().startsWith("0 / 4"));
  EXPECT_EQ(Stored(), "우유;콜라;라면;콜라비;");
}

TEST_F(GridArrangingTest, EscapeEndsTheFilterAndNotTheWindow) {
  bool formSawEscape = false;
  form_.OnKeyDown = [&](Key key) { return formSawEscape |= key == Key::Escape; };
  auto& box = Find<QLineEdit>(*window_, "Text1");
  box.setFocus();
  window_->OfferActions(*view_, {});
  Filter("라");
  EXPECT_EQ(Shown(), "콜라;라면;콜라비;");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Shown(), Stored());
  EXPECT_TRUE(box.hasFocus()) << "a scanner goes on where it was";
  Filter("라면");
  Press(Qt::Key_Enter);
  EXPECT_TRUE(view_->hasFocus());
  EXPECT_EQ(Shown(), "라면;");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Shown(), Stored());
  EXPECT_FALSE(formSawEscape);
  Press(Qt::Key_Escape);
  EXPECT_TRUE(formSawEscape);
}

TEST_F(GridArrangingTest, TheKeysOfTheFormWorkFromTheFilterAndItsLettersDoNot) {
  int saved = 0;
  std::string typed;
  form_.OnCommand1 = [&] { ++saved; };
  form_.FLEX1.KeyPress = [&](const std::string& text) { typed += text; };
  Filter("콜");
  QTest::keyClicks(window_->focusWidget(), "12");
  Press(Qt::Key_Delete);
  Press(Qt::Key_F9);
  EXPECT_EQ(saved, 1);
  EXPECT_EQ(typed, "");
  EXPECT_EQ(Line().text(), "콜12");
}

TEST_F(GridArrangingTest, WhatTheFormMarksIsSeenInSpiteOfTheFilter) {
  Filter("콜");
  Mark(3);
  EXPECT_EQ(Shown(), "콜라;라면;콜라비;");
  EXPECT_EQ(Marked(), "라면");
  EXPECT_TRUE(Told().startsWith("2 / 4"));
  Press(Qt::Key_Enter);
  Dispatch([this] {
    form_.FLEX1.AddItem("새우\t1", 1);
    form_.FLEX1.SetRow(1);
  });
  EXPECT_EQ(Shown(), Stored()) << "who scans sees all lines again";
  EXPECT_FALSE(view_->FilterIsOpen());
}

TEST_F(GridArrangingTest, TheLineTellsOfTicksThatAreOutOfSight) {
  Dispatch([this] {
    form_.FLEX1.SetColumns(
        {{.Header = "품명"}, {.Header = "S", .CheckBox = true, .Editable = true}});
    Fill({"우유\t-1", "콜라\t0", "라면\t-1"});
    form_.FLEX1.SetRowHidden(1, true);
  });
  Filter("콜");
  EXPECT_EQ(Shown(), "콜라;");
  EXPECT_EQ(Told(), "1 / 2   1줄 가려짐   그 가운데 선택 1줄도 처리됨");
  Dispatch([this] { form_.FLEX1.SetTextMatrix(3, 1, "0"); });
  EXPECT_EQ(Told(), "1 / 2   1줄 가려짐");
  Line().setText("");
  EXPECT_EQ(Shown(), "콜라;라면;") << "what the form hides stays hidden";
}

TEST_F(GridArrangingTest, TheTopRowIsTheFormsOwn) {
  Dispatch([this] {
    form_.FLEX1.SetRows(1);
    for (int i = 100; i < 400; ++i) form_.FLEX1.AddItem(("품목" + std::to_string(i)).c_str());
  });
  ClickTitle(0);
  ClickTitle(0);
  Dispatch([this] { form_.FLEX1.SetTopRow(99); });  // shown in place 200 of 300
  EXPECT_EQ(view_->rowAt(0), 200);
  EXPECT_EQ(form_.FLEX1.TopRow(), 99);
}

TEST_F(GridArrangingTest, RowsAreCopiedWithTheirTitles) {
  Dispatch([this] { form_.FLEX1.SetTextMatrix(3, 0, "8801\r 라면"); });
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "품명\t수량\n콜라\t300\n");
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "품명\t수량\n콜라\t300\n8801 라면\t50\n");
  EXPECT_EQ(form_.FLEX1.Row(), 2) << "what is copied is not what is acted on";
  EXPECT_TRUE(view_->IsToBeCopied(2));
  Press(Qt::Key_Up);
  EXPECT_FALSE(view_->IsToBeCopied(2));
  ClickTitle(1);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "품명\t수량\n콜라비\t7\n8801 라면\t50\n콜라\t300\n우유\t1200\n");
  QTest::mouseClick(view_->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                    view_->visualRect(view_->model()->index(2, 0)).center());
  EXPECT_EQ(Current(), "우유");
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "품명\t수량\n콜라\t300\n우유\t1200\n");
}

TEST_F(GridArrangingTest, TheRightButtonMarksARowAndOffersWhatCanBeDoneWithIt) {
  auto& save = Find<KeyButton>(*window_, "Command1");
  std::string hit;
  form_.FLEX1.KeyDown = [&](Key key) {
    if (key == Key::Enter) hit += Current();
  };
  window_->OfferActions(*view_, {window_->KeyLine("열기", Key::Enter, form_.FLEX1),
                                 {},
                                 window_->ButtonLine("Command1"),
                                 {.Text = "못함", .Enabled = [] { return false; }}});
  ClickTitle(0);  // 라면 우유 콜라 콜라비
  WithMenu(0, [&](QMenu& menu) {
    EXPECT_EQ(Marked(), "라면");
    EXPECT_EQ(LineOf(menu, "열기")->text(), "열기\tEnter");
    EXPECT_EQ(LineOf(menu, save.text())->text(), "저장\tF9");
    EXPECT_FALSE(LineOf(menu, "못함")->isEnabled());
    for (const char* common : {"복사\tCtrl+C", "보이는 줄 모두 복사", "엑셀로 보기",
                               "줄 찾기\tCtrl+F", "'품명' 오름차순", "원래 차례로", "수량"}) {
      ASSERT_NE(LineOf(menu, common), nullptr) << common;
    }
    LineOf(menu, "열기")->trigger();
  });
  EXPECT_EQ(hit, "라면");
  Dispatch([this] { form_.Command1.Enabled = false; });
  WithMenu(1, [&](QMenu& menu) {
    EXPECT_FALSE(LineOf(menu, "저장")->isEnabled());
    LineOf(menu, "'품명' 내림차순")->trigger();
  });
  EXPECT_EQ(Shown(), "콜라비;콜라;우유;라면;");
  Dispatch([this] { form_.FLEX1.SetRow(0); });
  Dispatch([this] { form_.Command1.Visible = false; });
  WithMenu(-1, [&](QMenu& menu) {
    EXPECT_FALSE(LineOf(menu, "열기")->isEnabled()) << "no row is marked";
    EXPECT_EQ(LineOf(menu, "저장"), nullptr);
  });
}

TEST_F(GridArrangingTest, ColumnsAreSwitchedOffButNeverAll) {
  GridColumns& columns = view_->Columns();
  WithMenu(0, [&](QMenu& menu) { LineOf(menu, "수량")->trigger(); });
  EXPECT_TRUE(view_->isColumnHidden(1));
  WithMenu(0, [&](QMenu& menu) { EXPECT_FALSE(LineOf(menu, "품명")->isEnabled()); });
  const QString kept = columns.Layout();
  columns.TakeLayout({});
  EXPECT_FALSE(view_->isColumnHidden(1));
  columns.TakeLayout(kept);
  EXPECT_TRUE(view_->isColumnHidden(1));
  EXPECT_FALSE(view_->isColumnHidden(0));
  Dispatch([this] { form_.FLEX1.Column(0).Hidden = true; });
  EXPECT_FALSE(view_->isColumnHidden(1)) << "all that was left is hidden by the form";
  EXPECT_EQ(columns.Offered(), std::vector<int>{1});
  Dispatch([this] { form_.FLEX1.Column(1).Editable = true; });
  EXPECT_FALSE(columns.MaySwitch(1)) << "what one types into";
}

}  // namespace
}  // namespace store
