// Goods become stock once: whoever else works at the order, and whatever the line does.
#include "slips/slip_keys.h"
#include "tests/receipt/receipt_desk.h"
#include "tests/support/cutting_proxy.h"
#include "tests/support/somebody.h"

namespace store {
namespace {

using Cut = CuttingProxy::Cut;

constexpr const char* kDone = "입고처리가 정상적으로 처리되었습니다.";
constexpr const char* kElsewhere = "다른 곳에서 이미 입고 처리된 전표입니다.";
constexpr const char* kUnknown = "저장되었는지 알 수 없습니다.\r다시 시도하면";
constexpr const char* kNotFound = "저장이 확인되지 않았습니다.";

std::string OfOrder(const std::string& text) {
  return Splice("{text} WHERE PE_ID='{order}'", "text"_a = text, "order"_a = kApproved);
}

class ReceiptOnce : public ReceiptDesk {
 protected:
  void Confirm(frm_PE_UNIT& form, const std::string& answer) {
    host.ExpectBox("입고확정", box::Yes);
    host.ExpectBox(answer);
    form.Command1_Click(1);
    host.ExpectAllShown();
  }
  void Confirm(const std::string& answer) { Confirm(Receipt(), answer); }

  /// Another clerk's window on the same order.
  std::unique_ptr<frm_PE_UNIT> Another(const std::string& orderId = kApproved) {
    auto form = std::make_unique<frm_PE_UNIT>();
    form->SlipId = orderId;
    form->SlipTable = "PEM23";
    form->EnsureLoaded();
    form->Activate();
    return form;
  }

