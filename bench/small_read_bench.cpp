// A single small read, as the forms do hundreds of a day.
#include "bench/benches.h"
#include "gateway/gateway.h"
#include "gateway/odbc_connection.h"

namespace store {
namespace {

constexpr const char* kDepots = "SELECT HCT_CODE,HCT_NAME FROM HCT WHERE RCT_CODE = '1001'";
constexpr int kReads = 200;  // a round, so that one hiccup of the machine does not decide

void ReadOverOpenConnection(const OdbcConnection& connection) {
  OdbcStatement statement(connection);
  std::string error;
  statement.Run(kDepots, error);
  std::vector<std::string> cells;
  char cell[256];
  while (SQL_SUCCEEDED(SQLFetch(statement.Handle()))) {
    for (SQLUSMALLINT column = 1; column <= 2; ++column) {
      SQLLEN length = 0;
      SQLGetData(statement.Handle(), column, SQL_C_CHAR, cell, sizeof(cell), &length);
      cells.emplace_back(cell);
    }
  }
}

}  // namespace

void BenchSmallRead(RatioTable& table) {
  OdbcConnection connection;
  std::string error;
  connection.Connect(ConnectString, error);
  StringTable rows;
  std::int32_t count = 0;
  std::int32_t highest = 0;
  table.AddTimes("200 small QueryRows, against one connection kept open",
                 MeasureBoth(
                     9,
                     [&] {
                       for (int i = 0; i < kReads; ++i) QueryRows(kDepots, rows, count, highest);
                     },
                     [&] {
                       for (int i = 0; i < kReads; ++i) ReadOverOpenConnection(connection);
                     }),
                 2);
}

}  // namespace store
