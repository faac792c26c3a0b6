// A clerk's orders: new ones, changed ones, those taken back on the board.
#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/lookup_form.h"
#include "order/order_form.h"
#include "slips/order_types.h"
#include "tests/soak/clerk.h"
#include "tests/soak/franchise.h"

namespace store {
namespace {

int ProductOf(const std::string& code) {
  return static_cast<int>(ParseNumber(code.substr(code.empty() ? 0 : 1))) - 1;
}

std::string Plain(const std::string& cell) { return NumberText(ParseGrouped(cell)); }

/// "code:quantity" of a row.
std::string TokenOfRow(const Grid& grid, int row) {
  return grid.TextMatrix(row, order_line::Money.Code) + ":" +
         Plain(grid.TextMatrix(row, order_line::Money.Quantity));
}

/// Date, partner, total, and each line as code, quantity, price, amount and tax.
std::string ContentOf(const OrderForm& form) {
  std::string content =
      form.DTOrderDate.Value() + ";" + form.Text1.Tag + ";" + Plain(form.LaAmt[1].Caption);
  for (int row = 1; row < form.FLEX1.Rows(); ++row) {
    content += ";" + TokenOfRow(form.FLEX1, row);
    for (const int col :
         {order_line::Money.Price, order_line::Money.Supply, order_line::Money.Tax}) {
      content += ":" + Plain(form.FLEX1.TextMatrix(row, col));
    }
  }
  return content;
}

}  // namespace

OrderForm* Clerk::OpenOrder() const {
  return dynamic_cast<OrderForm*>(OpenForm(ChosenOrderType().FormName));
}

std::string Clerk::StateToStore(int button) const {
  if (button == 0) return "0";
  return OptionsOf(place_.Store).OrderType >= 2 ? "2" : "1";
}

void Clerk::NewOrder() {
  Board().Image1_Click(0);
  OrderForm* form = OpenOrder();
  if (form == nullptr) return;
  // The question behind a stored order leads to the next one on the same form.
  for (bool another = true; another && !form->IsClosed();) {
    if (!FillOrder(*form)) break;
    Work work;
    ConnectOrder(*form, work, Percent(65) ? 1 : 0, "");
    host_.GoesOnOrdering = Percent(50);
    another = PressUntilDone(work) && host_.GoesOnOrdering && Percent(60);
  }
  if (!form->IsClosed()) form->Close();
}

bool Clerk::FillOrder(OrderForm& form) {
  const int top = Below(kProducts);
  if (!ChooseSupplier(form, top)) return false;
  if (Percent(20)) {
    form.DTOrderDate.SetValue(FormatDateValue(AddDays(Today(), Below(21) - 10), "yyyy-mm-dd"));
  }
  const int more = Percent(60) ? 0 : 1 + Below(4);
  for (int i = 0; i < more; ++i) {
    // The supplier's own, in steps of as many as there are suppliers.
    const int product = (top + kPartners * (1 + Below(kProducts / kPartners - 1))) % kProducts;
    AddLine(form, product, std::to_string(1000 + Below(9000)));
  }
  return AddLine(form, top, TokenQuantity(top)) && SetToken(form);
}

bool Clerk::ChooseSupplier(OrderForm& form, int product) {
  const std::int16_t type = OptionsOf(place_.Store).OrderType;
  if (type == 1) return true;
  wantedPartner_ = PartnerCodeOf(product);
  if (type == 3) {
    form.LaCTHELP_Click();
  } else {
    form.Text1.SetText("#" + wantedPartner_);
    form.Text1_KeyPress(Key::Enter);
  }
  return form.Text1.Tag == wantedPartner_;
}

void Clerk::TakePartner(LookupForm& lookup) const {
  lookup.Text1.SetText("");
  lookup.Command1_Click();
  for (int row = 1; row < lookup.FLEX1.Rows(); ++row) {
    if (lookup.FLEX1.TextMatrix(row, 0) != wantedPartner_) continue;
    lookup.FLEX1.SetRow(row);
    lookup.FLEX1_DblClick();
    return;
  }
}

bool Clerk::AddLine(OrderForm& form, int product, const std::string& quantity) {
  form.inBox.SetText(BarcodeOf(product));
  form.inBox_KeyPress(Key::Enter);
  if (form.FLEX1.Rows() < 2 ||
      form.FLEX1.TextMatrix(1, order_line::Money.Code) != ProductCodeOf(product)) {
    return false;
  }
  form.FLEX1.SetRow(1);
  form.inBox.SetText(quantity);
  form.inBox_KeyPress(Key::Enter);
  return Plain(form.FLEX1.TextMatrix(1, order_line::Money.Quantity)) == quantity;
}

/// The top line's quantity tells this version of the order from every other one.
bool Clerk::SetToken(OrderForm& form) {
  token_ = TokenOfRow(form.FLEX1, 1);
  return true;
}

bool Clerk::EditOrder(OrderForm& form) {
  if (form.FLEX1.Rows() > 3 && Percent(20)) {
    form.FLEX1.SetRow(form.FLEX1.Rows() - 1);
    form.inBox_KeyDown(Key::Delete);
  }
  int product = ProductOf(form.FLEX1.TextMatrix(1, order_line::Money.Code));
  if (product < 0 || product >= kProducts) return false;
  if (Percent(30)) product = (product + kPartners) % kProducts;
  return AddLine(form, product, TokenQuantity(product)) && SetToken(form);
}

void Clerk::ConnectOrder(OrderForm& form, Work& work, int button, const std::string& from) {
  work.Group = NextGroup();
  const std::string state = StateToStore(button);
  const std::string loaded = from.empty() ? "" : form.SlipId;
  const std::string content = ContentOf(form);
  work.NoteIntent = [this, group = work.Group, state, loaded, from,
                     content](const std::string& press) {
    if (from.empty()) {
      log_.Line({entry::NewOrder, press, group, token_, state, content});
    } else {
      log_.Line({entry::Change, press, group, token_, state, content, loaded, from});
    }
  };
  work.Press = [&form, button] {
    if (!form.IsClosed()) form.LaBtn_Click(button);
  };
  work.Key = [&form] { return form.HeadValues.empty() ? std::string() : form.HeadValues[0]; };
}

void Clerk::ChangeOrder() {
  if (!SelectOnBoard(1)) return;
  Board().FLEX1_DblClick();
  OrderForm* form = OpenOrder();
  if (form == nullptr) return;
  const int last = form->FLEX1.Rows() - 1;
  if (last >= 1 && form->inBox.Enabled) {
    // The lowest row is line 1 of what is stored.
    const std::string from = TokenOfRow(form->FLEX1, last);
    Pause();
    if (EditOrder(*form)) {
      Work work;
      ConnectOrder(*form, work, Percent(45) ? 1 : 0, from);
      host_.GoesOnOrdering = false;
      PressUntilDone(work);
    }
  }
  if (!form->IsClosed()) form->Close();
}

void Clerk::DeleteOrRevert(bool revert) {
  if (!SelectOnBoard(revert ? 2 : 1)) return;
  const auto press = [&] {
    // A further press hits what the board has marked by then.
    const std::string key = Board().SelectedSlipId;
    if (key.empty()) return;
    Work work;
    work.Group = NextGroup();
    work.NoteIntent = [&](const std::string& number) {
      log_.Line({revert ? entry::Revert : entry::Delete, number, work.Group, key});
    };
    work.Press = [this] { Board().Image1_Click(4); };
    work.Key = [&key] { return key; };
    PressOnce(work);
    log_.Line({entry::Closed, work.Group});
  };
  press();
  if (!Percent(10)) return;
  log_.Line({entry::Fault, "duplicate press"});
  press();
}

}  // namespace store
