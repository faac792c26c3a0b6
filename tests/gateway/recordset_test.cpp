#include "gateway/recordset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

#include "gateway/byte_search.h"

namespace store {
namespace {

using Cell = std::optional<std::string>;

Recordset Make(const std::vector<std::string>& names, const std::vector<std::vector<Cell>>& rows) {
  Recordset set(names);
  for (const auto& row : rows) {
    for (const Cell& cell : row) {
      if (cell) {
        set.Append(*cell);
      } else {
        set.AppendNull();
      }
    }
    set.EndRow();
  }
  set.Seal();
  return set;
}

std::string Walk(Recordset& set, int field) {
  std::string seen;
  for (; !set.Eof(); set.MoveNext()) seen += std::string(set.Text(field)) + "|";
  return seen;
}

class ItemList : public testing::Test {
 protected:
  Recordset list =
      Make({"PR_CODE", "PR_NAME", "PR_BCODE"}, {{"0001", "새봄 우유 500ml", "8801234500001"},
                                                {"0002", "바나나맛 우유", "8801234500018"},
                                                {"0003", "ABC 초콜릿", "88012345"},
                                                {"0004", Cell(), "8809999900007"},
                                                {"0005", "", ""}});
};

TEST_F(ItemList, FilterLetsThroughWhatMeetsIt) {
  const struct {
    const char* criteria;
    const char* codes;
  } cases[] = {
      {" PR_NAME  LIKE '%우유%'", "0001|0002|"},
      {"PR_NAME LIKE '%우유'", "0002|"},
      {"PR_NAME LIKE 'abc%'", "0003|"},
      {" pr_name like 'ABC 초콜릿' ", "0003|"},
      {" PR_BCODE  like '88012345%'", "0001|0002|0003|"},
      {"PR_BCODE='88012345'", "0003|"},
      {" PR_CODE  = '0002'", "0002|"},
      {"PR_CODE = '000'", ""},
      {"PR_NAME LIKE '%%'", "0001|0002|0003|0005|"},
      {"PR_NAME LIKE '%우유%500ml%'", ""},  // between the ends a percent sign is a letter
      {"PR_NAME LIKE '%'", "0001|0002|0003|0005|"},
      {"PR_NAME = ''", "0005|"},
      {"PR_NAME LIKE '%우유%' AND PR_BCODE LIKE '%18'", "0002|"},
      {"PR_NAME LIKE '%우유%' and PR_BCODE LIKE '%500001%' AND PR_CODE = '0001'", "0001|"},
      {"", "0001|0002|0003|0004|0005|"},
      {"   ", "0001|0002|0003|0004|0005|"},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(list.Filter(c.criteria)) << c.criteria;
    const int count = list.RecordCount();
    const std::string codes = Walk(list, 0);
    EXPECT_EQ(codes, c.codes) << c.criteria;
    EXPECT_EQ(count, std::count(codes.begin(), codes.end(), '|')) << c.criteria;
  }
}

TEST_F(ItemList, WhatDoesNotParseLeavesTheFormerFilterStanding) {
  ASSERT_TRUE(list.Filter("PR_CODE = '0003'"));
  for (const char* criteria :
       {"PR_NAME LIKE '%o'neil%'", "NOFIELD = 'x'", "PR_CODE = 0001", "PR_CODE '0001'",
        "PR_CODE = '0001' OR PR_CODE = '0002'", "PR_CODE = '0001' AND", "PR_CODE = '0001", "LIKE",
        "PR_CODE < '0002'"}) {
    EXPECT_FALSE(list.Filter(criteria)) << criteria;
    list.MoveFirst();
    EXPECT_EQ(Walk(list, 0), "0003|") << criteria;
  }
}

TEST_F(ItemList, FindGoesForwardFromTheCurrentRow) {
  EXPECT_TRUE(list.Find(" PR_BCODE  LIKE '8801%'"));
  EXPECT_EQ(list.Text(0), "0001");
  list.MoveNext();
  EXPECT_TRUE(list.Find(" PR_BCODE  = '88012345'"));
  EXPECT_EQ(list.Text(0), "0003");
  EXPECT_TRUE(list.Find(" PR_CODE = '0001'"));
  EXPECT_TRUE(list.Eof());
  list.MoveFirst();
  ASSERT_TRUE(list.Filter("PR_NAME LIKE '%우유%'"));
  EXPECT_TRUE(list.Find("PR_CODE = '0003'"));
  EXPECT_TRUE(list.Eof());
}

TEST_F(ItemList, NullReadsEmptyAndStaysApartFromEmptyText) {
  ASSERT_TRUE(list.Filter("PR_CODE = '0004'"));
  EXPECT_TRUE(list.IsNull(1));
  EXPECT_EQ(list.Text(1), "");
  ASSERT_TRUE(list.Filter("PR_CODE = '0005'"));
  EXPECT_FALSE(list.IsNull(1));
  EXPECT_EQ(list.Text(9), "");
  EXPECT_EQ(list.Text(-1), "");
}

TEST(Recordset, AnEmptyOneIsAtItsEndAndStaysThere) {
  Recordset empty = Make({"A"}, {});
  EXPECT_TRUE(empty.Eof());
  EXPECT_EQ(empty.RecordCount(), 0);
  empty.MoveNext();
  empty.MoveFirst();
  EXPECT_TRUE(empty.Eof());
  EXPECT_EQ(empty.Text(0), "");
  EXPECT_TRUE(empty.Filter("A LIKE '%x%'"));
  EXPECT_TRUE(empty.Eof());
}

/// The plain way of asking the same.
bool Meets(const Cell& cell, const std::string& needle, bool fromStart, bool toEnd) {
  if (!cell) return false;
  const auto fold = [](std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), FoldAscii);
    return text;
  };
  const std::string text = fold(*cell);
  const std::string wanted = fold(needle);
  if (fromStart && toEnd) return text == wanted;
  if (fromStart) return text.starts_with(wanted);
  if (toEnd) return text.ends_with(wanted);
  return text.find(wanted) != std::string::npos;
}

