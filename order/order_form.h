#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "order/history_pane.h"
#include "order/item_box_pane.h"
#include "order/kind_pane.h"
#include "order/order_type.h"
#include "order/pick_list_pane.h"
#include "order/supplier_pane.h"
#include "slips/slip.h"
#include "slips/slip_form.h"

namespace store {

/// The window in which an order is written: a supplier, lines of items with quantities, and the
/// save. It is made of panes, each in a file of its own name; here stand the slip as a whole and
/// how the panes work together. The board sets `SlipId`, `SlipTable` and `NoPriceMode` and shows it
/// beside itself.
class OrderForm : public SlipForm,
                  public SupplierPane,
                  public PickListPane,
                  public KindPane,
                  public HistoryPane,
                  public ItemBoxPane {
 public:
  explicit OrderForm(const OrderTypeChoices& choices);

  DatePicker DTOrderDate;
  TextBox Text4;    ///< Mirror of the date, never shown.
  ComboBox Combo1;  ///< The depot that receives the goods.
  Label LaSatae{"매입확정"};
  std::array<Label, 3> LaBtn;   ///< 0 saves for editing, 1 confirms, 2 does nothing.
  std::array<Label, 2> Label5;  ///< 0 closes, 1 makes small.

  HeadArray HeadValues;
  StringTable LineValues;

  void Load() override;
  void Activate() override;
  void Unload() override;
  bool KeyDown(Key key) override;
  bool HoldsWork() const override;

  void DTOrderDate_Change();
  void LaBtn_Click(int index);
  void Label5_Click(int index);

 private:
  void PublishControls();
  void ConnectPanes();
  void FillKinds();
  void ResetOrderForm();
  void LoadOrderSlip(const std::string& slipId);
  void LoadOrderHeader();
  void LoadOrderLine();
  void SetOrderEditable(std::int16_t editable);

  void ValidateOrder(std::int16_t& valid);
  void BuildOrderLines(std::int16_t& count);
  bool AddOrderLine(int number, int row);
  void PrepareLineArray();
  void FillHeader();
  void SaveSucceeded();

  const OrderTypeChoices& choices_;
  bool activated_ = false;
  unsigned loadedLines_ = 0;  // revision of FLEX1 when the slip had been loaded
  std::string loadedDate_;
};

/// Makes the order forms and their quick-pick panel known by name ("frm_Order").
void RegisterOrderForms();

}  // namespace store
