#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/HELP_BPR.h"
#include "lookup/party_lookups.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

class OtherLookups : public SmallStoreTest {
 protected:
  /// Searches for `text` and gives one column of what was found.
  std::string Find(LookupForm& form, const std::string& text, int column = 0) {
    form.Text1.SetText(text);
    form.Command1_Click();
    return ColumnText(form.FLEX1, column);
  }
  std::string Tab(LookupForm& form, int tab, int column = 0) {
    form.TabOne1_Click(tab);
    return ColumnText(form.FLEX1, column);
  }
};

TEST_F(OtherLookups, StoresAreTheOthers) {
  HELP_RCT form;
  EXPECT_EQ(Find(form, ""), "1000,1002");
  EXPECT_EQ(Find(form, "역점"), "");
  EXPECT_EQ(Find(form, "왕십"), "1002");
  EXPECT_EQ(RowText(form.FLEX1, 1), "1002|왕십리점|이왕십||서울 성동구 왕십리 3");
  Find(form, "본사");
  form.FLEX1_DblClick();
  EXPECT_EQ(form.ResultCode, "1000");
  EXPECT_EQ(form.ResultName, "본사");
  EXPECT_EQ(form.ResultPhone, "02-700-1000");
  EXPECT_EQ(form.ResultAddress, "서울 중구 을지로 1");
}

TEST_F(OtherLookups, TabsOfTheStoreWindowListPartners) {
  HELP_RCT form;
  EXPECT_EQ(Tab(form, 13), "C0008,C0001,C0002");
  form.GroupCode = "G1";
  EXPECT_EQ(Tab(form, 13), "C0001");
}

TEST_F(OtherLookups, DepotsComeWithTheWindow) {
  HELP_HCT form;
  form.StoreCode = "1001";
  host.OnModal("HELP_HCT", [&](Form&) {
    EXPECT_EQ(ColumnText(form.FLEX1, 1), "냉동고,매장,창고");
    form.FLEX1.SetRow(3);
    form.FLEX1_KeyDown(Key::Enter);
  });
  Host.ShowModal(form);
  EXPECT_EQ(form.ResultCode, "100102");
  EXPECT_EQ(form.ResultName, "창고");
}

TEST_F(OtherLookups, StaffAreFoundByAPartOfTheName) {
  HELP_ST form;
  EXPECT_EQ(Find(form, "김"), "u09,u01");
  form.FLEX1.SetRow(2);
  form.FLEX1_DblClick();
  EXPECT_EQ(form.ResultCode, "u01");
  EXPECT_EQ(form.ResultName, "김하나");
  EXPECT_EQ(form.ResultPhone, "010-1111-0001");
}

TEST_F(OtherLookups, TheSecondPersonListIsFoundWithItsPercentSigns) {
  HELP_CTM form;
  EXPECT_EQ(Find(form, "정미래"), "");
  EXPECT_EQ(Find(form, ""), "");
  EXPECT_EQ(Find(form, "미래"), "m02");
  form.FLEX1_DblClick();
  EXPECT_EQ(form.ResultCode, "m02");
  EXPECT_EQ(form.ResultName, "%미래%");
}

TEST_F(OtherLookups, ProductsAreFoundByNameBarcodeShortCodeOrSpecification) {
  HELP_BPR form;
  const struct {
    const char* text;
    const char* codes;  ///< The tax mark stands before the code.
  } cases[] = {
      {"감귤", " P0005"},
      {"간장", " P0006"},  // out of use is found as well
      {"8801000", " P0001"},
      {"88010001", "*P0002"},  // a barcode only as a whole
      {"8801", ""},
      {"104", "@P0004"},
      {"10", ""},
      {"/ml", "@P0004"},
      {"/kg", "*P0002, P0005, P0008"},
      {"/감귤", ""},
      {"감귤'", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(Find(form, c.text, 1), c.codes) << c.text;
}

TEST_F(OtherLookups, TheChosenProductIsGivenCodeFirst) {
  HELP_BPR form;
  Find(form, "참기름");
  EXPECT_EQ(RowText(form.FLEX1, 1), "104|@P0004|참기름|320ml|병|88010004| | ");
  form.FLEX1_DblClick();
  EXPECT_EQ(form.Results, (std::array<std::string, 8>{"@P0004", "참기름", "320ml", "병", "104",
                                                      "88010004", " ", " "}));
  HELP_BPR again;
  again.Results.fill("old");
  host.OnModal("HELP_BPR");
  Host.ShowModal(again);
  EXPECT_EQ(again.Results, (std::array<std::string, 8>{}));
}

TEST_F(OtherLookups, ProductTabsTakeNamesByTheirFirstSyllable) {
  HELP_BPR form;
  EXPECT_EQ(Tab(form, 9, 1), "@P0004");
  EXPECT_EQ(Tab(form, 2, 1), "*P0007");
  EXPECT_EQ(Tab(form, 13, 1), " P0005");
  EXPECT_EQ(Tab(form, 14, 1), " P0008,@P0009");
  form.Text1.SetText("소스");
  EXPECT_EQ(Tab(form, 13, 1), "");
  // The last tab's second bound stands beside the text, not within it.
  EXPECT_EQ(Tab(form, 14, 1), " P0008,@P0009");
}

TEST_F(OtherLookups, ANewProductIsRegisteredInItsOwnWindow) {
  HELP_BPR form;
  RegisterForm("NEW_PR", [] { return std::make_unique<Form>("NEW_PR"); });
  host.OnModal("NEW_PR");
  form.Command2_Click();
  EXPECT_EQ(host.FormsShown, (std::vector<std::string>{"NEW_PR"}));
}

}  // namespace
}  // namespace store
