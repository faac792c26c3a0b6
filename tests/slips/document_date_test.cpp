#include <gtest/gtest.h>

#include "slips/slip_keys.h"

namespace store {
namespace {

TEST(DocumentDate, LiesWithinAMonthOnEitherSideOfTheKey) {
  const struct {
    const char* key;
    const char* first;  ///< First date that passes,
    const char* before;
    const char* last;  ///< and the last one.
    const char* behind;
  } cases[] = {
      {"20240517", "2024-04-17", "2024-04-16", "2024-06-17", "2024-06-18"},
      // A day that the month does not have runs into the next one.
      {"20240331", "2024-03-02", "2024-03-01", "2024-05-01", "2024-05-02"},
      {"20230331", "2023-03-03", "2023-03-02", "2023-05-01", "2023-05-02"},
      {"20240131", "2023-12-31", "2023-12-30", "2024-03-02", "2024-03-03"},
      {"20240531", "2024-05-01", "2024-04-30", "2024-07-01", "2024-07-02"},
      // Over the turn of the year.
      {"20240115", "2023-12-15", "2023-12-14", "2024-02-15", "2024-02-16"},
      {"20241231", "2024-12-01", "2024-11-30", "2025-01-31", "2025-02-01"},
  };
  for (const auto& c : cases) {
    const std::string key = std::string(c.key) + "1001u01220001";
    EXPECT_TRUE(DateFitsKey(c.first, key)) << c.key;
    EXPECT_FALSE(DateFitsKey(c.before, key)) << c.key;
    EXPECT_TRUE(DateFitsKey(c.last, key)) << c.key;
    EXPECT_FALSE(DateFitsKey(c.behind, key)) << c.key;
  }
}

TEST(DocumentDate, NeverFitsAKeyWithoutADate) {
  for (const char* key : {"0001", "", "20240017x", "99999", "abcdefgh1001u01220001"})
    EXPECT_FALSE(DateFitsKey("2024-05-17", key)) << key;
}

}  // namespace
}  // namespace store
