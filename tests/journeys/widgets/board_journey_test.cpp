// The board's grid under the mouse: what is marked is what is named and acted on, and a slip that
// was deleted comes back.
#include <QMenu>
#include <QtTest>
#include <algorithm>

#include "board/frm_Start.h"
#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"
#include "ui/grid_view.h"

namespace store {
namespace {

constexpr int kTotalColumn = 7;

class BoardJourney : public Journey {
 protected:
  GridView& Slips() { return dynamic_cast<GridView&>(*Board().findChild<QTableView*>("FLEX1")); }
  QPoint At(int row) { return Slips().visualRect(Slips().model()->index(row, 1)).center(); }
  std::string IdAt(int row) {
    return Hands::Rows(Board(), "FLEX1", {kSlipIdColumn})[static_cast<size_t>(row)][0];
  }
  std::string Named() { return Hands::TextOf(Board(), "Selected"); }
  bool AllAre(const std::string& state) {
    const auto states = Hands::Rows(Board(), "FLEX1", {kStateColumn});
    return std::all_of(states.begin(), states.end(),
                       [&](const auto& row) { return row[0] == state; });
  }
  /// The row in colour; -1 without one.
  int Marked() { return Slips().currentIndex().row(); }
};

TEST_F(BoardJourney, WhatIsMarkedIsNamedAndDeletedAndComesBack) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Hands::Press(Board(), Qt::Key_2, Qt::AltModifier);  // what is in editing
  ASSERT_TRUE(Hands::Wait([this] { return AllAre("발주편집"); }));
  ASSERT_GE(Slips().model()->rowCount(), 5);
  const int rows = Slips().model()->rowCount();
  const std::string first = IdAt(0);
  const std::string fifth = IdAt(4);

  Hands::ClickCell(Board(), "FLEX1", 0, 1);
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(Slips().viewport(), button, {}, At(4));
    EXPECT_EQ(IdAt(Marked()), first);
    EXPECT_EQ(Named(), "선택전표  발주편집  " + first);
  }
  QTest::mousePress(Slips().viewport(), Qt::LeftButton, {}, At(4));
  QTest::mouseMove(Slips().viewport(), At(3));
  QTest::mouseRelease(Slips().viewport(), Qt::LeftButton, {}, At(3));
  EXPECT_EQ(IdAt(Marked()), fifth);
  EXPECT_EQ(Named(), "선택전표  발주편집  " + fifth);
  Hands::ClickCell(Board(), "FLEX1", 0, 2);

  const std::string lines = DemoValue("SELECT COUNT(*) FROM PSM22 WHERE PE_ID='" + first + "'");
  hands.AnswerBox("[발주편집]전표가 삭제되었습니다.", Qt::Key_Return);
  Hands::Press(Board(), Qt::Key_F8);
  EXPECT_EQ(Slips().model()->rowCount(), rows - 1);
  EXPECT_EQ(RowOf(first), -1);
  EXPECT_EQ(Marked(), 0) << "the neighbour has come into its place";
  EXPECT_EQ(Named(), "선택전표  발주편집  " + IdAt(0));
  EXPECT_EQ(Hands::TextOf(Board(), "LaDeleted"), "삭제한 전표 1건");

