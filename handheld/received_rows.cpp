// The rows under review: what a record becomes, whose it is, and products that nobody knows yet.
#include "basics/numbers.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/splice.h"
#include "handheld/DT9RECEV.h"
#include "handheld/first_match.h"
#include "handheld/wire/record.h"
#include "lookup/NEW_PR.h"

namespace store {
namespace {

constexpr const char* kWrongKind = "**선택오류**";
constexpr const char* kProductRowsPartner = "1000000000000000";  // surveys and prices have none
constexpr const char* kNewOnTerminal = "신규상품";  // the terminal does not know the barcode
constexpr const char* kToBeRegistered = "**********";

std::string PartnersStatement(const std::string& module) {
  if (module == "14") return " SELECT RCT_CODE AS CT_CODE ,RCT_NAME  FROM   RCT ";
  return " SELECT CT_CODE,CT_NAME  FROM   CT ";
}

/// Surveys and prices have the kind where the partner's name stands, and only one of the figures.
std::array<std::string, received::Count> CellsOf(const HandheldRecord& record) {
  const bool trade = record.Layout == RecordLayout::Trade;
  const std::string quantity = NumberText(record.Quantity);
  const std::string price = NumberText(record.Price);
  return {record.Sequence,
          record.Kind,
          trade ? record.Partner : kProductRowsPartner,
          trade ? "" : record.Kind,
          record.Barcode,
          record.Name,
          record.Layout == RecordLayout::Product ? "" : quantity,
          record.Layout == RecordLayout::Survey ? "" : price,
          record.Partner};
}

}  // namespace

void DT9RECEV::ResetGrid() {
  FLEX.SetRows(FLEX.FixedRows());
  receivedAnew_ = true;
}

// Cell by cell: a tab in what the line brings must not move the cells behind it.
void DT9RECEV::AddRow(const std::array<std::string, received::Count>& cells) {
  const int row = FLEX.Rows();
  FLEX.SetRows(row + 1);
  for (int col = 0; col < received::Count; ++col)
    FLEX.SetTextMatrix(row, col, cells[static_cast<size_t>(col)]);
}

bool DT9RECEV::ParseHandheldRecord(const std::string& record) {
  const HandheldRecord parsed = ParseRecord(record);
  if (parsed.Kind != laGubun.Caption) {
    AddRow({"", "", parsed.Kind + "에서 처리바람!!!", kWrongKind});
    return false;
  }
  AddRow(CellsOf(parsed));
  return true;
}

bool DT9RECEV::IsWrongKind(int row) const {
  return FLEX.TextMatrix(row, received::Party) == kWrongKind;
}

bool DT9RECEV::HasNoPartner(int row) const {
  return IsWrongKind(row) || FLEX.TextMatrix(row, received::Code) == kProductRowsPartner;
}

void DT9RECEV::FillPartnerNames() {
  const RecordsetSlot partners = FetchRecordset(PartnersStatement(ModuleCode));
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (HasNoPartner(row)) continue;
    const std::string code = FLEX.TextMatrix(row, received::Code);
    const bool found = GoToFirst(partners, Splice(" CT_CODE = '{code}'", "code"_a = code));
    FLEX.SetTextMatrix(row, received::Code, found ? FieldText(partners, 0) : std::string());
    FLEX.SetTextMatrix(row, received::Party, found ? FieldText(partners, 1) : std::string());
  }
}

void DT9RECEV::MarkNewProducts() {
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (FLEX.TextMatrix(row, received::Product) == kNewOnTerminal)
      FLEX.SetTextMatrix(row, received::Product, kToBeRegistered);
  }
}

// A product that was not registered after all stays to be registered.
void DT9RECEV::FLEX_DblClick() {
  const int row = FLEX.Row();
  const int col = FLEX.Col();
  if (row < FLEX.FixedRows() || FLEX.TextMatrix(row, col) != kToBeRegistered) return;
  auto* product = dynamic_cast<NEW_PR*>(TheForm("NEW_PR"));
  if (product == nullptr) return;
  product->SuggestedBarcode = FLEX.TextMatrix(row, received::Barcode);
  Host.ShowModal(*product);
  if (!product->SuggestedName.empty()) FLEX.SetTextMatrix(row, col, product->SuggestedName);
}

int DT9RECEV::RowsRegisteredFor(const std::string& code) const {
  int count = 0;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row)
    count += FLEX.TextMatrix(row, received::Registered) == code ? 1 : 0;
  return count;
}

// The code that the terminal registered stays, so that a change can be undone by changing back.
void DT9RECEV::Command2_Click() {
  const std::string old = Text1[0].Text();
  const std::string changed = Text1[1].Text();
  if (RowsRegisteredFor(old) == 0) {
    Host.MsgBox("변경전 거래처코드가 없습니다.", box::Critical, "자료없슴");
    return;
  }
  if (RowsRegisteredFor(changed) > 0 &&
      Host.MsgBox("거래처전환을 하시겠습니까?", box::YesNo + box::Question, "거래처가 이미존재") !=
          box::Yes)
    return;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (FLEX.TextMatrix(row, received::Registered) == old)
      FLEX.SetTextMatrix(row, received::Code, changed);
  }
  FillPartnerNames();
}

}  // namespace store
