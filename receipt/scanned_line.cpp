// A code leads to its line: the goods are scanned, and what is typed next is their quantity.
#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/order_types.h"

namespace store {
namespace {

/// The shortest barcode on goods has eight digits. No store orders ten million of anything.
constexpr int kShortestBarcode = 8;

bool IsAllDigits(const std::string& text) {
  return text.find_first_not_of("0123456789") == std::string::npos;
}

double NumberIn(const Grid& grid, int row, int column) {
  return ParseGrouped(grid.TextMatrix(row, column));
}

/// What was shipped is what comes; before the shipping it is what was ordered.
bool HasItsQuantity(const Grid& grid, int row) {
  const double shipped = NumberIn(grid, row, receipt::Shipped);
  const double expected = shipped != 0 ? shipped : NumberIn(grid, row, receipt::Ordered);
  return NumberIn(grid, row, receipt::Received) == expected;
}

bool IsOf(const Grid& grid, int row, const std::string& code) {
  return Trim(grid.TextMatrix(row, receipt::Barcode)) == code ||
         Trim(grid.TextMatrix(row, receipt::Code)) == code;
}

}  // namespace

void frm_PE_UNIT::inBox_Scan(const std::string& code) {
  inBox.SetText("");
  if (GoToLineOf(code)) {
    Host.ScanTaken();
  } else {
    TellNotOnSlip(code);
  }
}

bool frm_PE_UNIT::GoToLineOf(const std::string& code) {
  const int row = NextLineOf(code);
  if (row == 0) return false;
  FLEX1.SetRow(row);
  inBox.SetText("");
  SetFocus(inBox);
  return true;
}

/// Of several lines of the product the first below the current one that is not at its quantity yet;
/// when all are, the next one. 0 without any.
int frm_PE_UNIT::NextLineOf(const std::string& code) const {
  const int lines = FLEX1.Rows() - 1;
  int next = 0;
  for (int step = 1; step <= lines; ++step) {
    const int row = (FLEX1.Row() - 1 + step + lines) % lines + 1;
    if (!IsOf(FLEX1, row, code)) continue;
    if (!HasItsQuantity(FLEX1, row)) return row;
    if (next == 0) next = row;
  }
  return next;
}

void frm_PE_UNIT::TellNotOnSlip(const std::string& code) const {
  Host.Beep();
  Host.MsgBox("이 전표에 없는 품목입니다.           \r\r[" + code + "]", box::Critical, "품목없음");
}

/// What a person types is a quantity. A code of the slip that cannot be one is taken for the code,
/// and where more than was ordered may come, every number as long as a barcode.
bool frm_PE_UNIT::TakesCode(const std::string& entry) {
  const bool isLong = IsAllDigits(entry) && CharLength(entry) >= kShortestBarcode;
  if (entry.empty() || (IsNumeric(entry) && !isLong)) return false;
  if (GoToLineOf(entry)) return true;
  if (!isLong || !ChosenOrderType().ReceivesMore) return false;
  inBox.SetText("");
  TellNotOnSlip(entry);
  return true;
}

}  // namespace store
