// What others do to an order meanwhile, and answers that never come: an order is stored once, or
// not at all, and nobody's order is destroyed.
#include <cstdlib>
#include <functional>
#include <thread>
#include <utility>

#include "basics/records.h"
#include "forms/open_forms.h"
#include "slips/item_list.h"
#include "slips/slip_keys.h"
#include "tests/order/order_desk.h"
#include "tests/support/cutting_proxy.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

using Cut = CuttingProxy::Cut;

constexpr const char* kStored = "발주가 정상적으로 처리되었습니다.";
constexpr const char* kUnknown = "저장되었는지 알 수 없습니다.";
constexpr const char* kNotYet = "아직 저장되지 않았습니다.";
constexpr const char* kStillUnknown = "아직 확인할 수 없습니다.";
constexpr const char* kWentOn = "이미 저장되어 처리되고 있습니다.";
constexpr const char* kKeyTaken = "다른 내용의 발주가 있습니다.";
constexpr const char* kChanged = "다른 곳에서 먼저 변경된 발주입니다.";
constexpr const char* kDeleted = "다른 곳에서 삭제된 발주입니다.";

class OrderOnce : public OrderDesk {
 protected:
  OrderOnce() : proxy_(TestServer().Port()) {
    Sql("DELETE FROM PEM22");
    BuildConnectString(PrivateDbServer::ServerOption(proxy_.Port()), "kt", "small");
  }
  ~OrderOnce() override { ResetGateway(); }  // before the line it stands on goes

  /// The form that is open goes, and another one comes.
  void OpenAnew(const std::string& slipId = "") {
    if (Form* open = OpenForm("frm_Order")) open->Close();
    ReleaseDroppedForms();
    Open(slipId);
  }
  void Type(const std::string& quantity = "3") {
    Supplier("#C0001");
    Enter("88010005");
    Enter(quantity);
    Enter("88010003");
  }
  void Press(const std::string& box, int button = 0) {
    host.ExpectBox(box, box::Yes);
    Order().LaBtn_Click(button);
    host.ExpectAllShown();
  }
  /// A stored order of two lines, which others may change; its key.
  static std::string StoredBefore() {
    const std::string id = Value("SELECT DATE_FORMAT(NOW(),'%Y%m%d')") + "1001u01220001";
    Sql(
        Splice("DELETE FROM PEM22; INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,"
               "PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_LINK) VALUES ('{id}','0',"
               "CURDATE(),NOW(),'1001','성수역점','C0001','한빛상사',3300,0,3300,' ');"
               "INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PS_TAXGU,PS_SQTY,PS_UP,"
               "PS_AMT,PS_HCTCODE,PS_HCTNAME) VALUES "
               "('{id}',1,CURDATE(),'P0003','콩나물','1',1,300,300,'100102','창고'),"
               "('{id}',2,CURDATE(),'P0005','하우스감귤','1',2.5,1200,3000,'100102','창고')",
               "id"_a = id));
    return id;
  }
  /// Everything that stands in the order tables, as one text.
  static std::string Stands(const std::string& columns) {
    std::string all;
    for (const auto& row : Rows("SELECT CONCAT_WS('|'," + columns +
                                ") FROM PEM22 H LEFT JOIN PSM22 L ON H.PE_ID=L.PE_ID ORDER BY "
                                "H.PE_ID,PS_NO")) {
      all += row[0] + "\n";
    }
    return all;
  }
  static std::string Everything() {
    return Stands(
        "H.PE_ID,PE_CK,PE_SDATE,PE_TOT,PE_LINK,PS_NO,PR_CODE,PS_SQTY,PS_EQTY,PS_UP,"
        "PS_HCTCODE");
  }
  /// State and quantities of the orders: "0:1,3 " for one in editing.
  static std::string Orders() {
    std::string all;
    for (const auto& row :
         Rows("SELECT CONCAT(PE_CK,':',GROUP_CONCAT(FORMAT(PS_SQTY,0) ORDER BY PS_NO)) FROM PEM22 "
              "JOIN PSM22 USING (PE_ID) GROUP BY PE_ID ORDER BY PE_ID")) {
      all += row[0] + " ";
    }
    return all;
  }

