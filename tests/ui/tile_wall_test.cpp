// The wall of tiles by itself, and the quick-pick panel in its window.
#include "ui/tile_wall.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>
#include <QtTest>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "order/frm_OrderPLU.h"
#include "order/order_form.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/store_windows.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kRows = 4001;  // of twenty thousand tiles and two, that is with three gaps

/// A wall over a grid that counts the rows which were looked at.
class TileWallTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    grid_.SetColumns(std::vector<GridColumn>(5), 0);
    grid_.SetRowsMadeLater(kRows, [this](int row) {
      ++made_;
      const std::string text = "품목 " + std::to_string(row) + "\n1kg\n8801\nCODE:P1";
      return std::vector<std::string>(row == kRows - 1 ? 2 : 5, text);
    });
    wall_.resize(800, 400);
    wall_.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wall_));
    wall_.setFocus();
    Follow();
  }
  void Follow() {
    wall_.Follow();
    QCoreApplication::processEvents();
  }
  std::string Press(int key) {
    QTest::keyClick(&wall_, static_cast<Qt::Key>(key));
    Follow();
    return std::to_string(grid_.Row()) + "/" + std::to_string(grid_.Col());
  }
  bool IsSeen(int row) { return wall_.viewport()->rect().contains(wall_.TileAt(row, 0)); }
  int ScreenRows() const { return wall_.viewport()->height() / wall_.TileHeight() + 2; }

  Grid grid_;
  TileWall wall_{grid_, "CODE:"};
  int made_ = 0;
};

TEST_F(TileWallTest, OnlyTilesOnTheScreenAreMade) {
  EXPECT_GT(made_, 3);
  EXPECT_LE(made_, ScreenRows());
  made_ = 0;
  grid_.SetTopRow(2000);
  Follow();
  EXPECT_EQ(wall_.TileAt(2000, 0).top(), 0);
  Press(Qt::Key_End);
  EXPECT_LE(made_, 2 * ScreenRows());
}

TEST_F(TileWallTest, TheKeysWalkFromTileToTileAndIntoNoGap) {
  const struct {
    int key;
    const char* place;
  } walk[] = {{Qt::Key_Up, "0/0"},      {Qt::Key_Left, "0/0"},    {Qt::Key_Right, "0/1"},
              {Qt::Key_Down, "1/1"},    {Qt::Key_Left, "1/0"},    {Qt::Key_Left, "0/4"},
              {Qt::Key_Right, "1/0"},   {Qt::Key_End, "4000/1"},  {Qt::Key_Right, "4000/1"},
              {Qt::Key_Down, "4000/1"}, {Qt::Key_Left, "4000/0"}, {Qt::Key_Left, "3999/4"},
              {Qt::Key_Down, "4000/1"}, {Qt::Key_Home, "0/0"},    {Qt::Key_A, "0/0"}};
  for (const auto& step : walk) {
    EXPECT_EQ(Press(step.key), step.place) << step.key;
    EXPECT_TRUE(IsSeen(grid_.Row())) << step.place;
  }
  wall_.verticalScrollBar()->setValue(5000);
  Press(Qt::Key_Home);
  EXPECT_TRUE(IsSeen(0)) << "also to a tile that was current and had been scrolled away from";

  // Ten tiles end with a row; the one below it is all gaps.
  grid_.SetRowsMadeLater(
      3, [](int row) { return std::vector<std::string>(row == 2 ? 0 : 5, "품목"); });
  grid_.Select(1, 0);
  EXPECT_EQ(Press(Qt::Key_Down), "1/0");
  EXPECT_EQ(Press(Qt::Key_End), "1/4");
}

TEST_F(TileWallTest, ATileIsForAFingerAndTheWallForAnySize) {
  EXPECT_GE(wall_.TileAt(0, 0).height(), 48);
  for (const int width : {500, 1001}) {
    wall_.resize(width, 300);
    QCoreApplication::processEvents();
    const int left = wall_.viewport()->rect().right() - wall_.TileAt(0, 4).right();
    EXPECT_TRUE(left >= 0 && left < 5) << left;
    EXPECT_LT(wall_.TileAt(0, 0).right(), wall_.TileAt(0, 1).left());
  }
}

