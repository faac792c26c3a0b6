#include "order/frm_Order01.h"

#include "gateway/splice.h"
#include "slips/item_list.h"

namespace store {
namespace {

void ReadItems(ItemListMoment moment, const std::string& supplier) {
  OpenScopedItemList(supplier, moment == ItemListMoment::LookupClosed ? " order by PR_NAME "
                                                                      : "  order by PR_NAME  ");
}

std::string BarcodeIs(const std::string& text) {
  return Splice(" PR_BCODE  = '{text}'", "text"_a = text);
}

// What to order is looked through here; nothing goes over before the transfer.
EntryVerdict JudgeEntry(Grid& picks, int row) {
  RecalcShortage(picks, row);
  return EntryVerdict::Nothing;
}

std::vector<GridColumn> PickColumns() {
  std::vector<GridColumn> columns = HiddenPickColumns();
  columns.push_back({.Header = "바코드", .Width = 705, .Alignment = Align::Center, .Hidden = true});
  columns.push_back({.Header = "품명", .Width = 2070, .Alignment = Align::Left});
  columns.push_back({.Header = "규격", .Width = 1005, .Alignment = Align::Left});
  columns.push_back(EntryColumn("판매량", 930));
  columns.push_back(CountColumn("현재고", 915));
  columns.push_back(CountColumn("부족재고", 915));
  columns.push_back({.Width = 900, .Hidden = true});
  columns[pick::Mark].Hidden = columns[proposal::Kind].Hidden = false;
  columns[pick::Mark].Editable = true;
  return columns;
}

const OrderTypeChoices& Choices() {
  static const OrderTypeChoices choices{
      .FormName = "frm_Order01",
      .Caption = "발주시스템",
      .StateOf = StatePastConfirmation,
      .CountsKeysAnew = true,
      .SavesGoneItems = true,
      .HitsOpenQuickPick = true,
      .ReadItems = ReadItems,
      .BarcodeCriteria = BarcodeIs,
      .PickGrid = PickColumns(),
      .PickEntry = proposal::Base,
      .PickRow = PickRowOfItem,
      .JudgeEntry = JudgeEntry,
  };
  return choices;
}

}  // namespace

frm_Order01::frm_Order01()
    : OrderForm(Choices()),
      ProposalPane(static_cast<Form&>(*this), static_cast<SupplierPane&>(*this),
                   static_cast<PickListPane&>(*this), static_cast<ProgressPane&>(*this)) {
  AddLeftSideStops({&DTPicker1[0], &DTPicker1[1], &Check1, &Text2, &Check3, &Text3, &Check4,
                    &Check2, &Option1[0], &Option1[1], &Option1[2]});
}

}  // namespace store
