// Deleting a slip in editing, and taking a confirmed one back.
#include <optional>

#include "board/frm_Start.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
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

/// What the button does to a slip of a state.
struct BoardChange {
  std::string State;  ///< In which the slip has to be.
  std::string Statement;
  std::string Trace;   ///< Gives a row once that is done.
  const char* Done;    ///< What is told then.
  const char* Undone;  ///< What is told when the slip has another state by now.
};

/// Nothing for a state in which the button does nothing.
std::optional<BoardChange> ChangeOf(const std::string& slipId, const std::string& stateWord) {
  if (stateWord == kWordEditing) {
    return BoardChange{"0", DeleteSlipStatement(slipId), GoneStatement(slipId),
                       "[발주편집]전표가 삭제되었습니다.", "삭제하지 않았습니다."};
  }
  if (stateWord == kWordConfirmed) {
    return BoardChange{"1", RevertSlipStatement(slipId), InStateStatement(slipId, "0"),
                       "[발주확정]전표를 [발주편집]상태로 전환되었습니다.", "전환하지 않았습니다."};
  }
  return std::nullopt;
}

/// Before its statement stands the guard: the slip still has the state that the board shows.
Fate Send(const std::string& slipId, const std::optional<BoardChange>& change) {
  StartBatch();
  AddToBatch(change ? Guard(InStateStatement(slipId, change->State) + "FOR UPDATE", kSlipMoved)
                    : std::string());
  if (change) AddToBatch(change->Statement);
  return StoredOnce().Send([] { return ExecuteBatch(SqlBatch) != 0; },
                           {.Trace = change ? change->Trace : std::string(), .Content = ""});
}

std::string WhatHappenedTo(const std::string& slipId, const std::string& undone) {
  const RecordsetSlot slip = FetchRecordset(StateStatement(slipId));
  if (!slip) return kSlipMoved + std::string(" ") + undone;
  if (slip->Eof()) return "다른 곳에서 이미 삭제된 전표입니다.";
  return "다른 곳에서 [" + StateWord(FieldText(slip, 0)) + "] 상태로 바뀐 전표입니다. " + undone;
}

}  // namespace

void frm_Start::DeleteOrRevert() {
  const std::optional<BoardChange> change = ChangeOf(SelectedSlipId, SelectedSlipState);
  const Fate fate = Send(SelectedSlipId, change);
  if (fate == Fate::Stored) {
    if (change) Host.MsgBox(change->Done, box::Plain, "");
    RefreshBoard();
  } else if (change && LastErrorText == kSlipMoved) {
    Host.MsgBox(WhatHappenedTo(SelectedSlipId, change->Undone), box::Plain, "");
    RefreshBoard();
  } else {
    Host.MsgBox(fate == Fate::Failed ? "저장이 실패하였습니다." : FateText(fate), box::Plain, "");
  }
}

}  // namespace store
