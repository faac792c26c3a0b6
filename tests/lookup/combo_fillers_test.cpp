#include "lookup/combo_fillers.h"

#include "tests/support/small_store_test.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

std::string Entry(const std::string& name, const std::string& code) {
  return name + "                              " + code;
}

class ComboFillers : public SmallStoreTest {
 protected:
  ComboFillers() {
    combo.AddItem("left over");
    combo.SetListIndex(0);
  }
  ComboBox combo;
};

TEST_F(ComboFillers, PutTheNameThirtyBlanksAndTheCode) {
  FillBaseCodes(combo, "E0", false);
  EXPECT_EQ(combo.List(), (Texts{Entry("카드", "E002"), Entry("현금", "E001")}));
  EXPECT_EQ(combo.ListIndex(), -1);
  FillBaseCodes(combo, "E0", true, " ORDER BY BAS_CODE ");
  EXPECT_EQ(combo.List(), (Texts{"*전체*      ", Entry("현금", "E001"), Entry("카드", "E002")}));
}

TEST_F(ComboFillers, ListTheCategoriesBelowAParent) {
  const std::string food = Entry("식품", "100000000000000");
  const struct {
    const char* parent;
    int level;
    Texts entries;
  } cases[] = {
      {"", 0, {Entry("생활", "200000000000000"), food, Entry("전체", "000000000000000")}},
      {"100000000000000", 1, {Entry("곡류", "100020000000000"), Entry("음료", "100010000000000")}},
      {"100010000000000", 2, {Entry("생수", "100010001000000")}},
      {"100020000000000", 2, {}},
      {"000000000000000", 0, {Entry("생활", "200000000000000"), food}},
  };
  for (const auto& c : cases) {
    FillItemKinds(combo, c.parent, c.level, false);
    EXPECT_EQ(combo.List(), c.entries) << c.parent << ", " << c.level;
  }
  FillItemKinds(combo, "100010000000000", 2, true);
  EXPECT_EQ(combo.List().at(0), "*전체*      ");
}

TEST_F(ComboFillers, ListTheDefaultDepotFirst) {
  FillDepots("1001", combo, false);
  EXPECT_EQ(combo.List(),
            (Texts{Entry("매장", "100101"), Entry("냉동고", "100100"), Entry("창고", "100102")}));
  FillDepots("1002", combo, true);
  EXPECT_EQ(combo.List(), (Texts{"*전체*      ", Entry("매장", "100201")}));
  FillDepots("", combo, true);
  EXPECT_EQ(combo.List(), Texts{});
}

TEST_F(ComboFillers, LeaveTheListEmptyWhenTheReadFails) {
  Disconnect();
  FillDepots("1001", combo, false);
  EXPECT_EQ(combo.List(), Texts{});
  EXPECT_FALSE(SlotA);
}

}  // namespace
}  // namespace store
