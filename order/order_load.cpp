// Filling the order form from a stored slip.
#include "basics/formats.h"
#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/order_form.h"
#include "slips/slip.h"

namespace store {
namespace {

/// Fields of the slip statement, in select order.
enum SlipField {
  kName = 2,
  kSum = 10,
  kBarcode = 11,
  kSupplierCode = 12,
  kSupplierName = 13,
  kDate = 14,
  kSlipSupply = 15,
  kSlipTax = 16,
  kSlipTotal = 17,
  kState = 18,
};

std::string OrderSlipStatement(const std::string& slipId) {
  return Splice(
      "SELECT PSM22.PS_NO,PSM22.PR_CODE,PSM22.PR_NAME,PSM22.PR_STD,PSM22.PS_TAXGU,PSM22.PS_UP,' ' "
      "MINORDER ,PS_SQTY,PS_AMT,PS_TAX,PS_AMT+PS_TAX,PR.PR_BCODE,         PEM22.PE_TCTCODE,"
      "PEM22.PE_TCTNAME,PEM22.PE_PDATE,PEM22.PE_AMT,PEM22.PE_TAX,PEM22.PE_TOT,PEM22.PE_CK  FROM "
      "(PEM22 LEFT JOIN PSM22 ON PEM22.PE_ID = PSM22.PE_ID) LEFT JOIN PR ON PSM22.PR_CODE = "
      "PR.PR_CODE  WHERE PEM22.PE_ID = '{0}' ORDER BY PSM22.PS_NO DESC ",
      {slipId});
}

}  // namespace

void OrderForm::LoadOrderSlip(const std::string& slipId) {
  const Hourglass waiting;
  SqlText = OrderSlipStatement(slipId);
  OpenRecordset(SlotA, SqlText);
  FLEX1.SetRows(1);
  if (!AtEof(SlotA)) {
    LoadOrderHeader();
    for (; !AtEof(SlotA); SlotA->MoveNext()) LoadOrderLine();
  }
  LaAmt[0].Caption = std::to_string(FLEX1.Rows() - 1);
  CloseRecordset(SlotA);
  loadedLines_ = FLEX1.Revision();
  loadedDate_ = DTOrderDate.Value();
}

void OrderForm::LoadOrderHeader() {
  // The name comes before the code and the lines: a change of the supplier's name throws lines
  // away.
  Text1.SetText(FieldText(SlotA, kSupplierName));
  Text1.Tag = FieldText(SlotA, kSupplierCode);
  DTOrderDate.SetValue(FieldText(SlotA, kDate));
  Text4.SetText(DTOrderDate.Value());

  const std::string state = FieldText(SlotA, kState);
  if (state == "0" || state == "2") LaSatae.Caption = kWordEditing;
  if (state == "1" || state == "3") LaSatae.Caption = kWordConfirmed;
  SetOrderEditable(state == "0" ? -1 : 0);

  LaAmt[1].Caption = FormatText(FieldText(SlotA, kSlipTotal), FormatAmount);
  LaAmt[2].Caption = FormatText(FieldText(SlotA, kSlipSupply), FormatAmount);
  LaAmt[3].Caption = FormatText(FieldText(SlotA, kSlipTax), FormatAmount);
}

void OrderForm::LoadOrderLine() {
  std::string row;  // cell 0, the number, stays empty until the lines change
  for (int field = 1; field <= kBarcode; ++field) {
    row += "\t";
    if (field == kName) row += FieldText(SlotA, kBarcode) + "\r";
    row +=
        field == kSum ? FormatText(FieldText(SlotA, kSum), FormatAmount) : FieldText(SlotA, field);
  }
  FLEX1.AddItem(row);
}

}  // namespace store
