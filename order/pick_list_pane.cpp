#include "order/pick_list_pane.h"

#include <utility>

#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"

namespace store {

PickListPane::PickListPane(Form& form, const OrderTypeChoices& choices)
    : form_(form), choices_(choices) {
  form.Publish("FLEX2", FLEX2);
  FLEX2.SetColumns(choices.PickGrid);
  FLEX2.RowColChange = [this] { FLEX2_RowColChange(); };
  FLEX2.BeforeEdit = [this](int row, int col) { return FLEX2_BeforeEdit(row, col); };
  FLEX2.AfterEdit = [this](int row, int col) { FLEX2_AfterEdit(row, col); };
  FLEX2.KeyDown = [this](Key key) { FLEX2_KeyDown(key); };
  FLEX2.OwnKeys = {Key::F4};
}

void PickListPane::FillPickGrid() {
  FLEX2.SetRows(1);
  std::vector<std::uint32_t> hits;
  ForEachRow(SlotC, [&hits] { hits.push_back(SlotC->CurrentRow()); });
  const auto count = static_cast<int>(hits.size());
  FLEX2.SetRowsMadeLater(
      count, [items = SlotC, hits = std::move(hits), cellsOf = choices_.PickRow,
              complete = BesideItems ? BesideItems() : PickRowCompletion()](int row) {
        std::vector<std::string> cells = cellsOf(*items, hits[static_cast<size_t>(row)]);
        if (complete) complete(cells);
        return cells;
      });
}

void PickListPane::WalkToPickList() {
  form_.SetFocus(FLEX2);
  if (FLEX2.Row() == 0) FLEX2.SetRow(FLEX2.RowBeside(0, 1));
}

bool PickListPane::FLEX2_BeforeEdit(int row, int col) {
  if (row < 1 || !choices_.PickGrid[static_cast<size_t>(col)].Editable) return false;
  openedRow_ = row;
  rowBefore_ = CellsOfRow(FLEX2, row);
  return true;
}

void PickListPane::FLEX2_RowColChange() {
  const int row = FLEX2.Row();
  FLEX2.ToolTipText = "[" + FLEX2.TextMatrix(row, pick::Barcode) + "]    " +
                      FLEX2.TextMatrix(row, pick::Name) + "        " +
                      FLEX2.TextMatrix(row, pick::Standard);
}

void PickListPane::TellCellsChanged(std::vector<PickCell> cells) {
  if (!cells.empty()) AsOneStep([&] { CellsChanged(std::move(cells)); });
}

void PickListPane::FLEX2_AfterEdit(int editedRow, int editedColumn) {
  AsOneStep([&] {
    const std::vector<std::string> before =
        editedRow == openedRow_ ? std::exchange(rowBefore_, {}) : CellsOfRow(FLEX2, editedRow);
    openedRow_ = 0;
    TakeEntry(editedRow, editedColumn);
    std::vector<PickCell> cells;
    AddChangedCells(FLEX2, editedRow, before, cells);
    TellCellsChanged(std::move(cells));
  });
}

void PickListPane::TakeEntry(int editedRow, int editedColumn) {
  const std::string& typed = FLEX2.TextMatrix(editedRow, editedColumn);
  if (!Trim(typed).empty() && !IsNumeric(typed)) {
    Host.Beep();
    FLEX2.SetTextMatrix(editedRow, editedColumn, "");
    return;
  }
  const int row = FLEX2.Row();
  const std::string code = FLEX2.TextMatrix(row, pick::Code);
  switch (choices_.JudgeEntry(FLEX2, row)) {
    case EntryVerdict::Order:
      QuantityEntered(code, FLEX2.TextMatrix(row, choices_.PickEntry));
      break;
    case EntryVerdict::TakeOut:
      ItemTakenOut(code);
      break;
    case EntryVerdict::Nothing:
      break;
  }
}

void PickListPane::FLEX2_KeyDown(Key key) {
  const int row = FLEX2.Row();
  const std::string code = FLEX2.TextMatrix(row, pick::Code);
  if (key == Key::F4 && row >= 1 && !code.empty()) {
    HistoryWanted(code, FLEX2.TextMatrix(row, pick::Name));
  }
}

}  // namespace store
