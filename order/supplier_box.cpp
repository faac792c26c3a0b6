// Choosing the supplier, which decides prices and, with the option on, which items there are.
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "lookup/HELP_CT.h"
#include "order/order_form.h"
#include "slips/item_list.h"

namespace store {
namespace {

std::string SupplierByPhone(const std::string& digits) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_phone LIKE '%{0}%'  AND B.CT_LEVEL2 IN ('0','1') ",
      {digits});
}

std::string SupplierByCode(const std::string& code) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_CODE = '{0}' AND B.CT_LEVEL2 IN ('0','1') ",
      {code});
}

std::string SupplierByName(const std::string& name) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_NAME LIKE '%{0}%' AND B.CT_LEVEL2 IN ('0','1') ",
      {name});
}

// With the option on, the store's order settings decide who is a supplier, whatever the partner's
// level.
std::string SetUpSupplierByPhone(const std::string& digits) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{0}' AND A.CT_phone LIKE '%{1}%'   ",
      {Session.StoreCode, digits});
}

std::string SetUpSupplierByCode(const std::string& code) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{0}' AND A.CT_CODE = '{1}'  ",
      {Session.StoreCode, code});
}

std::string SetUpSupplierByName(const std::string& name) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{0}' AND A.CT_NAME LIKE '%{1}%'  ",
      {Session.StoreCode, name});
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

void OrderForm::Text1_Change() {
  // A line's price belongs to the supplier; another name means other prices.
  FLEX1.SetRows(1);
  RecalcTotals();
}

void OrderForm::Text1_GotFocus() { Text1.SelectAll(); }

void OrderForm::Text1_KeyDown(Key key) {
  if (key != Key::F1) return;
  LaCTHELP_Click();
  SetFocus(inBox);
}

void OrderForm::Text1_KeyPress(Key key) {
  if (key != Key::Enter) return;
  std::int16_t found = 0;
  FindSupplier(Text1, found);
  if (found != 0) {
    FocusNext();
  } else {
    SetFocus(Text1);
  }
}

void OrderForm::FindSupplier(TextBox& box, std::int16_t& found) {
  SqlText = SupplierStatement(box.Text());
  StringTable suppliers;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(SqlText, suppliers, rows, highestColumn);
  if (rows == 1) {
    box.SetText(suppliers.At(1, 1));
    box.Tag = suppliers.At(1, 0);
  } else {
    ChooseSupplier(box, "");
  }
  found = !box.Text().empty() && !box.Tag.empty() ? -1 : 0;
  FollowSupplier();
}

void OrderForm::ChooseSupplier(TextBox& box, const std::string& lookupTable) {
  HELP_CT lookup;
  lookup.Text1.SetText(box.Text());
  lookup.SlipTable = lookupTable;
  Host.ShowModal(lookup);
  box.SetText(lookup.ResultName);
  box.Tag = lookup.ResultCode;
}

void OrderForm::FollowSupplier() {
  const Hourglass waiting;
  if (AppOptions.OrderInfoPartnersOnly == 1) OpenScopedItemList(Text1.Tag);
  FillKindGrid(PRHELP, 1, "");
}

void OrderForm::LaCTHELP_Click() {
  ChooseSupplier(Text1, SlipTable);
  FollowSupplier();
  SetFocus(inBox);
}

}  // namespace store
