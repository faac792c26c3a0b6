// Moving the marked rows of the pick list into the order.
#include <utility>

#include "basics/numbers.h"
#include "forms/host.h"
#include "order/order_form.h"

namespace store {
namespace {

/// The column that each button reads: what is to be ordered, or what is short.
constexpr std::array<int, 2> kTransferColumns = {6, 8};

}  // namespace

void OrderForm::Image1_Click(int index) {
  if (!HasSupplier()) {
    TellNoSupplier();
    AddInProgress = 0;
    return;
  }
  const LineHistory::OneStep step(history_);
  std::vector<PickCell> marks;
  AddInProgress = -1;
  FLEX1.Redraw = false;
  ShowProgress(FLEX2.Rows() - 1);
  for (int row = 1; row < FLEX2.Rows() && AddInProgress != 0; ++row) {
    StepProgress();
    TransferRow(row, kTransferColumns[static_cast<size_t>(index)], marks);
  }
  FLEX1.Redraw = true;
  AddInProgress = 0;
  HideProgress();
  TellCellsChanged(std::move(marks));
}

// A row that is refused for its price keeps its mark, so that the next transfer tries it again.
void OrderForm::TransferRow(int row, int column, std::vector<PickCell>& marks) {
  if (FLEX2.RowHidden(row) || FLEX2.TextMatrix(row, pick::Mark) != "-1") return;
  const std::string quantity = FLEX2.TextMatrix(row, column);
  if (ParseGrouped(quantity) <= 0) return;
  AddAccepted = -1;
  EnterCode(FLEX2.TextMatrix(row, pick::Code));
  if (AddAccepted == 0) return;
  inBox.SetText(quantity);
  ApplyQuantity(FLEX1.Row());
  FLEX2.SetTextMatrix(row, pick::Mark, "0");
  marks.push_back({row, pick::Mark, FLEX2.TextMatrix(row, pick::Code), "-1", "0"});
}

}  // namespace store
