#include "ui/grid_view.h"

#include <QHeaderView>
#include <QtTest>

#include "forms/host.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"

namespace store {
namespace {

/// The line of a menu, or of a menu that it opens, that begins with `text`.
QAction* LineOf(const QWidget& menu, const QString& text) {
  for (QAction* action : menu.findChildren<QAction*>()) {
    if (action->text().startsWith(text)) return action;
  }
  throw std::runtime_error("no line " + text.toStdString());
}

class GridViewTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    for (const char* row : {"우유\t1", "콜라\t2", "라면\t3"}) form_.FLEX1.AddItem(row);
    window_ = &Open(form_);
    view_ = &FindGrid(*window_, "FLEX1");
    form_.FLEX1.KeyPress = [this](const std::string& text) { typed_ += text; };
    form_.FLEX1.AfterEdit = [this](int row, int col) { edited_ = {row, col}; };
    view_->setFocus();
  }

  /// Row 1 is current and its second column may be edited.
  void MakeEditable() {
    Dispatch([this] {
      form_.FLEX1.Column(1).Editable = true;
      form_.FLEX1.Select(1, 0);
    });
  }
  /// As a person at the keyboard: into whatever has the keyboard now.
  void Press(Qt::Key key) { QTest::keyClick(window_->focusWidget(), key); }
  void Type(const char* text) {
    for (; *text != '\0'; ++text) QTest::keyClick(window_->focusWidget(), *text);
  }
  bool CellIsOpen() const { return view_->IsOpenCell(*window_->focusWidget()); }
  std::string Held(int row) const { return form_.FLEX1.TextMatrix(row, 1); }
  void ClickCell(int row, int column) {
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {},
                      view_->visualRect(view_->model()->index(row, column)).center());
  }

  ProbeForm form_;
  FormWindow* window_ = nullptr;
  GridView* view_ = nullptr;
  std::string typed_;
  std::pair<int, int> edited_{0, 0};
};

TEST_F(GridViewTest, CurrentCellBothWays) {
  EXPECT_FALSE(view_->currentIndex().isValid())
      << "getting the keyboard makes no row current: a key might delete it";
  Press(Qt::Key_Down);
  EXPECT_EQ(form_.FLEX1.Row(), 1);
  Press(Qt::Key_Down);
  Press(Qt::Key_Right);
  EXPECT_EQ(form_.FLEX1.Row(), 2);
  EXPECT_EQ(form_.FLEX1.Col(), 1);
  Dispatch([this] { form_.FLEX1.Select(3, 0); });
  EXPECT_EQ(view_->currentIndex(), view_->model()->index(2, 0));
  Dispatch([this] { form_.FLEX1.SetRows(1); });
  EXPECT_FALSE(view_->currentIndex().isValid());
}

TEST_F(GridViewTest, AHiddenCurrentColumnCanBeWalkedFrom) {
  Dispatch([this] {
    form_.FLEX1.Column(0).Hidden = true;
    form_.FLEX1.Select(1, 0);
  });
  EXPECT_TRUE(view_->isColumnHidden(0));
  Press(Qt::Key_Down);
  EXPECT_EQ(form_.FLEX1.Row(), 2);
}

TEST_F(GridViewTest, HiddenRowsAreNotSeen) {
  Dispatch([this] { form_.FLEX1.SetRowHidden(2, true); });
  EXPECT_TRUE(view_->isRowHidden(1));
  EXPECT_FALSE(view_->isRowHidden(2));
  Dispatch([this] { form_.FLEX1.SetRowHidden(2, false); });
  EXPECT_FALSE(view_->isRowHidden(1));
}

TEST_F(GridViewTest, ClickAndDoubleClick) {
  std::vector<std::string> events;
  form_.FLEX1.Click = [&] { events.push_back("click " + std::to_string(form_.FLEX1.Row())); };
  form_.FLEX1.DblClick = [&] { events.emplace_back("double"); };
  ClickCell(1, 1);
  EXPECT_EQ(form_.FLEX1.Col(), 1);
  Press(Qt::Key_Down);
  ClickCell(0, 0);
  QTest::mouseDClick(view_->viewport(), Qt::LeftButton, {},
                     view_->visualRect(view_->model()->index(0, 0)).center());
  EXPECT_EQ(events.front(), "click 2");
  EXPECT_NE(std::find(events.begin(), events.end(), "double"), events.end());
}

