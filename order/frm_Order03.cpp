#include "order/frm_Order03.h"

#include "basics/numbers.h"
#include "basics/records.h"
#include "forms/options_file.h"
#include "gateway/gateway.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kStockGrey = 0xE0E0E0;

std::string SafetyItemList(const std::string& supplier) {
  return Splice(
      "SELECT PR.PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR.PR_BCODE,' ',KD_ID,"
      "SAFE_QTY,ORD_QTY FROM SAFEIV LEFT JOIN PR ON SAFEIV.PR_CODE = PR.PR_CODE  WHERE PR_END = "
      "'0' AND RCT_CODE = '{store}' AND CT_CODE = '{supplier}' ",
      "store"_a = Session.StoreCode, "supplier"_a = supplier);
}

// A supplier that was typed brings the plain list, without units and safety stock.
void ReadItems(ItemListMoment moment, const std::string& supplier) {
  if (moment == ItemListMoment::SupplierTyped) {
    OpenScopedItemList(supplier);
  } else {
    OpenRecordset(SlotC, SafetyItemList(supplier));
  }
}

// The workstation's options are asked at each save: they may name another type by now.
std::string StateOf(int button) {
  const bool isStill = OptionNumber(ReadOption(kOptionSection, kOrderTypeKey)) == 3;
  return isStill ? StatePastConfirmation(button) : StateByButton(button);
}

std::vector<std::string> PickRow(const Recordset& items, std::uint32_t row) {
  std::vector<std::string> cells = PickRowOfItem(items, row);
  cells.resize(stock_view::Entry);
  cells[stock_view::Safety] = items.TextOfRow(row, item03::Safety);
  cells[stock_view::Unit] = items.TextOfRow(row, item03::Unit);
  return cells;
}

// The length is looked at in the shortage's column and not in the entry's. Nor is an entry held
// against the unit here: only the item box does that.
EntryVerdict JudgeEntry(Grid& picks, int row) {
  if (RefuseLongEntry(picks, row, stock_view::Shortage)) return EntryVerdict::Nothing;
  return ParseGrouped(picks.TextMatrix(row, stock_view::Entry)) == 0 ? EntryVerdict::TakeOut
                                                                     : EntryVerdict::Order;
}

std::vector<GridColumn> PickColumns() {
  std::vector<GridColumn> columns = HiddenPickColumns();
  columns.push_back({.Header = "바코드", .Width = 1530, .Alignment = Align::Center});
  columns.push_back({.Header = "품명", .Width = 2070, .Alignment = Align::Left});
  columns.push_back({.Header = "규격", .Width = 600, .Alignment = Align::Right});
  columns.push_back(
      {.Header = "안전고", .Width = 615, .Alignment = Align::Right, .BackColor = kStockGrey});
  columns.push_back(CountColumn("현재고", 630, kStockGrey));
  columns.push_back(CountColumn("부족", 630, kStockGrey));
  columns.push_back(
      {.Header = "단위", .Width = 480, .Alignment = Align::Right, .BackColor = kStockGrey});
  columns.push_back(EntryColumn("발주량", 795));
  columns.push_back({.Width = 900, .Hidden = true});
  return columns;
}

const OrderTypeChoices& Choices() {
  static const OrderTypeChoices choices{
      .FormName = "frm_Order03",
      .Caption = "발주시스템 (3)",
      .StateOf = StateOf,
      .CountsKeysAnew = true,
      .UnitField = item03::Unit,
      .OrdersInUnits = true,
      .ReadItems = ReadItems,
      .BarcodeCriteria = BarcodeBeginsWith,
      .MoreLineColumns = {{.Header = "최소단위", .Width = 900, .Hidden = true}},
      .PickGrid = PickColumns(),
      .PickEntry = stock_view::Entry,
      .PickRow = PickRow,
      .JudgeEntry = JudgeEntry,
  };
  return choices;
}

}  // namespace

frm_Order03::frm_Order03()
    : OrderForm(Choices()),
      KindPane(static_cast<Form&>(*this), static_cast<PickListPane&>(*this), Levels::TopOnly),
      StockViewPane(static_cast<Form&>(*this), static_cast<PickListPane&>(*this)) {
  FillLeftSide = [this] { FillKindGrid(PRHELP, 1, "", Text1.Tag); };
  BesideItems = [this] { return StockBeside(); };
  AddLeftSideStops({&Check1, &DTPicker1[0], &DTPicker1[1], &PRHELP});
}

}  // namespace store
