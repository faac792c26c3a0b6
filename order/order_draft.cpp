// The order as a draft: what is kept while it is written, and how it is brought back.
#include <algorithm>
#include <utility>

#include "forms/host.h"
#include "order/order_form.h"
#include "order/pick_cells.h"
#include "slips/depot_choice.h"
#include "slips/draft_texts.h"
#include "slips/drafts.h"

namespace store {

void OrderForm::StartDraft() {
  Draft start = DraftNow();
  if (WrittenEarlier) BringBack(*std::exchange(WrittenEarlier, {}));
  if (OrderedBefore) OrderAgain(*std::exchange(OrderedBefore, {}));
  draft_.Begin(std::move(start));
  NoteDraft();
  BeginHistory();
}

Draft OrderForm::DraftNow() const {
  const std::string stand = inHand_.Stand();
  Draft draft{.FormName = Name,
              .SlipId = stand.empty() ? "" : SlipId,
              .SlipTable = SlipTable,
              .NoPriceMode = NoPriceMode,
              .Stamp = stand,
              .PartnerCode = Text1.Tag,
              .PartnerName = Text1.Text(),
              .Date = DTOrderDate.Value(),
              .Depot = Combo1.Text()};
  draft.Lines.reserve(static_cast<size_t>(FLEX1.Rows()));
  for (int row = FLEX1.Rows() - 1; row >= 1; --row) {
    const auto cell = [&](int column) -> const std::string& {
      return FLEX1.TextMatrix(row, column);
    };
    draft.Lines.push_back({cell(order_line::Code), NameInCell(cell(order_line::Name)),
                           cell(order_line::Money.Quantity), cell(order_line::Least) == " "});
  }
  return draft;
}

void OrderForm::NoteDraft() {
  // A slip that is only looked at has no draft, whatever is done to its rows.
  if (draft_.HasBegun() && inBox.Enabled) draft_.Note(DraftNow());
}

void OrderForm::NoteSaveTry() { draft_.NoteTry(DraftNow(), HeadValues[head::Id]); }

void OrderForm::BringBack(const Draft& draft) {
  if (!SlipId.empty() && draft.Stamp != inHand_.Stand()) {
    PutDraftAside(draft.Id);
    TellNotGoneOnWith(inHand_.Stand());
    return;
  }
  const Hourglass waiting;
  SlipRows slipRows;
  for (int row = FLEX1.Rows() - 1; row >= 1; --row) slipRows.push_back(CellsOfRow(FLEX1, row));
  BringSupplierBack(draft);
  DTOrderDate.SetValue(draft.Date);
  const bool hasDepot = ChooseDepot(Combo1, DepotCodeOf(draft.Depot));
  const auto refused = BringLinesBack(draft, std::move(slipRows));
  if (!refused) {
    PutDraftAside(draft.Id);
    ShowAfresh();
    TellDraftUnreadable();
    return;
  }
  SetFocus(inBox);
  draft_.GoOnWith(draft, *refused);
  TellNotBroughtBack(*refused, hasDepot ? "" : draft.Depot);
}

void OrderForm::ShowAfresh() {
  Combo1.SetListIndex(openedDepot_);
  if (SlipId.empty()) {
    ResetOrderForm();
  } else {
    LoadOrderSlip(SlipId);
  }
}

void OrderForm::BringSupplierBack(const Draft& draft) {
  if (draft.PartnerName == Text1.Text() && draft.PartnerCode == Text1.Tag) return;
  Text1.SetText(draft.PartnerName);
  Text1.Tag = draft.PartnerCode;
  ReadSupplierScope(ItemListMoment::FormOpens);
}

// A line of the stored order keeps that order's price, as it does when the order is opened. Every
// other one is written anew. Nothing when items or prices cannot be read.
std::optional<std::vector<DraftLine>> OrderForm::BringLinesBack(const Draft& draft,
                                                                SlipRows slipRows) {
  std::vector<DraftLine> refused;
  if (!SlotC) return std::nullopt;
  ClearLines();
  for (const DraftLine& line : draft.Lines) {
    const auto row = std::find_if(slipRows.begin(), slipRows.end(), [&](const auto& cells) {
      return line.FromSlip && cells[order_line::Code] == line.Code;
    });
    if (row == slipRows.end()) {
      if (!AddDraftLine(line.Code, line.Quantity)) refused.push_back(line);
      if (PriceUnread) return std::nullopt;
      continue;
    }
    FLEX1.AddItem("", 1);
    for (int column = 0; column < FLEX1.Cols(); ++column) {
      FLEX1.SetTextMatrix(1, column, (*row)[static_cast<size_t>(column)]);
    }
    slipRows.erase(row);
    if (FLEX1.TextMatrix(1, order_line::Money.Quantity) == line.Quantity) continue;
    FLEX1.SetTextMatrix(1, order_line::Money.Quantity, line.Quantity);
    RecalcLine(1);
  }
  RecalcTotals();
  FLEX1.SetRow(FLEX1.Rows() > 1 ? 1 : 0);
  return refused;
}

}  // namespace store