// What is marked is what the next key works on, so nothing but a whole left click may move the
// mark, and a mark that has moved has been clicked.
TEST_F(GridViewTest, OneRowIsMarkedAndClickedWhateverTheMouseDoes) {
  std::vector<int> clicked;
  form_.FLEX1.Click = [&] { clicked.push_back(form_.FLEX1.Row()); };
  const auto at = [this](int row) {
    return view_->visualRect(view_->model()->index(row - 1, 0)).center();
  };
  ClickCell(0, 0);
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
    QTest::mouseClick(view_->viewport(), button, {}, at(3));
    QTest::mouseDClick(view_->viewport(), button, {}, at(3));
    EXPECT_EQ(form_.FLEX1.Row(), 1);
    EXPECT_EQ(view_->currentIndex().row(), 0);
  }
  EXPECT_EQ(clicked, (std::vector<int>{1}));

  // The mouse slips over a border before the button is let go, or out of the grid.
  for (const QPoint& letGo : {at(3), QPoint(-20, -20)}) {
    clicked.clear();
    QTest::mousePress(view_->viewport(), Qt::LeftButton, {}, at(2));
    QMouseEvent slips(QEvent::MouseMove, letGo, view_->viewport()->mapToGlobal(letGo), Qt::NoButton,
                      Qt::LeftButton, {});
    QCoreApplication::sendEvent(view_->viewport(), &slips);
    EXPECT_EQ(form_.FLEX1.Row(), 2);
    QTest::mouseRelease(view_->viewport(), Qt::LeftButton, {}, letGo);
    EXPECT_EQ(form_.FLEX1.Row(), 2);
    EXPECT_EQ(view_->currentIndex().row(), 1);
    EXPECT_EQ(clicked, (std::vector<int>{2}));
  }
}

TEST_F(GridViewTest, TypedTextGoesToTheForm) {
  Type("8");
  QInputMethodEvent composing(QStringLiteral("ㅇ"), {});
  QCoreApplication::sendEvent(view_, &composing);
  QInputMethodEvent committed;
  committed.setCommitString(QStringLiteral("우"));
  QCoreApplication::sendEvent(view_, &committed);
  EXPECT_EQ(typed_, "8우") << "what the input method is still putting together is not typed yet";
}

TEST_F(GridViewTest, TypingOpensTheEditableCell) {
  MakeEditable();
  Type("12");
  EXPECT_TRUE(CellIsOpen());
  EXPECT_EQ(Held(1), "1") << "nothing is taken over before it is finished";
  Press(Qt::Key_Enter);
  EXPECT_EQ(Held(1), "12");
  EXPECT_EQ(edited_, std::make_pair(1, 1));
  EXPECT_EQ(form_.FLEX1.Row(), 2) << "on to the next quantity";
  EXPECT_TRUE(view_->hasFocus());
  EXPECT_EQ(typed_, "");
}

TEST_F(GridViewTest, EscapeLeavesTheCellAndNotTheForm) {
  bool formSawEscape = false;
  form_.OnKeyDown = [&](Key key) { return formSawEscape = key == Key::Escape; };
  MakeEditable();
  Type("12");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Held(1), "1");
  EXPECT_FALSE(formSawEscape);
  EXPECT_EQ(edited_, std::make_pair(0, 0));
  Press(Qt::Key_Escape);
  EXPECT_TRUE(formSawEscape);
}

TEST_F(GridViewTest, ARefusedEntryStaysInFront) {
  form_.FLEX1.AfterEdit = [this](int row, int col) { form_.FLEX1.SetTextMatrix(row, col, ""); };
  MakeEditable();
  Type("9999999");
  Press(Qt::Key_Enter);
  EXPECT_EQ(Held(1), "");
  EXPECT_EQ(form_.FLEX1.Row(), 1);
}

TEST_F(GridViewTest, TheFormMayKeepACellClosed) {
  form_.FLEX1.BeforeEdit = [](int row, int) { return row != 1; };
  MakeEditable();
  Type("5");
  EXPECT_FALSE(CellIsOpen());
  Press(Qt::Key_Down);
  Type("5");
  EXPECT_TRUE(CellIsOpen());
}

// A quantity that was typed and not confirmed would otherwise be missing from the saved order.
TEST_F(GridViewTest, ASaveKeyTakesTheOpenCellOverFirst) {
  MakeEditable();
  std::string heldAtSave;
  form_.OnCommand1 = [&] { heldAtSave = Held(1); };
  Type("24");
  Press(Qt::Key_F9);
  EXPECT_EQ(heldAtSave, "24");
  EXPECT_FALSE(CellIsOpen());
}

TEST_F(GridViewTest, LeavingTheGridTakesTheOpenCellOverOnce) {
  int edits = 0;
  form_.FLEX1.AfterEdit = [&](int, int) { ++edits; };
  MakeEditable();
  Type("24");
  Find<QLineEdit>(*window_, "Text1").setFocus();
  EXPECT_EQ(Held(1), "24");
  EXPECT_EQ(edits, 1);
}

