// Searching the item list.
#include <sqlite3.h>

#include <cstdio>
#include <functional>
#include <vector>

#include "bench/benches.h"
#include "gateway/gateway.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kRounds = 15;

std::vector<std::string> Column(int field) {
  SetFilter(SlotC, "");
  std::vector<std::string> texts;
  ForEachRow(SlotC, [&] { texts.push_back(FieldText(SlotC, field)); });
  SlotC->MoveFirst();
  return texts;
}

/// The plain loop that a filter replaces.
std::vector<std::uint32_t> FindLoop(const std::vector<std::string>& texts,
                                    const std::string& needle) {
  std::vector<std::uint32_t> rows;
  for (size_t i = 0; i < texts.size(); ++i) {
    if (texts[i].find(needle) != std::string::npos) rows.push_back(static_cast<std::uint32_t>(i));
  }
  return rows;
}

/// The names in a table of SQLite in memory.
class SqliteNames {
 public:
  explicit SqliteNames(const std::vector<std::string>& names) {
    sqlite3_open(":memory:", &base_);
    sqlite3_exec(base_, "CREATE TABLE PR (PR_NAME TEXT); BEGIN", nullptr, nullptr, nullptr);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(base_, "INSERT INTO PR VALUES (?)", -1, &insert, nullptr);
    for (const std::string& name : names) {
      sqlite3_bind_text(insert, 1, name.c_str(), static_cast<int>(name.size()), SQLITE_STATIC);
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    sqlite3_exec(base_, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_prepare_v2(base_, "SELECT rowid FROM PR WHERE PR_NAME LIKE ?", -1, &find_, nullptr);
  }
  ~SqliteNames() {
    sqlite3_finalize(find_);
    sqlite3_close(base_);
  }
  SqliteNames(const SqliteNames&) = delete;
  SqliteNames& operator=(const SqliteNames&) = delete;

  size_t Find(const std::string& needle) {
    const std::string pattern = "%" + needle + "%";
    sqlite3_bind_text(find_, 1, pattern.c_str(), static_cast<int>(pattern.size()), SQLITE_STATIC);
    std::vector<std::int64_t> rows;
    while (sqlite3_step(find_) == SQLITE_ROW) rows.push_back(sqlite3_column_int64(find_, 0));
    sqlite3_reset(find_);
    return rows.size();
  }

 private:
  sqlite3* base_ = nullptr;
  sqlite3_stmt* find_ = nullptr;
};

void FilterName(const std::string& needle) {
  SetFilter(SlotC, Splice(" PR_NAME LIKE '%{needle}%'", "needle"_a = needle));
}

}  // namespace

void BenchFilters(RatioTable& table) {
  const std::vector<std::string> names = Column(item::Name);
  const std::vector<std::string> barcodes = Column(item::Barcode);
  const std::vector<std::string> codes = Column(item::Code);
  SqliteNames sqlite(names);
  const struct {
    const char* kind;
    const char* needle;
    const char* asItStands;
  } needles[] = {{"a rare word", "암반수", "암반수"},
                 {"one syllable", "수", "수"},
                 {"Latin in the other case", "big", "BIG"},
                 {"no hit", "없는품목", "없는품목"}};
  for (const auto& n : needles) {
    FilterName(n.needle);
    std::printf("  %s, \"%s\": %d hits\n", n.kind, n.needle, RecordCountOf(SlotC));
    table.AddTimes(
        std::string("filter by ") + n.kind + ", against std::string::find",
        MeasureBoth(
            kRounds, [&] { FilterName(n.needle); }, [&] { FindLoop(names, n.asItStands); }),
        0.5);
    table.AddTimes(std::string("filter by ") + n.kind + ", against SQLite in memory",
                   MeasureBoth(
                       5, [&] { FilterName(n.needle); }, [&] { sqlite.Find(n.needle); }),
                   0.1);
  }
  const std::string barcode = barcodes[barcodes.size() / 2];
  const std::string code = codes[codes.size() / 2];
  table.AddTimes(
      "filter by barcode, against std::string::find",
      MeasureBoth(
          kRounds,
          [&] { SetFilter(SlotC, Splice(" PR_BCODE  like '{barcode}%'", "barcode"_a = barcode)); },
          [&] { FindLoop(barcodes, barcode); }),
      0.3);
  table.AddTimes(
      "filter by product code, against std::string::find",
      MeasureBoth(
          kRounds, [&] { SetFilter(SlotC, Splice(" PR_CODE  = '{code}'", "code"_a = code)); },
          [&] { FindLoop(codes, code); }),
      0.3);
}

void BenchGrowth(BenchServer& server, int items) {
  std::printf("growth: rows, read ms, name filter ms, barcode filter ms\n");
  for (int count = 2000; count <= items; count *= 10) {
    const std::string database = "growth" + std::to_string(count);
    server.Load(database, count, 200);
    ConnectTo(server.Port(), database);
    const auto shortest = [](int rounds, const std::function<void()>& work) {
      return MeasureBoth(rounds, work, [] {}).Ours * 1000;
    };
    const double read = shortest(5, [] { OpenRecordset(SlotC, ItemListStatement()); });
    const double name = shortest(kRounds, [] { FilterName("암반수"); });
    const double barcode =
        shortest(kRounds, [] { SetFilter(SlotC, " PR_BCODE  like '8801234567890%'"); });
    SetFilter(SlotC, "");
    std::printf("growth: %d, %.2f, %.4f, %.4f\n", RecordCountOf(SlotC), read, name, barcode);
    std::fflush(stdout);
  }
}

}  // namespace store
