#include "order/order_form.h"

#include <iterator>
#include <memory>

#include "basics/dates.h"
#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "lookup/print_slip.h"
#include "order/frm_Order.h"
#include "order/frm_Order01.h"
#include "order/frm_Order02.h"
#include "order/frm_Order03.h"
#include "order/frm_OrderPLU.h"
#include "slips/depot_choice.h"
#include "slips/draft_fate.h"

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
      "PR.PR_CODE  WHERE PEM22.PE_ID = '{slip}' ORDER BY PSM22.PS_NO DESC ",
      "slip"_a = slipId);
}

}  // namespace

OrderForm::OrderForm(const OrderTypeChoices& choices)
    : SlipForm(choices.FormName),
      // Without the casts each would be taken for a copy of the pane that this form also is.
      SupplierPane(static_cast<SlipForm&>(*this)),
      PickListPane(static_cast<Form&>(*this), choices),
      HistoryPane(static_cast<Form&>(*this)),
      ProgressPane(static_cast<Form&>(*this)),
      ItemBoxPane(*this, *this, *this, choices),
      choices_(choices) {
  Caption = choices.Caption;
  Text4.SetText("2002-08-08");
  PublishControls();
  ConnectPanes();
  ConnectHistory();
  TabOrder = {&DTOrderDate, &Combo1, &Text1, &inBox, &FLEX1, &FLEX2};
}

void OrderForm::AddLeftSideStops(std::initializer_list<Control*> stops) {
  TabOrder.insert(std::prev(TabOrder.end()), stops);
}

