#pragma once

#include <string>

namespace store {

/// Shows a stored order on paper, from the database and not from a window: the preview with its
/// printer and PDF (frmPrint). An order that has been received shows its receipt. What cannot be
/// printed is told in a box: no order named, an order that is gone, one without lines, a read that
/// failed; nothing is ever printed of a slip that was not read whole.
void PrintSlip(const std::string& orderId);

/// The same for the receipt alone; an order that has not been received is told.
void PrintReceipt(const std::string& orderId);

}  // namespace store
