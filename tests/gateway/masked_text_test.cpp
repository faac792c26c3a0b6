#include "gateway/masked_text.h"

#include <gtest/gtest.h>

#include "gateway/splice.h"

namespace store {
namespace {

TEST(MaskedStatement, KeepsCodesAndNothingOfAPerson) {
  struct Case {
    std::string Statement;
    const char* Masked;
  };
  const Case cases[] = {
      {"SELECT ST_CODE FROM ST WHERE  ST_CODE = 'e01' AND ST_PWD = '1111'",
       "SELECT ST_CODE FROM ST WHERE  ST_CODE = '?' AND ST_PWD = '?'"},
      {"VALUES ('20240517S001u0122-0001','1','2024-05-17',now(),'S001','행복마트 강남점',1500)",
       "VALUES ('20240517S001u0122-0001','1','2024-05-17',now(),'S001','?',1500)"},
      {"SET PE_SDATE = '2024-05-17 10:20:30', PE_PDATE = '0000-00-00', PE_MEMO1 = '급함', X = ''",
       "SET PE_SDATE = '2024-05-17 10:20:30', PE_PDATE = '0000-00-00', PE_MEMO1 = '?', X = ''"},
      {"A.CT_phone LIKE '%1234%' OR CT_phone = '01012345678' OR CT_phone = '02-123-4567'",
       "A.CT_phone LIKE '?' OR CT_phone = '?' OR CT_phone = '?'"},
      {"PR_NAME LIKE '%우유%' AND KD_ID LIKE '001000%' AND PR_BCODE = '8801234567893'",
       "PR_NAME LIKE '?' AND KD_ID LIKE '001000%' AND PR_BCODE = '8801234567893'"},
      {"ST_NAME = 'Kim' OR ST_NAME = 'Kim Chul' OR MAIL = 'kim1@mail.example' OR KIND IN "
       "('ZY','Z4')",
       "ST_NAME = '?' OR ST_NAME = '?' OR MAIL = '?' OR KIND IN ('ZY','Z4')"},
      {"RCT_NO = '123-45-67890' OR ADDR = '12 Main St.' OR ID = '" + std::string(51, '1') + "'",
       "RCT_NO = '?' OR ADDR = '?' OR ID = '?'"},
      {"WHERE CT_NAME = \"홍길동\" AND CT_CODE = 'C0001  '",
       "WHERE CT_NAME = \"?\" AND CT_CODE = 'C0001  '"},
      {"WHERE CT_CODE = 'C1' AND CT_NAME = '홍길동 has no end",
       "WHERE CT_CODE = 'C1' AND CT_NAME = '?"},
      {Splice("WHERE CT_NAME = '{name}' AND CT_CODE = 'C1'", "name"_a = "d'Or 010-1234-5678"),
       "WHERE CT_NAME = '?' AND CT_CODE = 'C1'"},
  };
  for (const Case& c : cases) EXPECT_EQ(MaskedStatement(c.Statement), c.Masked) << c.Statement;
}

TEST(MaskedWords, KeepKeysAndNoPieceOfAStatement) {
  const std::string login = "SELECT 1 FROM ST WHERE ST_PWD = 'x1'";
  const std::string broken = Splice("WHERE ST_PWD = '{password}'", "password"_a = "it's1");
  struct Case {
    const char* Words;
    std::vector<std::string> Statements;
    const char* Masked;
  };
  const Case cases[] = {
      {"Duplicate entry '20240517S001u01220001' for key 'PRIMARY' (23000, 1062)",
       {},
       "Duplicate entry '20240517S001u01220001' for key 'PRIMARY' (23000, 1062)"},
      {"Duplicate entry '홍길동' for key 'PRIMARY'", {}, "Duplicate entry '?' for key 'PRIMARY'"},
      {"right syntax to use near ''홍길동' AND ST_PWD = 'x1'' at line 1 (42000, 1064)",
       {},
       "right syntax to use near '?' at line 1 (42000, 1064)"},
      {"right syntax to use near 'x1 and on", {}, "right syntax to use near '?"},
      {"Table 'demo.PEX' doesn't exist (42S02, 1146)",
       {},
       "Table 'demo.PEX' doesn't exist (42S02, 1146)"},
      {"Unknown column 'PEX' in 'where clause'",
       {"SELECT 1 WHERE PEX = 'Kim'"},
       "Unknown column 'PEX' in 'where clause'"},
      {"Incorrect value: 'Kim' for 'PEX'",
       {"SELECT 1 WHERE PEX = 'Kim'", "SELECT 2"},
       "Incorrect value: '?' for 'PEX'"},
      {"Incorrect value: 'O'Neill 1' for column", {}, "Incorrect value: '?' for column"},
      {"Truncated incorrect DOUBLE value: 'x1'", {login}, "Truncated incorrect DOUBLE value: '?'"},
      {"작은따옴표(')가 있는 값은 쓸 수 없습니다: it's1", {"", broken}, "작은따옴표('?"},
      {"no source for DRIVER={X};UID=kt;PWD=qz4471;OPTION=1",
       {},
       "no source for DRIVER={X};UID=kt;PWD=?;OPTION=1"},
      {"no source for PWD=qz4471", {}, "no source for PWD=?"},
  };
  for (const Case& c : cases) EXPECT_EQ(MaskedWords(c.Words, c.Statements), c.Masked) << c.Words;
}

}  // namespace
}  // namespace store
