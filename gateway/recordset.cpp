#include "gateway/recordset.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "gateway/byte_search.h"

namespace store {

Recordset::Recordset(std::vector<std::string> fieldNames)
    : names_(std::move(fieldNames)),
      columns_(names_.size()),
      indexes_(names_.size()),
      filteredByEquality_(names_.size()) {}

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

std::string_view Recordset::TextOfRow(std::uint32_t row, int field) const {
  if (row >= static_cast<std::uint32_t>(rows_) || field < 0 || field >= FieldCount()) return {};
  return columns_[static_cast<size_t>(field)].At(row);
}

std::vector<std::uint32_t> Recordset::PassingRows() const {
  if (filtered_) return passing_;
  std::vector<std::uint32_t> all(static_cast<size_t>(rows_));
  std::iota(all.begin(), all.end(), 0U);
  return all;
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
  FindAll(conditions[0]);
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

void Recordset::FindAll(const Condition& condition) {
  const auto field = static_cast<size_t>(condition.field);
  const TextColumn& column = columns_[field];
  const bool byEquality = condition.match.fromStart && condition.match.toEnd;
  if (byEquality && filteredByEquality_[field] && indexes_[field] == nullptr) {
    indexes_[field] = std::make_unique<ColumnIndex>(column);
  }
  if (byEquality) filteredByEquality_[field] = true;
  if (byEquality && indexes_[field] != nullptr) {
    indexes_[field]->FindAll(column, condition.match, passing_);
  } else {
    column.FindAll(condition.match, passing_);
  }
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
  for (const auto& index : indexes_) bytes += index == nullptr ? 0 : index->BytesHeld();
  return bytes;
}

size_t Recordset::BytesOfTexts() const {
  size_t bytes = 0;
  for (const TextColumn& column : columns_) bytes += column.BytesOfTexts();
  return bytes;
}

}  // namespace store
