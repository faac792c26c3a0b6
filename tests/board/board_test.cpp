#include "tests/board/board_test.h"

#include <algorithm>

#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {
namespace {

frm_Start& FreshBoard() {
  RegisterBoardForms();
  for (const char* name : {"frm_Order", "frm_Order01", "frm_Order02", "frm_Order03", "frm_PE_UNIT"})
    RegisterForm(name, [name] { return std::make_unique<StandInForm>(name); });
  return dynamic_cast<frm_Start&>(*TheForm("frm_Start"));
}

}  // namespace

BoardTest::BoardTest() : board(FreshBoard()) {}

void BoardTest::ShowBoard() { Host.Show(board); }

void BoardTest::ShowMay() {
  ShowBoard();
  board.DTOrderDate[0].SetValue("2024-05-01");
  board.DTOrderDate[1].SetValue("2024-05-31");
  board.Option1_Click(0);
}

std::vector<std::string> BoardTest::Slips() {
  std::vector<std::string> slips;
  for (int row = 1; row < board.FLEX1.Rows(); ++row)
    slips.push_back(board.FLEX1.TextMatrix(row, board::SlipId));
  return slips;
}

void BoardTest::PointAt(const std::string& slipId, int column) {
  const auto slips = Slips();
  const auto found = std::find(slips.begin(), slips.end(), slipId);
  if (found == slips.end()) ADD_FAILURE() << slipId << " is not on the board";
  board.FLEX1.Select(static_cast<int>(found - slips.begin()) + 1, column);
}

void BoardTest::Click(const std::string& slipId, int column) {
  PointAt(slipId, column);
  board.FLEX1_Click();
}

bool BoardTest::IsOpen(const std::string& name) { return OpenForm(name) != nullptr; }

StandInForm& BoardTest::Opened(const std::string& name) {
  EXPECT_TRUE(IsOpen(name)) << name;
  return dynamic_cast<StandInForm&>(*TheForm(name));
}

std::string BoardTest::StateOf(const std::string& slipId) {
  const auto rows = Rows("SELECT PE_CK FROM PEM22 WHERE PE_ID='" + slipId + "'");
  return rows.empty() ? "gone" : rows[0][0];
}

}  // namespace store
