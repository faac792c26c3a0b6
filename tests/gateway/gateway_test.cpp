#include "gateway/gateway.h"

#include "basics/records.h"
#include "tests/gateway/gate.h"

namespace store {
namespace {

TEST_F(Gate, QueryRowsFillsFromRowOneAndReadsNullAsEmpty) {
  Sql("INSERT INTO T VALUES (1,'하나',1500), (2,NULL,0.1250), (3,'',NULL)");
  Query("SELECT N,A,D FROM T ORDER BY N");
  ASSERT_EQ(rows, 3);
  EXPECT_EQ(highestColumn, 2);
  EXPECT_EQ(table.At(0, 0), "");
  EXPECT_EQ(table.At(1, 1), "하나");
  EXPECT_EQ(table.At(1, 2), "1500");
  EXPECT_EQ(table.At(2, 1), "");
  EXPECT_EQ(table.At(2, 2), "0.125");
  EXPECT_EQ(table.At(3, 2), "");
  EXPECT_EQ(SlotA, nullptr);
}

TEST_F(Gate, NullInEveryColumn) {
  Query("SELECT NULL, CAST(NULL AS CHAR), CAST(NULL AS DECIMAL(18,4)), CAST(NULL AS DATETIME)");
  ASSERT_EQ(rows, 1);
  for (int column = 0; column < 4; ++column) EXPECT_EQ(table.At(1, column), "") << column;
}

TEST_F(Gate, NoRowsLeaveTheTableAsItWas) {
  Sql("INSERT INTO T VALUES (1,'하나',1)");
  Query("SELECT N,A FROM T");
  Query("SELECT N FROM T WHERE N = 9");
  EXPECT_EQ(rows, 0);
  EXPECT_EQ(highestColumn, 1);
  EXPECT_EQ(table.At(1, 1), "하나");
  EXPECT_EQ(LastErrorText, "");
}

TEST_F(Gate, CountsAndSumsReadAsPlainNumbers) {
  Sql("INSERT INTO T VALUES (1,'x',1000.5), (2,'y',999.5)");
  Query("SELECT COUNT(*), SUM(D), MAX(RIGHT('0041',4))+1, 10/4, MIN(D) FROM T");
  EXPECT_EQ(table.At(1, 0), "2");
  EXPECT_EQ(table.At(1, 1), "2000");
  EXPECT_EQ(table.At(1, 2), "42");
  EXPECT_EQ(table.At(1, 3), "2.5");
  EXPECT_EQ(table.At(1, 4), "999.5");
}

TEST_F(Gate, WideTextsComeWhole) {
  const std::string wide = "가" + std::string(65530, 'x') + "끝";
  Sql("INSERT INTO T VALUES (1,'" + wide + "',7), (2,NULL,8), (3,'',9), (4,'short',10)");
  Query("SELECT N,A,D FROM T ORDER BY N");
  ASSERT_EQ(rows, 4);
  EXPECT_EQ(table.At(1, 1), wide);
  EXPECT_EQ(table.At(1, 2), "7");
  EXPECT_EQ(table.At(2, 1), "");
  EXPECT_EQ(table.At(4, 1), "short");
  EXPECT_EQ(table.At(4, 2), "10");
}

TEST_F(Gate, BytesThatAreNoTextComeAsTheyAre) {
  Sql("DROP TABLE T; CREATE TABLE T (N INT PRIMARY KEY, A VARBINARY(20))");
  Sql("INSERT INTO T VALUES (1,x'FF80C361001F'), (2,'ok')");
  Query("SELECT N,A FROM T ORDER BY N");
  ASSERT_EQ(rows, 2);
  EXPECT_EQ(table.At(1, 1), std::string("\xFF\x80\xC3\x61\x00\x1F", 6));
  EXPECT_EQ(table.At(2, 1), "ok");
}

TEST_F(Gate, ThreeHundredThousandRows) {
  OpenRecordset(SlotC,
                "SELECT seq, CONCAT('품목 ', seq), IF(seq % 3 = 0, NULL, 'a') "
                "FROM seq_1_to_300000 ORDER BY seq");
  ASSERT_EQ(LastErrorText, "");
  ASSERT_EQ(RecordCountOf(SlotC), 300000);
  SetFilter(SlotC, " seq = '299999'");
  EXPECT_EQ(FieldText(SlotC, 1), "품목 299999");
  SetFilter(SlotC, "");
  int nulls = 0;
  for (; !AtEof(SlotC); SlotC->MoveNext()) nulls += SlotC->IsNull(2) ? 1 : 0;
  EXPECT_EQ(nulls, 100000);
}

TEST_F(Gate, OnlyASelectIsRead) {
  Sql("INSERT INTO T VALUES (1,'x',1)");
  for (const char* statement : {"DELETE FROM T", "  UPDATE T SET A = 'y'", "", "CALL p()",
                                "SELECT N FROM T; DELETE FROM T"}) {
    OpenRecordset(SlotA, statement);
    EXPECT_EQ(SlotA, nullptr) << statement;
    EXPECT_NE(LastErrorText, "") << statement;
  }
  EXPECT_EQ(TestServer().Rows("gate", "SELECT A FROM T")[0][0], "x");
  Query("( SELECT N FROM T )");
  EXPECT_EQ(rows, 1);
}

TEST_F(Gate, AFailedStatementEmptiesTheSlotAndAnUnreachedServiceKeepsIt) {
  Sql("INSERT INTO T VALUES (1,'x',1)");
  OpenRecordset(SlotA, "SELECT N FROM T");
  AppOptions.BusinessServer = "no.such.service";
  OpenRecordset(SlotA, "SELECT A FROM T");
  EXPECT_EQ(FieldText(SlotA, 0), "1");
  EXPECT_EQ(LastErrorText, "");
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(5)}), 0);
  EXPECT_EQ(LastErrorText, "");
  AppOptions.BusinessServer.clear();
  OpenRecordset(SlotA, "SELECT NOPE FROM T");
  EXPECT_EQ(SlotA, nullptr);
  EXPECT_NE(LastErrorText.find("NOPE"), std::string::npos);
  CloseRecordset(SlotA);
  EXPECT_TRUE(AtEof(SlotA));
}

