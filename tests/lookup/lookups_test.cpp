#include "basics/records.h"
#include "forms/host.h"
#include "lookup/HELP_BPR.h"
#include "lookup/party_lookups.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

constexpr int kRestTab = 14;

using Texts = std::vector<std::string>;

/// What the caller is given.
Texts Results(const LookupForm& form) {
  if (const auto* product = dynamic_cast<const HELP_BPR*>(&form))
    return {product->Results.begin(), product->Results.end()};
  return {form.ResultCode, form.ResultName, form.ResultPhone, form.ResultAddress};
}

class Lookups : public SmallStoreTest {
 protected:
  /// Searches for `text` and gives one column of what was found.
  static std::string Find(LookupForm& form, const std::string& text, int column = 0) {
    form.Text1.SetText(text);
    form.Command1_Click();
    return ColumnText(form.FLEX1, column);
  }
  static std::string Tab(LookupForm& form, int tab, int column = 0) {
    form.TabOne1_Click(tab);
    return ColumnText(form.FLEX1, column);
  }

  HELP_CT partners;
};

TEST_F(Lookups, FindAndGiveTheChosenRow) {
  HELP_RCT stores;
  HELP_ST staff;
  HELP_CTM persons;
  HELP_BPR products;
  struct Case {
    LookupForm& form;
    const char* text;
    int column;
    const char* found;
    Texts results;  ///< Of the last row; empty where they are not looked at.
  };
  const Case cases[] = {
      {partners,
       "한빛",
       0,
       "C0001,C0002",
       {"C0002", "한빛식품", "02-555-0202", "경기 광주시 초월읍"}},
      {partners, "식", 0, "C0008,C0002", {}},
      // Every store but the session's own.
      {stores, "", 0, "1000,1002", {"1002", "왕십리점", "", "서울 성동구 왕십리 3"}},
      {stores, "본사", 0, "1000", {"1000", "본사", "02-700-1000", "서울 중구 을지로 1"}},
      {staff, "김", 0, "u09,u01", {"u01", "김하나", "010-1111-0001", ""}},
      // The second list is asked for equality, with the percent signs.
      {persons, "미래", 0, "m02", {"m02", "%미래%", "", ""}},
      {persons, "정미래", 0, "", {}},
      // A tax mark stands before the product's code.
      {products,
       "참기름",
       1,
       "@P0004",
       {"@P0004", "참기름", "320ml", "병", "104", "88010004", " ", " "}},
      {products, "간장", 1, " P0006", {}},  // out of use is found as well
      {products, "8801000", 1, " P0001", {}},
      {products, "88010001", 1, "*P0002", {}},  // a barcode only as a whole
      {products, "8801", 1, "", {}},
      {products, "104", 1, "@P0004", {}},
      {products, "/ml", 1, "@P0004", {}},
      {products, "/kg", 1, "*P0002, P0005, P0008", {}},
      // A quote breaks the statement, and nobody is told.
      {partners, "한빛'", 0, "", {}},
      {products, "감귤'", 1, "", {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.form.Name + " " + c.text);
    EXPECT_EQ(Find(c.form, c.text, c.column), c.found);
    if (c.results.empty()) continue;
    c.form.FLEX1.SetRow(c.form.FLEX1.Rows() - 1);
    c.form.FLEX1_DblClick();
    EXPECT_EQ(Results(c.form), c.results);
  }
}

TEST_F(Lookups, HidePartnersThatTheCallerCannotUse) {
  const struct {
    const char* what;
    const char* slipTable;
    const char* group;
    int setUpOnly;
    const char* found;
  } cases[] = {
      // Without details (C0007) or of another level (C0004) a partner is not offered.
      {"all", "PEM22", "", 0, "C0003,C0008,C0001,C0002,C0006,C0005"},
      {"purchase slip", "PEM23", "", 0, "C0008,C0001,C0002,C0006,C0005"},
      {"group", "PEM22", "G1", 0, "C0003,C0001"},
      {"group on a purchase slip", "PES23", "G1", 0, "C0001"},
      // What the store has set up counts whatever its level.
      {"set up", "PEM22", "", 1, "C0004,C0001,C0002"},
      {"set up, group", "PEM23", "G1", 1, "C0004,C0001"},
  };
  for (const auto& c : cases) {
    partners.SlipTable = c.slipTable;
    partners.GroupCode = c.group;
    AppOptions.OrderInfoPartnersOnly = static_cast<std::int16_t>(c.setUpOnly);
    EXPECT_EQ(Find(partners, ""), c.found) << c.what;
  }
}

TEST_F(Lookups, TabsTakeNamesByTheirFirstSyllable) {
  HELP_RCT stores;
  HELP_BPR products;
  const struct {
    LookupForm& form;
    const char* text;
    const char* group;
    int tab;
    const char* caption;
    const char* found;
  } cases[] = {
      {partners, "", "", 0, "가", ""},
      {partners, "", "", 1, "나", "C0003"},  // kind and level are not looked at here
      {partners, "", "", 2, "다", "C0004"},
      {partners, "", "", 12, "파", ""},
      {partners, "", "", 13, "하", "C0008,C0001,C0002"},
      {partners, "", "", kRestTab, "기타", "C0007,C0005"},
      {partners, "식", "", 13, "하", "C0008,C0002"},
      {partners, "", "G2", 13, "하", "C0008,C0002"},
      {partners, "", "G2", kRestTab, "기타", ""},
      // Those of the stores list partners too.
      {stores, "", "", 13, "하", "C0008,C0001,C0002"},
      {stores, "", "G1", 13, "하", "C0001"},
      {products, "", "", 9, "차", "@P0004"},
      {products, "", "", 2, "다", "*P0007"},
      {products, "", "", 13, "하", " P0005"},
      {products, "소스", "", 13, "하", ""},
      // The last tab's second bound stands beside the text, not within it.
      {products, "소스", "", kRestTab, "기타", " P0008,@P0009"},
  };
  partners.SlipTable = "PEM23";
  for (const auto& c : cases) {
    SCOPED_TRACE(c.form.Name + " " + c.caption);
    c.form.Text1.SetText(c.text);
    c.form.GroupCode = c.group;
    EXPECT_EQ(c.form.TabOne1.Captions.at(static_cast<size_t>(c.tab)), c.caption);
    EXPECT_EQ(Tab(c.form, c.tab, &c.form == &products ? 1 : 0), c.found);
    EXPECT_EQ(c.form.TabOne1.CurrTab, c.tab);
  }
  // A name that begins with the very letter that bounds the last tab is on none.
  for (int tab = 0; tab <= kRestTab; ++tab) {
    EXPECT_EQ(Tab(stores, tab).find("C0006"), std::string::npos);
  }
  AppOptions.OrderInfoPartnersOnly = 1;
  partners.GroupCode = "";
  EXPECT_EQ(Tab(partners, 13), "C0001,C0002");
  EXPECT_EQ(Tab(partners, 1), "");
}

TEST_F(Lookups, GoToTheFirstMatchAndStayWithTheTextWithoutOne) {
  partners.SetFocus(partners.Text1);
  Find(partners, "없는이름");
  EXPECT_EQ(partners.ActiveControl, &partners.Text1);
  EXPECT_EQ(partners.FLEX1.Row(), 0);
  partners.Text1.SetText("한빛");
  partners.Text1_KeyDown(Key::Enter);
  EXPECT_EQ(partners.ActiveControl, &partners.FLEX1);
  EXPECT_EQ(partners.FLEX1.Row(), 1);
  EXPECT_EQ(partners.FLEX1.Col(), 1);
  partners.SetFocus(partners.Text1);
  partners.Text1_KeyDown(Key::Down);
  EXPECT_EQ(partners.ActiveControl, &partners.FLEX1);
}

TEST_F(Lookups, CloseOnAChoiceAndGiveNothingWithoutOne) {
  HELP_BPR products;
  products.Results.fill("old");
  host.OnModal("HELP_BPR");
  Host.ShowModal(products);
  EXPECT_EQ(Results(products), Texts(8));

  partners.ResultCode = partners.ResultName = partners.ResultPhone = partners.ResultAddress = "old";
  host.OnModal("HELP_CT", [&](Form& form) {
    EXPECT_EQ(ColumnText(partners.FLEX1, 0), "");  // searched at once for a group only
    partners.FLEX1_DblClick();                     // the header is no partner
    EXPECT_FALSE(form.IsClosed());
    Find(partners, "한빛");
    EXPECT_TRUE(partners.KeyDown(Key::Escape));
    EXPECT_TRUE(form.IsClosed());
  });
  Host.ShowModal(partners);
  EXPECT_EQ(Results(partners), Texts(4));

  HELP_CT ofGroup;
  ofGroup.GroupCode = "G1";
  host.OnModal("HELP_CT", [&](Form& form) {
    EXPECT_EQ(ColumnText(ofGroup.FLEX1, 0), "C0003,C0001");
    EXPECT_EQ(ofGroup.ActiveControl, &ofGroup.FLEX1);
    EXPECT_EQ(ofGroup.FLEX1.Row(), 1);
    ofGroup.FLEX1_KeyDown(Key::Enter);
    EXPECT_TRUE(form.IsClosed());
  });
  Host.ShowModal(ofGroup);
  EXPECT_EQ(ofGroup.ResultCode, "C0003");
}

TEST_F(Lookups, DepotsComeWithTheWindow) {
  HELP_HCT form;
  form.StoreCode = "1001";
  host.OnModal("HELP_HCT", [&](Form&) {
    EXPECT_EQ(ColumnText(form.FLEX1, 1), "냉동고,매장,창고");
    EXPECT_FALSE(form.Text1.Visible);
    EXPECT_FALSE(form.TabOne1.Visible);
    form.FLEX1.SetRow(3);
    form.FLEX1_KeyDown(Key::Enter);
  });
  Host.ShowModal(form);
  EXPECT_EQ(Results(form), (Texts{"100102", "창고", "", ""}));
}

}  // namespace
}  // namespace store
