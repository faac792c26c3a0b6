// What the board shows: notices and slips.
#include <algorithm>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "lookup/combo_fillers.h"
#include "slips/order_types.h"
#include "slips/slip.h"

namespace store {
namespace {

constexpr int kLightRed = 0xFF5555;  // colour 12 of the palette of 16

std::string NoticeStatement() {
  return Splice(
      " SELECT NOTICE.NID,SUBJECT,WDAY,content FROM NOTICE LEFT JOIN SETCONFIGNOTICE ON NOTICE.NID "
      "=  SETCONFIGNOTICE.NID WHERE CID_{store} = 'T' ORDER BY WDAY DESC LIMIT 0, 10 ",
      "store"_a = Session.StoreCode);
}

std::string SlipStatement(const std::string& condition) {
  return Splice(
      " SELECT ' ' AS SEQ,PE_PDATE,PE_TCTNAME,PE_CK,COUNT(*) AS ACount,PE_AMT,PE_TAX,PE_TOT,"
      "PSM22.PE_ID AS SP1,' ' AS SP2,CT.CT_CODE   FROM (PEM22 LEFT JOIN PSM22 ON PEM22.PE_ID = "
      "PSM22.PE_ID) LEFT JOIN CT ON  PEM22.PE_TCTCODE = CT.CT_CODE   WHERE PEM22.PE_FCTCODE = "
      "'{store}'  {condition}  GROUP BY PSM22.PE_ID ORDER BY PE_PDATE DESC,PE_TCTNAME ",
      "store"_a = Session.StoreCode, "condition"_a = condition);
}

std::string PeriodCondition(const std::string& from, const std::string& to) {
  return Splice(
      " and PE_PDATE between '{from}' and '{to}' and PE_CK not in ( '4','9','8')   AND PE_LINK = "
      "''  ",
      "from"_a = from, "to"_a = to);
}

constexpr const char* kEditingCondition = " and PE_CK = '0' AND PE_LINK = '' ";
constexpr const char* kConfirmedCondition = " and PE_CK = '1' AND PE_LINK = ''  ";
constexpr const char* kShippedCondition = " and PE_CK =  '3' ";
constexpr const char* kOpenReceiptCondition = " AND PE_LINK = ''  and PE_CK IN ( '2','3')   ";
constexpr const char* kReceiptCondition = " and PE_CK IN ( '2','3')   ";

/// Head office's editor stores quotes with a backslash before them.
std::string WithoutBackslashes(std::string text) {
  for (const std::string_view escaped : {"\\'", "\\\""}) {
    for (size_t at = text.find(escaped); at != std::string::npos; at = text.find(escaped, at + 1)) {
      text.erase(at, 1);
    }
  }
  return text;
}

}  // namespace

void frm_Start::RefreshBoard() {
  const Hourglass waiting;
  NotePlace();
  if (LoadNoticesAndSlips() || Combo1.List().empty()) {
    // No order could be saved without the depots, so this read cannot be stopped.
    FillDepots(Session.StoreCode, Combo1, false);
  }
  CountDrafts();
  CountDeleted();
}

// Whoever has stopped it does not want to wait for what comes after it, either.
bool frm_Start::LoadNoticesAndSlips() {
  const StoppableReads mayBeStopped;
  LoadNotices();
  LoadSlips();
  return !StoppableReads::Stopped();
}

void frm_Start::NotePlace() {
  if (FLEX1.Rows() == 1) return;  // a read that failed has emptied the list, and nobody has moved
  place_.SlipId = FLEX1.Row() >= 1 ? FLEX1.TextMatrix(FLEX1.Row(), board::SlipId) : "";
  place_.Row = FLEX1.Row();
  int beside = FLEX1.Row() < 1 ? -1 : FLEX1.RowBeside(FLEX1.Row(), 1);
  if (FLEX1.Row() >= 1 && beside < 0) beside = FLEX1.RowBeside(FLEX1.Row(), -1);
  place_.NextSlipId = FLEX1.TextMatrix(beside, board::SlipId);
  place_.Column = FLEX1.Col();
  place_.TopRow = FLEX1.TopRow();
}

int frm_Start::RowOf(const std::string& slipId) const {
  for (int row = 1; row < FLEX1.Rows() && !slipId.empty(); ++row) {
    if (FLEX1.TextMatrix(row, board::SlipId) == slipId) return row;
  }
  return 0;
}

// The slip that was selected, or, where the list has lost it, the one that a person saw next to it,
// or whichever has come into its place.
// In the list of another search nothing is in its place, and so nothing is selected there.
void frm_Start::GoToPlace(bool sameSearch) {
  int row = RowOf(SelectedSlipId);
  const bool goesElsewhere = row != 0 && SelectedSlipId != place_.SlipId;
  if (row == 0) row = RowOf(place_.SlipId);
  if (row == 0 && sameSearch) row = RowOf(place_.NextSlipId);
  if (row == 0 && sameSearch) row = std::min(place_.Row, FLEX1.Rows() - 1);
  FLEX1.Select(row, row == 0 ? 0 : place_.Column);
  // A current row that is somewhere else is brought into view by the window.
  if (sameSearch ? !goesElsewhere : row == 0) FLEX1.SetTopRow(sameSearch ? place_.TopRow : 0);
  SelectSlip();
  if (FLEX1.Rows() == 1) place_ = {};
}

void frm_Start::LoadNotices() {
  SqlText = NoticeStatement();
  OpenRecordset(SlotA, SqlText);
  FLEX0.SetRows(1);
  if (RecordCountOf(SlotA) == 0) return;
  ForEachRow(SlotA, [this] {
    FLEX0.AddItem(FieldText(SlotA, 0) + "\t" + WithoutBackslashes(FieldText(SlotA, 1)) + "\t" +
                  FormatDateText(FieldText(SlotA, 2), "yyyy.mm.dd hh:mm") + "\t");
    // The body is set by itself: a tab in it is text and no border between cells.
    FLEX0.SetTextMatrix(FLEX0.Rows() - 1, 3, WithoutBackslashes(FieldText(SlotA, 3)));
  });
  CloseRecordset(SlotA);
}

std::string frm_Start::SearchCondition() const {
  if (Option1[1].Value) return kEditingCondition;
  if (Option1[2].Value) return kConfirmedCondition;
  if (Option1[3].Value) {
    if (Session.DatabaseName == kShippedOnlyCustomer) return kShippedCondition;
    return ChosenOrderType().ListsLinkedReceipts ? kReceiptCondition : kOpenReceiptCondition;
  }
  return PeriodCondition(DTOrderDate[0].Value(), DTOrderDate[1].Value());
}

void frm_Start::LoadSlips() {
  const std::string condition = SearchCondition();
  SqlText = SlipStatement(condition);
  const RecordsetSlot before = SlotA;
  OpenRecordset(SlotA, SqlText);
  const bool read = SlotA != nullptr && SlotA != before;
  const char* const notRead =
      StoppableReads::Stopped() ? " 조회를 중지했습니다" : " 서버에서 읽지 못했습니다";
  FLEX1.SetRows(1);
  double lines = 0;
  double total = 0;
  ForEachRow(SlotA, [&] {
    AddSlipRow(FLEX1.Rows());
    lines += ParseNumber(FieldText(SlotA, board::Lines));
    total += ParseNumber(FieldText(SlotA, board::Total));
  });
  CloseRecordset(SlotA);
  Label6[0].Caption =
      std::to_string(FLEX1.Rows() - 1) + "건   " + FormatNumber(lines, kMaskWhole) + " 상품";
  Label6[1].Caption = FormatNumber(total, FormatAmount) + "원";
  LaRead.Caption = FormatDateValue(Host.Now(), "HH:NN") + (read ? " 조회" : notRead);
  if (!read) return SelectSlip();
  GoToPlace(condition == place_.Condition);
  place_.Condition = condition;
}

void frm_Start::AddSlipRow(int number) {
  const std::string word = StateWord(FieldText(SlotA, board::State));
  std::string row = std::to_string(number);
  for (int field = 1; field <= board::PartnerCode; ++field) {
    row += "\t";
    if (field == board::Date) {
      row += FormatDateText(FieldText(SlotA, field), "YYYY.MM.DD");
    } else {
      row += field == board::State ? word : FieldText(SlotA, field);
    }
  }
  FLEX1.AddItem(row);
  CellLook look{.Picture = true};
  if (word != kWordEditing) look.BackColor = kLightRed;
  FLEX1.SetLook(FLEX1.Rows() - 1, board::Confirm, look);
}

}  // namespace store
