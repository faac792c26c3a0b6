#include "lookup/partner_help.h"

#include "lookup/party_lookups.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

class PartnerHelpTest : public SmallStoreTest {
 protected:
  /// Types `text` and asks for the partner.
  bool Resolve(const std::string& text) {
    box.SetText(text);
    return PartnerHelp(box);
  }
  /// The window comes up, shows these codes behind this text, and the user takes row `row`; 0
  /// leaves it without a choice.
  void ExpectWindow(const std::string& text, const std::string& codes, int row) {
    host.OnModal("HELP_CT", [=](Form& form) {
      auto& lookup = dynamic_cast<HELP_CT&>(form);
      EXPECT_EQ(lookup.Text1.Text(), text);
      EXPECT_EQ(ColumnText(lookup.FLEX1, 0), codes);
      if (row == 0) return;
      lookup.FLEX1.SetRow(row);
      lookup.FLEX1_KeyDown(Key::Enter);
    });
  }

  TextBox box;
};

TEST_F(PartnerHelpTest, NamesASinglePartnerWithoutAWindow) {
  for (const char* text : {"나래", "C0003", "/777-0303"}) {
    EXPECT_TRUE(Resolve(text)) << text;
    EXPECT_EQ(box.Text(), "C0003 나래유통") << text;
  }
  // Level and kind are not looked at.
  EXPECT_TRUE(Resolve("ABC"));
  EXPECT_EQ(box.Text(), "C0007 ABC무역");
}

TEST_F(PartnerHelpTest, OffersSeveralPartnersForAChoice) {
  ExpectWindow("", "C0001,C0002", 2);
  EXPECT_TRUE(Resolve("한빛"));
  EXPECT_EQ(box.Text(), "C0002 한빛식품");
  ExpectWindow("", "C0001,C0002", 1);
  EXPECT_TRUE(Resolve("/02-555"));
  EXPECT_EQ(box.Text(), "C0001 한빛상사");
}

TEST_F(PartnerHelpTest, OffersAChoiceForACodeThatIsPartOfAnothersName) {
  Sql("UPDATE CT SET CT_NAME = '옛 C0003 매장' WHERE CT_CODE = 'C0008'");
  ExpectWindow("", "C0003,C0008", 1);
  EXPECT_TRUE(Resolve("C0003"));
  EXPECT_EQ(box.Text(), "C0003 나래유통");
}

TEST_F(PartnerHelpTest, SearchesOnWithWhatWasTypedWhenNothingMatches) {
  ExpectWindow("없는이름", "", 0);
  EXPECT_FALSE(Resolve("없는이름"));
  EXPECT_EQ(box.Text(), "");
  // A quote and a dead database look the same as no match.
  ExpectWindow("한빛'", "", 0);
  EXPECT_FALSE(Resolve("한빛'"));
  Disconnect();
  ExpectWindow("한빛", "", 0);
  EXPECT_FALSE(Resolve("한빛"));
}

}  // namespace
}  // namespace store