TEST_F(Gate, SlotsStandSideBySide) {
  Sql("INSERT INTO T VALUES (1,'x',1), (2,'y',2)");
  OpenRecordset(SlotB, "SELECT N FROM T ORDER BY N");
  RecordsetSlot own = FetchRecordset("SELECT A FROM T ORDER BY N DESC");
  std::string seen;
  for (; !AtEof(SlotB); SlotB->MoveNext()) {
    seen += FieldText(SlotB, 0) + QueryText("SELECT COUNT(*) FROM T", "-");
  }
  EXPECT_EQ(seen, "1222");
  EXPECT_EQ(FieldText(own, 0), "y");
}

TEST_F(Gate, TheConnectionIsKeptFromCallToCallAndGoesWithTheGatewaysState) {
  const std::string first = QueryText("SELECT CONNECTION_ID()", "-");
  CloseRecordset(SlotA);
  EXPECT_EQ(QueryText("SELECT CONNECTION_ID()", "-"), first);
  ResetGateway();
  BuildConnectString(TestServer().ServerOption(), "kt", "gate");
  EXPECT_NE(QueryText("SELECT CONNECTION_ID()", "-"), first) << LastErrorText;
}

TEST_F(Gate, KoreanIsRightOnAServerThatIsSetToAnotherCharacterSet) {
  PrivateServer korean(
      "--character-set-server=euckr --collation-server=euckr_korean_ci "
      "--skip-character-set-client-handshake");
  korean.Start();
  korean.MakeSchema("gate");
  BuildConnectString(korean.ServerOption(), "kt", "gate");
  const std::string name = "쀍한글 \xF0\x9F\x8D\x8A";  // beyond EUC-KR, and beyond three bytes
  ASSERT_EQ(ExecuteBatch({"", "CREATE TABLE T (N INT, A TEXT CHARACTER SET utf8mb4)",
                          "INSERT INTO T VALUES (1,'" + name + "')"}),
            -1)
      << LastErrorText;
  EXPECT_EQ(korean.Rows("gate", "SELECT A FROM T")[0][0], name);
  Query("SELECT A,'" + name + "' FROM T WHERE A = '" + name + "'");
  ASSERT_EQ(rows, 1) << LastErrorText;
  EXPECT_EQ(table.At(1, 0), name);
  EXPECT_EQ(table.At(1, 1), name);
}

