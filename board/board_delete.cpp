// Deleting a slip in editing, and taking a confirmed one back.
#include <optional>

#include "board/frm_Start.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "slips/deleted_slip.h"
#include "slips/deleted_slips.h"
#include "slips/slip.h"
#include "slips/stored_once.h"

namespace store {
namespace {

/// This and the next statement change nothing when head office has meanwhile moved the slip on.
std::string DeleteSlipStatement(const std::string& slipId) {
  return Splice(" DELETE FROM PEM22 WHERE  PE_ID = '{slip}' AND PE_CK  = '0' ", "slip"_a = slipId);
}

std::string RevertSlipStatement(const std::string& slipId) {
  return Splice(" UPDATE PEM22 SET PE_CK  = '0' WHERE  PE_ID = '{slip}' AND PE_CK  = '1' ",
                "slip"_a = slipId);
}

std::string StateStatement(const std::string& slipId) {
  return Splice(" SELECT PE_CK FROM PEM22 WHERE PE_ID = '{slip}' ", "slip"_a = slipId);
}

std::string InStateStatement(const std::string& slipId, const std::string& state) {
  return Splice(" SELECT PE_ID FROM PEM22 WHERE PE_ID = '{slip}' AND PE_CK = '{state}' ",
                "slip"_a = slipId, "state"_a = state);
}

std::string GoneStatement(const std::string& slipId) {
  return Splice(
      " SELECT 'gone' FROM DUAL WHERE NOT EXISTS (SELECT PE_ID FROM PEM22 WHERE PE_ID = '{slip}') ",
      "slip"_a = slipId);
}

constexpr const char* kSlipMoved = "다른 곳에서 먼저 바뀐 전표입니다.";
constexpr const char* kSaveFailed = "저장이 실패하였습니다.";

/// What the button does to a slip of a state.
struct BoardChange {
  std::string State;  ///< In which the slip has to be.
  std::string Statement;
  std::string Trace;   ///< Gives a row once that is done.
  const char* Done;    ///< What is told then.
  const char* Undone;  ///< What is told when the slip has another state by now.
  bool Deletes;
};

/// Nothing for a state in which the button does nothing.
std::optional<BoardChange> ChangeOf(const std::string& slipId, const std::string& stateWord) {
  if (stateWord == kWordEditing) {
    return BoardChange{"0",
                       DeleteSlipStatement(slipId),
                       GoneStatement(slipId),
                       "[발주편집]전표가 삭제되었습니다.",
                       "삭제하지 않았습니다.",
                       true};
  }
  if (stateWord == kWordConfirmed) {
    return BoardChange{"1",
                       RevertSlipStatement(slipId),
                       InStateStatement(slipId, "0"),
                       "[발주확정]전표를 [발주편집]상태로 전환되었습니다.",
                       "전환하지 않았습니다.",
                       false};
  }
  return std::nullopt;
}

/// Before its statement stand the guards: the slip still has the state that the board shows, and
/// one that is deleted is what was read of it.
Fate Send(const std::string& slipId, const std::optional<BoardChange>& change,
          const std::optional<DeletedSlip>& whole) {
  StartBatch();
  AddToBatch(change ? Guard(InStateStatement(slipId, change->State) + "FOR UPDATE", kSlipMoved)
                    : std::string());
  if (whole) AddToBatch(StillAsReadGuard(*whole));
  if (change) AddToBatch(change->Statement);
  return StoredOnce().Send([] { return ExecuteBatch(SqlBatch) != 0; },
                           {.Trace = change ? change->Trace : std::string(), .Content = ""});
}

std::string WhatHappenedTo(const std::string& slipId, const std::string& undone) {
  if (LastErrorText == kSlipChanged) return kSlipChanged + std::string(" ") + undone;
  const RecordsetSlot slip = FetchRecordset(StateStatement(slipId));
  if (!slip) return kSlipMoved + std::string(" ") + undone;
  if (slip->Eof()) return "다른 곳에서 이미 삭제된 전표입니다.";
  return "다른 곳에서 [" + StateWord(FieldText(slip, 0)) + "] 상태로 바뀐 전표입니다. " + undone;
}

/// What was kept before the deletion, once its fate is known. In doubt it stays: whoever takes the
/// slip back is told whether it was gone at all.
void SettleKept(int number, Fate fate) {
  if (fate == Fate::Stored) SureOfDeleted(number);
  if (fate == Fate::Failed) ForgetDeleted(number);
}

}  // namespace

void frm_Start::DeleteOrRevert() {
  const std::optional<BoardChange> change = ChangeOf(SelectedSlipId, SelectedSlipState);
  std::optional<DeletedSlip> whole;
  if (change && change->Deletes) {
    whole = ReadWholeSlip(SelectedSlipId);
    if (!whole) return void(Host.MsgBox(kSaveFailed, box::Plain, ""));
    if (whole->Header.Rows.empty()) whole.reset();  // gone already, which the guard will tell
  }
  // Kept first: whatever happens from here on, the slip can be taken back.
  const int kept = whole ? KeepDeleted(*whole) : 0;
  const Fate fate = Send(SelectedSlipId, change, whole);
  SettleKept(kept, fate);
  const bool moved = LastErrorText == kSlipMoved || LastErrorText == kSlipChanged;
  if (fate == Fate::Stored) {
    if (change) Host.MsgBox(change->Done, box::Plain, "");
    RefreshBoard();
  } else if (change && moved) {
    Host.MsgBox(WhatHappenedTo(SelectedSlipId, change->Undone), box::Plain, "");
    RefreshBoard();
  } else {
    Host.MsgBox(fate == Fate::Failed ? kSaveFailed : FateText(fate), box::Plain, "");
    CountDeleted();
  }
}

}  // namespace store
