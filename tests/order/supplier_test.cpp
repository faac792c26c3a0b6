#include <chrono>

#include "basics/records.h"
#include "forms/host.h"
#include "lookup/party_lookups.h"
#include "order/frm_Order.h"
#include "tests/order/order_desk.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

TEST_F(OrderDesk, ASupplierIsFoundByNameCodeOrPhone) {
  OrderForm& form = Open();
  const struct {
    const char* text;
    const char* code;
  } cases[] = {
      {"나래", "C0003"}, {"#C0001", "C0001"}, {"/555-0202", "C0002"}, {"하나식자재", "C0008"}};
  for (const auto& c : cases) {
    form.SetFocus(form.Text1);
    Supplier(c.text);
    EXPECT_EQ(form.Text1.Tag, c.code) << c.text;
    EXPECT_EQ(form.ActiveControl, &form.inBox) << c.text;
  }
}

TEST_F(OrderDesk, SeveralOrNoneOpenTheLookupWithTheTypedText) {
  OrderForm& form = Open();
  for (const char* text : {"한빛", "없는집", "#C0004", "o'neil"}) {
    host.OnModal("HELP_CT", [&](Form& shown) {
      auto& lookup = dynamic_cast<HELP_CT&>(shown);
      EXPECT_EQ(lookup.Text1.Text(), text);
    });
    Supplier(text);
    EXPECT_EQ(form.Text1.Text(), "") << text;
    EXPECT_EQ(form.Text1.Tag, "") << text;
    EXPECT_EQ(form.ActiveControl, &form.Text1) << text;
  }
  host.OnModal("HELP_CT", [](Form& shown) {
    auto& lookup = dynamic_cast<HELP_CT&>(shown);
    lookup.Text1_KeyDown(Key::Enter);
    lookup.FLEX1.SetRow(2);
    lookup.FLEX1_KeyDown(Key::Enter);
  });
  Supplier("한빛");
  EXPECT_EQ(form.Text1.Text(), "한빛식품");
  EXPECT_EQ(form.Text1.Tag, "C0002");
}

TEST_F(OrderDesk, AnyChangeOfTheSupplierThrowsTheLinesAway) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  ASSERT_EQ(Lines(), "P0005x1 ");
  form.Text1.SetText("한빛상");
  EXPECT_EQ(Lines(), "");
  EXPECT_EQ(form.LaAmt[0].Caption, "0");
}

TEST_F(OrderDesk, AnotherSupplierOfTheSameNameThrowsTheLinesAway) {
  Sql("UPDATE CT SET CT_NAME='한빛상사' WHERE CT_CODE='C0003'");
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  const auto choose = [&](const std::string& code) {
    host.OnModal("HELP_CT", [&](Form& shown) {
      auto& lookup = dynamic_cast<HELP_CT&>(shown);
      lookup.Command1_Click();
      lookup.FLEX1.SetRow(lookup.FLEX1.TextMatrix(1, 0) == code ? 1 : 2);
      lookup.FLEX1_DblClick();
    });
    form.Text1_KeyPress(Key::Enter);
    EXPECT_EQ(form.Text1.Tag, code);
  };
  choose("C0001");
  EXPECT_EQ(Lines(), "P0005x1 ") << "the same one again is no change";
  choose("C0003");
  EXPECT_EQ(form.Text1.Text(), "한빛상사");
  EXPECT_EQ(Lines(), "") << "their prices are the other one's";
}

TEST_F(OrderDesk, WithTheOptionOnOnlyTheStoresSettingsCount) {
  AppOptions.OrderInfoPartnersOnly = 1;
  Sql("DELETE FROM SAFEIV WHERE CT_CODE = ''");
  OrderForm& form = Open();
  EXPECT_EQ(RecordCountOf(SlotC), 0);
  Supplier("#C0004");  // of a level that is not offered otherwise
  EXPECT_EQ(form.Text1.Tag, "C0004");
  SetFilter(SlotC, "");
  EXPECT_EQ(FieldText(SlotC, 0), "P0004");
  EXPECT_EQ(RecordCountOf(SlotC), 1);
  host.OnModal("HELP_CT");
  Supplier("#C0003");  // ordered from by another store only
  EXPECT_EQ(form.Text1.Tag, "");
  EXPECT_EQ(RecordCountOf(SlotC), 0);
}

TEST_F(OrderDesk, WhoStopsTheItemListOfASupplierStopsWhatStandsBesideIt) {
  AppOptions.OrderInfoPartnersOnly = 1;
  auto& form = Open<frm_Order>(0);
  int stops = 0;
  Host.OfferStop = [&](std::chrono::milliseconds) { return ++stops > 0; };
  const Somebody keepsTheProducts("LOCK TABLES PR WRITE; DO SLEEP(2)");
  Supplier("#C0001");
  EXPECT_EQ(stops, 1) << "one Esc is enough";
  EXPECT_EQ(form.Text1.Tag, "C0001");
  EXPECT_EQ(ColumnText(form.PRHELP, 0), "") << "nothing of another supplier's is left standing";
}

TEST_F(OrderDesk, CategoriesStandThreeToARowAndFilterThePickList) {
  auto& form = Open<frm_Order>(0);
  Supplier("#C0001");
  ASSERT_EQ(form.PRHELP.Rows(), 1);
  EXPECT_EQ(form.PRHELP.TextMatrix(0, 0), "생활" + std::string(30, ' ') + "200000000000000");
  EXPECT_EQ(form.PRHELP.TextMatrix(0, 1), "식품" + std::string(30, ' ') + "100000000000000");
  EXPECT_EQ(form.PRHELP.TextMatrix(0, 2), "");
  form.PRHELP_Click(0, 0);
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0010,P0008");
  form.PRHELP_Click(0, 2);
  EXPECT_EQ(ColumnText(form.FLEX2, 0), "P0010,P0008");
}

}  // namespace
}  // namespace store
