#include "tests/order/order_desk.h"

#include "basics/dates.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "order/order_form.h"
#include "slips/item_list.h"

namespace store {
namespace {

class StandInBoard : public MainWindow {
 public:
  StandInBoard() : MainWindow("frm_Start") {}
};

}  // namespace

OrderDesk::OrderDesk() {
  RegisterOrderForms();
  RegisterForm("frm_Start", [] { return std::make_unique<StandInBoard>(); });
  Board = dynamic_cast<MainWindow*>(TheForm("frm_Start"));
  Board->Combo1.AddItem(ListEntry("매장", "100101"));
  Board->Combo1.AddItem(ListEntry("창고", "100102"));
  AppOptions.BulkOrderPrice = "3";
  ParseDateText(Value("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')"), host.Clock);
  OpenItemList();
}

OrderForm& OrderDesk::Open(const std::string& slipId) {
  auto* form = dynamic_cast<OrderForm*>(TheForm("frm_Order"));
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
