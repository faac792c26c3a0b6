#include "order/supplier_pane.h"

#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "lookup/party_lookups.h"
#include "order/recent_suppliers.h"
#include "slips/order_suppliers.h"

namespace store {

SupplierPane::SupplierPane(SlipForm& form) : form_(form) {
  form.Publish("Label1", Label1);
  form.Publish("Text1", Text1);
  form.Publish("LaCTHELP", LaCTHELP);
  form.Publish("Recent", Recent);
  // A line's price belongs to the supplier; another name means other prices.
  Text1.Change = [this] { SupplierChanged(); };
  Text1.GotFocus = [this] { Text1_GotFocus(); };
  Text1.KeyDown = [this](Key key) {
    Text1_KeyDown(key);
    Text1_KeyPress(key);
  };
  Text1.OwnKeys = {Key::F1, Key::Enter, Key::Down};
  LaCTHELP.Click = [this] { LaCTHELP_Click(); };
  Recent.Click = [this](int entry) { Recent_Click(entry); };
}

bool SupplierPane::HasSupplier() const { return !Trim(Text1.Text()).empty() && !Text1.Tag.empty(); }

void SupplierPane::TellNoSupplier() const {
  Host.MsgBox("발주처를 선택하세요.          ", box::Critical, "발주처");
}

void SupplierPane::Text1_GotFocus() { Text1.SelectAll(); }

void SupplierPane::Text1_KeyDown(Key key) {
  if (key == Key::Down && Recent.Enabled) Recent.Open();
  if (key != Key::F1) return;
  LaCTHELP_Click();
  form_.SetFocus(*AfterLookup);
}

void SupplierPane::Text1_KeyPress(Key key) {
  if (key != Key::Enter) return;
  std::int16_t found = 0;
  FindSupplier(Text1, found);
  if (found != 0) {
    form_.FocusNext();
  } else {
    form_.SetFocus(Text1);
  }
}

void SupplierPane::FindSupplier(TextBox& box, std::int16_t& found) {
  SqlText = SupplierStatement(box.Text());
  StringTable suppliers;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  {
    const StoppableReads mayBeStopped;
    QueryRows(SqlText, suppliers, rows, highestColumn);
  }
  if (rows == 1) {
    TakeSupplier(box, suppliers.At(1, 0), suppliers.At(1, 1));
  } else {
    ChooseSupplier(box, box.Text(), "");
  }
  found = !box.Text().empty() && !box.Tag.empty() ? -1 : 0;
  FollowSupplier(ItemListMoment::SupplierTyped);
}

void SupplierPane::ChooseSupplier(TextBox& box, const std::string& search,
                                  const std::string& lookupTable) {
  HELP_CT lookup;
  lookup.Text1.SetText(search);
  lookup.SlipTable = lookupTable;
  Host.ShowModal(lookup);
  TakeSupplier(box, lookup.ResultCode, lookup.ResultName);
}

void SupplierPane::TakeSupplier(TextBox& box, const std::string& code, const std::string& name) {
  // Two suppliers may bear one name: the code says whose prices stand in the lines.
  const bool sameName = box.Text() == name;
  const bool otherCode = box.Tag != code;
  box.SetText(name);
  box.Tag = code;
  if (sameName && otherCode) SupplierChanged();
}

void SupplierPane::LaCTHELP_Click() {
  ChooseSupplier(Text1, Text1.Text(), form_.SlipTable);
  LookupClosed();
}

void SupplierPane::LookupClosed() {
  FollowSupplier(ItemListMoment::LookupClosed);
  form_.SetFocus(*AfterLookup);
}

void SupplierPane::ShowRecent() {
  recent_ = RecentSuppliers();
  Recent.Entries.clear();
  for (const RecentSupplier& each : recent_) {
    Recent.Entries.push_back(each.Name + "   " + each.Code);
  }
  Recent.Enabled = Text1.Enabled && !recent_.empty();
}

void SupplierPane::NoteRecent() {
  if (HasSupplier()) NoteRecentSupplier({Text1.Tag, Text1.Text()});
  ShowRecent();
}

void SupplierPane::Recent_Click(int entry) {
  if (entry < 0 || entry >= static_cast<int>(recent_.size())) return;
  const RecentSupplier chosen = recent_[static_cast<size_t>(entry)];
  std::string name;
  switch (LookUpSupplier(chosen.Code, name)) {
    case SupplierStand::Unreadable:
      Host.MsgBox("서버에 물어볼 수 없어 발주처를 정하지 못했습니다.\r\r잠시 뒤에 다시 고르세요.",
                  box::Critical, "최근 발주처");
      return;
    case SupplierStand::Offered:
      TakeSupplier(Text1, chosen.Code, name);
      break;
    case SupplierStand::NotOffered:
      ForgetRecentSupplier(chosen.Code);
      ShowRecent();
      ChooseSupplier(Text1, chosen.Name, "");
      break;
  }
  LookupClosed();
}

}  // namespace store
