// What was scanned with the handheld terminal, from its serial line to slips and stock, and the
// product file back to its cradle: at the real windows, with a real pseudo-terminal and the demo's
// terminal at its other end.
#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <QtTest>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "demo/terminal/terminal_session.h"
#include "forms/host.h"
#include "gateway/splice.h"
#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"
#include "ui/desk.h"

namespace store {
namespace {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;
using Records = std::vector<demo::TerminalRecord>;

constexpr const char* kDepot = "100101";
constexpr const char* kUnknownBarcode = "8809990000012";

/// The terminal's side of one transfer, on a thread of its own.
class Terminal {
 public:
  Terminal(const std::string& link, Records records)
      : line_(demo::TerminalLine::OnPseudoTerminal(link)), records_(std::move(records)) {
    thread_ = std::thread([this] {
      while (!line_.IsOpenElsewhere() && !givenUp_) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
      }
      if (!givenUp_) report_ = demo::SendTransfer(line_, records_, {});
    });
  }
  ~Terminal() {
    givenUp_ = true;
    thread_.join();
    EXPECT_TRUE(report_.Finished);
    EXPECT_EQ(report_.Accepted, records_.size());
    EXPECT_EQ(report_.Rejected + report_.Unanswered, 0U);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

 private:
  demo::TerminalLine line_;
  Records records_;
  demo::TransferReport report_;
  std::atomic<bool> givenUp_ = false;
  std::thread thread_;
};

/// Products with a purchase price whose supplier is the journeys', by code.
Table Products(int count) {
  return DemoRows(
      Splice("SELECT PR_BCODE,PR_NAME,FORMAT(PR_OP0,0),PR_CODE FROM PR WHERE PR_END='0' AND "
             "PR_TAX='0' AND "
             "PR_OP0>0 AND PR_OP0<1000 ORDER BY PR_CODE LIMIT {count}",
             "count"_a = std::to_string(count)));
}

demo::TerminalRecord Scanned(char kind, const std::string& partner, const Row& product,
                             int quantity, int price) {
  return {kind, partner, product[0], product[1], quantity, price};
}

class HandheldJourney : public Journey {
 protected:
  void SetUp() override {
    Journey::SetUp();
    link_ = Host.ProgramFolder + "/com1";
    setenv("STORE_COM1", link_.c_str(), 1);
    DemoSql("DELETE FROM DT900");
  }
  void TearDown() override {
    unsetenv("STORE_COM1");
    Journey::TearDown();
  }

