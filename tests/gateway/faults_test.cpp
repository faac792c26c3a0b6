// What the gateway does when something breaks: on the way, at the server, within a batch.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "basics/deployment.h"
#include "gateway/guard.h"
#include "private_db/loopback.h"
#include "tests/gateway/gate.h"
#include "tests/support/scripted_host.h"
#include "tests/support/somebody.h"

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

// Nothing of it reaches the server, which might make sense of it.
TEST_F(Gate, AQuoteInAValueReadsAsNothingAndFailsABatchWhole) {
  Sql("INSERT INTO T VALUES (1,'x',1)");
  for (const char* text : {"o'neil", "' OR '1'='1", "';DELETE FROM T;--", "'", "''", "\\'"}) {
    const std::string select = Splice("SELECT N FROM T WHERE A = '{text}'", "text"_a = text);
    Query(select);
    EXPECT_EQ(rows, 0) << text;
    EXPECT_TRUE(LastErrorText.ends_with(text)) << LastErrorText;
    EXPECT_EQ(FetchRecordset(Splice("SELECT * FROM ({select}) X", "select"_a = select)), nullptr);
    SlotB = FetchRecordset("SELECT 1");
    OpenRecordset(SlotB, select);
    EXPECT_EQ(SlotB, nullptr);
    EXPECT_EQ(ExecuteBatch({"", InsertNumber(2),
                            Splice("INSERT INTO T (N,A) VALUES (3,'{text}')", "text"_a = text),
                            InsertNumber(4)}),
              0);
    EXPECT_TRUE(LastErrorText.ends_with(text)) << LastErrorText;
    EXPECT_FALSE(BatchInDoubt);
    EXPECT_EQ(Numbers(), "1 ");
  }
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
        "INSERT INTO T (N,A) VALUES (50,'\\'')", "DELETE FROM NOPE", "nonsense",
        "SELECT N FROM T WHERE A = 'open", "SELECT N FROM T /*", "SELECT N FROM T) OR (1 = 1",
        "SELECT N FROM T; DELETE FROM T"}) {
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
    EXPECT_TRUE(result == -1 || count == "0" || BatchInDoubt);
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
    sockaddr_in address = Loopback(0);
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
  std::vector<ServerLink> links;
  Host.ShowServer = [&](ServerLink link, std::chrono::milliseconds) {
    if (links.empty() || links.back() != link) links.push_back(link);
  };
  Query("SELECT N FROM T");
  ASSERT_EQ(LastErrorText, "");
  Query("SELECT NOBODY FROM T");
  EXPECT_EQ(links, (std::vector<ServerLink>{ServerLink::Connected})) << "a refusal is an answer";
  setenv("STORE_READ_LIMIT", "1", 1);
  setenv("STORE_BATCH_LIMIT", "1", 1);
  for (const bool batch : {false, true}) {
    TestServer().Freeze();
    if (batch) {
      EXPECT_EQ(ExecuteBatch({"", InsertNumber(1), InsertNumber(2)}), 0);
      EXPECT_NE(LastErrorText.find("알 수 없습니다"), std::string::npos) << LastErrorText;
      EXPECT_TRUE(BatchInDoubt);
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
  using enum ServerLink;
  EXPECT_EQ(links, (std::vector<ServerLink>{Connected, Waiting, Lost, Connected, Waiting, Lost,
                                            Connected}));
  unsetenv("STORE_READ_LIMIT");
  unsetenv("STORE_BATCH_LIMIT");
  // What came back late found that nobody waited, and was not sent.
  EXPECT_EQ(Numbers(), "");
}

// A server that has gone mute must not hold a clerk up for half a minute, and a batch that waits
// for others' locks each time it is sent must come to its own end.
TEST(Limits, GiveUpWellWithinHalfAMinuteAndLeaveTimeForEverySending) {
  EXPECT_LE(ReadLimit(), std::chrono::seconds(20));
  EXPECT_LE(BatchLimit(), std::chrono::seconds(20));
  EXPECT_LT(4 * LockWait() + std::chrono::seconds(1), BatchLimit());
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

// The words of a node that leaves its cluster while it stores.
TEST_F(Gate, ABatchWhoseStoringWentWrongIsInDoubt) {
  Sql("CREATE TRIGGER leaves BEFORE INSERT ON T FOR EACH ROW SIGNAL SQLSTATE 'HY000' SET "
      "MYSQL_ERRNO=1180, MESSAGE_TEXT='Got error 5 during COMMIT'");
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(1)}), 0);
  EXPECT_TRUE(BatchInDoubt);
  EXPECT_NE(LastErrorText.find("during COMMIT"), std::string::npos) << LastErrorText;
  Sql("DROP TRIGGER leaves");
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(1)}), -1);
  EXPECT_FALSE(BatchInDoubt);
}

