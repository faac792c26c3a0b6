#include "order/frm_Order.h"

#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kStock = 6;
constexpr int kShortage = 7;
constexpr int kEntry = 8;

void ReadItems(ItemListMoment /*moment*/, const std::string& supplier) {
  OpenScopedItemList(supplier);
}

EntryVerdict JudgeEntry(Grid& picks, int row) {
  if (RefuseLongEntry(picks, row, kEntry)) return EntryVerdict::Nothing;
  return OrderUnlessZero(picks, row, kEntry);
}

std::vector<GridColumn> PickColumns() {
  std::vector<GridColumn> columns = HiddenPickColumns();
  columns.push_back({.Header = "바코드", .Width = 1725, .Alignment = Align::Center});
  columns.push_back({.Header = "품명", .Width = 2070, .Alignment = Align::Left});
  columns.push_back({.Header = "규격", .Width = 1785, .Alignment = Align::Left});
  columns.push_back(CountColumn("현재고", 930));
  columns.push_back(CountColumn("부족재고", 915));
  columns.push_back(EntryColumn("발주량", 915));
  columns.push_back({.Width = 900, .Hidden = true});
  columns[kStock].Hidden = columns[kShortage].Hidden = true;
  return columns;
}

const OrderTypeChoices& Choices() {
  static const OrderTypeChoices choices{
      .FormName = "frm_Order",
      .Caption = "발주시스템",
      .StateOf = StateByButton,
      .ReadItems = ReadItems,
      .BarcodeCriteria = BarcodeBeginsWith,
      .PickGrid = PickColumns(),
      .PickEntry = kEntry,
      .PickRow = PickRowOfItem,
      .JudgeEntry = JudgeEntry,
  };
  return choices;
}

}  // namespace

frm_Order::frm_Order()
    : OrderForm(Choices()),
      KindPane(static_cast<Form&>(*this), static_cast<PickListPane&>(*this),
               Levels::MiddleByOption) {
  FillLeftSide = [this] { FillKindGrid(PRHELP, 1, "", Text1.Tag); };
  AddLeftSideStops({&PRHELP});
}

}  // namespace store
