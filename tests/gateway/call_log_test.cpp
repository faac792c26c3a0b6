#include <algorithm>

#include "basics/log.h"
#include "tests/gateway/gate.h"

namespace store {
namespace {

class CallLog : public Gate {
 protected:
  CallLog() {
    Log.Write = [this](LogWeight, const std::string& record) { records.push_back(record); };
  }
  ~CallLog() override { Log = {}; }

  /// The records made since the last time that begin with `beginning`.
  std::vector<std::string> Taken(const std::string& beginning) {
    std::vector<std::string> taken;
    std::copy_if(records.begin(), records.end(), std::back_inserter(taken),
                 [&](const std::string& record) { return record.starts_with(beginning); });
    records.clear();
    return taken;
  }

  std::vector<std::string> records;
};

TEST_F(CallLog, HasEachFailedCallWithItsStatementAndTheServersWordsMasked) {
  Query("SELECT A FROM T WHERE N = 1");
  const auto connected = Taken("");
  ASSERT_EQ(connected.size(), 1U);  // nothing of a read that went well
  EXPECT_NE(connected[0].find("connection: to MariaDB"), std::string::npos) << connected[0];
  EXPECT_NE(connected[0].find("maodbc"), std::string::npos) << connected[0];

  Query("SELECT NOPE FROM T WHERE A = '홍길동' AND N = 'K1'");
  auto failed = Taken("read failed: ");
  ASSERT_EQ(failed.size(), 1U);
  EXPECT_NE(failed[0].find("Unknown column 'NOPE'"), std::string::npos) << failed[0];
  EXPECT_NE(failed[0].find("WHERE A = '?' AND N = 'K1'"), std::string::npos) << failed[0];

  Query("SELECT A FROM T WHER A = '홍길동' AND ST_PWD = 'geheim1'");
  failed = Taken("read failed: ");
  ASSERT_EQ(failed.size(), 1U);
  EXPECT_EQ(failed[0].find("홍길동"), std::string::npos) << failed[0];
  EXPECT_EQ(failed[0].find("geheim1"), std::string::npos) << failed[0];

  EXPECT_EQ(ExecuteBatch({"", InsertNumber(1), "INSERT INTO T VALUES (1,'홍길동',1)"}), 0);
  failed = Taken("batch failed: ");
  ASSERT_EQ(failed.size(), 1U);
  EXPECT_NE(failed[0].find("Duplicate entry '1'"), std::string::npos) << failed[0];
  EXPECT_NE(failed[0].find("2 statements | "), std::string::npos) << failed[0];
  EXPECT_NE(failed[0].find("VALUES (1,'?',1)"), std::string::npos) << failed[0];

  std::vector<std::string> many(1000, "INSERT INTO T VALUES (1,'" + std::string(50, 'x') + "',1)");
  EXPECT_EQ(ExecuteBatch(many), 0);
  failed = Taken("batch failed: ");
  ASSERT_EQ(failed.size(), 1U);
  EXPECT_LT(failed[0].size(), 10'000U);
}

TEST_F(CallLog, TellsOnceThatTheServerIsGoneAndOnceThatItIsBack) {
  Query("SELECT N FROM T");
  records.clear();
  TestServer().Stop();
  for (int call = 0; call < 2; ++call) Query("SELECT N FROM T");
  TestServer().Start();
  for (int call = 0; call < 2; ++call) Query("SELECT N FROM T");
  EXPECT_EQ(std::count_if(records.begin(), records.end(),
                          [](const auto& record) { return record.starts_with("read failed"); }),
            2);
  EXPECT_EQ(Taken("connection: "),
            std::vector<std::string>({"connection: the data server does not answer",
                                      "connection: the data server answers again"}));
}

}  // namespace
}  // namespace store
