#pragma once

#include <concepts>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace store::demo {

/// A text as an SQL literal with its quotes: quotes and backslashes keep standing for themselves.
std::string Quoted(std::string_view text);

/// Writes the rows of one table as INSERT statements of many rows each, which the server takes an
/// order of magnitude faster than single ones.
class TableWriter {
 public:
  /// `columns` is the column list without brackets. The stream must outlive the writer.
  TableWriter(std::ostream& out, std::string_view table, std::string_view columns);
  /// Writes what is still held back.
  ~TableWriter();
  TableWriter(const TableWriter&) = delete;
  TableWriter& operator=(const TableWriter&) = delete;

  /// One row: texts quoted, whole numbers bare.
  template <typename... Values>
  void Row(const Values&... values) {
    BeginRow();
    (Add(values), ...);
    EndRow();
  }

  /// For a row whose number of columns is known only as it is written.
  void BeginRow();
  void Add(std::string_view text);
  void Add(char letter) { Add(std::string_view(&letter, 1)); }
  template <std::integral Number>
  void Add(Number number) {
    AddBare(std::to_string(number));
  }
  void EndRow();

 private:
  void AddBare(std::string_view literal);
  void Flush();

  std::ostream& out_;
  std::string start_;
  std::string rows_;
  std::size_t count_ = 0;
  bool firstValue_ = true;
};

}  // namespace store::demo
