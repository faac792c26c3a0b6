#include "order/recent_suppliers.h"

#include "basics/records.h"
#include "lookup/party_lookups.h"
#include "order/frm_Order.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

class RecentSuppliersTest : public OrderDesk {
 protected:
  static std::string Shown(const OrderForm& form) {
    std::string entries;
    for (const std::string& entry : form.Recent.Entries) entries += entry + ",";
    return entries;
  }
};

TEST_F(RecentSuppliersTest, WhoWasChosenStandsFirstAndOnceForThatUserAndStore) {
  OrderForm& form = Open();
  EXPECT_FALSE(form.Recent.Enabled);
  form.Press(Key::Down, &form.Text1);
  EXPECT_EQ(form.Recent.Openings(), 0u);
  Supplier("#C0001");
  Supplier("나래");
  host.OnModal("HELP_CT", [](Form& shown) {
    dynamic_cast<HELP_CT&>(shown).ResultCode = "C0002";
    dynamic_cast<HELP_CT&>(shown).ResultName = "한빛식품";
  });
  form.LaCTHELP_Click();
  host.OnModal("HELP_CT");  // left without a choice
  Supplier("없는집");
  Supplier("#C0001");
  EXPECT_EQ(Shown(form), "한빛상사   C0001,한빛식품   C0002,나래유통   C0003,");
  EXPECT_TRUE(form.Press(Key::Down, &form.Text1));
  EXPECT_EQ(form.Recent.Openings(), 1u);

  form.Close();
  ReleaseDroppedForms();
  EXPECT_EQ(Shown(Open()), "한빛상사   C0001,한빛식품   C0002,나래유통   C0003,");
  Session.UserCode = "u02";
  EXPECT_TRUE(RecentSuppliers().empty());
  Session.UserCode = "u01";
  Session.StoreCode = "1002";
  EXPECT_TRUE(RecentSuppliers().empty());
}

TEST_F(RecentSuppliersTest, TenAreRemembered) {
  for (int i = 1; i <= 12; ++i) {
    NoteRecentSupplier({"C" + std::to_string(i), "거래처 " + std::to_string(i)});
  }
  NoteRecentSupplier({"C5", "새 이름"});
  const std::vector<RecentSupplier> suppliers = RecentSuppliers();
  ASSERT_EQ(suppliers.size(), 10u);
  EXPECT_EQ(suppliers[0], (RecentSupplier{"C5", "새 이름"}));
  EXPECT_EQ(suppliers[1].Code, "C12");
  EXPECT_EQ(suppliers[9].Code, "C3");
}

TEST_F(RecentSuppliersTest, AnEntryIsChosenAsInTheLookup) {
  OrderForm& form = Open();
  Supplier("나래");
  Supplier("#C0001");
  Sql("UPDATE CT SET CT_NAME='나래새이름' WHERE CT_CODE='C0003'");
  Enter("88010005");
  form.SetFocus(form.Text1);
  form.Recent_Click(0);  // the same one again is no change
  EXPECT_EQ(Lines(), "P0005x1 ");
  form.Recent_Click(1);
  EXPECT_EQ(form.Text1.Text() + "/" + form.Text1.Tag, "나래새이름/C0003");
  EXPECT_EQ(Lines(), "");
  EXPECT_EQ(form.ActiveControl, &form.inBox);
  EXPECT_EQ(Shown(form), "나래새이름   C0003,한빛상사   C0001,");
}

// The supplier's items come with the choice, as in the lookup.
TEST_F(RecentSuppliersTest, WithTheOptionOnTheStoresSettingsDecide) {
  AppOptions.OrderInfoPartnersOnly = 1;
  NoteRecentSupplier({"C0003", "나래유통"});
  NoteRecentSupplier({"C0001", "한빛상사"});
  OrderForm& form = Open();
  form.Recent_Click(0);
  EXPECT_EQ(RecordCountOf(SlotC), 2);
  host.OnModal("HELP_CT", [](Form& shown) {
    EXPECT_EQ(dynamic_cast<HELP_CT&>(shown).Text1.Text(), "나래유통");
  });
  form.Recent_Click(1);
  EXPECT_EQ(form.Text1.Text() + form.Text1.Tag, "");
  EXPECT_EQ(Shown(form), "한빛상사   C0001,");
}

TEST_F(RecentSuppliersTest, WithoutAnAnswerNobodyLeavesTheList) {
  OrderForm& form = Open();
  Supplier("#C0001");
  Enter("88010005");
  Disconnect();
  host.ExpectBox("서버에 물어볼 수 없어");
  form.Recent_Click(0);
  Reconnect();
  EXPECT_EQ(Lines(), "P0005x1 ");
  EXPECT_EQ(Shown(form), "한빛상사   C0001,");
}

TEST_F(RecentSuppliersTest, AnOrderToBeLookedAtOffersNone) {
  NoteRecentSupplier({"C0001", "한빛상사"});
  EXPECT_TRUE(Open("202405171001u01220001").Recent.Enabled);
  Order().Close();
  ReleaseDroppedForms();
  EXPECT_FALSE(Open("202405171001u01220002").Recent.Enabled);
}

}  // namespace
}  // namespace store
