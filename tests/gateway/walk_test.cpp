#include <gtest/gtest.h>

#include "gateway/gateway.h"

namespace store {
namespace {

RecordsetSlot Letters() {
  auto rows = std::make_unique<Recordset>(std::vector<std::string>{"A"});
  for (const char* letter : {"a", "b", "c"}) {
    rows->Append(letter);
    rows->EndRow();
  }
  rows->Seal();
  return rows;
}

TEST(ForEachRow, GoesFromTheCurrentRowToTheEndAndLeavesOtherSlotsFree) {
  SlotA = Letters();
  SlotB = Letters();
  SlotA->MoveNext();
  std::string seen;
  ForEachRow(SlotA, [&] {
    seen += FieldText(SlotA, 0);
    SlotB->MoveFirst();
    ForEachRow(SlotB, [&] { seen += FieldText(SlotB, 0); });
    CloseRecordset(SlotC);
  });
  EXPECT_EQ(seen, "babccabc");
  CloseRecordset(SlotA);
  ForEachRow(SlotA, [] { ADD_FAILURE() << "a row of nothing"; });
  CloseRecordset(SlotB);
}

#ifdef GTEST_HAS_DEATH_TEST
TEST(ForEachRowDeathTest, AReadOrCloseIntoAWalkedSlotEndsTheProgram) {
  const std::function<void()> breaks[] = {
      [] { QueryText("SELECT 1", ""); },
      [] { OpenRecordset(SlotA, "SELECT 1"); },
      [] { CloseRecordset(SlotA); },
      [] { ForEachRow(SlotB, [] { CloseRecordset(SlotA); }); },
  };
  SlotA = Letters();
  SlotB = Letters();
  for (const auto& broken : breaks) EXPECT_DEATH(ForEachRow(SlotA, broken), "broken rule");
  CloseRecordset(SlotA);
  CloseRecordset(SlotB);
}
#endif

}  // namespace
}  // namespace store
