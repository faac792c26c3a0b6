#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "handheld/handheld_posting.h"
#include "handheld/staged_rows_pane.h"
#include "slips/handheld_runs.h"
#include "slips/stored_once.h"

namespace store {

/// The second step of the terminal's path: lists the staged rows of one module, and turns the
/// ticked ones into slips with their stock and balance, one slip a partner, in one batch that
/// deletes them from the staging table. Shipments to other stores go in a batch each. Module "66"
/// makes no slips: it sets the sale price of each product. The opener sets `ModuleCode` and
/// `ReturnMark`.
class FRM_DT900_01 : public HandheldForm, public StagedRowsPane, public HandheldSlip {
 public:
  FRM_DT900_01();

  Label LaRun;              ///< Which run of the form this is, as the menu names it.
  DatePicker DTPicker1;     ///< Date of the slips.
  Button Command2{"찾기"};  ///< Partner lookup.
  /// 0 lists, 1 closes, 3 makes the slips, 4 deletes; 2 has no action.
  std::array<Button, 5> Command1 = {Button("보기"), Button("닫기"), Button("인쇄"),
                                    Button("전표구성하기"), Button("삭제")};

  void Load() override;
  void Activate() override;
  bool KeyDown(Key key) override;

  void Command1_Click(int index);
  void Command2_Click();
  void Text1_KeyDown(Key key);  ///< Of the partner's box.

  /// Begins the slip of a partner: totals at zero, a new key, the header filled. A module without
  /// slips is told in a box and leaves the header without a key.
  void StartHandheldSlip(const std::string& partnerCode, const std::string& partnerName);
  /// Sizes the lines to `MaxSlipLines` and blanks them.
  void ClearHandheldLines();
  /// Copies a row of the list that has a product code into line `number` and adds it to the totals.
  /// False when the line has no depot, which is told.
  bool AddHandheldLine(int row, int number);

 private:
  /// What a press on the button has brought about so far.
  struct Pass {
    std::vector<std::string> BatchRows;  ///< PE_ID of the rows whose slips stand in the batch.
    std::string Trace;  ///< Gives a row when what was last put into the batch is stored.
    int Surveys = 0;
    int Shipments = 0;                    ///< That are stored.
    std::vector<std::string> NotShipped;  ///< The stores whose shipments are not.
    Fate Failure = Fate::Failed;          ///< How one of them failed, the least certain one,
    std::string FailureText;              ///< and the words of that.
  };

  void PublishControls();

  // The building of slips.
  std::string NextKey();
  bool BuildSlips();
  bool AddRow(int row);
  bool BeginSlip(int row);
  void FinishSlip();
  bool AddSlipToBatch();
  bool HoldsSlipOf(int row) const;

  // The pass.
  void MakeSlips();
  bool MayMakeSlips();
  bool ConfirmLeftOver();
  int RowsOverLimit() const;
  bool IsPostable(int row) const { return Ticked(row) && !ProductCode(row).empty(); }
  void AddPriceUpdates();
  StoredOnce& Work() const;  // the passes over this run's rows; each store's shipments apart
  void SendShipment(bool added);
  void NoteNotShipped(const std::string& store, Fate fate);
  void NoteNotShippedFrom(int row, Fate fate);
  Fate SendBatch(StoredOnce& work, const std::vector<std::string>& rowIds);
  void DeleteTicked();

  // The reports.
  void Report(Fate fate);
  void ReportShipments();
  void ReportStored(const std::string& text);
  void ReportFailed(const std::string& text);

  bool activated_ = false;
  Pass pass_;

  // The slip in hand.
  double supplyTotal_ = 0;
  double taxTotal_ = 0;
  int nextLine_ = 0;  // 0 while no slip is in hand
  std::vector<std::string> slipRows_;
};

}  // namespace store