TEST_F(GridViewTest, ACheckColumnIsTicked) {
  Dispatch([this] {
    form_.FLEX1.SetColumns(
        {{.Header = "품명"}, {.Header = "S", .CheckBox = true, .Editable = true}});
    form_.FLEX1.AddItem("우유");
  });
  ClickCell(0, 1);
  EXPECT_EQ(Held(1), "-1");
  QTest::mousePress(view_->viewport(), Qt::LeftButton, {},
                    view_->visualRect(view_->model()->index(0, 1)).center());
  QTest::mouseRelease(view_->viewport(), Qt::LeftButton, {},
                      view_->visualRect(view_->model()->index(0, 0)).center());
  EXPECT_EQ(Held(1), "-1") << "a tick is taken back by letting go elsewhere";
  Press(Qt::Key_Space);
  EXPECT_EQ(Held(1), "0");
}

TEST_F(GridViewTest, TypingGoesToTheCurrentOneOfSeveralEditableColumns) {
  Dispatch([this] {
    form_.FLEX1.SetColumns({{.Header = "S", .CheckBox = true, .Editable = true},
                            {.Header = "품명"},
                            {.Header = "수량", .Editable = true},
                            {.Header = "배수", .Editable = true}});
    form_.FLEX1.AddItem("\t우유");
    form_.FLEX1.Select(1, 1);
  });
  Type("7");
  Press(Qt::Key_Enter);
  Dispatch([this] { form_.FLEX1.Select(1, 3); });
  Type("8");
  Press(Qt::Key_Enter);
  EXPECT_EQ(form_.FLEX1.TextMatrix(1, 2) + form_.FLEX1.TextMatrix(1, 3), "78");
  ClickCell(0, 0);
  EXPECT_EQ(form_.FLEX1.TextMatrix(1, 0), "-1");
  Dispatch([this] { form_.FLEX1.Column(0).Editable = false; });
  ClickCell(0, 0);
  EXPECT_EQ(form_.FLEX1.TextMatrix(1, 0), "-1") << "a column that is not to be ticked";
}

TEST_F(GridViewTest, ShowsNothingNewWhileTheFormHoldsRedrawBack) {
  QSignalSpy resets(view_->model(), &QAbstractItemModel::modelReset);
  Dispatch([this] {
    form_.FLEX1.Redraw = false;
    form_.FLEX1.AddItem("사과\t4");
    Host.DoEvents();
  });
  EXPECT_EQ(resets.count(), 0);
  Dispatch([this] { form_.FLEX1.Redraw = true; });
  EXPECT_EQ(view_->model()->rowCount(), 4);
}

TEST_F(GridViewTest, TheTopRowBothWays) {
  Dispatch([this] {
    for (int i = 0; i < 500; ++i) form_.FLEX1.AddItem("품목\t" + std::to_string(i));
    form_.FLEX1.SetTopRow(40);
  });
  EXPECT_EQ(view_->rowAt(0), 40);
  view_->scrollToBottom();
  EXPECT_GT(form_.FLEX1.TopRow(), 400);
  Dispatch([this] { form_.FLEX1.SetTopRow(form_.FLEX1.TopRow() + 4000); });
  EXPECT_EQ(form_.FLEX1.TopRow(), 502) << "never behind the last row";
  // A list that is read anew shows the place that the form asks for, with its current row
  // elsewhere.
  Dispatch([this] {
    form_.FLEX1.SetRows(1);
    for (int i = 0; i < 300; ++i) form_.FLEX1.AddItem("품목\t" + std::to_string(i));
    form_.FLEX1.SetRow(7);
    form_.FLEX1.SetTopRow(120);
  });
  EXPECT_EQ(view_->rowAt(0), 120);
  EXPECT_EQ(form_.FLEX1.TopRow(), 120);
}

TEST_F(GridViewTest, TheCellUnderThePointerHasItsOwnTip) {
  form_.FLEX1.MouseMove = [this](int row, int col) {
    form_.FLEX1.ToolTipText = form_.FLEX1.TextMatrix(row, col);
  };
  const QPoint place = view_->visualRect(view_->model()->index(1, 0)).center();
  QMouseEvent hovers(QEvent::MouseMove, place, view_->viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, {});
  QCoreApplication::sendEvent(view_->viewport(), &hovers);
  EXPECT_EQ(view_->toolTip(), "콜라");
}

