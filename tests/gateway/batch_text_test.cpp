#include <gtest/gtest.h>

#include "gateway/direct_batch.h"

namespace store {
namespace {

TEST(StandsInBlock, OnlyWhatCannotReachIntoItsNeighbour) {
  const struct {
    const char* statement;
    bool stands;
  } cases[] = {
      {" INSERT INTO T (A) VALUES ('x')", true},
      {"update T set A = A + 1 where B='it''s'", true},
      {"update T set A = 'C:\\' where B='C:\\'", true},
      {" SELECT A FROM T WHERE B = 'x' FOR UPDATE", true},
      {" SELECT A FROM T WHERE B = 'x' FOR UPDATE\n-- 다른 곳에서 바뀐 '자료'", true},
      {" SELECT A FROM T WHERE B = 'x\n-- 자료", false},
      {" SELECT A FROM T; DELETE FROM T", false},
      {" DELETE FROM T WHERE A = ''''", true},
      {"replace into T values (\"a;b\", 'c;d', `e`)", true},
      {"INSERT INTO T VALUES ('-- no comment', '/* neither */ #')", true},
      {"INSERT INTO T VALUES (1); DELETE FROM T", false},
      {"INSERT INTO T VALUES (1) -- rest", false},
      {"INSERT INTO T VALUES (1) # rest", false},
      {"INSERT INTO T VALUES (1) /* rest", false},
      {"INSERT INTO T VALUES ('open)", false},
      {"INSERT INTO T VALUES ('open\\'')", false},
      {"INSERT INTO T VALUES (`open)", false},
      {"SET @a = 1", false},
      {"COMMIT", false},
      {"DROP TABLE T", false},
      {"", false},
      {"   ", false},
  };
  for (const auto& c : cases) EXPECT_EQ(StandsInBlock(c.statement), c.stands) << c.statement;
  EXPECT_FALSE(StandsInBlock(std::string("INSERT INTO T VALUES (1)\0x", 26)));
}

}  // namespace
}  // namespace store
