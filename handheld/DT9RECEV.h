#pragma once

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/grid.h"
#include "forms/serial_port.h"
#include "gateway/gateway.h"
#include "handheld/staged_row.h"
#include "handheld/wire/line_receiver.h"
#include "slips/handheld_runs.h"
#include "slips/stored_once.h"

namespace store {

/// Columns of the grid of received records.
namespace received {
inline constexpr int Sequence = 0;  ///< The terminal's number.
inline constexpr int Kind = 1;      ///< The kind of goods movement.
inline constexpr int Code = 2;      ///< The partner's code in force.
inline constexpr int Party = 3;     ///< The partner's name, from the master table.
inline constexpr int Barcode = 4;   ///< As sent.
inline constexpr int Product = 5;   ///< The product's name as sent.
inline constexpr int Quantity = 6;
inline constexpr int Price = 7;
inline constexpr int Registered = 8;  ///< The partner's code as sent; never changed.
inline constexpr int Count = 9;
}  // namespace received

/// Receives what was scanned with the handheld terminal over the serial line, shows it for review
/// and stages it in table DT900. Which kind of records it takes, for which module, and whether they
/// are returns stands in the fields of `HandheldForm`, set before it is shown.
class DT9RECEV : public HandheldForm {
 public:
  DT9RECEV();

  std::array<Button, 4> Command1;  ///< 0 port settings, 1 receives or stops, 2 closes, 3 saves.
  std::array<Label, 2> LBL_TITLE;  ///< 1 blinks the title of the module.
  Label laGubun{"이동입고"};       ///< The kind that is accepted.
  Label Label1;                    ///< How many records have come, four digits.
  Label Label2;                    ///< The port and its settings.
  Label Label7;                    ///< Who checked the goods.
  Grid FLEX;
  std::array<TextBox, 2> Text1;  ///< The old and the new code of a partner change.
  Button Command2{"적용"};       ///< Changes the partner.
  Button Command3{"찾기"};       ///< Looks the new partner up.
  Timer Timer1;

  /// The terminal's line. Never nothing.
  std::unique_ptr<SerialPort> MSComm1;

  int AckCounter = 0;            ///< The number of the next reply; set when a transfer opens.
  bool LastRecordValid = false;  ///< Whether the last record was of the kind of this run.
  bool ContractFlag = false;     ///< This save takes the contract prices.

  void Load() override;
  void Activate() override;
  bool QueryUnload() override;
  void Unload() override;
  bool KeyDown(Key key) override;

  void Command1_Click(int index);
  void Command2_Click();
  void Command3_Click();
  /// A cell is activated: an unknown product is registered.
  void FLEX_DblClick();
  void Timer1_Timer();

  /// Opens or closes the port; what has arrived is forgotten. A refusal is told in a box.
  void SetPortOpen(bool open);
  /// Something has happened on the line, by its code (`comm`).
  void OnCommEvent(int code);
  /// Takes what the line has brought. What arrives while an earlier piece is being answered waits
  /// for its turn.
  void OnHandheldChunk(const std::string& text);
  /// Adds the row of a record. False when it is of another kind than this run takes.
  bool ParseHandheldRecord(const std::string& record);
  /// Fills the partner columns from the master table (CT, or RCT for shipments). A code that is not
  /// there goes empty; rows without a partner of their own stay as they are.
  void FillPartnerNames();
  /// Writes all rows to DT900 as one batch. True when that was done; what went wrong has been told.
  bool SaveToStaging();

 private:
  void PublishControls();

  // Transfer: receive_transfer.cpp.
  bool AskInspector();
  void StartOrStop();
  void ShowIdle();
  void ShowReceiving();
  void InTurn(std::function<void()> work);
  void Answer(const LineMessage& message);
  void AcceptTransfer();
  void AcceptReceived(const std::string& record);
  void EndTransfer();
  void ReportError(int code);

  // Rows: received_rows.cpp.
  void ResetGrid();
  void AddRow(const std::array<std::string, received::Count>& cells);
  bool IsWrongKind(int row) const;
  bool HasNoPartner(int row) const;
  void MarkNewProducts();
  int RowsRegisteredFor(const std::string& code) const;

  // Staging: receive_staging.cpp.
  void Save();
  bool StagesPartnerOf(int row);
  StagedRow RowToStage(int row) const;
  std::optional<std::string> StagedPrice(int row, const StagedRow& staged) const;
  Fate Stage(std::vector<StagedRow> rows);
  void BeginTransfer(const std::string& content);
  bool TakeProduct(int row, const RecordsetSlot& products, StagedRow& staged) const;

  LineReceiver receiver_;
  std::deque<std::function<void()>> waiting_;  // what the line has brought meanwhile
  bool busy_ = false;                          // a piece of it is being worked at
  std::string taxColumn_;                      // of the product table, for this run
  std::string transfer_;       // begins the keys of its rows; taken at its first save
  std::string content_;        // what was saved of it last
  StoredOnce staging_;         // of that transfer
  bool receivedAnew_ = false;  // since the last save the terminal has sent once more
};

}  // namespace store
