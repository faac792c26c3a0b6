// Saving a new product: the checks in their order, the code that is made, the statement.
#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "lookup/NEW_PR.h"
#include "slips/item_list.h"
#include "slips/slip_checks.h"

namespace store {

/// What is stored of it, in the order of the statement's columns.
struct NEW_PR::Product {
  std::string Code;
  std::string Name;
  std::string KindId;
  std::string StockKind;
  std::string ShortCode;
  std::string Date;
  std::string Barcode;
  std::string Standard;
  std::string Unit;
  std::string LeastStock;
  std::string Ended = "0";
  std::string TaxKind;
  std::string Valuation;
  std::string Supplier;
  std::string PurchasePrice;
  std::string SalePrice;
  std::string ConsumerPrice;
  std::string Margin;

  std::string InsertStatement() const;
};

namespace {

constexpr int kKindIdLength = 15;
constexpr int kUnitLength = 5;

std::string NextCodeStatement() {
  return Splice(" select lpad(if(PR_CODE,max(PR_CODE)+1,1), {length}, '0') from PR ",
                "length"_a = std::to_string(BaseSettings.ProductCodeLength));
}

std::string BarcodeStatement(const std::string& barcode) {
  return Splice(" SELECT PR_BCODE FROM PR WHERE PR_BCODE = '{barcode}'", "barcode"_a = barcode);
}

/// A number as it stands in a statement without quotes.
std::string Bare(const std::string& number) { return NumberText(ParseGrouped(number)); }

std::string NextCode() {
  OpenRecordset(SlotA, NextCodeStatement());
  std::string code = FieldText(SlotA, 0);
  CloseRecordset(SlotA);
  return code;
}

bool IsTaken(const std::string& barcode) {
  OpenRecordset(SlotA, BarcodeStatement(barcode));
  const bool taken = !AtEof(SlotA);
  CloseRecordset(SlotA);
  return taken;
}

bool ReadItemsAgain() {
  const Hourglass waiting;
  return RefreshItemList();
}

}  // namespace

std::string NEW_PR::Product::InsertStatement() const {
  return Splice(
      " INSERT INTO PR (PR_CODE,PR_NAME,KD_ID,PR_GU,PR_PTNO,PR_DATE,PR_BCODE,PR_STD,PR_UNT,PR_MIN,"
      "PR_END,PR_TAX,PR_VM,PR_BCTCODE,PR_OP0,PR_OP1,PR_OP2,PR_MARGIN) VALUES  ( '{code}','{name}',"
      "'{kind}','{stock}','{short}','{date}','{barcode}','{standard}','{unit}',{least},'{ended}',"
      "'{tax}','{valuation}','{supplier}',{purchase},{sale},{consumer},{margin} ) ",
      "code"_a = Code, "name"_a = Name, "kind"_a = KindId, "stock"_a = StockKind,
      "short"_a = ShortCode, "date"_a = Date, "barcode"_a = Barcode, "standard"_a = Standard,
      "unit"_a = Unit, "least"_a = Bare(LeastStock), "ended"_a = Ended, "tax"_a = TaxKind,
      "valuation"_a = Valuation, "supplier"_a = Supplier, "purchase"_a = Bare(PurchasePrice),
      "sale"_a = Bare(SalePrice), "consumer"_a = Bare(ConsumerPrice), "margin"_a = Bare(Margin));
}

NEW_PR::Product NEW_PR::Entered() const {
  return {.Code = Trim(txBox[0].Text()),
          .Name = txBox[1].Text(),
          .KindId = RightChars(Combo1[5].Text(), kKindIdLength),
          .StockKind = RightChars(Combo1[2].Text(), 1),
          .ShortCode = txBox[3].Text(),
          .Date = FormatDateValue(Today(), "YYYY-MM-DD"),
          .Barcode = Trim(txBox[4].Text()),
          .Standard = txBox[2].Text(),
          .Unit = Trim(LeftChars(Combo1[0].Text(), kUnitLength)),
          .LeastStock = PlainNumber(txBox[5].Text()),
          .TaxKind = RightChars(Combo1[1].Text(), 1),
          .Valuation = RightChars(Combo1[3].Text(), 1),
          .Supplier = LeftChars(txBox[6].Text(), BaseSettings.CodeLengthA),
          .PurchasePrice = PlainNumber(txBox[7].Text()),
          .SalePrice = PlainNumber(txBox[9].Text()),
          .ConsumerPrice = PlainNumber(txBox[8].Text()),
          .Margin = PlainNumber(txBox[10].Text())};
}

void NEW_PR::Save() {
  Product product = Entered();
  if (!CheckCode() || !CheckRequired(product) || !CheckLowerBound(product.Code)) return;
  if (!MakeCode(product) || !CheckBarcode(product)) return;
  StartBatch();
  AddToBatch(product.InsertStatement());
  if (ExecuteBatch(SqlBatch) == 0) {
    TellFailure();
    return;
  }
  LBL_MSG.Caption = "저장이 완료되었습니다.";
  SuggestedName = product.Name;
  registered_ = true;
  MakeOrderable();
  Close();
}

bool NEW_PR::Refuse(Control& field, const std::string& title, const std::string& text) {
  Host.MsgBox(text, box::Critical, title);
  SetFocus(field);
  return false;
}

// The stars of a code that is yet to be made pass like any code of full length. Whether the code is
// in use is for the database to say.
bool NEW_PR::CheckCode() {
  const std::string code = Trim(txBox[0].Text());
  if (code.empty()) {
    return Refuse(txBox[0], "코드오류", "품목코드는 필수입력입니다.             ");
  }
  if (CharLength(code) != BaseSettings.ProductCodeLength) {
    return Refuse(txBox[0], "길이오류", "품목코드의 기본자릿수가 맞지않습니다.            ");
  }
  return true;
}

bool NEW_PR::CheckRequired(const Product& product) {
  if (Trim(product.Name).empty()) {
    return Refuse(txBox[1], "품목명", "품목명은 필수입력코드입니다.         ");
  }
  if (product.TaxKind.empty()) {
    return Refuse(Combo1[1], "품목명", "세액구분은 필수입력코드입니다.       ");
  }
  if (product.KindId.empty()) {
    return Refuse(Combo1[5], "품목명", "품목그룹은 필수입력코드입니다.       ");
  }
  return true;
}

bool NEW_PR::CheckLowerBound(const std::string& code) {
  const int zeros = std::max(BaseSettings.ProductCodeLength - 1, 0);
  const std::string least = "1" + std::string(static_cast<size_t>(zeros), '0');
  if (ParseGrouped(code) >= ParseGrouped(least) || LeftChars(code, 1) == "*") return true;
  return Refuse(txBox[0], "거래처코드",
                "품목코드는 [" + least + "] 보다 큰 코드로 생성되어야 합니다.  ");
}

// Without an answer there is no code, and nothing may be stored under the stars.
bool NEW_PR::MakeCode(Product& product) {
  if (!CodesAreMade()) return true;
  product.Code = NextCode();
  if (!product.Code.empty()) return true;
  TellFailure();
  return false;
}

bool NEW_PR::CheckBarcode(Product& product) {
  if (product.Barcode.empty()) product.Barcode = product.Code;
  if (!IsTaken(product.Barcode)) return true;
  return Refuse(txBox[4], "중복바코드", "중복된 바코드가 존재합니다.            ");
}

void NEW_PR::TellFailure() {
  LBL_MSG.Caption = SaveFailedText();
  TellSaveFailed();
}

// Scans are answered from the item list, so that has to know the product. A store that is limited
// to its order settings gets it when head office has put it there.
void NEW_PR::MakeOrderable() {
  if (AppOptions.OrderInfoPartnersOnly == 1) {
    Host.MsgBox(
        "품목이 등록되었습니다.\r본부에서 우리 매장의 적정재고에 올린 뒤부터 발주할 수 "
        "있습니다.             ",
        box::Information, "품목등록");
    return;
  }
  if (ReadItemsAgain()) return;
  Host.MsgBox(
      "품목이 등록되었습니다.\r상품 목록을 다시 읽지 못하여, 프로그램을 다시 시작한 뒤부터 발주할 "
      "수 있습니다.             ",
      box::Warning, "품목등록");
}

}  // namespace store
