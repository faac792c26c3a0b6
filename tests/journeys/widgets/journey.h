#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <string>

#include "tests/journeys/hands.h"
#include "ui/form_window.h"

namespace store {

/// Columns of the board's slips.
inline constexpr int kStateColumn = 3;
inline constexpr int kSlipIdColumn = 8;  // hidden

/// The program on the demo franchise, from its start to the end of the board.
class Journey : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Sets an option of the workstation; before `Start`.
  static void SetOption(const std::string& key, const std::string& value);
  /// Starts the program and waits for the board. Without a command line somebody must log in.
  void Start(const std::string& commandLine);
  /// Ends it on the board and starts it again.
  void StartAgain(const std::string& commandLine);
  /// Starts it anew without an end of the former run.
  void Restart(const std::string& commandLine);
  /// As the program runs: closing the board is what ends it.
  void CloseBoard();

  FormWindow& Board() { return Hands::Window("frm_Start"); }
  /// The order form of the workstation's type, ready for a person.
  FormWindow& Order();
  /// Row of a slip on the board, or -1.
  int RowOf(const std::string& slipId) {
    return Hands::RowWith(Board(), "FLEX1", kSlipIdColumn, slipId);
  }
  /// Its state word, or nothing when it is not on the board.
  std::string StateOf(const std::string& slipId);
  /// With the arrow keys to a slip on the board.
  void WalkTo(const std::string& slipId);
  /// Saves the order with F9 and goes back to the board.
  void Save(Qt::KeyboardModifiers modifiers);

  Hands hands;

 private:
  void Prepare();
  QTemporaryDir folder_;
};

}  // namespace store
