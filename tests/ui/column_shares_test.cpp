#include "ui/column_shares.h"

#include <gtest/gtest.h>

#include <numeric>

namespace store {
namespace {

TEST(ColumnShares, SharesTheWidthOfAGrid) {
  struct Case {
    const char* name;
    std::vector<ColumnWish> wishes;
    int room;
    std::vector<int> widths;
  };
  const std::vector<Case> cases = {
      {"by weight when nothing is needed", {{1, 10, 0}, {3, 10, 0}}, 400, {100, 300}},
      {"needs first, what is over by weight", {{1, 10, 50}, {3, 10, 50}}, 500, {150, 350}},
      {"a figure keeps its width when names have to give",
       {{3, 40, 300}, {1, 80, 80}},
       200,
       {120, 80}},
      {"who is held at its minimum leaves less for the others",
       {{8, 10, 500}, {1, 50, 50}, {1, 50, 50}},
       300,
       {200, 50, 50}},
      {"minimums alone are more than the room", {{1, 80, 80}, {1, 80, 80}}, 100, {80, 80}},
      {"what is over goes to the name", {{2, 40, 300, true}, {9, 60, 60}}, 800, {740, 60}},
      {"nobody gets more than the need while a name is cut",
       {{2, 40, 300, true}, {9, 60, 60}, {1, 80, 80}},
       300,
       {160, 60, 80}},
      {"one lacks and one has too much", {{1, 50, 300}, {10, 10, 100}}, 300, {200, 100}},
      {"an odd pixel goes somewhere", {{1, 1, 0}, {1, 1, 0}, {1, 1, 0}}, 100, {33, 34, 33}},
      {"no column", {}, 100, {}},
  };
  for (const Case& c : cases) EXPECT_EQ(ShareColumns(c.wishes, c.room), c.widths) << c.name;
}

}  // namespace
}  // namespace store
