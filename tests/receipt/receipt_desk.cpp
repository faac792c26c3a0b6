#include "tests/receipt/receipt_desk.h"

#include "slips/item_list.h"

namespace store {

ReceiptDesk::ReceiptDesk() {
  RegisterReceiptForms();
  OpenItemList();
}

void ReceiptDesk::StartDay() {
  StartAgain();
  SetUpDesk();
  OpenItemList();
}

frm_PE_UNIT& ReceiptDesk::Open(const std::string& orderId) {
  auto* form = dynamic_cast<frm_PE_UNIT*>(TheForm("frm_PE_UNIT"));
  form->SlipId = orderId;
  form->SlipTable = "PEM23";
  Host.Show(*form);
  return *form;
}

void ReceiptDesk::Receive(int row, const std::string& quantity) {
  Receipt().FLEX1.SetRow(row);
  Receipt().inBox.SetText(quantity);
  Receipt().inBox_KeyPress(Key::Enter);
}

}  // namespace store
