#include "slips/printed_slip.h"

#include <algorithm>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "slips/slip.h"

namespace store {
namespace {

/// Fields of the statement, in select order.
enum Field {
  kId,
  kState,
  kDate,
  kStoredAt,
  kStoreCode,
  kStoreName,
  kPartnerCode,
  kPartnerName,
  kSlipSupply,
  kSlipTax,
  kSlipTotal,
  kLink,
  kNumber,
  kBarcode,
  kName,
  kStandard,
  kUnit,
  kQuantity,
  kOtherQty,
  kPrice,
  kSupply,
  kTax,
  kDepot,
};

// Header and lines come by one statement, so that what another workstation stores meanwhile is on
// the paper whole or not at all.
std::string SlipStatement(const char* headers, const char* lines, const std::string& slipId) {
  return Splice(
      "SELECT A.PE_ID,A.PE_CK,A.PE_PDATE,A.PE_SDATE,A.PE_FCTCODE,A.PE_FCTNAME,A.PE_TCTCODE,"
      "A.PE_TCTNAME,A.PE_AMT,A.PE_TAX,A.PE_TOT,A.PE_LINK,B.PS_NO,PR.PR_BCODE,B.PR_NAME,B.PR_STD,"
      "B.PS_UNT,B.PS_SQTY,B.PS_EQTY,B.PS_UP,B.PS_AMT,B.PS_TAX,B.PS_HCTNAME FROM ({headers} A LEFT "
      "JOIN {lines} B ON A.PE_ID = B.PE_ID) LEFT JOIN PR ON B.PR_CODE = PR.PR_CODE WHERE A.PE_ID = "
      "'{slip}' ORDER BY B.PS_NO",
      "headers"_a = headers, "lines"_a = lines, "slip"_a = slipId);
}

void TakeHeader(const RecordsetSlot& rows, PrintedSlip& slip) {
  slip.Id = FieldText(rows, kId);
  slip.State = FieldText(rows, kState);
  slip.Date = FieldText(rows, kDate);
  slip.StoredAt = FieldText(rows, kStoredAt);
  slip.StoreCode = FieldText(rows, kStoreCode);
  slip.StoreName = FieldText(rows, kStoreName);
  slip.PartnerCode = FieldText(rows, kPartnerCode);
  slip.PartnerName = FieldText(rows, kPartnerName);
  slip.Supply = FieldText(rows, kSlipSupply);
  slip.Tax = FieldText(rows, kSlipTax);
  slip.Total = FieldText(rows, kSlipTotal);
  slip.Link = Trim(FieldText(rows, kLink));
}

void TakeLine(const RecordsetSlot& rows, PrintedSlip& slip) {
  if (rows->IsNull(kNumber)) return;  // a slip without lines is one row all the same
  slip.Lines.push_back({.Number = FieldText(rows, kNumber),
                        .Barcode = FieldText(rows, kBarcode),
                        .Name = FieldText(rows, kName),
                        .Standard = FieldText(rows, kStandard),
                        .Unit = FieldText(rows, kUnit),
                        .Quantity = FieldText(rows, kQuantity),
                        .OtherQty = FieldText(rows, kOtherQty),
                        .Price = FieldText(rows, kPrice),
                        .Supply = FieldText(rows, kSupply),
                        .Tax = FieldText(rows, kTax)});
  const std::string depot = Trim(FieldText(rows, kDepot));
  if (!depot.empty() &&
      std::find(slip.Depots.begin(), slip.Depots.end(), depot) == slip.Depots.end()) {
    slip.Depots.push_back(depot);
  }
}

std::optional<PrintedSlip> ReadSlip(bool isReceipt, const std::string& statement) {
  const StoppableReads mayBeStopped;
  const Hourglass waiting;
  const RecordsetSlot rows = FetchRecordset(statement);
  if (!rows) return std::nullopt;
  PrintedSlip slip;
  slip.IsReceipt = isReceipt;
  if (!AtEof(rows)) TakeHeader(rows, slip);
  ForEachRow(rows, [&] { TakeLine(rows, slip); });
  return slip;
}

/// A name with its code behind it; a name alone where the code stands for no one partner.
std::string Named(const std::string& name, const std::string& code) {
  return code.empty() || code == kCombinedSupplierCode ? name : name + " (" + code + ")";
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

/// From the approval on head office's side has said what it ships.
bool TellsShipped(const PrintedSlip& slip) {
  return !slip.IsReceipt && (slip.State == "2" || slip.State == "3" || slip.State == "4");
}

std::vector<PrintedDocument::Captioned> HeadOf(const PrintedSlip& slip) {
  std::vector<PrintedDocument::Captioned> head = {
      {"전표번호", slip.Id},
      {"상태", slip.IsReceipt ? kWordReceived : StateWord(slip.State)},
      {slip.IsReceipt ? "입고일자" : "발주일자", slip.Date},
      {"저장일시", slip.StoredAt},
      {"매장", Named(slip.StoreName, slip.StoreCode)},
      {slip.IsReceipt ? "거래처" : "발주처", Named(slip.PartnerName, slip.PartnerCode)},
      {"하치장", Joined(slip.Depots)}};
  if (slip.IsReceipt) head.emplace_back("발주번호", slip.Link);
  return head;
}

std::vector<PrintedColumn> ColumnsOf(const PrintedSlip& slip) {
  std::vector<PrintedColumn> columns = {{.Header = "No.", .Alignment = Align::Right},
                                        {.Header = "바코드"},
                                        {.Header = "품명", .IsName = true},
                                        {.Header = "규격", .IsName = true},
                                        {.Header = "단위", .Alignment = Align::Center},
                                        {.Header = "발주량", .Alignment = Align::Right}};
  if (slip.IsReceipt) columns.push_back({.Header = "입고량", .Alignment = Align::Right});
  if (TellsShipped(slip)) columns.push_back({.Header = "출고량", .Alignment = Align::Right});
  for (const char* header : {"단가", "공급가액", "부가세액"}) {
    columns.push_back({.Header = header, .Alignment = Align::Right});
  }
  return columns;
}

std::vector<std::string> RowOf(const PrintedSlip& slip, const PrintedLine& line) {
  std::vector<std::string> row = {line.Number, line.Barcode, line.Name, line.Standard, line.Unit};
  const std::string quantity = FormatText(line.Quantity, FormatQty);
  const std::string other = FormatText(line.OtherQty, FormatQty);
  row.push_back(slip.IsReceipt ? other : quantity);
  if (slip.IsReceipt) row.push_back(quantity);
  if (TellsShipped(slip)) row.push_back(other);
  row.push_back(FormatText(line.Price, FormatPrice));
  row.push_back(FormatText(line.Supply, FormatAmount));
  row.push_back(FormatText(line.Tax, FormatAmount));
  return row;
}

}  // namespace

std::optional<PrintedSlip> ReadPrintedOrder(const std::string& orderId) {
  return ReadSlip(false, SlipStatement("PEM22", "PSM22", orderId));
}

std::optional<PrintedSlip> ReadPrintedReceipt(const std::string& receiptId) {
  return ReadSlip(true, SlipStatement("PEM23", "PSM23", receiptId));
}

PrintedDocument DocumentOf(const PrintedSlip& slip) {
  PrintedDocument document{.Title = slip.IsReceipt ? "입고전표" : "발주서",
                           .Key = slip.Id,
                           .Head = HeadOf(slip),
                           .Columns = ColumnsOf(slip)};
  for (const PrintedLine& line : slip.Lines) document.Rows.push_back(RowOf(slip, line));
  document.Totals = {{"건수", std::to_string(slip.Lines.size())},
                     {"공급가액", FormatText(slip.Supply, FormatAmount)},
                     {"부가세액", FormatText(slip.Tax, FormatAmount)},
                     {"합계금액", FormatText(slip.Total, FormatAmount)}};
  document.Foot = "인쇄 " + FormatDateValue(Host.Now(), FormatMinute) + "   " + Session.UserName;
  return document;
}

}  // namespace store