class Locks : public Gate {
 protected:
  Locks() {
    setenv("STORE_LOCK_WAIT", "1", 1);
    ResetGateway();
    BuildConnectString(TestServer().ServerOption(), "kt", "gate");
    Sql("INSERT INTO T (N,A) VALUES (1,'x'),(2,'x'),(3,'x'),(4,'x'),(5,'x')");
  }
  ~Locks() override { unsetenv("STORE_LOCK_WAIT"); }
  static std::string Text(int n) {
    return TestServer().Rows("gate", "SELECT A FROM T WHERE N = " + std::to_string(n))[0][0];
  }
};

TEST_F(Locks, OneThatSomebodyHoldsFailsTheBatchInsteadOfHangingIt) {
  const Somebody holds("UPDATE T SET A='held' WHERE N=1; DO SLEEP(8); ROLLBACK", "gate");
  EXPECT_EQ(ExecuteBatch({"", InsertNumber(9), "UPDATE T SET A='mine' WHERE N=1"}), 0);
  EXPECT_NE(LastErrorText.find("Lock wait timeout"), std::string::npos) << LastErrorText;
  EXPECT_FALSE(BatchInDoubt);
  EXPECT_EQ(Numbers(), "1 2 3 4 5 ");
}

// Each as a block and one by one.
TEST_F(Locks, WhatTheServerUndidForAnothersSakeIsSentAgain) {
  int number = 10;
  for (const char* others : {"UPDATE T SET A='held' WHERE N=1; DO SLEEP(2); COMMIT",
                             // the one that has changed less is undone
                             "UPDATE T SET A='held' WHERE N>1; DO SLEEP(0.6); "
                             "UPDATE T SET A='held' WHERE N=1; COMMIT"}) {
    for (const char* way : {"DELETE FROM T WHERE N = -1", "SET @way = 1"}) {
      const Somebody holds(others, "gate");
      EXPECT_EQ(ExecuteBatch({"", way, InsertNumber(++number), "UPDATE T SET A='mine' WHERE N=1",
                              "UPDATE T SET A='mine' WHERE N=2"}),
                -1)
          << others << ", " << way << ": " << LastErrorText;
    }
    EXPECT_EQ(Text(1) + Text(2), "minemine");
  }
  EXPECT_EQ(Numbers(), "1 2 3 4 5 11 12 13 14 ");
}

// It ends in the middle, and the connection stands.
TEST_F(Locks, ABatchThatIsStoppedAtTheServerLeavesNothingForTheNextOne) {
  for (const char* way : {"DELETE FROM T WHERE N = -1", "SET @way = 1"}) {
    const Somebody holds("UPDATE T SET A='held' WHERE N=1; DO SLEEP(1); ROLLBACK", "gate");
    std::thread stop([] {
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      const auto running = TestServer().Rows(
          "gate",
          "SELECT ID FROM information_schema.PROCESSLIST WHERE INFO LIKE '%mine%' AND ID "
          "<> CONNECTION_ID()");
      for (const auto& row : running) TestServer().Sql("gate", "KILL QUERY " + row[0]);
      EXPECT_EQ(running.size(), 1u);
    });
    EXPECT_EQ(ExecuteBatch({"", way, InsertNumber(9), "UPDATE T SET A='mine' WHERE N=1"}), 0);
    stop.join();
    EXPECT_FALSE(BatchInDoubt);
    EXPECT_EQ(ExecuteBatch({"", "DELETE FROM T WHERE N = 10", InsertNumber(10)}), -1);
    EXPECT_EQ(Numbers(), "1 2 3 4 5 10 ") << way;
  }
}