// Texts of every awkward kind: of one length and of many, long ones, empty ones, NULL, and such as
// hold the byte that separates texts inside the column.
TEST(Recordset, FindsTheSameRowsAsComparingThemOneByOne) {
  std::mt19937 random(7);
  const std::vector<std::string> pieces = {"우유",
                                           "우",
                                           "유",
                                           "a",
                                           "A",
                                           "bC",
                                           "1",
                                           "\x1f",
                                           " ",
                                           "",
                                           "가",
                                           "초콜릿",
                                           std::string("\x1f") + "a",
                                           "0"};
  const auto text = [&](size_t most) {
    std::string made;
    for (size_t i = random() % (most + 1); i > 0; --i) made += pieces[random() % pieces.size()];
    return made;
  };
  for (int round = 0; round < 40; ++round) {
    std::vector<std::vector<Cell>> rows(1 + random() % 400);
    for (auto& row : rows) {
      const size_t most = random() % 50 == 0 ? 200 : 6;
      row = {random() % 20 == 0 ? Cell() : Cell(text(most)),
             Cell(std::to_string(100000 + random() % 900))};
    }
    Recordset set = Make({"T", "N"}, rows);
    for (int ask = 0; ask < 30; ++ask) {
      const int field = static_cast<int>(random() % 2);
      const std::string part = std::to_string(random() % 1000).substr(random() % 2);
      const std::string whole = std::to_string(100000 + random() % 900);
      const std::string needle = field == 0 ? text(3) : random() % 2 == 0 ? part : whole;
      const bool fromStart = random() % 2 == 0;
      const bool toEnd = random() % 2 == 0;
      std::string criteria = field == 0 ? "T LIKE '" : "N LIKE '";
      criteria += (fromStart ? "" : "%") + needle + (toEnd ? "" : "%") + "'";
      ASSERT_TRUE(set.Filter(criteria)) << criteria;
      std::vector<std::uint32_t> wanted;
      // A pattern of a single percent sign is everything; its one sign is taken off the end.
      const bool start = needle.empty() && !fromStart && toEnd ? true : fromStart;
      const bool end = needle.empty() && !fromStart && toEnd ? false : toEnd;
      for (std::uint32_t r = 0; r < rows.size(); ++r) {
        if (Meets(rows[r][static_cast<size_t>(field)], needle, start, end)) wanted.push_back(r);
      }
      ASSERT_EQ(set.PassingRows(), wanted) << criteria << " in round " << round;
    }
    set.Filter("");
    for (const auto& row : rows) {
      ASSERT_EQ(set.Text(0), row[0].value_or(""));
      ASSERT_EQ(set.IsNull(0), !row[0]);
      set.MoveNext();
    }
  }
}

TEST(Recordset, HoldsLittleMoreThanItsTexts) {
  Recordset set({"CODE", "NAME", "BLANK", "KIND"});
  for (int i = 0; i < 5000; ++i) {
    set.Append(std::to_string(1000000 + i));
    set.Append("새봄 바나나맛 우유 " + std::to_string(i * 7919 % 5000) + "ml 묶음");
    set.Append(" ");
    set.Append("001002003000000");
    set.EndRow();
  }
  set.Seal();
  EXPECT_LE(static_cast<double>(set.BytesHeld()), 1.3 * static_cast<double>(set.BytesOfTexts()));
}

}  // namespace
}  // namespace store
