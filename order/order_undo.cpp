// Taking back what was done to the lines of an order, with what goes along: the figures of the pick
// list, and the supplier, whose change throws the lines away.
#include <memory>
#include <utility>

#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "order/order_form.h"

namespace store {

void OrderForm::ConnectHistory() {
  AsOneStep = [this](const std::function<void()>& act) {
    const LineHistory::OneStep step(history_);
    act();
  };
  CellsChanged = [this](std::vector<PickCell> cells) {
    const size_t count = cells.size();
    history_.NoteBeside([this, cells = std::move(cells)](
                            LineHistory::Way way) { return MovePickCells(FLEX2, cells, way); },
                        count);
  };
}

void OrderForm::BeginHistory() {
  history_.Begin();
  supplierStep_ = 0;
  SupplierSeen();
}

void OrderForm::SupplierSeen() { seen_ = SupplierNow(); }

OrderForm::SupplierState OrderForm::SupplierNow() const {
  return {Text1.Text(), Text1.Tag, itemListMoment_, Refused(), draft_.Refused()};
}

/// The supplier has changed. While a name is typed it changes with each letter; that is one step.
void OrderForm::NoteSupplierStep() {
  const bool goesOn = supplierStep_ != 0 && history_.LastStep() == supplierStep_;
  const bool isStep = FLEX1.Rows() > 1 || (!goesOn && (history_.CanUndo() || history_.CanRedo()));
  if (goesOn) history_.ForgetUndone();
  {
    const LineHistory::OneStep step(history_);
    if (isStep) {
      SupplierState before = SupplierNow();
      before.Name = seen_.Name;
      before.Code = seen_.Code;
      history_.NoteBeside([this, other = std::make_shared<SupplierState>(std::move(before))](
                              LineHistory::Way) { return SwitchSupplier(*other); },
                          1);
    }
    draft_.SetRefused({});
    ClearLines();
    ForgetRefused();
  }
  if (isStep) supplierStep_ = history_.LastStep();
  // A try to store the former order may have come through. Whoever goes back to it and changes it
  // would store it a second time under a number of its own.
  if (!inHand_.KeyOfTries().empty()) history_.Begin();
  inHand_.PutAside();
}

LineHistory::Moved OrderForm::SwitchSupplier(SupplierState& other) {
  const Hourglass waiting;
  SupplierState now = SupplierNow();
  const RecordsetSlot items = SlotC;
  if (!TakeSupplierState(other)) {
    Text1.SetText(now.Name);
    Text1.Tag = now.Code;
    SlotC = itemList_ = items;
    itemListMoment_ = now.Moment;
    Host.MsgBox("서버에서 품목을 읽지 못해 발주처를 되돌리지 못했습니다.\r\r잠시 뒤에 다시 하세요.",
                box::Critical, "되돌리기");
    return LineHistory::Moved::Refused;
  }
  other = std::move(now);
  SupplierSeen();
  // Where the next scan must not fall into the name.
  if (ActiveControl == &Text1) SetFocus(inBox);
  return LineHistory::Moved::Done;
}

/// False when its items cannot be read.
bool OrderForm::TakeSupplierState(const SupplierState& state) {
  Text1.SetText(state.Name);
  Text1.Tag = state.Code;
  ReadItemList(state.Moment);
  if (AppOptions.OrderInfoPartnersOnly == 1 && SlotC == nullptr) return false;
  draft_.SetRefused(state.NotBroughtBack);
  SetRefused(state.Refused);
  ShowSupplierScope();
  return true;
}

}  // namespace store
