#include "slips/slip_keys.h"

#include "basics/dates.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

class SlipKeys : public SmallStoreTest {
 protected:
  /// Keys carry the database's day, not the one of the workstation.
  const std::string today = Value("SELECT date_format(now(),'%Y%m%d')");

  void AddSlip(const std::string& table, const std::string& key) {
    Sql("INSERT INTO " + table +
        " (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) VALUES ('" + key +
        "','0','2024-05-17',now(),'','')");
  }
};

TEST_F(SlipKeys, BeginAtOneEachDay) {
  AddSlip("PEM22", "200001011001u01220099");
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220001");
  EXPECT_EQ(SlipSeqCounter, 1);
  EXPECT_EQ(SlipKeyPrefix, today + "1001");
}

TEST_F(SlipKeys, FollowTheHighestOfTheStoreWhoeverWroteIt) {
  AddSlip("PEM22", today + "1001u01220007");
  AddSlip("PEM22", today + "1001u02220042");
  AddSlip("PEM22", today + "1002u09220300");
  AddSlip("PEM23", today + "1001u01230500");
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220043");
}

TEST_F(SlipKeys, CountOnInMemoryForEveryKind) {
  AddSlip("PEM22", today + "1001u01220042");
  AddSlip("PEM23", today + "1001u01230500");
  NextSlipId("PEM22");
  Disconnect();  // a read would fail now
  EXPECT_EQ(NextSlipId("PEM23"), today + "1001u01230044");
  EXPECT_EQ(NextSlipId("PES13"), today + "1001u01130045");
  EXPECT_EQ(SlipSeqCounter, 45);
}

TEST_F(SlipKeys, HaveNoDateAndUseUpNoNumberWhenTheReadFails) {
  Disconnect();
  EXPECT_EQ(NextSlipId("PEM22"), "0001");
  EXPECT_EQ(NextStockCountId(), "0001");
  EXPECT_EQ(SlipSeqCounter, 0);
  Reconnect();
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220001");
}

TEST_F(SlipKeys, PrintAllDigitsAndAreNeverTheSameTwice) {
  SlipKeyPrefix = "202405171001";
  SlipSeqCounter = 9999;
  EXPECT_EQ(NextSlipId("PEM22"), "202405171001u012210000");
  SlipSeqCounter = 32766;
  EXPECT_EQ(NextSlipId("PEM22"), "202405171001u012232767");
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220001") << "16 bits have no place for the next";
}

TEST_F(SlipKeys, GoOnBehind9999AlsoAfterAnotherStart) {
  AddSlip("PEM22", today + "1001u01229999");
  AddSlip("PEM22", today + "1001u022240000");
  for (const char* number : {"10000", "10001", "32767", "32768", "32769"}) {
    SlipSeqCounter = 0;
    EXPECT_EQ(NextSlipId("PEM22"), today + "1001u0122" + number);
    AddSlip("PEM22", today + "1001u0122" + number);
    if (number == std::string("10001")) AddSlip("PEM22", today + "1001u012232766");
  }
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u012232770") << "the counter has no place for it";
}

TEST_F(SlipKeys, OfStockCountsGoOnBehind9999) {
  const auto add = [&](const std::string& number) {
    Sql("INSERT INTO ME (ME_ID,ME_CK,ME_GU,ME_IO,ME_PDATE,ME_SDATE,ME_FCTCODE) VALUES ('" + today +
        "1001u01" + number + "','1','82','I','2024-05-17',now(),'1001')");
  };
  for (const char* number : {"9999", "10000", "10001"}) {
    add(number);
    const std::string next = std::to_string(std::stoi(number) + 1);
    EXPECT_EQ(NextStockCountId(), today + "1001u01" + next);
    EXPECT_EQ(NextStockCountId(1), today + "1001u01" + std::to_string(std::stoi(next) + 1));
  }
}

// The workstation's midnight comes before the database's: what was read in between must not stand
// for the whole day.
TEST_F(SlipKeys, ReadWhileTheDatabaseIsADayBehindAreNotCountedOn) {
  ParseDateText(Value("SELECT DATE_FORMAT(NOW() + INTERVAL 1 DAY,'%Y-%m-%d')"), host.Clock);
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220001");
  AddSlip("PEM22", today + "1001u01220007");
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220008");
}

TEST_F(SlipKeys, OfAnotherDayAreReadFromTheDatabase) {
  NextSlipId("PEM22");
  AddSlip("PEM22", today + "1001u01220007");
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220002");
  SlipKeyPrefix = "200001011001";  // what the read of a former day has left
  host.Clock.Day += 1;
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220008");
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220009");
}

TEST_F(SlipKeys, OfATableAreNotGivenTwiceWhenAnotherTableSendsTheCounterBack) {
  AddSlip("PEM23", today + "1001u01230040");
  EXPECT_EQ(NextSlipId("PEM23"), today + "1001u01230041");
  SlipSeqCounter = 0;  // an order that was refused, or of a type that counts anew
  EXPECT_EQ(NextSlipId("PEM22"), today + "1001u01220001");
  EXPECT_EQ(NextSlipId("PEM23"), today + "1001u01230042");
}

TEST_F(SlipKeys, OfAStoreWhoseCodeBeginsAnothersFollowBoth) {
  Session.StoreCode = "100";
  AddSlip("PEM22", today + "1000u05220042");
  EXPECT_EQ(NextSlipId("PEM22"), today + "100u01220043");
  EXPECT_EQ(SlipKeyPrefix, today + "100");
}

TEST_F(SlipKeys, OfStockCountsHaveNoKindAndLeaveTheCounterAlone) {
  SlipSeqCounter = 5;
  SlipKeyPrefix = "202405171001";
  EXPECT_EQ(NextStockCountId(), today + "1001u010001");
  Sql("INSERT INTO ME (ME_ID,ME_CK,ME_GU,ME_IO,ME_PDATE,ME_SDATE,ME_FCTCODE) VALUES ('" + today +
      "1001u020041','1','82','I','2024-05-17',now(),'1001')");
  EXPECT_EQ(NextStockCountId(), today + "1001u010042");
  EXPECT_EQ(SlipSeqCounter, 5);
  EXPECT_EQ(SlipKeyPrefix, "202405171001");
}

}  // namespace
}  // namespace store