TEST_F(Locks, AGuardMustFindARowWhenTheBatchRuns) {
  const std::string large(300 << 10, 'x');  // too large for one block
  for (const std::string& with :
       {std::string("DELETE FROM T WHERE N = -1"), std::string("SET @way = 1"),
        Splice("UPDATE T SET A = '{large}' WHERE N = -1", "large"_a = large)}) {
    SCOPED_TRACE(with.substr(0, 40));
    const auto press = [&](const std::string& state) {
      return ExecuteBatch({"", with,
                           Guard(Splice("SELECT N FROM T WHERE N = 1 AND A = '{state}' FOR UPDATE",
                                        "state"_a = state),
                                 "다른 곳에서 바뀐 자료입니다; -- '"),
                           "UPDATE T SET A = 'posted' WHERE N = 1", "DELETE FROM T WHERE N = 9",
                           InsertNumber(9)});
    };
    Sql("UPDATE T SET A = 'x' WHERE N = 1");
    EXPECT_EQ(press("x"), -1) << LastErrorText;
    EXPECT_EQ(press("x"), 0);
    EXPECT_EQ(LastErrorText, "다른 곳에서 바뀐 자료입니다; -- '");
    EXPECT_FALSE(BatchInDoubt);
    EXPECT_EQ(ExecuteBatch({"", "SELECT N FROM T WHERE N = 77 FOR UPDATE"}), 0);
    EXPECT_NE(LastErrorText, "");
    EXPECT_EQ(ExecuteBatch({"", "SELECT N FROM NOPE"}), 0);
    EXPECT_NE(LastErrorText.find("NOPE"), std::string::npos) << LastErrorText;

    // What somebody else is still at counts as he leaves it.
    Sql("UPDATE T SET A = 'x' WHERE N = 1");
    const Somebody posts("UPDATE T SET A='his' WHERE N=1; DO SLEEP(0.6); COMMIT", "gate");
    EXPECT_EQ(press("x"), 0);
    EXPECT_EQ(Text(1), "his");
  }
}

TEST_F(Locks, AGuardHoldsWhatItHasSeen) {
  const auto finds = [](const char* select) { return Guard(select, "없습니다."); };
  for (const char* way : {"DELETE FROM T WHERE N = -1", "SET @way = 1"}) {
    Sql("UPDATE T SET A = 'x', D = 0 WHERE N = 1");
    std::thread other([] {
      std::this_thread::sleep_for(std::chrono::milliseconds(300));
      TestServer().Sql("gate", "UPDATE T SET A = 'his' WHERE N = 1");
    });
    EXPECT_EQ(ExecuteBatch({"", way, finds("SELECT N FROM T WHERE N = 1 AND A = 'x' FOR UPDATE"),
                            "UPDATE T SET D = SLEEP(1) WHERE N = 3",
                            finds("SELECT N FROM T WHERE N = 1 AND A = 'x' FOR UPDATE"),
                            "UPDATE T SET D = 5 WHERE N = 1 AND A = 'x'"}),
              -1)
        << LastErrorText;
    other.join();
    EXPECT_EQ(TestServer().Rows("gate", "SELECT A,D FROM T WHERE N = 1")[0],
              (std::vector<std::string>{"his", "5.0000"}));
  }
}

}  // namespace
}  // namespace store