  CuttingProxy proxy_;
};

TEST_F(OrderOnce, AnOpenOrderThatOthersHaveMovedOnIsNotTouched) {
  const struct {
    const char* what;
    const char* meanwhile;
    const char* told;
  } cases[] = {
      {"head office approves it", "UPDATE PEM22 SET PE_CK='2'", kChanged},
      {"logistics ships it", "UPDATE PEM22 SET PE_CK='3'; UPDATE PSM22 SET PS_EQTY=1", kChanged},
      {"another clerk confirms it", "UPDATE PEM22 SET PE_CK='1'", kChanged},
      {"another clerk receives it", "UPDATE PEM22 SET PE_CK='4', PE_LINK='R1'", kChanged},
      {"another clerk deletes it", "DELETE FROM PEM22", kDeleted},
      {"another clerk saves it again", "UPDATE PEM22 SET PE_SDATE=NOW() + INTERVAL 1 SECOND",
       kChanged},
      {"another clerk changes a quantity in the same second, to the same total",
       "UPDATE PSM22 SET PS_SQTY=2 WHERE PS_NO=1", kChanged},
      {"another clerk moves it to another depot in the same second",
       "UPDATE PSM22 SET PS_HCTCODE='100101'", kChanged},
      {"another clerk adds a line in the same second",
       "INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE) SELECT PE_ID,3,'','P0001' FROM PEM22",
       kChanged},
      {"another clerk takes a line out in the same second", "DELETE FROM PSM22 WHERE PS_NO=2",
       kChanged},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    OpenAnew(StoredBefore());
    Order().FLEX1.SetRow(1);
    Enter("7");
    const std::string typed = Lines();
    Sql(c.meanwhile);
    const std::string theirs = Everything();
    for (const int button : {0, 1}) {
      Press(c.told, button);
      EXPECT_EQ(Everything(), theirs);
      EXPECT_EQ(Lines(), typed);
    }
  }
}

TEST_F(OrderOnce, AnotherClerksSaveThatIsStillRunningComesFirst) {
  OpenAnew(StoredBefore());
  Order().FLEX1.SetRow(1);
  Enter("7");
  Somebody other(
      "CREATE TEMPORARY TABLE H AS SELECT * FROM PEM22; CREATE TEMPORARY TABLE L AS SELECT * FROM "
      "PSM22; UPDATE L SET PS_SQTY=2 WHERE PS_NO=1; DELETE FROM PEM22; INSERT INTO PEM22 SELECT * "
      "FROM H; DO SLEEP(1); INSERT INTO PSM22 SELECT * FROM L; COMMIT");
  Press(kChanged);
  other.Leave();
  EXPECT_EQ(Orders(), "0:2,3 ");
}

TEST_F(OrderOnce, AnOrderThatCouldNotBeReadIsNotReplacedByWhatWasTypedInstead) {
  const std::string id = StoredBefore();
  const std::string before = Everything();
  Disconnect();
  OpenAnew(id);
  Reconnect();
  Type();
  Press(kChanged);
  EXPECT_EQ(Everything(), before);
}

// The look at the order goes well, and the read of its lines does not.
TEST_F(OrderOnce, LinesThatCouldNotBeReadAreNotTakenForNone) {
  const std::string id = StoredBefore();
  const std::string before = Everything();
  Sql("RENAME TABLE PR TO AWAY");
  OpenAnew(id);
  Sql("RENAME TABLE AWAY TO PR");
  Type();
  Press(kChanged);
  EXPECT_EQ(Everything(), before);
}

