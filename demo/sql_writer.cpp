#include "demo/sql_writer.h"

namespace store::demo {
namespace {

constexpr std::size_t kRowsPerStatement = 500;

}  // namespace

std::string Quoted(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) {
    if (c == '\n') {
      literal += "\\n";
      continue;
    }
    if (c == '\'' || c == '\\') literal += '\\';
    literal += c;
  }
  literal += '\'';
  return literal;
}

TableWriter::TableWriter(std::ostream& out, std::string_view table, std::string_view columns)
    : out_(out) {
  start_.append("INSERT INTO ").append(table).append(" (").append(columns).append(") VALUES\n");
}

TableWriter::~TableWriter() {
  Flush();
  out_ << "COMMIT;\n";
}

void TableWriter::BeginRow() {
  if (count_ > 0) rows_ += ",\n";
  rows_ += '(';
  firstValue_ = true;
}

void TableWriter::Add(std::string_view text) { AddBare(Quoted(text)); }

void TableWriter::AddBare(std::string_view literal) {
  if (!firstValue_) rows_ += ',';
  rows_ += literal;
  firstValue_ = false;
}

void TableWriter::EndRow() {
  rows_ += ')';
  if (++count_ == kRowsPerStatement) Flush();
}

void TableWriter::Flush() {
  if (count_ == 0) return;
  out_ << start_ << rows_ << ";\n";
  rows_.clear();
  count_ = 0;
}

}  // namespace store::demo
