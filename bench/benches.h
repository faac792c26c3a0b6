#pragma once

#include "bench/bench_server.h"
#include "bench/ratio_table.h"

namespace store {

/// The statement of the item list, its 11 columns.
const char* ItemListStatement();

void BenchItemList(BenchServer& server, RatioTable& table);
void BenchFilters(RatioTable& table);
/// How reads and filters grow from 2,000 items to all of them.
void BenchGrowth(int items);
void BenchPosting(BenchServer& server, RatioTable& table);
void BenchSmallRead(RatioTable& table);
/// Needs the demo of 3,000 items to be loaded.
void BenchStart(BenchServer& server, RatioTable& table);

}  // namespace store