TEST_F(OrderOnce, AReopenedOrderKeepsItsDepot) {
  const std::string id = StoredBefore();
  OpenAnew(id);
  EXPECT_EQ(Order().Combo1.ListIndex(), 1);
  EXPECT_FALSE(Order().HoldsWork());
  Press(kStored);
  EXPECT_EQ(Stands("PS_HCTCODE,PS_HCTNAME"), "100102|창고\n100102|창고\n");
  Sql("UPDATE PSM22 SET PS_HCTCODE='999999'");
  OpenAnew(id);
  EXPECT_EQ(Order().Combo1.ListIndex(), 0) << "the list does not have it";
}

TEST_F(OrderOnce, AKeyOfSomebodyElseIsRefusedAndTheNextOneIsFree) {
  for (const bool afterRestart : {false, true}) {
    SCOPED_TRACE(afterRestart ? "restarted, received, then ordered" : "one user at two terminals");
    const std::string first = StoredBefore();
    Sql(
        Splice("INSERT INTO PEM22 SELECT * FROM (SELECT CONCAT(LEFT(PE_ID,17),'0002') I,'3',"
               "PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,"
               "PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_GRDAY,PE_CSDAY,PE_CSCT,PE_TYPE,PE_MEMO1,"
               "PE_MEMO2,PE_MEMO3 FROM PEM22 WHERE PE_ID='{first}') A; INSERT INTO PSM22 (PE_ID,"
               "PS_NO,PS_DATE,PR_CODE,PS_SQTY) SELECT PE_ID,1,PE_PDATE,'P0001',9 FROM PEM22 WHERE "
               "PE_CK='3'",
               "first"_a = first));
    ResetSlipKeys();
    if (afterRestart) {
      EXPECT_EQ(NextSlipId("PEM23").substr(17), "0001");
    } else {
      SlipKeyPrefix = first.substr(0, 12);
      SlipSeqCounter = 1;
    }
    OpenAnew();
    Type();
    const std::string before = Everything();
    Press("Duplicate entry");
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(Order().SlipId, "");
    Press(kStored);
    EXPECT_EQ(Orders(), "0:1,3 3:9 0:1,3 ");
  }
}

TEST_F(OrderOnce, ALostAnswerIsFollowedUp) {
  const auto nothing = [] {};
  const struct {
    const char* what;
    Cut cut;
    bool away;                        ///< The server is away when the client looks.
    const char* first;                ///< What the first press tells.
    std::function<void()> meanwhile;  ///< Between it and the second one.
    int button;                       ///< Of the second press,
    const char* second;               ///< and what that tells.
    const char* stored;               ///< At the end.
  } cases[] = {
      {"stored, the look finds it", Cut::After, false, kStored, nullptr, 0, nullptr, "0:1,3 "},
      {"never sent", Cut::Before, false, kNotYet, nothing, 0, kStored, "0:1,3 "},
      {"stored, server away", Cut::After, true, kUnknown, nothing, 0, kStored, "0:1,3 "},
      {"never sent, server away", Cut::Before, true, kUnknown, nothing, 0, kStored, "0:1,3 "},
      {"stored, then confirmed", Cut::After, true, kUnknown, nothing, 1, kStored, "1:1,3 "},
      {"stored, then another quantity", Cut::After, true, kUnknown,
       [this] {
         Order().FLEX1.SetRow(1);
         Enter("8");
       },
       0, kStored, "0:8,3 "},
      {"stored and approved", Cut::After, true, kUnknown, [] { Sql("UPDATE PEM22 SET PE_CK='2'"); },
       0, kStored, "2:1,3 "},
      {"stored and approved, then another quantity", Cut::After, true, kUnknown,
       [this] {
         Sql("UPDATE PEM22 SET PE_CK='2'");
         Order().FLEX1.SetRow(1);
         Enter("8");
       },
       0, kWentOn, "2:1,3 "},
      {"stored and changed by another clerk", Cut::After, true, kUnknown,
       [] { Sql("UPDATE PSM22 SET PS_SQTY=5 WHERE PS_NO=1"); }, 0, kKeyTaken, "0:5,3 "},
      {"closed and typed again", Cut::After, true, kUnknown,
       [this] {
         OpenAnew();
         Type();
       },
       0, kStored, "0:1,3 "},
      {"never sent, closed and typed again", Cut::Before, true, kUnknown,
       [this] {
         OpenAnew();
         Type();
       },
       0, kStored, "0:1,3 "},
      {"closed, and another order typed", Cut::After, true, kUnknown,
       [this] {
         OpenAnew();
         Type("4");
       },
       0, kStored, "0:1,3 0:1,4 "},
      {"an order to another supplier in the same form", Cut::After, true, kUnknown,
       [this] {
         Supplier("#C0002");
         Order().NoPriceMode = 1;
         Enter("88010005");
       },
       0, kStored, "0:1,3 0:1 "},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    Sql("DELETE FROM PEM22");
    OpenAnew();
    Type();
    proxy_.CutNextBatch(c.cut, c.away);
    Press(c.first);
    if (c.second != nullptr) {
      if (c.away) Press(kStillUnknown);
      proxy_.Return();
      c.meanwhile();
      Press(c.second, c.button);
    }
    EXPECT_EQ(Orders(), c.stored);
  }
}

