#include "order/frm_Order02.h"

#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kUnit = 7;
constexpr int kEntry = 8;
constexpr int kGoodsUnit = 10;

/// What the store may order from anybody, with its stock. An item without an order price cannot be
/// ordered.
std::string StoreItemList() {
  return Splice(
      "SELECT PR.PR_CODE,PR.PR_NAME,PR.PR_STD,PR.PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR.PR_BCODE,' ',"
      "KD_ID,SUM(BSQTY+INQTY-OTQTY),SAFEIV.CT_CODE,CONCAT(SAFEIV.CT_CODE,PR.PR_NAME) AS CTPRCODE,"
      "SAFEIV.ORD_QTY   FROM (SAFEIV LEFT JOIN PR ON SAFEIV.PR_CODE = PR.PR_CODE)   left join IV "
      "ON PR.PR_CODE = IV.PR_CODE  AND IV.RCT_CODE ='{store}'   WHERE PR_END = '0' AND "
      "SAFEIV.RCT_CODE = '{store}'  AND         (CT_CODE IS NOT NULL AND CT_CODE <> '') and ord_up "
      "<> 0   GROUP BY PR.PR_CODE   ORDER BY PR.PR_NAME  ",
      "store"_a = Session.StoreCode);
}

// The list is that of all suppliers, so the choice of one reads nothing.
void ReadItems(ItemListMoment moment, const std::string& /*supplier*/) {
  if (moment == ItemListMoment::FormOpens) OpenRecordset(SlotC, StoreItemList());
}

std::vector<std::string> PickRow(const Recordset& items, std::uint32_t row) {
  std::vector<std::string> cells = PickRowOfItem(items, row);
  cells.emplace_back(items.TextOfRow(row, item02::Stock));
  cells.emplace_back(items.TextOfRow(row, item02::Unit));
  cells.resize(kGoodsUnit);
  cells.emplace_back(items.TextOfRow(row, item::Unit));
  return cells;
}

// Sizes are compared and nothing else: any quantity from the unit up will do.
bool RefuseBelowUnit(Grid& picks, int row) {
  const double unit = ParseGrouped(picks.TextMatrix(row, kUnit));
  if (unit == 0 || unit <= ParseGrouped(picks.TextMatrix(row, kEntry))) return false;
  Host.MsgBox("발주단위 이하 발주할 수 없습니다.     ", box::Critical, "발주량 체크");
  picks.SetTextMatrix(row, kEntry, "");
  return true;
}

EntryVerdict JudgeEntry(Grid& picks, int row) {
  if (RefuseLongEntry(picks, row, kEntry) || RefuseBelowUnit(picks, row)) {
    return EntryVerdict::Nothing;
  }
  return OrderUnlessZero(picks, row, kEntry);
}

std::vector<GridColumn> PickColumns() {
  std::vector<GridColumn> columns = HiddenPickColumns();
  columns.push_back({.Header = "바코드", .Width = 1140, .Alignment = Align::Center});
  columns.push_back({.Header = "품명", .Width = 2070, .Alignment = Align::Left});
  columns.push_back({.Header = "규격", .Width = 1110, .Alignment = Align::Left});
  columns.push_back(CountColumn("현재고", 810));
  columns.push_back(CountColumn("발주단위", 795));
  columns.push_back(EntryColumn("발주량", 720));
  columns.push_back({.Width = 900, .Hidden = true});
  columns.push_back({.Header = "단위", .Width = 900, .Alignment = Align::Left});
  return columns;
}

const OrderTypeChoices& Choices() {
  static const OrderTypeChoices choices{
      .FormName = "frm_Order02",
      .Caption = "발주시스템",
      .StateOf = StateByButton,
      .ConfirmNeedsRights = true,
      .CombinesSuppliers = true,
      .CountsKeysAnew = true,
      .SavesGoneItems = true,
      .UnitField = item02::Unit,
      .ReadItems = ReadItems,
      .BarcodeCriteria = BarcodeBeginsWith,
      .PickGrid = PickColumns(),
      .PickEntry = kEntry,
      .PickRow = PickRow,
      .JudgeEntry = JudgeEntry,
  };
  return choices;
}

}  // namespace

frm_Order02::frm_Order02()
    : OrderForm(Choices()),
      SelectionPane(static_cast<Form&>(*this), static_cast<PickListPane&>(*this)) {
  FillLeftSide = [this] { Option1_Click(Option1[0].Value ? 0 : 1); };
  NameSearchSupplier = [this] { return ChosenSupplier(); };
  AddLeftSideStops({&Option1[0], &Option1[1], &Combo2[0], &Combo2[1], &Combo2[2], &PRHELP});
}

}  // namespace store
