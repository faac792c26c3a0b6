// A grid of twenty thousand rows as a workbook.
#include <xlsxwriter.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bench/benches.h"
#include "forms/grid.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "lookup/export_grid.h"
#include "lookup/lookup_form.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kRounds = 5;

Grid ItemGrid() {
  Grid grid;
  grid.SetColumns(std::vector<GridColumn>(11));
  FillLookupGrid(Splice("{list} LIMIT 20000", "list"_a = ItemListStatement()), grid);
  return grid;
}

/// A cell as the sheet holds it; numbers have been read already.
struct SheetCell {
  std::string Text;
  double Number = 0;
  bool IsNumber = false;
};

/// Codes of a leading zero and barcodes are texts.
std::vector<SheetCell> CellsOf(const Grid& grid) {
  std::vector<SheetCell> cells;
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Cols(); ++column) {
      const std::string& text = grid.TextMatrix(row, column);
      char* end = nullptr;
      const double number = std::strtod(text.c_str(), &end);
      const bool reads = !text.empty() && *end == 0 && text.size() <= 11 &&
                         (text == "0" || text[0] != '0') && text != " ";
      cells.push_back({text, number, reads});
    }
  }
  return cells;
}

void WriteByLibrary(const std::vector<SheetCell>& cells, int columns, const std::string& path) {
  lxw_workbook* workbook = workbook_new(path.c_str());
  lxw_worksheet* sheet = workbook_add_worksheet(workbook, nullptr);
  for (size_t i = 0; i < cells.size(); ++i) {
    const auto row = static_cast<lxw_row_t>(i / static_cast<size_t>(columns));
    const auto column = static_cast<lxw_col_t>(i % static_cast<size_t>(columns));
    if (cells[i].IsNumber) {
      worksheet_write_number(sheet, row, column, cells[i].Number, nullptr);
    } else if (!cells[i].Text.empty()) {
      worksheet_write_string(sheet, row, column, cells[i].Text.c_str(), nullptr);
    }
  }
  workbook_close(workbook);
}

}  // namespace

void BenchExport(BenchServer& server, RatioTable& table) {
  const Grid grid = ItemGrid();
  Host.OpenAddress = [](const std::string& path) { return std::filesystem::remove(path); };
  const std::vector<SheetCell> cells = CellsOf(grid);
  Host.DocumentsFolder = server.Folder();
  Label where;
  const std::string path = server.Folder() + "/peer.xlsx";
  table.AddTimes("grid exported, against libxlsxwriter alone",
                 MeasureBoth(
                     kRounds, [&] { ExportGrid(grid, "표", where); },
                     [&] { WriteByLibrary(cells, grid.Cols(), path); }),
                 1.2);
  std::printf("  %d rows of %d columns\n", grid.Rows(), grid.Cols());
}

}  // namespace store