// A server that fails at once after the look has lost what it had just shown.
TEST_F(OrderOnce, WhatTheLookFindsHasToLast) {
  Sql("DELETE FROM PEM22");
  OpenAnew();
  Type();
  const auto sleep = std::exchange(Host.Sleep, [](int) { Sql("DELETE FROM PEM22"); });
  proxy_.CutNextBatch(Cut::After);
  Press(kNotYet);
  Host.Sleep = sleep;
  Press(kStored);
  EXPECT_EQ(Orders(), "0:1,3 ");
}

// The look waits for a new connection, and by then the order has stood for a while.
TEST_F(OrderOnce, ALookThatTakesItsTimeFindsTheOrderAllTheSame) {
  OpenAnew();
  Type();
  proxy_.CutNextBatch(Cut::After);
  proxy_.KeepNextWaiting(std::chrono::milliseconds(3500));
  Press(kStored);
  EXPECT_EQ(Orders(), "0:1,3 ");
}

TEST_F(OrderOnce, IdenticalOrdersOnPurposeStayTwo) {
  OpenAnew();
  Type();
  proxy_.CutNextBatch(Cut::After, true);
  Press(kUnknown);
  proxy_.Return();
  for (const char* stored : {"0:1,3 ", "0:1,3 0:1,3 "}) {
    OpenAnew();
    Type();
    Press(kStored);
    EXPECT_EQ(Orders(), stored);
  }
}