  /// Opens an entry of the menu by its number or letter and does `work` in its window, until that
  /// is closed.
  void Run(char entry, const std::string& form, std::function<void(FormWindow&)> work) {
    hands.See(form, [work = std::move(work)](FormWindow& window) {
      ASSERT_TRUE(Hands::Wait([&] { return window.HasBegun(); }));
      work(window);
    });
    Hands::Press(Board(), Qt::Key_F7);
    ASSERT_TRUE(Hands::Wait([] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), entry);
    ASSERT_TRUE(Hands::Wait([&] { return TheDesk().WindowNamed(form) == nullptr; })) << entry;
  }
  /// Receives a transfer; `review` is done before it is saved.
  void Receive(
      char entry, const Records& records,
      std::function<void(FormWindow&)> review = [](FormWindow&) {}) {
    const Terminal terminal(link_, records);
    Run(entry, "DT9RECEV", [&](FormWindow& window) {
      hands.WorkIn("FRM_NAMECHK", [](FormWindow& check) {
        Hands::Type(check, "u01");
        Hands::Press(check, Qt::Key_Return);
      });
      Hands::Press(window, Qt::Key_F5);
      const auto* save = window.findChild<QPushButton*>("Command1_3");
      ASSERT_TRUE(Hands::Wait([&] { return save->isEnabled(); }));
      EXPECT_EQ(std::stoul(Hands::TextOf(window, "Label1")), records.size());
      review(window);
      hands.AnswerBox("저장이 완료되었습니다.", Qt::Key_Return);
      Hands::Press(window, Qt::Key_F9);
    });
  }
  /// Makes slips of everything that is staged for an entry.
  void Process(char entry) {
    Run(entry, "FRM_DT900_01", [&](FormWindow& window) {
      EXPECT_GT(Hands::Rows(window, "FLEX", {1}).size(), 0U);
      hands.AnswerBox("저장이 완료되었습니다.", Qt::Key_Return);
      Hands::Press(window, Qt::Key_F9);
      EXPECT_EQ(Hands::Rows(window, "FLEX", {1}), Table());
      Hands::Press(window, Qt::Key_Escape);
    });
    EXPECT_EQ(DemoValue("SELECT COUNT(*) FROM DT900"), "0");
  }
  static int Stock(const std::string& code) {
    return std::stoi(DemoValue(
        Splice("SELECT IFNULL(SUM(BSQTY+INQTY-OTQTY),0) FROM IV WHERE RCT_CODE='1001' AND "
               "HCT_CODE='{depot}' AND PR_CODE='{code}'",
               "depot"_a = kDepot, "code"_a = code)));
  }
  /// What this month's balance with a partner holds.
  static int Balance(const std::string& column, const std::string& partner) {
    return std::stoi(
        DemoValue(Splice("SELECT IFNULL(SUM({column}),0) FROM CMM WHERE CM_FCTCODE='1001' AND "
                         "CM_TCTCODE='{partner}' AND CM_MM=DATE_FORMAT(NOW(),'%Y%m')",
                         "column"_a = column, "partner"_a = partner)));
  }
  /// The newest slip of a table with its lines: header and line values that tell of the trade.
  static Table NewestSlip(const std::string& kind) {
    return DemoRows(Splice(
        "SELECT "
        "PE_CK,PE_FCTCODE,PE_TCTCODE,FORMAT(PE_TOT,0),PE_TMAN,PS_NO,PR_CODE,FORMAT(PS_SQTY,0),"
        "FORMAT(PS_UP,0),FORMAT(PS_AMT,0),FORMAT(PS_TAX,0),PS_HCTCODE FROM PE{kind} JOIN PS{kind} "
        "USING (PE_ID) WHERE PE_ID=(SELECT MAX(PE_ID) FROM PE{kind} WHERE PE_TMAN='핸디처리') "
        "ORDER "
        "BY PS_NO",
        "kind"_a = kind));
  }

  std::string link_;
};

/// Repairs the partner of the third record and registers the product of the second.
void Repair(Hands& hands, FormWindow& window) {
  EXPECT_EQ(Hands::Rows(window, "FLEX", {2}),
            (Table{{kJourneySupplier}, {kJourneySupplier}, {""}}));
  EXPECT_EQ(Hands::Rows(window, "FLEX", {5})[1][0], "**********");
  auto& rows = *window.findChild<QTableView*>("FLEX");
  rows.setFocus();
  rows.setCurrentIndex(rows.model()->index(1, 5));
  hands.WorkIn("NEW_PR", [](FormWindow& product) {
    Hands::Type(product, "유자차 선물세트");
    for (int i = 0; i < 20 && Hands::KeyboardAt(product) != "Combo1_5"; ++i) {
      Hands::Press(product, Qt::Key_Tab);
    }
    Hands::Press(product, Qt::Key_Down);
    Hands::Press(product, Qt::Key_F9);
  });
  Hands::Press(window, Qt::Key_Return);
  EXPECT_EQ(Hands::Rows(window, "FLEX", {5})[1][0], "유자차 선물세트");

  for (int i = 0; i < 5 && Hands::KeyboardAt(window) != "Text1_0"; ++i) {
    Hands::Press(window, Qt::Key_Tab);
  }
  Hands::Type(window, "99999");
  Hands::Press(window, Qt::Key_Tab);
  Hands::Type(window, kJourneySupplier);
  hands.AnswerBox("거래처전환을 하시겠습니까?", Qt::Key_Y);
  Hands::Press(window, Qt::Key_F6);
  EXPECT_EQ(Hands::Rows(window, "FLEX", {3})[2][0], kJourneySupplierName);
}

TEST_F(HandheldJourney, APurchaseIsReceivedRepairedAndBecomesASlip) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  const Table products = Products(2);
  const Row unknown = {kUnknownBarcode, "신규상품"};
  const int stock = Stock(products[0][3]);
  const int balance = Balance("CM_M23", kJourneySupplier);
  ASSERT_NO_FATAL_FAILURE(Receive(
      '1',
      {Scanned('0', kJourneySupplier, products[0], 12, 500),
       Scanned('0', kJourneySupplier, unknown, 3, 700), Scanned('0', "99999", products[1], 5, 40)},
      [this](FormWindow& window) { Repair(hands, window); }));
  const std::string made = DemoValue(
      Splice("SELECT PR_CODE FROM PR WHERE PR_BCODE='{code}'", "code"_a = kUnknownBarcode));
  EXPECT_EQ(DemoRows("SELECT DT_NO,PE_ID=DT_ID,RIGHT(PE_ID,1),PS_TAXGU,PR_CODE,FORMAT(PS_SQTY,0),"
                     "FORMAT(PS_UP,0),PS_rctCODE,PS_rctNAME,DT_CHECK,DT_GU,PS_MEMO,ST_CODE FROM "
                     "DT900 ORDER BY DT_NO"),
            (Table{{"1", "1", "1", "-", products[0][3], "12", "500", kJourneySupplier,
                    kJourneySupplierName, "u01", "23", "", "u01"},
                   {"2", "1", "2", "-", made, "3", "700", kJourneySupplier, kJourneySupplierName,
                    "u01", "23", "", "u01"},
                   {"3", "1", "3", "-", products[1][3], "5", "40", kJourneySupplier,
                    kJourneySupplierName, "u01", "23", "", "u01"}}));