TEST_F(GridViewTest, AWholeItemListFillsWithoutMeasuringRows) {
  constexpr int kItems = 20000;
  QSignalSpy resets(view_->model(), &QAbstractItemModel::modelReset);
  Dispatch([this] {
    for (int i = 0; i < kItems; ++i) form_.FLEX1.AddItem("품목\t" + std::to_string(i));
  });
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(view_->model()->rowCount(), kItems + 3);
  EXPECT_EQ(view_->verticalHeader()->sectionResizeMode(kItems), QHeaderView::Fixed);
  Dispatch([this] { form_.FLEX1.Select(kItems, 0); });
  EXPECT_TRUE(view_->viewport()->rect().intersects(view_->visualRect(view_->currentIndex())))
      << "the current row is scrolled to";
  EXPECT_FALSE(window_->grab().isNull());
}

// What only comes into view by scrolling was not measured when the list was filled.
TEST_F(GridViewTest, MoneyFarDownAListIsNotCutEither) {
  Dispatch([this] {
    for (int i = 0; i < 400; ++i) form_.FLEX1.AddItem("품목\t1");
    form_.FLEX1.SetTextMatrix(350, 1, "123456789012");
  });
  const int needed = view_->fontMetrics().horizontalAdvance("123,456,789,012");
  window_->resize(230, 500);
  EXPECT_LT(view_->columnWidth(1), needed);
  view_->scrollToBottom();
  view_->scrollTo(view_->model()->index(349, 0));
  EXPECT_GE(view_->columnWidth(1), needed);
  Dispatch([this] { form_.FLEX1.SetTextMatrix(350, 1, "987654321012345"); });
  EXPECT_GE(view_->columnWidth(1), view_->fontMetrics().horizontalAdvance("987,654,321,012,345"));
}

TEST_F(GridViewTest, ANameIsNotCutWhereThereIsRoom) {
  const QString name =
      "국산 햇 유기농 현미로 지은 즉석밥 큰 그릇 스물네 개들이 한 상자 (방문 수령)";
  Dispatch([&] { form_.FLEX1.SetTextMatrix(1, 0, name.toStdString()); });
  window_->resize(900, 500);
  QCoreApplication::processEvents();
  EXPECT_GE(view_->columnWidth(0), view_->fontMetrics().horizontalAdvance(name));
  EXPECT_LT(view_->columnWidth(1), 100) << "a short figure leaves the rest to the name";
}

TEST_F(GridViewTest, ADraggedBorderStaysAndCutsNoMoney) {
  Dispatch([this] { form_.FLEX1.SetTextMatrix(1, 1, "58973000"); });
  QHeaderView& header = *view_->horizontalHeader();
  header.resizeSection(0, 200);
  EXPECT_EQ(view_->columnWidth(0), 200);
  EXPECT_EQ(view_->columnWidth(1), view_->viewport()->width() - 200);
  header.resizeSection(0, 2000);
  EXPECT_GE(view_->columnWidth(1), view_->fontMetrics().horizontalAdvance("58,973,000"));
  EXPECT_EQ(view_->columnWidth(0) + view_->columnWidth(1), view_->viewport()->width());
}

TEST_F(GridViewTest, TheHeadersMenuSwitchesAnOptionalColumn) {
  Dispatch([this] {
    form_.FLEX1.SetColumns({{.Header = "품명", .Alignment = Align::Left},
                            {.Header = "규격", .Hidden = true, .Optional = true}});
    form_.FLEX1.AddItem("우유\t1L");
  });
  const auto choose = [this] {
    QTimer::singleShot(0, [] {
      QWidget* menu = QApplication::activePopupWidget();
      ASSERT_NE(menu, nullptr);
      EXPECT_EQ(dynamic_cast<QMenu&>(*menu).actions().back()->text(), "창 배치 처음으로\tCtrl+0");
      LineOf(*menu, "규격")->trigger();
      menu->close();
    });
    QWidget* header = view_->horizontalHeader()->viewport();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, header->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(header, &asked);
  };
  EXPECT_TRUE(view_->isColumnHidden(1));
  choose();
  EXPECT_FALSE(view_->isColumnHidden(1));
  Dispatch([this] { form_.FLEX1.AddItem("콜라\t1.5L"); });
  EXPECT_FALSE(view_->isColumnHidden(1)) << "the form's own wish does not take it away";
  choose();
  EXPECT_TRUE(view_->isColumnHidden(1));
}

TEST_F(GridViewTest, TheGridFillsItsWidth) {
  for (const int width : {400, 900}) {
    window_->resize(width, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(view_->columnWidth(0) + view_->columnWidth(1), view_->viewport()->width());
  }
  Dispatch([this] { form_.FLEX1.SetTextMatrix(1, 1, "123456789012"); });
  window_->resize(230, 500);
  QCoreApplication::processEvents();
  EXPECT_GE(view_->columnWidth(1), view_->fontMetrics().horizontalAdvance("123,456,789,012"))
      << "money is never cut";
}

}  // namespace
}  // namespace store
