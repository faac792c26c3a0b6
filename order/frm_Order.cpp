#include "order/frm_Order.h"

#include "basics/formats.h"
#include "basics/numbers.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kEntry = 8;

void ReadItems(ItemListMoment /*moment*/, const std::string& supplier) {
  OpenScopedItemList(supplier);
}

EntryVerdict JudgeEntry(Grid& picks, int row) {
  if (RefuseLongEntry(picks, row, kEntry)) return EntryVerdict::Nothing;
  return ParseGrouped(picks.TextMatrix(row, kEntry)) == 0 ? EntryVerdict::Nothing
                                                          : EntryVerdict::Order;
}

std::vector<GridColumn> PickColumns() {
  return {
      {.Header = "품목코드", .Width = 1050, .Alignment = Align::Left, .Hidden = true},
      {.Header = "S", .Width = 225, .Alignment = Align::Center, .Hidden = true, .CheckBox = true},
      {.Header = "상품분류", .Width = 1215, .Alignment = Align::Left, .Hidden = true},
      {.Header = "바코드", .Width = 1725, .Alignment = Align::Center},
      {.Header = "품명", .Width = 2070, .Alignment = Align::Left},
      {.Header = "규격", .Width = 1785, .Alignment = Align::Left},
      {.Header = "현재고",
       .Width = 930,
       .Alignment = Align::Right,
       .Format = kMaskWhole,
       .Hidden = true},
      {.Header = "부족재고",
       .Width = 915,
       .Alignment = Align::Right,
       .Format = kMaskWhole,
       .Hidden = true},
      {.Header = "발주량",
       .Width = 915,
       .Alignment = Align::Right,
       .Format = kMaskWhole,
       .Editable = true,
       .BackColor = kEntryYellow},
      {.Width = 900, .Hidden = true},
  };
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