  hands.WorkIn("frmDeleted", [&](FormWindow& list) {
    EXPECT_EQ(std::to_string(Hands::Rows(list, "FLEX2", {1}).size()), lines);
    Hands::Press(list, Qt::Key_Return);
  });
  hands.AnswerBox("전표를 되살렸습니다.", Qt::Key_Return);
  Hands::Press(Board(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Slips().model()->rowCount(), rows);
  EXPECT_EQ(IdAt(Marked()), first);
  EXPECT_EQ(Named(), "선택전표  발주편집  " + first);
  EXPECT_FALSE(Board().findChild<QWidget*>("LaDeleted")->isVisible());
}

TEST_F(BoardJourney, TheMenuRunsWhatTheButtonsRunAndTakesNoKeyOfTheirs) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  // The texts of the menu that is open, and one of its lines done.
  const auto open = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
  const auto line = [&](const QString& text) {
    const QList<QAction*> lines = open()->actions();
    const auto found = std::find_if(lines.begin(), lines.end(), [&](const QAction* action) {
      return action->text().section('\t', 0, 0) == text;
    });
    return found == lines.end() ? nullptr : *found;
  };
  Hands::Press(Board(), Qt::Key_F10);
  ASSERT_NE(open(), nullptr);
  EXPECT_EQ(line("신규발주하기")->text(), "신규발주하기\tF2");
  EXPECT_FALSE(line("쓰던 전표")->isEnabled()) << "nothing is kept";
  QTest::keyClick(open(), Qt::Key_Right);
  QTest::keyClick(open(), Qt::Key_Right);
  ASSERT_NE(line("새로고침"), nullptr);
  DemoSql("UPDATE NOTICE SET SUBJECT='새 공지'");
  line("새로고침")->trigger();
  open()->close();
  ASSERT_EQ(open(), nullptr);
  Hands::ComeTo("frm_Start");
  EXPECT_GE(Hands::RowWith(Board(), "FLEX0", 1, "새 공지"), 0) << "read anew";
  Hands::Press(Board(), Qt::Key_3, Qt::AltModifier);
  EXPECT_EQ(open(), nullptr);
  EXPECT_TRUE(Hands::Wait([this] { return AllAre("발주확정"); }));
  QTest::keyClick(Board().focusWidget(), Qt::Key_F, Qt::AltModifier);
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(Hands::KeyboardAt(Board()), "Text2");
}

// Sorted and filtered, the key hits the slip in colour, and the next one in colour is its
// neighbour.
TEST_F(BoardJourney, WhatIsSortedAndFilteredIsHitWhereItIsMarked) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Hands::Press(Board(), Qt::Key_2, Qt::AltModifier);
  ASSERT_TRUE(Hands::Wait([this] { return AllAre("발주편집"); }));
  const int rows = Slips().model()->rowCount();
  const auto inOrder = [this] { return Hands::Rows(Board(), "FLEX1", {kSlipIdColumn}); };
  const auto asRead = inOrder();
  Slips().SortBy(kTotalColumn, RowOrder::Descending);
  const auto sorted = inOrder();
  ASSERT_NE(sorted, asRead);
  Hands::ClickCell(Board(), "FLEX1", 1, 2);
  EXPECT_EQ(Named(), "선택전표  발주편집  " + sorted[1][0]);
  hands.AnswerBox("[발주편집]전표가 삭제되었습니다.", Qt::Key_Return);
  Hands::Press(Board(), Qt::Key_F8);
  EXPECT_EQ(RowOf(sorted[1][0]), -1);
  EXPECT_EQ(IdAt(0), sorted[0][0]) << "the list that was read anew is sorted as before";
  EXPECT_EQ(IdAt(Marked()), sorted[2][0]);
  EXPECT_EQ(Named(), "선택전표  발주편집  " + sorted[2][0]);

  const std::string partner = Hands::Rows(Board(), "FLEX1", {2})[0][0];
  Hands::Press(Board(), Qt::Key_F, Qt::ControlModifier);
  Hands::Type(Board(), QString::fromStdString(partner));
  EXPECT_LT(Slips().model()->rowCount(), rows - 1);
  EXPECT_EQ(Named(), "선택전표  발주편집  " + IdAt(Marked()));
  EXPECT_EQ(Hands::Rows(Board(), "FLEX1", {2})[static_cast<size_t>(Marked())][0], partner);
  Hands::Press(Board(), Qt::Key_Escape);
  EXPECT_EQ(Slips().model()->rowCount(), rows - 1);
  EXPECT_TRUE(Board().isVisible());
}

TEST_F(BoardJourney, ARefreshLeavesTheListWhereItWas) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Hands::Press(Board(), Qt::Key_4, Qt::AltModifier);
  ASSERT_TRUE(Hands::Wait([this] { return Slips().model()->rowCount() > 5; }));
  Board().resize(1024, 420);
  QTest::qWait(1);
  const int last = Slips().model()->rowCount() - 1;
  Hands::ClickCell(Board(), "FLEX1", last, 1);
  const std::string slip = IdAt(last);
  const int top = Slips().rowAt(0);
  ASSERT_GT(top, 0) << "the list is longer than the window";
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(IdAt(Marked()), slip);
  EXPECT_EQ(Slips().rowAt(0), top);
  DemoSql("UPDATE PEM22 SET PE_CK='4' WHERE PE_ID='" + slip + "'");
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(Marked(), last - 1);
  EXPECT_EQ(Slips().rowAt(0), top - 1) << "as far down as it goes";
}

}  // namespace
}  // namespace store
