#include "lookup/lookup_grid.h"

#include "forms/host.h"
#include "gateway/gateway.h"

namespace store {

void FillLookupGrid(const std::string& statement, Grid& grid) {
  const Hourglass waiting;
  grid.SetRows(grid.FixedRows());
  OpenRecordset(SlotA, statement);
  if (!LastErrorText.empty() || AtEof(SlotA)) return;
  std::string row;
  for (; !AtEof(SlotA); SlotA->MoveNext()) {
    row.clear();
    for (int field = 0; field < SlotA->FieldCount(); ++field) {
      if (field > 0) row += '\t';
      row += SlotA->Text(field);
    }
    grid.AddItem(row);
  }
  CloseRecordset(SlotA);
}

}  // namespace store
