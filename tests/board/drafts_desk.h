#pragma once

#include <string>

#include "basics/dates.h"
#include "board/frmDrafts.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/drafts.h"
#include "slips/item_list.h"
#include "slips/order_types.h"
#include "tests/support/small_store_test.h"

namespace store {

/// A clerk at the real board, who writes orders and receipts; the clock stands at the database's
/// today, and prices follow the contracts ("3").
class DraftsDesk : public SmallStoreTest {
 protected:
  DraftsDesk() {
    RegisterBoardForms();
    RegisterOrderForms();
    RegisterReceiptForms();
    AppOptions.BulkOrderPrice = "3";
    ParseDateText(Value("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')"), host.Clock);
    OpenItemList();
    Host.Show(Board());
  }

  static frm_Start& Board() { return dynamic_cast<frm_Start&>(*TheForm("frm_Start")); }
  static OrderForm& Order() {
    return dynamic_cast<OrderForm&>(*TheForm(ChosenOrderType().FormName));
  }
  static frm_PE_UNIT& Receipt() { return dynamic_cast<frm_PE_UNIT&>(*TheForm("frm_PE_UNIT")); }

  /// A new order, or a stored one in editing.
  static OrderForm& OpenOrder(const std::string& slipId = "") {
    OrderForm& order = Order();
    order.SlipId = slipId;
    order.SlipTable = "PEM22";
    Host.Show(order);
    return order;
  }
  static void Supplier(const std::string& text) {
    Order().Text1.SetText(text);
    Order().Text1_KeyPress(Key::Enter);
  }
  static void Enter(const std::string& text) {
    Order().inBox.SetText(text);
    Order().inBox_KeyPress(Key::Enter);
  }
  /// Two lines of C0001: P0002 below, P0001 on top.
  void WriteOrder() {
    OpenOrder();
    Supplier("#C0001");
    Enter("88010001");
    Enter("3");
    Enter(",맑은");
    Enter("12");
  }
  static frm_PE_UNIT& OpenReceipt(const std::string& orderId) {
    frm_PE_UNIT& receipt = Receipt();
    receipt.SlipId = orderId;
    receipt.SlipTable = "PEM23";
    Host.Show(receipt);
    return receipt;
  }
  static void Receive(int row, const std::string& quantity) {
    Receipt().FLEX1.SetRow(row);
    Receipt().inBox.SetText(quantity);
    Receipt().inBox_KeyPress(Key::Enter);
  }
  /// Rows as "code x quantity at price", the top one first.
  static std::string Lines(const Grid& grid, int quantity, int price = 5) {
    std::string lines;
    for (int row = 1; row < grid.Rows(); ++row) {
      lines += grid.TextMatrix(row, 1) + "x" + grid.TextMatrix(row, quantity) + "@" +
               grid.TextMatrix(row, price) + " ";
    }
    return lines;
  }
  static std::string OrderLines() { return Lines(Order().FLEX1, order_line::Money.Quantity); }

  /// The program is gone without a word, and started again.
  static void Crash() {
    DropAllForms();
    ResetDrafts();
    OpenItemList();
    Host.Show(Board());
  }
  /// Goes on with a draft of the board's list.
  void GoOn(int row = 1) {
    host.OnModal("frmDrafts", [row](Form& form) {
      auto& list = dynamic_cast<frmDrafts&>(form);
      list.FLEX1.SetRow(row);
      list.Command1_Click();
    });
    Board().LaDraft.Click();
  }
  static std::string Shown() {
    return Board().LaDraft.Visible ? Board().LaDraft.Caption : std::string();
  }
};

}  // namespace store
