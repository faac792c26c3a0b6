// The receipt as a draft: what is kept while quantities are typed, and how it is brought back.
#include <utility>

#include "receipt/frm_PE_UNIT.h"
#include "slips/depot_choice.h"
#include "slips/draft_texts.h"
#include "slips/drafts.h"

namespace store {

void frm_PE_UNIT::StartDraft() {
  Draft start = DraftNow();
  if (WrittenEarlier) BringBack(*std::exchange(WrittenEarlier, {}));
  draft_.Begin(std::move(start));
  NoteDraft();
  history_.Begin();
}

Draft frm_PE_UNIT::DraftNow() const {
  Draft draft{.FormName = Name,
              .SlipId = SlipId,
              .SlipTable = SlipTable,
              .Stamp = StandOf(order_),
              .PartnerCode = Text1.Tag,
              .PartnerName = Text1.Text(),
              .Date = DTPicker1.Value(),
              .Depot = Combo1.Text()};
  draft.Lines.reserve(static_cast<size_t>(FLEX1.Rows()));
  for (int row = FLEX1.Rows() - 1; row >= 1; --row) {
    draft.Lines.push_back({FLEX1.TextMatrix(row, receipt::Code),
                           NameInCell(FLEX1.TextMatrix(row, receipt::Name)),
                           FLEX1.TextMatrix(row, receipt::Received), true});
  }
  return draft;
}

void frm_PE_UNIT::NoteDraft() {
  if (draft_.HasBegun()) draft_.Note(DraftNow());
}

void frm_PE_UNIT::BringBack(const Draft& draft) {
  if (draft.Stamp != StandOf(order_)) {
    PutDraftAside(draft.Id);
    TellNotGoneOnWith(order_.Id.empty() ? "" : StandOf(order_));
    return;
  }
  DTPicker1.SetValue(draft.Date);
  const bool hasDepot = ChooseDepot(Combo1, DepotCodeOf(draft.Depot));
  BringRowsBack(draft);
  draft_.GoOnWith(draft, {});
  TellNotBroughtBack({}, hasDepot ? "" : draft.Depot);
}

// The order still has the rows that it had, so what the draft lacks was taken out.
void frm_PE_UNIT::BringRowsBack(const Draft& draft) {
  auto line = draft.Lines.begin();
  for (int row = FLEX1.Rows() - 1; row >= 1; --row) {
    if (line == draft.Lines.end() || FLEX1.TextMatrix(row, receipt::Code) != line->Code) {
      FLEX1.RemoveItem(row);
      continue;
    }
    FLEX1.SetTextMatrix(row, receipt::Received, line->Quantity);
    RecalcLine(row);
    ++line;
  }
  RecalcTotals();
}

}  // namespace store
