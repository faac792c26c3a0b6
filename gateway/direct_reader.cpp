#include "gateway/direct_reader.h"

#include <algorithm>
#include <vector>

namespace store {
namespace {

constexpr size_t kWidestBound = 4096;     // bytes; what is wider is fetched value by value
constexpr size_t kBufferBytes = 1 << 18;  // fits the second-level cache
constexpr size_t kMostRows = 512;
constexpr const char* kCutText = "조회 결과가 온전하지 않습니다.";

struct ResultColumn {
  std::string name;
  bool decimal = false;
  bool bound = true;
  size_t width = 0;  // bytes of one value in the buffer, its closing zero included
  std::unique_ptr<char[]> buffer;
  std::vector<SQLLEN> lengths;
};

/// "1500.0000" reads "1500": fixed-width files and quantity cells count on plain decimals.
std::string_view WithoutTrailingZeros(std::string_view decimal) {
  if (decimal.find('.') == std::string_view::npos) return decimal;
  while (decimal.back() == '0') decimal.remove_suffix(1);
  if (decimal.back() == '.') decimal.remove_suffix(1);
  return decimal;
}

void AppendValue(Recordset& rows, const ResultColumn& column, std::string_view value) {
  rows.Append(column.decimal ? WithoutTrailingZeros(value) : value);
}

/// Reads one result. Every routine gives false on a failure, with the reason in the error text: a
/// list that lacks a row, or a value that lacks its end, must not pass for the whole.
class ResultReader {
 public:
  ResultReader(SQLHSTMT statement, std::string& errorText)
      : statement_(statement), errorText_(errorText) {}

  bool Describe();
  bool Bind();
  std::vector<std::string> Names() const;
  bool TakeAll(Recordset& rows);

 private:
  bool Ran(SQLRETURN result) { return Succeeded(result, SQL_HANDLE_STMT, statement_, errorText_); }
  bool Broken(const char* what) {
    errorText_ = what;
    return false;
  }
  bool SetAttribute(SQLINTEGER attribute, SQLPOINTER value) {
    return Ran(Odbc.SetStmtAttr(statement_, attribute, value, 0));
  }
  bool DescribeColumn(SQLUSMALLINT number, ResultColumn& column);
  bool ChooseRowArray();
  bool BindColumn(SQLUSMALLINT number, ResultColumn& column);
  bool TakeRow(size_t row, Recordset& rows);
  bool TakeBoundValue(const ResultColumn& column, size_t row, Recordset& rows);
  bool TakeWideValue(const ResultColumn& column, SQLUSMALLINT number, Recordset& rows);
  bool NextPiece(SQLUSMALLINT number, std::string& value, SQLLEN& left, bool& last);

