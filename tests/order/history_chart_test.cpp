#include "basics/dates.h"
#include "gateway/gateway.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

class HistoryChart : public OrderDesk {
 protected:
  /// Quantity of a day, and how many cells of its bar are left unpainted.
  std::string Day(int back) {
    const Grid& chart = Order().PRGHP;
    int bar = 0;
    for (int row = 6; row <= 15; ++row) bar += chart.Look(row, back).BackColor == 0xFFFFFF ? 0 : 1;
    return chart.TextMatrix(4, back) + ":" + std::to_string(bar);
  }
};

TEST_F(HistoryChart, ShowsEachOfThe31DaysByNumberAndBar) {
  Sale(1, "P0001", "20");
  Sale(1, "P0001", "20");
  Sale(2, "P0001", "10");
  Sale(3, "P0001", "-5");
  Sale(31, "P0001", "2");
  Sale(32, "P0001", "900");
  Sale(4, "P0002", "7");
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("8801000");
  form.FLEX2.SetRow(4);  // P0001
  ASSERT_EQ(form.FLEX2.TextMatrix(4, 0), "P0001");
  form.SetFocus(form.FLEX1);
  EXPECT_FALSE(form.Press(Key::F4));
  form.SetFocus(form.FLEX2);
  EXPECT_TRUE(form.Press(Key::F4));
  EXPECT_TRUE(form.PRGHP.Visible);
  EXPECT_EQ(Day(1), "40:10");
  EXPECT_EQ(Day(2), "10:2");  // 25 percent: two and a half rows, to even
  EXPECT_EQ(Day(3), "-5:0");
  EXPECT_EQ(form.PRGHP.TextMatrix(history::Offset, 3), "10") << "what came back has no bar";
  EXPECT_EQ(Day(4), "0:0");
  EXPECT_EQ(Day(31), "2:0");
  const CalendarDate yesterday = AddDays(Today(), -1);
  EXPECT_EQ(form.PRGHP.TextMatrix(0, 1), FormatDateValue(yesterday, "YYYY"));
  EXPECT_EQ(form.PRGHP.TextMatrix(2, 1), FormatDateValue(yesterday, "DD"));
  EXPECT_EQ(form.PRGHP.TextMatrix(3, 31), "31");
  EXPECT_TRUE(form.PRGHP.RowHidden(5));
  form.KeyDown(Key::F5);
  EXPECT_EQ(form.PRGHP.Columns()[31].Width, 100);
  form.KeyDown(Key::F6);
  EXPECT_EQ(form.PRGHP.Columns()[1].Width, 495);

  form.FLEX2.SetRow(1);  // an item that was never sold
  form.FLEX2_KeyDown(Key::F4);
  for (int back = 1; back <= 31; ++back) EXPECT_EQ(Day(back), "0:0") << back;
}

}  // namespace
}  // namespace store
