#include "order/item_sums.h"

namespace store {

ItemSums::ItemSums(RecordsetSlot& slot, const std::string& statement) {
  OpenRecordset(slot, statement);
  rows_ = slot;
  CloseRecordset(slot);
  if (rows_) codeField_ = rows_->FieldName(0);
}

std::optional<std::string> ItemSums::Of(const std::string& productCode) const {
  SetFilter(rows_, Splice(" {field} = '{code}'", "field"_a = codeField_, "code"_a = productCode));
  if (AtEof(rows_)) return std::nullopt;
  return FieldText(rows_, 1);
}

}  // namespace store
