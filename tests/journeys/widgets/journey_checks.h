#pragma once

#include <string>
#include <vector>

namespace store {

/// What the journeys look up in the demo franchise's database, by plain SQL of their own. The store
/// is 1001, the user u01, the supplier 참나무커피 (10006); all items of the journeys have VAT on
/// top, rounded per line.

inline constexpr const char* kJourneySupplier = "10006";
inline constexpr const char* kJourneySupplierName = "참나무커피";

/// A line as the journey made it. On a receipt `Quantity` is what came and `Ordered` what was
/// ordered.
struct JourneyLine {
  std::string Barcode;
  int Quantity;
  int Price;
  int Ordered = 0;
};

std::vector<std::vector<std::string>> DemoRows(const std::string& select);
/// The one value of a SELECT of one row and column.
std::string DemoValue(const std::string& select);
void DemoSql(const std::string& statements);

/// PR_CODE of a barcode.
std::string CodeOf(const std::string& barcode);

/// The newest order that u01 wrote today.
std::string NewestOrder();

/// Checks every column of an order's header and lines; `lines` in the order of PS_NO.
void ExpectOrder(const std::string& id, const std::string& state, const std::string& depotCode,
                 const std::vector<JourneyLine>& lines);

/// Checks every column of the purchase slip that received an order, the order's state and the links
/// both ways; `lines` in the order of PS_NO. Gives the slip's key.
std::string ExpectReceipt(const std::string& orderId, const std::string& depotCode,
                          const std::vector<JourneyLine>& lines);

/// What logistics does: state "3", everything shipped but `missing` of one item.
void ShipOrder(const std::string& orderId, const std::string& barcodeShort, int missing);

/// How many rows hold something, and its sum over them.
struct StockSum {
  int Rows = 0;
  int Amount = 0;
  bool operator==(const StockSum&) const = default;
};
/// INQTY of an item in a depot of the store.
StockSum StockIn(const std::string& barcode, const std::string& depotCode);
/// CM_M23 with the supplier in this month.
StockSum BalanceIn();

}  // namespace store
