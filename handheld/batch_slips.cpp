// Building slips out of the ticked rows: one a partner, and a further one where its lines run out.
#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/counted_work.h"
#include "forms/host.h"
#include "handheld/FRM_DT900_01.h"
#include "slips/depot_choice.h"
#include "slips/slip_checks.h"
#include "slips/slip_keys.h"

namespace store {
namespace {

/// PS_TAXGU of a staged row's tax mark; what is no mark stays as it is.
std::string TaxKindOf(const std::string& mark) {
  if (mark == "*") return "1";
  if (mark == "@") return "2";
  if (mark == "-") return "0";
  return mark;
}

std::string QuantityNumber(const std::string& cell) { return NumberText(QuantityFormatted(cell)); }

}  // namespace

std::string FRM_DT900_01::NextKey() {
  if (ModuleCode == handheld_module::Sale) return NextSlipId("PES13");
  if (ModuleCode == handheld_module::Purchase) return NextSlipId("PEM23");
  if (ModuleCode == handheld_module::Shipment) return NextSlipId("PEM13");
  if (ModuleCode == handheld_module::Survey) return NextStockCountId(pass_.Surveys++);
  Host.MsgBox("전표구분없음", box::Plain, "");
  return {};
}

void FRM_DT900_01::StartHandheldSlip(const std::string& partnerCode,
                                     const std::string& partnerName) {
  supplyTotal_ = taxTotal_ = 0;
  HandheldHeader.assign(head::Link + 1, "");
  HandheldHeader[head::Id] = NextKey();
  HandheldHeader[head::State] = "1";
  HandheldHeader[head::Date] = DTPicker1.Value();
  HandheldHeader[head::Today] = FormatDateValue(Today(), "YYYY-MM-DD");
  HandheldHeader[head::FromCode] = Session.StoreCode;
  HandheldHeader[head::FromName] = Session.StoreName;
  HandheldHeader[head::ToCode] = partnerCode;
  HandheldHeader[head::ToName] = partnerName;
  for (int number = head::Supply; number <= head::Discount; ++number) {
    HandheldHeader[static_cast<std::size_t>(number)] = "0";
  }
  HandheldHeader[head::PayKind] = "E005";
  HandheldHeader[head::Manager] = "핸디처리";
  HandheldHeader[head::Memo] = Text1[0].Text();
  HandheldHeader[head::PostedUser] = Session.UserCode;
}

void FRM_DT900_01::ClearHandheldLines() {
  HandheldLines.Clear();
  HandheldLines.Redim(BaseSettings.MaxSlipLines, line::PostedLast);
}

bool FRM_DT900_01::AddHandheldLine(int row, int number) {
  const auto cell = [&](int col) { return FLEX.TextMatrix(row, col); };
  const auto set = [&](int column, const std::string& text) {
    HandheldLines.Set(number, column, text);
  };
  set(line::Id, HandheldHeader[head::Id]);
  set(line::Number, std::to_string(number));
  set(line::Date, HandheldHeader[head::Date]);
  set(line::ProductCode, ProductCode(row));
  set(line::ProductName, cell(staged::ProductName));
  set(line::Standard, cell(staged::Standard));
  set(line::TaxKind, TaxKindOf(LeftChars(cell(staged::Product), 1)));
  set(line::Unit, cell(staged::Unit));
  set(line::Quantity,
      IsSurvey() ? cell(staged::Adjustment) : QuantityNumber(cell(staged::Quantity)));
  set(line::OtherQty, "0");
  set(line::Cost, "0");
  set(line::Price, QuantityNumber(cell(staged::Price)));
  set(line::Supply, QuantityNumber(cell(staged::Supply)));
  set(line::Tax, QuantityNumber(cell(staged::Tax)));
  set(line::User, Session.UserCode);
  set(line::Type, "0");
  set(line::DepotCode, DepotCodeOf(Combo1));
  set(line::DepotName, DepotNameOf(Combo1));
  if (Trim(HandheldLines.At(number, line::DepotCode)).empty()) {
    Host.MsgBox("입출고될 기본하치장을 반드시 선택하세요.     ", box::Critical, "하치장선택");
    return false;
  }
  supplyTotal_ += ParseNumber(HandheldLines.At(number, line::Supply));
  taxTotal_ += ParseNumber(HandheldLines.At(number, line::Tax));
  return true;
}

bool FRM_DT900_01::BuildSlips() {
  nextLine_ = 0;
  CountedWork work("전표를 만드는 중입니다.", FLEX.Rows() - FLEX.FixedRows());
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    work.Step();
    if (IsPostable(row) && !AddRow(row)) return false;
  }
  FinishSlip();
  return true;
}

bool FRM_DT900_01::AddRow(int row) {
  if (!HoldsSlipOf(row)) {
    FinishSlip();
    if (!BeginSlip(row)) return false;
  }
  if (!AddHandheldLine(row, nextLine_)) return false;
  ++nextLine_;
  slipRows_.push_back(FLEX.TextMatrix(row, staged::RowId));
  return true;
}

bool FRM_DT900_01::HoldsSlipOf(int row) const {
  return nextLine_ != 0 && nextLine_ <= BaseSettings.MaxSlipLines &&
         FLEX.TextMatrix(row, staged::PartnerCode) == HandheldHeader[head::ToCode];
}

/// False when no key could be read: a slip stored without one would never be found again.
bool FRM_DT900_01::BeginSlip(int row) {
  StartHandheldSlip(FLEX.TextMatrix(row, staged::PartnerCode),
                    FLEX.TextMatrix(row, staged::PartnerName));
  ClearHandheldLines();
  nextLine_ = 1;
  slipRows_.clear();
  const std::string& key = HandheldHeader[head::Id];
  if (key.empty() || IsWholeKey(key)) return true;
  const Fate fate = Work().FateOfEarlier("").value_or(Fate::Failed);
  if (ModuleCode == handheld_module::Shipment) {
    NoteNotShippedFrom(row, fate);
  } else {
    Report(fate);
  }
  return false;
}

/// The shipments in front may have gone, so these are told with them.
void FRM_DT900_01::NoteNotShippedFrom(int row, Fate fate) {
  std::string store;
  for (; row < FLEX.Rows(); ++row) {
    const std::string& code = FLEX.TextMatrix(row, staged::PartnerCode);
    if (!IsPostable(row) || code == store) continue;
    store = code;
    NoteNotShipped(FLEX.TextMatrix(row, staged::PartnerName), fate);
  }
}

void FRM_DT900_01::FinishSlip() {
  if (nextLine_ == 0) return;
  nextLine_ = 0;
  HandheldHeader[head::Supply] = NumberText(supplyTotal_);
  HandheldHeader[head::Tax] = NumberText(taxTotal_);
  HandheldHeader[head::Total] = NumberText(supplyTotal_ + taxTotal_);
  HandheldHeader[head::Unpaid] = HandheldHeader[head::Total];
  const bool added = AddSlipToBatch();
  pass_.Trace = SlipTrace(*this, ModuleCode);
  if (ModuleCode == handheld_module::Shipment) {
    SendShipment(added);
  } else if (added) {
    pass_.BatchRows.insert(pass_.BatchRows.end(), slipRows_.begin(), slipRows_.end());
  }
}

bool FRM_DT900_01::AddSlipToBatch() {
  if (LeftChars(ModuleCode, 1) == "8") {
    return !HandheldHeader[head::Id].empty() && PostStockSurvey(*this);
  }
  if (ModuleCode == handheld_module::Shipment) return PostStoreShipment(*this);
  return PE_DT900R(*this, ModuleCode);
}

}  // namespace store
