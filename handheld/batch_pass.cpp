// A pass: the ticked rows become slips, or new prices, and leave the staging table with them.
#include <optional>
#include <set>

#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/guard.h"
#include "handheld/FRM_DT900_01.h"
#include "slips/slip_checks.h"
#include "slips/slip_keys.h"
#include "slips/stored_once.h"

namespace store {
namespace {

std::string DeleteStatement(const std::vector<std::string>& ids) {
  return Splice(" DELETE FROM DT900 WHERE PE_ID  IN ( {ids})", "ids"_a = QuotedList(ids));
}

/// Gives a row as long as all of them are there.
std::string StillStagedStatement(const std::vector<std::string>& ids) {
  const std::size_t count = std::set<std::string>(ids.begin(), ids.end()).size();
  return Splice(
      " SELECT COUNT(DISTINCT BINARY PE_ID) FROM DT900 WHERE PE_ID IN ( {ids}) HAVING "
      "COUNT(DISTINCT BINARY PE_ID) = {count} FOR UPDATE",
      "ids"_a = QuotedList(ids), "count"_a = std::to_string(count));
}

/// Gives a row when none of them is there any more.
std::string GoneStatement(const std::vector<std::string>& ids) {
  return Splice(
      " SELECT 'gone' FROM DUAL WHERE NOT EXISTS (SELECT PE_ID FROM DT900 WHERE PE_ID IN ( {ids}))",
      "ids"_a = QuotedList(ids));
}

/// The same, when besides `made` gives a row.
std::string GoneIntoStatement(const std::vector<std::string>& ids, const std::string& made) {
  return GoneStatement(ids) + " AND EXISTS (" + made + ")";
}

std::string PriceStatement(const std::string& product, double price) {
  return Splice("  UPDATE PR SET PR_OP1 = {price} WHERE PR_CODE = '{product}'",
                "price"_a = NumberText(price), "product"_a = product);
}

std::string PriceTrace(const std::string& product, double price) {
  return Splice("SELECT PR_CODE FROM PR WHERE PR_CODE = '{product}' AND PR_OP1 = {price}",
                "price"_a = NumberText(price), "product"_a = product);
}

void TellNothingToDo() { Host.MsgBox("처리할 자료가 없습니다.", box::Critical, "확인"); }

/// A pass reads the database for its first number, and so does whoever takes a number after it:
/// this one's may lie below those that orders and receipts have.
class NumbersOfPass {
 public:
  NumbersOfPass() { SlipSeqCounter = 0; }
  ~NumbersOfPass() { SlipSeqCounter = 0; }
  NumbersOfPass(const NumbersOfPass&) = delete;
  NumbersOfPass& operator=(const NumbersOfPass&) = delete;
};

constexpr const char* kStored = "저장이 완료되었습니다.";
constexpr const char* kRowsGone =
    "이미 처리되었거나 삭제된 자료가 있어 저장하지 않았습니다.\r목록을 다시 확인하시기 바랍니다.";

}  // namespace

/// A window that is opened again knows of the tries of the one before.
StoredOnce& FRM_DT900_01::Work() const {
  const bool perStore = ModuleCode == handheld_module::Shipment;
  return WorkNamed("DT900 " + ModuleCode + ReturnMark + " " +
                   (perStore ? HandheldHeader[head::ToCode] : std::string()));
}

void FRM_DT900_01::MakeSlips() {
  if (!MayMakeSlips() || !ConfirmLeftOver()) return;
  pass_ = {};
  StartBatch();
  std::optional<Fate> fate;
  {
    const Hourglass waiting;
    const NumbersOfPass numbers;
    if (ModuleCode == handheld_module::Prices) {
      AddPriceUpdates();
    } else if (!BuildSlips() && pass_.NotShipped.empty()) {
      return;
    }
    if (!pass_.BatchRows.empty()) fate = SendBatch(Work(), pass_.BatchRows);
  }
  if (ModuleCode == handheld_module::Shipment) {
    ReportShipments();
  } else if (fate) {
    Report(*fate);
  }
}

bool FRM_DT900_01::MayMakeSlips() {
  if (FLEX.Rows() == FLEX.FixedRows()) {
    TellNothingToDo();
    return false;
  }
  if (Combo1.Text().empty()) {
    Host.MsgBox("하치장명은 필수입력입니다.        ", box::Critical, "하치장입력");
    return false;
  }
  if (BaseSettings.MaxSlipLines < 1 && ModuleCode != handheld_module::Prices) {
    Host.MsgBox("최대전표건수가 설정되지 않았습니다. 본사에 문의바랍니다.", box::Critical,
                "전표구성");
    return false;
  }
  return true;
}

/// What will not go into the partner's one slip is told before anything is written.
bool FRM_DT900_01::ConfirmLeftOver() {
  CollectTickedIds();
  int postable = 0;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) postable += IsPostable(row) ? 1 : 0;
  const int withoutCode = static_cast<int>(TickedIds.size()) - postable;
  const int over = ModuleCode == handheld_module::Prices ? 0 : RowsOverLimit();
  std::string text;
  if (withoutCode > 0) {
    text +=
        "품목코드가 없는 자료 " + std::to_string(withoutCode) + "건은 처리하지 않고 남겨 둡니다.\r";
  }
  if (over > 0) {
    text += "전표의 최대행수(" + std::to_string(BaseSettings.MaxSlipLines) + ")를 넘는 자료 " +
            std::to_string(over) + "건은 같은 거래처의 다음 전표로 나눕니다.\r";
  }
  if (!text.empty() &&
      Host.MsgBox(text + "\r계속하시겠습니까?", box::Question + box::YesNo, "확인") != box::Yes) {
    return false;
  }
  if (postable == 0) TellNothingToDo();
  return postable > 0;
}

