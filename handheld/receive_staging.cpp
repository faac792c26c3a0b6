// The way of the reviewed rows into the staging table.
#include <cmath>

#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "handheld/DT9RECEV.h"
#include "handheld/first_match.h"
#include "slips/unit_price.h"

namespace store {
namespace {

/// What a row without a product holds in the product's fields.
constexpr const char* kBlank = " ";

constexpr const char* kSaved = "저장이 완료되었습니다.                  ";
constexpr const char* kNotSaved = "저장이 실패하였습니다.                  ";

std::string ProductsStatement(const std::string& taxColumn) {
  return Splice(" SELECT PR_PTNO,{tax},PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_BCODE  FROM   PR  ",
                "tax"_a = taxColumn);
}

constexpr const char* kNoPrice =
    "저장이 실패하였습니다.\r계약가를 읽지 못하였습니다. 다시 저장하시기 바랍니다.";

void Tell(Fate fate) {
  if (fate == Fate::Stored) {
    Host.MsgBox(kSaved, box::Information, "확인");
  } else {
    Host.MsgBox(fate == Fate::Failed ? kNotSaved : FateText(fate), box::Critical, "확인");
  }
}

/// What was stored by an earlier try needs no further one, also when something else was meant now.
bool IsStaged(Fate fate) { return fate == Fate::Stored || fate == Fate::StoredOther; }

}  // namespace

// A broken transfer may have left the rows without an inspector; rows that nobody has checked are
// not staged.
void DT9RECEV::Save() {
  if (Trim(Label7.Caption).empty() && !AskInspector()) return;
  ContractFlag =
      ModuleCode == "14" && Host.MsgBox("판매자료를 계약가형태로 저장하시겠습니까?   ",
                                        box::YesNo + box::Question, "계약가 적용유무") == box::Yes;
  Host.SetPointer(PointerHourglass);
  const bool saved = SaveToStaging();
  Host.SetPointer(PointerNormal);
  if (saved) Close();
}

bool DT9RECEV::SaveToStaging() {
  if (FLEX.Rows() < 2) return false;
  // Without the products every row would be staged as one that nobody can turn into a slip.
  const RecordsetSlot products = FetchRecordset(ProductsStatement(taxColumn_));
  if (products == nullptr) {
    const Fate fate =
        receivedAnew_ ? Fate::Failed : staging_.FateOfEarlier("").value_or(Fate::Failed);
    Tell(fate);
    return IsStaged(fate);
  }
  std::vector<StagedRow> rows;
  int unknownProducts = 0;
  for (int row = FLEX.FixedRows(); row < FLEX.Rows(); ++row) {
    if (!StagesPartnerOf(row)) return false;
    StagedRow staged = RowToStage(row);
    if (!TakeProduct(row, products, staged)) ++unknownProducts;
    const std::optional<std::string> price = StagedPrice(row, staged);
    if (!price) {
      Host.MsgBox(kNoPrice, box::Critical, "확인");
      return false;
    }
    staged.Price = *price;
    rows.push_back(staged);
  }
  const Fate fate = Stage(rows);
  Tell(fate);
  if (unknownProducts > 0) {
    Host.MsgBox(std::to_string(unknownProducts) + "건의 품목전환 오류", box::Critical, "품목오류");
  }
  return IsStaged(fate);
}

/// The transfer keeps its key: one that is stored after all is known by it. What the terminal sends
/// once more is the same transfer when it is the same in everything, because a terminal is sent
/// again when nobody knows whether its rows were saved.
void DT9RECEV::BeginTransfer(const std::string& content) {
  if (receivedAnew_ && content != content_) {
    transfer_.clear();
    staging_ = {};
  }
  receivedAnew_ = false;
  content_ = content;
  if (transfer_.empty()) {
    transfer_ = FormatDateValue(Host.Now(), "YYYYMMDDHHNNSS") + Trim(Label7.Caption);
  }
}

Fate DT9RECEV::Stage(std::vector<StagedRow> rows) {
  std::string content;
  for (const StagedRow& row : rows) content += StagedRowStatement(row);
  BeginTransfer(content);
  for (StagedRow& row : rows) row.Id = StagedRowId(transfer_, row.Row);
  std::vector<std::string> statements = {"", NotStagedYet(rows.front())};
  for (const StagedRow& row : rows) statements.push_back(StagedRowStatement(row));
  const Fate fate = staging_.Send([&] { return ExecuteBatch(statements) != 0; },
                                  {.Trace = StagedRowTrace(rows.back()), .Content = content});
  // Refused although nothing of ours is there: another transfer has this key.
  if (fate == Fate::Failed && LastErrorText == kStagedAlready) transfer_.clear();
  return fate;
}

// A row of a wrong kind has a remark where the code stands.
bool DT9RECEV::StagesPartnerOf(int row) {
  if (!IsWrongKind(row) && !Trim(FLEX.TextMatrix(row, received::Code)).empty()) return true;
  FLEX.Select(row, received::Code);
  Host.MsgBox(" 거래처코드는 필수입니다.            ", box::Critical, "확인");
  return false;
}

StagedRow DT9RECEV::RowToStage(int row) const {
  const double quantity = ParseNumber(FLEX.TextMatrix(row, received::Quantity));
  StagedRow staged;
  staged.Row = row - FLEX.FixedRows() + 1;
  staged.Date = FormatDateValue(Today(), "YYYY-MM-DD");
  staged.Quantity = NumberText(ReturnMark == "R" ? std::abs(quantity) : quantity);
  staged.ReturnMark = ReturnMark;
  staged.UserCode = Session.UserCode;
  staged.PartyCode = FLEX.TextMatrix(row, received::Code);
  staged.PartyName = FLEX.TextMatrix(row, received::Party);
  staged.Inspector = Label7.Caption;
  staged.ModuleCode = ModuleCode;
  return staged;
}

// Products without a barcode exist; a record without one is not theirs.
bool DT9RECEV::TakeProduct(int row, const RecordsetSlot& products, StagedRow& staged) const {
  const std::string& barcode = FLEX.TextMatrix(row, received::Barcode);
  const bool found = !barcode.empty() &&
                     GoToFirst(products, Splice(" PR_BCODE  = '{barcode}'", "barcode"_a = barcode));
  const auto field = [&](int number) { return found ? FieldText(products, number) : kBlank; };
  staged.ShortCode = field(0);
  staged.TaxMark = TaxMarkOf(field(1));
  staged.ProductCode = field(2);
  staged.ProductName = field(3);
  staged.Standard = field(4);
  staged.Unit = field(5);
  return found;
}

// Returns go with a positive quantity and a negative price.
std::optional<std::string> DT9RECEV::StagedPrice(int row, const StagedRow& staged) const {
  const std::optional<double> price =
      ContractFlag ? ResolveStorePrice(staged.PartyCode, staged.ProductCode, staged.Date)
                   : ParseNumber(FLEX.TextMatrix(row, received::Price));
  if (!price) return std::nullopt;
  return NumberText(ReturnMark == "R" ? -std::abs(*price) : *price);
}

}  // namespace store
