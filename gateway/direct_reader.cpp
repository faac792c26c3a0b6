#include "gateway/direct_reader.h"

#include <algorithm>
#include <vector>

namespace store {
namespace {

constexpr size_t kWidestBound = 4096;     // bytes; what is wider is fetched value by value
constexpr size_t kBufferBytes = 1 << 18;  // fits the second-level cache
constexpr size_t kMostRows = 512;

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

std::vector<ResultColumn> DescribeColumns(SQLHSTMT statement) {
  SQLSMALLINT count = 0;
  SQLNumResultCols(statement, &count);
  std::vector<ResultColumn> columns(static_cast<size_t>(std::max<SQLSMALLINT>(count, 0)));
  for (size_t i = 0; i < columns.size(); ++i) {
    const auto number = static_cast<SQLUSMALLINT>(i + 1);
    SQLCHAR name[512] = "";
    SQLSMALLINT nameLength = 0;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    SQLDescribeCol(statement, number, name, sizeof(name), &nameLength, &type, &size, &digits,
                   &nullable);
    SQLLEN octets = 0;
    SQLColAttribute(statement, number, SQL_DESC_OCTET_LENGTH, nullptr, 0, nullptr, &octets);
    SQLLEN shown = 0;
    SQLColAttribute(statement, number, SQL_DESC_DISPLAY_SIZE, nullptr, 0, nullptr, &shown);
    columns[i].name = reinterpret_cast<const char*>(name);
    columns[i].decimal = type == SQL_DECIMAL || type == SQL_NUMERIC;
    // A letter of the display size can take four bytes.
    const size_t bytes = static_cast<size_t>(std::max<SQLLEN>({octets, 4 * shown, 24}));
    columns[i].bound = bytes < kWidestBound;
    columns[i].width = bytes + 1;
  }
  return columns;
}

size_t BindColumns(SQLHSTMT statement, std::vector<ResultColumn>& columns) {
  size_t rowBytes = 1;
  bool allBound = true;
  for (const ResultColumn& column : columns) {
    allBound = allBound && column.bound;
    if (column.bound) rowBytes += column.width;
  }
  // The driver has the rows already and knows their number: a small result gets small buffers.
  SQLLEN count = 0;
  SQLRowCount(statement, &count);
  const size_t most = count > 0 ? std::min(static_cast<size_t>(count), kMostRows) : kMostRows;
  const size_t rows = allBound ? std::clamp<size_t>(kBufferBytes / rowBytes, 1, most) : 1;
  SQLSetStmtAttr(statement, SQL_ATTR_ROW_ARRAY_SIZE, AttributeValue(rows), 0);
  for (size_t i = 0; i < columns.size(); ++i) {
    ResultColumn& column = columns[i];
    if (!column.bound) continue;
    column.buffer = std::make_unique_for_overwrite<char[]>(column.width * rows);
    column.lengths.resize(rows);
    SQLBindCol(statement, static_cast<SQLUSMALLINT>(i + 1), SQL_C_CHAR, column.buffer.get(),
               static_cast<SQLLEN>(column.width), column.lengths.data());
  }
  return rows;
}

/// Fetches one value of the current row piece by piece.
void ReadWideValue(SQLHSTMT statement, const ResultColumn& column, size_t index, Recordset& rows) {
  std::string value;
  char piece[16384];
  for (;;) {
    SQLLEN left = 0;
    const SQLRETURN result = SQLGetData(statement, static_cast<SQLUSMALLINT>(index + 1), SQL_C_CHAR,
                                        piece, sizeof(piece), &left);
    if (result == SQL_NO_DATA || !SQL_SUCCEEDED(result)) break;
    if (left == SQL_NULL_DATA) {
      rows.AppendNull();
      return;
    }
    const bool more = left == SQL_NO_TOTAL || left >= static_cast<SQLLEN>(sizeof(piece));
    value.append(piece, more ? sizeof(piece) - 1 : static_cast<size_t>(left));
    if (!more) break;
  }
  AppendValue(rows, column, value);
}

void TakeRow(SQLHSTMT statement, const std::vector<ResultColumn>& columns, size_t row,
             Recordset& rows) {
  for (size_t c = 0; c < columns.size(); ++c) {
    const ResultColumn& column = columns[c];
    if (!column.bound) {
      ReadWideValue(statement, column, c, rows);
    } else if (column.lengths[row] == SQL_NULL_DATA) {
      rows.AppendNull();
    } else {
      const size_t length = std::min(static_cast<size_t>(column.lengths[row]), column.width - 1);
      AppendValue(rows, column, {column.buffer.get() + row * column.width, length});
    }
  }
  rows.EndRow();
}

}  // namespace

std::unique_ptr<Recordset> ReadAllRows(OdbcStatement& statement, std::string& errorText) {
  const SQLHSTMT handle = statement.Handle();
  std::vector<ResultColumn> columns = DescribeColumns(handle);
  std::vector<std::string> names;
  names.reserve(columns.size());
  for (const ResultColumn& column : columns) names.push_back(column.name);
  auto rows = std::make_unique<Recordset>(std::move(names));

  BindColumns(handle, columns);
  SQLULEN fetched = 0;
  SQLSetStmtAttr(handle, SQL_ATTR_ROWS_FETCHED_PTR, &fetched, 0);
  for (;;) {
    const SQLRETURN result = SQLFetch(handle);
    if (result == SQL_NO_DATA) break;
    if (!SQL_SUCCEEDED(result)) {
      errorText = Diagnostics(SQL_HANDLE_STMT, handle);
      return nullptr;
    }
    for (SQLULEN r = 0; r < fetched; ++r) TakeRow(handle, columns, r, *rows);
  }
  SQLSetStmtAttr(handle, SQL_ATTR_ROWS_FETCHED_PTR, nullptr, 0);
  rows->Seal();
  return rows;
}

}  // namespace store
