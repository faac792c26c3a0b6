// Ratios of ours against named peers, each measured in one run on the same data.
#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstring>

#include "basics/formats.h"
#include "bench/benches.h"
#include "bench/desk_hand.h"
#include "start/start_data.h"

namespace store {
namespace {

/// What a start of the program reads before the board opens.
void StartUp() {
  LoadBaseCodes();
  LoadStore();
  LoadZ1Settings();
  FormatSetup();
}

void BenchWindows(BenchServer& server, RatioTable& table, int saleLines) {
  StartUp();
  BenchScan(server, table);
  BenchDrafts(server, table);
  BenchKeyPress(table);
  BenchPickList(table);
  BenchTileWall(table);
  BenchExport(server, table);
  BenchTransfer(server, table);
  BenchCategoryView(server, table);
  BenchBoard(server, table);
  BenchProposal(server, table, saleLines);
  BenchHandheldPost(server, table);
}

}  // namespace
}  // namespace store

int main(int argc, char** argv) {
  using namespace store;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QTemporaryDir data;  // the user's own drafts are no part of this
  qputenv("STORE_DATA_FOLDER", data.path().toUtf8());
  PrepareDesk(application);
  const bool quick = argc > 1 && std::strcmp(argv[1], "--quick") == 0;
  const int items = quick ? 20000 : 200000;
  BenchServer server;
  RatioTable table;
  std::printf("loading %d items\n", items);
  std::fflush(stdout);
  server.Load(kDemo, items, 2000);
  ConnectTo(server.Port());
  table.Head();
  BenchItemList(server, table);
  BenchFilters(table);
  BenchGrowth(server, items);
  ConnectTo(server.Port());
  BenchSmallRead(table);
  BenchPosting(server, table);
  BenchWalk(table);
  BenchGridRows(table);
  BenchHandheld(table);
  BenchWindows(server, table, quick ? 100000 : 1000000);
  server.Load(kDemo, 3000, 200);
  BenchStart(server, table);
  std::printf(table.AllMet() ? "all goals met\n" : "some goals missed\n");
  return table.AllMet() ? 0 : 1;
}
