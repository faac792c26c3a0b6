// What the gateway does when something breaks: on the way, at the server, within a batch.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "tests/gateway/gate.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

std::vector<std::string> Batch(int first, int last) {
  std::vector<std::string> statements = {""};
  for (int n = first; n <= last; ++n) statements.push_back(InsertNumber(n));
  return statements;
}

TEST_F(Gate, ABatchRunsInOrderAndPassesOverEmptyElements) {
  EXPECT_EQ(
      ExecuteBatch({"", "INSERT INTO T (N,A) VALUES (1,'a')", "",
                    "UPDATE T SET A = 'b' WHERE N = 1", "INSERT INTO T (N,A) SELECT 2,A FROM T"}),
      -1)
      << LastErrorText;
  EXPECT_EQ(TestServer().Rows("gate", "SELECT A FROM T WHERE N = 2")[0][0], "b");
  EXPECT_EQ(ExecuteBatch({""}), -1);
}

TEST_F(Gate, AQuoteInAValueReadsAsNothingAndFailsABatchWhole) {
  Sql("INSERT INTO T VALUES (1,'x',1)");
  Query(Splice("SELECT N FROM T WHERE A = '{text}'", "text"_a = "o'neil"));
  EXPECT_EQ(rows, 0);
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(2),
                          Splice("INSERT INTO T (N,A) VALUES (3,'{text}')", "text"_a = "o'neil"),
                          InsertNumber(4)}),
            0);
  EXPECT_NE(LastErrorText.find("SQL syntax"), std::string::npos) << LastErrorText;
  EXPECT_EQ(Numbers(), "1 ");
}

TEST_F(Gate, The57thOf102StatementsFailsAndNothingStays) {
  std::vector<std::string> statements = Batch(1, 102);
  statements[57] = InsertNumber(3);
  EXPECT_EQ(ExecuteBatch(statements), 0);
  EXPECT_NE(LastErrorText.find("Duplicate entry '3'"), std::string::npos) << LastErrorText;
  EXPECT_EQ(Numbers(), "");
  EXPECT_EQ(ExecuteBatch(Batch(1, 102)), -1);
  EXPECT_EQ(TestServer().Rows("gate", "SELECT COUNT(*) FROM T")[0][0], "102");
}

// A statement that reads on beyond its end, alone or within a block, must fail by itself. A batch
// that cannot travel as a block (a SET among its statements) runs one by one; both ways must end
// alike.
TEST_F(Gate, WhatWouldReachIntoTheNextStatementFailsBothWays) {
  for (const char* bad :
       {"INSERT INTO T (N,A) VALUES (50,'open)", "INSERT INTO T (N) VALUES (50) /*",
        "INSERT INTO T (N) VALUES (50); DELETE FROM T",
        "INSERT INTO T (N) VALUES (50); COMMIT; INSERT INTO T (N) VALUES (51)",
        "INSERT INTO T (N,A) VALUES (50,'\\')", "DELETE FROM NOPE", "nonsense"}) {
    for (const bool oneByOne : {false, true}) {
      std::vector<std::string> statements = {"", InsertNumber(1), bad, InsertNumber(2)};
      if (oneByOne) statements.insert(statements.begin() + 1, "SET @way = 1");
      EXPECT_EQ(ExecuteBatch(statements), 0) << bad;
      EXPECT_NE(LastErrorText, "") << bad;
      EXPECT_EQ(Numbers(), "") << bad;
    }
  }
  // A comment to the end of the line is a whole statement alone, so it is one here.
  EXPECT_EQ(ExecuteBatch({"", "INSERT INTO T (N) VALUES (7) -- rest", InsertNumber(8)}), -1)
      << LastErrorText;
  EXPECT_EQ(Numbers(), "7 8 ");
}

TEST_F(Gate, AServerThatIsDownIsToldAndTheNextCallAfterItsReturnWorks) {
  Sql("INSERT INTO T VALUES (1,'x',1)");
  Query("SELECT N FROM T");
  ASSERT_EQ(rows, 1);
  for (const bool killed : {true, false}) {
    if (killed) {
      TestServer().Kill();
    } else {
      TestServer().Stop();
    }
    Query("SELECT N FROM T");
    EXPECT_EQ(rows, 0);
    EXPECT_NE(LastErrorText, "");
    EXPECT_EQ(ExecuteBatch({"", InsertNumber(2), InsertNumber(3)}), 0);
    EXPECT_NE(LastErrorText, "");
    TestServer().Start();
    Query("SELECT N FROM T");
    EXPECT_EQ(rows, 1) << LastErrorText;
  }
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(2), InsertNumber(3)}), -1) << LastErrorText;
  EXPECT_EQ(Numbers(), "1 2 3 ");
}

TEST_F(Gate, AConnectionThatTheServerHasClosedIsReplacedBeforeABatchGoesOut) {
  Query("SELECT CONNECTION_ID()");
  TestServer().Sql("gate", "KILL " + table.At(1, 0));
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(1), InsertNumber(2)}), -1) << LastErrorText;
  EXPECT_EQ(Numbers(), "1 2 ");
}

