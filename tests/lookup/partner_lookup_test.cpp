#include "basics/records.h"
#include "forms/host.h"
#include "lookup/party_lookups.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

constexpr int kRestTab = 14;

class PartnerLookup : public SmallStoreTest {
 protected:
  std::string Found() { return ColumnText(form.FLEX1, 0); }
  std::string Find(const std::string& text) {
    form.Text1.SetText(text);
    form.Command1_Click();
    return Found();
  }
  std::string Tab(int tab) {
    form.TabOne1_Click(tab);
    return Found();
  }

  HELP_CT form;
};

TEST_F(PartnerLookup, FindsByAPartOfTheNameInNameOrder) {
  EXPECT_EQ(Find("한빛"), "C0001,C0002");
  EXPECT_EQ(RowText(form.FLEX1, 1), "C0001|한빛상사|한대표|02-555-0101|서울 성동구 뚝섬로 1");
  EXPECT_EQ(RowText(form.FLEX1, 2), "C0002|한빛식품||02-555-0202|경기 광주시 초월읍");
  EXPECT_EQ(Find("식"), "C0008,C0002");
  EXPECT_EQ(Find("없는이름"), "");
  EXPECT_EQ(Find("한빛"), "C0001,C0002");
  EXPECT_EQ(Find("한빛'"), "");  // breaks the statement; nobody is told
}

TEST_F(PartnerLookup, HidesPartnersThatTheCallerCannotUse) {
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
    form.SlipTable = c.slipTable;
    form.GroupCode = c.group;
    AppOptions.OrderInfoPartnersOnly = static_cast<std::int16_t>(c.setUpOnly);
    EXPECT_EQ(Find(""), c.found) << c.what;
  }
}

TEST_F(PartnerLookup, TabsTakeNamesByTheirFirstSyllable) {
  ASSERT_EQ(form.TabOne1.Captions.size(), 15u);
  const struct {
    int tab;
    const char* caption;
    const char* found;
  } cases[] = {
      {0, "가", ""},
      {1, "나", "C0003"},
      {2, "다", "C0004"},  // its level is not looked at here
      {12, "파", ""},
      {13, "하", "C0008,C0001,C0002"},
      {kRestTab, "기타", "C0007,C0005"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(form.TabOne1.Captions[static_cast<size_t>(c.tab)], c.caption);
    EXPECT_EQ(Tab(c.tab), c.found) << c.caption;
    EXPECT_EQ(form.TabOne1.CurrTab, c.tab);
  }
  // A name that begins with the very letter that bounds the last tab is on none.
  for (int tab = 0; tab <= kRestTab; ++tab) EXPECT_EQ(Tab(tab).find("C0006"), std::string::npos);
}

TEST_F(PartnerLookup, TabsKeepTextGroupAndSetUp) {
  form.Text1.SetText("식");
  EXPECT_EQ(Tab(13), "C0008,C0002");
  form.Text1.SetText("");
  form.GroupCode = "G2";
  EXPECT_EQ(Tab(13), "C0008,C0002");
  EXPECT_EQ(Tab(kRestTab), "");
  form.GroupCode = "";
  form.SlipTable = "PEM23";
  EXPECT_EQ(Tab(1), "C0003");  // the partner's kind is not looked at either
  AppOptions.OrderInfoPartnersOnly = 1;
  EXPECT_EQ(Tab(13), "C0001,C0002");
  EXPECT_EQ(Tab(1), "");
}

TEST_F(PartnerLookup, GoesToTheFirstMatchAndStaysWithTheTextWithoutOne) {
  form.SetFocus(form.Text1);
  Find("없는이름");
  EXPECT_EQ(form.ActiveControl, &form.Text1);
  EXPECT_EQ(form.FLEX1.Row(), 0);
  form.Text1.SetText("한빛");
  form.Text1_KeyDown(Key::Enter);
  EXPECT_EQ(form.ActiveControl, &form.FLEX1);
  EXPECT_EQ(form.FLEX1.Row(), 1);
  EXPECT_EQ(form.FLEX1.Col(), 1);
  form.SetFocus(form.Text1);
  form.Text1_KeyDown(Key::Down);
  EXPECT_EQ(form.ActiveControl, &form.FLEX1);
}

TEST_F(PartnerLookup, GivesTheChosenRowAndCloses) {
  host.OnModal("HELP_CT", [&](Form&) {
    form.FLEX1_DblClick();  // the header is no partner
    EXPECT_FALSE(form.IsClosed());
    Find("한빛");
    form.FLEX1.SetRow(2);
    form.FLEX1_KeyDown(Key::Enter);
    EXPECT_TRUE(form.IsClosed());
  });
  Host.ShowModal(form);
  EXPECT_EQ(form.ResultCode, "C0002");
  EXPECT_EQ(form.ResultName, "한빛식품");
  EXPECT_EQ(form.ResultPhone, "02-555-0202");
  EXPECT_EQ(form.ResultAddress, "경기 광주시 초월읍");
}

TEST_F(PartnerLookup, ClosedWithoutAChoiceGivesNothing) {
  form.ResultCode = form.ResultName = form.ResultPhone = form.ResultAddress = "old";
  host.OnModal("HELP_CT", [&](Form&) {
    Find("한빛");
    EXPECT_TRUE(form.KeyDown(Key::Escape));
    EXPECT_TRUE(form.IsClosed());
  });
  Host.ShowModal(form);
  EXPECT_EQ(form.ResultCode + form.ResultName + form.ResultPhone + form.ResultAddress, "");
}

TEST_F(PartnerLookup, OpensFilledForAGroupAndEmptyOtherwise) {
  host.OnModal("HELP_CT", [&](Form&) { EXPECT_EQ(Found(), ""); });
  Host.ShowModal(form);
  HELP_CT ofGroup;
  ofGroup.GroupCode = "G1";
  host.OnModal("HELP_CT", [&](Form&) {
    EXPECT_EQ(ColumnText(ofGroup.FLEX1, 0), "C0003,C0001");
    EXPECT_EQ(ofGroup.ActiveControl, &ofGroup.FLEX1);
    EXPECT_EQ(ofGroup.FLEX1.Row(), 1);
  });
  Host.ShowModal(ofGroup);
}

}  // namespace
}  // namespace store
