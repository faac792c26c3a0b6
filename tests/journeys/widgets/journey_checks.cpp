#include "tests/journeys/widgets/journey_checks.h"

#include <gtest/gtest.h>

#include "gateway/gateway.h"
#include "tests/support/private_server.h"

namespace store {
namespace {

using Table = std::vector<std::vector<std::string>>;

std::string Decimal(int number) { return std::to_string(number) + ".0000"; }

int Supply(const JourneyLine& line) { return line.Quantity * line.Price; }
int Tax(const JourneyLine& line) { return (Supply(line) + 5) / 10; }

int Sum(const std::vector<JourneyLine>& lines, int (*part)(const JourneyLine&)) {
  int sum = 0;
  for (const JourneyLine& line : lines) sum += part(line);
  return sum;
}

std::vector<std::string> Money(const std::vector<JourneyLine>& lines) {
  const int supply = Sum(lines, Supply);
  const int tax = Sum(lines, Tax);
  return {Decimal(supply), Decimal(tax), Decimal(supply + tax)};
}

/// The columns that orders and receipts share, PS_NO to PS_TAX with the quantities' two kinds.
Table LineRows(const std::string& table, const std::string& id) {
  return DemoRows(Splice(
      "SELECT L.PS_NO,L.PS_DATE=H.PE_PDATE,L.PR_CODE,L.PR_NAME=P.PR_NAME,L.PR_STD=P.PR_STD,"
      "L.PS_TAXGU=P.PR_TAX2,L.PS_UNT=P.PR_UNT,PS_SQTY,PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX,"
      "L.ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME=D.HCT_NAME FROM PS{table} L JOIN PE{table} "
      "H ON "
      "H.PE_ID=L.PE_ID JOIN PR P ON P.PR_CODE=L.PR_CODE JOIN HCT D ON D.HCT_CODE=L.PS_HCTCODE "
      "WHERE L.PE_ID='{id}' ORDER BY PS_NO",
      "table"_a = table, "id"_a = id));
}

Table ExpectedLines(const std::vector<JourneyLine>& lines, const std::string& depotCode,
                    bool receipt) {
  Table rows;
  for (const JourneyLine& line : lines) {
    rows.push_back({std::to_string(rows.size() + 1), "1", CodeOf(line.Barcode), "1", "1", "1", "1",
                    Decimal(line.Quantity), Decimal(receipt ? line.Ordered : 0), Decimal(0),
                    Decimal(line.Price), Decimal(Supply(line)), Decimal(Tax(line)), "u01", "0", "",
                    depotCode, "1"});
  }
  return rows;
}

StockSum SumOf(const std::string& countAndSum) {
  const auto row = DemoRows(countAndSum).at(0);
  return {std::stoi(row[0]), std::stoi(row[1])};
}

}  // namespace

Table DemoRows(const std::string& select) { return TestServer().Rows("demo", select); }

std::string DemoValue(const std::string& select) {
  const Table rows = DemoRows(select);
  if (rows.size() != 1 || rows[0].size() != 1) {
    ADD_FAILURE() << select << " gave " << rows.size() << " rows";
    return {};
  }
  return rows[0][0];
}

void DemoSql(const std::string& statements) { TestServer().Sql("demo", statements); }

std::string CodeOf(const std::string& barcode) {
  return DemoValue(
      Splice("SELECT PR_CODE FROM PR WHERE PR_BCODE='{barcode}'", "barcode"_a = barcode));
}

std::string NewestOrder() {
  return DemoValue(
      "SELECT MAX(PE_ID) FROM PEM22 WHERE PE_ID LIKE "
      "CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),'1001u0122%')");
}

void ExpectOrder(const std::string& id, const std::string& state, const std::string& depotCode,
                 const std::vector<JourneyLine>& lines) {
  const std::string today = DemoValue("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')");
  std::vector<std::string> header = {
      state, today, "1001", "1", kJourneySupplier, kJourneySupplierName};
  for (const std::string& money : Money(lines)) header.push_back(money);
  header.push_back("[" + std::string(12, ' ') + "]");
  header.push_back("1");
  EXPECT_EQ(
      DemoRows(Splice(
          "SELECT "
          "PE_CK,PE_PDATE,PE_FCTCODE,PE_FCTNAME=RCT_NAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,PE_TAX,"
          "PE_TOT,CONCAT('[',PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_GRDAY,PE_CSDAY,PE_CSCT,"
          "PE_TYPE,PE_MEMO1,PE_MEMO2,PE_MEMO3,']'),ABS(TIMESTAMPDIFF(MINUTE,PE_SDATE,NOW()))<5 "
          "FROM PEM22 JOIN RCT ON RCT_CODE=PE_FCTCODE WHERE PE_ID='{id}'",
          "id"_a = id)),
      Table{header});
  EXPECT_EQ(LineRows("M22", id), ExpectedLines(lines, depotCode, false));
}

std::string ExpectReceipt(const std::string& orderId, const std::string& depotCode,
                          const std::vector<JourneyLine>& lines) {
  std::string id = DemoValue(Splice(
      "SELECT PE_LINK FROM PEM22 WHERE PE_ID='{orderId}' AND PE_CK='4'", "orderId"_a = orderId));
  const std::string today = DemoValue("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')");
  std::vector<std::string> header = {
      "1", today, "1001", "1", kJourneySupplier, kJourneySupplierName};
  for (const std::string& money : Money(lines)) header.push_back(money);
  for (const char* rest : {"0.0000", "0.0000", "0.0000", "E005", "[    ]", "u01"}) {
    header.push_back(rest);
  }
  header.push_back(orderId);
  header.push_back("1");
  EXPECT_EQ(DemoRows(Splice(
                "SELECT PE_CK,PE_PDATE,PE_FCTCODE,PE_FCTNAME=RCT_NAME,PE_TCTCODE,PE_TCTNAME,PE_AMT,"
                "PE_TAX,PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,CONCAT('[',PE_ACCK,PE_TMAN,PE_MEMO,"
                "PE_PRJ,']'),ST_CODE,PE_LINK,INPUT_PROGRAM REGEXP '^[0-9]+$' FROM PEM23 JOIN RCT "
                "ON RCT_CODE=PE_FCTCODE WHERE PE_ID='{id}'",
                "id"_a = id)),
            Table{header});
  EXPECT_EQ(LineRows("M23", id), ExpectedLines(lines, depotCode, true));
  EXPECT_EQ(DemoValue(Splice("SELECT GROUP_CONCAT(DISTINCT CONCAT('[',PS_INCK,PS_TMID,']')) FROM "
                             "PSM23 WHERE PE_ID='{id}'",
                             "id"_a = id)),
            "[]");
  return id;
}

void ShipOrder(const std::string& orderId, const std::string& barcodeShort, int missing) {
  DemoSql(
      Splice("UPDATE PEM22 SET PE_CK='3' WHERE PE_ID='{orderId}';"
             "UPDATE PSM22 SET PS_EQTY=PS_SQTY WHERE PE_ID='{orderId}';"
             "UPDATE PSM22 SET PS_EQTY=PS_SQTY-{missing} WHERE PE_ID='{orderId}' AND "
             "PR_CODE='{barcodeShort}'",
             "orderId"_a = orderId, "missing"_a = std::to_string(missing),
             "barcodeShort"_a = CodeOf(barcodeShort)));
}

StockSum StockIn(const std::string& barcode, const std::string& depotCode) {
  return SumOf(Splice(
      "SELECT COUNT(*),IFNULL(SUM(INQTY),0) FROM IV WHERE RCT_CODE='1001' AND HCT_CODE='{depot}' "
      "AND PR_CODE='{product}'",
      "depot"_a = depotCode, "product"_a = CodeOf(barcode)));
}

StockSum BalanceIn() {
  return SumOf(
      Splice("SELECT COUNT(*),IFNULL(SUM(CM_M23),0) FROM CMM WHERE CM_FCTCODE='1001' AND "
             "CM_TCTCODE='{supplier}' AND CM_MGU='C' AND CM_MM=DATE_FORMAT(NOW(),'%Y%m')",
             "supplier"_a = kJourneySupplier));
}

}  // namespace store
