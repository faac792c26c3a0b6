#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "gateway/column_index.h"
#include "gateway/text_column.h"

namespace store {

/// All rows of one read, away from the server. Columns are texts, numbered from 0; NULL is kept
/// apart from the empty text. One row is current; `Eof()` is true behind the last one.
class Recordset {
 public:
  explicit Recordset(std::vector<std::string> fieldNames);

  /// Used by the data tier alone, row by row: one call per field from the left, then `EndRow`.
  void Append(std::string_view value) { columns_[appendAt_++].Append(value); }
  void AppendNull() { columns_[appendAt_++].AppendNull(); }
  void EndRow();
  /// Called once when all rows are in: gives surplus memory back and goes to the first row.
  void Seal();

  bool Eof() const { return position_ >= RecordCount(); }
  /// Rows that pass the filter; all rows without one.
  int RecordCount() const { return filtered_ ? static_cast<int>(passing_.size()) : rows_; }
  int FieldCount() const { return static_cast<int>(columns_.size()); }
  const std::string& FieldName(int field) const { return names_.at(static_cast<size_t>(field)); }

  /// The current row's field as text. NULL, a field that does not exist and a position at the end
  /// read as the empty text.
  std::string_view Text(int field) const;
  bool IsNull(int field) const;

  /// A field of any row of the read, whether it passes the filter or not; rows from 0, in the order
  /// of the read. Outside and NULL read as the empty text.
  std::string_view TextOfRow(std::uint32_t row, int field) const;

  /// The current row's number for `TextOfRow`. There must be a current row.
  std::uint32_t CurrentRow() const;

  void MoveFirst() { position_ = 0; }
  void MoveNext();

  /// Lets only the rows that meet `criteria` pass and goes to the first of them. An empty criteria
  /// lifts the filter. Grammar: `FIELD = 'x'`, `FIELD LIKE 'x%'`, `'%x'`, `'%x%'` or `'x'`, joined
  /// by AND; within a pattern a percent sign is a letter; blanks around words do not matter, ASCII
  /// letters compare without case, NULL meets nothing. False when the text is no such criteria: the
  /// former filter then stands. The second filter by equality on a field gives that field an index,
  /// so that a list can be matched against another one row by row.
  bool Filter(std::string_view criteria);

  /// Goes forward from the current row, that row included, to the first that meets `criteria`
  /// (grammar as for `Filter`); to the end when there is none. False when the text does not parse.
  bool Find(std::string_view criteria);

  /// Numbers of the rows that pass, from 0; of all rows without a filter.
  std::vector<std::uint32_t> PassingRows() const;

  size_t BytesHeld() const;     ///< What the rows occupy in memory.
  size_t BytesOfTexts() const;  ///< The sum of the lengths of all texts.

 private:
  struct Condition {
    int field;
    TextMatch match;
  };
  bool Parse(std::string_view criteria, std::vector<Condition>& conditions) const;
  void FindAll(const Condition& condition);
  int FieldNamed(std::string_view name) const;

  std::vector<std::string> names_;
  std::vector<TextColumn> columns_;
  std::vector<std::unique_ptr<ColumnIndex>> indexes_;  // by field; made when they pay
  std::vector<bool> filteredByEquality_;               // by field; whether that was asked before
  std::vector<std::uint32_t> passing_;
  int rows_ = 0;
  int position_ = 0;
  size_t appendAt_ = 0;
  bool filtered_ = false;
};

}  // namespace store
