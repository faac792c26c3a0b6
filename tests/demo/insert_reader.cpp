#include "tests/demo/insert_reader.h"

#include <stdexcept>

namespace store::demo {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool FindInsert() {
    constexpr std::string_view kInsert = "INSERT INTO ";
    const std::size_t found = text_.find(kInsert, at_);
    if (found == std::string_view::npos) return false;
    at_ = found + kInsert.size();
    return true;
  }

  std::string UpTo(char end) {
    const std::size_t found = text_.find(end, at_);
    std::string word(text_.substr(at_, found - at_));
    at_ = found + 1;
    return word;
  }

  // A list in brackets, the opening one already taken.
  std::vector<std::string> List() {
    std::vector<std::string> values;
    do {
      values.push_back(Value());
    } while (Take() == ',');
    return values;
  }

  // True when another row of the statement follows.
  bool ToRow() {
    while (true) {
      const char c = Take();
      if (c == '(') return true;
      if (c == ';') return false;
    }
  }

 private:
  char Take() { return text_.at(at_++); }

  std::string Value() {
    std::string value;
    if (text_.at(at_) != '\'') {
      while (text_.at(at_) != ',' && text_.at(at_) != ')') value += Take();
      return value;
    }
    for (++at_; text_.at(at_) != '\'';) {
      char c = Take();
      if (c == '\\') {
        c = Take();
        if (c == 'n') c = '\n';
      }
      value += c;
    }
    ++at_;
    return value;
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

std::map<std::string, std::vector<Row>> ReadInserts(std::string_view sql) {
  std::map<std::string, std::vector<Row>> tables;
  Reader reader(sql);
  while (reader.FindInsert()) {
    const std::string table = reader.UpTo(' ');
    reader.UpTo('(');
    const std::vector<std::string> columns = reader.List();
    while (reader.ToRow()) {
      const std::vector<std::string> values = reader.List();
      if (values.size() != columns.size())
        throw std::runtime_error("row too long or short: " + table);
      Row& row = tables[table].emplace_back();
      for (std::size_t i = 0; i < columns.size(); ++i) row[columns[i]] = values[i];
    }
  }
  return tables;
}

}  // namespace store::demo