  ASSERT_NO_FATAL_FAILURE(Process('8'));
  const auto line = [](const char* number, const std::string& code, const char* quantity,
                       const char* price, const char* amount, const char* tax) {
    return Row{"1",      "1001", kJourneySupplier, "9,130", "핸디처리", number, code,
               quantity, price,  amount,           tax,     kDepot};
  };
  EXPECT_EQ(NewestSlip("M23"), (Table{line("1", products[0][3], "12", "500", "6,000", "600"),
                                      line("2", made, "3", "700", "2,100", "210"),
                                      line("3", products[1][3], "5", "40", "200", "20")}));
  EXPECT_EQ(Stock(products[0][3]), stock + 12);
  EXPECT_EQ(Stock(made), 3);
  EXPECT_EQ(Balance("CM_M23", kJourneySupplier), balance + 9130);
}

TEST_F(HandheldJourney, SalesAndReturnsMoveStockAndBalanceTheirWay) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  const Row product = Products(1)[0];
  const struct {
    char receive;
    char process;
    char kind;
    const char* table;
    const char* balance;
    const char* price;
    int stock;
    int money;
  } cases[] = {{'3', 'a', '2', "S13", "CM_M13", "500", -2, 1100},
               {'4', 'b', '1', "S13", "CM_M13", "-500", -2, -1100},
               {'2', '9', '5', "M23", "CM_M23", "-500", 2, -1100}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.receive);
    const int stock = Stock(product[3]);
    const int balance = Balance(c.balance, kJourneySupplier);
    ASSERT_NO_FATAL_FAILURE(
        Receive(c.receive, {Scanned(c.kind, kJourneySupplier, product, 2, 500)}));
    ASSERT_NO_FATAL_FAILURE(Process(c.process));
    const Row line = NewestSlip(c.table).at(0);
    EXPECT_EQ((Row{line[6], line[7], line[8]}), (Row{product[3], "2", c.price}));
    EXPECT_EQ(Stock(product[3]), stock + c.stock);
    EXPECT_EQ(Balance(c.balance, kJourneySupplier), balance + c.money);
  }
}

