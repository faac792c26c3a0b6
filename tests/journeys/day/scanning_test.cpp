#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "gateway/gateway.h"
#include "slips/item_list.h"
#include "tests/journeys/day/store_day.h"
#include "tests/journeys/hands.h"
#include "tests/support/private_server.h"
#include "ui/form_window.h"

namespace store {
namespace {

constexpr int kScans = 200;

/// What a scanner sends, put into the queue without waiting for anything.
void PostScan(QWidget& box, const std::string& barcode) {
  const auto post = [&](int key, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QCoreApplication::postEvent(&box, new QKeyEvent(type, key, Qt::NoModifier, text));
    }
  };
  for (const char digit : barcode) post(Qt::Key_0 + (digit - '0'), QString(QChar(digit)));
  post(Qt::Key_Return, "\r");
}

class Scanning : public StoreDay {
 protected:
  void SetUp() override {
    StoreDay::SetUp();
    std::string products =
        "INSERT INTO PR (PR_CODE,PR_NAME,KD_ID,PR_BCODE,PR_END,PR_TAX2,PR_OP1) VALUES ";
    for (int i = 0; i < kScans; ++i) {
      const std::string number = std::to_string(1000 + i);
      products += Splice("{comma}('S{n}','스캔 {n}','100','{barcode}','0','0',{n})",
                         "comma"_a = i > 0 ? "," : "", "n"_a = number, "barcode"_a = Barcode(i));
    }
    Sql(products);
    OpenItemList();
  }
  static std::string Barcode(int i) { return "880555550" + std::to_string(1000 + i); }
};

TEST_F(Scanning, TwoHundredInARowAreAllThereOnceEach) {
  Hands::Press(Hands::Window("frm_Start"), Qt::Key_F2);
  FormWindow& order = Hands::Window("frm_Order");
  ASSERT_TRUE(Hands::Wait([&] { return Order().Combo1.ListIndex() == 0; }));  // ready for a person
  Hands::Type(order, "#C0001");
  Hands::Press(order, Qt::Key_Return);
  ASSERT_EQ(Order().Text1.Tag, "C0001");
  auto& scanned = *order.findChild<QLineEdit*>("inBox");
  ASSERT_TRUE(scanned.hasFocus());
  for (int i = 0; i < kScans; ++i) PostScan(scanned, Barcode(i));
  ASSERT_TRUE(
      Hands::Wait([&] { return Order().FLEX1.Rows() > kScans && scanned.text().isEmpty(); }));
  ASSERT_EQ(Order().FLEX1.Rows(), kScans + 1);
  for (int row = 1; row <= kScans; ++row) {
    EXPECT_EQ(Order().FLEX1.TextMatrix(row, 1), "S" + std::to_string(1000 + kScans - row));
    EXPECT_EQ(Order().FLEX1.TextMatrix(row, 7), "1");
  }
  PostScan(scanned, Barcode(0));  // again: its line moves to the top, none is added
  ASSERT_TRUE(Hands::Wait([&] { return Order().FLEX1.TextMatrix(1, 1) == "S1000"; }));
  EXPECT_EQ(Order().FLEX1.Rows(), kScans + 1);
}

}  // namespace
}  // namespace store
