#pragma once

#include "bench/bench_server.h"
#include "bench/ratio_table.h"

namespace store {

/// The supplier of the orders that are written.
constexpr const char* kSupplier = "10006";

void BenchItemList(BenchServer& server, RatioTable& table);
void BenchFilters(RatioTable& table);
/// How reads and filters grow with the number of items: a database of each size, up to `items`.
void BenchGrowth(BenchServer& server, int items);
void BenchPosting(BenchServer& server, RatioTable& table);
/// Changes the stock of the database that is loaded.
void BenchHandheldPost(BenchServer& server, RatioTable& table);
/// From the terminal's line to the staging table, and the products to its cradle.
void BenchHandheld(RatioTable& table);
void BenchSmallRead(RatioTable& table);
void BenchWalk(RatioTable& table);
// At the real windows; these need `PrepareDesk`.
void BenchBoard(BenchServer& server, RatioTable& table);
void BenchGridRows(RatioTable& table);
void BenchPickList(RatioTable& table);
void BenchTileWall(RatioTable& table);
void BenchScan(BenchServer& server, RatioTable& table);
void BenchDrafts(BenchServer& server, RatioTable& table);
void BenchKeyPress(RatioTable& table);
void BenchExport(BenchServer& server, RatioTable& table);
/// Adds so many lines to the store's sales.
void BenchProposal(BenchServer& server, RatioTable& table, int saleLines);
void BenchTransfer(BenchServer& server, RatioTable& table);
/// Needs the database of 20,000 items that `BenchGrowth` leaves, and changes it.
void BenchCategoryView(BenchServer& server, RatioTable& table);
/// Needs the demo of 3,000 items to be loaded.
void BenchStart(BenchServer& server, RatioTable& table);

}  // namespace store
