#pragma once

#include <optional>
#include <string>
#include <vector>

namespace store {

/// Rows of a table as they stood in the database: every column by its name, NULL apart from the
/// empty text.
struct KeptRows {
  using Row = std::vector<std::optional<std::string>>;

  std::vector<std::string> Columns;
  std::vector<Row> Rows;

  /// A value by its column; empty for NULL, and where there is no such row or column.
  std::string Text(size_t row, const std::string& column) const;
  bool operator==(const KeptRows&) const = default;
};

/// An order as it stood when it was deleted: its row of PEM22 and its rows of PSM22.
struct DeletedSlip {
  int Number = 0;         ///< Its number in the file of deleted slips; 0 before it is kept.
  std::string DeletedAt;  ///< "YYYY-MM-DD HH:MM:SS" of the workstation's clock.
  bool Sure = false;      ///< The database has said that it is deleted.
  KeptRows Header;
  KeptRows Lines;

  std::string Id() const { return Header.Text(0, "PE_ID"); }
};

/// Reads the order whole. Nothing when the database could not be asked; without a header when there
/// is no such order.
std::optional<DeletedSlip> ReadWholeSlip(const std::string& slipId);

/// What a deletion's error text is when the order is not as it was read any more.
inline constexpr const char* kSlipChanged = "다른 곳에서 먼저 변경된 전표입니다.";
/// The guard of the deletion: what stands under the key is what was read, state, stamp and lines.
std::string StillAsReadGuard(const DeletedSlip& slip);

/// What has become of a slip that was to be taken back.
enum class RestoreFate {
  Restored,    ///< It stands again, every column as it was.
  NeverGone,   ///< It stands there as it was: it had not been deleted, or is back already.
  KeyTaken,    ///< Another order, or a changed one, has its key; nothing was written.
  Failed,      ///< Nothing was written. `LastErrorText` says why.
  NotFound,    ///< The answer was lost, and it is not there; the try may still be running.
  Unreachable  ///< The answer was lost, and the database could not be asked.
};

/// Stores the slip again under its key, in one batch, if the key is free. It may be tried again at
/// any time: it never comes twice, and never over another one.
RestoreFate RestoreSlip(const DeletedSlip& slip);

}  // namespace store
