// The order form in its window, as far as no database is needed.
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "forms/host.h"
#include "order/frm_Order.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/grid_view.h"
#include "ui/store_windows.h"

namespace store {
namespace {

class OrderWindowTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    RegisterStoreWindows();
    Host.Show(form_);
    window_ = TheDesk().WindowOf(form_);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
    // The first activation gives the keyboard to the supplier.
    ASSERT_TRUE(QTest::qWaitFor([this] { return form_.ActiveControl == &form_.Text1; }));
    Dispatch([this] {
      form_.FLEX1.AddItem("\t1000001\t8801\r 우유\t\t0\t1000\t\t5\t5000\t500\t5500");
      form_.FLEX1.AddItem("\t1000002\t8802\r 콜라\t\t0\t2000\t\t1\t2000\t200\t2200");
      form_.FLEX1.SetRow(1);
    });
  }
  void TearDown() override {
    TheDesk().CloseWindow(form_);
    DeskTest::TearDown();
  }
  QLineEdit& Box() { return Find<QLineEdit>(*window_, "inBox"); }

  frm_Order form_;
  FormWindow* window_ = nullptr;
};

TEST_F(OrderWindowTest, TypingOnTheLinesIsTypingInTheBox) {
  GridView& lines = FindGrid(*window_, "FLEX1");
  Dispatch([this] { form_.inBox.SetText("그전"); });
  lines.setFocus();
  QTest::keyClick(&lines, Qt::Key_8);
  EXPECT_TRUE(Box().hasFocus());
  QTest::keyClicks(window_->focusWidget(), "801");
  EXPECT_EQ(form_.inBox.Text(), "8801") << "a scanner's first digit must not be lost or selected";
}

TEST_F(OrderWindowTest, AKeyLeadsFromTheBoxToThePickListAndBack) {
  Box().setFocus();
  Dispatch([this] { form_.FLEX2.AddItem("1000002\t\t\t8802\t콜라"); });
  QTest::keyClick(&Box(), Qt::Key_Down, Qt::ControlModifier);
  EXPECT_TRUE(FindGrid(*window_, "FLEX2").hasFocus());
  EXPECT_EQ(form_.FLEX2.Row(), 1) << "a quantity can be typed at once";
  QTest::keyClick(window_->focusWidget(), Qt::Key_Up, Qt::ControlModifier);
  EXPECT_TRUE(Box().hasFocus());
}

TEST_F(OrderWindowTest, TheBoxWalksAndFiltersTheLinesAsTheyAreSeen) {
  GridView& lines = FindGrid(*window_, "FLEX1");
  Dispatch([this] {
    form_.FLEX1.AddItem("\t1000003\t8803\r 라면\t\t0\t900\t\t1\t900\t90\t990");
    form_.FLEX1.SetRow(3);
  });
  lines.SortBy(2, RowOrder::Descending);  // 콜라 우유 라면
  Box().setFocus();
  QTest::keyClick(window_->focusWidget(), Qt::Key_Up);
  EXPECT_EQ(form_.FLEX1.Row(), 1);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Up);
  EXPECT_EQ(form_.FLEX1.Row(), 2);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Up);
  EXPECT_EQ(form_.FLEX1.Row(), 2);
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(window_->focusWidget(), "8803");
  EXPECT_EQ(form_.FLEX1.Row(), 3);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(Box().hasFocus());
  EXPECT_FALSE(form_.IsClosed());
  QTest::keyClick(&Box(), Qt::Key_Delete);
  EXPECT_EQ(form_.FLEX1.Rows(), 3);
  EXPECT_EQ(form_.FLEX1.TextMatrix(form_.FLEX1.Row(), 1), "1000001") << "the line seen above it";
}

TEST_F(OrderWindowTest, AScanIntoTheFilterIsAScan) {
  std::string entered;
  form_.inBox.KeyDown = [&](Key key) {
    if (key == Key::Enter) entered = form_.inBox.Text();
  };
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(window_->focusWidget(), "8800000000001");
  QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return entered == "8800000000001"; }));
  EXPECT_FALSE(FindGrid(*window_, "FLEX1").FilterIsOpen());
}

TEST_F(OrderWindowTest, AStoredSlipCannotBeSavedByItsKey) {
  bool boxShown = false;
  Host.MsgBox = [&](const std::string&, int, const std::string&) {
    boxShown = true;
    return box::Ok;
  };
  Dispatch([this] { form_.LaBtn[0].Enabled = form_.LaBtn[1].Enabled = false; });
  QTest::keyClick(window_->focusWidget(), Qt::Key_F9);
  QTest::keyClick(window_->focusWidget(), Qt::Key_F9, Qt::ShiftModifier);
  EXPECT_FALSE(boxShown) << "a save without a date in its key ends in a box";
  Dispatch([this] { form_.LaBtn[0].Enabled = true; });
  QTest::keyClick(window_->focusWidget(), Qt::Key_F9);
  EXPECT_TRUE(boxShown);
}

TEST_F(OrderWindowTest, TheHistoryIsSeenWhenTheFormShowsIt) {
  auto& history = Find<QWidget>(*window_, "PRGHP");
  EXPECT_FALSE(history.isVisible());
  Dispatch([this] { form_.PRGHP.Visible = true; });
  EXPECT_TRUE(history.isVisible());
  const int wide = history.sizeHint().height();
  QTest::keyClick(window_->focusWidget(), Qt::Key_F5);
  EXPECT_LT(history.sizeHint().height(), wide) << "narrow, it is out of the way";
}

TEST_F(OrderWindowTest, NothingIsCutOnASmallScreen) {
  EXPECT_LE(window_->minimumSizeHint().width(), 960);
  EXPECT_LE(window_->minimumSizeHint().height(), 540);
}

}  // namespace
}  // namespace store