TEST_F(TileWallTest, TheTopRowBothWays) {
  QWheelEvent notch({50, 50}, wall_.mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(wall_.viewport(), &notch);
  EXPECT_GT(wall_.verticalScrollBar()->value(), wall_.TileHeight() / 2);
  wall_.verticalScrollBar()->setValue(10 * wall_.TileHeight());
  EXPECT_EQ(grid_.TopRow(), 10);
  grid_.SetTopRow(14);
  Follow();
  EXPECT_EQ(wall_.TileAt(14, 0).top(), 0);
  grid_.SetTopRow(kRows);
  Follow();
  EXPECT_TRUE(IsSeen(kRows - 1));
  EXPECT_LT(grid_.TopRow(), kRows - 3) << "where the wall has come to rest, not what was asked for";
}

TEST_F(TileWallTest, TheTipIsTheTileUnderThePointerWithoutItsCode) {
  std::string moved;
  grid_.MouseMove = [&](int row, int col) {
    moved = std::to_string(row) + "/" + std::to_string(col);
  };
  const QPoint at = wall_.TileAt(1, 2).center();
  QTest::mouseMove(wall_.viewport(), at);
  EXPECT_EQ(moved, "1/2");
  QHelpEvent help(QEvent::ToolTip, at, wall_.viewport()->mapToGlobal(at));
  QCoreApplication::sendEvent(wall_.viewport(), &help);
  EXPECT_TRUE(QToolTip::text().contains("품목 1<br>1kg<br>8801<")) << qPrintable(QToolTip::text());
}

TEST_F(TileWallTest, ThePictureShowsTheCurrentTileAndNoGap) {
  grid_.SetRowsMadeLater(1, [](int) { return std::vector<std::string>{"우유\n1L\n8801", "콜라"}; });
  grid_.Select(0, 1);
  Follow();
  const QImage picture = wall_.viewport()->grab().toImage();
  const auto ground = [&](int column) {
    return picture.pixelColor(wall_.TileAt(0, column).bottomRight() - QPoint(12, 12));
  };
  EXPECT_EQ(ground(0), QColor(look::Paper));
  EXPECT_EQ(ground(1), QColor(look::CurrentRow));
  EXPECT_EQ(ground(2), QColor(look::Window));
}

/// The panel in front of another form, on a list of 52 items and without a database.
class QuickPickWindowTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    RegisterStoreWindows();
    RegisterOrderForms();
    PickList.Clear();
    auto items = std::make_shared<Recordset>(std::vector<std::string>(11, "FIELD"));
    for (int item = 1; item <= 52; ++item) {
      const std::string number = std::to_string(item);
      for (const std::string& field : {"P" + number, "품목" + number, std::string("1kg")})
        items->Append(field);
      for (int field = 3; field < 11; ++field) items->Append("");
      items->EndRow();
    }
    items->Seal();
    SlotC = items;
    Panel().ListMode = -1;
    Open(caller_);
  }
  void TearDown() override {
    DeskTest::TearDown();
    SlotC.reset();
  }
  static frm_OrderPLU& Panel() { return dynamic_cast<frm_OrderPLU&>(*TheForm("frm_OrderPLU")); }
  static TileWall& Wall(QWidget& window) {
    return dynamic_cast<TileWall&>(Find<QAbstractScrollArea>(window, "PRHELP_0"));
  }
  /// Shows the panel modally; `use` works in its window once its form has begun.
  void Show(const std::function<void(QWidget&)>& use) {
    WhenModal([&use](QWidget& window) {
      EXPECT_TRUE(QTest::qWaitFor(
          [&] { return dynamic_cast<FormWindow&>(window).HasBegun() && Wall(window).hasFocus(); }));
      use(window);
    });
    bool cameBack = false;
    Dispatch([&] {
      Host.ShowModal(Panel());
      cameBack = true;
    });
    EXPECT_TRUE(cameBack);
    EXPECT_TRUE(QTest::qWaitForWindowActive(TheDesk().WindowOf(caller_)));
  }
  static void DoubleClick(QWidget& window, int row, int column) {
    TileWall& wall = Wall(window);
    const QPoint at = wall.TileAt(row, column).center();
    QTest::mouseClick(wall.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(wall.viewport(), Qt::LeftButton, {}, at);
  }

  ProbeForm caller_;
};

TEST_F(QuickPickWindowTest, HidesAfterAPickAndStandsAsItWasLeftTheNextTime) {
  int scrolledTo = 0;
  Show([&](QWidget& window) {
    QTest::keyClick(window.focusWidget(), Qt::Key_PageDown);
    scrolledTo = Wall(window).verticalScrollBar()->value();
    EXPECT_GT(scrolledTo, 0);
    DoubleClick(window, Panel().PRHELP[0].TopRow() + 1, 2);
    EXPECT_FALSE(window.isVisible());
  });
  const int row = Panel().PRHELP[0].Row();
  EXPECT_EQ(PickList.At(0, 0), "P" + std::to_string(row * 5 + 3));
  SlotC.reset();
  Show([&](QWidget& window) {
    EXPECT_EQ(Wall(window).verticalScrollBar()->value(), scrolledTo);
    EXPECT_EQ(Panel().PRHELP[0].Row(), row);
    QTest::keyClick(window.focusWidget(), Qt::Key_Right);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(PickList.At(0, 0), "P" + std::to_string(row * 5 + 4));
  Show([](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); });
  EXPECT_NE(OpenForm("frm_OrderPLU"), nullptr);
  EXPECT_EQ(PickList.At(0, 0), "P" + std::to_string(row * 5 + 4)) << "Esc leaves the last pick";
}

TEST_F(QuickPickWindowTest, ItsButtonsPickPageAndClose) {
  Show([](QWidget& window) {
    Find<QPushButton>(window, "Image1_0").click();
    EXPECT_EQ(Panel().PRHELP[0].Row(), 4);
    Find<QPushButton>(window, "Image1_1").click();
    EXPECT_EQ(Panel().PRHELP[0].TopRow(), 0);
    DoubleClick(window, 10, 4);  // behind the last tile, on no row that is in view
    QTest::keyClick(window.focusWidget(), Qt::Key_W, Qt::ControlModifier);
  });
  EXPECT_EQ(OpenForm("frm_OrderPLU"), nullptr) << "closed, not hidden";
}

}  // namespace
}  // namespace store