TEST_F(HandheldJourney, AShipmentGoesToTwoStores) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  const Table products = Products(2);
  const int stock = Stock(products[0][3]);
  const std::string waiting =
      "SELECT COUNT(*) FROM PES23 WHERE PE_CK='0' AND PE_TCTCODE='1001' AND PE_FCTCODE IN "
      "('1002','1003')";
  const int before = std::stoi(DemoValue(waiting));
  ASSERT_NO_FATAL_FAILURE(
      Receive('5',
              {Scanned('2', "1002", products[0], 4, 500), Scanned('2', "1003", products[0], 6, 500),
               Scanned('2', "1003", products[1], 1, 500)},
              [this](FormWindow&) {
                hands.AnswerBox("판매자료를 계약가형태로 저장하시겠습니까?", Qt::Key_N);
              }));
  ASSERT_NO_FATAL_FAILURE(Process('c'));
  EXPECT_EQ(Stock(products[0][3]), stock - 10);
  EXPECT_EQ(std::stoi(DemoValue(waiting)), before + 2) << "each store has its slip to take in";
  EXPECT_EQ(DemoRows("SELECT PE_TCTCODE,COUNT(PS_NO) FROM PEM13 JOIN PSM13 USING (PE_ID) WHERE "
                     "PE_TMAN='핸디처리' GROUP BY PE_ID ORDER BY PE_TCTCODE"),
            (Table{{"1002", "1"}, {"1003", "2"}}));
}

TEST_F(HandheldJourney, ASurveyAdjustsWhatIsOffAndPricesFollowTheTerminal) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  const Table products = DemoRows(
      "SELECT P.PR_BCODE,P.PR_NAME,FORMAT(BSQTY+INQTY-OTQTY,0),P.PR_CODE FROM IV JOIN PR P ON "
      "P.PR_CODE=IV.PR_CODE WHERE RCT_CODE='1001' AND HCT_CODE='100101' AND BSQTY+INQTY-OTQTY "
      "BETWEEN 5 AND 900 ORDER BY P.PR_CODE LIMIT 3");
  Records counted;
  for (const int surplus : {2, -1, 0}) {
    const Row& product = products[counted.size()];
    counted.push_back(Scanned('3', "", product, std::stoi(product[2]) + surplus, 0));
  }
  ASSERT_NO_FATAL_FAILURE(Receive('6', counted));
  ASSERT_NO_FATAL_FAILURE(Process('d'));
  for (size_t i = 0; i < counted.size(); ++i) {
    EXPECT_EQ(Stock(products[i][3]), static_cast<int>(counted[i].Quantity)) << i;
  }
  EXPECT_EQ(DemoRows("SELECT PR_CODE,FORMAT(PS_SQTY,0) FROM MS JOIN ME USING (ME_ID) WHERE "
                     "ME_TMAN='핸디처리' ORDER BY MS_NO"),
            (Table{{products[0][3], "2"}, {products[1][3], "-1"}}));

  ASSERT_NO_FATAL_FAILURE(Receive('7', {Scanned('4', "", products[0], 0, 1234)}));
  ASSERT_NO_FATAL_FAILURE(Process('e'));
  EXPECT_EQ(DemoValue(Splice("SELECT FORMAT(PR_OP1,0) FROM PR WHERE PR_CODE='{code}'",
                             "code"_a = products[0][3])),
            "1,234");
}

TEST_F(HandheldJourney, TheProductsGoBackToTheCradle) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Run('f', "FRM_CRDIMP", [&](FormWindow& window) {
    hands.AnswerBox("DT900의 [8.수신]을 선택후 [확인:ENT]", Qt::Key_Return);
    hands.AnswerBox("multi32e.exe", Qt::Key_Return);  // which this machine does not have
    Hands::Press(window, Qt::Key_F9);
  });
  std::ifstream file(Host.ProgramFolder + "/MASTER/MASTER.txt", std::ios::binary);
  size_t lines = 0;
  size_t ofWidth = 0;
  for (std::string line; std::getline(file, line); ++lines) ofWidth += line.size() == 60 ? 1 : 0;
  EXPECT_EQ(lines,
            std::stoul(DemoValue(
                "SELECT COUNT(DISTINCT PR_BCODE) FROM PR WHERE PR_BCODE<>'' AND PR_END='0'")));
  EXPECT_EQ(ofWidth, lines);
}

}  // namespace
}  // namespace store
