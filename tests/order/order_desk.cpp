#include "tests/order/order_desk.h"

#include "basics/dates.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
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

void OrderDesk::Sale(int daysBack, const std::string& product, const std::string& quantity) {
  const std::string day = FormatDateValue(AddDays(Today(), -daysBack), "YYYYMMDD");
  const std::string id = day + "1001u0113" + std::to_string(1000 + ++sales_);
  Sql(
      Splice("INSERT INTO PES13 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) VALUES "
             "('{id}','1','2024-01-01',NOW(),'1001','x');"
             "INSERT INTO PSS13 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PS_SQTY) VALUES "
             "('{id}',1,'2024-01-01','{product}','{product}',{quantity})",
             "id"_a = id, "product"_a = product, "quantity"_a = quantity));
}

}  // namespace store
