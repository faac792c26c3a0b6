// Reading the whole item list.
#include <cstdio>

#include "bench/benches.h"
#include "bench/client_library.h"
#include "gateway/gateway.h"
#include "gateway/odbc_connection.h"

namespace store {
namespace {

constexpr int kRounds = 5;

/// The same rows into the same kind of recordset, one SQLGetData a cell.
std::unique_ptr<Recordset> ReadCellByCell(const OdbcConnection& connection,
                                          const std::string& select) {
  OdbcStatement statement(connection);
  std::string error;
  statement.Run(select, error);
  SQLSMALLINT columns = 0;
  SQLNumResultCols(statement.Handle(), &columns);
  auto rows = std::make_unique<Recordset>(std::vector<std::string>(static_cast<size_t>(columns)));
  char cell[4096];
  while (SQL_SUCCEEDED(SQLFetch(statement.Handle()))) {
    for (SQLUSMALLINT column = 1; column <= columns; ++column) {
      SQLLEN length = 0;
      SQLGetData(statement.Handle(), column, SQL_C_CHAR, cell, sizeof(cell), &length);
      if (length == SQL_NULL_DATA) {
        rows->AppendNull();
      } else {
        rows->Append({cell, static_cast<size_t>(length)});
      }
    }
    rows->EndRow();
  }
  rows->Seal();
  return rows;
}

}  // namespace

const char* ItemListStatement() {
  return " SELECT PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR_BCODE,' ',KD_ID FROM PR "
         "WHERE PR_END = '0' ORDER BY PR_NAME";
}

void BenchItemList(BenchServer& server, RatioTable& table) {
  const auto ours = [] { OpenRecordset(SlotC, ItemListStatement()); };
  OdbcConnection connection;
  std::string error;
  connection.Connect(ConnectString, error);
  table.AddTimes("item list into SlotC, against cell by cell",
                 Fight(kRounds, ours, [&] { ReadCellByCell(connection, ItemListStatement()); }),
                 0.60);
  ClientLibrary client(server.Port());
  table.AddTimes("item list into SlotC, against mysql_store_result",
                 Fight(kRounds, ours, [&] { client.ReadAll(ItemListStatement()); }), 1.7);
  ours();
  std::printf("%d rows in SlotC\n", RecordCountOf(SlotC));
  table.Add("memory of the recordset, against its texts",
            static_cast<double>(SlotC->BytesHeld()) / 1e6,
            static_cast<double>(SlotC->BytesOfTexts()) / 1e6, "MB", 1.3);
}

}  // namespace store
