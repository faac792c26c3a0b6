#include "handheld/staged_rows_pane.h"

#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "handheld/handheld_posting.h"
#include "slips/depot_choice.h"
#include "slips/handheld_runs.h"
#include "slips/line_money.h"

namespace store {
namespace {

constexpr int kStatusStands = 5000;  // milliseconds

std::string StagedCondition(const std::string& module, const std::string& mark,
                            const std::string& partner) {
  return Splice("  DT_GU = '{module}' AND PS_MEMO = '{mark}' ", "module"_a = module,
                "mark"_a = mark) +
         (partner.empty() ? std::string()
                          : Splice(" AND PS_rctCODE= '{partner}' ", "partner"_a = partner));
}

std::string StagedRowsStatement(const std::string& where) {
  return Splice(
      " SELECT   '1' as 선택,PS_rctCODE as 거래처코드,PS_rctname as 거래처명,PR_UNT as 단위,   "
      "CONCAT(PS_TAXGU,'', PR_CODE) as 품목코드,PR_name as 품목명칭,pr_std as 규격,PS_sQTY as 수량,"
      "PS_UP as 단가,PS_AMT as 금액,PS_TAX as 부가세,PS_AMT +PS_TAX as 합계, DT_CHECK as 검품자, "
      "PE_ID as 전송번호 FROM   DT900 where {where} ORDER BY PS_rctNAME,PS_rctCODE,PE_ID ",
      "where"_a = where);
}

std::string StagedCountsStatement(const std::string& where) {
  return Splice(
      " SELECT   '1' as 선택,PS_rctCODE as 거래처코드,PS_rctname as 거래처명,PR_UNT as 단위,  "
      "CONCAT(PS_TAXGU,'', PR_CODE) as 품목코드,PR_name as 품목명칭,pr_std as 규격,PS_sQTY as 수량,"
      "PS_UP as 단가,PS_AMT as 금액,PS_TAX as 부가세,PS_AMT +PS_TAX as 합계, DT_CHECK as 검품자, "
      "PE_ID as 전송번호,0 AS 전산재고,0 -PS_sQTY AS 조정량 FROM   DT900 where {where} ORDER BY "
      "PS_rctNAME,PS_rctCODE,PE_ID ",
      "where"_a = where);
}

std::string StockStatement(const std::string& depot) {
  return Splice(
      " SELECT PR_CODE,SUM(BSQTY+INQTY-OTQTY) FROM IV WHERE RCT_CODE = '{store}' AND  HCT_CODE = "
      "'{depot}' GROUP BY PR_CODE ",
      "store"_a = Session.StoreCode, "depot"_a = depot);
}

std::string ProductCriteria(const std::string& code) {
  return Splice(" PR_CODE = '{code}'", "code"_a = code);
}

std::string FirstWord(const std::string& text) {
  const std::string trimmed = Trim(text);
  return trimmed.substr(0, trimmed.find(' '));
}

/// An amount as it is shown: nothing for zero.
std::string MoneyText(double amount) {
  return amount == 0 ? std::string() : FormatNumber(amount, FormatAmount);
}

/// What a row's tax mark makes of quantity times price.
LineMoney MoneyOf(double amount, const std::string& mark) {
  if (mark == "*") return {amount, 0};
  if (mark != "@") return {amount, TaxOnTop(amount)};
  const double rate = ParseNumber(BaseSettings.VatPercent) / 100;
  const double supply = ParseNumber(FormatNumber(amount / (1 + rate), "#"));
  return {supply, amount - supply};
}

}  // namespace

double QuantityFormatted(const std::string& cell) {
  return ParseGrouped(FormatText(cell, FormatQty));
}

StagedRowsPane::StagedRowsPane(HandheldForm& form) : form_(form) {
  SetUpGrid();
  PublishControls();
}

void StagedRowsPane::PublishControls() {
  form_.Publish("Combo1", Combo1);
  form_.Publish("Text1", Text1);
  form_.Publish("FLEX", FLEX);
  form_.Publish("Label2", Label2);
  form_.Publish("Option1", Option1);
  form_.Publish("LBL_MSG", LBL_MSG);
  form_.Publish("Timer1", Timer1);
  for (int i = 0; i < 3; ++i) {
    Option1[static_cast<std::size_t>(i)].Click = [this, i] { Option1_Click(i); };
  }
  Combo1.Click = [this] { Combo1_Click(); };
  FLEX.AfterEdit = [this](int row, int col) { FLEX_AfterEdit(row, col); };
  Timer1.Interval = kStatusStands;
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void StagedRowsPane::SetUpGrid() {
  FLEX.SetColumns({
      {.Header = "선택",
       .Width = 500,
       .Alignment = Align::Center,
       .CheckBox = true,
       .Editable = true},
      {.Header = "거래처코드", .Width = 1100, .Alignment = Align::Left},
      {.Header = "거래처명", .Width = 1900, .Alignment = Align::Left},
      {.Header = "단위", .Width = 650, .Alignment = Align::Center},
      {.Header = "품목코드", .Width = 1200, .Alignment = Align::Left},
      {.Header = "품목명칭", .Width = 2600, .Alignment = Align::Left},
      {.Header = "규격", .Width = 1200, .Alignment = Align::Left},
      {.Header = "수량", .Width = 800, .Alignment = Align::Right},
      {.Header = "단가", .Width = 950, .Alignment = Align::Right},
      {.Header = "금액", .Width = 1150, .Alignment = Align::Right},
      {.Header = "부가세", .Width = 1000, .Alignment = Align::Right},
      {.Header = "합계", .Width = 1150, .Alignment = Align::Right},
      {.Header = "검품자", .Width = 900, .Alignment = Align::Left},
      {.Header = "전송번호", .Width = 1900, .Alignment = Align::Left},
      {.Header = "전산재고", .Width = 1000, .Alignment = Align::Right},
      {.Header = "조정량", .Width = 1000, .Alignment = Align::Right},
  });
}

void StagedRowsPane::SetFormats() {
  for (const int col : {staged::Quantity, staged::OnFile, staged::Adjustment}) {
    FLEX.Column(col).Format = FormatQty;
  }
  FLEX.Column(staged::Price).Format = FormatPrice;
}

bool StagedRowsPane::IsSurvey() const { return form_.ModuleCode == handheld_module::Survey; }

void StagedRowsPane::HideColumnsOfOtherModules() {
  for (const int col : {staged::Supply, staged::Tax, staged::Sum}) {
    FLEX.Column(col).Hidden = IsSurvey();
  }
  for (const int col : {staged::OnFile, staged::Adjustment}) FLEX.Column(col).Hidden = !IsSurvey();
}

void StagedRowsPane::LoadStagedRows() {
  EmptyList();
  const std::string where =
      StagedCondition(form_.ModuleCode, form_.ReturnMark, FirstWord(Text1[1].Text()));
  StringTable rows;
  std::int32_t count = 0;
  std::int32_t highestColumn = 0;
  QueryRows(IsSurvey() ? StagedCountsStatement(where) : StagedRowsStatement(where), rows, count,
            highestColumn);
  if (count > 0) {
    LBL_MSG.Caption = std::to_string(count) + " 개의 자료를 찾았습니다.";
    ShowRows(rows, count);
  }
  ClearStatusLater();
}

void StagedRowsPane::EmptyList() {
  FLEX.SetRows(FLEX.FixedRows());
  for (Label& label : Label2) label.Caption.clear();
}

void StagedRowsPane::ShowRows(const StringTable& rows, std::int32_t count) {
  RecordsetSlot stock;
  if (IsSurvey() && !FetchStock(stock)) return;
  FLEX.SetRows(FLEX.FixedRows() + count);
  std::string onFile;
  for (int row = 1; row <= count; ++row) {
    for (int col = 0; col <= rows.LastColumn(); ++col) {
      FLEX.SetTextMatrix(row, col, rows.At(row, col));
    }
    if (IsSurvey()) ShowStock(stock, row, onFile);
    RecalcRow(row);
  }
  FLEX.Select(FLEX.FixedRows(), staged::Tick);
  ShowTicked();
}

// Counts held against a stock that nobody could read would be put on top of it.
bool StagedRowsPane::FetchStock(RecordsetSlot& stock) {
  stock = FetchRecordset(StockStatement(DepotCodeOf(Combo1)));
  if (stock) return true;
  EmptyList();
  LBL_MSG.Caption = "전산재고를 읽지 못했습니다. 다시 보기를 눌러 주세요.";
  return false;
}

void StagedRowsPane::ShowStock(const RecordsetSlot& stock, int row, std::string& onFile) {
  SetFilter(stock, ProductCriteria(MidChars(FLEX.TextMatrix(row, staged::Product), 2)));
  // A product without stock takes what the row above it had.
  if (!AtEof(stock)) onFile = FieldText(stock, 1);
  FLEX.SetTextMatrix(row, staged::OnFile, onFile);
  const double counted = ParseNumber(FLEX.TextMatrix(row, staged::Quantity));
  FLEX.SetTextMatrix(row, staged::Adjustment, NumberText(counted - ParseNumber(onFile)));
}

void StagedRowsPane::Combo1_Click() {
  RecordsetSlot stock;
  if (!IsSurvey() || FLEX.Rows() == FLEX.FixedRows() || !FetchStock(stock)) return;
  std::string onFile;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) ShowStock(stock, row, onFile);
}

void StagedRowsPane::RecalcRow(int row) {
  const double amount = QuantityFormatted(FLEX.TextMatrix(row, staged::Price)) *
                        QuantityFormatted(FLEX.TextMatrix(row, staged::Quantity));
  const LineMoney money = MoneyOf(amount, LeftChars(FLEX.TextMatrix(row, staged::Product), 1));
  FLEX.SetTextMatrix(row, staged::Supply, MoneyText(money.Supply));
  FLEX.SetTextMatrix(row, staged::Tax, MoneyText(money.Tax));
  FLEX.SetTextMatrix(row, staged::Sum, MoneyText(money.Sum()));
}

std::string StagedRowsPane::ProductCode(int row) const {
  const std::string code = MidChars(FLEX.TextMatrix(row, staged::Product), 2);
  return Trim(code).empty() ? std::string() : code;
}

void StagedRowsPane::ClearStatusLater() {
  Timer1.Enabled = true;
  Timer1.Restart();
}

void StagedRowsPane::Timer1_Timer() {
  LBL_MSG.Caption.clear();
  Timer1.Enabled = false;
}

}  // namespace store
