#include "gateway/recordset.h"

#include <algorithm>
#include <iterator>

#include "gateway/byte_search.h"

namespace store {

Recordset::Recordset(std::vector<std::string> fieldNames)
    : names_(std::move(fieldNames)), columns_(names_.size()) {}

void Recordset::EndRow() {
  appendAt_ = 0;
  ++rows_;
}

void Recordset::Seal() {
  for (TextColumn& column : columns_) column.Seal();
  position_ = 0;
}

std::uint32_t Recordset::CurrentRow() const {
  return filtered_ ? passing_[static_cast<size_t>(position_)]
                   : static_cast<std::uint32_t>(position_);
}

std::string_view Recordset::Text(int field) const {
  if (Eof() || field < 0 || field >= FieldCount()) return {};
  return columns_[static_cast<size_t>(field)].At(CurrentRow());
}

bool Recordset::IsNull(int field) const {
  if (Eof() || field < 0 || field >= FieldCount()) return true;
  return columns_[static_cast<size_t>(field)].IsNull(CurrentRow());
}

void Recordset::MoveNext() {
  if (!Eof()) ++position_;
}

bool Recordset::Filter(std::string_view criteria) {
  if (criteria.find_first_not_of(' ') == std::string_view::npos) {
    filtered_ = false;
    passing_.clear();
    position_ = 0;
    return true;
  }
  std::vector<Condition> conditions;
  if (!Parse(criteria, conditions)) return false;
  passing_.clear();
  columns_[static_cast<size_t>(conditions[0].field)].FindAll(conditions[0].match, passing_);
  for (size_t i = 1; i < conditions.size(); ++i) {
    const Condition& condition = conditions[i];
    std::erase_if(passing_, [&](std::uint32_t row) {
      return !columns_[static_cast<size_t>(condition.field)].Meets(row, condition.match);
    });
  }
  filtered_ = true;
  position_ = 0;
  return true;
}

bool Recordset::Find(std::string_view criteria) {
  std::vector<Condition> conditions;
  if (!Parse(criteria, conditions)) return false;
  for (; !Eof(); ++position_) {
    const std::uint32_t row = CurrentRow();
    if (std::all_of(conditions.begin(), conditions.end(), [&](const Condition& condition) {
          return columns_[static_cast<size_t>(condition.field)].Meets(row, condition.match);
        })) {
      break;
    }
  }
  return true;
}

int Recordset::FieldNamed(std::string_view name) const {
  const auto found = std::find_if(names_.begin(), names_.end(), [&](const std::string& field) {
    return SameFolded(field, name);
  });
  return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

size_t Recordset::BytesHeld() const {
  size_t bytes = sizeof(*this) + passing_.capacity() * sizeof(passing_[0]);
  for (const TextColumn& column : columns_) bytes += column.BytesHeld();
  return bytes;
}

size_t Recordset::BytesOfTexts() const {
  size_t bytes = 0;
  for (const TextColumn& column : columns_) bytes += column.BytesOfTexts();
  return bytes;
}

}  // namespace store