TEST_F(Gate, APowerCutWhileABatchRunsLeavesAllOfItOrNothing) {
  for (const int delay : {150, 400, 700}) {
    Sql("DELETE FROM T");
    std::vector<std::string> slow = {""};
    for (int n = 1; n <= 30; ++n) {
      slow.push_back(
          Splice("INSERT INTO T (N,A) SELECT {n},SLEEP(0.02)", "n"_a = std::to_string(n)));
    }
    std::thread cut([delay] {
      std::this_thread::sleep_for(std::chrono::milliseconds(delay));
      TestServer().Kill();
    });
    const std::int16_t result = ExecuteBatch(slow);
    cut.join();
    TestServer().Start();
    const std::string count = TestServer().Rows("gate", "SELECT COUNT(*) FROM T")[0][0];
    EXPECT_TRUE(count == "0" || count == "30") << count << " of 30 after " << delay << " ms";
    EXPECT_TRUE(result == 0 || count == "30");
  }
}

TEST_F(Gate, AReadThatFindsItsConnectionClosedIsMadeOnAFreshOne) {
  Query("SELECT CONNECTION_ID()");
  const std::string first = table.At(1, 0);
  TestServer().Sql("gate", "KILL " + first);
  Query("SELECT CONNECTION_ID()");
  ASSERT_EQ(rows, 1) << LastErrorText;
  EXPECT_NE(table.At(1, 0), first);
}

/// A listener that takes connections and never says a word.
class MuteServer {
 public:
  MuteServer() : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (bind(socket_, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0) {
      ADD_FAILURE() << "no free port on the loopback";
    }
    listen(socket_, 4);
    socklen_t length = sizeof(address);
    getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length);
    port_ = ntohs(address.sin_port);
  }
  ~MuteServer() { close(socket_); }
  int Port() const { return port_; }

 private:
  int socket_;
  int port_ = 0;
};

// The attempt that was given up still waits when the next one is made.
TEST_F(Gate, AServerThatNeverAnswersIsGivenUpAtTheConnectTimeout) {
  const MuteServer mute;
  setenv("STORE_CONNECT_TIMEOUT", "1", 1);
  BuildConnectString("127.0.0.1;PORT=" + std::to_string(mute.Port()), "kt", "gate");
  Query("SELECT 1");
  unsetenv("STORE_CONNECT_TIMEOUT");
  EXPECT_EQ(rows, 0);
  EXPECT_NE(LastErrorText, "");
  BuildConnectString(TestServer().ServerOption(), "kt", "gate");
  EXPECT_EQ(QueryText("SELECT 1", "-"), "1") << LastErrorText;
}

TEST_F(Gate, AServerThatStandsStillHoldsUpACallOnlyUntilItsLimit) {
  const ScriptedHost host;
  Query("SELECT N FROM T");
  ASSERT_EQ(LastErrorText, "");
  setenv("STORE_READ_LIMIT", "1", 1);
  setenv("STORE_BATCH_LIMIT", "1", 1);
  for (const bool batch : {false, true}) {
    TestServer().Freeze();
    if (batch) {
      EXPECT_EQ(ExecuteBatch({"", InsertNumber(1), InsertNumber(2)}), 0);
      EXPECT_NE(LastErrorText.find("알 수 없습니다"), std::string::npos) << LastErrorText;
    } else {
      OpenRecordset(SlotB, "SELECT N FROM T");
      EXPECT_EQ(SlotB, nullptr);
      EXPECT_NE(LastErrorText.find("1초"), std::string::npos) << LastErrorText;
      EXPECT_EQ(std::vector<int>(host.Pointers.end() - 2, host.Pointers.end()),
                (std::vector<int>{PointerHourglass, PointerNormal}));
    }
    TestServer().Thaw();
    Query("SELECT 1");
    EXPECT_EQ(rows, 1) << LastErrorText;
  }
  unsetenv("STORE_READ_LIMIT");
  unsetenv("STORE_BATCH_LIMIT");
  // What came back late found that nobody waited, and was not sent.
  EXPECT_EQ(Numbers(), "");
}

TEST_F(Gate, ABatchTooLargeForOneBlockIsAllOrNothingToo) {
  const std::string large(3 << 20, 'x');
  std::vector<std::string> statements = {""};
  for (int n = 1; n <= 3; ++n) {
    statements.push_back(Splice("INSERT INTO T (N,A) VALUES ({n},'{large}')",
                                "n"_a = std::to_string(n), "large"_a = large));
  }
  statements.push_back(InsertNumber(3));
  EXPECT_EQ(ExecuteBatch(statements), 0);
  EXPECT_NE(LastErrorText.find("Duplicate entry '3'"), std::string::npos) << LastErrorText;
  EXPECT_EQ(Numbers(), "");
  statements.pop_back();
  EXPECT_EQ(ExecuteBatch(statements), -1) << LastErrorText;
  EXPECT_EQ(Numbers(), "1 2 3 ");
}

TEST_F(Gate, ALockThatSomebodyHoldsFailsTheBatchInsteadOfHangingIt) {
  Sql("INSERT INTO T VALUES (1,'x',1)");
  setenv("STORE_LOCK_WAIT", "1", 1);
  ResetGateway();
  BuildConnectString(TestServer().ServerOption(), "kt", "gate");
  std::thread holder([] {
    TestServer().Sql("gate",
                     "START TRANSACTION; UPDATE T SET A='held' WHERE N=1; DO SLEEP(4); "
                     "ROLLBACK");
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(2), "UPDATE T SET A='mine' WHERE N=1"}), 0);
  EXPECT_NE(LastErrorText.find("Lock wait timeout"), std::string::npos) << LastErrorText;
  holder.join();
  unsetenv("STORE_LOCK_WAIT");
  EXPECT_EQ(Numbers(), "1 ");
}

}  // namespace
}  // namespace store
