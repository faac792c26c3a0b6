// The panel of tiles as the order form opens it.
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "order/frm_OrderPLU.h"
#include "order/order_form.h"

namespace store {
namespace {

frm_OrderPLU& ThePanel() { return dynamic_cast<frm_OrderPLU&>(*TheForm("frm_OrderPLU")); }

/// Makes room for one pick; what was picked last stays in it.
void MakeRoomForPick() { PickList.Redim(0, 1); }

}  // namespace

void OrderForm::OpenQuickPick() {
  MakeRoomForPick();
  ThePanel().Reload = 0;
  Host.ShowModal(ThePanel());
  AddPicked();
}

void OrderForm::OpenQuickPickOnHits() {
  MakeRoomForPick();
  ThePanel().Reload = -1;
  ThePanel().ListMode = -1;
  Host.ShowModal(ThePanel());
  AddPicked();
}

void OrderForm::Image5_Click() {
  if (!HasSupplier()) {
    TellNoSupplier();
    return;
  }
  OpenQuickPickOnHits();
}

void OrderForm::Command2_Click() { Host.ShowModal(ThePanel()); }

void OrderForm::AddPicked() {
  const LineHistory::OneStep step(history_);
  for (int i = 0; i <= PickList.LastRow(); ++i) AddFromCode(PickList.At(i, 0));
}

}  // namespace store
