// A person who waits for a read gives it up; whoever has to know its answer is not let down.
#include "gateway/stoppable_reads.h"

#include <chrono>
#include <thread>

#include "gateway/end_at_server.h"
#include "gateway/odbc_connection.h"
#include "tests/gateway/gate.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

constexpr const char* kLong = "SELECT SLEEP(15) FROM T";

/// How many connections run a statement that begins so.
std::string Running(const std::string& statement) {
  return TestServer().Rows(
      "gate", "SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE INFO LIKE '" + statement +
                  "%'")[0][0];
}

bool EndsWithin(std::chrono::seconds limit, const std::string& statement) {
  const auto end = std::chrono::steady_clock::now() + limit;
  while (Running(statement) != "0") {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  return true;
}

class StoppableReadsTest : public Gate {
 protected:
  StoppableReadsTest() {
    Sql(InsertNumber(1));
    Host.OfferStop = [this](std::chrono::milliseconds) {
      ++offers;
      return true;
    };
    Host.ShowServer = [this](ServerLink link, std::chrono::milliseconds) { last = link; };
  }

  ScriptedHost host;
  int offers = 0;
  ServerLink last = ServerLink::Connected;
};

TEST_F(StoppableReadsTest, AStoppedReadHasFailedAndIsEndedAtTheServer) {
  Query("SELECT N FROM T");
  ASSERT_EQ(rows, 1) << LastErrorText;
  {
    const StoppableReads mayBeStopped;
    OpenRecordset(SlotB, kLong);
    EXPECT_EQ(SlotB, nullptr);
    EXPECT_EQ(LastErrorText, kReadStopped);
    EXPECT_EQ(last, ServerLink::Stopped);
    EXPECT_EQ(offers, 1);
    // What the same work still wanted to read is given up with it.
    Query("SELECT N FROM T");
    EXPECT_EQ(rows, 0);
    EXPECT_EQ(LastErrorText, kReadStopped);
  }
  Query("SELECT N FROM T");
  EXPECT_EQ(rows, 1) << LastErrorText;
  EXPECT_TRUE(EndsWithin(std::chrono::seconds(10), kLong));
}

TEST_F(StoppableReadsTest, AReadOutsideIsNeverOffered) {
  { const StoppableReads over; }
  EXPECT_EQ(QueryText("SELECT SLEEP(1)+1 FROM T", "-"), "1") << LastErrorText;
  EXPECT_EQ(offers, 0);
}

TEST_F(StoppableReadsTest, ABatchAmongReadsThatMayBeStoppedIsABrokenRule) {
  const StoppableReads mayBeStopped;
  EXPECT_DEATH(ExecuteBatch({"", InsertNumber(2)}), "no batch where reads may be stopped");
}

// Behind a proxy a connection's number can be another workstation's.
TEST_F(StoppableReadsTest, NothingButTheStatementItselfIsEndedAtTheServer) {
  const std::string slept = "SELECT SLEEP(3)";
  for (const bool same : {false, true}) {
    OdbcConnection other;
    std::string words;
    ASSERT_TRUE(other.Connect(ConnectString, words)) << words;
    bool ran = false;
    std::thread somebody([&] { ran = OdbcStatement(other).Run(slept, words); });
    while (Running(slept) == "0") std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EndAtServer(ConnectString, other.ServerId(), same ? slept : kLong);
    somebody.join();
    EXPECT_EQ(ran, !same) << words;
  }
}

}  // namespace
}  // namespace store