int FRM_DT900_01::RowsOverLimit() const {
  int over = 0;
  int ofPartner = 0;
  std::string partner;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (!IsPostable(row)) continue;
    const std::string& code = FLEX.TextMatrix(row, staged::PartnerCode);
    if (code != partner) ofPartner = 0;
    partner = code;
    if (++ofPartner > BaseSettings.MaxSlipLines) ++over;
  }
  return over;
}

void FRM_DT900_01::AddPriceUpdates() {
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (!IsPostable(row)) continue;
    const double price = ParseGrouped(FLEX.TextMatrix(row, staged::Price));
    AddToBatch(PriceStatement(ProductCode(row), price));
    pass_.BatchRows.push_back(FLEX.TextMatrix(row, staged::RowId));
    pass_.Trace = PriceTrace(ProductCode(row), price);
  }
}

/// Rows that another workstation has turned into slips meanwhile, or an earlier press on this one,
/// must not become goods twice.
Fate FRM_DT900_01::SendBatch(StoredOnce& work, const std::vector<std::string>& rowIds) {
  SqlBatch.insert(SqlBatch.begin() + 1, Guard(StillStagedStatement(rowIds), kRowsGone));
  AddToBatch(DeleteStatement(rowIds));
  return work.Send([] { return ExecuteBatch(SqlBatch) != 0; },
                   {.Trace = pass_.Trace.empty() ? GoneStatement(rowIds)
                                                 : GoneIntoStatement(rowIds, pass_.Trace),
                    .Content = QuotedList(rowIds)});
}

/// A shipment's batch holds nothing but itself, so it goes as soon as it is finished.
void FRM_DT900_01::SendShipment(bool added) {
  const Fate fate = added ? SendBatch(Work(), slipRows_) : Fate::Failed;
  if (fate == Fate::Stored) {
    ++pass_.Shipments;
    return;
  }
  NoteNotShipped(HandheldHeader[head::ToName], fate);
}

void FRM_DT900_01::NoteNotShipped(const std::string& store, Fate fate) {
  pass_.NotShipped.push_back(store);
  // One that failed for sure must not hide that of another nobody knows.
  if (fate == Fate::Failed && pass_.Failure != Fate::Failed) return;
  pass_.Failure = fate;
  pass_.FailureText = fate == Fate::Failed ? LastErrorText : FateText(fate);
}

void FRM_DT900_01::DeleteTicked() {
  if (CollectTickedIds()) return;
  pass_ = {};
  StartBatch();
  StoredOnce deletion;
  const Fate fate = SendBatch(deletion, TickedIds);
  Report(fate);
  if (fate != Fate::Stored) LoadStagedRows();
}

void FRM_DT900_01::Report(Fate fate) {
  if (fate == Fate::Stored) return ReportStored(kStored);
  if (fate != Fate::StoredOther && LastErrorText == kRowsGone) {
    Host.MsgBox(kRowsGone, box::Critical, "확인");
    LoadStagedRows();
  } else {
    ReportFailed(FateText(fate));
    if (fate == Fate::StoredOther) LoadStagedRows();
  }
}

void FRM_DT900_01::ReportShipments() {
  const int shipments = pass_.Shipments + static_cast<int>(pass_.NotShipped.size());
  if (shipments == 1) return Report(pass_.NotShipped.empty() ? Fate::Stored : pass_.Failure);
  if (pass_.NotShipped.empty()) {
    return ReportStored("전표 " + std::to_string(shipments) + "건의 저장이 완료되었습니다.");
  }
  std::string stores;
  for (const std::string& name : pass_.NotShipped) stores += (stores.empty() ? "" : ", ") + name;
  ReportFailed("전표 " + std::to_string(shipments) + "건 중 " + std::to_string(pass_.Shipments) +
               "건의 저장이 완료되었습니다.\r저장이 실패한 가맹점: " + stores +
               "\r\r MSG: " + pass_.FailureText);
  LoadStagedRows();
}

void FRM_DT900_01::ReportStored(const std::string& text) {
  LBL_MSG.Caption = text;
  Host.MsgBox(text + "            ", box::Information, "처리완료");
  LoadStagedRows();
}

void FRM_DT900_01::ReportFailed(const std::string& text) {
  LBL_MSG.Caption = text;
  Host.MsgBox(text, box::Question, "오류");
  ClearStatusLater();
}

}  // namespace store