void OrderForm::PublishControls() {
  Publish("DTOrderDate", DTOrderDate);
  Publish("Combo1", Combo1);
  Publish("LaSatae", LaSatae);
  Publish("LaBtn_0", LaBtn[0]);
  Publish("LaBtn_1", LaBtn[1]);
  Publish("Label5", Label5);
  Publish("Image1", Image1);
  Publish("Image5", Image5);
  Publish("Command2", Command2);
  Image1[0].ToolTipText = "발주량발주";
  Image1[1].ToolTipText = "부족재고발주";
  Image5.Click = [this] { Image5_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  DTOrderDate.Change = [this] { DTOrderDate_Change(); };
  for (const int index : {0, 1}) {
    LaBtn[static_cast<size_t>(index)].Click = [this, index] { LaBtn_Click(index); };
    Label5[static_cast<size_t>(index)].Click = [this, index] { Label5_Click(index); };
    Image1[static_cast<size_t>(index)].Click = [this, index] { Image1_Click(index); };
  }
}

void OrderForm::ConnectPanes() {
  SupplierChanged = [this] {
    if (history_.IsMoving()) return;  // its lines come back with it
    NoteSupplierStep();
    SupplierSeen();
  };
  LinesChanged = [this] { NoteDraft(); };
  Combo1.Click = [this] { NoteDraft(); };
  FollowSupplier = [this](ItemListMoment moment) {
    const Hourglass waiting;
    ReadSupplierScope(moment);
    NoteRecent();
    SupplierSeen();
  };
  ItemLookup.Click = [this] {
    lookingUp_ = true;
    ItemLookup_Click();
    lookingUp_ = false;
    itemList_ = SlotC;  // a product that was registered there has come into it
  };
  AfterLookup = &inBox;
  SeveralHits = [this] { OpenQuickPickOnHits(); };
  QuantityEntered = [this](const std::string& code, const std::string& quantity) {
    AddFromCode(code);
    if (PriceUnread) return;
    // Also when the item was refused for its price: the quantity then lands on the top line.
    inBox.SetText(quantity);
    if (FLEX1.Row() >= 1) TakeQuantity(1);
  };
  ItemTakenOut = [this](const std::string& code) { TakeOut(code); };
  HistoryWanted = [this](const std::string& code, const std::string& name) {
    ShowHistory(code, name);
  };
}

void OrderForm::ReadSupplierScope(ItemListMoment moment) {
  const StoppableReads mayBeStopped;  // who stops the list means what stands beside it, too
  ReadItemList(moment);
  ShowSupplierScope();
}

void OrderForm::ShowSupplierScope() {
  const StoppableReads mayBeStopped;
  if (FillLeftSide) FillLeftSide();
  // Whatever is chosen beside it anew, the pick list starts empty.
  FLEX2.SetRows(1);
  NoteDraft();
}

void OrderForm::ReadItemList(ItemListMoment moment) {
  if (AppOptions.OrderInfoPartnersOnly != 1) return;
  const RecordsetSlot before = SlotC;
  const StoppableReads mayBeStopped;
  choices_.ReadItems(moment, Text1.Tag);
  if (SlotC == before) return;  // this moment asks for no list
  itemList_ = SlotC;
  itemListMoment_ = moment;
}

/// Another form may have worked with a list of its own meanwhile, or a read may have failed.
void OrderForm::TakeItemListBack() {
  if (!lookingUp_ && (SlotC == nullptr || SlotC != itemList_)) ReadItemList(itemListMoment_);
}

void OrderForm::Load() { ResetOrderForm(); }

void OrderForm::Activate() {
  if (activated_) {
    TakeItemListBack();
    FollowTheDay();
    return;
  }
  activated_ = true;
  Host.DoEvents();
  if (!SlipId.empty()) LoadOrderSlip(SlipId);
  ReadSupplierScope(ItemListMoment::FormOpens);
  CopyDepots(Combo1);
  Combo1.SetListIndex(0);
  // Or a saved change would move the order to another depot.
  ChooseDepot(Combo1, inHand_.Depot());
  openedDepot_ = Combo1.ListIndex();
  SetFocus(Text1);
  StartDraft();
}

void OrderForm::ResetOrderForm() {
  history_.End();
  ForgetRefused();
  FLEX1.SetRows(1);
  Text1.SetText("");
  Text1.Tag.clear();
  inBox.SetText("");
  LaSatae.Caption.clear();
  GiveTodaysDate();
  for (Label& amount : LaAmt) amount.Caption = "0";
  ShowRecent();
}

void OrderForm::GiveTodaysDate() {
  givenDate_ = FormatDateValue(Today(), "yyyy-mm-dd");
  DTOrderDate.SetValue(givenDate_);
  Text4.SetText(givenDate_);
}

/// A new order's date that nobody has chosen is the day on which it is saved, however long the form
/// stands open.
void OrderForm::FollowTheDay() {
  if (SlipId.empty() && DTOrderDate.Value() == givenDate_) GiveTodaysDate();
}

void OrderForm::LoadOrderSlip(const std::string& slipId) {
  // Read first, so that what has changed by the time the lines are read is noticed at the save.
  inHand_.Open(slipId);
  const bool read = LoadLines(
      OrderSlipStatement(slipId), [this] { LoadOrderHeader(); }, [this] { LoadOrderLine(); });
  if (!read) inHand_.IsNotShown();
  loadedLines_ = FLEX1.Revision();
  loadedDate_ = DTOrderDate.Value();
}

void OrderForm::LoadOrderHeader() {
  // The name comes before the code and the lines: a change of the supplier's name throws lines
  // away. An order to several suppliers has no supplier of its own.
  const std::string supplier = FieldText(SlotA, kSupplierCode);
  const bool combined = choices_.CombinesSuppliers && supplier == kCombinedSupplierCode;
  Text1.SetText(combined ? "" : FieldText(SlotA, kSupplierName));
  Text1.Tag = combined ? "" : supplier;
  DTOrderDate.SetValue(FieldText(SlotA, kDate));
  Text4.SetText(DTOrderDate.Value());

  const std::string state = FieldText(SlotA, kState);
  if (state == "0" || state == "2") LaSatae.Caption = kWordEditing;
  if (state == "1" || state == "3") LaSatae.Caption = kWordConfirmed;
  SetOrderEditable(state == "0" ? -1 : 0);
  ShowTotals(FieldText(SlotA, kSlipTotal), FieldText(SlotA, kSlipSupply),
             FieldText(SlotA, kSlipTax));
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

bool OrderForm::HoldsWork() const {
  if (!inBox.Enabled) return false;  // a slip that is only looked at cannot be saved
  if (SlipId.empty()) return !Text1.Text().empty() || FLEX1.Rows() > 1;
  return FLEX1.Revision() != loadedLines_ || DTOrderDate.Value() != loadedDate_ ||
         Combo1.ListIndex() != openedDepot_;
}

void OrderForm::SetOrderEditable(std::int16_t editable) {
  const bool enabled = editable != 0;
  for (Control* control :
       std::initializer_list<Control*>{&LaCTHELP, &Text1, &DTOrderDate, &Combo1, &inBox,
                                       &ItemLookup, &FLEX2, &LaBtn[0], &LaBtn[1]}) {
    control->Enabled = enabled;
  }
  ShowRecent();
}

bool OrderForm::KeyDown(Key key) {
  switch (key) {
    case Key::Escape:
      Close();
      return true;
    case Key::F1:
      // In the supplier box the key is the lookup's.
      if (ActiveControl == &Text1 && Text1.Enabled) return false;
      OpenQuickPick();
      return true;
    case Key::F5:
      NarrowHistory();
      return true;
    case Key::F6:
      WidenHistory();
      return true;
    default:
      return false;
  }
}

void OrderForm::DTOrderDate_Change() {
  Text4.SetText(DTOrderDate.Value());
  NoteDraft();
}

void OrderForm::Label5_Click(int index) {
  if (index == 0) {
    Close();
  } else if (index == 1) {
    if (MainWindow* board = TheMainWindow()) Host.Hide(*board);
    Host.Minimize(*this);
  }
}

void OrderForm::PrintStored() {
  if (SlipId.empty()) {
    Host.MsgBox("저장한 전표만 인쇄할 수 있습니다.\r먼저 저장하세요.", box::Critical, "인쇄");
    return;
  }
  if (HoldsWork() &&
      Host.MsgBox("저장하지 않은 내용은 인쇄되지 않습니다.\r저장된 전표를 인쇄하시겠습니까?",
                  box::Question + box::YesNo, "인쇄") != box::Yes) {
    return;
  }
  PrintSlip(SlipId);
}

void OrderForm::Unload() {
  inHand_.PutAside();
  draft_.Closed();
  if (MainWindow* board = TheMainWindow()) Host.Show(*board);
}

void RegisterOrderForms() {
  RegisterForm("frm_Order", [] { return std::make_unique<frm_Order>(); });
  RegisterForm("frm_Order01", [] { return std::make_unique<frm_Order01>(); });
  RegisterForm("frm_Order02", [] { return std::make_unique<frm_Order02>(); });
  RegisterForm("frm_Order03", [] { return std::make_unique<frm_Order03>(); });
  RegisterForm("frm_OrderPLU", [] { return std::make_unique<frm_OrderPLU>(); });
}

}  // namespace store