  /// How often the goods of the order have become stock: receipts of it, pieces of P0001 that came.
  static std::string Came() {
    return Value(
        Splice("SELECT CONCAT((SELECT COUNT(*) FROM PEM23 WHERE PE_LINK='{order}'),' ',"
               "(SELECT SUM(INQTY)+0e0 FROM IV WHERE PR_CODE='P0001'))",
               "order"_a = kApproved));
  }
};

TEST_F(ReceiptOnce, OfTwoClerksTheSecondIsToldAndKeepsWhatHeHasTyped) {
  Open(kApproved);
  const auto second = Another();
  Confirm(kDone);
  second->FLEX1.SetRow(2);
  second->inBox.SetText("7");
  second->inBox_KeyPress(Key::Enter);
  Confirm(*second, kElsewhere);
  EXPECT_EQ(Came(), "1 28");
  EXPECT_FALSE(second->IsClosed());
  EXPECT_EQ(second->FLEX1.TextMatrix(2, receipt::Received), "7");
  // Opened anew, the order is received again on purpose.
  Confirm(*Another(), kDone);
  EXPECT_EQ(Came(), "2 46");
}

TEST_F(ReceiptOnce, TellsWhatHasHappenedToTheOrderMeanwhile) {
  const struct {
    const char* change;
    const char* told;
  } cases[] = {
      {"UPDATE PEM22 SET PE_CK='0'", "[본부승인]에서 [발주편집](으)로 바뀐 전표입니다."},
      {"UPDATE PEM22 SET PE_CK='3'", "[본부승인]에서 [물류출고](으)로 바뀐 전표입니다."},
      {"UPDATE PEM22 SET PE_SDATE=PE_SDATE + INTERVAL 1 DAY", "다른 곳에서 고친 전표입니다."},
      {"UPDATE PEM22 SET PE_CK='4',PE_LINK='K1'", kElsewhere},
      {"DELETE FROM PEM22", "다른 곳에서 삭제된 발주전표입니다."},
  };
  for (const auto& c : cases) {
    StartDay();
    frm_PE_UNIT& form = Open(kApproved);
    Sql(OfOrder(c.change));
    Confirm(c.told);
    EXPECT_EQ(host.Boxes.back().Style, box::Critical);
    EXPECT_FALSE(form.IsClosed()) << c.change;
    EXPECT_EQ(form.FLEX1.Rows(), 3) << c.change;
    EXPECT_EQ(Came(), "0 10") << c.change;
  }
}

// An empty link and one of a blank are the same, and an order found by its number may be in any
// state.
TEST_F(ReceiptOnce, AnOrderThatNobodyHasTouchedPassesInAnyState) {
  for (const char* change : {"UPDATE PEM22 SET PE_LINK=''", "UPDATE PEM22 SET PE_CK='0'",
                             "UPDATE PEM22 SET PE_CK='4',PE_LINK='K1'"}) {
    StartDay();
    Sql(OfOrder(change));
    Open(kApproved);
    Confirm(kDone);
    EXPECT_EQ(Came(), "1 28") << change;
  }
}

// At another terminal the same user has stored receipts under the numbers that come next here.
TEST_F(ReceiptOnce, AKeyThatIsTakenIsRefusedAndTheNextIsReadAfresh) {
  const std::string ofUser = Value("SELECT CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),'1001u0123')");
  for (const char* number : {"0008", "0009"}) {
    Sql("INSERT INTO PEM23 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE,PE_LINK) VALUES "
        "('" +
        ofUser + number + "','1','','2024-05-17','1001','C0001','')");
  }
  SlipSeqCounter = 7;
  SlipKeyPrefix = ofUser.substr(0, 12);
  Open(kApproved);
  Confirm("저장이 실패하였습니다.\r\r MSG: ");
  EXPECT_NE(host.Boxes.back().Text.find("Duplicate entry"), std::string::npos);
  EXPECT_EQ(Came(), "0 10");
  Confirm(kDone);
  EXPECT_EQ(Value(OfOrder("SELECT PE_LINK FROM PEM22")), ofUser + "0010");
  EXPECT_EQ(Came(), "1 28");
}

// Each way the line can break, what is told at once, and what at the second press.
TEST_F(ReceiptOnce, ALostReplyMovesNoStockTwice) {
  const struct {
    Cut cut;
    bool staysAway;
    const char* told;
    const char* toldAgain;  ///< Nothing when the first answer closes the form.
  } cases[] = {
      {Cut::Before, false, kNotFound, kDone},
      {Cut::Before, true, kUnknown, kDone},
      {Cut::After, false, kDone, nullptr},
      {Cut::After, true, kUnknown, kDone},
  };
  for (const bool reopened : {false, true}) {
    for (const auto& c : cases) {
      SCOPED_TRACE(std::string(c.told) + (reopened ? ", opened anew" : ""));
      StartDay();
      CuttingProxy line(TestServer().Port());
      BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
      Open(kApproved);
      line.CutNextBatch(c.cut, c.staysAway);
      Confirm(c.told);
      if (c.toldAgain != nullptr) {
        if (c.staysAway) {
          Confirm(kUnknown);  // nobody can be asked yet, and nothing is sent
          line.Return();
        }
        if (reopened) {
          Receipt().Close();
          Open(kApproved);
        }
        Confirm(c.toldAgain);
      }
      EXPECT_EQ(OpenForm("frm_PE_UNIT"), nullptr);
      EXPECT_EQ(Came(), "1 28");
      ResetGateway();
    }
  }
}

// The first try waits at the server for somebody who holds the order; its line is lost, and the
// look finds nothing. Then the receipt is confirmed again.
TEST_F(ReceiptOnce, AFirstTryThatStillRunsEndsStoredOnce) {
  const struct {
    const char* quantity;  ///< Typed between the two.
    const char* told;
    const char* came;
  } cases[] = {{"18", kDone, "1 28"}, {"9", "앞서 시도한 내용으로 이미 저장되었습니다.", "1 28"}};
  for (const auto& c : cases) {
    StartDay();
    CuttingProxy line(TestServer().Port());
    BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
    Open(kApproved);
    Somebody holder(OfOrder("SELECT PE_ID FROM PEM22") + " FOR UPDATE; " + kUntilTwoWait +
                    "ROLLBACK");
    line.CutNextBatch(Cut::Running);
    Confirm(kNotFound);
    EXPECT_EQ(Came(), "0 10");
    Receive(2, c.quantity);
    Confirm(c.told);
    holder.Leave();
    EXPECT_EQ(Came(), c.came) << c.quantity;
    ResetGateway();
  }
}

TEST_F(ReceiptOnce, OfTwoAtTheSameMomentTheLaterWaitsAndIsTold) {
  Open(kApproved);
  Somebody other(OfOrder("SELECT PE_ID FROM PEM22") + " FOR UPDATE; DO SLEEP(0.8); " +
                 OfOrder("UPDATE PEM22 SET PE_CK='4',PE_LINK='of another'") + "; COMMIT");
  Confirm(kElsewhere);
  other.Leave();
  EXPECT_EQ(Came(), "0 10");
}

}  // namespace
}  // namespace store
