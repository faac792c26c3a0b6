#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "gateway/gateway.h"
#include "order/history_pane.h"
#include "order/item_box_pane.h"
#include "order/order_type.h"
#include "order/pick_list_pane.h"
#include "order/progress_pane.h"
#include "order/supplier_pane.h"
#include "slips/order_in_hand.h"
#include "slips/slip.h"
#include "slips/slip_draft.h"
#include "slips/slip_form.h"

namespace store {

/// The window in which an order is written: a supplier, lines of items with quantities, and the
/// save. It is made of panes, each in a file of its own name; here stand the slip as a whole and
/// how the panes work together. The forms of the order types (frm_Order.h, frm_Order01.h and on)
/// add what stands left of the pick list, and their choices. The board sets `SlipId`, `SlipTable`
/// and `NoPriceMode` and shows the form beside itself.
class OrderForm : public SlipForm,
                  public SupplierPane,
                  public PickListPane,
                  public HistoryPane,
                  public ProgressPane,
                  public ItemBoxPane {
 public:
  DatePicker DTOrderDate;
  TextBox Text4;    ///< Mirror of the date, never shown.
  ComboBox Combo1;  ///< The depot that receives the goods.
  Label LaSatae{"매입확정"};
  std::array<Label, 3> LaBtn;   ///< 0 saves for editing, 1 confirms, 2 does nothing.
  std::array<Label, 2> Label5;  ///< 0 closes, 1 makes small.
  std::array<Label, 2>
      Image1;       ///< Transfer marked rows: 0 by what is to be ordered, 1 by shortage.
  Label Image5;     ///< Opens the quick-pick panel on the items found last.
  Button Command2;  ///< Opens it as it was left.

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
  void Image1_Click(int index);
  void Image5_Click();
  void Command2_Click();
  /// Prints the stored slip; what is not saved yet is not on it.
  void PrintStored();

 protected:
  explicit OrderForm(const OrderTypeChoices& choices);

  /// Fills what a type has beside the pick list, when the form opens and when a supplier was chosen
  /// or tried.
  std::function<void()> FillLeftSide;
  /// Its controls come before the pick list when the Tab key walks.
  void AddLeftSideStops(std::initializer_list<Control*> stops);

 private:
  void PublishControls();
  void ConnectPanes();
  void ReadSupplierScope(ItemListMoment moment);
  void ShowSupplierScope();
  void ReadItemList(ItemListMoment moment);
  void TakeItemListBack();
  void ResetOrderForm();
  void GiveTodaysDate();
  void FollowTheDay();
  void LoadOrderSlip(const std::string& slipId);
  void LoadOrderHeader();
  void LoadOrderLine();
  void SetOrderEditable(std::int16_t editable);

  void ValidateOrder(std::int16_t& valid);
  std::string KeyToSaveUnder() const;
  bool CheckSupplier();
  void BuildOrderLines(std::int16_t& count);
  bool AddOrderLine(int number, int row);
  void PrepareLineArray();
  void FillHeader();
  void SaveSucceeded();

  void TransferRow(int row, int column, std::vector<PickCell>& marks);
  void StartDraft();
  Draft DraftNow() const;
  void NoteDraft();
  void NoteSaveTry();
  void BringBack(const Draft& draft);
  void BringSupplierBack(const Draft& draft);
  using SlipRows = std::vector<std::vector<std::string>>;
  std::optional<std::vector<DraftLine>> BringLinesBack(const Draft& draft, SlipRows slipRows);
  void ShowAfresh();

  /// A supplier with what goes and comes back with it.
  struct SupplierState {
    std::string Name;
    std::string Code;
    ItemListMoment Moment = ItemListMoment::FormOpens;  ///< When its item list was read.
    std::vector<std::string> Refused;                   ///< Codes that the order has refused.
    std::vector<DraftLine> NotBroughtBack;              ///< Lines that stand in the draft alone.
  };
  void ConnectHistory();
  void BeginHistory();
  void NoteSupplierStep();
  void SupplierSeen();
  SupplierState SupplierNow() const;
  LineHistory::Moved SwitchSupplier(SupplierState& other);
  bool TakeSupplierState(const SupplierState& state);

  void OrderAgain(const PastOrder& past);
  bool AddPastLines(const PastOrder& past, std::vector<RefusedLine>& refused);

  void OpenQuickPick();
  void OpenQuickPickOnHits();
  void AddPicked();

  const OrderTypeChoices& choices_;
  bool activated_ = false;
  unsigned loadedLines_ = 0;  // revision of FLEX1 when the slip had been loaded
  std::string loadedDate_;
  int openedDepot_ = 0;    // entry of the depot list that the form opened with
  std::string givenDate_;  // the date that the form itself put in
  OrderInHand inHand_;
  SlipDraft draft_;
  RecordsetSlot itemList_;  // what this form has put into `SlotC`
  SupplierState seen_;      // name and code as they stood before the next change
  int supplierStep_ = 0;    // the last step in which the supplier changed
  bool lookingUp_ = false;  // in the item lookup, where products are registered
  ItemListMoment itemListMoment_ = ItemListMoment::FormOpens;
};

/// Makes the order forms and their panel of tiles known by name ("frm_Order").
void RegisterOrderForms();

}  // namespace store
