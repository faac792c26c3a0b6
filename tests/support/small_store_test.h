#pragma once

#include <gtest/gtest.h>

#include <string>

#include "basics/formats.h"
#include "basics/records.h"
#include "forms/grid.h"
#include "gateway/gateway.h"
#include "start/start_data.h"
#include "tests/support/private_server.h"
#include "tests/support/scripted_host.h"

namespace store {

/// A workstation of the small store where user u01 has just logged in.
class SmallStoreTest : public testing::Test {
 protected:
  SmallStoreTest() { StartAgain(); }

  /// The store as at the start of the test, and the user logged in anew.
  void StartAgain() {
    UseSmallStore();
    Session.UserCode = "u01";
    Session.UserName = "김하나";
    Session.UserStoreCode = "1001";
    Session.UserLevel = "1";
    LoadBaseCodes();
    LoadStore();
    LoadZ1Settings();
    FormatSetup();
  }

  /// From here on the database cannot be reached, until `Reconnect`.
  void Disconnect() { connection_.swap(ConnectString); }
  void Reconnect() { connection_.swap(ConnectString); }

  ScriptedHost host;

 private:
  std::string connection_;
};

/// The cells of a data row, joined by "|".
inline std::string RowText(const Grid& grid, int row) {
  std::string text = grid.TextMatrix(row, 0);
  for (int column = 1; column < grid.Cols(); ++column) text += "|" + grid.TextMatrix(row, column);
  return text;
}

/// One column of all data rows, joined by ",".
inline std::string ColumnText(const Grid& grid, int column) {
  std::string text;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row)
    text += (row > grid.FixedRows() ? "," : "") + grid.TextMatrix(row, column);
  return text;
}

}  // namespace store