TEST_F(Gate, AnObjectOfAnotherNameOrPlaceIsNotThere) {
  DataSpaceObject space;
  EXPECT_NE(space.CreateObject("TWMGR.DEMON", "http://"), nullptr);
  EXPECT_EQ(space.CreateObject("TWMGR.OTHER", "http://"), nullptr);
  EXPECT_EQ(space.CreateObject("TWMGR.DEMON", "http://10.0.0.1"), nullptr);
}

TEST_F(Gate, AnEmptyServerOrDatabaseNeverBecomesThisMachine) {
  const std::string server = TestServer().ServerOption();
  for (const auto& [host, database] :
       {std::pair<std::string, std::string>{"", "gate"}, {server, ""}, {"", ""}}) {
    BuildConnectString(host, "kt", database);
    Query("SELECT 1");
    EXPECT_EQ(rows, 0) << host << "/" << database;
    EXPECT_NE(LastErrorText, "");
    EXPECT_EQ(ExecuteBatch({"", "INSERT INTO gate.T (N) VALUES (1)"}), 0);
    EXPECT_EQ(Session.DatabaseName, database);
  }
  EXPECT_EQ(Numbers(), "");
}

TEST_F(Gate, TheSessionGroupsAndStoresAsTheStatementsExpect) {
  TestServer().Sql("gate",
                   "SET GLOBAL sql_mode = 'ONLY_FULL_GROUP_BY,NO_ZERO_DATE,"
                   "NO_ZERO_IN_DATE,STRICT_TRANS_TABLES,ANSI_QUOTES'");
  ResetGateway();
  BuildConnectString(TestServer().ServerOption(), "kt", "gate");
  Sql("ALTER TABLE T ADD W DATETIME");
  EXPECT_EQ(ExecuteBatch({"", "INSERT INTO T (N,A,W) VALUES (1,\"a\",'0000-00-00')"}), -1)
      << LastErrorText;
  Query("SELECT A,COUNT(*) FROM T GROUP BY N");
  EXPECT_EQ(table.At(1, 0), "a");
  TestServer().Sql("gate", "SET GLOBAL sql_mode = DEFAULT");
}

// A backslash is a letter: to the server, to the driver, which reads through the text for places of
// its own, and to the block. Each stands at the end of its text, where it would take the quote
// along.
TEST_F(Gate, ABackslashIsALetter) {
  int number = 0;
  for (const char* text : {"\\", "C:\\새폴더\\", "a\\b", "\\n", "?\\", "\\\\", "{\\", "\\%_"}) {
    for (const char* way : {"DELETE FROM T WHERE N = -1", "SET @way = 1"}) {
      const std::string n = std::to_string(++number);
      ASSERT_EQ(ExecuteBatch({"", way,
                              Splice("INSERT INTO T (N,A) VALUES ({n},'{text}')", "n"_a = n,
                                     "text"_a = text),
                              Splice("UPDATE T SET D = 7 WHERE A = '{text}' AND '?' <> '{text};'",
                                     "text"_a = text)}),
                -1)
          << text << ": " << LastErrorText;
      Query(Splice("SELECT A,'?',D FROM T WHERE A = '{text}' AND N = {n} AND '{text}' <> '?;'",
                   "text"_a = text, "n"_a = n));
      ASSERT_EQ(rows, 1) << text << ": " << LastErrorText;
      EXPECT_EQ(table.At(1, 0), text);
      EXPECT_EQ(table.At(1, 1), "?");
      EXPECT_EQ(table.At(1, 2), "7");
    }
  }
}

}  // namespace
}  // namespace store