TEST_F(OrderOnce, ALostAnswerOfAChangeIsFollowedUp) {
  const struct {
    const char* what;
    Cut cut;
    bool away;
    const char* first;
    const char* meanwhile;
    const char* second;
    const char* stored;
  } cases[] = {
      {"stored", Cut::After, false, kStored, nullptr, nullptr, "0:7,1 "},
      {"never sent", Cut::Before, false, kNotYet, "DO 0", kStored, "0:7,1 "},
      {"stored, server away", Cut::After, true, kUnknown, "DO 0", kStored, "0:7,1 "},
      {"never sent, server away", Cut::Before, true, kUnknown, "DO 0", kStored, "0:7,1 "},
      {"stored and approved", Cut::After, true, kUnknown, "UPDATE PEM22 SET PE_CK='2'", kStored,
       "2:7,1 "},
      {"never sent, and approved as it was", Cut::Before, true, kUnknown,
       "UPDATE PEM22 SET PE_CK='2'", kChanged, "2:1,3 "},
      {"stored and deleted", Cut::After, true, kUnknown, "DELETE FROM PEM22", kDeleted, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    OpenAnew(StoredBefore());
    Order().FLEX1.SetRow(1);  // the second line, newest on top
    Enter("7");
    proxy_.CutNextBatch(c.cut, c.away);
    Press(c.first);
    if (c.second != nullptr) {
      proxy_.Return();
      Sql(c.meanwhile);
      Press(c.second);
    }
    EXPECT_EQ(Orders(), c.stored);
  }
}

/// Somebody holds the lines up while an order is stored: it is in the server's hands, and the
/// client has stopped waiting.
class OrderStillRunning : public OrderOnce {
 protected:
  OrderStillRunning() {
    Sql("CREATE TRIGGER slow BEFORE INSERT ON PSM22 FOR EACH ROW SET NEW.PS_MEMO = "
        "IF(GET_LOCK('slow',20) + RELEASE_LOCK('slow') > 0,'','')");
    setenv("STORE_BATCH_LIMIT", "1", 1);
    setenv("STORE_READ_LIMIT", "1", 1);
  }
  ~OrderStillRunning() override {
    unsetenv("STORE_BATCH_LIMIT");
    unsetenv("STORE_READ_LIMIT");
    ResetGateway();
    Sql("DROP TRIGGER slow");
  }
  void HoldUp(int seconds) {
    holder_ = std::thread(
        [seconds] { Sql("DO GET_LOCK('slow',1); DO SLEEP(" + std::to_string(seconds) + ")"); });
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
  }
  std::thread holder_;
};

TEST_F(OrderStillRunning, TheSecondTryWaitsForTheFirstAndTheOrderIsStoredOnce) {
  for (const bool change : {false, true}) {
    SCOPED_TRACE(change ? "a change" : "a new order");
    Sql("DELETE FROM PEM22");
    OpenAnew();
    Type();
    if (change) {
      Press(kStored);
      OpenAnew(Value("SELECT PE_ID FROM PEM22"));
      Order().FLEX1.SetRow(1);
      Enter("7");
    }
    HoldUp(3);
    Press(kUnknown);
    setenv("STORE_BATCH_LIMIT", "30", 1);
    setenv("STORE_READ_LIMIT", "30", 1);
    Press(kStored);
    holder_.join();
    EXPECT_EQ(Orders(), change ? "0:7,1 " : "0:1,3 ");
    setenv("STORE_BATCH_LIMIT", "1", 1);
    setenv("STORE_READ_LIMIT", "1", 1);
  }
}

TEST_F(OrderOnce, ADateThatNobodyHasChosenIsTheDayOfTheSave) {
  const ClockTime today = host.Clock;
  for (const bool chosen : {false, true}) {
    Sql("DELETE FROM PEM22");
    const CalendarDate past = AddDays(Today(), -32);
    host.Clock = {past.Year, past.Month, past.Day, 10, 0, 0};
    OpenAnew();
    Type();
    host.Clock = today;
    if (chosen) Order().DTOrderDate.SetValue(FormatDateValue(AddDays(Today(), -3), "YYYY-MM-DD"));
    Press(kStored);
    EXPECT_EQ(Value("SELECT DATEDIFF(NOW(),PE_PDATE) FROM PEM22"), chosen ? "3" : "0");
  }
}

TEST_F(OrderOnce, TheItemListBelongsToTheOrderInFront) {
  AppOptions.OrderInfoPartnersOnly = 1;
  Sql("UPDATE SAFEIV SET CT_CODE='C0001' WHERE PR_CODE='P0003'");
  OpenAnew();
  Supplier("#C0001");
  Enter("88010003");
  host.OnModal("HELP_BPR", [](Form&) { RefreshItemList(); });  // a product was registered there
  Order().ItemLookup.Click();
  const RecordsetSlot withIt = SlotC;
  Order().Activate();
  EXPECT_EQ(SlotC, withIt);
  OpenScopedItemList("C0002");  // a receipt beside it
  Order().Activate();
  Press(kStored);
  EXPECT_EQ(Stands("PR_CODE"), "P0003\n");
}

}  // namespace
}  // namespace store