  SQLHSTMT statement_;
  std::string& errorText_;
  std::vector<ResultColumn> columns_;
  SQLLEN announced_ = 0;  // rows, where the driver knows
  size_t arrayRows_ = 1;
  std::vector<SQLUSMALLINT> states_;  // what became of each row of the array
  SQLULEN fetched_ = 0;
};

bool ResultReader::DescribeColumn(SQLUSMALLINT number, ResultColumn& column) {
  SQLCHAR name[512] = "";
  SQLSMALLINT nameLength = 0;
  SQLSMALLINT type = 0;
  SQLULEN size = 0;
  SQLSMALLINT digits = 0;
  SQLSMALLINT nullable = 0;
  SQLLEN octets = 0;
  SQLLEN shown = 0;
  if (!Ran(Odbc.DescribeCol(statement_, number, name, sizeof(name), &nameLength, &type, &size,
                            &digits, &nullable)) ||
      !Ran(Odbc.ColAttribute(statement_, number, SQL_DESC_OCTET_LENGTH, nullptr, 0, nullptr,
                             &octets)) ||
      !Ran(Odbc.ColAttribute(statement_, number, SQL_DESC_DISPLAY_SIZE, nullptr, 0, nullptr,
                             &shown))) {
    return false;
  }
  column.name = reinterpret_cast<const char*>(name);
  column.decimal = type == SQL_DECIMAL || type == SQL_NUMERIC;
  // A letter of the display size can take four bytes.
  const auto bytes = static_cast<size_t>(std::max<SQLLEN>({octets, 4 * shown, 24}));
  column.bound = bytes < kWidestBound;
  column.width = bytes + 1;
  return true;
}

bool ResultReader::Describe() {
  SQLSMALLINT count = 0;
  if (!Ran(Odbc.NumResultCols(statement_, &count))) return false;
  if (count <= 0) return Broken("조회 결과에 항목이 없습니다.");
  columns_.resize(static_cast<size_t>(count));
  SQLUSMALLINT number = 0;
  return std::all_of(columns_.begin(), columns_.end(),
                     [&](ResultColumn& column) { return DescribeColumn(++number, column); });
}

std::vector<std::string> ResultReader::Names() const {
  std::vector<std::string> names;
  names.reserve(columns_.size());
  for (const ResultColumn& column : columns_) names.push_back(column.name);
  return names;
}

bool ResultReader::ChooseRowArray() {
  // The driver has the rows already and knows their number: a small result gets small buffers.
  if (!Ran(Odbc.RowCount(statement_, &announced_))) return false;
  size_t rowBytes = 1;
  bool allBound = true;
  for (const ResultColumn& column : columns_) {
    allBound = allBound && column.bound;
    if (column.bound) rowBytes += column.width;
  }
  const size_t most =
      announced_ > 0 ? std::min(static_cast<size_t>(announced_), kMostRows) : kMostRows;
  arrayRows_ = allBound ? std::clamp<size_t>(kBufferBytes / rowBytes, 1, most) : 1;
  states_.assign(arrayRows_, SQL_ROW_NOROW);
  return SetAttribute(SQL_ATTR_ROW_ARRAY_SIZE, AttributeValue(arrayRows_)) &&
         SetAttribute(SQL_ATTR_ROW_STATUS_PTR, states_.data()) &&
         SetAttribute(SQL_ATTR_ROWS_FETCHED_PTR, &fetched_);
}

bool ResultReader::BindColumn(SQLUSMALLINT number, ResultColumn& column) {
  if (!column.bound) return true;
  column.buffer = std::make_unique_for_overwrite<char[]>(column.width * arrayRows_);
  column.lengths.assign(arrayRows_, SQL_NO_TOTAL);
  return Ran(Odbc.BindCol(statement_, number, SQL_C_CHAR, column.buffer.get(),
                          static_cast<SQLLEN>(column.width), column.lengths.data()));
}

bool ResultReader::Bind() {
  if (!ChooseRowArray()) return false;
  SQLUSMALLINT number = 0;
  return std::all_of(columns_.begin(), columns_.end(),
                     [&](ResultColumn& column) { return BindColumn(++number, column); });
}

bool ResultReader::TakeBoundValue(const ResultColumn& column, size_t row, Recordset& rows) {
  const SQLLEN length = column.lengths[row];
  if (length == SQL_NULL_DATA) {
    rows.AppendNull();
    return true;
  }
  if (length < 0 || static_cast<size_t>(length) >= column.width) return Broken(kCutText);
  AppendValue(rows, column,
              {column.buffer.get() + row * column.width, static_cast<size_t>(length)});
  return true;
}

/// Adds what the driver gives next of a value of the current row. `left` is what it said was to
/// come, this piece included.
bool ResultReader::NextPiece(SQLUSMALLINT number, std::string& value, SQLLEN& left, bool& last) {
  char piece[16384];
  const SQLRETURN result =
      Odbc.GetData(statement_, number, SQL_C_CHAR, piece, sizeof(piece), &left);
  if (result == SQL_NO_DATA) return Broken(kCutText);
  if (!Ran(result)) return false;
  last = left == SQL_NULL_DATA || (left >= 0 && left < static_cast<SQLLEN>(sizeof(piece)));
  if (last && result != SQL_SUCCESS) return Broken(kCutText);
  if (left != SQL_NULL_DATA) {
    value.append(piece, last ? static_cast<size_t>(left) : sizeof(piece) - 1);
  }
  return true;
}

bool ResultReader::TakeWideValue(const ResultColumn& column, SQLUSMALLINT number, Recordset& rows) {
  std::string value;
  SQLLEN total = 0;
  bool last = false;
  if (!NextPiece(number, value, total, last)) return false;
  if (total == SQL_NULL_DATA) {
    rows.AppendNull();
    return true;
  }
  for (SQLLEN left = 0; !last;) {
    if (!NextPiece(number, value, left, last)) return false;
  }
  if (total >= 0 && value.size() != static_cast<size_t>(total)) return Broken(kCutText);
  AppendValue(rows, column, value);
  return true;
}

bool ResultReader::TakeRow(size_t row, Recordset& rows) {
  if (states_[row] != SQL_ROW_SUCCESS && states_[row] != SQL_ROW_SUCCESS_WITH_INFO) {
    return Ran(SQL_ERROR);
  }
  SQLUSMALLINT number = 0;
  for (const ResultColumn& column : columns_) {
    ++number;
    if (!(column.bound ? TakeBoundValue(column, row, rows) : TakeWideValue(column, number, rows))) {
      return false;
    }
  }
  rows.EndRow();
  return true;
}

bool ResultReader::TakeAll(Recordset& rows) {
  SQLLEN taken = 0;
  for (;;) {
    fetched_ = 0;
    const SQLRETURN result = Odbc.Fetch(statement_);
    if (result == SQL_NO_DATA) break;
    if (!Ran(result)) return false;
    if (fetched_ == 0 || fetched_ > arrayRows_) return Broken(kCutText);
    for (SQLULEN row = 0; row < fetched_; ++row) {
      if (!TakeRow(row, rows)) return false;
    }
    taken += static_cast<SQLLEN>(fetched_);
  }
  return announced_ <= 0 || taken == announced_ || Broken(kCutText);
}

}  // namespace

std::unique_ptr<Recordset> ReadAllRows(OdbcStatement& statement, std::string& errorText) {
  ResultReader reader(statement.Handle(), errorText);
  if (!reader.Describe()) return nullptr;
  auto rows = std::make_unique<Recordset>(reader.Names());
  if (!reader.Bind() || !reader.TakeAll(*rows)) return nullptr;
  rows->Seal();
  return rows;
}

}  // namespace store
