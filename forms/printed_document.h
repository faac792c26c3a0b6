#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/grid.h"

namespace store {

/// A column of a printed table. Names may go on in a further line; everything else, codes and
/// figures, is never cut and never parted.
struct PrintedColumn {
  std::string Header = {};
  Align Alignment = Align::Left;
  bool IsName = false;
};

/// What goes on paper, as finished texts: a heading with a barcode, captions with their values, a
/// table over as many pages as it takes, and its totals behind the last row.
struct PrintedDocument {
  using Captioned = std::pair<std::string, std::string>;  ///< A caption and its value.

  std::string Title = {};
  std::string Key = {};  ///< Stands in the barcode and below it.
  std::vector<Captioned> Head = {};
  std::vector<PrintedColumn> Columns = {};
  std::vector<std::vector<std::string>> Rows = {};  ///< A cell a column.
  std::vector<Captioned> Totals = {};
  std::string Foot = {};  ///< At the bottom of every page, left of its number.
};

}  // namespace store
