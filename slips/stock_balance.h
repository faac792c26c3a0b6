#pragma once

#include <string>
#include <vector>

#include "slips/slip_statements.h"

namespace store {

/// What a posted slip moves besides itself.
struct Movement {
  std::string StockColumn;      ///< Of IV: "INQTY" for goods in, "OTQTY" for goods out.
  std::string BalanceColumn;    ///< Of CMM: "CM_M23" in, "CM_M13" out; empty moves no balance.
  std::string PartyKind = "C";  ///< CM_MGU: "C" a partner, "R" another store.
};

/// What a batch's error text is when a row that was to be raised does not stand alone any more.
/// Counted anew, the batch goes through.
inline constexpr const char* kCountsMoved =
    "같은 품목의 재고가 다른 곳에서 동시에 처리되었습니다. 다시 시도하세요.";

/// Adds to the batch what moves the stock of each line, by its quantity in its depot of the store
/// that writes the slip, in the order of the lines, and then the slip's total in the partner's
/// month of the slip's date. A row of `IV` or `CMM` that stands alone under its key is raised,
/// otherwise a further one is inserted. All of them are counted before anything is written, in one
/// read through `SlotA`; so two lines of a new product make two rows, and after a read that failed
/// every row is inserted. Guards in front see to it that a row that is raised stands alone still.
void AddMovement(const HeadFields& head, const std::vector<LineFields>& lines,
                 const Movement& movement);

}  // namespace store
