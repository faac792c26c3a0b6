#include "tests/order/order_desk.h"

#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "order/order_form.h"
#include "slips/item_list.h"

namespace store {
OrderDesk::OrderDesk() {
  RegisterOrderForms();
  AppOptions.BulkOrderPrice = "3";
  OpenItemList();
}

OrderForm& OrderDesk::Open(const std::string& slipId) {
  auto* form = dynamic_cast<OrderForm*>(TheForm(ChosenOrderType().FormName));
  form->SlipId = slipId;
  form->SlipTable = "PEM22";
  Host.Show(*form);
  return *form;
}

void OrderDesk::Supplier(const std::string& text) {
  Order().Text1.SetText(text);
  Order().Text1_KeyPress(Key::Enter);
}

void OrderDesk::Enter(const std::string& text) {
  Order().inBox.SetText(text);
  Order().inBox_KeyPress(Key::Enter);
}

std::string OrderDesk::Lines() {
  std::string lines;
  for (int row = 1; row < Order().FLEX1.Rows(); ++row) {
    lines += Order().FLEX1.TextMatrix(row, 1) + "x" + Order().FLEX1.TextMatrix(row, 7) + " ";
  }
  return lines;
}

}  // namespace store
