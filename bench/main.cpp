// Ratios of ours against named peers, each measured in one run on the same data.
#include <cstdio>
#include <cstring>

#include "bench/benches.h"

int main(int argc, char** argv) {
  using namespace store;
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
  server.Load(kDemo, 3000, 200);
  BenchStart(server, table);
  std::printf(table.AllMet() ? "all goals met\n" : "some goals missed\n");
  return table.AllMet() ? 0 : 1;
}
