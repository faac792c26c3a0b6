#include "handheld/first_match.h"

namespace store {

// By a filter, which gives the column an index: a transfer looks up a row for each of its records.
bool GoToFirst(const RecordsetSlot& rows, const std::string& criteria) {
  return rows != nullptr && rows->Filter(criteria) && !rows->Eof();
}

}  // namespace store
