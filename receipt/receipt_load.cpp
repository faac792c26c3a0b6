// Filling the receipt form from the order that is being received.
#include "basics/formats.h"
#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/depot_choice.h"

namespace store {
namespace {

/// Fields of the order statement behind the thirteen of a row.
enum OrderField {
  kPartnerCode = 13,
  kPartnerName = 14,
  kOrderDate = 15,
  kSupply = 16,
  kTax = 17,
  kTotal = 18,
  kDepotCode = 20,
  kDepotName = 21,
};

std::string ReceivedOrderStatement(const std::string& orderId) {
  return Splice(
      " SELECT PSM22.PS_NO,PSM22.PR_CODE,PSM22.PR_NAME,PSM22.PR_STD,PSM22.PS_TAXGU,PSM22.PS_UP,"
      "PS_SQTY,PS_EQTY,0 as inqty,PS_AMT,PS_TAX,PS_AMT+PS_TAX,PR.PR_BCODE,         "
      "PEM22.PE_TCTCODE,PEM22.PE_TCTNAME,PEM22.PE_PDATE,PEM22.PE_AMT,PEM22.PE_TAX,PEM22.PE_TOT,"
      "PEM22.PE_CK,PSM22.PS_HCTCODE,PSM22.PS_HCTNAME  FROM (PEM22 LEFT JOIN PSM22 ON PEM22.PE_ID = "
      "PSM22.PE_ID) LEFT JOIN PR ON PSM22.PR_CODE = PR.PR_CODE  WHERE PEM22.PE_ID = '{0}' ORDER BY "
      "PSM22.PS_NO DESC ",
      {orderId});
}

}  // namespace

void frm_PE_UNIT::LoadReceiptSlip(const std::string& orderId) {
  const Hourglass waiting;
  SqlText = ReceivedOrderStatement(orderId);
  OpenRecordset(SlotA, SqlText);
  FLEX1.SetRows(1);
  if (!AtEof(SlotA)) {
    LoadReceiptHeader();
    for (; !AtEof(SlotA); SlotA->MoveNext()) LoadReceiptLine();
  }
  LaAmt[0].Caption = std::to_string(FLEX1.Rows() - 1);
  CloseRecordset(SlotA);
}

void frm_PE_UNIT::LoadReceiptHeader() {
  Text1.Tag = FieldText(SlotA, kPartnerCode);
  Text1.SetText(FieldText(SlotA, kPartnerName));
  DTOrderDate.SetValue(FieldText(SlotA, kOrderDate));
  Combo1.SetText(DepotEntry(FieldText(SlotA, kDepotName), FieldText(SlotA, kDepotCode)));
  LaAmt[1].Caption = FormatText(FieldText(SlotA, kTotal), FormatAmount);
  LaAmt[2].Caption = FormatText(FieldText(SlotA, kSupply), FormatAmount);
  LaAmt[3].Caption = FormatText(FieldText(SlotA, kTax), FormatAmount);
}

void frm_PE_UNIT::LoadReceiptLine() {
  std::string row;
  for (int field = 0; field <= receipt::Barcode; ++field) {
    if (field > 0) row += "\t";
    if (field == receipt::Name) row += FieldText(SlotA, receipt::Barcode) + "\r";
    // What was shipped is proposed as what has come.
    row += FieldText(SlotA, field == receipt::Received ? receipt::Shipped : field);
  }
  FLEX1.AddItem(row);
  RecalcReceiptLine(FLEX1.Rows() - 1);
}

}  // namespace store
