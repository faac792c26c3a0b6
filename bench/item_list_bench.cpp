// Reading the whole item list.
#include <algorithm>
#include <cstdio>
#include <functional>

#include "bench/benches.h"
#include "bench/client_library.h"
#include "gateway/direct_reader.h"
#include "gateway/gateway.h"
#include "gateway/odbc_connection.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kRounds = 7;

/// The rows of a statement that has run into the same kind of recordset, one SQLGetData a cell.
std::unique_ptr<Recordset> ReadCellByCell(OdbcStatement& statement) {
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

using Reader = std::function<void(OdbcStatement&)>;

/// Runs the item list's statement, and gives the seconds that `read` takes for its rows alone.
double SelectAndRead(const OdbcConnection& connection, const Reader& read) {
  OdbcStatement statement(connection);
  std::string error;
  statement.Run(ItemListStatement(), error);
  return TimeOf([&] { read(statement); });
}

/// What both share is the server's work and the driver's, which takes all rows before it gives one.
void TellReadingAlone(const OdbcConnection& connection, const Reader& ours, const Reader& peer) {
  Duel best{1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    best.Ours = std::min(best.Ours, SelectAndRead(connection, ours));
    best.Peer = std::min(best.Peer, SelectAndRead(connection, peer));
  }
  std::printf("  from the driver into the recordset alone: %.1f against %.1f ms, %.2f of it\n",
              best.Ours * 1000, best.Peer * 1000, best.Ours / best.Peer);
}

}  // namespace

void BenchItemList(BenchServer& server, RatioTable& table) {
  const auto ours = [] { OpenRecordset(SlotC, ItemListStatement()); };
  OdbcConnection connection;
  std::string error;
  connection.Connect(ConnectString, error);
  const Reader cellByCell = [](OdbcStatement& statement) { ReadCellByCell(statement); };
  table.AddTimes("item list into SlotC, against cell by cell",
                 MeasureBoth(kRounds, ours, [&] { SelectAndRead(connection, cellByCell); }), 0.60);
  const Reader byArrays = [](OdbcStatement& statement) {
    std::string ignored;
    ReadAllRows(statement, ignored);
  };
  TellReadingAlone(connection, byArrays, cellByCell);
  ClientLibrary client(server.Port());
  table.AddTimes("item list into SlotC, against mysql_store_result",
                 MeasureBoth(kRounds, ours, [&] { client.ReadAll(ItemListStatement()); }), 1.0);
  ours();
  std::printf("  %d rows in SlotC\n", RecordCountOf(SlotC));
  table.Add("memory of the recordset, against its texts",
            static_cast<double>(SlotC->BytesHeld()) / 1e6,
            static_cast<double>(SlotC->BytesOfTexts()) / 1e6, "MB", 1.3);
}

}  // namespace store
