#include "order/supplier_pane.h"

#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "lookup/party_lookups.h"

namespace store {
namespace {

std::string SupplierByPhone(const std::string& digits) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_phone LIKE '%{digits}%'  AND B.CT_LEVEL2 IN "
      "('0','1') ",
      "digits"_a = digits);
}

std::string SupplierByCode(const std::string& code) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_CODE = '{code}' AND B.CT_LEVEL2 IN ('0','1') ",
      "code"_a = code);
}

std::string SupplierByName(const std::string& name) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_NAME LIKE '%{name}%' AND B.CT_LEVEL2 IN ('0','1') ",
      "name"_a = name);
}

// With the option on, the store's order settings decide who is a supplier, whatever the partner's
// level.
std::string SetUpSupplierByPhone(const std::string& digits) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{store}' AND A.CT_phone LIKE '%{digits}%'   ",
      "store"_a = Session.StoreCode, "digits"_a = digits);
}

std::string SetUpSupplierByCode(const std::string& code) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{store}' AND A.CT_CODE = '{code}'  ",
      "store"_a = Session.StoreCode, "code"_a = code);
}

std::string SetUpSupplierByName(const std::string& name) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{store}' AND A.CT_NAME LIKE '%{name}%'  ",
      "store"_a = Session.StoreCode, "name"_a = name);
}

std::string SupplierStatement(const std::string& text) {
  const bool setUpOnly = AppOptions.OrderInfoPartnersOnly != 0;
  const std::string first = LeftChars(text, 1);
  const std::string rest = MidChars(text, 2);
  if (first == "/") return setUpOnly ? SetUpSupplierByPhone(rest) : SupplierByPhone(rest);
  if (first == "#") return setUpOnly ? SetUpSupplierByCode(rest) : SupplierByCode(rest);
  return setUpOnly ? SetUpSupplierByName(text) : SupplierByName(text);
}

}  // namespace

SupplierPane::SupplierPane(SlipForm& form) : form_(form) {
  form.Publish("Label1", Label1);
  form.Publish("Text1", Text1);
  form.Publish("LaCTHELP", LaCTHELP);
  // A line's price belongs to the supplier; another name means other prices.
  Text1.Change = [this] { SupplierChanged(); };
  Text1.GotFocus = [this] { Text1_GotFocus(); };
  Text1.KeyDown = [this](Key key) {
    Text1_KeyDown(key);
    Text1_KeyPress(key);
  };
  Text1.OwnKeys = {Key::F1, Key::Enter};
  LaCTHELP.Click = [this] { LaCTHELP_Click(); };
}

bool SupplierPane::HasSupplier() const { return !Trim(Text1.Text()).empty() && !Text1.Tag.empty(); }

void SupplierPane::TellNoSupplier() const {
  Host.MsgBox("발주처를 선택하세요.          ", box::Critical, "발주처");
}

void SupplierPane::Text1_GotFocus() { Text1.SelectAll(); }

void SupplierPane::Text1_KeyDown(Key key) {
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
    ChooseSupplier(box, "");
  }
  found = !box.Text().empty() && !box.Tag.empty() ? -1 : 0;
  FollowSupplier(ItemListMoment::SupplierTyped);
}

void SupplierPane::ChooseSupplier(TextBox& box, const std::string& lookupTable) {
  HELP_CT lookup;
  lookup.Text1.SetText(box.Text());
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
  ChooseSupplier(Text1, form_.SlipTable);
  FollowSupplier(ItemListMoment::LookupClosed);
  form_.SetFocus(*AfterLookup);
}

}  // namespace store
