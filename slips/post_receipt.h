#pragma once

#include <cstdint>
#include <string>

#include "slips/slip.h"

namespace store {

/// Turns goods into stock, in one batch: writes the posted slip (header elements 0 to 20, line
/// columns 0 to 21), closes the order that element 20 names with a link to the slip, moves `IV` by
/// the quantity of each line in the line's depot, and adds the slip's total to the partner's month
/// in `CMM`. `table` is "PEM23" (goods in, raises INQTY and CM_M23) or "PES13" (goods out, raises
/// OTQTY and CM_M13). A slip in state "0" moves neither stock nor balance. `guard` stands in front
/// of it all (gateway/guard.h); an empty one lets everything pass. -1 when everything was written,
/// 0 when nothing was, unless `BatchInDoubt`; `LastErrorText` then holds the server's words, or the
/// guard's.
std::int16_t PostReceipt(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table, const std::string& guard = {});

/// A SELECT that gives a row if a slip with this key and content stands in `table`: order, date,
/// sums and the number of its lines.
std::string ReceiptTrace(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table);

}  // namespace store
